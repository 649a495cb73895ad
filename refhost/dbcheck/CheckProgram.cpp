#include "refhost/dbcheck/CheckProgram.h"

#include "host/AsciiCase.h"
#include "refhost/CompanyDatabase.h"
#include "refhost/ErrorDisplay.h"
#include "refhost/Languages.h"
#include "refhost/database/Databases.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/dbcheck/CheckReport.h"
#include "refhost/dbcheck/StructureCheck.h"

#include <algorithm>
#include <array>
#include <istream>
#include <ostream>

namespace refhost {

namespace {

enum ExitStatus { Fits = 0, DoesNotFit = 1, NotChecked = 2 };

/// The database is there and is refused: another program's, another version's, a script that is no procedure's.
bool isRefusedAsItIs(const EDatabaseError& error) {
    constexpr std::array<std::string_view, 3> c_Codes{"ML913", "ML914", "ML932"};
    return std::ranges::find(c_Codes, error.Code()) != c_Codes.end();
}

constexpr HostText c_Question{"MELVARKHOST\\DBCHECK\\QUESTION",
                              "Zkouška přidá do dokladu %1 řádky, které v něm zůstanou. Pokračovat? [a/n] "};
constexpr HostText c_Yes{"MELVARKHOST\\DBCHECK\\YES", "a"};
constexpr HostText c_Declined{"MELVARKHOST\\DBCHECK\\DECLINED", "Zkouška byla odmítnuta, databáze se nezkoušela."};
constexpr HostText c_NoItem{"MELVARKHOST\\DBCHECK\\NOITEM",
                            "Doklad ani jeho šablona nemají řádek, který by šlo uložit znovu. Zvolte jiný doklad."};
constexpr HostText c_MendFirst{"MELVARKHOST\\DBCHECK\\MENDFIRST", "Zkouška neproběhla. Nejprve opravte nálezy."};

bool isConfirmed(const CheckCommandLine& commandLine, const CheckStreams& streams, const Languages& languages) {
    if (commandLine.isConfirmed) {
        return true;
    }
    const QString document = QString::fromStdString(commandLine.screen + " " + std::to_string(commandLine.document));
    streams.errors << languages.label(c_Question).arg(document).toStdString() << std::flush;
    std::string answer;
    std::getline(streams.input, answer);
    return melvark::LowerAscii(answer) == languages.text(c_Yes);
}

/// Without identities everything else can still be tried.
bool mayBeTried(const Findings& findings) {
    return std::ranges::all_of(findings,
                               [](const Finding& finding) { return finding.Kind == FindingKind::SavesUnidentified; });
}

/// False, with the reason on the errors, when they were not tried.
bool tryProcedures(const CheckCommandLine& commandLine, const CheckStreams& streams, const Languages& languages,
                   CheckReport& report) {
    if (!mayBeTried(report.findings)) {
        streams.errors << languages.text(c_MendFirst) << std::endl;
        return true; // that it does not fit is known
    }
    if (!isConfirmed(commandLine, streams, languages)) {
        streams.errors << languages.text(c_Declined) << std::endl;
        return false;
    }
    const TFormatSettings settings = formatSettingsOf(commandLine.locale);
    const auto open = [&] {
        auto database = openDatabase(commandLine.database, userOf(commandLine), settings, OpenMode::Existing);
        if (!commandLine.procedures.empty()) {
            database->useProcedures(commandLine.procedures);
        }
        return database;
    };
    const auto first = open();
    const auto second = open();
    ExerciseOutcome outcome;
    const auto take = [&] {
        std::ranges::copy(outcome.Found, std::back_inserter(report.findings));
        report.written = outcome.Left;
    };
    report.isExercised = true;
    try {
        exercise(contract(), *exerciseKind(commandLine.screen), commandLine.document, settings, *first, *second,
                 outcome);
    } catch (...) {
        take();
        throw;
    }
    take();
    return true;
}

} // namespace

Findings inspect(const CheckCommandLine& commandLine) {
    try {
        const auto inspector = inspectDatabase(commandLine.database, userOf(commandLine),
                                               formatSettingsOf(commandLine.locale), commandLine.procedures);
        if (!inspector->hasSchema()) {
            throw refusal("ML922", {databaseLabel(commandLine)});
        }
        return checkStructure(contract(), *inspector);
    } catch (const EDatabaseError& error) {
        if (!isRefusedAsItIs(error) && error.Code() != "ML922") {
            throw;
        }
        return {{FindingKind::CompanyMissing, databaseLabel(commandLine), {}, {}, {}, error}};
    }
}

int runCheck(const CheckCommandLine& commandLine, const CheckStreams& streams) {
    const Languages languages(commandLine.language);
    CheckReport report{databaseLabel(commandLine), {}, false, {}, false};
    try {
        report.findings = inspect(commandLine);
        report.isComplete = commandLine.screen.empty() || tryProcedures(commandLine, streams, languages, report);
    } catch (const NothingToSave&) {
        streams.errors << languages.text(c_NoItem) << std::endl;
    } catch (...) {
        StreamErrorDisplay(streams.errors).show(describeError(std::current_exception(), languages));
    }
    // What was found and written before the check broke off is told all the same.
    if (report.isComplete || !report.findings.empty() || !report.written.empty()) {
        streams.output << (commandLine.json ? reportJson(report, languages) : reportText(report, languages))
                       << std::flush;
    }
    if (!report.isComplete) {
        return NotChecked;
    }
    return report.findings.empty() ? Fits : DoesNotFit;
}

} // namespace refhost
