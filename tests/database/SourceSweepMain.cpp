#include "refhost/database/SampleCompany.h"
#include "tests/database/SourceSweep.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

// source_sweep [DOCUMENTS [CANDIDATES]]: holds the lists of sources against their checks for every n-th document and
// every n-th candidate of the sample company on both engines. 1 1 takes all of some four million pairs, which is a
// matter of hours. The exit code is 0 when they agree, 1 when they differ, 2 when the sweep could not run.
int main(int count, char** arguments) {
    using namespace refhost;
    const auto step = [&](int index) -> std::size_t {
        const long number = count > index ? std::strtol(arguments[index], nullptr, 10) : 17;
        return number > 0 ? static_cast<std::size_t>(number) : 1;
    };
    try {
        bool agree = true;
        for (const Engine engine : {Engine::SQLite, Engine::PostgreSQL}) {
            const std::unique_ptr<Database> database = newDatabase(engine);
            createSampleCompany(*database, 0);
            const SourceSweepResult result = sweepSources(*database, {.Documents = step(1), .Candidates = step(2)});
            std::printf("%s: %zu pairs, %zu differences\n", engineName(engine).c_str(), result.Pairs,
                        result.Differences.size());
            for (const std::string& difference : result.Differences) {
                std::printf("  %s\n", difference.c_str());
            }
            std::fflush(stdout);
            agree = agree && result.Differences.empty();
        }
        return agree ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
