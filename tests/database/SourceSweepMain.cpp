#include "host/Exceptions.h"
#include "refhost/database/SampleCompany.h"
#include "tests/database/SourceSweep.h"

#include <cstdio>

// Holds the lists of sources against their checks for every document of the sample company on both engines; it takes
// minutes. The exit code is 0 when they agree, 1 when they differ, 2 when the sweep could not run.
int main() {
    using namespace refhost;
    try {
        bool agree = true;
        for (const Engine engine : {Engine::SQLite, Engine::PostgreSQL}) {
            const std::unique_ptr<Database> database = newDatabase(engine);
            createSampleCompany(*database, 0);
            const SourceSweepResult result = sweepSources(*database);
            std::printf("%s: %zu pairs, %zu differences\n", engineName(engine).c_str(), result.Pairs,
                        result.Differences.size());
            for (const std::string& difference : result.Differences)
                std::printf("  %s\n", difference.c_str());
            agree = agree && result.Differences.empty();
        }
        return agree ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
