#include "host/Exceptions.h"
#include "refhost/IdentifiedSaves.h"
#include "refhost/database/Database.h"
#include "tests/database/PrivateServer.h"
#include "tests/refhost/SaveSweep.h"
#include "tests/refhost/SweptNote.h"

#include <chrono>
#include <future>

namespace refhost {

namespace {

/// A place in the closing call where it stops until the server is killed.
struct Stop {
    const char* Where;
    const char* Kind; ///< Of the trigger by which it stops there.
    const char* When; ///< What sets that off.
    const char* Table;
    const char* How;
    const char* WaitEvent; ///< By which it is seen there.
    bool IsCommitted;
};

constexpr const char* c_Trigger = "create trigger";
constexpr const char* c_AtLock = "for each statement execute function melvark.stop_at_lock()";
constexpr const char* c_AtAnswer = "for each statement execute function melvark.stop_at_answer()";
constexpr const char* c_AtCommit = "deferrable initially deferred for each row execute function melvark.stop_at_lock()";

constexpr Stop c_Stops[] = {
    {"before its identity", c_Trigger, "before insert", "ULOZENI", c_AtLock, "advisory", false},
    {"before the lines", c_Trigger, "before insert", "DODAKPOL", c_AtLock, "advisory", false},
    {"after the lines", c_Trigger, "after insert", "DODAKPOL", c_AtLock, "advisory", false},
    {"before the sources", c_Trigger, "before insert", "DODAKZDROJ", c_AtLock, "advisory", false},
    {"at the commit", "create constraint trigger", "after insert", "DODAKPOL", c_AtCommit, "advisory", false},
    {"before the answer", c_Trigger, "after insert", "DODAKPOL", c_AtAnswer, "SyncRep", true},
};

/// A lock that the administrator has; and, for this one transaction, the answer of a standby that there is not.
constexpr const char* c_Functions =
    "create function melvark.stop_at_lock() returns trigger language plpgsql as $$ begin"
    "    perform pg_advisory_xact_lock_shared(4711); return null; end $$;"
    "create function melvark.stop_at_answer() returns trigger language plpgsql as $$ begin"
    "    perform set_config('synchronous_commit', 'on', true); return null; end $$";

std::string triggerOf(const Stop& stop) {
    return std::string(stop.Kind) + " STOP " + stop.When + " on melvark." + stop.Table + " " + stop.How;
}

/// The commits of this server wait for a standby that there is not, unless they wait for nobody.
class MissingStandby {
public:
    explicit MissingStandby(const std::string& url) : url_(url) { set("set synchronous_standby_names = 'nobody'"); }
    MissingStandby(const MissingStandby&) = delete;
    MissingStandby& operator=(const MissingStandby&) = delete;
    ~MissingStandby() { set("reset synchronous_standby_names"); }

private:
    void set(const std::string& what) const {
        PostgreSQLSession administrator = administratorOf(url_);
        administrator.execute("alter system " + what);
        administrator.execute("select pg_reload_conf()");
    }

    std::string url_;
};

/// What the clerk is told.
std::string toldOfSave(const SweptNote& note, IdentifiedSaves& program) {
    try {
        note.save(program);
        return "saved";
    } catch (const EDatabaseError& error) {
        return error.Code();
    }
}

/// The clerk saves, and the server is killed when his closing call is seen at the stop. What he is told.
std::string toldOfKilledServer(const SweptNote& note, IdentifiedSaves& program, const Stop& stop) {
    PostgreSQLSession administrator = administratorOf(note.url());
    administrator.execute("select pg_advisory_lock(4711)");
    administrator.execute(triggerOf(stop));
    auto told = std::async(std::launch::async, [&] { return toldOfSave(note, program); });
    const std::string isThere = std::string("select 1 from pg_stat_activity where usename = 'novakova' "
                                            "and datname = current_database() and wait_event = '") +
                                stop.WaitEvent + "'";
    while (PQntuples(administrator.execute(isThere).get()) == 0 &&
           told.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready) {
    }
    PrivateServer::instance().crash();
    return told.get();
}

} // namespace

SweepResult sweepClosingCrashes(int rows) {
    SweptNote note(Engine::PostgreSQL, rows);
    keepWhatIsAcknowledged(note.url(), "local");
    administratorOf(note.url()).execute(c_Functions);
    const MissingStandby standby(note.url());
    for (const Stop& stop : c_Stops) {
        const std::string point = std::string("the server killed in the closing call, ") + stop.Where + ",";
        const auto database = openAs(note.url(), "novakova");
        IdentifiedSaves program(*database, note.folder());
        note.begin();
        const std::string told = toldOfKilledServer(note, program, stop);
        note.expect(told == "ML057", point, "told " + told);
        const auto observer = openAs(note.url(), "svoboda");
        if (stop.IsCommitted) {
            note.expectNew(*observer, point);
        } else {
            note.expectOld(*observer, point);
        }
        observer->runScript(std::string("drop trigger STOP on melvark.") + stop.Table);
        note.expect(note.saveAgainAndAgain(program), point, "never saved");
        note.expectNew(*observer, point);
    }
    return note.result();
}

} // namespace refhost
