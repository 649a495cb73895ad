#include "tests/database/PrivateServer.h"
#include "tests/database/ServerCompany.h"
#include "tests/session/HostSession.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/TinyCompany.h"
#include "tests/session/WindowTitles.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::Not;

/// The only report in the session's home.
std::string onlyReport(const std::filesystem::path& home) {
    std::vector<std::filesystem::path> reports;
    for (const auto& entry : std::filesystem::directory_iterator(home)) {
        if (entry.path().filename().string().starts_with("melvark-report-")) {
            reports.push_back(entry.path());
        }
    }
    EXPECT_EQ(reports.size(), 1u);
    std::ostringstream content;
    for (const auto& report : reports) {
        content << std::ifstream(report).rdbuf();
    }
    return content.str();
}

/// A clerk of a server, whose words have a password, types, is refused and reports it.
TEST(ProblemReportSession, FromAnErrorHasNeitherPasswordNorConnectionNorWhatWasTyped) {
    const refhost::ServerCompany company;
    company.open();
    const std::string words = refhost::PrivateServer::instance().address(company.name(), "novakova");
    HostSession session("postgresql:" + words + " password=velmi-tajne");
    session.startEditor(QStringLiteral("DODAK,DODOBJ"), 1);
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.type(QStringLiteral("OV7777-123456"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("alt+h")});
    session.waitForWindow(QStringLiteral("Upozornění"));
    const std::string report = onlyReport(session.home());
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.press({QStringLiteral("Escape")});
    EXPECT_EQ(session.finish(), 1);

    EXPECT_THAT(report, HasSubstr("engine PostgreSQL 1"));
    EXPECT_THAT(report, HasSubstr(R"("call":"MELVARKEDITORDodakCheckZdrojObjednavka")"));
    EXPECT_THAT(report, HasSubstr(R"("error":"ML021")"));
    for (const std::string& secret : {std::string("velmi-tajne"), std::string("novakova"), company.name(),
                                      std::string("host="), std::string("OV7777"), std::string("123456")}) {
        EXPECT_THAT(report, Not(HasSubstr(secret)));
    }
}

using ReportFromMainWindow = OnBothEngines;

TEST_P(ReportFromMainWindow, IsWrittenByItsKeyAndNamesTheEngine) {
    const std::string company = tinycompany::on(GetParam());
    HostSession session(company);
    session.start({});
    session.waitForWindow(c_MainTitle);
    session.press({QStringLiteral("ctrl+shift+h")});
    session.waitForWindow(QStringLiteral("Upozornění"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_MainTitle);
    session.press({QStringLiteral("ctrl+q")});
    EXPECT_EQ(session.finish(), 0);
    const std::string report = onlyReport(session.home());
    EXPECT_THAT(report, HasSubstr("engine " + refhost::engineName(GetParam()) + " "));
    EXPECT_THAT(report, HasSubstr("module yes\n"));
    EXPECT_THAT(report, Not(HasSubstr(company.substr(company.find(':') + 1))));
}

INSTANTIATE_TEST_SUITE_P(Engines, ReportFromMainWindow, c_BothEngines, engineOf);

} // namespace
