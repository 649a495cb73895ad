#pragma once

#include <filesystem>
#include <string>

namespace crowd {

/// What a clerk's process is told.
struct ClerkOrders {
    std::string Database;         ///< The address, as the host's command line takes it.
    std::filesystem::path Folder; ///< Has the file "tasks"; the diary is written there.
    int Clerk = 1;
    std::filesystem::path Evening; ///< Once this file is there, no document is begun.
    unsigned Seed = 1;
};

/// A clerk with the real host, module and editor in this process: opens one document after the other, names its source,
/// types values at a clerk's pace and saves. Needs Qt's application object. The exit status.
int workAsClerk(const ClerkOrders& orders);

} // namespace crowd
