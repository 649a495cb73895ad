#pragma once

#include <iosfwd>
#include <string>

namespace refhost {

/// How large a log becomes and how many older ones are kept beside it.
struct LogLimits {
    std::size_t bytes = 1048576;
    int kept = 4;
};

/// A log that only its owner can read and that never grows beyond its limits: a line that would pass them begins a new
/// file, the old one becomes FILE.1, the one before FILE.2 and so on; the oldest one goes. A line that is longer than a
/// whole file stands alone in one. Several processes may write the same log, each line whole.
///
/// A file that is no regular file of this process's user is not written. What cannot be written is told once and work
/// goes on without the log.
class LogFile {
public:
    /// Opens the file at once, in a folder that is made when it is missing. `errors` hears what is wrong.
    LogFile(std::string path, LogLimits limits, std::ostream& errors);
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;
    ~LogFile();

    void write(const std::string& line);

private:
    void open();
    void close();
    /// Puts the file aside, unless another process has just done it.
    void rotate();
    std::string olderName(int age) const;

    std::string path_;
    LogLimits limits_;
    std::ostream& errors_;
    int file_ = -1;
    bool isGivenUp_ = false;
};

} // namespace refhost
