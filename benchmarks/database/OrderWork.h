#pragma once

#include "benchmarks/database/Company.h"
#include "benchmarks/database/Report.h"

namespace benchmark {

/// Filling an order from documents as long as the company's long ones, which are all that its first supplier has of
/// late.
void measureOrderFills(Company& company, int rounds, Report& report);

/// Saving an order as long as they are.
void measureOrderSaving(Company& company, int rounds, Report& report);

/// Filling an order with all that a supplier lists and all that a group holds: as many items more as the long documents
/// have lines.
void measureAssortment(Company& company, int rounds, Report& report);

} // namespace benchmark
