#pragma once

#include "benchmarks/database/Company.h"
#include "benchmarks/database/Report.h"
#include "benchmarks/editors/Editors.h"

#include <cstdint>
#include <string>

namespace benchmark {

/// What stays after an editor was opened, for each cell of its document.
///
/// The figures are those of a process of its own, which opens a short document first, so that what is loaded once does
/// not count: `program EditorMemory::c_Option URL KIND DOCUMENT SOURCE` runs it.
class EditorMemory {
public:
    static constexpr const char* c_Option = "--memory";

    /// Gives every name of the company at most 15 bytes; for the rest of its life.
    static void shortenNames(Company& company);
    static void measure(Company& company, const EditorKind& kind, std::int64_t source, Report& report);

    /// The work of the process: opens, shows and prints. The exit status.
    static int run(char** arguments);
};

} // namespace benchmark
