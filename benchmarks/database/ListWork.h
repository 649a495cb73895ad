#pragma once

#include "benchmarks/database/Company.h"
#include "benchmarks/database/Report.h"

namespace benchmark {

/// Finding a source: an order's check by its number; the lookup lists' rows, all at once; and the lists of documents in
/// the host's window, up to the first page and to the last row. Each document of the lists passes the condition.
void measureLists(Company& company, int rounds, Report& report);

} // namespace benchmark
