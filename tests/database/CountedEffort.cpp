#include "tests/database/CountedEffort.h"

#include "refhost/database/PostgreSQLRows.h"
#include "refhost/database/PostgreSQLSession.h"
#include "tests/database/PrivateServer.h"

#include <sqlite3.h>

namespace refhost {

namespace {

Effort embeddedEffort;

int countStatement(unsigned /*event*/, void* /*context*/, void* statement, void* /*nanoseconds*/) {
    constexpr int c_FromNought = 1;
    embeddedEffort.Steps +=
        sqlite3_stmt_status(static_cast<sqlite3_stmt*>(statement), SQLITE_STMTSTATUS_VM_STEP, c_FromNought);
    ++embeddedEffort.Calls;
    return 0;
}

int countOpened(sqlite3* handle, char** /*error*/, const sqlite3_api_routines* /*routines*/) {
    return sqlite3_trace_v2(handle, SQLITE_TRACE_PROFILE, countStatement, nullptr);
}

/// A connection, all of whose statements are counted.
std::unique_ptr<Database> openCounted(const std::string& url) {
    const auto hook = reinterpret_cast<void (*)()>(countOpened);
    sqlite3_auto_extension(hook);
    auto database = openAs(url, "novakova");
    sqlite3_cancel_auto_extension(hook);
    return database;
}

std::string administratorAddress(const std::string& url) {
    return url.substr(std::string_view("postgresql:").size()) + " user=postgres";
}

} // namespace

struct CountedDatabase::Counter {
    std::unique_ptr<Database> Measured;
    std::unique_ptr<PostgreSQLSession> Administrator; ///< On the server only.

    std::int64_t number(const std::string& sql) {
        return std::get<std::int64_t>(resultTable(Administrator->execute(sql, {}).get()).Rows.at(0).at(0));
    }
    Effort now() {
        if (!Administrator) {
            return embeddedEffort;
        }
        publish();
        // Entries of indices are counted also when they lead to rows that the statement itself has just written.
        return {number("select (select coalesce(sum(seq_tup_read), 0) from pg_stat_user_tables)::bigint + "
                       "(select coalesce(sum(idx_tup_read), 0) from pg_stat_user_indexes)::bigint"),
                number("select coalesce(sum(calls), 0)::bigint from pg_stat_user_functions")};
    }
    /// A session tells its counts once a second, unless it is asked to.
    void publish() const {
        Measured->awaitAnswers();
        Measured->Query("select pg_stat_force_next_flush()");
    }
};

CountedDatabase::CountedDatabase(Engine engine) : counter_(std::make_unique<Counter>()) {
    const std::string url = newDatabaseUrl(engine);
    if (engine == Engine::SQLite) {
        counter_->Measured = openCounted(url);
        return;
    }
    counter_->Administrator = std::make_unique<PostgreSQLSession>(administratorAddress(url), TFormatSettings::Czech());
    counter_->Administrator->execute("do $$ begin execute format('alter database %I set track_functions = ''all''', "
                                     "current_database()); end $$");
    counter_->Measured = openAs(url, "novakova");
}

CountedDatabase::~CountedDatabase() = default;

Database& CountedDatabase::database() {
    return *counter_->Measured;
}

void CountedDatabase::refreshStatistics() {
    if (counter_->Administrator) {
        counter_->Administrator->execute("analyze");
    }
}

Effort CountedDatabase::of(const std::function<void()>& work) {
    const Effort before = counter_->now();
    work();
    const Effort after = counter_->now();
    return {after.Steps - before.Steps, after.Calls - before.Calls};
}

std::int64_t CountedDatabase::callsOf(const std::string& function, const std::function<void()>& work) {
    const auto calls = [&] {
        counter_->publish();
        return counter_->number(
            "select coalesce(sum(calls), 0)::bigint from pg_stat_user_functions where funcname = '" + function + "'");
    };
    const std::int64_t before = calls();
    work();
    return calls() - before;
}

std::int64_t CountedDatabase::plansOf(const std::function<void()>& work) {
    const auto plans = [] { return PrivateServer::instance().loggedLines("LOG:  plan:"); };
    database().runScript("set debug_print_plan = on");
    const std::int64_t before = plans();
    work();
    database().awaitAnswers();
    const std::int64_t after = plans();
    database().runScript("set debug_print_plan = off");
    return after - before;
}

} // namespace refhost
