// What saving a long document costs over a link to the server on which everything arrives 20 ms later, beside its
// floor: the same calls with the same parameters by libpq alone, all rows in a pipeline, over such a link too. By the
// wall's clock, with the host's whole way of a save: the editor's form, the identity of the save and its file on the
// disk.
//
//   link_benchmark [OPTION…]     see Options.h; sizes are 10,000 unless told otherwise

#include "benchmarks/BenchmarkRun.h"
#include "benchmarks/database/Company.h"
#include "benchmarks/editors/BareCalls.h"
#include "benchmarks/editors/ClerkConnection.h"
#include "benchmarks/editors/Editors.h"
#include "refhost/IdentifiedSaves.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/SlowLink.h"
#include "tests/support/TemporaryFolder.h"

#include <QApplication>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using benchmark::Company;
using benchmark::EditorKind;

constexpr std::chrono::milliseconds c_Latency{20};
/// Of the floor's rows as many are on their way as the product's.
constexpr int c_GoesAhead = 10;
constexpr int c_UsualSize = 10000;

/// The company's address for a client of the link.
std::string over(const refhost::SlowLink& link, std::string url) {
    const std::string server = refhost::PrivateServer::instance().folder();
    return url.replace(url.find(server), server.size(), link.folder());
}

void setTarget(TProcedureCall& closing, const EditorKind& kind, std::int64_t document) {
    for (TDbParam& param : closing.Params) {
        if (param.Name == kind.Target) {
            param.Value = document;
        }
    }
}

void measureSaving(Company& company, const EditorKind& kind, std::int64_t source, int rounds,
                   benchmark::Report& report) {
    const std::string server = refhost::PrivateServer::instance().folder();
    const refhost::SlowLink link(server, c_Latency);
    const refhost::SlowLink floorsLink(server, c_Latency);
    const TemporaryFolder state("link-benchmark");
    const auto database = refhost::openAs(over(link, company.url()), Company::c_User);
    refhost::IdentifiedSaves saves(*database, state.path() / "saves");
    const auto bare = benchmark::openBareCalls(over(floorsLink, company.url()), Company::c_User, c_GoesAhead);
    benchmark::ClerkConnection clerk(saves);
    benchmark::BenchmarkHost host(clerk);
    const TScopedHost scope(host);
    clerk.chooses(kind.Source, source);
    const bool isNote = kind.Columns == benchmark::c_NoteEditor.Columns;
    const auto newDocument = [&] { return isNote ? company.newNote() : company.newOrder(); };

    std::vector<double> costs;
    std::vector<double> floors;
    for (int round = 0; round <= rounds; ++round) { // the first one for nothing: it prepares the statements
        const auto editor = kind.Open(newDocument());
        benchmark::show(*editor);
        clerk.keep();
        bool isSaved = false;
        const double cost = company.microseconds([&] { isSaved = editor->SaveData(); });
        if (!isSaved) {
            throw std::runtime_error("the document was not saved");
        }
        std::vector<TProcedureCall> calls = clerk.take();
        editor->Close();
        setTarget(calls.back(), kind, newDocument());
        const double floor = company.microseconds([&] { bare->save(calls); });
        if (round > 0) {
            costs.push_back(cost);
            floors.push_back(floor);
        }
    }
    report.add({company.engineName(), std::string(kind.Name) + " saving over 20 ms, a line", company.lines(),
                benchmark::median(costs) / company.lines(), benchmark::median(floors) / company.lines()});
}

void measure(const benchmark::Options& options, benchmark::Report& report) {
    for (const int size : options.Sizes) {
        Company company(refhost::Engine::PostgreSQL, size, benchmark::CostClock::Kind::Wall);
        measureSaving(company, benchmark::c_NoteEditor, company.longNote(), options.Rounds, report);
        measureSaving(company, benchmark::c_OrderEditor, company.longTemplate(), options.Rounds, report);
    }
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return benchmark::runBenchmark(argc, argv, [](benchmark::Options options, benchmark::Report& report) {
        if (options.Sizes == benchmark::Options().Sizes) {
            options.Sizes = {c_UsualSize};
        }
        measure(options, report);
    });
}
