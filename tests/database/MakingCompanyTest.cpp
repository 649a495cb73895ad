#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "refhost/database/SchemaVersion.h"
#include "tests/database/Interruption.h"
#include "tests/database/OtherProcess.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/VersionOne.h"

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

int makeUnlessThere(const std::string& url) {
    try {
        const auto database = opened(url);
        database->inOneTransaction([&] {
            if (!database->hasSchema()) {
                database->createSchema();
                addWarehouse(*database);
                usleep(300'000); // so that the other one comes while this one is at it
            }
        });
    } catch (const EDatabaseError& error) {
        if (error.Code() == "ML921") { // the company has its tables already
            return c_TooLate;
        }
        throw;
    }
    return 0;
}

void makeCompany(const std::string& url) {
    const auto database = opened(url);
    database->inOneTransaction([&] {
        database->createSchema();
        addWarehouse(*database);
    });
}

class MakingCompany : public testing::TestWithParam<Engine> {};

TEST_P(MakingCompany, WhereverItIsKilledItLeavesNothingThatOpensAsACompanyOrTheWholeOne) {
    const Interruption whole = interruptedAt(c_NoPoint, emptyUrl(GetParam()), makeCompany);
    ASSERT_GT(whole.Passed, 20) << "the points are not counted";
    std::string url = emptyUrl(GetParam());
    int empty = 0;
    atManyPoints(whole.Passed, [&](int point) {
        interruptedAt(point, url, makeCompany); // the last ones may come too late
        if (schemaVersionOf(url) == 0) {
            EXPECT_FALSE(opened(url)->hasSchema()) << point;
            ++empty;
            return false; // the next one is made in what this one has left
        }
        EXPECT_EQ(opened(url)->Query("select * from SKLAD_V").Rows.size(), 1U) << point;
        url = emptyUrl(GetParam());
        return true;
    });
    EXPECT_GT(empty, 5);
    makeCompany(url);
    EXPECT_EQ(opened(url)->Query("select * from SKLAD_V").Rows.size(), 1U);
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
    const pid_t first = startProcess([&] { return makeUnlessThere(url); });
    const pid_t second = startProcess([&] { return makeUnlessThere(url); });
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
