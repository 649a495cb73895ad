#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace refhost {

/// Ends of links on unix sockets, as a server and its clients make them, for tests that stand between the two.

/// A socket that waits for clients at the path under which a server's folder has its own; the caller closes it. Throws
/// std::runtime_error.
int listenIn(const std::filesystem::path& folder);
/// The next client, or -1 when none comes for a while. A program that the test starts meanwhile does not hold it open.
int acceptAt(int listening);
/// A link to the server of the folder; -1 when there is none.
int connectTo(const std::filesystem::path& folder);

/// Serves one client after the other until it is told to end: `carry` has each with a link to the server of the folder.
void serveClients(int listening, const std::filesystem::path& serverFolder, const std::atomic<bool>& isEnding,
                  const std::function<void(int client, int server)>& carry);

/// Much longer than either side needs between two calls.
inline constexpr std::chrono::milliseconds c_LinkSilence{20};

/// Waits a while for bytes of either side, and for room on a side that has to take some.
struct LinkSides {
    bool IsSilent = false; ///< Nothing happened.
    bool HasFirst = false; ///< The first side can be read, or has ended.
    bool HasSecond = false;
};
LinkSides awaitSides(int first, bool firstTakes, int second, bool secondTakes,
                     std::chrono::milliseconds patience = c_LinkSilence);

/// Appends what has come; false at the end of the link.
bool takeBytes(int socket, std::vector<char>& bytes);
/// Hands over what the other side takes at once: waiting for it, while it waits for its answers to be taken, would
/// never end. False at the end of the link.
bool handBytes(int socket, std::vector<char>& bytes);

} // namespace refhost
