#include "refhost/database/SQLiteErrors.h"

#include "refhost/database/RefusalTable.h"

#include <sqlite3.h>

namespace refhost {

namespace {

/// Which row of the table of refusals an error of the engine is told by. Each names the file.
struct Failure {
    int Code; ///< The engine's code, either one that stands for a whole class or an extended one.
    std::string_view Refusal;
};

constexpr Failure c_Failures[] = {
    {SQLITE_BUSY, "ML910"},    {SQLITE_LOCKED, "ML910"},     {SQLITE_READONLY, "ML911/file"},
    {SQLITE_CORRUPT, "ML912"}, {SQLITE_NOTADB, "ML912"},     {SQLITE_CANTOPEN, "ML915"},
    {SQLITE_PERM, "ML915"},    {SQLITE_IOERR, "ML916/disk"}, {SQLITE_CONSTRAINT_FOREIGNKEY, "ML925"},
    {SQLITE_FULL, "ML923"},
};

constexpr std::string_view c_OtherFailure = "ML930";

} // namespace

ESQLiteError::~ESQLiteError() = default;

bool ESQLiteError::isBrokenRule() const {
    return (code_ & 0xFF) == SQLITE_CONSTRAINT;
}

ESQLiteError sqliteError(int code, sqlite3* database, std::string_view file, std::string_view statement) {
    const std::string words = database != nullptr ? sqlite3_errmsg(database) : sqlite3_errstr(code);
    std::string details = "SQLite " + std::to_string(code) + ": " + words;
    details.append("\n").append(statement);
    if (code == SQLITE_CONSTRAINT_TRIGGER) {
        return {refusal(words, {}, details), code}; // our triggers say the key of a refusal and nothing else
    }
    std::string_view key = c_OtherFailure;
    for (const Failure& candidate : c_Failures) {
        if (candidate.Code == code || candidate.Code == (code & 0xFF)) {
            key = candidate.Refusal;
        }
    }
    return {refusal(key, {std::string(file)}, std::move(details), TDatabaseCause::Failure), code};
}

} // namespace refhost
