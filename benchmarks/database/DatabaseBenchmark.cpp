// What the database's work costs on both engines and how it grows, each beside its floor: bare prepared statements that
// bring or store the same rows (Floors.cpp). The work and its floor take turns in one run; medians of the rounds.
//
//   database_benchmark [--sizes 1000,10000,100000] [--rounds N] [--engine SQLite|PostgreSQL] [--clock processor|wall]
//   [--plot FILE.svg]

#include "benchmarks/database/GrowthPlot.h"
#include "benchmarks/database/NoteWork.h"
#include "benchmarks/database/OrderWork.h"
#include "host/Exceptions.h"

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Options {
    std::vector<int> Sizes{1000, 10000, 100000};
    int Rounds = 5;
    std::string Engine; ///< Empty: both.
    benchmark::CostClock::Kind Clock = benchmark::CostClock::Kind::Processor;
    std::string Plot;
};

Options readOptions(int argc, char** argv) {
    Options options;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string_view name = argv[i];
        if (name == "--sizes") {
            options.Sizes.clear();
            std::istringstream list(argv[i + 1]);
            for (std::string size; std::getline(list, size, ',');) {
                options.Sizes.push_back(std::stoi(size));
            }
        } else if (name == "--rounds") {
            options.Rounds = std::stoi(argv[i + 1]);
        } else if (name == "--clock" && std::string_view(argv[i + 1]) == "wall") {
            options.Clock = benchmark::CostClock::Kind::Wall;
        } else if (name == "--engine") {
            options.Engine = argv[i + 1];
        } else if (name == "--plot") {
            options.Plot = argv[i + 1];
        }
    }
    return options;
}

void measure(const Options& options, benchmark::Report& report) {
    std::printf("%-11s %-34s %7s %12s %12s %7s\n", "engine", "work", "size", "cost in µs", "floor", "ratio");
    for (const int size : options.Sizes) {
        for (const refhost::Engine engine : {refhost::Engine::SQLite, refhost::Engine::PostgreSQL}) {
            if (!options.Engine.empty() && options.Engine != refhost::engineName(engine)) {
                continue;
            }
            benchmark::Company company(engine, size, options.Clock);
            benchmark::measureNotes(company, options.Rounds, report);
            benchmark::measureOrders(company, options.Rounds, report);
            benchmark::measureLists(company, options.Rounds, report);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    const Options options = readOptions(argc, argv);
    benchmark::Report report;
    try {
        measure(options, report);
    } catch (const EDatabaseError& error) {
        std::fprintf(stderr, "%s\n%s\n", error.Message().c_str(), error.Details().c_str());
        return 2;
    }
    report.print();
    if (!options.Plot.empty()) {
        std::ofstream(options.Plot) << benchmark::growthPlot(report.figures());
    }
    return 0;
}
