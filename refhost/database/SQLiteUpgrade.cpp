#include "refhost/database/SQLiteUpgrade.h"

#include "refhost/database/DecimalFunctions.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteCopy.h"
#include "refhost/database/SQLiteFunctions.h"
#include "refhost/database/SQLiteSchema.h"
#include "refhost/database/SQLiteTableRebuild.h"
#include "refhost/database/SchemaVersion.h"
#include "refhost/database/UpgradeSteps.h"

#include <filesystem>

namespace refhost {

namespace {

constexpr std::chrono::seconds c_Patience{30};

/// Refuses a version that cannot be upgraded; false when there is nothing to do.
bool isOlder(SQLiteSession& session, std::int64_t version) {
    if (version == 0) {
        throw refusal("ML922", {session.file()});
    }
    if (version > c_SchemaVersion) {
        throw otherVersionError(session.file(), version);
    }
    return version < c_SchemaVersion;
}

} // namespace

UpgradeReport upgradeSQLiteFile(const std::string& file) {
    SQLiteSession session(file, {}, TFormatSettings{}, OpenMode::Existing, c_Patience);
    UpgradeReport report;
    report.From = sqliteSchemaVersion(session);
    if (!isOlder(session, report.From)) {
        return report;
    }
    registerValueFunctions(session);
    registerCzech(session);
    registerDecimalFunctions(session.handle());
    // Both belong to the way in which tables are made anew, and neither can be changed within a transaction.
    session.execute("pragma foreign_keys = off");
    session.execute("pragma legacy_alter_table = on");

    SQLiteTransaction transaction(session, SQLiteTransaction::Kind::Writing);
    // Asked again now that nobody else can write: another upgrade may have been first.
    report.From = sqliteSchemaVersion(session);
    if (!isOlder(session, report.From)) {
        return report;
    }
    report.Copy = copySQLiteFile(file, ".version-" + std::to_string(report.From));
    try {
        rebuildSQLiteTables(session, upgradeSteps(sqliteFiles(), report.From));
        stampSQLiteVersion(session);
        transaction.commit();
    } catch (const EDatabaseError&) {
        std::error_code ignored; // nothing has changed, so nobody needs the copy
        std::filesystem::remove(report.Copy, ignored);
        throw;
    }
    return report;
}

} // namespace refhost
