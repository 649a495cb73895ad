#include "tests/database/KilledAfterMessage.h"

#include "tests/database/OtherProcess.h"
#include "tests/database/PrivateServer.h"
#include "tests/support/TemporaryFolder.h"

#include <array>
#include <csignal>
#include <cstring>
#include <gtest/gtest.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace refhost {

namespace {

constexpr int c_Patience = 60'000; // milliseconds

/// A socket or a connection, closed with its owner.
class Descriptor {
public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {
        if (descriptor < 0) {
            throw std::runtime_error(std::string("no connection: ") + std::strerror(errno));
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(descriptor_); }

    int get() const { return descriptor_; }

private:
    int descriptor_;
};

sockaddr_un socketOf(const std::filesystem::path& folder) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = folder / ".s.PGSQL.5432";
    path.copy(address.sun_path, sizeof(address.sun_path) - 1);
    return address;
}

/// A second door to the private server, through which one client comes and which counts what he sends.
class Door {
public:
    explicit Door(const std::filesystem::path& folder) : listener_(socket(AF_UNIX, SOCK_STREAM, 0)) {
        const sockaddr_un address = socketOf(folder);
        if (bind(listener_.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 ||
            listen(listener_.get(), 1) != 0) {
            throw std::runtime_error(std::string("no door to the server: ") + std::strerror(errno));
        }
    }

    /// Carries everything both ways until the client ends or has sent its point-th message, and kills it then.
    Interruption serve(pid_t client, int point) const {
        pollfd comes{listener_.get(), POLLIN, 0};
        if (poll(&comes, 1, c_Patience) != 1) {
            throw std::runtime_error("the client does not come");
        }
        const Descriptor clientSide(accept(listener_.get(), nullptr, nullptr));
        const Descriptor serverSide(socket(AF_UNIX, SOCK_STREAM, 0));
        const sockaddr_un address = socketOf(PrivateServer::instance().folder());
        if (connect(serverSide.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
            throw std::runtime_error(std::string("no server: ") + std::strerror(errno));
        }
        Interruption result;
        while (true) {
            std::array<pollfd, 2> sides{pollfd{clientSide.get(), POLLIN, 0}, pollfd{serverSide.get(), POLLIN, 0}};
            if (poll(sides.data(), sides.size(), c_Patience) <= 0) {
                throw std::runtime_error("neither the client nor the server says anything");
            }
            if (sides[1].revents != 0 && !carry(serverSide, clientSide)) {
                return result;
            }
            if (sides[0].revents == 0) {
                continue;
            }
            if (!carry(clientSide, serverSide)) {
                return result;
            }
            if (++result.Passed == point) {
                kill(client, SIGKILL);
                result.IsKilled = true;
                return result;
            }
        }
    }

private:
    /// False when there is nothing more to come.
    static bool carry(const Descriptor& from, const Descriptor& to) {
        std::array<char, 1U << 16U> bytes{};
        const ssize_t count = read(from.get(), bytes.data(), bytes.size());
        for (ssize_t sent = 0; sent < count;) {
            const auto left = static_cast<std::size_t>(count - sent);
            const ssize_t more = send(to.get(), bytes.data() + sent, left, MSG_NOSIGNAL);
            if (more < 0) {
                return false;
            }
            sent += more;
        }
        return count > 0;
    }

    Descriptor listener_;
};

} // namespace

Interruption killedAfterMessage(int point, const std::string& url,
                                const std::function<void(const std::string& url)>& work) {
    const TemporaryFolder folder("door");
    const Door door(folder.path());
    std::string byDoor = url;
    const std::string server = PrivateServer::instance().folder().string();
    byDoor.replace(byDoor.find(server), server.size(), folder.path().string());
    const pid_t client = startProcess([&] {
        work(byDoor);
        return 0;
    });
    const Interruption result = door.serve(client, point);
    const int status = statusOf(client);
    EXPECT_TRUE(result.IsKilled || (WIFEXITED(status) && WEXITSTATUS(status) == 0)) << status;
    return result;
}

} // namespace refhost
