#include "tests/database/ClerksSweep.h"

#include "tests/database/Contract.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

/// A short form of the program clerks_sweep.
class ClerksSweep : public testing::TestWithParam<Engine> {};

TEST_P(ClerksSweep, WhoWorkOnTheSameDocumentsLoseNothingDoubleNothingAndMixNothing) {
    const ClerksSweepResult result = sweepClerks(GetParam(), 2, std::chrono::seconds(2), 1);
    EXPECT_THAT(result.Wrong, testing::IsEmpty());
    EXPECT_GT(result.Saved, 20);
}

INSTANTIATE_TEST_SUITE_P(OnBothEngines, ClerksSweep, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
