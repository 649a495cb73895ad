#include "refhost/LogChoice.h"

#include "host/StateFolder.h"
#include "refhost/CommandLine.h"
#include "refhost/Json.h"
#include "tests/support/TemporaryFolder.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace refhost {

namespace {

/// The user's and the system's settings, in folders of the test.
class LogChoiceTest : public testing::Test {
protected:
    void SetUp() override { qputenv("XDG_CONFIG_DIRS", (folder_.path() / "system").c_str()); }
    void TearDown() override {
        qunsetenv("XDG_CONFIG_DIRS");
        std::filesystem::remove(usersFile());
    }

    static std::filesystem::path usersFile() {
        return std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "melvark" / "host.conf";
    }
    static void put(const std::filesystem::path& file, const std::string& settings) {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::trunc) << settings;
    }
    static void userWants(const std::string& settings) { put(usersFile(), settings); }
    void systemWants(const std::string& settings) const {
        put(folder_.path() / "system" / "melvark" / "host.conf", settings);
    }
    static std::optional<LogChoice> chosenBy(const std::vector<std::string>& words) {
        return chosenLog(parseCommandLine(words));
    }

    TemporaryFolder folder_{"log-choice"};
};

TEST_F(LogChoiceTest, NothingIsLoggedUnlessSomebodyAsks) {
    EXPECT_EQ(chosenBy({}), std::nullopt);
    userWants("[log]\nenabled=false\nfile=/tmp/x.log\nvalues=true\n");
    EXPECT_EQ(chosenBy({}), std::nullopt);
}

TEST_F(LogChoiceTest, TheOptionNamesTheFileAndHidesValues) {
    EXPECT_EQ(chosenBy({"--log", "/x/y.log"}), (LogChoice{"/x/y.log", Values::Hidden}));
    EXPECT_EQ(chosenBy({"--log", "/x/y.log", "--log-values"}), (LogChoice{"/x/y.log", Values::Shown}));
}

TEST_F(LogChoiceTest, AskingForValuesAsksForALogInItsUsualPlace) {
    EXPECT_EQ(chosenBy({"--log-values"}), (LogChoice{defaultLogFile(), Values::Shown}));
}

TEST_F(LogChoiceTest, TheUsersSettingLogsInTheUsualPlaceOrInItsOwn) {
    userWants("[log]\nenabled=true\n");
    EXPECT_EQ(chosenBy({}), (LogChoice{defaultLogFile(), Values::Hidden}));
    userWants("[log]\nenabled=true\nvalues=true\nfile=/srv/logs/melvark.log\n");
    EXPECT_EQ(chosenBy({}), (LogChoice{"/srv/logs/melvark.log", Values::Shown}));
}

TEST_F(LogChoiceTest, TheSystemsSettingIsForAllUsersAndTheUsersOwnGoesBeforeIt) {
    systemWants("[log]\nenabled=true\nfile=~/melvark.log\n");
    EXPECT_EQ(chosenBy({}), (LogChoice{std::string(std::getenv("HOME")) + "/melvark.log", Values::Hidden}));
    userWants("[log]\nenabled=false\n");
    EXPECT_EQ(chosenBy({}), std::nullopt);
    EXPECT_EQ(chosenBy({"--log", "/x/y.log"}), (LogChoice{"/x/y.log", Values::Hidden})) << "the option before both";
}

TEST_F(LogChoiceTest, TheUsualPlaceIsTheUsersDirectoryForTheStateOfPrograms) {
    EXPECT_EQ(defaultLogFile(), melvark::StateFolder() + "/host.log");
}

TEST(LogLineStamp, IsTheMomentWithItsZoneAndTheProcess) {
    const QDateTime before = QDateTime::currentDateTime();
    JsonObject line;
    stampLogLine(line);
    const QJsonObject stamp = QJsonDocument::fromJson(QByteArray::fromStdString(line.text())).object();
    const QString at = stamp.value(u"at").toString();
    const QDateTime moment = QDateTime::fromString(at, Qt::ISODateWithMs);

    EXPECT_EQ(at.size(), 28) << at.toStdString();
    EXPECT_EQ(moment.offsetFromUtc(), before.offsetFromUtc());
    EXPECT_LE(before.msecsTo(moment), 10000);
    EXPECT_GE(before.msecsTo(moment), 0);
    EXPECT_EQ(stamp.value(u"process").toInt(), getpid());
}

} // namespace

} // namespace refhost
