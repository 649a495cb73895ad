#pragma once

#include "tests/support/TemporaryFolder.h"

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

namespace refhost {

/// A link to a server on a unix socket that is as long as can be: what the server answers arrives only when both sides
/// have been silent for a while, so it counts how often the client waited for answers. Serves one client at a time, in
/// a thread of its own that ends with the object.
class LongLink {
public:
    /// `serverFolder` holds the server's socket.
    explicit LongLink(const std::filesystem::path& serverFolder);
    LongLink(const LongLink&) = delete;
    LongLink& operator=(const LongLink&) = delete;
    ~LongLink();

    /// What a client gives as its host.
    const std::filesystem::path& folder() const { return folder_.path(); }
    int turns() const { return turns_; }

private:
    void carry(int client, int server);

    TemporaryFolder folder_{"link"};
    int listening_;
    std::atomic<int> turns_{0};
    std::atomic<bool> isEnding_{false};
    std::thread thread_;
};

} // namespace refhost
