#include "tests/database/RecalculationSweep.h"

#include "tests/database/Engines.h"
#include "tests/database/RecalculationCompany.h"

#include <array>
#include <gtest/gtest.h>

namespace refhost {
namespace {

TEST(RecalculationSweep, BothEnginesGiveEqualTextsThatSavingAccepts) {
    const auto embedded = newDatabase(Engine::SQLite);
    const auto server = newDatabase(Engine::PostgreSQL);
    const std::array<Database*, 2> databases{embedded.get(), server.get()};
    for (Database* database : databases) {
        addRecalculationCompany(*database);
    }

    const SweepResult result = sweepRecalculation(databases, 20270201, 500);

    EXPECT_EQ(result.Difference, "");
    EXPECT_EQ(result.Recalculated + result.AsSent + result.Refused, 500);
    EXPECT_GT(result.Recalculated, 250); // else the lines are too odd to show anything
}

} // namespace
} // namespace refhost
