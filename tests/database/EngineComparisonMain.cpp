// Compares both engines on random calls of all procedures and on whole pieces of a clerk's work:
//
//     engine_comparison [CALLS [FLOWS [SEED]]]
//
// The calls go to the small company of the tests, the flows to the sample company. It prints what they brought. Exit
// status 0 when the engines agreed, 1 with the first differences when they did not, 2 for wrong arguments or a database
// that cannot be used.

#include "host/ValueText.h"
#include "refhost/database/SampleCompany.h"
#include "tests/database/BothEngines.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/RandomCalls.h"
#include "tests/database/RandomFlows.h"

#include <array>
#include <cstdio>
#include <optional>
#include <span>

namespace {

constexpr std::array<int, 3> c_Defaults{20'000, 300, 20'270'201};
constexpr int c_CallsBetweenContents = 500;

/// Prints the first differences; whether there were none.
bool agrees(const refhost::BothEngines& both) {
    std::printf("%s", both.report().c_str());
    return both.differences() == 0;
}

bool callsAgree(int calls, int seed) {
    refhost::BothEngines both(refhost::addContractCompany);
    refhost::RandomCalls random(both.embedded(), static_cast<std::uint64_t>(seed));
    for (int i = 1; i <= calls; ++i) {
        random.call(both);
        if (i % c_CallsBetweenContents == 0 || i == calls) {
            both.compareContents();
        }
    }
    std::printf("seed %d: %d calls, %d of them refused, %zu differences\n", seed, both.calls(), both.refused(),
                both.differences());
    return agrees(both);
}

bool flowsAgree(int flows, int seed) {
    refhost::BothEngines both([](refhost::Database& database) { refhost::createSampleCompany(database, 0); });
    refhost::RandomFlows random(both, static_cast<std::uint64_t>(seed));
    for (int i = 0; i < flows; ++i) {
        random.next();
    }
    both.begin("after the flows");
    both.compareContents();
    std::printf("seed %d: %d flows with %d calls, %d of them refused, %d saves accepted, %zu differences\n", seed,
                flows, both.calls(), both.refused(), random.saved(), both.differences());
    return agrees(both);
}

} // namespace

int main(int count, char** values) {
    const std::span<char*> arguments(values, static_cast<std::size_t>(count));
    std::array<int, 3> numbers = c_Defaults;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const auto number = TextToInt(arguments[i]);
        if (i > numbers.size() || !number || *number <= 0) {
            std::fputs("usage: engine_comparison [CALLS [FLOWS [SEED]]]\n", stderr);
            return 2;
        }
        numbers[i - 1] = *number;
    }
    try {
        const bool calls = callsAgree(numbers[0], numbers[2]);
        const bool flows = flowsAgree(numbers[1], numbers[2]);
        return calls && flows ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
