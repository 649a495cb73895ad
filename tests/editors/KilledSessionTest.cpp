#include "tests/editors/KilledSession.h"

#include <gtest/gtest.h>

namespace {

// The long form is tests/kill-sweep.
TEST(KilledSession, LeavesTheStateThatWasKeptLastOrTheOneBeingKept) {
    const KilledSessions sessions = killSessions(30, 20270201);
    EXPECT_EQ(sessions.Failure, "");
    EXPECT_EQ(sessions.Moments, 30);
    EXPECT_GT(sessions.WithWork, 0);
    EXPECT_GT(sessions.OnLeftWork, 0);
    EXPECT_GT(sessions.WhileOpening, 0);
    EXPECT_GT(sessions.WhileClosing, 0);
}

} // namespace
