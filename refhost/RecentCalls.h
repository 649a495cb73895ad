#pragma once

#include <cstddef>
#include <deque>
#include <string>

namespace refhost {

/// The last lines of a record, for whoever asks afterwards what happened.
class RecentCalls {
public:
    explicit RecentCalls(std::size_t most = c_most) : most_(most) {}

    void add(const std::string& line) {
        if (lines_.size() == most_) {
            lines_.pop_front();
        }
        lines_.push_back(line);
    }
    const std::deque<std::string>& lines() const { return lines_; }

private:
    /// A save calls once for each line: so many that what came before a long one is still told.
    static constexpr std::size_t c_most = 1000;

    std::size_t most_;
    std::deque<std::string> lines_;
};

} // namespace refhost
