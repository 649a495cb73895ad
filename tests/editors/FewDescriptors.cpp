#include "tests/editors/FewDescriptors.h"

#include <stdexcept>
#include <unistd.h>

namespace {

constexpr rlim_t c_Most = 512; // more than a test has open, and few enough to be taken one by one

} // namespace

FewDescriptors::FewDescriptors(std::size_t free) {
    getrlimit(RLIMIT_NOFILE, &before_);
    rlimit few = before_;
    few.rlim_cur = c_Most;
    if (setrlimit(RLIMIT_NOFILE, &few) != 0) {
        throw std::runtime_error("the number of open files cannot be limited");
    }
    for (int file = dup(STDIN_FILENO); file >= 0; file = dup(STDIN_FILENO)) {
        taken_.push_back(file);
    }
    for (; free > 0; --free) {
        close(taken_.back());
        taken_.pop_back();
    }
}

FewDescriptors::~FewDescriptors() {
    for (const int file : taken_) {
        close(file);
    }
    setrlimit(RLIMIT_NOFILE, &before_);
}
