#include "tests/support/TemporaryFolder.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

bool isRunning(pid_t process) {
    return kill(process, 0) == 0 || errno != ESRCH;
}

/// Whether a database server still works in it: it outlives its program by the moment in which it is stopped.
bool hasServer(const fs::path& folder) {
    std::ifstream file(folder / "data" / "postmaster.pid");
    pid_t server = 0;
    return file >> server && isRunning(server);
}

/// A server that was started by the administrator has made the folder another user's.
bool mayRemove(const fs::path& folder) {
    struct stat status {};
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           (geteuid() == 0 || status.st_uid == geteuid());
}

/// The process in "melvark-KIND-PROCESS-XXXXXX"; 0 when the name is none of that prefix.
pid_t processIn(const std::string& name, const std::string& prefix) {
    pid_t process = 0;
    if (name.starts_with(prefix)) {
        const auto [end, error] = std::from_chars(name.data() + prefix.size(), name.data() + name.size(), process);
        if (error != std::errc() || *end != '-') {
            return 0;
        }
    }
    return process;
}

void removeLeftovers(const fs::path& parent, const std::string& prefix) {
    std::error_code ignored; // another program may be removing the same, and the system cleans its folder too
    for (fs::directory_iterator entry(parent, ignored), end; !ignored && entry != end; entry.increment(ignored)) {
        const pid_t process = processIn(entry->path().filename(), prefix);
        if (process > 0 && !isRunning(process) && mayRemove(*entry) && !hasServer(*entry)) {
            std::error_code left;
            fs::remove_all(*entry, left);
        }
    }
}

} // namespace

TemporaryFolder::TemporaryFolder(const std::string& kind) {
    const fs::path parent = fs::temp_directory_path();
    const std::string prefix = "melvark-" + kind + "-";
    removeLeftovers(parent, prefix);
    std::string pattern = parent / (prefix + std::to_string(getpid()) + "-XXXXXX");
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no temporary folder could be made");
    }
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored; // the next program of the kind removes what is left
    fs::remove_all(path_, ignored);
}
