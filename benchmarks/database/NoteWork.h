#pragma once

#include "benchmarks/database/Company.h"
#include "benchmarks/database/Report.h"

namespace benchmark {

/// Filling a delivery note from documents as long as the company's long ones, and recalculating a line.
void measureNoteFills(Company& company, int rounds, Report& report);

/// Saving a delivery note as long as they are.
void measureNoteSaving(Company& company, int rounds, Report& report);

} // namespace benchmark
