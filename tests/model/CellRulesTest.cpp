#include "editwin/model/CellRules.h"

#include "tests/model/ColumnsForTests.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using melvark::MayOpen;
using melvark::Reach;

struct OpeningRow {
    const char* remark;
    TColumnType type;
    TEditable editable;
    bool bySelection;
    bool byTraversal;
};

const OpeningRow openingRows[] = {
    {"automatic opens either way", ctNormal, eAuto, true, true},
    {"manual opens when it is picked, traversal passes by", ctNormal, eManual, true, false},
    {"none is only selected", ctNormal, eNone, false, false},
    {"read-only stays so whatever its editability says", ctReadOnly, eAuto, false, false},
    {"read-only manual", ctReadOnly, eManual, false, false},
    {"a key column is never edited", ctHidden, eAuto, false, false},
};

TEST(CellRules, ColumnTypeAndEditabilityDecideHowACellOpens) {
    for (const OpeningRow& row : openingRows) {
        SCOPED_TRACE(row.remark);
        RColumn column = shownColumn("MNOZSTVI", 0);
        column.ColumnType = row.type;
        column.Editable = row.editable;

        EXPECT_EQ(MayOpen(column, Reach::BySelection, nullptr, 1, 1), row.bySelection);
        EXPECT_EQ(MayOpen(column, Reach::ByTraversal, nullptr, 1, 1), row.byTraversal);
    }
}

TEST(CellRules, TheEditorsOwnRuleIsAskedWithTheGridCell) {
    std::vector<int> asked;
    const TIsEditable onlyRowTwo = [&asked](int col, int row) {
        asked.push_back(10 * col + row);
        return row == 2;
    };
    const RColumn column = shownColumn("MNOZSTVI", 0);

    EXPECT_FALSE(MayOpen(column, Reach::BySelection, onlyRowTwo, 6, 1));
    EXPECT_TRUE(MayOpen(column, Reach::ByTraversal, onlyRowTwo, 6, 2));

    EXPECT_EQ(asked, (std::vector<int>{61, 62}));
}

TEST(CellRules, TheEditorsOwnRuleIsNotAskedAboutACellThatCannotOpenAnyway) {
    bool asked = false;
    const TIsEditable rule = [&asked](int, int) { return asked = true; };
    RColumn column = shownColumn("SKLAD", 0);
    column.Editable = eManual;

    EXPECT_FALSE(MayOpen(column, Reach::ByTraversal, rule, 1, 1));

    EXPECT_FALSE(asked);
}

TEST(CellRules, WithoutARuleOfItsOwnAnEditorLetsEveryCellPass) {
    EXPECT_TRUE(melvark::PassesRule(nullptr, 1, 1));
    EXPECT_FALSE(melvark::PassesRule([](int, int) { return false; }, 1, 1));
}

} // namespace
