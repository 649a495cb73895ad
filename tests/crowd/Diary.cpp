#include "tests/crowd/Diary.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <sstream>

namespace crowd {

namespace {

constexpr std::size_t c_MostServiceTimes = 500;

void append(Latencies& all, const Latencies& more) {
    for (const auto& [name, latencies] : more) {
        all[name].insert(all[name].end(), latencies.begin(), latencies.end());
    }
}

} // namespace

void Diary::add(const Diary& other) {
    append(Calls, other.Calls);
    append(Waits, other.Waits);
    append(Served, other.Served);
    for (const auto& [code, count] : other.Told) {
        Told[code] += count;
    }
    Saved.insert(Saved.end(), other.Saved.begin(), other.Saved.end());
    Troubles.insert(Troubles.end(), other.Troubles.begin(), other.Troubles.end());
}

Diary readDiary(const std::filesystem::path& file) {
    Diary diary;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line);
        char kind = 0;
        double value = 0;
        std::string text;
        words >> kind >> value >> std::ws;
        std::getline(words, text);
        switch (kind) {
        case 'c':
            diary.Calls[text].push_back(value);
            break;
        case 'w':
            diary.Waits[text].push_back(value);
            break;
        case 'v':
            diary.Served[text].push_back(value);
            break;
        case 't':
            ++diary.Told[text];
            break;
        case 's':
            diary.Saved.push_back(std::stoi(text));
            break;
        default:
            diary.Troubles.push_back(text);
        }
    }
    return diary;
}

double quantile(std::vector<double> latencies, double share) {
    const auto last = static_cast<double>(latencies.size() - 1);
    const auto place = latencies.begin() + static_cast<std::ptrdiff_t>(std::ceil(last * share));
    std::ranges::nth_element(latencies, place);
    return *place;
}

void writeServiceTimes(const std::filesystem::path& file, const Diary& diary) {
    std::ofstream out(file);
    out << "# What clerks at once waited for, and how much of it the calls took; milliseconds, at most "
        << c_MostServiceTimes << " of each.\n# Written by many_clerks.\n";
    for (const auto& [place, latencies] : {std::pair("everything", diary.Waits), std::pair("server", diary.Served)}) {
        for (const auto& [work, values] : latencies) {
            out << place << ';' << work;
            const std::size_t step = (values.size() + c_MostServiceTimes - 1) / c_MostServiceTimes;
            for (std::size_t i = 0; i < values.size(); i += step) { // some of each clerk and of each minute
                out << ';' << values[i];
            }
            out << '\n';
        }
    }
}

void print(const std::string& title, const Latencies& latencies) {
    std::printf("%-48s %8s %9s %9s %9s %9s\n", title.c_str(), "count", "median", "95 %", "99 %", "longest");
    for (const auto& [name, values] : latencies) {
        std::printf("%-48s %8zu %9.2f %9.2f %9.2f %9.2f\n", name.c_str(), values.size(), quantile(values, 0.5),
                    quantile(values, 0.95), quantile(values, 0.99), *std::ranges::max_element(values));
    }
    std::printf("\n");
}

} // namespace crowd
