#include "tests/database/LongLink.h"

#include <cstring>
#include <future>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace refhost {
namespace {

constexpr const char* c_SocketName = ".s.PGSQL.5432";
/// More than all buffers between two programs hold.
constexpr std::size_t c_Much = 4U << 20U;

/// One end of the link; an end that waits for half a minute gives up.
class End {
public:
    explicit End(int socket) : socket_(socket) {
        const timeval patience{30, 0};
        setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
        setsockopt(socket_, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof(patience));
    }
    End(const End&) = delete;
    End& operator=(const End&) = delete;
    ~End() { close(socket_); }

    bool says(std::size_t size, char letter) const {
        const std::string text(size, letter);
        for (std::size_t done = 0; done < size;) {
            const ssize_t count = send(socket_, text.data() + done, size - done, MSG_NOSIGNAL);
            if (count <= 0) {
                return false;
            }
            done += static_cast<std::size_t>(count);
        }
        return true;
    }
    bool hears(std::size_t size, char letter) const {
        std::string text(size, ' ');
        return recv(socket_, text.data(), size, MSG_WAITALL) == static_cast<ssize_t>(size) &&
               text == std::string(size, letter);
    }

private:
    int socket_;
};

int socketAt(const std::filesystem::path& folder, int (*attach)(int, const sockaddr*, socklen_t)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, (folder / c_SocketName).c_str(), sizeof(address.sun_path) - 1);
    const int made = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(attach(made, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    return made;
}

// A server that has fallen behind writes the answers of many rows while the client goes on sending.
TEST(LongLink, CarriesWhatBothSidesSayBeforeTheyListen) {
    const TemporaryFolder folder("link");
    const int listening = socketAt(folder.path(), ::bind);
    ASSERT_EQ(listen(listening, 1), 0);
    LongLink link(folder.path());

    auto server = std::async(std::launch::async, [listening] {
        const End end(accept(listening, nullptr, nullptr));
        return end.says(c_Much, 's') && end.hears(c_Much, 'c') && end.hears(1, 'e');
    });
    {
        const End client(socketAt(link.folder(), ::connect));
        EXPECT_TRUE(client.says(c_Much, 'c'));
        EXPECT_TRUE(client.hears(c_Much, 's'));
        EXPECT_TRUE(client.says(1, 'e'));
    }
    EXPECT_TRUE(server.get());
    close(listening);
}

} // namespace
} // namespace refhost
