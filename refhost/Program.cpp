#include "refhost/Program.h"

#include "refhost/CompanyDatabase.h"
#include "refhost/ErrorDialog.h"
#include "refhost/HostTexts.h"
#include "refhost/Json.h"
#include "refhost/Languages.h"
#include "refhost/Palette.h"
#include "refhost/ProgramStyle.h"
#include "refhost/RunRecords.h"
#include "refhost/TracingConnection.h"
#include "refhost/WindowedHost.h"
#include "refhost/commands/DataCommands.h"
#include "refhost/database/SchemaVersion.h"

#include <QApplication>

#include <exception>
#include <iostream>
#include <optional>

namespace refhost {

namespace {

constexpr int c_failed = 2;

bool hasWindows(Command command) {
    return command == Command::OpenHost || command == Command::Execute;
}

/// What the user is to know about an upgrade of his own database.
std::string upgradeNote(const UpgradeReport& report, const Languages& languages) {
    return languages.label(texts::databaseUpgraded).arg(QString::fromStdString(report.Copy)).toStdString();
}

int runInWindows(const CommandLine& commandLine, const Languages& languages, RunRecords& records) {
    const TFormatSettings settings = formatSettingsOf(commandLine.locale);
    std::string note;
    const auto database = openCompanyDatabase(
        commandLine, settings, [&](const UpgradeReport& report) { note = upgradeNote(report, languages); });
    WindowedHost host(commandLine, *database, settings, languages, records);
    if (!note.empty() && commandLine.command == Command::OpenHost) {
        host.tell(note);
    } else if (!note.empty()) {
        std::cerr << note << '\n'; // a script must not wait for somebody to close a box
    }
    return commandLine.command == Command::Execute ? host.executeOnce() : host.openMainWindow();
}

std::string upgradeJson(const UpgradeReport& report) {
    std::string kept;
    for (const std::string& name : report.Kept) {
        kept += (kept.empty() ? "" : ",") + jsonString(name);
    }
    return JsonObject()
        .add("from", report.From)
        .add("to", c_SchemaVersion)
        .add("copy", report.Copy.empty() ? TDbValue() : TDbValue(report.Copy))
        .addJson("kept", "[" + kept + "]")
        .text();
}

void runWithoutWindows(const CommandLine& commandLine, const Languages& languages, RunRecords& records) {
    const TFormatSettings settings = formatSettingsOf(commandLine.locale);
    if (commandLine.command == Command::CreateDatabase) {
        createCompanyDatabase(commandLine, settings);
        return;
    }
    if (commandLine.command == Command::UpgradeDatabase) {
        std::cout << upgradeJson(upgradeCompanyDatabase(commandLine)) << '\n';
        return;
    }
    const auto database = openCompanyDatabase(commandLine, settings, [&](const UpgradeReport& report) {
        std::cerr << upgradeNote(report, languages) << '\n';
    });
    TracingConnection logged(*database, records.commands());
    runDataCommand(
        commandLine,
        {.connection = logged, .settings = settings, .languages = languages, .input = std::cin, .output = std::cout});
}

/// A host that cannot even open was started by a click as often as from a terminal, so that it says why in both places.
int reportFailure(const CommandLine& commandLine, const Languages& languages, RunRecords* records) {
    const ErrorReport report = describeError(std::current_exception(), languages);
    if (records != nullptr) {
        records->failed(report);
    }
    StreamErrorDisplay(std::cerr).show(report);
    if (commandLine.command == Command::OpenHost) {
        DialogErrorDisplay(languages).show(report);
    }
    return c_failed;
}

} // namespace

int runCommand(const CommandLine& commandLine, const Languages& languages) {
    std::optional<RunRecords> records;
    try {
        records.emplace(commandLine);
        if (const auto log = chosenLog(commandLine)) {
            records->startLog(*log);
        }
        if (hasWindows(commandLine.command)) {
            return runInWindows(commandLine, languages, *records);
        }
        runWithoutWindows(commandLine, languages, *records);
        return 0;
    } catch (...) {
        return reportFailure(commandLine, languages, records ? &*records : nullptr);
    }
}

int runProgram(const CommandLine& commandLine, int& argc, char** argv) {
    Languages languages(commandLine.language);
    if (!hasWindows(commandLine.command)) {
        return runCommand(commandLine, languages);
    }

    QApplication::setStyle(new ProgramStyle); // which the application owns
    QApplication application(argc, argv);
    QApplication::setPalette(completePalette(QApplication::palette()));
    // A dialog may be the only window for a while; closing it must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    languages.installQtTexts(application);
    return runCommand(commandLine, languages);
}

} // namespace refhost
