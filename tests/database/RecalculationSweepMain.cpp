// Compares the recalculation of both engines on many random lines and saves each recalculated one:
//
//     recalculation_sweep [LINES [SEED]]
//
// It prints what the lines brought. Exit status 0 when all were equal and accepted, 1 at the first that was not, 2 for
// wrong arguments or a database that cannot be used.

#include "host/Exceptions.h"
#include "host/ValueText.h"
#include "tests/database/Engines.h"
#include "tests/database/RecalculationCompany.h"
#include "tests/database/RecalculationSweep.h"

#include <array>
#include <cstdio>
#include <optional>
#include <span>

namespace {

constexpr int c_DefaultLines = 10'000;
constexpr int c_DefaultSeed = 20270201;

/// The argument at `index` as a positive number, `fallback` when it is not there, nothing when it is no such number.
std::optional<int> numberArgument(std::span<char*> arguments, std::size_t index, int fallback) {
    if (index >= arguments.size()) {
        return fallback;
    }
    const auto number = TextToInt(arguments[index]);
    return number && *number > 0 ? std::optional<int>(*number) : std::nullopt;
}

int sweep(int lines, int seed) {
    const auto embedded = refhost::newDatabase(refhost::Engine::SQLite);
    const auto server = refhost::newDatabase(refhost::Engine::PostgreSQL);
    const std::array<refhost::Database*, 2> databases{embedded.get(), server.get()};
    for (refhost::Database* database : databases) {
        refhost::addRecalculationCompany(*database);
    }

    const auto result = refhost::sweepRecalculation(databases, static_cast<std::uint64_t>(seed), lines);
    std::printf("seed %d: %d lines recalculated and saved, %d as sent, %d refused\n", seed, result.Recalculated,
                result.AsSent, result.Refused);
    if (result.Difference.empty()) {
        return 0;
    }
    std::printf("%s\n", result.Difference.c_str());
    return 1;
}

} // namespace

int main(int count, char** values) {
    const std::span<char*> arguments(values, static_cast<std::size_t>(count));
    const auto lines = numberArgument(arguments, 1, c_DefaultLines);
    const auto seed = numberArgument(arguments, 2, c_DefaultSeed);
    if (!lines || !seed || count > 3) {
        std::fputs("usage: recalculation_sweep [LINES [SEED]]\n", stderr);
        return 2;
    }
    try {
        return sweep(*lines, *seed);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
