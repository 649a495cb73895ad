#include "tests/database/UnixLink.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace refhost {

namespace {

constexpr const char* c_SocketName = ".s.PGSQL.5432";
int pollTime(std::chrono::milliseconds patience) {
    return static_cast<int>(patience.count());
}

sockaddr_un addressOf(const std::filesystem::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof(address.sun_path) - 1);
    return address;
}

int newSocket() {
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

bool isReadable(const pollfd& side) {
    return (side.revents & (POLLIN | POLLHUP | POLLERR)) != 0;
}

short wanted(bool takes) {
    return static_cast<short>(takes ? POLLIN | POLLOUT : POLLIN);
}

} // namespace

int listenIn(const std::filesystem::path& folder) {
    const sockaddr_un address = addressOf(folder / c_SocketName);
    const int socket = newSocket();
    if (bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 || listen(socket, 1) != 0) {
        throw std::runtime_error("cannot listen in " + folder.string());
    }
    return socket;
}

int acceptAt(int listening) {
    pollfd waiting{listening, POLLIN, 0};
    return poll(&waiting, 1, pollTime(c_LinkSilence)) > 0 ? accept4(listening, nullptr, nullptr, SOCK_CLOEXEC) : -1;
}

int connectTo(const std::filesystem::path& folder) {
    const int server = newSocket();
    const sockaddr_un address = addressOf(folder / c_SocketName);
    if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
        close(server);
        return -1;
    }
    return server;
}

void serveClients(int listening, const std::filesystem::path& serverFolder, const std::atomic<bool>& isEnding,
                  const std::function<void(int client, int server)>& carry) {
    while (!isEnding) {
        const int client = acceptAt(listening);
        if (client < 0) {
            continue;
        }
        const int server = connectTo(serverFolder);
        if (server >= 0) {
            carry(client, server);
            close(server);
        }
        close(client);
    }
}

LinkSides awaitSides(int first, bool firstTakes, int second, bool secondTakes, std::chrono::milliseconds patience) {
    pollfd sides[] = {{first, wanted(firstTakes), 0}, {second, wanted(secondTakes), 0}};
    const bool isSilent = poll(sides, 2, pollTime(patience)) == 0;
    return {.IsSilent = isSilent, .HasFirst = isReadable(sides[0]), .HasSecond = isReadable(sides[1])};
}

bool takeBytes(int socket, std::vector<char>& bytes) {
    std::vector<char> portion(1U << 16U);
    const ssize_t count = read(socket, portion.data(), portion.size());
    bytes.insert(bytes.end(), portion.begin(), portion.begin() + std::max<ssize_t>(count, 0));
    return count > 0;
}

bool handBytes(int socket, std::vector<char>& bytes) {
    while (!bytes.empty()) {
        const ssize_t count = send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count <= 0) {
            return errno == EAGAIN;
        }
        bytes.erase(bytes.begin(), bytes.begin() + count);
    }
    return true;
}

} // namespace refhost
