#include "refhost/LogFile.h"

#include "refhost/OwnFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <ostream>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace refhost {

namespace {

constexpr mode_t c_ownersAlone = S_IRUSR | S_IWUSR;

void check(bool isDone) {
    if (!isDone) {
        throw std::system_error(errno, std::generic_category());
    }
}

[[noreturn]] void refuse(std::errc reason) {
    throw std::system_error(std::make_error_code(reason));
}

struct stat statusOf(int file) {
    struct stat status {};
    check(fstat(file, &status) == 0);
    return status;
}

/// Whether the path still names the open file: another process may have put it aside, a person may have removed it.
bool isNamed(int file, const std::string& path) {
    struct stat named {};
    if (lstat(path.c_str(), &named) != 0) {
        return false;
    }
    const struct stat open = statusOf(file);
    return named.st_dev == open.st_dev && named.st_ino == open.st_ino;
}

void writeAll(int file, const std::string& text) {
    for (std::size_t written = 0; written < text.size();) {
        const ssize_t count = ::write(file, text.data() + written, text.size() - written);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        check(count >= 0);
        written += static_cast<std::size_t>(count);
    }
}

} // namespace

LogFile::LogFile(std::string path, LogLimits limits, std::ostream& errors)
    : path_(std::move(path)), limits_(limits), errors_(errors) {
    std::error_code refused; // where there is no current directory, a relative name cannot be opened either
    if (const auto whole = std::filesystem::absolute(path_, refused); !refused) {
        path_ = whole.string();
    }
    write({});
}

LogFile::~LogFile() {
    close();
}

void LogFile::write(const std::string& line) {
    if (isGivenUp_) {
        return;
    }
    try {
        if (file_ < 0 || !isNamed(file_, path_)) {
            open();
        }
        if (line.empty()) {
            return;
        }
        const auto size = static_cast<std::size_t>(statusOf(file_).st_size);
        if (size > 0 && size + line.size() + 1 > limits_.bytes) {
            rotate();
        }
        writeAll(file_, line + '\n');
    } catch (const std::system_error& error) {
        isGivenUp_ = true;
        close();
        errors_ << "The log " << path_ << " cannot be written (" << error.code().message()
                << "). Work goes on without it." << std::endl;
    }
}

void LogFile::open() {
    close();
    makeOwnFolder(std::filesystem::path(path_).parent_path());
    // Opening a pipe would wait for its reader, and a link may lead to a file that is not meant.
    file_ = ::open(path_.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY,
                   c_ownersAlone);
    check(file_ >= 0);
    const struct stat status = statusOf(file_);
    if (!S_ISREG(status.st_mode)) {
        refuse(std::errc::invalid_argument);
    }
    if (status.st_uid != geteuid()) {
        refuse(std::errc::operation_not_permitted);
    }
    check(fchmod(file_, c_ownersAlone) == 0);
}

void LogFile::close() {
    if (file_ >= 0) {
        ::close(file_);
        file_ = -1;
    }
}

void LogFile::rotate() {
    check(flock(file_, LOCK_EX) == 0);
    if (isNamed(file_, path_)) {
        for (int age = limits_.kept; age > 0; --age) {
            const bool isDone = std::rename(olderName(age - 1).c_str(), olderName(age).c_str()) == 0;
            check(isDone || errno == ENOENT);
        }
        if (limits_.kept == 0) {
            check(unlink(path_.c_str()) == 0);
        }
    }
    open(); // which lets go of the lock
}

std::string LogFile::olderName(int age) const {
    return age == 0 ? path_ : path_ + "." + std::to_string(age);
}

} // namespace refhost
