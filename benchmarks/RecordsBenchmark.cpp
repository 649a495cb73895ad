// What writing a module's calls down costs: the last ones, which are always kept for a report, and a log besides.
//
// Floor: the same calls of the embedded database, which answers fastest, with nobody in between. Work and floor take
// turns in one run; medians of the rounds, microseconds of the processor's time for a call.
//
//   records_benchmark [ROUNDS]

#include "benchmarks/database/Company.h"
#include "benchmarks/database/Report.h"
#include "host/AsciiCase.h"
#include "refhost/CommandLine.h"
#include "refhost/RunRecords.h"
#include "refhost/TracingConnection.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <variant>
#include <vector>

namespace {

using namespace benchmark;
using refhost::RunRecords;
using refhost::TracingConnection;

constexpr int c_Calls = 1000; ///< In a round.

struct Work {
    const char* Name;
    std::vector<TProcedureCall> Before; ///< Calls that do not count.
    TProcedureCall Call;
};

/// The call with every parameter that a filled row has a cell for, as texts.
TProcedureCall callWithRow(Company& company, const char* procedure, const TResultTable& filled) {
    TProcedureCall call{procedure, {}, true};
    for (const AnsiString& parameter : company.measured().Describe(procedure).Inputs) {
        const AnsiString key = melvark::UpperAscii(parameter.substr(2)); // behind "a_"
        const auto column = std::ranges::find(filled.Columns, key);
        TDbValue value;
        if (column != filled.Columns.end()) {
            value = filled.Rows.front()[static_cast<std::size_t>(column - filled.Columns.begin())];
        }
        if (const auto* number = std::get_if<std::int64_t>(&value)) {
            value = std::to_string(*number);
        }
        call.Params.push_back({parameter, value});
    }
    return call;
}

double costOf(Company& company, TConnection& connection, const Work& work) {
    for (const TProcedureCall& call : work.Before) {
        connection.Execute(call);
    }
    return company.microseconds([&] {
        for (int call = 0; call < c_Calls; ++call) {
            connection.Execute(work.Call);
        }
    });
}

void measure(Company& company, const Work& work, int rounds) {
    const TemporaryFolder folder("records-benchmark");
    RunRecords always({});
    TracingConnection kept(company.measured(), always.trace());
    RunRecords asked({});
    asked.startLog({.file = (folder.path() / "host.log").string(), .values = refhost::Values::Hidden});
    TracingConnection logged(company.measured(), asked.trace());

    const auto against = [&](TConnection& connection) {
        return compete({[&] { return costOf(company, connection, work); },
                        [&] { return costOf(company, company.measured(), work); }},
                       rounds);
    };
    const Medians withLastCalls = against(kept);
    const Medians withLog = against(logged);
    std::printf("%-16s %10zu %10.2f", work.Name, work.Call.Params.size(), withLastCalls.Floor / c_Calls);
    for (const Medians& medians : {withLastCalls, withLog}) {
        std::printf(" %12.2f %6.2f", (medians.Work - medians.Floor) / c_Calls, medians.Work / medians.Floor);
    }
    std::printf("\n");
}

void run(int rounds) {
    Company company(refhost::Engine::SQLite, c_Calls, CostClock::Kind::Processor);
    const TResultTable filled = call(company.measured(), "MELVARKEDITORDodakGetPolozkyByObjednavka",
                                     {{"a_DODKID", company.newNote()}, {"a_DDOBID", company.longOrder()}});
    const Work recalculation{"recalculation", {}, callWithRow(company, "MELVARKEDITORDodakVypocetCen", filled)};
    const Work row{"row of a save",
                   {{"MELVARKEDITORResetTemp", {}, false}},
                   callWithRow(company, "MELVARKEDITORDodakInsertToTemp", filled)};
    std::printf("%-16s %10s %10s %12s %6s %12s %6s\n", "call", "parameters", "bare us", "+ last calls", "ratio",
                "+ a log", "ratio");
    for (const Work& work : {recalculation, row}) {
        measure(company, work, rounds);
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        run(argc > 1 ? std::atoi(argv[1]) : 7);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
