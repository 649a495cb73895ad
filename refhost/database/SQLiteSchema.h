#pragma once

#include "refhost/database/SQLiteSession.h"

#include <cstdint>
#include <string>

namespace refhost {

/// The company's schema in a file: tables and views; the procedures are part of the program. The file carries our
/// application id and the version of its schema.

/// The version of the file's schema; 0 when the file has none yet. Throws EDatabaseError for a file of another program.
std::int64_t sqliteSchemaVersion(SQLiteSession& session);

/// Makes it in an empty file, in one transaction. Throws EDatabaseError, with nothing made.
void createSQLiteSchema(SQLiteSession& session);

/// Makes the tables with their indices and triggers; the caller has the transaction.
void createSQLiteTables(SQLiteSession& session);
/// Makes the views; likewise.
void createSQLiteViews(SQLiteSession& session);
/// Marks the file as ours, of this program's version and sorted by its rules; likewise.
void stampSQLiteVersion(SQLiteSession& session);

/// The whole number that a pragma gives; 0 when it gives none.
std::int64_t sqlitePragma(SQLiteSession& session, const std::string& name);

} // namespace refhost
