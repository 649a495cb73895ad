#pragma once

#include "benchmarks/database/Company.h"
#include "benchmarks/database/Report.h"
#include "benchmarks/editors/Editors.h"

namespace benchmark {

/// Opening an editor on a document as long as the company's long ones, committing cells, pressing keys and saving.
void measureEditor(Company& company, const EditorKind& kind, std::int64_t source, int rounds, Report& report);

} // namespace benchmark
