#include "tests/database/CutLink.h"

#include "tests/database/UnixLink.h"

#include <algorithm>
#include <string_view>
#include <unistd.h>

namespace refhost {

CutLink::CutLink(const std::filesystem::path& serverFolder)
    : listening_(listenIn(folder())), thread_([this, serverFolder] {
          serveClients(listening_, serverFolder, isEnding_, [this](int client, int server) { carry(client, server); });
      }) {}

CutLink::~CutLink() {
    isEnding_ = true;
    thread_.join();
    close(listening_);
}

// The client waits for the statement to be prepared before it calls it, so the two never come together.
bool CutLink::isCutAt(const std::vector<char>& asked) {
    const bool isLastBunch = place_ != At::Nowhere && bunchesLeft_ > 0 && --bunchesLeft_ == 0;
    if (isPrepared_ || isLastBunch) {
        isPrepared_ = false;
        isCalled_ = place_ == At::Answer;
        return place_ == At::Request;
    }
    isPrepared_ =
        place_ != At::Nowhere && bunchesLeft_ == 0 && !std::ranges::search(asked, std::string_view(statement_)).empty();
    return false;
}

void CutLink::carry(int client, int server) {
    isPrepared_ = false;
    isCalled_ = false;
    std::vector<char> asked;
    std::vector<char> answered;
    while (!isEnding_) {
        const LinkSides sides = awaitSides(client, !answered.empty(), server, !asked.empty());
        if ((sides.HasFirst && !takeBytes(client, asked)) || (sides.HasSecond && !takeBytes(server, answered))) {
            return;
        }
        if ((sides.HasFirst && isCutAt(asked)) || (sides.HasSecond && isCalled_)) {
            place_ = At::Nowhere;
            return;
        }
        if (!handBytes(server, asked) || !handBytes(client, answered)) {
            return;
        }
    }
}

} // namespace refhost
