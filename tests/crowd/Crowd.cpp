#include "tests/crowd/Crowd.h"

#include "refhost/database/SampleCompany.h"
#include "tests/crowd/ClerkTask.h"
#include "tests/database/Engines.h"
#include "tests/database/PrivateServer.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace crowd {

namespace {

using refhost::PrivateServer;
using std::chrono::steady_clock;

/// A clerk needs at least so many seconds for a document.
constexpr double c_ShortestDocument = 8;
constexpr int c_QuickBesideSlow = 8;
constexpr std::chrono::minutes c_LongestBefore{5};
constexpr std::chrono::milliseconds c_BetweenLooks{200};
/// What a clerk of this crowd may be told, and understands.
constexpr std::string_view c_Understood[] = {
    "ML021", // he mistyped the number of the source
    "ML026", // a colleague has delivered the order before he named it
    "ML054", // a colleague has delivered it while he typed
};

std::string roleOf(int clerk) {
    return "clerk" + std::to_string(clerk);
}

class Clerks {
public:
    Clerks(const CrowdOrders& orders, const std::string& url) : orders_(orders) {
        const auto owner = refhost::openAs(url, "novakova");
        refhost::createSampleCompany(*owner, 0);
        // The quick ones go on while the slow ones have not yet saved those before.
        const auto each =
            static_cast<int>(orders.Seconds / c_ShortestDocument) + 2 + orders.DocumentsBefore * c_QuickBesideSlow;
        tasks_ = makeTasks(*owner, orders.Clerks, each, orders.Seed);
        for (int clerk = 1; clerk <= orders.Clerks; ++clerk) {
            PrivateServer::instance().addRole(roleOf(clerk), "melvark_clerk");
            std::filesystem::create_directory(folderOf(clerk));
            std::filesystem::permissions(folderOf(clerk), std::filesystem::perms::owner_all);
            writeTasks(folderOf(clerk) / "tasks", tasksOf(clerk));
            processes_.push_back(start(clerk, url + " user=" + roleOf(clerk)));
        }
    }
    Clerks(const Clerks&) = delete;
    Clerks& operator=(const Clerks&) = delete;
    ~Clerks() {
        for (const pid_t process : processes_) {
            kill(process, SIGKILL);
            waitpid(process, nullptr, 0);
        }
    }

    const std::vector<pid_t>& processes() const { return processes_; }

    /// Waits until each has saved so many documents.
    void awaitSaved(int documents) const {
        const auto end = steady_clock::now() + c_LongestBefore;
        for (int clerk = 1; clerk <= orders_.Clerks; ++clerk) {
            while (diaryOf(clerk).Saved.size() < static_cast<std::size_t>(documents)) {
                if (steady_clock::now() >= end) {
                    throw std::runtime_error(roleOf(clerk) + " has not saved " + std::to_string(documents) +
                                             " documents");
                }
                std::this_thread::sleep_for(c_BetweenLooks);
            }
        }
    }
    /// Lets each finish his document.
    void finish() {
        const std::ofstream evening(eveningFile());
        for (const pid_t process : processes_) {
            waitpid(process, nullptr, 0);
        }
        processes_.clear();
    }

    Diary diaryOf(int clerk) const { return readDiary(folderOf(clerk) / "diary"); }
    const std::vector<ClerkTask>& tasksOf(int clerk) const { return tasks_[static_cast<std::size_t>(clerk) - 1]; }

private:
    std::filesystem::path eveningFile() const { return folder_.path() / "evening"; }
    std::filesystem::path folderOf(int clerk) const { return folder_.path() / roleOf(clerk); }

    pid_t start(int clerk, const std::string& database) const {
        const pid_t process = fork();
        if (process != 0) {
            return process;
        }
        const std::string folder = folderOf(clerk);
        for (const char* const variable : {"HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
            setenv(variable, folder.c_str(), 1);
        }
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        execl(orders_.Program.c_str(), orders_.Program.c_str(), "--clerk", std::to_string(clerk).c_str(),
              database.c_str(), folder.c_str(), eveningFile().c_str(), std::to_string(orders_.Seed).c_str(), nullptr);
        _exit(127);
    }

    const CrowdOrders& orders_;
    TemporaryFolder folder_{"crowd"};
    std::vector<std::vector<ClerkTask>> tasks_;
    std::vector<pid_t> processes_;
};

pid_t serverProcess() {
    pid_t server = 0;
    std::ifstream(PrivateServer::instance().folder() / "data/postmaster.pid") >> server;
    return server;
}

Moment momentAt(double seconds, const std::vector<pid_t>& hosts) {
    return {seconds, burdenOf(hosts), burdenOf(familyOf(serverProcess()))};
}

std::vector<ClerkTask> savedTasks(const std::vector<ClerkTask>& tasks, const Diary& diary) {
    std::vector<ClerkTask> saved;
    std::ranges::copy_if(tasks, std::back_inserter(saved), [&](const ClerkTask& task) {
        return std::ranges::find(diary.Saved, task.Document) != diary.Saved.end();
    });
    return saved;
}

} // namespace

bool isUnderstood(const std::string& code) {
    return std::ranges::find(c_Understood, code) != std::end(c_Understood);
}

CrowdResult runCrowd(const CrowdOrders& orders) {
    CrowdResult result;
    const std::string url = refhost::newDatabaseUrl(refhost::Engine::PostgreSQL);
    Clerks clerks(orders, url);
    clerks.awaitSaved(orders.DocumentsBefore);
    const auto begin = steady_clock::now();
    const auto at = [&](double seconds) {
        std::this_thread::sleep_until(
            begin + std::chrono::duration_cast<steady_clock::duration>(std::chrono::duration<double>(seconds)));
        return momentAt(seconds, clerks.processes());
    };
    result.Early = at(orders.Seconds / 5);
    result.Late = at(orders.Seconds);
    clerks.finish();

    const auto company = refhost::openAs(url, "novakova");
    for (int clerk = 1; clerk <= orders.Clerks; ++clerk) {
        const Diary diary = clerks.diaryOf(clerk);
        result.All.add(diary);
        for (const std::string& trouble : diary.Troubles) {
            result.Wrong.push_back(roleOf(clerk) + ": " + trouble);
        }
        const std::vector<std::string> wrong =
            wrongDocuments(*company, clerk, savedTasks(clerks.tasksOf(clerk), diary));
        result.Wrong.insert(result.Wrong.end(), wrong.begin(), wrong.end());
    }
    for (const auto& [code, count] : result.All.Told) {
        if (!isUnderstood(code)) {
            result.Wrong.push_back("told " + std::to_string(count) + " times what no clerk understands: " + code);
        }
    }
    return result;
}

} // namespace crowd
