// What the editors cost on both engines and how it grows, each beside its floor: the same calls by the bare database
// library (BareCalls.cpp), and what a window that is open takes to be painted. The work and its floor take turns in one
// run; medians of the rounds. Keys and scrolling stand beside one frame of a screen, memory beside its aim.
//
//   editor_benchmark [OPTION…]     see Options.h

#include "benchmarks/BenchmarkRun.h"
#include "benchmarks/editors/EditorMemory.h"
#include "benchmarks/editors/EditorWork.h"

#include <QApplication>

#include <cstring>
#include <utility>

namespace {

void measure(const benchmark::Options& options, benchmark::Report& report) {
    for (const int size : options.Sizes) {
        for (const refhost::Engine engine : options.engines()) {
            benchmark::Company company(engine, size, options.Clock);
            const std::pair<const benchmark::EditorKind&, std::int64_t> editors[] = {
                {benchmark::c_NoteEditor, company.longNote()}, {benchmark::c_OrderEditor, company.longTemplate()}};
            for (const auto& [kind, source] : editors) {
                benchmark::measureEditor(company, kind, source, options.Rounds, report);
            }
            benchmark::EditorMemory::shortenNames(company);
            for (const auto& [kind, source] : editors) {
                benchmark::EditorMemory::measure(company, kind, source, report);
            }
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc == 6 && std::strcmp(argv[1], benchmark::EditorMemory::c_Option) == 0) {
        return benchmark::EditorMemory::run(argv + 2);
    }
    return benchmark::runBenchmark(argc, argv, measure);
}
