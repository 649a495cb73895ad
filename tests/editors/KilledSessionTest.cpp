#include "tests/editors/KilledSession.h"

#include <gtest/gtest.h>

namespace {

// The long form is tests/kill-sweep.
TEST(KilledSession, LeavesTheStateThatWasKeptLastOrTheOneBeingKept) {
    const KilledSessions sessions = killSessions(12, 20270201);
    EXPECT_EQ(sessions.Failure, "");
    EXPECT_EQ(sessions.Moments, 12);
    EXPECT_GT(sessions.WithWork, 0);
}

} // namespace
