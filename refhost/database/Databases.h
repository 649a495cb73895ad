#pragma once

#include "host/FormatSettings.h"
#include "refhost/database/Database.h"
#include "refhost/database/DatabaseInspector.h"
#include "refhost/database/OpenMode.h"
#include "refhost/database/UpgradeReport.h"

#include <memory>
#include <string>

namespace refhost {

/// Connects to the database that the address names: "sqlite:FILE" or "postgresql:CONNINFO" (key=value words).
///
/// `user` is whose settings the procedures use on SQLite; a server takes the connecting role and ignores it.
/// `settings` give the decimal separator and the date order in which results are written and texts are read.
/// Throws EDatabaseError, a sentence for the user, when the address names no engine or the database cannot be used:
/// file missing, locked, read-only, damaged, of another program or another version; server not reachable or the role
/// refused.
std::unique_ptr<Database> openDatabase(const std::string& url, const std::string& user, const TFormatSettings& settings,
                                       OpenMode mode);

/// Opens the database for looking at it only (DatabaseInspector.h), `procedures` being a folder of scripts for SQLite
/// or empty. Throws EDatabaseError like openDatabase.
std::unique_ptr<DatabaseInspector> inspectDatabase(const std::string& url, const std::string& user,
                                                   const TFormatSettings& settings, const std::string& procedures);

/// The version of the database's schema, whichever it is; 0 when it has none. Throws EDatabaseError.
std::int64_t schemaVersionOf(const std::string& url);

/// Brings the database that the address names to this program's version; nothing when it has that already.
/// SQLiteUpgrade.h and PostgreSQLUpgrade.h tell what that means on each engine. Throws EDatabaseError with nothing
/// changed.
UpgradeReport upgradeDatabase(const std::string& url);

} // namespace refhost
