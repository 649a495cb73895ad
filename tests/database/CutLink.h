#pragma once

#include "tests/support/TemporaryFolder.h"

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace refhost {

/// A link to a server on a unix socket that is cut at one call: before the server gets it, or after the server has done
/// it and before the client hears so. A new link goes through as if nothing had been. Serves one client at a time, in a
/// thread of its own that ends with the object.
class CutLink {
public:
    enum class At { Nowhere, Request, Answer };

    /// `serverFolder` holds the server's socket.
    explicit CutLink(const std::filesystem::path& serverFolder);
    CutLink(const CutLink&) = delete;
    CutLink& operator=(const CutLink&) = delete;
    ~CutLink();

    /// What a client gives as its host.
    const std::filesystem::path& folder() const { return folder_.path(); }

    /// The call is the first one of the statement in which `statement` stands when it is prepared from now on.
    void cut(At place, const char* statement) {
        statement_ = statement;
        place_ = place;
    }
    /// The call is the bunch of bytes that the client sends as the so many-th from now on.
    void cutAtBunch(At place, int bunch) {
        bunchesLeft_ = bunch;
        place_ = place;
    }
    void leaveAlone() { place_ = At::Nowhere; }
    /// Whether the link was cut since.
    bool isCut() const { return place_ == At::Nowhere; }

private:
    void carry(int client, int server);
    /// Whether the link has to end before these bytes of the client go on.
    bool isCutAt(const std::vector<char>& asked);

    TemporaryFolder folder_{"cut-link"};
    std::atomic<const char*> statement_{""};
    int listening_;
    std::atomic<At> place_{At::Nowhere};
    std::atomic<int> bunchesLeft_{0}; ///< 0 when a statement is waited for.
    std::atomic<bool> isEnding_{false};
    bool isPrepared_ = false; ///< The next bytes of the client are the call.
    bool isCalled_ = false;
    std::thread thread_;
};

} // namespace refhost
