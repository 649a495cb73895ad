#include "tests/session/HostSession.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/TinyCompany.h"
#include "tests/session/WindowTitles.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <set>
#include <sstream>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

std::filesystem::path logFile() {
    return std::filesystem::path(std::getenv("XDG_STATE_HOME")) / "melvark" / "host.log";
}

std::string contentOf(const std::filesystem::path& file) {
    std::ostringstream content;
    content << std::ifstream(file).rdbuf();
    return content.str();
}

QJsonObject objectOf(const std::string& line) {
    return QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
}

/// A clerk looks an order up, is refused, picks it, types a quantity and a price, and saves.
void work(HostSession& session) {
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.type(QStringLiteral("OV2027-000009"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.press({QStringLiteral("F5")});
    session.waitForWindow(QStringLiteral("Výběr ze seznamu"));
    session.type(QStringLiteral("mlyn"));
    session.press({QStringLiteral("Return")});
    session.waitForTrace(R"("lookup":)");
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_NoteTitle);
    session.type(QStringLiteral("7391,25"));
    session.press({QStringLiteral("Return")});
    session.waitForTrace("MELVARKEDITORDodakVypocetCen");
    session.type(QStringLiteral("6402"));
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
}

/// Every text that the trace says was sent, picked or shown.
std::set<std::string> valuesOf(const std::vector<std::string>& trace) {
    std::set<std::string> values;
    for (const std::string& line : trace) {
        const QJsonObject call = objectOf(line);
        for (const QJsonValue param : call.value(u"params").toArray()) {
            values.insert(param.toArray().at(1).toString().toStdString());
        }
        for (const char16_t* member : {u"error", u"picked", u"message", u"box"}) {
            values.insert(call.value(QString::fromUtf16(member)).toString().toStdString());
        }
    }
    values.erase(std::string()); // what is no text
    return values;
}

class LogSession : public OnBothEngines {
protected:
    LogSession() { std::filesystem::remove(logFile()); }

    /// The settings are those of the session's user.
    void workWith(const std::string& settings, const QStringList& arguments = {}) {
        session_.configure("melvark/host.conf", settings);
        session_.startEditor(QStringLiteral("DODAK,DODOBJ"), tinycompany::c_OpenNote, arguments);
        work(session_);
    }

    HostSession session_{tinycompany::on(GetParam())};
};

TEST_P(LogSession, HasEveryCallOfTheTraceAndNoneOfItsValues) {
    workWith("[log]\nenabled=true\n");

    const std::string log = contentOf(logFile());
    const std::set<std::string> values = valuesOf(session_.trace());
    EXPECT_THAT(values, IsSupersetOf({"Mouka", "OV2027-000009", "7391.25", "6402"})) << "what was typed is traced";
    for (const std::string& value : values) {
        EXPECT_THAT(log, Not(HasSubstr('"' + value + '"')));
    }
    for (const char* secret : {"Mouka", "Cukr", "mlyn", "Mlýn", "7391", "6402", "OV2027", "company", "novakova"}) {
        EXPECT_THAT(log, Not(HasSubstr(secret)));
    }

    std::istringstream lines(log);
    std::string line;
    std::getline(lines, line);
    EXPECT_TRUE(objectOf(line).contains(u"started"));
    for (const std::string& traced : session_.trace()) {
        ASSERT_TRUE(std::getline(lines, line)) << "nothing of " << traced;
        const QJsonObject expected = objectOf(traced);
        const QJsonObject logged = objectOf(line);
        EXPECT_EQ(logged.value(u"call"), expected.value(u"call"));
        EXPECT_EQ(logged.value(u"lookup"), expected.value(u"lookup"));
        EXPECT_EQ(logged.value(u"rows"), expected.value(u"rows"));
        EXPECT_EQ(logged.value(u"error").isString(), expected.value(u"error").isString()) << traced;
        EXPECT_EQ(logged.value(u"params").toArray().size(), expected.value(u"params").toArray().size());
        EXPECT_EQ(logged.contains(u"ms"), expected.contains(u"call"));
    }
    EXPECT_FALSE(std::getline(lines, line)) << line;
    EXPECT_THAT(log, HasSubstr(R"("error":"ML0)")) << "which refusal it was";
}

TEST_P(LogSession, HasTheValuesWhenSomebodyAsksForThem) {
    workWith({}, {QStringLiteral("--log-values")});
    EXPECT_THAT(contentOf(logFile()), HasSubstr(R"(["a_SKLADPOL","Mouka"])"));
}

TEST_P(LogSession, IsNotWrittenUnlessSomebodyAsks) {
    workWith({});
    EXPECT_FALSE(std::filesystem::exists(logFile()));
    EXPECT_THAT(session_.standardError(), IsEmpty());
}

TEST_P(LogSession, ThatCannotBeWrittenIsToldOnceAndTheWorkIsDone) {
    workWith({}, {QStringLiteral("--log"), QStringLiteral("/proc/melvark.log")});
    const std::string told = session_.standardError();
    EXPECT_THAT(told, HasSubstr("The log /proc/melvark.log cannot be written"));
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
}

INSTANTIATE_TEST_SUITE_P(Engines, LogSession, c_BothEngines, engineOf);

} // namespace
