#include "tests/autosave/FailingSystem.h"

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

// The functions below stand before those of the C library, which they call when it is not their turn to fail.

namespace {

struct Plan {
    int call = 0;
    int error = 0;
    failingsystem::Lasting lasting = failingsystem::Lasting::Once;
    int seen = 0;
    bool hasFailed = false;
};
Plan plan;

bool fails() {
    if (plan.error == 0 || ++plan.seen < plan.call ||
        (plan.seen > plan.call && plan.lasting == failingsystem::Lasting::Once)) {
        return false;
    }
    plan.hasFailed = true;
    errno = plan.error;
    return true;
}

struct Halving {
    bool isOn = false;
    int count = 0;
};
Halving halving;

/// What a call that was asked for so many bytes is to take.
size_t taken(size_t bytes) {
    if (!halving.isOn || bytes < 2) {
        return bytes;
    }
    ++halving.count;
    return bytes / 2;
}

template <class Function, class... Args>
auto passOn(const char* name, Function*, Args... args) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name))(args...);
}

mode_t modeOf(int flags, va_list arguments) {
    return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

namespace failingsystem {

void failAt(int call, int error, Lasting lasting) {
    plan = {.call = call, .error = error, .lasting = lasting};
}

bool stopFailing() {
    plan.error = 0;
    return plan.hasFailed;
}

ShortCalls::ShortCalls() {
    halving = {.isOn = true};
}

ShortCalls::~ShortCalls() {
    halving.isOn = false;
}

int ShortCalls::count() const {
    return halving.count;
}

} // namespace failingsystem

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return fails() ? -1 : passOn("open", &open, path, flags, mode);
}

int openat(int directory, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return fails() ? -1 : passOn("openat", &openat, directory, path, flags, mode);
}

ssize_t read(int file, void* bytes, size_t count) {
    return fails() ? -1 : passOn("read", &read, file, bytes, taken(count));
}

ssize_t write(int file, const void* bytes, size_t count) {
    return fails() ? -1 : passOn("write", &write, file, bytes, taken(count));
}

int fsync(int file) {
    return fails() ? -1 : passOn("fsync", &fsync, file);
}

// The number is free also when the call fails, as the system has it.
int close(int file) {
    const int result = passOn("close", &close, file);
    return fails() ? -1 : result;
}

int mkdir(const char* path, mode_t mode) noexcept {
    return fails() ? -1 : passOn("mkdir", &mkdir, path, mode);
}

int fchmod(int file, mode_t mode) noexcept {
    return fails() ? -1 : passOn("fchmod", &fchmod, file, mode);
}

int fstat(int file, struct stat* status) noexcept {
    return fails() ? -1 : passOn("fstat", &fstat, file, status);
}

int stat(const char* path, struct stat* status) noexcept {
    return fails() ? -1 : passOn("stat", static_cast<int (*)(const char*, struct stat*)>(&stat), path, status);
}

int fstatat(int directory, const char* path, struct stat* status, int flags) noexcept {
    return fails() ? -1 : passOn("fstatat", &fstatat, directory, path, status, flags);
}

int flock(int file, int operation) noexcept {
    return fails() ? -1 : passOn("flock", &flock, file, operation);
}

int renameat(int fromDirectory, const char* from, int toDirectory, const char* to) noexcept {
    return fails() ? -1 : passOn("renameat", &renameat, fromDirectory, from, toDirectory, to);
}

int unlinkat(int directory, const char* path, int flags) noexcept {
    return fails() ? -1 : passOn("unlinkat", &unlinkat, directory, path, flags);
}
}
