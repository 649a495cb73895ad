#include "refhost/database/Databases.h"

#include "refhost/database/ParameterValues.h"
#include "refhost/database/PostgreSQLConnection.h"
#include "refhost/database/PostgreSQLInspector.h"
#include "refhost/database/PostgreSQLSchema.h"
#include "refhost/database/PostgreSQLUpgrade.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteConnection.h"
#include "refhost/database/SQLiteInspector.h"
#include "refhost/database/SQLiteSchema.h"
#include "refhost/database/SQLiteUpgrade.h"

namespace refhost {

namespace {

constexpr std::string_view c_SQLite = "sqlite:";
constexpr std::string_view c_PostgreSQL = "postgresql:";

/// How long one waits for another user's save, and for another program that makes the company in the same file.
constexpr std::chrono::seconds c_Patience{5};
constexpr std::chrono::seconds c_MakingTime{60};

[[noreturn]] void refuseAddress(const std::string& url) {
    throw refusal("ML915/address", {shownText(url)});
}

} // namespace

std::unique_ptr<Database> openDatabase(const std::string& url, const std::string& user, const TFormatSettings& settings,
                                       OpenMode mode) {
    if (url.starts_with(c_SQLite)) {
        return std::make_unique<SQLiteConnection>(url.substr(c_SQLite.size()), user, settings, mode,
                                                  mode == OpenMode::Create ? c_MakingTime : c_Patience);
    }
    if (url.starts_with(c_PostgreSQL)) {
        return std::make_unique<PostgreSQLConnection>(url.substr(c_PostgreSQL.size()), settings);
    }
    refuseAddress(url);
}

std::unique_ptr<DatabaseInspector> inspectDatabase(const std::string& url, const std::string& user,
                                                   const TFormatSettings& settings, const std::string& procedures) {
    if (url.starts_with(c_SQLite)) {
        return std::make_unique<SQLiteInspector>(url.substr(c_SQLite.size()), user, settings, procedures);
    }
    if (url.starts_with(c_PostgreSQL)) {
        return std::make_unique<PostgreSQLInspector>(url.substr(c_PostgreSQL.size()), settings, procedures);
    }
    refuseAddress(url);
}

std::int64_t schemaVersionOf(const std::string& url) {
    if (url.starts_with(c_SQLite)) {
        SQLiteSession session(url.substr(c_SQLite.size()), {}, TFormatSettings{}, OpenMode::Existing, c_MakingTime);
        return sqliteSchemaVersion(session);
    }
    if (url.starts_with(c_PostgreSQL)) {
        PostgreSQLSession session(url.substr(c_PostgreSQL.size()), TFormatSettings{});
        return postgresqlSchemaVersion(session);
    }
    refuseAddress(url);
}

UpgradeReport upgradeDatabase(const std::string& url) {
    if (url.starts_with(c_SQLite)) {
        return upgradeSQLiteFile(url.substr(c_SQLite.size()));
    }
    if (url.starts_with(c_PostgreSQL)) {
        PostgreSQLSession session(url.substr(c_PostgreSQL.size()), TFormatSettings{});
        return upgradePostgreSQLSchema(session);
    }
    refuseAddress(url);
}

} // namespace refhost
