#pragma once

#include "refhost/database/SQLiteSession.h"

#include <cstdint>
#include <new>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace refhost {

/// One call of an SQL function of ours: its arguments and the way to give its result.
class SQLiteCall {
public:
    SQLiteCall(sqlite3_context* context, std::span<sqlite3_value*> arguments)
        : context_(context), arguments_(arguments) {}

    SQLiteSession& session() const { return *static_cast<SQLiteSession*>(sqlite3_user_data(context_)); }
    std::size_t count() const { return arguments_.size(); }
    sqlite3_value* argument(std::size_t index) const { return arguments_[index]; }
    std::optional<std::string> text(std::size_t index) const {
        const auto characters = view(index);
        return characters ? std::optional<std::string>(*characters) : std::nullopt;
    }
    /// The same without a copy, as long as the call.
    std::optional<std::string_view> view(std::size_t index) const {
        if (index >= arguments_.size() || sqlite3_value_type(arguments_[index]) == SQLITE_NULL) {
            return std::nullopt;
        }
        const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(arguments_[index]));
        if (bytes == nullptr) {
            throw std::bad_alloc();
        }
        return std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(arguments_[index])));
    }
    int integer(std::size_t index) const { return sqlite3_value_int(arguments_[index]); }

    void give(std::string_view text) const {
        sqlite3_result_text64(context_, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    void give(std::int32_t number) const { sqlite3_result_int(context_, number); }
    void give(sqlite3_value* value) const { sqlite3_result_value(context_, value); }

private:
    sqlite3_context* context_;
    std::span<sqlite3_value*> arguments_;
};

/// Runs `body` for a call of the engine, through whose C code no exception may travel: a refusal is kept in the
/// session, which throws it once the engine has returned.
template <typename Body>
void guardSQLiteCall(SQLiteSession& session, sqlite3_context* context, Body body) noexcept {
    try {
        body();
    } catch (const EDatabaseError& error) {
        session.keepFailure(error);
        sqlite3_result_error(context, error.what(), -1);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception& error) {
        sqlite3_result_error(context, error.what(), -1);
    }
}

/// The engine's function for one that is written on SQLiteCall; the session is its user data.
template <void (*function)(const SQLiteCall&)>
void sqliteFunction(sqlite3_context* context, int count, sqlite3_value** values) {
    const SQLiteCall call(context, std::span(values, static_cast<std::size_t>(count)));
    guardSQLiteCall(call.session(), context, [&call] { function(call); });
}

} // namespace refhost
