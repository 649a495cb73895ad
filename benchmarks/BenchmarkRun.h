#pragma once

#include "benchmarks/Options.h"
#include "benchmarks/database/Report.h"

#include <functional>

namespace benchmark {

/// What every benchmark does around its measuring: reads the options, measures under the report's headings, prints the
/// report, draws the plot that was asked for, and tells an error. The exit status.
int runBenchmark(int argc, char** argv, const std::function<void(const Options&, Report&)>& measure);

} // namespace benchmark
