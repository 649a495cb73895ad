#pragma once

#include "benchmarks/database/Company.h"

#include <string>

namespace benchmark {

/// A lookup list as the editors ask the host for it.
struct List {
    const char* Name;
    std::string Form;      ///< The host's name of the list.
    std::string Condition; ///< Which the editors send with it.
    std::string Floor;
    std::vector<TDbValue> Parameters; ///< Of the floor.
};

/// The query by which the host reads the list.
std::string listQuery(const List& list);

/// Up to which moment the clerk is waited with.
enum class Until { FirstPagePainted, AllRowsPainted };

/// What it costs until the host's dialog shows the list's first page, or all its `rows`, drawn by Qt's platform. The
/// list has the number CISLO.
double showList(Company& company, const List& list, int rows, Until until);

} // namespace benchmark
