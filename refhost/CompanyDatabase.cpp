#include "refhost/CompanyDatabase.h"

#include "refhost/OwnFolder.h"
#include "refhost/database/Databases.h"
#include "refhost/database/SampleCompany.h"
#include "refhost/database/SchemaVersion.h"

#include <QRegularExpression>
#include <QStandardPaths>

#include <filesystem>

namespace refhost {

namespace {

constexpr std::string_view c_fileScheme = "sqlite:";

std::string urlOf(const CompanyOptions& options) {
    return options.database.empty() ? std::string(c_fileScheme) + defaultDatabaseFile() : options.database;
}

void makeDefaultFolder() {
    makeOwnFolder(std::filesystem::path(defaultDatabaseFile()).parent_path());
}

/// All in one transaction: a program that is interrupted leaves nothing that looks like a company.
void makeCompany(Database& database, const CommandLine& commandLine) {
    database.createSchema();
    if (!commandLine.empty) {
        createSampleCompany(database, commandLine.lines);
    }
}

/// The user's own database, made or upgraded when that is needed.
std::unique_ptr<Database> openOwnDatabase(const CommandLine& commandLine, const TFormatSettings& settings,
                                          const UpgradeListener& upgraded) {
    const std::string url = urlOf(commandLine);
    makeDefaultFolder();
    if (std::filesystem::exists(defaultDatabaseFile())) {
        const std::int64_t version = schemaVersionOf(url);
        if (version != 0 && version < c_SchemaVersion) {
            upgraded(upgradeDatabase(url));
        }
    }
    auto database = openDatabase(url, userOf(commandLine), settings, OpenMode::Create);
    if (!database->hasSchema()) {
        database->inOneTransaction([&] {
            // Asked again: another program that was started at the same moment may have made it meanwhile.
            if (!database->hasSchema()) {
                makeCompany(*database, commandLine);
            }
        });
    }
    return database;
}

} // namespace

std::string defaultDatabaseFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (folder + QStringLiteral("/melvark/company.sqlite")).toStdString();
}

std::unique_ptr<Database> openCompanyDatabase(const CommandLine& commandLine, const TFormatSettings& settings,
                                              const UpgradeListener& upgraded) {
    auto database = commandLine.database.empty()
                        ? openOwnDatabase(commandLine, settings, upgraded)
                        : openDatabase(urlOf(commandLine), userOf(commandLine), settings, OpenMode::Existing);
    if (!commandLine.procedures.empty()) {
        database->useProcedures(commandLine.procedures);
    }
    return database;
}

void createCompanyDatabase(const CommandLine& commandLine, const TFormatSettings& settings) {
    if (commandLine.database.empty()) {
        makeDefaultFolder();
    }
    const auto database = openDatabase(urlOf(commandLine), userOf(commandLine), settings, OpenMode::Create);
    database->inOneTransaction([&] { makeCompany(*database, commandLine); });
}

UpgradeReport upgradeCompanyDatabase(const CommandLine& commandLine) {
    return upgradeDatabase(urlOf(commandLine));
}

std::string databaseLabel(const CompanyOptions& options) {
    const std::string url = urlOf(options);
    if (url.starts_with(c_fileScheme)) {
        return url.substr(c_fileScheme.size());
    }
    static const QRegularExpression password(QStringLiteral("\\bpassword\\s*=\\s*('([^'\\\\]|\\\\.)*'|\\S+)\\s*"));
    static const QRegularExpression inAddress(QStringLiteral("(//[^/@:]*):[^/@]*@"));
    return QString::fromStdString(url)
        .remove(password)
        .replace(inAddress, QStringLiteral("\\1@"))
        .trimmed()
        .toStdString();
}

} // namespace refhost
