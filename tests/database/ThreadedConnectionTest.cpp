#include "refhost/database/ThreadedConnection.h"

#include "host/Exceptions.h"
#include "refhost/database/StopSignal.h"
#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/SlowCalls.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

using namespace std::chrono_literals;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Not;
using Clock = CallThread::Clock;

/// Looks again and again from a moment after the beginning on, and does what a test wants the user to do.
class KeenWatcher : public WorkWatcher {
public:
    void goesOn() override {
        if (!isUnderWay) {
            isUnderWay = true;
            nextLook_ = Clock::now() + patience;
        }
    }
    Clock::time_point nextLook() const override { return nextLook_; }
    bool look(const LongWork& work) override {
        looks.push_back(work);
        nextLook_ = Clock::now() + interval;
        if (turn) {
            turn(work);
        }
        return wantsStop;
    }
    void ends() override { isUnderWay = false; }

    std::chrono::milliseconds patience = 20ms;
    std::chrono::milliseconds interval = 5ms;
    std::function<void(const LongWork& work)> turn; ///< What the user does while he waits.
    bool wantsStop = false;
    bool isUnderWay = false;
    std::vector<LongWork> looks;

private:
    Clock::time_point nextLook_;
};

/// A connection whose calls end once they are to stop, and answer.
class DeafConnection : public TConnection {
public:
    explicit DeafConnection(Database& database) : signal_(database.stopSignal()) {}

    TProcedureInfo Describe(const AnsiString&) override { return {}; }
    TCallResult Execute(const TProcedureCall&) override { return {}; }
    TResultTable Query(const AnsiString&) override {
        while (!signal_.isRequested()) {
            std::this_thread::sleep_for(1ms);
        }
        return {{"ANSWER"}, {}};
    }

private:
    StopSignal& signal_;
};

class ThreadedConnectionTest : public testing::TestWithParam<Engine> {
protected:
    ThreadedConnectionTest() {
        addContractCompany(*openAs(url_, "novakova"));
        slow_.emplace(url_,
                      std::initializer_list<std::string_view>{"MELVARKEDITORDodakGetPolozkyByDodak",
                                                              "MELVARKEDITORDodakInsertToTemp",
                                                              "MELVARKEDITORDodakTempUloz"},
                      folder_.path());
        database_ = openAs(url_, "novakova");
        slow_->install(*database_);
        connection_.emplace(*database_, *database_, watcher_);
    }

    TCallResult call(const std::string& procedure, Parameters parameters = {}, bool open = false) {
        return connection_->Execute({"MELVARKEDITOR" + procedure, std::move(parameters), open});
    }
    std::size_t fill() {
        return call("DodakGetPolozkyByDodak", {{"a_DODKIDMASTER", id(c_NoteOfMill)}, {"a_DODKID", id(c_OpenNote)}},
                    true)
            .Sets.at(0)
            .Rows.size();
    }
    void begin() { call("ResetTemp"); }
    void send(const std::string& quantity) {
        connection_->Describe("MELVARKEDITORDodakInsertToTemp"); // as the module's objects do
        call("DodakInsertToTemp", {{"a_SKLADPOL", "Sirup"}, {"a_MNOZSTVI", quantity}});
    }
    void close() { call("DodakTempUloz", {{"a_DODKID", id(c_OpenNote)}}); }
    void save(const std::string& quantity) {
        begin();
        send(quantity);
        close();
    }
    void stopAtFirstLook() {
        watcher_.turn = [this](const LongWork&) { watcher_.wantsStop = true; };
    }
    void userWorksOn() {
        watcher_.turn = nullptr;
        watcher_.wantsStop = false;
    }
    /// The quantities that saves have added to the open note, whose first line was there before.
    std::string added() const {
        return rows(*openAs(url_, "svoboda"),
                    "select MNOZSTVI from SCREEN_DODAK_LINES_V where PORADI > 1 and _DOCID = " +
                        std::to_string(c_OpenNote) + " order by PORADI");
    }

    const TemporaryFolder folder_{"threaded"};
    const std::string url_ = newDatabaseUrl(GetParam());
    std::optional<SlowCalls> slow_;
    std::unique_ptr<Database> database_;
    KeenWatcher watcher_;
    std::optional<ThreadedConnection> connection_;
};

INSTANTIATE_TEST_SUITE_P(Engines, ThreadedConnectionTest, testing::ValuesIn(c_BothEngines), engineOf);

TEST_P(ThreadedConnectionTest, AQuickCallIsNotLookedAt) {
    watcher_.patience = 10s;
    EXPECT_EQ(fill(), 3U);
    EXPECT_EQ(connection_->Query("select NAZEV from SKLAD_V order by NAZEV").Rows.size(), 2U);
    EXPECT_THAT(connection_->Describe("MELVARKEDITORDodakCheckMaster").Inputs, ElementsAre("a_DODKID"));
    EXPECT_THAT(watcher_.looks, IsEmpty());
    EXPECT_FALSE(watcher_.isUnderWay);
}

