#include "tests/database/OtherProcess.h"

#include "host/Exceptions.h"

#include <cstdio>
#include <exception>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace refhost {

pid_t startProcess(const std::function<int()>& work) {
    const pid_t process = fork();
    if (process == 0) {
        try {
            _exit(work());
        } catch (const EDatabaseError& error) {
            std::fprintf(stderr, "%s\n%s\n", error.Message().c_str(), error.Details().c_str());
        } catch (const std::exception& error) {
            std::fprintf(stderr, "%s\n", error.what());
        }
        _exit(1);
    }
    EXPECT_GT(process, 0);
    return process;
}

int statusOf(pid_t process) {
    int status = -1;
    EXPECT_EQ(waitpid(process, &status, 0), process);
    return status;
}

} // namespace refhost
