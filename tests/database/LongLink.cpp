#include "tests/database/LongLink.h"

#include <cerrno>
#include <cstring>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <vector>

namespace refhost {

namespace {

constexpr const char* c_SocketName = ".s.PGSQL.5432";
/// Much longer than either side needs between two calls.
constexpr int c_Silence = 20;

sockaddr_un addressOf(const std::filesystem::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof(address.sun_path) - 1);
    return address;
}

int newSocket() {
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

int listenAt(const std::filesystem::path& path) {
    const sockaddr_un address = addressOf(path);
    const int socket = newSocket();
    if (bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 || listen(socket, 1) != 0) {
        throw std::runtime_error("cannot listen at " + path.string());
    }
    return socket;
}

bool isReadable(const pollfd& side) {
    return (side.revents & (POLLIN | POLLHUP | POLLERR)) != 0;
}

/// What to wait for of a side that may have to take these bytes.
short wanted(const std::vector<char>& bytes) {
    return static_cast<short>(bytes.empty() ? POLLIN : POLLIN | POLLOUT);
}

/// Appends what has come; false at the end of the link.
bool take(int socket, std::vector<char>& bytes) {
    std::vector<char> portion(1U << 16U);
    const ssize_t count = read(socket, portion.data(), portion.size());
    bytes.insert(bytes.end(), portion.begin(), portion.begin() + std::max<ssize_t>(count, 0));
    return count > 0;
}

/// Hands over what the other side takes at once: waiting for it, while it waits for its answers to be taken, would
/// never end. False at the end of the link.
bool hand(int socket, std::vector<char>& bytes) {
    while (!bytes.empty()) {
        const ssize_t count = send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count <= 0) {
            return errno == EAGAIN;
        }
        bytes.erase(bytes.begin(), bytes.begin() + count);
    }
    return true;
}

} // namespace

LongLink::LongLink(const std::filesystem::path& serverFolder)
    : listening_(listenAt(folder() / c_SocketName)),
      thread_([this, socket = serverFolder / c_SocketName] { serve(socket); }) {}

LongLink::~LongLink() {
    isEnding_ = true;
    thread_.join();
    close(listening_);
}

void LongLink::serve(const std::filesystem::path& serverSocket) {
    while (!isEnding_) {
        pollfd waiting{listening_, POLLIN, 0};
        if (poll(&waiting, 1, c_Silence) <= 0) {
            continue;
        }
        const int client = accept(listening_, nullptr, nullptr);
        const int server = newSocket();
        const sockaddr_un address = addressOf(serverSocket);
        if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0) {
            carry(client, server);
        }
        close(server);
        close(client);
    }
}

void LongLink::carry(int client, int server) {
    std::vector<char> asked;
    std::vector<char> answered;
    std::vector<char> arriving;
    while (!isEnding_) {
        pollfd sides[] = {{client, wanted(arriving), 0}, {server, wanted(asked), 0}};
        if (poll(sides, 2, c_Silence) == 0 && !answered.empty()) { // the server has answered all, and the client waits
            ++turns_;
            arriving.insert(arriving.end(), answered.begin(), answered.end());
            answered.clear();
        }
        if ((isReadable(sides[1]) && !take(server, answered)) || (isReadable(sides[0]) && !take(client, asked)) ||
            !hand(server, asked) || !hand(client, arriving)) {
            return;
        }
    }
}

} // namespace refhost
