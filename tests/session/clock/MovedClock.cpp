// Loaded into a program before its libraries, this lets a test move the program's clock: what counts from the start of
// the machine, as timers do, is later by as many nanoseconds as stand in the file that MELVARK_MOVED_CLOCK names. The
// calendar stays as it is.

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr std::int64_t c_Second = 1'000'000'000;

/// The file in memory; null without one.
const std::atomic<std::int64_t>* mapped() {
    const char* const name = std::getenv("MELVARK_MOVED_CLOCK");
    const int file = name ? open(name, O_RDONLY | O_CLOEXEC) : -1;
    if (file < 0) {
        return nullptr;
    }
    void* const memory = mmap(nullptr, sizeof(std::int64_t), PROT_READ, MAP_SHARED, file, 0);
    close(file);
    return memory == MAP_FAILED ? nullptr : static_cast<const std::atomic<std::int64_t>*>(memory);
}

} // namespace

extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept {
    using Function = int (*)(clockid_t, timespec*);
    static const auto system = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "clock_gettime"));
    static const std::atomic<std::int64_t>* const offset = mapped();
    const int result = system(clock, time);
    if (result == 0 && offset && clock == CLOCK_MONOTONIC) {
        const std::int64_t moved = time->tv_nsec + offset->load();
        time->tv_sec += moved / c_Second;
        time->tv_nsec = moved % c_Second;
    }
    return result;
}
