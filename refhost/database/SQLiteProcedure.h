#pragma once

#include "refhost/database/SQLiteStatement.h"
#include "refhost/database/SqlScript.h"

#include <span>
#include <vector>

namespace refhost {

/// A procedure of the embedded engine, prepared on one session: runs its script's statements one after the other, with
/// the call's parameters bound by name. The caller puts a transaction around it.
class SQLiteProcedure {
public:
    /// Prepares all statements. Throws EDatabaseError, and std::logic_error for a script that uses a parameter or
    /// brings a result set which it does not declare.
    SQLiteProcedure(SQLiteSession& session, SqlScript script);

    const SqlScript& script() const { return script_; }
    /// Whether it writes to the company's tables, not only to the session's temporary ones.
    bool isWriting() const { return isWriting_; }
    const TProcedureInfo& info() const { return info_; }

    /// Result sets are dropped unless the call is to open them. Throws EDatabaseError.
    TCallResult run(const TProcedureCall& call);

private:
    /// What a step's rows are. Those of a statement that only refuses are nothing.
    enum class Rows { Nothing, Outputs, ResultSet };
    struct Step {
        SQLiteStatement Statement;
        std::vector<std::size_t> Inputs; ///< The script's input for each parameter of the statement.
        std::vector<std::string> Columns;
        Rows Brings;
    };

    Rows broughtBy(const std::vector<std::string>& columns) const;
    void checkResults() const;
    std::vector<TDbValue> inputValues(const TProcedureCall& call) const;
    void runStep(Step& step, std::span<const TDbValue> inputs, bool open, TCallResult& result);

    SqlScript script_;
    TProcedureInfo info_;
    bool isWriting_;
    std::vector<Step> steps_;
};

/// A function of the embedded engine that is written in SQL; registered under its script's name, it can be called from
/// every statement of the session.
class SQLiteScriptFunction {
public:
    /// `session` and this object have to outlive the use of the session's handle.
    SQLiteScriptFunction(SQLiteSession& session, SqlScript script);
    SQLiteScriptFunction(const SQLiteScriptFunction&) = delete;
    SQLiteScriptFunction& operator=(const SQLiteScriptFunction&) = delete;

private:
    static void call(sqlite3_context* context, int count, sqlite3_value** values);
    void run(sqlite3_context* context, std::span<sqlite3_value*> values);

    SQLiteSession& session_;
    SqlScript script_;
    std::vector<SQLiteStatement> statements_; ///< Prepared by the first call, when the tables exist.
};

} // namespace refhost
