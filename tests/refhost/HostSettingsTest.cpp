#include "refhost/HostSettings.h"

#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Watchdog.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace refhost {

namespace {

/// Folders of a user and of two administrators.
class HostSettingsTest : public testing::Test {
protected:
    std::filesystem::path file(const char* whose) const { return folder_.path() / whose / "melvark" / "host.conf"; }
    void put(const char* whose, const std::string& settings) const {
        std::filesystem::create_directories(file(whose).parent_path());
        std::ofstream(file(whose), std::ios::trunc) << settings;
    }
    static QString value(const char* key) { return HostSettings().value(QString::fromUtf8(key)).toString(); }

    TemporaryFolder folder_{"host-settings"};
    EnvironmentVariable user_{"XDG_CONFIG_HOME", (folder_.path() / "user").c_str()};
    EnvironmentVariable system_{"XDG_CONFIG_DIRS",
                                ((folder_.path() / "near").string() + ":" + (folder_.path() / "far").string()).c_str()};
};

TEST_F(HostSettingsTest, SayNothingWhereThereAreNoFiles) {
    EXPECT_FALSE(HostSettings().value(QStringLiteral("log/enabled")).isValid());
}

TEST_F(HostSettingsTest, TheFirstFileThatSaysSomethingOfAKeyCounts) {
    put("far", "[log]\nenabled=true\nfile=/far\nvalues=true\n");
    put("near", "[log]\nfile=/near\nvalues=true\n");
    put("user", "[log]\nvalues=false\n");
    EXPECT_EQ(value("log/enabled"), QStringLiteral("true"));
    EXPECT_EQ(value("log/file"), QStringLiteral("/near"));
    EXPECT_EQ(value("log/values"), QStringLiteral("false"));
}

TEST_F(HostSettingsTest, AFileThatIsNoneSaysNothingAndTheNextOneIsAsked) {
    const Watchdog watchdog("reading what is no file", std::chrono::seconds(20));
    put("far", "[log]\nfile=/far\n");
    put("near", "[log]\nfile=/near\n" + std::string(70000, ';'));
    std::filesystem::create_directories(file("user").parent_path());
    ASSERT_EQ(mkfifo(file("user").c_str(), 0600), 0); // nobody will ever write into the pipe
    EXPECT_EQ(value("log/file"), QStringLiteral("/far"));
}

TEST_F(HostSettingsTest, ADamagedFileSaysWhatCanBeRead) {
    put("user", "log]\nenabled\n=\n\x01\n[log]\nfile=/user\n");
    EXPECT_EQ(value("log/file"), QStringLiteral("/user"));
}

} // namespace

} // namespace refhost
