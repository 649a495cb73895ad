#include "refhost/database/PostgreSQLProcedure.h"

#include "host/AsciiCase.h"
#include "host/Exceptions.h"
#include "refhost/database/PostgreSQLRows.h"
#include "refhost/database/RefusalTable.h"

#include <algorithm>

namespace refhost {

namespace {

/// One row a parameter, or one row without any. Only the contract's procedures count, not the functions that they and
/// the views stand on.
constexpr const char* c_FindProcedure =
    "select quote_ident(p.proname) as sql_name, a.name, quote_ident(a.name) as sql_parameter,"
    "       coalesce(p.proargmodes[a.place], 'i') as mode,"
    "       format_type(coalesce(p.proallargtypes[a.place], p.proargtypes[a.place - 1]), null) as type,"
    "       p.prorettype = 'pg_catalog.refcursor'::regtype as brings_cursors,"
    "       p.prorettype = 'pg_catalog.void'::regtype as brings_nothing "
    "from pg_catalog.pg_proc p "
    "left join unnest(p.proargnames) with ordinality a(name, place) on true "
    "where p.pronamespace = to_regnamespace('melvark') and p.proname = lower($1) and p.proname like 'melvarkeditor%' "
    "order by a.place";

enum Column { SqlName, Name, SqlParameter, Mode, Type, BringsCursors, BringsNothing };

/// The server folds names to lower case; the contract writes them "a_NAME".
AnsiString contractName(std::string_view name) {
    constexpr std::string_view c_Prefix = "a_";
    if (!name.starts_with(c_Prefix)) {
        return melvark::UpperAscii(name);
    }
    return AnsiString(c_Prefix) + melvark::UpperAscii(name.substr(c_Prefix.size()));
}

ParameterKind parameterKind(std::string_view type) {
    if (type == "integer") {
        return ParameterKind::Integer;
    }
    return type == "boolean" ? ParameterKind::Boolean : ParameterKind::Text;
}

} // namespace

std::optional<PostgreSQLProcedure> PostgreSQLProcedure::find(PostgreSQLSession& session, std::string_view name) {
    const std::vector<TDbValue> parameters{AnsiString(name)};
    const PostgreSQLResult result = session.execute(c_FindProcedure, parameters);
    const int rows = PQntuples(result.get());
    if (rows == 0) {
        return std::nullopt;
    }
    const auto text = [&](int row, Column column) -> std::string { return PQgetvalue(result.get(), row, column); };

    PostgreSQLProcedure procedure;
    procedure.sqlName_ = text(0, SqlName);
    procedure.bringsCursors_ = text(0, BringsCursors) == "t";
    procedure.bringsNothing_ = text(0, BringsNothing) == "t";
    for (int row = 0; row < rows; ++row) {
        const std::string mode = text(row, Mode);
        if (PQgetisnull(result.get(), row, Name) == 1) {
            continue;
        }
        if (mode == "i") {
            procedure.inputs_.push_back(
                {text(row, SqlParameter), contractName(text(row, Name)), parameterKind(text(row, Type))});
        } else if (mode == "o") {
            procedure.outputs_.push_back(contractName(text(row, Name)));
        }
    }
    return procedure;
}

TProcedureInfo PostgreSQLProcedure::info() const {
    TProcedureInfo info;
    for (const Parameter& parameter : inputs_) {
        info.Inputs.push_back(parameter.Name);
    }
    info.Outputs = outputs_;
    return info;
}

const PostgreSQLProcedure::Parameter& PostgreSQLProcedure::input(const TProcedureCall& call, std::string_view name,
                                                                 std::size_t guess) const {
    if (guess < inputs_.size() && SameDbName(inputs_[guess].Name, name)) {
        return inputs_[guess];
    }
    const auto found =
        std::ranges::find_if(inputs_, [name](const Parameter& parameter) { return SameDbName(parameter.Name, name); });
    if (found == inputs_.end()) {
        throw refusal("ML919", {shownText(call.Name), shownText(name)});
    }
    return *found;
}

PostgreSQLProcedure::Statement PostgreSQLProcedure::statement(const TProcedureCall& call) const {
    // A function that brings nothing costs less where it need not be a table.
    Statement statement{(bringsNothing_ ? "select melvark." : "select * from melvark.") + sqlName_ + "(", {}};
    std::vector<const Parameter*> named;
    std::size_t guess = 0;
    for (const TDbParam& parameter : call.Params) {
        const Parameter& declared = input(call, parameter.Name, guess++);
        TDbValue value = parameterValue(declared.Kind, declared.Name, parameter.Value);
        if (const auto earlier = std::ranges::find(named, &declared); earlier != named.end()) {
            statement.Values[static_cast<std::size_t>(earlier - named.begin())] =
                std::move(value); // the last one counts
            continue;
        }
        named.push_back(&declared);
        statement.Values.push_back(std::move(value));
        statement.Sql += (named.size() == 1 ? "" : ", ") + declared.SqlName + " => $" + std::to_string(named.size());
    }
    statement.Sql += ")";
    return statement;
}

TCallResult PostgreSQLProcedure::run(PostgreSQLSession& session, const TProcedureCall& call) const {
    const Statement statement = this->statement(call);
    if (bringsCursors_) {
        return runForCursors(session, statement, call.Open);
    }

    TCallResult result;
    const PostgreSQLResult rows = session.execute(statement.Sql, statement.Values);
    if (isVoid(rows.get())) {
        return result;
    }
    TResultTable table = resultTable(rows.get());
    if (!outputs_.empty() && !table.Rows.empty()) {
        for (std::size_t i = 0; i < outputs_.size(); ++i) {
            result.Outputs.push_back({outputs_[i], table.Rows.front()[i]});
        }
    } else if (call.Open) {
        result.Sets.push_back(std::move(table));
    }
    return result;
}

TCallResult PostgreSQLProcedure::runForCursors(PostgreSQLSession& session, const Statement& statement,
                                               bool open) const {
    TCallResult result;
    PostgreSQLTransaction transaction(session, PostgreSQLTransaction::Kind::Writing);
    const PostgreSQLResult cursors = session.execute(statement.Sql, statement.Values);
    for (int row = 0; row < PQntuples(cursors.get()); ++row) {
        const std::string cursor = session.quoted(PQgetvalue(cursors.get(), row, 0));
        const PostgreSQLResult rows = session.execute("fetch all from " + cursor);
        if (open) {
            result.Sets.push_back(resultTable(rows.get()));
        }
        session.execute("close " + cursor);
    }
    transaction.commit();
    return result;
}

} // namespace refhost
