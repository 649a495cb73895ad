#include "editwin/model/ColumnList.h"

#include "tests/model/ColumnsForTests.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

using namespace melvark;

/// Three columns are shown: A, C and E. D claims to be visible but is of the hidden type.
std::vector<RColumn> sampleColumns() {
    return {keyColumn("KEY", 0), shownColumn("A", 1),     hiddenColumn("B", 2),
            shownColumn("C", 3), keyColumn("D", 4, true), shownColumn("E", 5)};
}

TEST(ColumnList, GridColumnsAreTheShownColumnsCountedFromOne) {
    struct Row {
        const char* remark;
        int gridColumn;
        int activeIndex;
    };
    const Row rows[] = {
        {"the indicator column shows none", 0, -1},
        {"the key column before it does not count", 1, 1},
        {"nor does a column hidden by the user", 2, 3},
        {"nor a visible one of the hidden type", 3, 5},
        {"one more than are shown", 4, -1},
        {"no such grid column", -1, -1},
    };
    const auto columns = sampleColumns();

    for (const Row& row : rows) {
        SCOPED_TRACE(row.remark);
        EXPECT_EQ(VisibleColumnIndex(columns, row.gridColumn), row.activeIndex);
    }
    EXPECT_EQ(VisibleColumnCount(columns), 3);
    EXPECT_EQ(VisibleColumnCount({}), 0);
}

TEST(ColumnList, AColumnIsShownFromFourToTenThousandPixelsWide) {
    const std::pair<int, int> rows[] = {{-5, 4},      {0, 4},         {4, 4},         {5, 5},
                                        {9999, 9999}, {10000, 10000}, {10001, 10000}, {2147483647, 10000}};
    for (const auto& [stored, shown] : rows) {
        EXPECT_EQ(ShownWidth({.Width = stored}), shown) << stored;
    }
}

TEST(ColumnList, EveryShownColumnOfADataColumnIsFound) {
    auto columns = sampleColumns();
    columns.push_back(shownColumn("A2", 1));
    const auto gridColumnsOf = [&](int dataColumn) { return GridColumnsOfData(columns, dataColumn); };

    EXPECT_EQ(gridColumnsOf(3), std::vector{2});
    EXPECT_EQ(gridColumnsOf(1), (std::vector{1, 4})) << "two columns show the same data";
    EXPECT_EQ(gridColumnsOf(2), std::vector<int>{}) << "hidden by the user";
    EXPECT_EQ(gridColumnsOf(4), std::vector<int>{}) << "of the hidden type";
    EXPECT_EQ(gridColumnsOf(9), std::vector<int>{}) << "bound to none";
}

TEST(ColumnList, NamedColumnIsFoundAtItsGridColumn) {
    struct Row {
        const char* remark;
        const char* name;
        int gridColumn;
    };
    const Row rows[] = {
        {"first shown", "A", 1},
        {"behind a hidden one", "C", 2},
        {"behind one of the hidden type", "E", 3},
        {"hidden by the user", "B", 0},
        {"of the hidden type, though visible", "D", 0},
        {"unknown, the same answer as hidden", "X", 0},
        {"names are compared with regard to case", "a", 0},
        {"a part of a name is no name", "KE", 0},
        {"the empty name", "", 0},
    };
    const auto columns = sampleColumns();

    for (const Row& row : rows) {
        SCOPED_TRACE(row.remark);
        EXPECT_EQ(ColumnByName(columns, row.name), row.gridColumn);
    }
}

TEST(ColumnList, FirstColumnOfANameIsTheOneFound) {
    std::vector<RColumn> columns = {shownColumn("A", 4), shownColumn("B", 1), shownColumn("A", 0)};

    EXPECT_EQ(FindByName(columns, "A"), &columns[0]);
    EXPECT_EQ(FindByName(columns, "C"), nullptr);
    EXPECT_EQ(ColumnByName(columns, "A"), 1);
}

TEST(ColumnList, DataColumnIsFoundWhereverItsColumnStands) {
    const std::vector<RColumn> columns = {shownColumn("A", 2), hiddenColumn("B", 0), shownColumn("C", 2)};

    EXPECT_EQ(FindByDataColumn(columns, 0), &columns[1]) << "hidden columns have data too";
    EXPECT_EQ(FindByDataColumn(columns, 2), &columns[0]) << "the first match";
    EXPECT_EQ(FindByDataColumn(columns, 1), nullptr);
    EXPECT_EQ(DataColumnSettings(columns, 2).Name, "A");
    EXPECT_EQ(DataColumnSettings(columns, 7).DataColumn, -1);
}

TEST(ColumnList, EveryNameOfTheListIsValidInItsOwnLettersOnly) {
    const auto defaults = sampleColumns();

    for (const RColumn& column : defaults) {
        EXPECT_TRUE(IsValidName(defaults, column.Name)) << column.Name;
    }
    EXPECT_FALSE(IsValidName(defaults, "e"));
    EXPECT_FALSE(IsValidName(defaults, "KE"));
    EXPECT_FALSE(IsValidName(defaults, ""));
}

TEST(ColumnList, ColumnThatTheActiveListLacksIsTakenFromTheDefaults) {
    std::vector<RColumn> defaults = {shownColumn("A", 0), shownColumn("B", 1)};
    std::vector<RColumn> active = {shownColumn("A", 0), shownColumn("A", 0)};
    active[0].Caption = "renamed";

    EXPECT_EQ(ColumnSettings(active, defaults, "A").Caption, "renamed");
    EXPECT_EQ(ColumnSettings(active, defaults, "B").DataColumn, 1);
    EXPECT_EQ(ColumnSettings(active, defaults, "X").Name, "");
    EXPECT_EQ(ColumnSettings(active, defaults, "X").DataColumn, -1) << "a column of no data rather than of a wrong one";
}

