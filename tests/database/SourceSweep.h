#pragma once

#include "tests/database/Engines.h"

#include <string>
#include <vector>

namespace refhost {

/// Which of the documents that are filled and of their candidate sources a sweep takes: every n-th, from the first on.
struct SourceSweepSteps {
    std::size_t Documents = 1;
    std::size_t Candidates = 1;
};

struct SourceSweepResult {
    std::size_t Pairs = 0;
    std::vector<std::string> Differences; ///< Sentences for people; empty when list and check agree.
};

/// Holds the lists that the selection dialogs offer against their checks: for each document, delivery note, order or
/// template, and each kind of source, a candidate stands in the list exactly when the check takes it by its id, and a
/// number or name is taken exactly when one candidate of the list bears it. Throws EDatabaseError.
SourceSweepResult sweepSources(Database& database, const SourceSweepSteps& steps = {});

} // namespace refhost
