#include "tests/database/KilledServer.h"

#include "refhost/database/PostgreSQLSession.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <stdexcept>
#include <thread>

namespace refhost {

namespace {

constexpr std::chrono::seconds c_LongestEnd{20};

std::vector<pid_t> processesOf(const std::filesystem::path& folder) {
    PostgreSQLSession session("host=" + folder.string() + " dbname=postgres user=postgres", TFormatSettings{});
    const PostgreSQLResult found = session.execute("select pid from pg_stat_activity where pid is not null");
    std::vector<pid_t> processes;
    for (int row = 0; row < PQntuples(found.get()); ++row) {
        processes.push_back(std::stoi(PQgetvalue(found.get(), row, 0)));
    }
    return processes;
}

} // namespace

void killServer(const std::filesystem::path& folder) {
    const std::vector<pid_t> processes = processesOf(folder);
    pid_t first = 0;
    std::ifstream(folder / "data/postmaster.pid") >> first;
    if (first <= 0 || kill(first, SIGKILL) != 0) {
        throw std::runtime_error("the server is not there");
    }
    const auto end = std::chrono::steady_clock::now() + c_LongestEnd;
    for (const pid_t process : processes) {
        while (kill(process, 0) == 0) {
            if (std::chrono::steady_clock::now() > end) {
                throw std::runtime_error("a process of the killed server goes on");
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }
}

} // namespace refhost
