#include "refhost/database/SQLiteProcedure.h"

#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteCall.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace refhost {

namespace {

/// The one column of a statement that only refuses: its rows are no result set.
constexpr const char* c_RefusalColumn = "REFUSAL";

/// `guess`, the place at which callers mostly name it, is tried first.
std::optional<std::size_t> inputIndex(const SqlScript& script, std::string_view name, std::size_t guess = 0) {
    if (guess < script.Inputs.size() && SameDbName(script.Inputs[guess].Name, name)) {
        return guess;
    }
    const auto found = std::ranges::find_if(
        script.Inputs, [&](const SqlScript::Parameter& input) { return SameDbName(input.Name, name); });
    if (found == script.Inputs.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - script.Inputs.begin());
}

std::vector<std::size_t> statementInputs(const SqlScript& script, const SQLiteStatement& statement) {
    std::vector<std::size_t> inputs;
    for (int i = 1; i <= statement.parameterCount(); ++i) {
        const auto input = inputIndex(script, statement.parameterName(i));
        if (!input) {
            throw std::logic_error(script.Name + " does not declare " + statement.parameterName(i));
        }
        inputs.push_back(*input);
    }
    return inputs;
}

bool isGuard(const std::vector<std::string>& columns) {
    return columns.size() == 1 && columns.front() == c_RefusalColumn;
}

TProcedureInfo infoOf(const SqlScript& script) {
    TProcedureInfo info;
    for (const SqlScript::Parameter& input : script.Inputs) {
        info.Inputs.push_back(input.Name);
    }
    info.Outputs = script.Outputs;
    return info;
}

} // namespace

SQLiteProcedure::SQLiteProcedure(SQLiteSession& session, SqlScript script)
    : script_(std::move(script)), info_(infoOf(script_)) {
    session.takeWrites();
    for (SQLiteStatement& statement : prepareStatements(session, script_.Text)) {
        std::vector<std::size_t> inputs = statementInputs(script_, statement);
        std::vector<std::string> columns = statement.columns();
        const Rows brings = broughtBy(columns);
        steps_.push_back({std::move(statement), std::move(inputs), std::move(columns), brings});
    }
    isWriting_ = session.takeWrites();
    checkResults();
}

SQLiteProcedure::Rows SQLiteProcedure::broughtBy(const std::vector<std::string>& columns) const {
    if (columns.empty() || isGuard(columns)) {
        return Rows::Nothing;
    }
    return std::ranges::equal(script_.Outputs, columns, SameDbName) ? Rows::Outputs : Rows::ResultSet;
}

void SQLiteProcedure::checkResults() const {
    std::vector<std::vector<std::string>> results;
    for (const Step& step : steps_) {
        if (step.Brings == Rows::ResultSet) {
            results.push_back(step.Columns);
        }
    }
    if (results != script_.Results) {
        throw std::logic_error(script_.Name + " declares other result sets than it brings");
    }
}

std::vector<TDbValue> SQLiteProcedure::inputValues(const TProcedureCall& call) const {
    std::vector<TDbValue> values(script_.Inputs.size());
    std::size_t guess = 0;
    for (const TDbParam& parameter : call.Params) {
        const auto input = inputIndex(script_, parameter.Name, guess++);
        if (!input) {
            throw refusal("ML919", {shownText(call.Name), shownText(parameter.Name)});
        }
        values[*input] = parameterValue(script_.Inputs[*input].Kind, script_.Inputs[*input].Name, parameter.Value);
    }
    return values;
}

TCallResult SQLiteProcedure::run(const TProcedureCall& call) {
    const std::vector<TDbValue> inputs = inputValues(call);
    TCallResult result;
    for (Step& step : steps_) {
        runStep(step, inputs, call.Open, result);
    }
    return result;
}

void SQLiteProcedure::runStep(Step& step, std::span<const TDbValue> inputs, bool open, TCallResult& result) {
    const SQLiteStatementUse use(step.Statement);
    for (std::size_t i = 0; i < step.Inputs.size(); ++i) {
        step.Statement.bind(static_cast<int>(i) + 1, inputs[step.Inputs[i]]);
    }

    if (step.Brings == Rows::Nothing) {
        while (step.Statement.step()) {
        }
        return;
    }
    TResultTable table{step.Columns, {}};
    while (step.Statement.step()) {
        table.Rows.push_back(step.Statement.row());
    }
    if (step.Brings == Rows::Outputs) {
        for (std::size_t i = 0; i < script_.Outputs.size() && !table.Rows.empty(); ++i) {
            result.Outputs.push_back({script_.Outputs[i], table.Rows.front()[i]});
        }
    } else if (open) {
        result.Sets.push_back(std::move(table));
    }
}

SQLiteScriptFunction::SQLiteScriptFunction(SQLiteSession& session, SqlScript script)
    : session_(session), script_(std::move(script)) {
    const int status =
        sqlite3_create_function_v2(session.handle(), script_.Name.c_str(), static_cast<int>(script_.Inputs.size()),
                                   SQLITE_UTF8 | SQLITE_INNOCUOUS, this, call, nullptr, nullptr, nullptr);
    if (status != SQLITE_OK) {
        session.fail(status, script_.Name);
    }
}

void SQLiteScriptFunction::call(sqlite3_context* context, int count, sqlite3_value** values) {
    auto& self = *static_cast<SQLiteScriptFunction*>(sqlite3_user_data(context));
    guardSQLiteCall(self.session_, context,
                    [&] { self.run(context, std::span(values, static_cast<std::size_t>(count))); });
}

void SQLiteScriptFunction::run(sqlite3_context* context, std::span<sqlite3_value*> values) {
    if (statements_.empty()) {
        statements_ = prepareStatements(session_, script_.Text);
    }
    for (SQLiteStatement& statement : statements_) {
        const SQLiteStatementUse use(statement);
        for (int i = 1; i <= statement.parameterCount(); ++i) {
            if (const auto input = inputIndex(script_, statement.parameterName(i))) {
                statement.bind(i, values[*input]);
            }
        }
        if (statement.step() && &statement == &statements_.back()) {
            sqlite3_result_value(context, statement.engineValue(0));
        }
    }
}

} // namespace refhost
