#include "tests/database/LongLink.h"

#include "tests/database/UnixLink.h"

#include <unistd.h>
#include <vector>

namespace refhost {

LongLink::LongLink(const std::filesystem::path& serverFolder)
    : listening_(listenIn(folder())), thread_([this, serverFolder] {
          serveClients(listening_, serverFolder, isEnding_, [this](int client, int server) { carry(client, server); });
      }) {}

LongLink::~LongLink() {
    isEnding_ = true;
    thread_.join();
    close(listening_);
}

void LongLink::carry(int client, int server) {
    std::vector<char> asked;
    std::vector<char> answered;
    std::vector<char> arriving;
    while (!isEnding_) {
        const LinkSides sides = awaitSides(client, !arriving.empty(), server, !asked.empty());
        if (sides.IsSilent && !answered.empty()) { // the server has answered all, and the client waits
            ++turns_;
            arriving.insert(arriving.end(), answered.begin(), answered.end());
            answered.clear();
        }
        if ((sides.HasSecond && !takeBytes(server, answered)) || (sides.HasFirst && !takeBytes(client, asked)) ||
            !handBytes(server, asked) || !handBytes(client, arriving)) {
            return;
        }
    }
}

} // namespace refhost
