#include "tests/crowd/ClerkAtWork.h"
#include "tests/crowd/Crowd.h"
#include "tests/database/PrivateServer.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>

/// Many clerks at once on one server that waits for its disk: many_clerks [CLERKS [MINUTES [SEED [FILE]]]]. Prints how
/// long each call took and what a clerk waited for, every refusal, and what hosts and server took; the file gets the
/// service times for benchmarks/scale. Fails when something is wrong with what was saved, when a refusal is not one
/// that a clerk understands, and when hosts or server have grown by more than a tenth from the first fifth of the time
/// to its end. The time begins when each clerk has saved a document of each kind: until then the server's processes
/// have calls before them that they meet for the first time.
namespace {

constexpr double c_MostGrowth = 1.1;
constexpr int c_KindsOfDocuments = 3;

int workAsClerk(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return crowd::workAsClerk({.Database = argv[3],
                               .Folder = argv[4],
                               .Clerk = std::atoi(argv[2]),
                               .Evening = argv[5],
                               .Seed = static_cast<unsigned>(std::atoi(argv[6]))});
}

/// Whether they took no more than they may.
bool print(const char* who, const crowd::Burden& early, const crowd::Burden& late, double seconds) {
    std::printf("%-8s %9.1f MB %9.1f MB %+6.1f %%   own %9.1f MB %9.1f MB   processor %8.2f s, %5.1f %% of one\n", who,
                early.Megabytes, late.Megabytes, (late.Megabytes / early.Megabytes - 1) * 100, early.PrivateMegabytes,
                late.PrivateMegabytes, late.ProcessorSeconds - early.ProcessorSeconds,
                (late.ProcessorSeconds - early.ProcessorSeconds) / seconds * 100);
    return late.Megabytes <= early.Megabytes * c_MostGrowth;
}

int runAll(const crowd::CrowdOrders& orders, const char* serviceTimes) {
    refhost::PrivateServer::waitForDisk();
    const crowd::CrowdResult result = crowd::runCrowd(orders);
    std::printf("%d clerks, %.0f seconds, seed %u: %zu documents saved\n\n", orders.Clerks, orders.Seconds, orders.Seed,
                result.All.Saved.size());
    crowd::print("a clerk waits for, milliseconds", result.All.Waits);
    crowd::print("the module calls, milliseconds", result.All.Calls);
    for (const auto& [code, count] : result.All.Told) {
        std::printf("told %s %d times\n", code.c_str(), count);
    }
    if (serviceTimes != nullptr) {
        crowd::writeServiceTimes(serviceTimes, result.All);
    }
    const crowd::Moment& early = result.Early;
    const crowd::Moment& late = result.Late;
    std::printf("\n%-8s after %.0f s, after %.0f s\n", "", early.Seconds, late.Seconds);
    bool isRight = print("hosts", early.Hosts, late.Hosts, late.Seconds - early.Seconds);
    isRight = print("server", early.Server, late.Server, late.Seconds - early.Seconds) && isRight;
    if (!isRight) {
        std::printf("one of them has grown by more than a tenth\n");
    }
    for (const std::string& what : result.Wrong) {
        std::printf("wrong: %s\n", what.c_str());
    }
    return isRight && result.Wrong.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    try {
        if (argc == 7 && std::strcmp(argv[1], "--clerk") == 0) {
            return workAsClerk(argc, argv);
        }
        return runAll({.Program = std::filesystem::canonical("/proc/self/exe"),
                       .Clerks = argc > 1 ? std::atoi(argv[1]) : 50,
                       .Seconds = (argc > 2 ? std::atof(argv[2]) : 5) * 60,
                       .DocumentsBefore = c_KindsOfDocuments,
                       .Seed = static_cast<unsigned>(argc > 3 ? std::atoi(argv[3]) : 1)},
                      argc > 4 ? argv[4] : nullptr);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
