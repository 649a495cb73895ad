#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace crowd {

/// Milliseconds by what they were spent on.
using Latencies = std::map<std::string, std::vector<double>>;

/// What a clerk met, or all of them together.
struct Diary {
    Latencies Calls;                 ///< By the name of the module's call.
    Latencies Waits;                 ///< By what the clerk waited for: "opening", "cell", "cell of an order", "saving".
    Latencies Served;                ///< Of each wait, likewise: how much of it the module's calls took.
    std::map<std::string, int> Told; ///< How often each refusal was shown, by its code.
    std::vector<std::int32_t> Saved; ///< The documents.
    std::vector<std::string> Troubles; ///< What should not have happened, in words.

    void add(const Diary& other);
};

/// Writes a clerk's diary while he works.
class DiaryPen {
public:
    explicit DiaryPen(const std::filesystem::path& file) : file_(file) {}

    void called(const std::string& name, double milliseconds) {
        line('c', name, milliseconds);
        served_ += milliseconds;
    }
    void beginsToWait() { served_ = 0; }
    void waited(const std::string& work, double milliseconds) {
        line('w', work, milliseconds);
        line('v', work, served_);
    }
    void told(const std::string& code) { line('t', code, 0); }
    void saved(std::int32_t document) { line('s', std::to_string(document), 0); }
    void trouble(const std::string& what) { line('!', what, 0); }

private:
    void line(char kind, const std::string& text, double value) {
        file_ << kind << ' ' << value << ' ' << text << std::endl;
    }

    std::ofstream file_;
    double served_ = 0; ///< By the calls since the wait began.
};

Diary readDiary(const std::filesystem::path& file);

/// The value below which that share of the latencies lies (0.5: the median).
double quantile(std::vector<double> latencies, double share);

/// Writes the waits and what of them was served as benchmarks/scale reads them: of many every n-th.
void writeServiceTimes(const std::filesystem::path& file, const Diary& diary);

/// A table of the latencies: how many, median, 95th and 99th percentile, the longest.
void print(const std::string& title, const Latencies& latencies);

} // namespace crowd
