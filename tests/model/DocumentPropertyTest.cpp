#include "editwin/model/ColumnSettingsDocument.h"
#include "editwin/model/WindowPlacementDocument.h"
#include "host/ReachablePlace.h"
#include "tests/fuzzing/Mutations.h"
#include "tests/model/ColumnsForTests.h"
#include "tests/model/SettingsJudge.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <utility>

/// What holds for every layout and every placement, on random ones. Each run has a seed of its own, which a failure
/// names; runs begin with the shortest lists, so that the first failure is a small one.
namespace {

using melvark::ReadColumnSettings;
using melvark::ReadWindowPlacement;
using melvark::WindowPlacement;
using melvark::WriteColumnSettings;
using melvark::WriteWindowPlacement;

constexpr int c_Runs = 600;

class Random {
public:
    explicit Random(int seed) : FSource(static_cast<std::uint64_t>(seed)) {}

    int below(int bound) { return static_cast<int>(FSource() % static_cast<std::uint64_t>(bound)); }
    bool oneOf(int count) { return below(count) == 0; }
    /// Any number, often one at an end of the range.
    int number() {
        constexpr int c_Ends[] = {std::numeric_limits<int>::min(), -1, 0, 1, std::numeric_limits<int>::max()};
        return oneOf(2) ? c_Ends[below(5)] : static_cast<int>(static_cast<std::uint32_t>(FSource()));
    }
    template <class Range>
    void shuffle(Range& range) {
        std::ranges::shuffle(range, FSource);
    }

private:
    std::mt19937_64 FSource;
};

/// A text, and the same text without what XML cannot hold.
struct Text {
    AnsiString Whole;
    AnsiString Held;
};

Text randomText(Random& random) {
    // The pieces are put together so that no two of them make a third one.
    static const AnsiString held[] = {"a",        "Z",    " ",      "  ",  "ž",
                                      "&",        "<",    ">",      "]]>", "\"",
                                      "\xC2\x85", "\t",   "\r\n",   "\n",  "\xF0\x9F\xA5\x95",
                                      "&#10;",    "<!--", "</hint>"};
    static const AnsiString dropped[] = {AnsiString(1, '\0'), "\x01",         "\x1F", "\xEF\xBF\xBE",
                                         "\xEF\xBF\xBF",      "\xED\xA0\x80", "\xFF", "\xC0\x80"};
    Text text;
    for (int left = random.below(8); left > 0; --left) {
        if (random.oneOf(5)) {
            text.Whole += dropped[random.below(8)];
        } else {
            const AnsiString& piece = held[random.below(18)];
            text.Whole += piece;
            text.Held += piece;
        }
    }
    return text;
}

/// Columns as an editor was built with, in any number.
std::vector<RColumn> randomColumns(Random& random, int count) {
    std::vector<RColumn> columns;
    for (int index = 0; index < count; ++index) {
        RColumn& column = columns.emplace_back(shownColumn("SLOUPEC" + std::to_string(index), index));
        column.ColumnType = static_cast<TColumnType>(random.below(3));
        column.DataType = static_cast<TColumnsDataType>(random.below(5));
        column.DisplayFormat = random.oneOf(3) ? "%m" : "";
    }
    return columns;
}

/// A layout of the columns: all of them in any order, perhaps with the first one repeated instead of another, each in
/// any shape. `held` gets what is expected back.
std::vector<RColumn> randomLayout(Random& random, std::vector<RColumn> columns, std::vector<RColumn>& held) {
    random.shuffle(columns);
    if (columns.size() > 1 && random.oneOf(3)) {
        const auto place = static_cast<std::size_t>(1 + random.below(static_cast<int>(columns.size()) - 1));
        columns[place] = columns.front();
    }
    held = columns;
    for (std::size_t index = 0; index < columns.size(); ++index) {
        RColumn& column = columns[index];
        const Text caption = randomText(random);
        const Text hint = randomText(random);
        column.Align = static_cast<TColumnAlign>(random.below(3));
        column.Visible = random.oneOf(2);
        column.Editable = static_cast<TEditable>(random.below(3));
        column.Width = random.number();
        held[index] = column;
        std::tie(column.Caption, held[index].Caption) = std::pair(caption.Whole, caption.Held);
        std::tie(column.Hint, held[index].Hint) = std::pair(hint.Whole, hint.Held);
    }
    return columns;
}

TEST(DocumentProperty, EveryLayoutIsReadBackAsItWasWritten) {
    for (int seed = 0; seed < c_Runs; ++seed) {
        Random random(seed);
        const std::vector<RColumn> defaults = randomColumns(random, 1 + seed / 20);
        std::vector<RColumn> held;
        const std::vector<RColumn> layout = randomLayout(random, defaults, held);
        const std::optional<bool> recalculation = random.oneOf(3) ? std::nullopt : std::optional(random.oneOf(2));

        const auto read = ReadColumnSettings(WriteColumnSettings(layout, recalculation), layout, defaults);

        ASSERT_EQ(shapesOf(read.Columns), shapesOf(held)) << "seed " << seed;
        ASSERT_EQ(read.Recalculation, recalculation) << "seed " << seed;
        ASSERT_EQ(faultOfLayout(read.Columns, layout, defaults), "") << "seed " << seed;
    }
}

TEST(DocumentProperty, EveryDamagedDocumentGivesALayoutToWorkWith) {
    for (int seed = 0; seed < c_Runs; ++seed) {
        Random random(seed);
        const std::vector<RColumn> defaults = randomColumns(random, 1 + seed / 20);
        const std::vector<RColumn> previous = reboundColumns(defaults);
        std::vector<RColumn> held;
        const AnsiString whole[] = {WriteColumnSettings(randomLayout(random, defaults, held), true),
                                    WriteColumnSettings(randomLayout(random, defaults, held), false)};
        Mutations mutations(static_cast<std::uint64_t>(seed));
        for (int damage = 0; damage < 5; ++damage) {
            const AnsiString document = mutations.next(whole);
            ASSERT_EQ(faultOfLayout(ReadColumnSettings(document, previous, defaults).Columns, previous, defaults), "")
                << "seed " << seed << ":\n"
                << document;
        }
    }
}

TEST(DocumentProperty, ALayoutThatLacksAColumnIsNotOneToWorkWith) {
    const std::vector<RColumn> defaults = columnsOfEveryKind();
    EXPECT_EQ(faultOfLayout(defaults, defaults, defaults), "");
    const auto faultOf = [&](const auto& change) {
        std::vector<RColumn> columns = defaults;
        change(columns);
        return faultOfLayout(columns, defaults, defaults);
    };
    EXPECT_EQ(faultOf([](auto& columns) { columns.pop_back(); }), "there are 5 columns");
    EXPECT_EQ(faultOf([](auto& columns) { columns[2] = columns[1]; }), "NAZEV is placed once too often");
    EXPECT_EQ(faultOf([](auto& columns) { columns[2] = columns[0]; }), "") << "the first one may stand there twice";
    EXPECT_EQ(faultOf([](auto& columns) { columns[2] = columns[3] = columns[0]; }), "DOBSID is placed once too often");
    EXPECT_EQ(faultOf([](auto& columns) { columns[2].Name = "JINY"; }), "no column was built under the name JINY");
    EXPECT_EQ(faultOf([](auto& columns) { columns[3].DataColumn = 5; }), "CENA shows other data");
    EXPECT_EQ(faultOf([](auto& columns) { columns[3].DisplayFormat = ""; }), "CENA is no longer what it was built as");
    EXPECT_EQ(faultOf([](auto& columns) { columns[3].Align = static_cast<TColumnAlign>(3); }),
              "CENA has a state that there is none of");
}

TEST(DocumentProperty, EveryPlacementIsReadBackAsItWasWritten) {
    for (int seed = 0; seed < c_Runs; ++seed) {
        Random random(seed);
        const WindowPlacement placement{random.number(), random.number(), random.number(), random.number(),
                                        random.oneOf(2)};
        ASSERT_EQ(ReadWindowPlacement(WriteWindowPlacement(placement), {.Left = 1, .Top = 2, .Width = 3, .Height = 4}),
                  placement)
            << "seed " << seed;
    }
}

TEST(DocumentProperty, EveryPlacementIsBroughtWithinReachAndThenLeftAlone) {
    constexpr int c_TitleHeight = 24;
    for (int seed = 0; seed < c_Runs; ++seed) {
        Random random(seed);
        std::vector<melvark::ScreenArea> screens;
        for (int left = 1 + random.below(3); left > 0; --left) {
            screens.push_back({random.below(5000) - 2500, random.below(3000) - 1500, 800 + random.below(2000),
                               600 + random.below(1500)});
        }
        const WindowPlacement wanted{random.number(), random.number(), random.number(), random.number()};
        const WindowPlacement place = ReachablePlace(wanted, screens, c_TitleHeight);
        const bool isReachable = std::ranges::any_of(screens, [&](const melvark::ScreenArea& screen) {
            return place.Left < screen.Left + screen.Width && screen.Left < std::int64_t{place.Left} + place.Width &&
                   std::int64_t{place.Top} - c_TitleHeight < screen.Top + screen.Height && screen.Top < place.Top;
        });
        ASSERT_TRUE(isReachable) << "seed " << seed;
        ASSERT_GE(place.Width, 1) << "seed " << seed;
        ASSERT_GE(place.Height, 1) << "seed " << seed;
        ASSERT_EQ(ReachablePlace(place, screens, c_TitleHeight), place) << "seed " << seed;
    }
}

} // namespace
