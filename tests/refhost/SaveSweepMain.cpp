#include "tests/refhost/SaveSweep.h"

#include <cstdio>
#include <cstdlib>

/// The long proof that a save is all or nothing, whatever breaks: save_sweep [CRASHES [SEED]]. Saves of 1, 10 and 200
/// rows; the program killed at every call on both engines, the link cut at every bunch of bytes, the server killed at
/// six places of the closing call, and crashed at 40 random moments unless told otherwise.
int main(int argc, char** argv) {
    const int crashes = argc > 1 ? std::atoi(argv[1]) : 40;
    const auto seed = static_cast<unsigned>(argc > 2 ? std::atoi(argv[2]) : 1);
    int points = 0;
    std::size_t wrong = 0;
    const auto take = [&](const char* what, int rows, const refhost::SweepResult& result) {
        points += result.Points;
        wrong += result.Wrong.size();
        for (const std::string& line : result.Wrong) {
            std::printf("%s\n", line.c_str());
        }
        std::printf("%s, %d rows: %d points, %zu wrong\n", what, rows, result.Points, result.Wrong.size());
        std::fflush(stdout);
    };
    for (const int rows : {1, 10, 200}) {
        take("killed on SQLite", rows, refhost::sweepKills(refhost::Engine::SQLite, rows));
        take("killed on PostgreSQL", rows, refhost::sweepKills(refhost::Engine::PostgreSQL, rows));
        take("link cut", rows, refhost::sweepCuts(rows));
        take("server killed in the closing call", rows, refhost::sweepClosingCrashes(rows));
    }
    take("server crashed", 200, refhost::sweepServerCrashes(200, crashes, seed));
    std::printf("%d points, %zu wrong\n", points, wrong);
    return wrong == 0 ? 0 : 1;
}
