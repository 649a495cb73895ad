#include "benchmarks/database/CostClock.h"

#include <ctime>
#include <fstream>
#include <stdexcept>

namespace benchmark {

namespace {

/// The first number of the file: the nanoseconds that the process has had a processor.
std::chrono::nanoseconds processorTimeOf(const std::string& file) {
    std::ifstream in(file);
    std::int64_t nanoseconds = 0;
    if (!(in >> nanoseconds)) {
        throw std::runtime_error(file + " cannot be read: choose the wall clock");
    }
    return std::chrono::nanoseconds(nanoseconds);
}

} // namespace

std::chrono::nanoseconds CostClock::now() const {
    if (kind_ == Kind::Wall) {
        return std::chrono::steady_clock::now().time_since_epoch();
    }
    timespec own{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &own);
    std::chrono::nanoseconds total = std::chrono::seconds(own.tv_sec) + std::chrono::nanoseconds(own.tv_nsec);
    for (const std::string& file : files_) {
        total += processorTimeOf(file);
    }
    return total;
}

} // namespace benchmark
