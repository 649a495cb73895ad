#include "tests/database/ClerksSweep.h"

#include <cstdio>
#include <cstdlib>

/// Clerks who work on the same documents of one server at once: clerks_sweep [SECONDS [CLERKS [SEED]]]. Tells which of
/// their saves are not there as they were acknowledged or refused.
int main(int argc, char** argv) {
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 120;
    const int clerks = argc > 2 ? std::atoi(argv[2]) : 8;
    const auto seed = static_cast<unsigned>(argc > 3 ? std::atoi(argv[3]) : 1);
    const refhost::ClerksSweepResult result =
        refhost::sweepClerks(refhost::Engine::PostgreSQL, clerks, std::chrono::seconds(seconds), seed);
    for (const std::string& what : result.Wrong) {
        std::printf("%s\n", what.c_str());
    }
    std::printf("%d clerks for %d seconds: %d saves of %d lines acknowledged, %zu wrong; told:", clerks, seconds,
                result.Saved, result.Lines, result.Wrong.size());
    for (const auto& [code, count] : result.Told) {
        std::printf(" %s %d", code.c_str(), count);
    }
    std::printf("\n");
    return result.Wrong.empty() && result.Saved > 0 ? 0 : 1;
}
