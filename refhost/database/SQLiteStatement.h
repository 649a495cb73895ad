#pragma once

#include "host/Connection.h"
#include "refhost/database/SQLiteSession.h"

#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// One prepared statement of a session. It may be run any number of times: bind, step to the end, reset.
class SQLiteStatement {
public:
    /// Prepares the first statement of `sql` and takes it off its front. Throws EDatabaseError.
    SQLiteStatement(SQLiteSession& session, std::string_view& sql);

    /// Whether there was nothing but blanks and comments.
    bool isEmpty() const { return handle_ == nullptr; }

    int parameterCount() const { return sqlite3_bind_parameter_count(handle_.get()); }
    /// The name of the parameter at `index`, from 1, without its colon; empty for one that has none.
    std::string parameterName(int index) const;
    /// `value` has to live until the statement is reset or bound anew.
    void bind(int index, const TDbValue& value);
    void bind(int index, sqlite3_value* value);

    /// Moves to the next row; false behind the last one. Throws EDatabaseError.
    bool step();
    /// Back to before the first row; values are unbound.
    void reset() noexcept;

    int columnCount() const { return sqlite3_column_count(handle_.get()); }
    /// The columns' names in upper case.
    std::vector<std::string> columns() const;
    TDbValue value(int column) const;
    std::vector<TDbValue> row() const;
    /// The engine's own value of the current row.
    sqlite3_value* engineValue(int column) const { return sqlite3_column_value(handle_.get(), column); }

    std::string text() const;

private:
    SQLiteSession* session_;
    SQLiteStatementHandle handle_;
};

/// All statements of a script, in order.
std::vector<SQLiteStatement> prepareStatements(SQLiteSession& session, std::string_view script);

/// Resets the statement at the end of the scope, so that it holds no lock and no value longer than it is used.
class SQLiteStatementUse {
public:
    explicit SQLiteStatementUse(SQLiteStatement& statement) : statement_(statement) {}
    SQLiteStatementUse(const SQLiteStatementUse&) = delete;
    SQLiteStatementUse& operator=(const SQLiteStatementUse&) = delete;
    ~SQLiteStatementUse() { statement_.reset(); }

private:
    SQLiteStatement& statement_;
};

} // namespace refhost
