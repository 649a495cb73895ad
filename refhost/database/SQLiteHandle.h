#pragma once

#include <memory>
#include <sqlite3.h>

namespace refhost {

struct SQLiteDeleter {
    /// Closing waits for no statement: those that are left are closed with it ("zombie" close).
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

using SQLiteHandle = std::unique_ptr<sqlite3, SQLiteDeleter>;
using SQLiteStatementHandle = std::unique_ptr<sqlite3_stmt, SQLiteDeleter>;

} // namespace refhost
