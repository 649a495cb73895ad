#include "refhost/database/PostgreSQLUpgrade.h"

#include "host/AsciiCase.h"
#include "host/Exceptions.h"
#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/PostgreSQLErrors.h"
#include "refhost/database/PostgreSQLSchema.h"
#include "refhost/database/PostgreSQLShipped.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SchemaVersion.h"
#include "refhost/database/UpgradeSteps.h"

namespace refhost {

namespace {

/// Waits, but not for long, until nobody is in the middle of a call, and keeps everybody out until the end of the
/// transaction.
constexpr const char* c_LockTables =
    "set local lock_timeout = '5s';"
    "do $$ declare company text; begin "
    "select string_agg(c.oid::regclass::text, ', ') into company from pg_catalog.pg_class c "
    "where c.relnamespace = 'melvark'::regnamespace and c.relkind = 'r'; "
    "execute 'lock table ' || company || ' in access exclusive mode'; end $$";

/// Refuses a version that cannot be upgraded; false when there is nothing to do.
bool isOlder(const PostgreSQLSession& session, std::int64_t version) {
    if (version == 0) {
        throw refusal("ML922", {session.database()});
    }
    if (version > c_SchemaVersion) {
        throw otherVersionError(session.database(), version);
    }
    return version < c_SchemaVersion;
}

/// Alters the tables. Rows that break the new rules are named by their table, as on the other engine.
void takeSteps(PostgreSQLSession& session, std::int64_t from) {
    try {
        session.execute(upgradeSteps(postgresqlFiles(), from));
    } catch (const EPostgreSQLError& error) {
        if (!error.isBrokenRule()) {
            throw;
        }
        throw refusal("ML927", {melvark::UpperAscii(error.table())}, error.Details());
    }
}

void putBackReplaced(PostgreSQLSession& session, const std::vector<ReplacedRoutine>& replaced, UpgradeReport& report) {
    for (const ReplacedRoutine& routine : replaced) {
        try {
            putBack(session, routine);
        } catch (const EDatabaseError& error) {
            throw refusal("ML928", {routine.Name}, error.Details());
        }
        report.Kept.push_back(routine.Name);
    }
}

} // namespace

UpgradeReport upgradePostgreSQLSchema(PostgreSQLSession& session) {
    UpgradeReport report;
    report.From = postgresqlSchemaVersion(session);
    if (!isOlder(session, report.From)) {
        return report;
    }
    PostgreSQLTransaction transaction(session, PostgreSQLTransaction::Kind::Writing);
    waitForOtherMakers(session);
    session.execute(c_LockTables);
    // Asked again now that nobody else can write: another upgrade may have been first.
    report.From = postgresqlSchemaVersion(session);
    if (!isOlder(session, report.From)) {
        return report;
    }
    beginPostgreSQLSchema(session);
    session.execute(folderText(postgresqlFiles(), "upgrades/shipped-" + std::to_string(report.From) + ".sql"));
    const std::vector<ReplacedRoutine> replaced = replacedRoutines(session);
    dropShipped(session, replaced);
    takeSteps(session, report.From);
    createPostgreSQLRoutines(session);
    putBackReplaced(session, replaced, report);
    finishPostgreSQLSchema(session);
    session.execute("notify " + std::string(c_UpgradeChannel));
    transaction.commit();
    return report;
}

} // namespace refhost
