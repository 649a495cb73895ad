#pragma once

#include "benchmarks/database/Company.h"
#include "benchmarks/database/Report.h"

namespace benchmark {

/// Filling and saving an order as long as the company's long documents.
void measureOrders(Company& company, int rounds, Report& report);

/// Finding an order among the company's: its check as a source, and the lookup list of orders for a delivery note.
void measureLists(Company& company, int rounds, Report& report);

} // namespace benchmark