TEST_P(ThreadedConnectionTest, ASlowCallIsLookedAtWhileItRunsAndAnswersAsEver) {
    slow_->take(400'000);
    EXPECT_EQ(fill(), 3U);
    EXPECT_THAT(watcher_.looks, Not(IsEmpty()));
    EXPECT_THAT(watcher_.looks, Each(Field(&LongWork::MayStop, true)));
    EXPECT_THAT(watcher_.looks, Each(Field(&LongWork::RowsSent, std::nullopt)));
    EXPECT_FALSE(watcher_.isUnderWay);
}

TEST_P(ThreadedConnectionTest, AStoppedCallThrowsAndTheNextOneAnswers) {
    slow_->takeForever();
    stopAtFirstLook();
    EXPECT_THROW(fill(), EStopped);
    EXPECT_FALSE(watcher_.isUnderWay);
    userWorksOn();
    slow_->take(1);
    EXPECT_EQ(fill(), 3U);
    EXPECT_NO_THROW(save("2"));
    EXPECT_EQ(added(), "2");
}

TEST_P(ThreadedConnectionTest, AStoppedQueryThrowsAndTheNextOneAnswers) {
    stopAtFirstLook();
    EXPECT_THROW(
        connection_->Query("with recursive N(I) as (select 1 union all select I + 1 from N where I < 100000000) "
                           "select count(*) from N"),
        EStopped);
    EXPECT_EQ(connection_->Query("select NAZEV from SKLAD_V order by NAZEV").Rows.size(), 2U);
}

TEST_P(ThreadedConnectionTest, ACallThatEndsAllTheSameAnswersAndTheStopIsForgotten) {
    DeafConnection deaf(*database_);
    ThreadedConnection connection(deaf, *database_, watcher_);
    stopAtFirstLook();
    EXPECT_EQ(connection.Query("").Columns, std::vector<AnsiString>{"ANSWER"});
    EXPECT_FALSE(database_->stopSignal().isRequested()) << "it would stop what the host asks next";
}

TEST_P(ThreadedConnectionTest, ARefusalOfASlowCallIsTheOneThatItWouldBeAtOnce) {
    slow_->take(400'000);
    try {
        call("DodakGetPolozkyByDodak", {{"a_DODKIDMASTER", id(c_Missing)}, {"a_DODKID", id(c_OpenNote)}}, true);
        ADD_FAILURE() << "it was not refused";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Code(), "ML021");
        EXPECT_EQ(error.Cause(), TDatabaseCause::Refusal);
    }
    EXPECT_FALSE(watcher_.isUnderWay);
}

TEST_P(ThreadedConnectionTest, ASaveIsOneWorkWhoseRowsAreCounted) {
    watcher_.patience = 0ms;
    watcher_.interval = 0ms;
    begin();
    EXPECT_TRUE(watcher_.isUnderWay);
    send("2");
    send("3");
    watcher_.looks.clear();
    send("4");
    ASSERT_THAT(watcher_.looks, Not(IsEmpty()));
    EXPECT_EQ(watcher_.looks.front().RowsSent, 2);
    EXPECT_TRUE(watcher_.isUnderWay);
    close();
    EXPECT_FALSE(watcher_.isUnderWay);
    EXPECT_EQ(added(), "2\n3\n4");
}

TEST_P(ThreadedConnectionTest, ASaveThatIsStoppedAmongItsRowsChangesNothingAndTheNextOneSavesOnce) {
    slow_->take(400'000);
    begin();
    send("2");
    stopAtFirstLook();
    EXPECT_THROW(
        {
            for (int row = 0; row < 1000; ++row) {
                send("3");
            }
        },
        EStopped);
    EXPECT_FALSE(watcher_.isUnderWay);
    EXPECT_EQ(added(), "");

    slow_->take(1);
    userWorksOn();
    save("4");
    EXPECT_EQ(added(), "4");
}

TEST_P(ThreadedConnectionTest, AStoppedSaveGoesOnWithItsEmptyingOnly) {
    watcher_.patience = 0ms;
    begin();
    send("2");
    watcher_.wantsStop = true;
    EXPECT_THROW(
        {
            for (int row = 0; row < 1000; ++row) {
                send("3");
            }
        },
        EStopped);
    userWorksOn();
    EXPECT_THROW(send("3"), EStopped);
    EXPECT_THROW(close(), EStopped);
    EXPECT_EQ(fill(), 3U) << "everything else works";
    EXPECT_THROW(close(), EStopped);
    EXPECT_EQ(added(), "");
    save("4");
    EXPECT_EQ(added(), "4");
}

TEST_P(ThreadedConnectionTest, FromTheClosingCallOnThereIsNoStop) {
    begin();
    send("2");
    slow_->take(400'000);
    watcher_.turn = [this](const LongWork& work) { watcher_.wantsStop = !work.MayStop; };
    EXPECT_NO_THROW(close());
    EXPECT_TRUE(watcher_.wantsStop) << "the user was not asked during the closing call";
    EXPECT_EQ(added(), "2");
}

TEST_P(ThreadedConnectionTest, ACallThatALookLeadsToWaitsForTheOneUnderWay) {
    slow_->take(400'000);
    std::size_t warehouses = 0;
    watcher_.turn = [&](const LongWork&) {
        watcher_.turn = nullptr;
        warehouses = connection_->Query("select NAZEV from SKLAD_V order by NAZEV").Rows.size();
    };
    EXPECT_EQ(fill(), 3U);
    EXPECT_EQ(warehouses, 2U);
}

/// A session that waited inside a transaction would be ended by the server after a minute.
TEST_P(ThreadedConnectionTest, AStoppedSaveLeavesNoRowUnderWay) {
    watcher_.patience = 0ms;
    begin();
    for (int row = 0; row < 20; ++row) { // more than are handed over together
        send("2");
    }
    watcher_.wantsStop = true;
    EXPECT_THROW(
        {
            for (int row = 0; row < 1000; ++row) {
                send("3");
            }
        },
        EStopped);
    if (slow_->isServer()) { // which tells a user about his own sessions only
        EXPECT_EQ(rows(*openAs(url_, "novakova"),
                       "select count(*) from pg_stat_activity where usename = 'novakova' and pid <> pg_backend_pid() "
                       "and datname = current_database() and state <> 'idle'"),
                  "0");
    }
    EXPECT_NO_THROW(database_->awaitAnswers());
}

} // namespace
} // namespace refhost
