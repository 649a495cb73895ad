#include "host/ReachablePlace.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <string>
#include <vector>

using melvark::ReachablePlace;
using melvark::ScreenArea;

namespace {

constexpr int c_Title = 20;
constexpr int c_Huge = std::numeric_limits<int>::max();
constexpr int c_Least = std::numeric_limits<int>::min();

struct PlaceRow {
    const char* name;
    melvark::WindowPlacement wanted;
    melvark::WindowPlacement expected;
};

void PrintTo(const PlaceRow& row, std::ostream* out) {
    *out << row.name;
}

/// Two screens side by side, the right one lower, with a gap to nothing on their other sides.
const std::vector<ScreenArea>& twoScreens() {
    static const std::vector<ScreenArea> screens{{0, 0, 1000, 800}, {1000, 200, 1200, 900}};
    return screens;
}

class ReachablePlaceOnTwoScreens : public testing::TestWithParam<PlaceRow> {};

TEST_P(ReachablePlaceOnTwoScreens, IsWhereTheTitleBarCanBeTakenHoldOf) {
    EXPECT_EQ(ReachablePlace(GetParam().wanted, twoScreens(), c_Title), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReachablePlaceOnTwoScreens,
    testing::Values(PlaceRow{"inside", {100, 100, 790, 400}, {100, 100, 790, 400}},
                    PlaceRow{"across both screens", {600, 300, 790, 400}, {600, 300, 790, 400}},
                    PlaceRow{"the body below the screen", {100, 799, 790, 400}, {100, 799, 790, 400}},
                    PlaceRow{"one pixel from the left", {-789, 100, 790, 400}, {-789, 100, 790, 400}},
                    PlaceRow{"just left of it", {-790, 100, 790, 400}, {0, 100, 790, 400}},
                    PlaceRow{"one row of the title bar", {100, 1, 790, 400}, {100, 1, 790, 400}},
                    PlaceRow{"the title bar just above", {100, 0, 790, 400}, {100, 20, 790, 400}},
                    PlaceRow{"the last row", {100, 819, 790, 400}, {100, 819, 790, 400}},
                    PlaceRow{"just below", {100, 820, 790, 400}, {100, 400, 790, 400}},
                    PlaceRow{"in the corner that no screen has", {1300, 100, 790, 400}, {1300, 220, 790, 400}},
                    PlaceRow{"right of the right screen", {3000, 500, 790, 400}, {1410, 500, 790, 400}},
                    PlaceRow{"larger than the screen", {-9000, -9000, 5000, 5000}, {0, 20, 1000, 780}},
                    PlaceRow{"maximised stays so", {-9000, 100, 790, 400, true}, {0, 100, 790, 400, true}},
                    PlaceRow{"on a screen but much larger than all", {10, 30, 50000, 50000}, {10, 30, 4400, 2200}},
                    PlaceRow{"no size", {100, 100, -5, 0}, {100, 100, 1, 1}},
                    PlaceRow{"the largest numbers", {c_Huge, c_Huge, c_Huge, c_Huge}, {1000, 220, 1200, 880}},
                    PlaceRow{"the least numbers", {c_Least, c_Least, c_Least, c_Least}, {0, 20, 1, 1}}),
    [](const auto& row) {
        std::string name = row.param.name;
        std::ranges::replace(name, ' ', '_');
        return name;
    });

TEST(ReachablePlace, WithoutScreensNothingChanges) {
    const melvark::WindowPlacement wanted{-5000, -5000, 790, 400};
    EXPECT_EQ(ReachablePlace(wanted, {}, c_Title), wanted);
}

TEST(ReachablePlace, IsFoundOnce) {
    const melvark::WindowPlacement wanted{-5000, 4000, 1700, 1700};
    const auto first = ReachablePlace(wanted, twoScreens(), c_Title);
    EXPECT_EQ(ReachablePlace(first, twoScreens(), c_Title), first);
}

} // namespace
