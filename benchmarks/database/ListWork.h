#pragma once

#include "benchmarks/database/Company.h"
#include "benchmarks/database/Report.h"

namespace benchmark {

/// Finding a source: an order's check by its number, and the lookup lists as the host asks for them, the whole at once.
/// Each document of the lists passes the condition.
void measureLists(Company& company, int rounds, Report& report);

} // namespace benchmark
