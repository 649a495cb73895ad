#include "refhost/database/PostgreSQLSchema.h"

#include "host/Exceptions.h"
#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/PostgreSQLRows.h"

namespace refhost {

namespace {

/// What marks the schema as ours, before the version.
constexpr std::string_view c_Mark = "Melvark, version ";
/// Raised with every change of the tables, views, functions or procedures.
constexpr std::string_view c_Version = "1";

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

} // namespace

bool hasPostgreSQLSchema(PostgreSQLSession& session) {
    const TResultTable table = resultTable(session.execute(c_SchemaComment, {}).get());
    if (table.Rows.empty()) {
        return false;
    }
    const AnsiString comment = std::get<AnsiString>(table.Rows.front().front());
    if (!comment.starts_with(c_Mark)) {
        throw EDatabaseError("Schéma „melvark“ v databázi „" + session.database() +
                                 "“ patří jinému programu. Zvolte jinou databázi.",
                             "ML913");
    }
    if (comment.substr(c_Mark.size()) != c_Version) {
        throw EDatabaseError("Databáze „" + session.database() +
                                 "“ je jiné verze než tento program. Použijte program, který ji vytvořil.",
                             "ML914");
    }
    return true;
}

void createPostgreSQLSchema(PostgreSQLSession& session) {
    if (hasPostgreSQLSchema(session)) {
        throw EDatabaseError("Databáze „" + session.database() + "“ už tabulky má. Zvolte prázdnou databázi.", "ML921");
    }
    PostgreSQLTransaction transaction(session, PostgreSQLTransaction::Kind::Writing);
    runFolder(session, "roles.sql");
    session.execute("comment on schema melvark is '" + std::string(c_Mark) + std::string(c_Version) + "'");
    session.execute("set local role melvark_owner");
    // Functions, views and procedures stand on one another; what is missing shows when they are called.
    session.execute("set local check_function_bodies = off");
    runFolder(session, "tables.sql");
    runFolder(session, "types/");
    runFolder(session, "functions/");
    runFolder(session, "views/");
    runFolder(session, "procedures/");
    runFolder(session, "privileges.sql");
    transaction.commit();
}

} // namespace refhost