TEST(ColumnList, DraggedColumnTakesTheActivePlaceOfTheColumnItIsDroppedOn) {
    struct Row {
        const char* remark;
        int from;
        int to;
        bool moved;
        const char* layout;
    };
    const Row rows[] = {
        {"right by one, over the hidden B", 1, 2, true, "KEY# (B) C A D# E"},
        {"right to the end", 1, 3, true, "KEY# (B) C D# E A"},
        {"left by one", 2, 1, true, "KEY# C A (B) D# E"},
        {"left from the end, before everything but the key", 3, 1, true, "KEY# E A (B) C D#"},
        {"dropped where it was", 2, 2, true, "KEY# A (B) C D# E"},
        {"the indicator column does not move", 0, 2, false, "KEY# A (B) C D# E"},
        {"nor is anything moved before it", 2, 0, false, "KEY# A (B) C D# E"},
        {"no such grid column", 1, 4, false, "KEY# A (B) C D# E"},
    };

    for (const Row& row : rows) {
        SCOPED_TRACE(row.remark);
        auto columns = sampleColumns();
        EXPECT_EQ(MoveColumn(columns, row.from, row.to), row.moved);
        EXPECT_EQ(layoutOf(columns), row.layout);
        if (row.moved) {
            EXPECT_EQ(VisibleColumnIndex(columns, row.to), VisibleColumnIndex(sampleColumns(), row.to))
                << "the moved column stands where grid column `to` stood";
        }
    }
}

TEST(ColumnList, MovingKeepsEveryColumnAtItsData) {
    auto columns = sampleColumns();

    MoveColumn(columns, 3, 1);

    EXPECT_EQ(layoutOf(columns), "KEY# E A (B) C D#");
    EXPECT_EQ(dataColumnsOf(columns), "0 5 1 2 3 4");
}

TEST(ColumnList, PlaceOfAColumnShownAgainCountsTheShownColumnsBefore) {
    struct Row {
        const char* remark;
        int activeIndex;
        int place;
    };
    const Row rows[] = {
        {"nothing before it", 0, 1},
        {"only a key column before it", 1, 1},
        {"B, shown again, stands behind A", 2, 2},
        {"a hidden column does not count", 3, 2},
        {"a visible column of the hidden type does not count, or header and data would part", 5, 3},
    };
    const auto columns = sampleColumns();

    for (const Row& row : rows) {
        SCOPED_TRACE(row.remark);
        EXPECT_EQ(PlaceOfShownColumn(columns, row.activeIndex), row.place);
    }
}

TEST(ColumnList, ColumnShownAgainIsFoundAtThePlaceThatWasOpenedForIt) {
    auto columns = sampleColumns();
    const int place = PlaceOfShownColumn(columns, 2);

    columns[2].Visible = true;

    EXPECT_EQ(VisibleColumnIndex(columns, place), 2);
}

TEST(ColumnList, MenuItemOfANewlyHiddenColumnFollowsTheOrderOfTheColumns) {
    struct Row {
        const char* remark;
        std::vector<RColumn> columns;
        int activeIndex;
        int place;
    };
    const Row rows[] = {
        {"the first hidden one", {keyColumn("KEY", 0), shownColumn("A", 1), shownColumn("B", 2)}, 2, 0},
        {"behind an item to its left", {keyColumn("KEY", 0), hiddenColumn("A", 1), shownColumn("B", 2)}, 2, 1},
        {"before an item to its right", {keyColumn("KEY", 0), shownColumn("A", 1), hiddenColumn("B", 2)}, 1, 0},
        {"a key column has no item", {shownColumn("A", 0), keyColumn("KEY", 1), shownColumn("B", 2)}, 2, 0},
        {"the first active column is left out of the count, though it has an item",
         {hiddenColumn("A", 0), hiddenColumn("B", 1), shownColumn("C", 2)},
         2,
         1},
        {"the first active column itself", {shownColumn("A", 0), hiddenColumn("B", 1)}, 0, 0},
        {"two items to the left",
         {keyColumn("KEY", 0), hiddenColumn("A", 1), shownColumn("B", 2), hiddenColumn("C", 3), shownColumn("D", 4)},
         4,
         2},
    };

    for (const Row& row : rows) {
        SCOPED_TRACE(row.remark);
        EXPECT_EQ(PlaceOfHiddenItem(row.columns, row.activeIndex), row.place);
    }
}

TEST(ColumnList, ReturningToTheDefaultsKeepsTheBindingToTheData) {
    // given: the columns were built with A at 0, B at 1, C at 2, and the data have changed places since
    const std::vector<RColumn> defaults = {shownColumn("A", 0), shownColumn("B", 1), shownColumn("C", 2)};
    std::vector<RColumn> active = {hiddenColumn("C", 0), shownColumn("A", 2), shownColumn("B", 1)};
    active[1].Caption = "renamed";

    // when
    const std::vector<RColumn> reset = DefaultsWithDataOf(active, defaults);

    // then: built-in order and texts, the data of the active list
    EXPECT_EQ(layoutOf(reset), "A B C");
    EXPECT_EQ(reset[0].Caption, "");
    EXPECT_EQ(dataColumnsOf(reset), "2 1 0");
}

TEST(ColumnList, ColumnThatTheActiveListLacksKeepsItsBuiltInDataOnReturningToTheDefaults) {
    const std::vector<RColumn> defaults = {shownColumn("A", 0), shownColumn("B", 1), shownColumn("C", 2)};
    const std::vector<RColumn> active = {shownColumn("A", 0), shownColumn("A", 0), shownColumn("B", 1)};

    EXPECT_EQ(dataColumnsOf(DefaultsWithDataOf(active, defaults)), "0 1 2");
}

} // namespace
