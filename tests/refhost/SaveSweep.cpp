#include "tests/refhost/SaveSweep.h"

#include "host/Exceptions.h"
#include "refhost/IdentifiedSaves.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/CutLink.h"
#include "tests/database/PrivateServer.h"
#include "tests/refhost/SweptNote.h"
#include "tests/refhost/UnansweredDatabase.h"

#include <chrono>
#include <csignal>
#include <future>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace refhost {

namespace {

/// A connection whose program is killed at one of its calls.
class KilledDatabase : public UnansweredDatabase {
public:
    KilledDatabase(Database& database, int call, bool isBefore)
        : UnansweredDatabase(database), left_(call), isBefore_(isBefore) {}

    TCallResult Execute(const TProcedureCall& call) override {
        const bool isTheOne = --left_ == 0;
        if (isTheOne && isBefore_) {
            raise(SIGKILL);
        }
        TCallResult result = UnansweredDatabase::Execute(call);
        if (isTheOne) {
            raise(SIGKILL);
        }
        return result;
    }

private:
    int left_;
    bool isBefore_;
};

/// In a process of its own: false when that was not killed.
bool isKilledSaving(const SweptNote& sweep, int call, bool isBefore) {
    const pid_t child = fork();
    if (child == 0) {
        const auto database = openAs(sweep.url(), "novakova");
        KilledDatabase killed(*database, call, isBefore);
        IdentifiedSaves program(killed, sweep.folder());
        sweep.save(program);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

bool mayBeTakenUp(IdentifiedSaves& program) {
    const TCallResult answer =
        program.Execute({"MELVARKEDITORDodakObnovData", {{"a_DODKID", std::int64_t{c_OpenNote}}}, false});
    return std::get<std::int64_t>(answer.Outputs.front().Value) == 1;
}

/// Kills the server's process of a clerk, if there is one.
void crashServer(const std::string& url, std::chrono::microseconds after) {
    std::this_thread::sleep_for(after);
    PostgreSQLSession administrator = administratorOf(url);
    const PostgreSQLResult found = administrator.execute("select pid from pg_stat_activity where usename = 'novakova' "
                                                         "and datname = current_database() limit 1");
    if (PQntuples(found.get()) == 1) {
        kill(std::stoi(PQgetvalue(found.get(), 0, 0)), SIGKILL);
    }
}

} // namespace

SweepResult sweepKills(Engine engine, int rows) {
    SweptNote sweep(engine, rows);
    openAs(sweep.url(), "novakova"); // his role is made before the processes divide
    const int calls = rows + 3;      // the emptying, the identity and the closing call
    for (int call = 1; call <= calls; ++call) {
        for (const bool isBefore : {true, false}) {
            const std::string point =
                engineName(engine) + ", killed " + (isBefore ? "before" : "after") + " call " + std::to_string(call);
            sweep.begin();
            sweep.expect(isKilledSaving(sweep, call, isBefore), point, "it was not killed");
            const auto database = openAs(sweep.url(), "novakova");
            sweep.expectOldOrNew(*database, point);
            IdentifiedSaves program(*database, sweep.folder());
            if (mayBeTakenUp(program)) {
                sweep.expect(sweep.saveAgainAndAgain(program), point, "never saved");
            }
            sweep.expectNew(*database, point);
        }
    }
    return sweep.result();
}

SweepResult sweepCuts(int rows) {
    SweptNote sweep(Engine::PostgreSQL, rows);
    const std::string server = PrivateServer::instance().folder();
    CutLink link(server);
    std::string address = sweep.url();
    address.replace(address.find(server), server.size(), link.folder());
    const auto observer = openAs(sweep.url(), "svoboda");
    for (const CutLink::At place : {CutLink::At::Request, CutLink::At::Answer}) {
        bool isCut = true;
        for (int bunch = 1; isCut; ++bunch) {
            const std::string point = std::string("the link cut at ") +
                                      (place == CutLink::At::Request ? "request " : "answer ") + std::to_string(bunch);
            const auto database = openAs(address, "novakova");
            IdentifiedSaves program(*database, sweep.folder());
            sweep.begin();
            link.cutAtBunch(place, bunch);
            try {
                sweep.save(program);
            } catch (const EDatabaseError&) {
                sweep.expectOldOrNew(*observer, point);
            }
            isCut = link.isCut();
            link.leaveAlone();
            if (isCut) {
                sweep.expect(sweep.saveAgainAndAgain(program), point, "never saved");
            }
            sweep.expectNew(*observer, point);
        }
    }
    return sweep.result();
}

SweepResult sweepServerCrashes(int rows, int moments, unsigned seed) {
    SweptNote sweep(Engine::PostgreSQL, rows);
    keepWhatIsAcknowledged(sweep.url());
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> microseconds(0, 100 * rows);
    for (int moment = 0; moment < moments; ++moment) {
        const auto database = openAs(sweep.url(), "novakova");
        IdentifiedSaves program(*database, sweep.folder());
        const std::chrono::microseconds after(microseconds(random));
        const std::string point = "the server crashed after " + std::to_string(after.count()) + " microseconds";
        sweep.begin();
        auto crash = std::async(std::launch::async, [&] { crashServer(sweep.url(), after); });
        const bool isSaved = sweep.saveAgainAndAgain(program);
        crash.get();
        sweep.expect(isSaved, point, "never saved");
        for (int attempt = 0; attempt < c_MostTries; ++attempt) { // a crash may have come after the save
            try {
                sweep.expectNew(*openAs(sweep.url(), "novakova"), point);
                break;
            } catch (const EDatabaseError&) {
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
            }
        }
    }
    return sweep.result();
}

} // namespace refhost
