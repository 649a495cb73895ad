#include "tests/refhost/FailoverRun.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <random>
#include <string>

/// The long proof of a failover: failover_sweep [PROMOTIONS [SEED]]. Each time the first of two servers is killed at a
/// random moment of a clerk's saves, and the second one takes over. Says what was lost, doubled or told in other words.
int main(int argc, char** argv) {
    const int promotions = argc > 1 ? std::atoi(argv[1]) : 20;
    std::mt19937 random(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1U);
    std::uniform_int_distribution<int> milliseconds(20, 600);
    int wrong = 0;
    int saved = 0;
    std::map<std::string, int> told;
    for (int i = 1; i <= promotions; ++i) {
        const int moment = milliseconds(random);
        try {
            const refhost::FailoverRun run = refhost::runFailover(std::chrono::milliseconds(moment));
            saved += run.Saved;
            for (const std::string& code : run.Told) {
                ++told[code];
            }
            for (const std::string& what : run.Wrong) {
                ++wrong;
                std::printf("promotion %d after %d ms: %s\n", i, moment, what.c_str());
            }
        } catch (const std::exception& error) {
            ++wrong;
            std::printf("promotion %d after %d ms: %s\n", i, moment, error.what());
        }
    }
    std::printf("%d promotions, %d saves acknowledged, %d wrong; told:", promotions, saved, wrong);
    for (const auto& [code, count] : told) {
        std::printf(" %s %d", code.c_str(), count);
        wrong += code == "ML916" || code == "ML057" ? 0 : 1;
    }
    std::printf("\n");
    return wrong == 0 ? 0 : 1;
}
