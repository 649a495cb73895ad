// What the database's work costs on both engines and how it grows, each beside its floor: bare prepared statements that
// bring or store the same rows (Floors.cpp). The work and its floor take turns in one run; medians of the rounds.
//
//   database_benchmark [OPTION…]     see Options.h

#include "benchmarks/BenchmarkRun.h"
#include "benchmarks/database/ListWork.h"
#include "benchmarks/database/NoteWork.h"
#include "benchmarks/database/OrderWork.h"

#include <QApplication>

namespace {

void measure(const benchmark::Options& options, benchmark::Report& report) {
    for (const int size : options.Sizes) {
        for (const refhost::Engine engine : options.engines()) {
            benchmark::Company company(engine, size, options.Clock);
            benchmark::measureNoteFills(company, options.Rounds, report);
            benchmark::measureOrderFills(company, options.Rounds, report);
            benchmark::measureNoteSaving(company, options.Rounds, report);
            benchmark::measureOrderSaving(company, options.Rounds, report);
            benchmark::measureLists(company, options.Rounds, report);
            benchmark::measureAssortment(company, options.Rounds, report); // last, for it makes all items many
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return benchmark::runBenchmark(argc, argv, measure);
}
