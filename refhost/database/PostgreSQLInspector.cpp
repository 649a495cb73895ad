#include "refhost/database/PostgreSQLInspector.h"

#include "host/AsciiCase.h"
#include "host/Exceptions.h"
#include "refhost/database/PostgreSQLProcedure.h"
#include "refhost/database/PostgreSQLRows.h"
#include "refhost/database/PostgreSQLSchema.h"
#include "refhost/database/RefusalTable.h"

#include <algorithm>
#include <array>

namespace refhost {

namespace {

/// How many functions bear the name, and whether the first one's sets come as cursors.
constexpr const char* c_Namesakes =
    "select count(*), bool_or(p.prorettype = 'pg_catalog.refcursor'::regtype) from pg_catalog.pg_proc p "
    "where p.pronamespace = to_regnamespace('melvark') and p.proname = lower($1)";

/// The input parameters in their order: the type, and whether there is a default, which the last ones have.
constexpr const char* c_Inputs =
    "select lower(a.name), (p.proargtypes[n.place - 1])::bigint, n.place > p.pronargs - p.pronargdefaults "
    "from pg_catalog.pg_proc p "
    "cross join lateral unnest(p.proargnames) with ordinality a(name, place) "
    "cross join lateral (select count(*) from generate_series(1, a.place) i "
    "                    where coalesce(p.proargmodes[i], 'i') = 'i') n(place) "
    "where p.pronamespace = to_regnamespace('melvark') and p.proname = lower($1) "
    "and coalesce(p.proargmodes[a.place], 'i') = 'i' "
    "order by p.oid, a.place";

/// The functions of a name.
constexpr const char* c_MayCall =
    "select coalesce(bool_and(has_function_privilege($1, p.oid, 'execute')), true) from pg_catalog.pg_proc p "
    "where p.pronamespace = to_regnamespace('melvark') and p.proname = lower($2)";

constexpr const char* c_MayRead =
    "select coalesce(has_table_privilege($1, to_regclass('melvark.' || quote_ident(lower($2))), 'select'), true)";

constexpr const char* c_Writable =
    "select upper(c.relname) from pg_catalog.pg_class c "
    "where c.relnamespace = to_regnamespace('melvark') and c.relkind in ('r', 'p', 'v', 'f') "
    "and has_table_privilege($1, c.oid, 'insert, update, delete, truncate') order by 1";

/// The server's types of which the connection makes integers.
constexpr std::array<Oid, 4> c_Integers{16, 20, 21, 23};

AnsiString text(std::string_view value) {
    return AnsiString(value);
}

} // namespace

PostgreSQLInspector::PostgreSQLInspector(const std::string& address, const TFormatSettings& settings,
                                         const std::string& procedures)
    : session_(address, settings, OpenMode::ReadingOnly) {
    if (!procedures.empty()) {
        throw refusal("ML931", {session_.database()});
    }
}

bool PostgreSQLInspector::hasSchema() {
    return hasPostgreSQLSchema(session_);
}

std::string PostgreSQLInspector::typeName(Oid type) {
    if (const auto known = typeNames_.find(type); known != typeNames_.end()) {
        return known->second;
    }
    const std::vector<TDbValue> parameters{text(std::to_string(type))};
    const PostgreSQLResult name =
        session_.execute("select case when typcategory = 'S' then 'text' else format_type(oid, null) end "
                         "from pg_catalog.pg_type where oid = $1",
                         parameters);
    return typeNames_.emplace(type, PQgetvalue(name.get(), 0, 0)).first->second;
}

DeclaredNames PostgreSQLInspector::described(const std::string& sql) {
    const PostgreSQLResult description = session_.describe(sql);
    DeclaredNames columns;
    for (int column = 0; column < PQnfields(description.get()) && !isVoid(description.get()); ++column) {
        const Oid type = PQftype(description.get(), column);
        columns.push_back({melvark::UpperAscii(PQfname(description.get(), column)),
                           std::ranges::count(c_Integers, type) != 0 ? "integer" : typeName(type)});
    }
    return columns;
}

std::optional<ProcedureDeclaration> PostgreSQLInspector::procedure(const AnsiString& name) {
    const std::vector<TDbValue> parameters{name};
    const TResultTable namesakes = resultTable(session_.execute(c_Namesakes, parameters).get());
    ProcedureDeclaration declaration;
    declaration.Namesakes = static_cast<int>(std::get<std::int64_t>(namesakes.Rows.front().front()));
    const auto procedure = PostgreSQLProcedure::find(session_, name);
    if (!procedure) {
        return std::nullopt;
    }
    for (const auto& row : resultTable(session_.execute(c_Inputs, parameters).get()).Rows) {
        declaration.Inputs.push_back({std::get<AnsiString>(row[0]),
                                      typeName(static_cast<Oid>(std::get<std::int64_t>(row[1]))),
                                      std::get<std::int64_t>(row[2]) == 1});
    }
    const bool bringsCursors = namesakes.Rows.front().back() == TDbValue(std::int64_t{1});
    if (declaration.Namesakes > 1 || bringsCursors) {
        return declaration; // which of them is meant, and what the cursors bring, only a call tells
    }
    // Its parameters are left out; where one has no default, a null stands for it.
    std::string arguments;
    for (const DeclaredName& input : declaration.Inputs) {
        if (!input.MayBeLeftOut) {
            arguments += (arguments.empty() ? "" : ", ") + session_.quoted(input.Name) + " => null";
        }
    }
    DeclaredNames brought =
        described("select * from melvark." + session_.quoted(melvark::LowerAscii(name)) + "(" + arguments + ")");
    declaration.Sets.emplace();
    if (!procedure->info().Outputs.empty()) {
        declaration.Outputs = std::move(brought);
    } else if (!brought.empty()) {
        declaration.Sets->push_back(std::move(brought));
    }
    return declaration;
}

DeclaredNames PostgreSQLInspector::columns(const AnsiString& sql) {
    return described(sql);
}

TCallResult PostgreSQLInspector::call(const TProcedureCall& call) {
    const auto procedure = PostgreSQLProcedure::find(session_, call.Name);
    if (!procedure) {
        throw refusal("ML918", {call.Name});
    }
    return procedure->run(session_, call);
}

TResultTable PostgreSQLInspector::query(const AnsiString& sql) {
    return resultTable(session_.execute(sql, {}).get());
}

bool PostgreSQLInspector::isTrue(const std::string& sql, const std::vector<TDbValue>& parameters) {
    const PostgreSQLResult answer = session_.execute(sql, parameters);
    return std::string_view(PQgetvalue(answer.get(), 0, 0)) == "t";
}

bool PostgreSQLInspector::hasRole(std::string_view role) {
    return isTrue("select exists (select from pg_catalog.pg_roles where rolname = $1)", {text(role)});
}

bool PostgreSQLInspector::mayEnter(std::string_view role) {
    return isTrue("select has_schema_privilege($1, 'melvark', 'usage')", {text(role)});
}

bool PostgreSQLInspector::mayCall(std::string_view role, std::string_view name) {
    return isTrue(c_MayCall, {text(role), text(name)});
}

bool PostgreSQLInspector::mayRead(std::string_view role, std::string_view view) {
    return isTrue(c_MayRead, {text(role), text(view)});
}

std::vector<std::string> PostgreSQLInspector::writable(std::string_view role) {
    const std::vector<TDbValue> parameters{text(role)};
    std::vector<std::string> names;
    for (const auto& row : resultTable(session_.execute(c_Writable, parameters).get()).Rows) {
        names.push_back(std::get<AnsiString>(row.front()));
    }
    return names;
}

} // namespace refhost
