#include "tests/refhost/SaveSweep.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::Ge;
using testing::IsEmpty;

/// A small share of what the program save_sweep tries.
class SaveSweep : public testing::TestWithParam<Engine> {};

TEST_P(SaveSweep, AProgramThatIsKilledBeforeOrAfterAnyCallHasSavedAllOrNothingAndTheNextOneDoublesNothing) {
    const SweepResult result = sweepKills(GetParam(), 1);
    EXPECT_THAT(result.Wrong, IsEmpty());
    EXPECT_EQ(result.Points, 8);
}

INSTANTIATE_TEST_SUITE_P(OnBothEngines, SaveSweep, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& each) { return engineName(each.param); });

TEST(SaveSweepLink, ALinkThatIsCutAnywhereHasSavedAllOrNothingAndTheNextSaveDoublesNothing) {
    const SweepResult result = sweepCuts(10);
    EXPECT_THAT(result.Wrong, IsEmpty());
    EXPECT_THAT(result.Points, Ge(12));
}

TEST(SaveSweepServer, AServerThatCrashesHasSavedAllOrNothingAndTheNextSaveDoublesNothing) {
    EXPECT_THAT(sweepServerCrashes(10, 2, 1).Wrong, IsEmpty());
}

TEST(SaveSweepServer, AServerThatIsKilledInTheClosingCallHasTheOldDocumentUntilTheCommitAndThenTheNewOne) {
    const SweepResult result = sweepClosingCrashes(10);
    EXPECT_THAT(result.Wrong, IsEmpty());
    EXPECT_EQ(result.Points, 6);
}

} // namespace
} // namespace refhost
