#include "refhost/CompanyDatabase.h"

#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "refhost/database/SampleCompany.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <pwd.h>
#include <unistd.h>

namespace refhost {

namespace {

constexpr std::string_view c_fileScheme = "sqlite:";

std::string systemUser() {
    const passwd* entry = getpwuid(geteuid());
    return entry ? entry->pw_name : std::to_string(geteuid());
}

std::string userOf(const CommandLine& commandLine) {
    return commandLine.user.empty() ? systemUser() : commandLine.user;
}

std::string urlOf(const CommandLine& commandLine) {
    return commandLine.database.empty() ? std::string(c_fileScheme) + defaultDatabaseFile() : commandLine.database;
}

void fill(const std::string& url, const CommandLine& commandLine, const TFormatSettings& settings) {
    const auto database = openDatabase(url, userOf(commandLine), settings, OpenMode::Create);
    database->createSchema();
    createSampleCompany(*database, commandLine.lines);
}

/// The company is made under another name and takes the file's name when it is complete: a start that was interrupted
/// leaves nothing that looks like a database.
void createOwnDatabase(const CommandLine& commandLine, const TFormatSettings& settings) {
    const QString file = QString::fromStdString(defaultDatabaseFile());
    const QString unfinished = file + QStringLiteral(".part");
    QDir().mkpath(QFileInfo(file).path());
    for (const char16_t* suffix : {u"", u"-wal", u"-shm", u"-journal"}) {
        QFile::remove(unfinished + QString::fromUtf16(suffix));
    }
    fill(std::string(c_fileScheme) + unfinished.toStdString(), commandLine, settings);
    if (!QFile::rename(unfinished, file)) {
        throw EInOutError("Databázi „" + file.toStdString() + "“ nelze založit. Zkontrolujte oprávnění ke složce.");
    }
}

} // namespace

std::string defaultDatabaseFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (folder + QStringLiteral("/melvark/company.sqlite")).toStdString();
}

std::unique_ptr<Database> openCompanyDatabase(const CommandLine& commandLine, const TFormatSettings& settings) {
    const bool isOwn = commandLine.database.empty();
    if (isOwn && !QFileInfo::exists(QString::fromStdString(defaultDatabaseFile()))) {
        createOwnDatabase(commandLine, settings);
    }
    return openDatabase(urlOf(commandLine), userOf(commandLine), settings, OpenMode::Existing);
}

void createCompanyDatabase(const CommandLine& commandLine, const TFormatSettings& settings) {
    if (commandLine.database.empty()) {
        QDir().mkpath(QFileInfo(QString::fromStdString(defaultDatabaseFile())).path());
    }
    fill(urlOf(commandLine), commandLine, settings);
}

std::string databaseLabel(const CommandLine& commandLine) {
    const std::string url = urlOf(commandLine);
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
