#include "refhost/database/SQLiteStatement.h"

#include "host/AsciiCase.h"

#include <utility>

namespace refhost {

namespace {

int bindValue(sqlite3_stmt* statement, int index, const TDbValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return sqlite3_bind_int64(statement, index, *number);
    }
    if (const auto* flag = std::get_if<bool>(&value)) {
        return sqlite3_bind_int(statement, index, *flag ? 1 : 0);
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return sqlite3_bind_double(statement, index, *number);
    }
    if (const auto* text = std::get_if<AnsiString>(&value)) {
        return sqlite3_bind_text64(statement, index, text->data(), text->size(), SQLITE_STATIC, SQLITE_UTF8);
    }
    return sqlite3_bind_null(statement, index);
}

/// Makes the value where it stays. A value of a row may be read so as long as one thread alone uses the connection.
void append(std::vector<TDbValue>& values, sqlite3_value* value) {
    switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
        values.emplace_back();
        break;
    case SQLITE_INTEGER:
        values.emplace_back(std::int64_t{sqlite3_value_int64(value)});
        break;
    case SQLITE_FLOAT:
        values.emplace_back(sqlite3_value_double(value));
        break;
    default: {
        const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
        values.emplace_back(std::in_place_type<AnsiString>, text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
    }
    }
}

} // namespace

SQLiteStatement::SQLiteStatement(SQLiteSession& session, std::string_view& sql) : session_(&session) {
    sqlite3_stmt* prepared = nullptr;
    const char* tail = nullptr;
    const int status = sqlite3_prepare_v3(session.handle(), sql.data(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &prepared, &tail);
    handle_.reset(prepared);
    if (status != SQLITE_OK) {
        session.fail(status, sql);
    }
    sql.remove_prefix(static_cast<std::size_t>(tail - sql.data()));
}

std::string SQLiteStatement::parameterName(int index) const {
    const char* name = sqlite3_bind_parameter_name(handle_.get(), index);
    return name == nullptr ? std::string() : std::string(name + 1);
}

void SQLiteStatement::bind(int index, const TDbValue& value) {
    if (const int status = bindValue(handle_.get(), index, value); status != SQLITE_OK) {
        session_->fail(status, text());
    }
}

void SQLiteStatement::bind(int index, sqlite3_value* value) {
    if (const int status = sqlite3_bind_value(handle_.get(), index, value); status != SQLITE_OK) {
        session_->fail(status, text());
    }
}

bool SQLiteStatement::step() {
    const int status = sqlite3_step(handle_.get());
    if (status == SQLITE_ROW) {
        return true;
    }
    if (status != SQLITE_DONE) {
        session_->fail(status, text());
    }
    return false;
}

void SQLiteStatement::reset() noexcept {
    sqlite3_reset(handle_.get());
    sqlite3_clear_bindings(handle_.get());
}

std::vector<std::string> SQLiteStatement::columns() const {
    std::vector<std::string> names;
    for (int i = 0; i < columnCount(); ++i) {
        names.push_back(melvark::UpperAscii(sqlite3_column_name(handle_.get(), i)));
    }
    return names;
}

std::vector<TDbValue> SQLiteStatement::row() const {
    std::vector<TDbValue> values;
    values.reserve(static_cast<std::size_t>(columnCount()));
    for (int i = 0; i < columnCount(); ++i) {
        append(values, engineValue(i));
    }
    return values;
}

TDbValue SQLiteStatement::value(int column) const {
    return std::move(row().at(static_cast<std::size_t>(column)));
}

std::string SQLiteStatement::text() const {
    const char* sql = sqlite3_sql(handle_.get());
    return sql == nullptr ? std::string() : std::string(sql);
}

std::vector<SQLiteStatement> prepareStatements(SQLiteSession& session, std::string_view script) {
    std::vector<SQLiteStatement> statements;
    while (!script.empty()) {
        SQLiteStatement statement(session, script);
        if (!statement.isEmpty()) {
            statements.push_back(std::move(statement));
        }
    }
    return statements;
}

} // namespace refhost
