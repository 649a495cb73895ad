#include "refhost/database/PostgreSQLSchema.h"

#include "host/ValueText.h"
#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/PostgreSQLRows.h"
#include "refhost/database/PostgreSQLShipped.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SchemaVersion.h"

namespace refhost {

namespace {

/// What marks the schema as ours, before the version.
constexpr std::string_view c_Mark = "Melvark, version ";

constexpr const char* c_SchemaComment =
    "select coalesce(pg_catalog.obj_description(oid, 'pg_namespace'), '') from pg_catalog.pg_namespace "
    "where nspname = 'melvark'";

void runFolder(PostgreSQLSession& session, std::string_view folder) {
    for (const SqlFile& file : postgresqlFiles()) {
        if (file.Path.starts_with(folder)) {
            session.execute(std::string(file.Text));
        }
    }
}

/// Names and notes may be in any language, and so are our own sentences.
void refuseOtherEncodings(const PostgreSQLSession& session) {
    const std::string encoding = PQparameterStatus(session.handle(), "server_encoding");
    if (encoding != "UTF8") {
        throw refusal("ML933", {session.database(), encoding});
    }
}

} // namespace

std::int64_t postgresqlSchemaVersion(PostgreSQLSession& session) {
    const TResultTable table = resultTable(session.execute(c_SchemaComment, {}).get());
    if (table.Rows.empty()) {
        return 0;
    }
    const AnsiString comment = std::get<AnsiString>(table.Rows.front().front());
    const auto version = comment.starts_with(c_Mark) ? TextToInt(comment.substr(c_Mark.size())) : std::nullopt;
    if (!version) {
        throw refusal("ML913/schema", {session.database()});
    }
    return *version;
}

bool hasPostgreSQLSchema(PostgreSQLSession& session) {
    const std::int64_t version = postgresqlSchemaVersion(session);
    if (version != 0 && version != c_SchemaVersion) {
        throw otherVersionError(session.database(), version);
    }
    return version != 0;
}

void waitForOtherMakers(PostgreSQLSession& session) {
    session.execute("set local lock_timeout = '60s'; select pg_advisory_xact_lock(hashtext('melvark'))");
}

void beginPostgreSQLSchema(PostgreSQLSession& session) {
    runFolder(session, "roles.sql");
    session.execute("set local role melvark_owner");
    // Functions, views and procedures stand on one another; what is missing shows when they are called.
    session.execute("set local check_function_bodies = off");
}

void createPostgreSQLRoutines(PostgreSQLSession& session) {
    runFolder(session, "types/");
    runFolder(session, "functions/");
    runFolder(session, "views/");
    runFolder(session, "procedures/");
    markShipped(session);
}

void finishPostgreSQLSchema(PostgreSQLSession& session) {
    runFolder(session, "privileges.sql");
    session.execute("comment on schema melvark is '" + std::string(c_Mark) + std::to_string(c_SchemaVersion) + "'");
}

void createPostgreSQLSchema(PostgreSQLSession& session) {
    refuseOtherEncodings(session);
    PostgreSQLTransaction transaction(session, PostgreSQLTransaction::Kind::Writing);
    waitForOtherMakers(session);
    if (hasPostgreSQLSchema(session)) {
        throw refusal("ML921/server", {session.database()});
    }
    beginPostgreSQLSchema(session);
    runFolder(session, "tables.sql");
    createPostgreSQLRoutines(session);
    finishPostgreSQLSchema(session);
    transaction.commit();
}

} // namespace refhost
