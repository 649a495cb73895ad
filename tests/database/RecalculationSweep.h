#pragma once

#include "refhost/database/Database.h"

#include <cstdint>
#include <span>
#include <string>

namespace refhost {

/// What random lines brought on all engines alike.
struct SweepResult {
    int Recalculated = 0; ///< Lines that came back recalculated; saving accepted each.
    int AsSent = 0;       ///< Lines that may have come back with prices as they were sent; saving may refuse them.
    int Refused = 0;
    std::string Difference = {}; ///< What was wrong with the first line that was; empty when none was.
};

/// Sends `lines` random rows of the seed through the recalculation of every database, half of them with local VAT on.
/// All have to bring the same texts or the same refusal, and saving has to accept every line that was recalculated. It
/// stops at the first line that differs. The databases are companies of addRecalculationCompany.
SweepResult sweepRecalculation(std::span<Database* const> databases, std::uint64_t seed, int lines);

} // namespace refhost
