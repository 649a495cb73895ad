#pragma once

#include "benchmarks/database/CostClock.h"
#include "tests/database/Engines.h"

#include <string>
#include <vector>

namespace benchmark {

/// What the command line asks of a benchmark:
///
///   [--sizes 1000,10000,100000] [--rounds N] [--engine SQLite|PostgreSQL] [--clock processor|wall] [--plot FILE.svg]
struct Options {
    std::vector<int> Sizes{1000, 10000, 100000};
    int Rounds = 5;
    std::string Engine; ///< Empty: both.
    CostClock::Kind Clock = CostClock::Kind::Processor;
    std::string Plot; ///< Empty: none is drawn.

    std::vector<refhost::Engine> engines() const;
};

Options readOptions(int argc, char** argv);

} // namespace benchmark
