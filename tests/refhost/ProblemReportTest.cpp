#include "refhost/ProblemReport.h"

#include "host/Exceptions.h"
#include "refhost/CommandLine.h"
#include "refhost/RecentCalls.h"
#include "tests/support/TemporaryFolder.h"

#include <QByteArray>

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace refhost {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// A command line with everything in it that is nobody else's business.
CommandLine secretCommandLine() {
    CommandLine commandLine;
    commandLine.database = "postgresql:host=tajny-server dbname=firma user=novakova password=tajne-heslo";
    commandLine.user = "novakova";
    commandLine.locale = "en_GB";
    commandLine.language = "en";
    commandLine.procedures = "/home/novakova/procedury";
    commandLine.traceFile = "/home/novakova/stopa";
    commandLine.logFile = "/home/novakova/zapis";
    commandLine.subject = "DODAK,SABLONA";
    return commandLine;
}

TEST(ProblemReport, TellsVersionsEngineSettingsAndTheLastCalls) {
    RecentCalls calls;
    calls.add(R"({"call":"MELVARKEDITORDodakInit"})");
    calls.add(R"({"error":"ML010"})");

    const std::string report = problemReport({.commandLine = secretCommandLine(),
                                              .engine = "PostgreSQL 15.9",
                                              .hasModule = true,
                                              .hasLog = false,
                                              .calls = calls});

    EXPECT_THAT(report, AllOf(StartsWith("Melvark, report on a problem, 20"), HasSubstr(versionText("melvark-host")),
                              HasSubstr("engine PostgreSQL 15.9\n")));
    EXPECT_THAT(report,
                HasSubstr("locale en_GB\nlanguage en\nmodule yes\nreplaced procedures yes\nlog no\ntrace yes\n"));
    EXPECT_THAT(report, testing::EndsWith("\n\nlast calls 2\n{\"call\":\"MELVARKEDITORDodakInit\"}\n"
                                          "{\"error\":\"ML010\"}\n"));
}

TEST(ProblemReport, HasNothingOfConnectionPeopleAndFiles) {
    const std::string report = problemReport({.commandLine = secretCommandLine(),
                                              .engine = "PostgreSQL 15.9",
                                              .hasModule = true,
                                              .hasLog = true,
                                              .calls = RecentCalls()});
    for (const char* secret : {"tajn", "heslo", "firma", "novakova", "postgresql:", "/home", "DODAK"}) {
        EXPECT_THAT(report, Not(HasSubstr(secret)));
    }
}

TEST(ProblemReport, EachLiesInAFileOfItsOwnThatOnlyItsOwnerCanRead) {
    const TemporaryFolder folder("problem-report");
    const std::string first = writeProblemReport(folder.path().string(), "one\n");
    const std::string second = writeProblemReport(folder.path().string(), "two\n");

    EXPECT_NE(first, second);
    EXPECT_THAT(first, StartsWith((folder.path() / "melvark-report-20").string()));
    std::ostringstream content;
    content << std::ifstream(first).rdbuf() << std::ifstream(second).rdbuf();
    EXPECT_EQ(content.str(), "one\ntwo\n");
    EXPECT_EQ(std::filesystem::status(first).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST(ProblemReport, AFolderThatTakesNoneIsNamed) {
    try {
        writeProblemReport("/proc", "one\n");
        FAIL() << "written";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Code(), "ML936");
        EXPECT_THAT(error.Message(), StartsWith("Hlášení o chybě nelze zapsat do složky „/proc“."));
    }
}

TEST(ProblemReport, LiesAmongTheUsersDocumentsOrInHisHome) {
    const TemporaryFolder home("problem-report");
    const QByteArray before = qgetenv("HOME");
    qputenv("HOME", home.path().c_str());
    EXPECT_EQ(reportFolder(), home.path().string());
    std::filesystem::create_directory(home.path() / "Documents");
    EXPECT_EQ(reportFolder(), (home.path() / "Documents").string());
    qputenv("HOME", before);
}

} // namespace

} // namespace refhost
