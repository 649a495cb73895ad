#include "refhost/database/SQLiteSchema.h"

#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteCollation.h"
#include "refhost/database/SQLiteStatement.h"
#include "refhost/database/SchemaVersion.h"

namespace refhost {

namespace {

/// Marks our files ("MLVR"), so that no other program's data is taken for ours.
constexpr std::int64_t c_ApplicationId = 0x4D4C5652;

bool hasObjects(SQLiteSession& session) {
    std::string_view sql = "select 1 from sqlite_schema";
    SQLiteStatement statement(session, sql);
    return statement.step();
}

} // namespace

std::int64_t sqlitePragma(SQLiteSession& session, const std::string& name) {
    const std::string sql = "pragma " + name;
    std::string_view text = sql;
    SQLiteStatement statement(session, text);
    return statement.step() ? std::get<std::int64_t>(statement.value(0)) : 0;
}

std::int64_t sqliteSchemaVersion(SQLiteSession& session) {
    const std::int64_t applicationId = sqlitePragma(session, "application_id");
    if (applicationId == c_ApplicationId) {
        return sqlitePragma(session, "user_version");
    }
    if (applicationId != 0 || sqlitePragma(session, "user_version") != 0 || hasObjects(session)) {
        throw refusal("ML913", {session.file()});
    }
    return 0;
}

void createSQLiteTables(SQLiteSession& session) {
    session.execute(folderText(sqliteFiles(), "tables.sql"));
}

void createSQLiteViews(SQLiteSession& session) {
    session.execute(folderText(sqliteFiles(), "views/"));
}

void stampSQLiteVersion(SQLiteSession& session) {
    session.execute("pragma application_id = " + std::to_string(c_ApplicationId));
    session.execute("pragma user_version = " + std::to_string(c_SchemaVersion));
    stampCollation(session);
}

void createSQLiteSchema(SQLiteSession& session) {
    SQLiteTransaction transaction(session, SQLiteTransaction::Kind::Writing);
    // Asked within the transaction: another program may have made it while this one waited for its turn.
    if (sqliteSchemaVersion(session) != 0) {
        throw refusal("ML921", {session.file()});
    }
    createSQLiteTables(session);
    createSQLiteViews(session);
    stampSQLiteVersion(session);
    transaction.commit();
}

} // namespace refhost
