#include "refhost/dbcheck/CheckProgram.h"

#include "refhost/CompanyDatabase.h"
#include "refhost/ErrorDisplay.h"
#include "refhost/Languages.h"
#include "refhost/database/Databases.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/dbcheck/CheckReport.h"
#include "refhost/dbcheck/StructureCheck.h"

#include <algorithm>
#include <array>
#include <ostream>

namespace refhost {

namespace {

enum ExitStatus { Fits = 0, DoesNotFit = 1, NotChecked = 2 };

/// The database is there and is refused: another program's, another version's, a script that is no procedure's.
bool isRefusedAsItIs(const EDatabaseError& error) {
    constexpr std::array<std::string_view, 3> c_Codes{"ML913", "ML914", "ML932"};
    return std::ranges::find(c_Codes, error.Code()) != c_Codes.end();
}

std::string userOf(const CheckCommandLine& commandLine) {
    return commandLine.user.empty() ? systemUser() : commandLine.user;
}

/// The address without a password.
std::string labelOf(const CheckCommandLine& commandLine) {
    CommandLine host;
    host.database = commandLine.database;
    return databaseLabel(host);
}

} // namespace

Findings inspect(const CheckCommandLine& commandLine) {
    try {
        const auto inspector = inspectDatabase(commandLine.database, userOf(commandLine),
                                               formatSettingsOf(commandLine.locale), commandLine.procedures);
        if (!inspector->hasSchema()) {
            throw refusal("ML922", {labelOf(commandLine)});
        }
        return checkStructure(contract(), *inspector);
    } catch (const EDatabaseError& error) {
        if (!isRefusedAsItIs(error) && error.Code() != "ML922") {
            throw;
        }
        return {{FindingKind::CompanyMissing, labelOf(commandLine), {}, {}, {}, error}};
    }
}

int runCheck(const CheckCommandLine& commandLine, const CheckStreams& streams) {
    const Languages languages(commandLine.language);
    try {
        const CheckReport report{labelOf(commandLine), inspect(commandLine)};
        streams.output << (commandLine.json ? reportJson(report, languages) : reportText(report, languages))
                       << std::flush;
        return report.findings.empty() ? Fits : DoesNotFit;
    } catch (...) {
        StreamErrorDisplay(streams.errors).show(describeError(std::current_exception(), languages));
        return NotChecked;
    }
}

} // namespace refhost
