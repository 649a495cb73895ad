#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "refhost/database/SchemaVersion.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/VersionOne.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace refhost {
namespace {

std::string emptyUrl(Engine engine) {
    if (engine == Engine::SQLite) {
        return newSQLiteUrl();
    }
    PrivateServer& server = PrivateServer::instance();
    return "postgresql:" + server.address(server.newEmptyDatabase(), "postgres");
}

std::unique_ptr<Database> opened(const std::string& url) {
    return openDatabase(url, "novakova", TFormatSettings::Czech(), OpenMode::Create);
}

void addWarehouse(Database& database) {
    const std::vector<std::string> columns{"NAZEV"};
    const std::vector<std::vector<TDbValue>> rows{{AnsiString("Hlavní sklad")}};
    database.insertRows("SKLAD", columns, rows);
}

/// The exit status of a process that found the company made.
constexpr int c_TooLate = 21;

/// Runs `work` in a process of its own, as another start of the program would.
template <typename Work>
pid_t start(Work work) {
    const pid_t process = fork();
    if (process == 0) {
        try {
            work();
            _exit(0);
        } catch (const EDatabaseError& error) {
            _exit(error.Code() == "ML921" ? c_TooLate : 1); // the company has its tables already
        }
    }
    return process;
}

int statusOf(pid_t process) {
    int status = -1;
    EXPECT_EQ(waitpid(process, &status, 0), process);
    return status;
}

void makeUnlessThere(const std::string& url) {
    const auto database = opened(url);
    database->inOneTransaction([&] {
        if (!database->hasSchema()) {
            database->createSchema();
            addWarehouse(*database);
            usleep(300'000); // so that the other one comes while this one is at it
        }
    });
}

class MakingCompany : public testing::TestWithParam<Engine> {};

TEST_P(MakingCompany, OneThatIsKilledOnTheWayLeavesNothingThatOpensAsACompany) {
    const std::string url = emptyUrl(GetParam());
    const int status = statusOf(start([&] {
        const auto database = opened(url);
        database->inOneTransaction([&] {
            database->createSchema();
            addWarehouse(*database);
            raise(SIGKILL);
        });
    }));
    ASSERT_TRUE(WIFSIGNALED(status));

    EXPECT_EQ(schemaVersionOf(url), 0);
    const auto database = opened(url);
    EXPECT_FALSE(database->hasSchema());
    database->createSchema();
    EXPECT_EQ(database->Query("select * from SKLAD_V").Rows.size(), 0U);
}

TEST_P(MakingCompany, AFailureOnTheWayLeavesNothingEither) {
    const std::string url = emptyUrl(GetParam());
    const auto database = opened(url);
    EXPECT_THROW(database->inOneTransaction([&] {
        database->createSchema();
        addWarehouse(*database);
        addWarehouse(*database); // names are unique
    }),
                 EDatabaseError);
    EXPECT_EQ(schemaVersionOf(url), 0);
}

TEST_P(MakingCompany, TwoAtOnceMakeOne) {
    const std::string url = emptyUrl(GetParam());
    const pid_t first = start([&] { makeUnlessThere(url); });
    const pid_t second = start([&] { makeUnlessThere(url); });
    for (const pid_t process : {first, second}) {
        const int status = statusOf(process);
        EXPECT_TRUE(WIFEXITED(status) && (WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == c_TooLate)) << status;
    }
    EXPECT_EQ(opened(url)->Query("select * from SKLAD_V").Rows.size(), 1U);
}

TEST_P(MakingCompany, ItIsOfTheProgramsVersion) {
    const std::string url = emptyUrl(GetParam());
    opened(url)->createSchema();
    EXPECT_EQ(schemaVersionOf(url), c_SchemaVersion);
}

INSTANTIATE_TEST_SUITE_P(Engines, MakingCompany, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return engineName(row.param); });

/// Sets the habit of the process for new files for its scope.
class FileHabit {
public:
    explicit FileHabit(mode_t mask) : before_(umask(mask)) {}
    FileHabit(const FileHabit&) = delete;
    FileHabit& operator=(const FileHabit&) = delete;
    ~FileHabit() { umask(before_); }

private:
    mode_t before_;
};

TEST(MakingAFile, TheFileAndWhatLiesBesideItAreItsOwnersAlone) {
    using std::filesystem::perms;
    const FileHabit everybodyMayDoAll(0);
    const std::string url = newSQLiteUrl();
    const std::string path = url.substr(std::string("sqlite:").size());
    const auto database = opened(url);
    database->createSchema();
    addWarehouse(*database);
    for (const char* suffix : {"", "-wal", "-shm"}) {
        EXPECT_EQ(std::filesystem::status(path + suffix).permissions(), perms::owner_read | perms::owner_write)
            << suffix;
    }
}

} // namespace
} // namespace refhost
