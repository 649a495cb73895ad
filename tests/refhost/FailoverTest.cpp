#include "host/Exceptions.h"
#include "refhost/database/Database.h"
#include "tests/refhost/FailoverRun.h"
#include "tests/refhost/StandbyPair.h"

#include <chrono>
#include <gmock/gmock.h>
#include <thread>

namespace refhost {
namespace {

using testing::Each;
using testing::Gt;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

/// What a clerk is told once the link is lost: the server's processes end a moment after their first one.
std::string codeOfLostLink(Database& database) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < end) {
        try {
            database.Query("select 1");
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        } catch (const EDatabaseError& error) {
            return error.Code();
        }
    }
    return "the server goes on";
}

/// The link is lost, nobody can be written to, the outcome is unknown: told in these words and no others.
TEST(Failover, AClerkIsToldGoesOnOnTheOtherServerAndNothingIsLostOrDoubled) {
    const FailoverRun run = runFailover(std::chrono::milliseconds(250));
    EXPECT_THAT(run.Wrong, IsEmpty());
    EXPECT_THAT(run.SavedOnFirst, Gt(0));
    EXPECT_THAT(run.Told, Not(IsEmpty()));
    EXPECT_THAT(run.Told, Each(testing::AnyOf("ML916", "ML057")));
}

TEST(Failover, AnAddressOfTwoServersOpensTheOneThatMayBeWrittenToAndSaysWhenThereIsNone) {
    StandbyPair servers;
    const auto clerk = servers.open();
    const std::string address = clerk->address();
    EXPECT_EQ(std::get<AnsiString>(clerk->Query("select sync_state from pg_stat_replication").Rows.front().front()),
              "sync");
    servers.killFirst();
    EXPECT_EQ(codeOfLostLink(*clerk), "ML916");
    try {
        clerk->Query("select 1");
        ADD_FAILURE() << "the standby may not be written to";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Code(), "ML916");
        EXPECT_THAT(error.Message(), StartsWith("Server databáze „")) << error.Details();
    }
    servers.promoteSecond();
    EXPECT_EQ(clerk->Query("select 1").Rows.size(), 1U);
    EXPECT_EQ(clerk->address(), address) << "unsaved work is found on either server";
}

} // namespace
} // namespace refhost
