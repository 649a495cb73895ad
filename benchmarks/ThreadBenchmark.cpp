#include "benchmarks/database/Report.h"
#include "refhost/database/ThreadedConnection.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/Engines.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

// What a call costs more on a thread of its own: the rows of a save, the same calls on the caller's thread beside them.
// thread_benchmark [ROWS [ROUNDS]]

namespace {

using namespace refhost;
using Clock = CallThread::Clock;

/// Somebody who waits a second, as the host does, and sees nothing then.
class PatientWatcher : public WorkWatcher {
public:
    void goesOn() override {}
    Clock::time_point nextLook() const override { return nextLook_; }
    bool look(const LongWork& /*work*/) override {
        nextLook_ = Clock::now() + std::chrono::milliseconds(50);
        return false;
    }
    void ends() override { nextLook_ = Clock::now() + std::chrono::seconds(1); }

private:
    Clock::time_point nextLook_ = Clock::now() + std::chrono::seconds(1);
};

/// The rows of a save and the wait for the last of them, in microseconds of the wall's clock for each.
double microsecondsOfRow(TConnection& connection, Database& database, int rows) {
    const TProcedureCall row{"MELVARKEDITORDodakInsertToTemp",
                             {{"a_SKLADPOL", AnsiString("Sirup")}, {"a_MNOZSTVI", AnsiString("2.5")}},
                             false};
    connection.Execute({"MELVARKEDITORResetTemp", {}, false});
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < rows; ++i) {
        connection.Describe(row.Name); // as the module's object of each row does
        connection.Execute(row);
    }
    database.awaitAnswers();
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count() / rows;
}

void compare(Engine engine, int rows, int rounds) {
    const std::string url = newDatabaseUrl(engine);
    const auto database = openAs(url, "novakova");
    addContractCompany(*database);
    PatientWatcher watcher;
    ThreadedConnection threaded(*database, *database, watcher);
    std::vector<double> own;
    std::vector<double> beside;
    for (int round = 0; round < rounds; ++round) {
        own.push_back(microsecondsOfRow(*database, *database, rows));
        beside.push_back(microsecondsOfRow(threaded, *database, rows));
    }
    const double floor = benchmark::median(own);
    const double cost = benchmark::median(beside);
    std::printf("%-10s  caller's thread %7.1f us a row, its own %7.1f, more %5.1f (%.2f)\n", engineName(engine).c_str(),
                floor, cost, cost - floor, cost / floor);
}

} // namespace

int main(int argc, char** argv) {
    const int rows = argc > 1 ? std::atoi(argv[1]) : 10000;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 5;
    for (const Engine engine : {Engine::SQLite, Engine::PostgreSQL}) {
        compare(engine, rows, rounds);
    }
}
