#include "refhost/database/Databases.h"
#include "refhost/database/PostgreSQLSession.h"
#include "refhost/database/SchemaVersion.h"
#include "tests/database/CompanyPicture.h"
#include "tests/database/Interruption.h"
#include "tests/database/OtherProcess.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/VersionOne.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace refhost {
namespace {

/// A company of the first version in each way in which it may lie there.
enum class Home { File, FileWithLog, Server };

struct HomeCase {
    const char* Name;
    Home Place;
};

Engine engineOf(Home place) {
    return place == Home::Server ? Engine::PostgreSQL : Engine::SQLite;
}

std::string oldCompany(Home place) {
    const std::string url = versionOneUrl(engineOf(place));
    if (place == Home::FileWithLog) {
        BareConnection(url).rows("pragma journal_mode = wal");
    }
    return url;
}

void upgrade(const std::string& url) {
    upgradeDatabase(url);
}

class InterruptedUpgrade : public testing::TestWithParam<HomeCase> {};

TEST_P(InterruptedUpgrade, LeavesTheOldVersionOrTheNewOneExactly) {
    const Home place = GetParam().Place;
    std::string url = oldCompany(place);
    const auto oldSchema = schemaOf(url);
    const auto rows = contentsOf(url);
    const Interruption whole = interruptedAt(c_NoPoint, url, upgrade);
    ASSERT_FALSE(whole.IsKilled);
    ASSERT_GT(whole.Passed, 20) << "the points are not counted";
    const auto newSchema = schemaOf(url);
    ASSERT_NE(newSchema, oldSchema);

    url = oldCompany(place);
    int oldOnes = 0;
    atManyPoints(whole.Passed, [&](int point) {
        interruptedAt(point, url, upgrade); // the last ones may come too late
        EXPECT_EQ(contentsOf(url), rows) << point;
        const bool isNew = schemaVersionOf(url) == c_SchemaVersion;
        EXPECT_EQ(schemaOf(url), isNew ? newSchema : oldSchema) << point;
        if (isNew) {
            url = oldCompany(place);
        } else {
            ++oldOnes; // the next one begins with what this one has left
        }
        return isNew;
    });
    EXPECT_GT(oldOnes, 5);
    upgraded(url);
    EXPECT_EQ(schemaOf(url), newSchema);
    EXPECT_EQ(contentsOf(url), rows);
}

INSTANTIATE_TEST_SUITE_P(Homes, InterruptedUpgrade,
                         testing::Values(HomeCase{"File", Home::File}, HomeCase{"FileWithLog", Home::FileWithLog},
                                         HomeCase{"Server", Home::Server}),
                         [](const auto& row) { return row.param.Name; });

int copiesOf(const std::filesystem::path& file) {
    const std::string begin = file.filename().string() + ".version-";
    return static_cast<int>(
        std::ranges::count_if(std::filesystem::directory_iterator(file.parent_path()),
                              [&](const auto& entry) { return entry.path().filename().string().starts_with(begin); }));
}

/// How often an upgrade has told the programs that are connected to the server.
std::int64_t timesNotified() {
    return PrivateServer::instance().loggedLines("notify " + std::string(c_UpgradeChannel));
}

/// The exit status of a process whose upgrade had something to do, and of one whose had nothing.
constexpr int c_Upgraded = 11;
constexpr int c_NothingToDo = 12;

class TwoUpgradesAtOnce : public testing::TestWithParam<Engine> {
protected:
    void SetUp() override { ASSERT_EQ(pipe(gate_), 0); }
    void TearDown() override {
        close(gate_[0]);
        close(gate_[1]);
    }

    /// An upgrade that begins when the gate is opened. The engine's connections must not be taken into another process,
    /// so that it starts before there are any.
    pid_t startUpgrade(const std::string& url) const {
        return startProcess([&] {
            char word = 0;
            static_cast<void>(!read(gate_[0], &word, 1));
            return upgradeDatabase(url).From == c_SchemaVersion ? c_NothingToDo : c_Upgraded;
        });
    }

    void openGateForBoth() const { ASSERT_EQ(write(gate_[1], "go", 2), 2); }

    /// Waits until both have come to the company, which somebody holds.
    void waitForBoth(const std::string& url) const {
        if (GetParam() == Engine::SQLite) {
            std::this_thread::sleep_for(std::chrono::milliseconds(500)); // nobody can see who waits for a file
            return;
        }
        BareConnection watcher(url);
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (watcher.rows("select count(*) from pg_stat_activity where wait_event_type = 'Lock' and "
                            "datname = current_database()") != std::vector<std::string>{"2"} &&
               std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }

private:
    int gate_[2] = {-1, -1};
};

TEST_P(TwoUpgradesAtOnce, AreOneAndTheOtherFindsItDone) {
    const std::string url = versionOneUrl(GetParam());
    const auto rows = contentsOf(url);
    const bool isFile = GetParam() == Engine::SQLite;
    const pid_t processes[] = {startUpgrade(url), startUpgrade(url)};
    std::optional<BareConnection> holder(url);
    if (!isFile) {
        holder->run(
            "do $$ begin execute format('alter database %I set log_statement = %L', current_database(), 'all'); "
            "end $$");
    }
    const std::int64_t notified = isFile ? 0 : timesNotified();
    holder->run(isFile ? "begin immediate" : "begin; lock table melvark.uzivatel in share mode");
    openGateForBoth();
    waitForBoth(url);
    holder->run("commit");
    holder.reset();

    int upgradedOnes = 0;
    for (const pid_t process : processes) {
        const int status = statusOf(process);
        ASSERT_TRUE(WIFEXITED(status));
        EXPECT_TRUE(WEXITSTATUS(status) == c_Upgraded || WEXITSTATUS(status) == c_NothingToDo) << WEXITSTATUS(status);
        upgradedOnes += WEXITSTATUS(status) == c_Upgraded ? 1 : 0;
    }
    EXPECT_EQ(upgradedOnes, 1);
    EXPECT_EQ(schemaVersionOf(url), c_SchemaVersion);
    EXPECT_EQ(contentsOf(url), rows);
    if (isFile) {
        const std::string path = url.substr(std::string("sqlite:").size());
        EXPECT_TRUE(std::filesystem::exists(path + ".version-1"));
        EXPECT_EQ(copiesOf(path), 1) << "the second one had nothing to copy";
    } else {
        EXPECT_EQ(timesNotified() - notified, 1) << "the second one had nothing to tell";
    }
}

INSTANTIATE_TEST_SUITE_P(Engines, TwoUpgradesAtOnce, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return engineName(row.param); });

} // namespace
} // namespace refhost
