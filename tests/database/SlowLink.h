#pragma once

#include "tests/support/TemporaryFolder.h"

#include <atomic>
#include <chrono>
#include <filesystem>
#include <thread>

namespace refhost {

/// A link to a server on a unix socket on which whatever either side says arrives so much later, in order, however much
/// is on its way. Serves one client at a time, in a thread of its own that ends with the object.
class SlowLink {
public:
    /// `serverFolder` holds the server's socket; an answer comes back after twice the latency.
    SlowLink(const std::filesystem::path& serverFolder, std::chrono::milliseconds latency);
    SlowLink(const SlowLink&) = delete;
    SlowLink& operator=(const SlowLink&) = delete;
    ~SlowLink();

    /// What a client gives as its host.
    const std::filesystem::path& folder() const { return folder_.path(); }

private:
    void carry(int client, int server) const;

    TemporaryFolder folder_{"slow"};
    std::chrono::milliseconds latency_;
    int listening_;
    std::atomic<bool> isEnding_{false};
    std::thread thread_;
};

} // namespace refhost
