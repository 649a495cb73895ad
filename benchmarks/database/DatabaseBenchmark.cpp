// What the database's work costs on both engines and how it grows, each beside its floor: bare prepared statements that
// bring or store the same rows (Floors.cpp). The work and its floor take turns in one run; medians of the rounds.
//
//   database_benchmark [OPTION…]     see Options.h

#include "benchmarks/Options.h"
#include "benchmarks/database/GrowthPlot.h"
#include "benchmarks/database/NoteWork.h"
#include "benchmarks/database/OrderWork.h"
#include "host/Exceptions.h"

#include <cstdio>
#include <fstream>

namespace {

void measure(const benchmark::Options& options, benchmark::Report& report) {
    benchmark::Report::printHeadings();
    for (const int size : options.Sizes) {
        for (const refhost::Engine engine : options.engines()) {
            benchmark::Company company(engine, size, options.Clock);
            benchmark::measureNotes(company, options.Rounds, report);
            benchmark::measureOrders(company, options.Rounds, report);
            benchmark::measureLists(company, options.Rounds, report);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    const benchmark::Options options = benchmark::readOptions(argc, argv);
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
