#include "tests/database/SlowLink.h"

#include "tests/database/UnixLink.h"

#include <algorithm>
#include <deque>
#include <unistd.h>
#include <vector>

namespace refhost {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// What one side has said and the other one has not heard yet.
class Direction {
public:
    explicit Direction(milliseconds latency) : latency_(latency) {}

    /// False at the end of the link.
    bool take(int socket) {
        travelling_.push_back({steady_clock::now() + latency_, {}});
        return takeBytes(socket, travelling_.back().Bytes);
    }
    bool hand(int socket) {
        for (; !travelling_.empty() && travelling_.front().Due <= steady_clock::now(); travelling_.pop_front()) {
            const std::vector<char>& bytes = travelling_.front().Bytes;
            arrived_.insert(arrived_.end(), bytes.begin(), bytes.end());
        }
        return handBytes(socket, arrived_);
    }
    bool hasArrived() const { return !arrived_.empty(); }
    /// How long nothing more arrives.
    milliseconds patience() const {
        if (travelling_.empty()) {
            return c_LinkSilence;
        }
        const auto left = std::chrono::ceil<milliseconds>(travelling_.front().Due - steady_clock::now());
        return std::clamp(left, milliseconds(0), c_LinkSilence);
    }

private:
    struct Portion {
        steady_clock::time_point Due;
        std::vector<char> Bytes;
    };

    milliseconds latency_;
    std::deque<Portion> travelling_;
    std::vector<char> arrived_; ///< What the other side has not taken yet.
};

} // namespace

SlowLink::SlowLink(const std::filesystem::path& serverFolder, milliseconds latency)
    : latency_(latency), listening_(listenIn(folder())), thread_([this, serverFolder] {
          serveClients(listening_, serverFolder, isEnding_, [this](int client, int server) { carry(client, server); });
      }) {}

SlowLink::~SlowLink() {
    isEnding_ = true;
    thread_.join();
    close(listening_);
}

void SlowLink::carry(int client, int server) const {
    Direction asked(latency_);
    Direction answered(latency_);
    while (!isEnding_) {
        const LinkSides sides = awaitSides(client, answered.hasArrived(), server, asked.hasArrived(),
                                           std::min(asked.patience(), answered.patience()));
        if ((sides.HasSecond && !answered.take(server)) || (sides.HasFirst && !asked.take(client)) ||
            !asked.hand(server) || !answered.hand(client)) {
            return;
        }
    }
}

} // namespace refhost
