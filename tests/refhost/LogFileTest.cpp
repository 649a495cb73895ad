#include "refhost/LogFile.h"

#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace refhost {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr LogLimits c_Limits{.bytes = 20, .kept = 2};

class LogFileTest : public testing::Test {
protected:
    std::string path() const { return (folder_.path() / "logs" / "host.log").string(); }

    std::string content(const std::string& suffix = {}) const {
        std::ostringstream text;
        text << std::ifstream(path() + suffix).rdbuf();
        return text.str();
    }
    bool exists(const std::string& suffix) const { return std::filesystem::exists(path() + suffix); }
    std::filesystem::perms permissions() const { return std::filesystem::status(path()).permissions(); }

    /// What is told of a log at this path, on which two lines are written.
    std::string toldOf() {
        std::ostringstream errors;
        LogFile log(path(), c_Limits, errors);
        log.write("first");
        log.write("second");
        return errors.str();
    }

    TemporaryFolder folder_{"log-file"};
    std::ostringstream errors_;
};

TEST_F(LogFileTest, IsAppendedToAndCanBeReadByItsOwnerOnly) {
    const mode_t before = umask(0);
    LogFile(path(), c_Limits, errors_).write("one");
    LogFile(path(), c_Limits, errors_).write("two");
    umask(before);

    EXPECT_EQ(content(), "one\ntwo\n");
    EXPECT_EQ(permissions(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    EXPECT_THAT(errors_.str(), IsEmpty());
}

TEST_F(LogFileTest, ThatOthersCouldReadIsTheOwnersFromThenOn) {
    std::filesystem::create_directories(folder_.path() / "logs");
    std::ofstream(path()) << "old\n";
    std::filesystem::permissions(path(), std::filesystem::perms::all);

    LogFile(path(), c_Limits, errors_).write("new");

    EXPECT_EQ(content(), "old\nnew\n");
    EXPECT_EQ(permissions(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(LogFileTest, BeginsANewFileBeforeALineThatWouldPassItsLimit) {
    LogFile log(path(), c_Limits, errors_);
    log.write("123456789"); // ten bytes with the line's end
    log.write("abcdefghi"); // twenty: the limit itself is allowed
    EXPECT_FALSE(exists(".1"));
    log.write("x");
    EXPECT_EQ(content(".1"), "123456789\nabcdefghi\n");
    EXPECT_EQ(content(), "x\n");
}

TEST_F(LogFileTest, KeepsAsManyOlderOnesAsItsLimitSays) {
    LogFile log(path(), c_Limits, errors_);
    for (const char* line :
         {"the first, long line", "the second, long one", "the third, long line", "the fourth one"}) {
        log.write(line);
    }
    EXPECT_EQ(content(), "the fourth one\n");
    EXPECT_EQ(content(".1"), "the third, long line\n");
    EXPECT_EQ(content(".2"), "the second, long one\n");
    EXPECT_FALSE(exists(".3"));
    EXPECT_THAT(errors_.str(), IsEmpty());
}

TEST_F(LogFileTest, WithoutOlderOnesBeginsAnew) {
    LogFile log(path(), {.bytes = 20, .kept = 0}, errors_);
    log.write("123456789 12345678");
    log.write("next");
    EXPECT_EQ(content(), "next\n");
    EXPECT_FALSE(exists(".1"));
}

TEST_F(LogFileTest, ALineThatIsLongerThanAFileIsNotCut) {
    LogFile log(path(), c_Limits, errors_);
    const std::string line(100, 'x');
    log.write(line);
    log.write("next");
    EXPECT_EQ(content(".1"), line + '\n');
    EXPECT_EQ(content(), "next\n");
}

TEST_F(LogFileTest, TwoThatWriteTheSameGoOnInTheNewFileTogether) {
    LogFile one(path(), c_Limits, errors_);
    LogFile other(path(), c_Limits, errors_);
    one.write("123456789 12345678");
    other.write("from the other");
    one.write("1");
    EXPECT_EQ(content(".1"), "123456789 12345678\n");
    EXPECT_EQ(content(), "from the other\n1\n");
}

TEST_F(LogFileTest, NoLineOfProcessesThatWriteAtOnceIsLostOrBroken) {
    constexpr std::size_t c_Processes = 4;
    constexpr std::size_t c_Lines = 200;
    constexpr LogLimits c_Wide{.bytes = 1000, .kept = 100};
    for (std::size_t process = 0; process < c_Processes; ++process) {
        if (fork() == 0) {
            {
                LogFile log(path(), c_Wide, errors_);
                for (std::size_t line = 0; line < c_Lines; ++line) {
                    log.write(std::to_string(process) + " " + std::to_string(line));
                }
            }
            _exit(errors_.str().empty() ? 0 : 1);
        }
    }
    for (std::size_t process = 0; process < c_Processes; ++process) {
        int status = -1;
        wait(&status);
        EXPECT_EQ(status, 0);
    }
    std::multiset<std::string> lines;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path() / "logs")) {
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            lines.insert(line);
        }
    }
    EXPECT_EQ(lines.size(), c_Processes * c_Lines);
    for (std::size_t process = 0; process < c_Processes; ++process) {
        for (std::size_t line = 0; line < c_Lines; ++line) {
            ASSERT_EQ(lines.count(std::to_string(process) + " " + std::to_string(line)), 1u);
        }
    }
}

TEST_F(LogFileTest, ThatWasRemovedUnderItIsMadeAgain) {
    LogFile log(path(), c_Limits, errors_);
    log.write("lost");
    std::filesystem::remove(path());
    log.write("kept");
    EXPECT_EQ(content(), "kept\n");
}

TEST_F(LogFileTest, ALinkIsNotFollowedAndIsToldOnce) {
    std::filesystem::create_directories(folder_.path() / "logs");
    std::ofstream(folder_.path() / "letter") << "dear\n";
    std::filesystem::create_symlink(folder_.path() / "letter", path());

    EXPECT_THAT(toldOf(), AllOf(HasSubstr("The log " + path()), testing::EndsWith("Work goes on without it.\n")));

    std::ostringstream letter;
    letter << std::ifstream(folder_.path() / "letter").rdbuf();
    EXPECT_EQ(letter.str(), "dear\n");
}

TEST_F(LogFileTest, APipeNobodyReadsDoesNotStopTheWork) {
    std::filesystem::create_directories(folder_.path() / "logs");
    ASSERT_EQ(mkfifo(path().c_str(), 0600), 0);
    EXPECT_THAT(toldOf(), HasSubstr("cannot be written"));
}

TEST_F(LogFileTest, AFolderThatCannotBeMadeIsToldOnce) {
    std::ofstream(folder_.path() / "logs") << "a file";
    const std::string told = toldOf();
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
}

TEST_F(LogFileTest, AnOlderNameThatIsAFolderIsToldOnceAndWhatIsThereStays) {
    std::filesystem::create_directories(path() + ".1/inside");
    LogFile log(path(), {.bytes = 20, .kept = 1}, errors_);
    log.write("123456789 12345678");
    log.write("next");
    log.write("and next");
    EXPECT_EQ(content(), "123456789 12345678\n");
    const std::string told = errors_.str();
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
}

TEST_F(LogFileTest, ThatTheSystemTakesNoFurtherIsToldOnce) {
    LogFile log(path(), {.bytes = 4000, .kept = 1}, errors_);
    log.write("before");
    rlimit unlimited{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &unlimited), 0);
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{.rlim_cur = 10, .rlim_max = unlimited.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full); // as a disk that is full after ten bytes
    log.write("in the middle of this line");
    log.write("next");
    setrlimit(RLIMIT_FSIZE, &unlimited);
    std::signal(SIGXFSZ, before);
    log.write("the disk has room again");

    EXPECT_EQ(content(), "before\n"
                         "in ");
    const std::string told = errors_.str();
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
}

} // namespace

} // namespace refhost
