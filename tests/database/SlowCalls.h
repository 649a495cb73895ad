#pragma once

#include "tests/database/Engines.h"

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

namespace refhost {

/// Procedures of a company that take as long as a test wants, and do their own work afterwards. The embedded engine
/// runs them from a folder (Database::useProcedures, the host's --procedures), the server has them among its own.
class SlowCalls {
public:
    /// `folder` is there. They take their usual time until `take` says otherwise.
    SlowCalls(std::string url, std::initializer_list<std::string_view> procedures, std::filesystem::path folder);

    /// From now on each of them takes so long: steps of some tens of nanoseconds on the embedded engine, where nothing
    /// could wait, about so many microseconds on the server.
    void take(long amount) const;
    /// They take longer than any test.
    void takeForever() const { take(100'000'000'000); }

    /// Has a connection use them.
    void install(Database& database) const;
    bool isServer() const { return isServer_; }
    const std::filesystem::path& folder() const { return folder_; }

private:
    std::string url_;
    std::filesystem::path folder_;
    bool isServer_;
};

} // namespace refhost
