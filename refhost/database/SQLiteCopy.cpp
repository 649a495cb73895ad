#include "refhost/database/SQLiteCopy.h"

#include "refhost/database/PrivateFile.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteSession.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace refhost {

namespace {

/// Makes the file under the first name that is free.
std::string makeEmptyFile(const std::string& wanted) {
    std::string name = wanted;
    for (int number = 2; !makePrivateFile(name); ++number) {
        if (errno != EEXIST) {
            throw refusal("ML934", {name}, std::generic_category().message(errno), TDatabaseCause::Failure);
        }
        name = wanted + "-" + std::to_string(number);
    }
    return name;
}

void copyPages(const std::string& file, const std::string& copy) {
    constexpr std::chrono::seconds c_Patience{30};
    const SQLiteSession source(file, {}, TFormatSettings{}, OpenMode::Existing, c_Patience);
    SQLiteSession target(copy, {}, TFormatSettings{}, OpenMode::Existing, c_Patience);
    constexpr int c_AllPages = -1;
    sqlite3_backup* backup = sqlite3_backup_init(target.handle(), "main", source.handle(), "main");
    if (backup == nullptr) {
        target.fail(sqlite3_errcode(target.handle()), "backup");
    }
    sqlite3_backup_step(backup, c_AllPages);
    if (const int status = sqlite3_backup_finish(backup); status != SQLITE_OK) {
        target.fail(status, "backup");
    }
}

} // namespace

std::string copySQLiteFile(const std::string& file, std::string_view suffix) {
    const std::string copy = makeEmptyFile(file + std::string(suffix));
    try {
        copyPages(file, copy);
    } catch (const EDatabaseError&) {
        std::error_code ignored; // the failure of the copy is what matters
        std::filesystem::remove(copy, ignored);
        throw;
    }
    return copy;
}

} // namespace refhost
