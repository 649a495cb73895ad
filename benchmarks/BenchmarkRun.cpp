#include "benchmarks/BenchmarkRun.h"

#include "benchmarks/database/GrowthPlot.h"
#include "host/Exceptions.h"

#include <cstdio>
#include <fstream>

namespace benchmark {

int runBenchmark(int argc, char** argv, const std::function<void(const Options&, Report&)>& measure) {
    try {
        const Options options = readOptions(argc, argv);
        Report report;
        Report::printHeadings();
        measure(options, report);
        report.print();
        if (!options.Plot.empty()) {
            std::ofstream(options.Plot) << growthPlot(report.figures());
        }
    } catch (const EDatabaseError& error) {
        std::fprintf(stderr, "%s\n%s\n", error.Message().c_str(), error.Details().c_str());
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
    return 0;
}

} // namespace benchmark
