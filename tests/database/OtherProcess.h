#pragma once

#include <functional>
#include <sys/types.h>

namespace refhost {

/// Runs `work` in a process of its own, as another start of the program would; what it returns is the exit status.
/// An exception that leaves it is written to the error stream and makes the status 1.
pid_t startProcess(const std::function<int()>& work);

/// Waits for the end of the process; its status is as waitpid gives it.
int statusOf(pid_t process);

} // namespace refhost
