// What the database's work costs on both engines and how it grows, each beside its floor: bare prepared statements that
// bring or store the same rows (Floors.cpp). The work and its floor take turns in one run; medians of the rounds.
//
//   database_benchmark [OPTION…]     see Options.h

#include "benchmarks/BenchmarkRun.h"
#include "benchmarks/database/NoteWork.h"
#include "benchmarks/database/OrderWork.h"

namespace {

void measure(const benchmark::Options& options, benchmark::Report& report) {
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
    return benchmark::runBenchmark(argc, argv, measure);
}
