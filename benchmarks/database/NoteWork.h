#pragma once

#include "benchmarks/database/Company.h"
#include "benchmarks/database/Report.h"

namespace benchmark {

/// Filling, recalculating and saving a delivery note as long as the company's long documents.
void measureNotes(Company& company, int rounds, Report& report);

} // namespace benchmark
