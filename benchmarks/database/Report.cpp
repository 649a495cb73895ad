#include "benchmarks/database/Report.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <tuple>

namespace benchmark {

namespace {

constexpr const char* c_Embedded = "SQLite";
constexpr const char* c_Server = "PostgreSQL";

} // namespace

void Report::printHeadings() {
    std::printf("%-11s %-34s %7s %12s    %12s %7s %12s\n", "engine", "work", "size", "cost", "floor", "ratio",
                "slowest");
}

void Report::add(Figure figure) {
    std::printf("%-11s %-34s %7d %12.1f %s %12.1f %7.2f", figure.Engine.c_str(), figure.Work.c_str(), figure.Size,
                figure.Cost, figure.CountedIn == Unit::Bytes ? "B " : "µs", figure.Floor, figure.Cost / figure.Floor);
    if (figure.Slowest > 0) {
        std::printf(" %12.1f", figure.Slowest);
    }
    std::printf("\n");
    std::fflush(stdout);
    figures_.push_back(std::move(figure));
}

const Figure* Report::find(const std::string& engine, const std::string& work, int size) const {
    const auto found = std::ranges::find_if(figures_, [&](const Figure& figure) {
        return figure.Engine == engine && figure.Work == work && figure.Size == size;
    });
    return found == figures_.end() ? nullptr : &*found;
}

void Report::print() const {
    printComparison();
    printGrowth();
}

void Report::printComparison() const {
    std::printf("\nThe server's cost to the embedded engine's\n");
    for (const Figure& server : figures_) {
        const Figure* embedded = find(c_Embedded, server.Work, server.Size);
        if (server.Engine == c_Server && embedded != nullptr) {
            std::printf("%-34s %7d %7.2f\n", server.Work.c_str(), server.Size, server.Cost / embedded->Cost);
        }
    }
}

void Report::printGrowth() const {
    std::printf("\nThe cost at the largest size to that at the smallest (1: linear, or independent of the size)\n");
    std::set<std::pair<std::string, std::string>> seen;
    for (const Figure& first : figures_) {
        if (!seen.emplace(first.Engine, first.Work).second) {
            continue;
        }
        const Figure* last = &first;
        for (const Figure& figure : figures_) {
            if (std::tie(figure.Engine, figure.Work) == std::tie(first.Engine, first.Work)) {
                last = &figure;
            }
        }
        if (last != &first) {
            std::printf("%-11s %-34s %7d %7d %7.2f\n", first.Engine.c_str(), first.Work.c_str(), first.Size, last->Size,
                        last->Cost / first.Cost);
        }
    }
}

double median(std::vector<double> figures) {
    std::ranges::nth_element(figures, figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2));
    return figures[figures.size() / 2];
}

Medians compete(const Contest& contest, int rounds) {
    std::vector<double> work;
    std::vector<double> floor;
    contest.Floor(); // both once for nothing: the first call prepares the statements
    contest.Work();
    for (int round = 0; round < rounds; ++round) {
        floor.push_back(contest.Floor());
        work.push_back(contest.Work());
    }
    return {median(std::move(work)), median(std::move(floor))};
}

} // namespace benchmark
