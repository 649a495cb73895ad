#include "tests/autosave/KilledWriter.h"

#include <csignal>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Waits until the process stops; false when it has ended. Throws when its work failed.
bool waitForStop(pid_t process) {
    int status = 0;
    if (waitpid(process, &status, 0) != process || (WIFEXITED(status) && WEXITSTATUS(status) != 0)) {
        throw std::runtime_error("the work of the other process failed");
    }
    return WIFSTOPPED(status);
}

[[noreturn]] void work(const std::function<void()>& task) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    try {
        task();
    } catch (...) {
        _exit(1);
    }
    _exit(0);
}

} // namespace

bool runAndKillAt(int stop, const std::function<void()>& task) {
    const pid_t process = fork();
    if (process == 0) {
        work(task);
    }
    waitForStop(process);
    ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_EXITKILL);
    for (int stops = 0; stops < stop; ++stops) {
        ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
        if (!waitForStop(process)) {
            return true;
        }
    }
    kill(process, SIGKILL);
    waitForStop(process);
    return false;
}
