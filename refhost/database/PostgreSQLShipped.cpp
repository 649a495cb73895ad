#include "refhost/database/PostgreSQLShipped.h"

#include "host/Exceptions.h"

namespace refhost {

namespace {

/// The functions of the schema with their digests; those of triggers belong to the tables.
constexpr const char* c_Routines =
    "select p.oid, p.proname, p.oid::regprocedure::text as name, p.xmin,"
    "       pg_catalog.pg_get_function_identity_arguments(p.oid) as arguments,"
    "       'Melvark ' || md5(p.prosrc || coalesce(pg_catalog.pg_get_function_sqlbody(p.oid), '')) as digest,"
    "       pg_catalog.obj_description(p.oid, 'pg_proc') as mark "
    "from pg_catalog.pg_proc p "
    "where p.pronamespace = 'melvark'::regnamespace and p.prokind = 'f'"
    "      and p.prorettype <> 'pg_catalog.trigger'::regtype";

/// The views and the types of rows.
constexpr const char* c_Relations =
    "select c.oid::regclass::text as name, c.xmin, case c.relkind when 'v' then 'view' else 'type' end as kind,"
    "       coalesce(pg_catalog.obj_description(c.oid, 'pg_class'),"
    "                pg_catalog.obj_description(c.reltype, 'pg_type')) as mark "
    "from pg_catalog.pg_class c "
    "where c.relnamespace = 'melvark'::regnamespace and c.relkind in ('v', 'c')";

/// Somebody's own in the place of ours: another text, or another object under the name of what editors and conditions
/// call.
constexpr const char* c_IsReplaced = "(mark like 'Melvark %' and mark <> digest) or "
                                     "(mark is null and (proname like 'melvarkeditor%' or proname like 'v\\_%'))";

constexpr const char* c_IsOurs = "mark like 'Melvark%'";

std::string from(const char* objects) {
    return " from (" + std::string(objects) + ") o ";
}

/// The rows of a query with one column.
std::vector<std::string> column(PostgreSQLSession& session, const std::string& sql) {
    const PostgreSQLResult result = session.execute(sql);
    std::vector<std::string> values;
    for (int row = 0; row < PQntuples(result.get()); ++row) {
        values.emplace_back(PQgetvalue(result.get(), row, 0));
    }
    return values;
}

void runAll(PostgreSQLSession& session, const std::vector<std::string>& statements) {
    for (const std::string& statement : statements) {
        session.execute(statement);
    }
}

/// All in one statement, so that it does not matter which stands on which.
void dropAll(PostgreSQLSession& session, const std::string& kind, const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    if (!list.empty()) {
        session.execute("drop " + kind + " " + list);
    }
}

} // namespace

void markShipped(PostgreSQLSession& session) {
    const std::string isNew = "where xmin = pg_catalog.pg_current_xact_id()::xid";
    runAll(session,
           column(session, "select format('comment on function %s is %L', name, digest)" + from(c_Routines) + isNew));
    runAll(session, column(session, "select format('comment on %s %s is %L', kind, name, 'Melvark')" +
                                        from(c_Relations) + isNew));
}

std::vector<ReplacedRoutine> replacedRoutines(PostgreSQLSession& session) {
    const PostgreSQLResult result = session.execute("select proname, arguments, pg_catalog.pg_get_functiondef(oid)" +
                                                    from(c_Routines) + "where " + c_IsReplaced + " order by name");
    std::vector<ReplacedRoutine> replaced;
    for (int row = 0; row < PQntuples(result.get()); ++row) {
        replaced.push_back(
            {PQgetvalue(result.get(), row, 0), PQgetvalue(result.get(), row, 1), PQgetvalue(result.get(), row, 2)});
    }
    return replaced;
}

void dropShipped(PostgreSQLSession& session, const std::vector<ReplacedRoutine>& replaced) {
    dropAll(session, "view",
            column(session, "select name" + from(c_Relations) + "where kind = 'view' and " + c_IsOurs));
    std::vector<std::string> routines =
        column(session, "select name" + from(c_Routines) + "where " + std::string(c_IsOurs));
    for (const ReplacedRoutine& routine : replaced) {
        routines.push_back("melvark." + session.quoted(routine.Name) + "(" + routine.Arguments + ")");
    }
    dropAll(session, "function if exists", routines);
    dropAll(session, "type",
            column(session, "select name" + from(c_Relations) + "where kind = 'type' and " + c_IsOurs));
}

void putBack(PostgreSQLSession& session, const ReplacedRoutine& replaced) {
    const std::vector<TDbValue> parameters{replaced.Name, replaced.Arguments};
    const PostgreSQLResult others =
        session.execute("select name" + from(c_Routines) + "where proname = $1 and arguments <> $2", parameters);
    for (int row = 0; row < PQntuples(others.get()); ++row) {
        session.execute("drop function " + std::string(PQgetvalue(others.get(), row, 0)));
    }
    session.execute(replaced.Definition);
}

} // namespace refhost
