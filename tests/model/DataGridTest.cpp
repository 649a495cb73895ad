#include "editwin/model/DataGrid.h"

#include <climits>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

/// A store of the given size without a cell.
TDataGrid sizedStore(int cols, int rows) {
    TDataGrid store;
    store.SetColCount(cols);
    store.SetRowCount(rows);
    return store;
}

/// A store of the given size whose cells hold "column.row" and are all marked.
TDataGrid filledStore(int cols, int rows) {
    TDataGrid store = sizedStore(cols, rows);
    for (int col = 0; col < cols; ++col) {
        for (int row = 0; row < rows; ++row) {
            store.SetCells(col, row, std::to_string(col) + "." + std::to_string(row));
        }
    }
    return store;
}

/// A row at a glance: its first `cols` texts, parted by "|", "!" behind a marked one.
AnsiString rowText(const TDataGrid& store, int row, int cols) {
    AnsiString text;
    for (int col = 0; col < cols; ++col) {
        text += (col == 0 ? "" : "|") + store.GetCells(col, row) + (store.GetModified(col, row) ? "!" : "");
    }
    return text;
}

TEST(DataGridCell, IsNotMarkedWhenMadeAndMarkedByEveryValue) {
    TDataGridCell cell("12,5");
    EXPECT_EQ(cell.GetValue(), "12,5");
    EXPECT_FALSE(cell.Modified);

    cell.SetValue("12,5");
    EXPECT_TRUE(cell.Modified) << "the same text counts as a change";
    EXPECT_EQ(cell.GetValue(), "12,5");
}

TEST(DataGrid, NeverWrittenPositionReadsEmptyAndNotModified) {
    TDataGrid store;
    store.SetColCount(2);
    store.SetRowCount(2);

    EXPECT_EQ(store.GetCells(1, 1), "");
    EXPECT_FALSE(store.GetModified(1, 1));
    EXPECT_FALSE(store.HasCell(1, 1));
}

TEST(DataGrid, WritingAValueMarksTheCell) {
    TDataGrid store = sizedStore(2, 3);

    store.SetCells(1, 2, "Praha");

    EXPECT_EQ(store.GetCells(1, 2), "Praha");
    EXPECT_TRUE(store.GetModified(1, 2));
    EXPECT_FALSE(store.GetModified(1, 1));
    EXPECT_FALSE(store.GetModified(0, 2));
}

TEST(DataGrid, WritingTheTextAlreadyStoredStillMarksTheCell) {
    TDataGrid store = sizedStore(1, 1);
    store.SetCells(0, 0, "7");
    store.SetModified(0, 0, false);

    store.SetCells(0, 0, "7");

    EXPECT_TRUE(store.GetModified(0, 0));
}

TEST(DataGrid, ClearingTheMarkOfANeverWrittenPositionMakesNoCell) {
    TDataGrid store;
    store.SetModified(0, 0, false);
    EXPECT_FALSE(store.HasCell(0, 0));
}

TEST(DataGrid, MarkingANeverWrittenPositionMakesAnEmptyCell) {
    TDataGrid store = sizedStore(1, 4);

    store.SetModified(0, 3, true);

    EXPECT_TRUE(store.HasCell(0, 3));
    EXPECT_EQ(store.GetCells(0, 3), "");
    EXPECT_TRUE(store.GetModified(0, 3));
    EXPECT_FALSE(store.HasCell(0, 2)) << "the positions before it stay without one";
}

TEST(DataGrid, DerivedValueLeavesTheMarkAsItWas) {
    TDataGrid store = sizedStore(2, 1);
    store.SetCells(0, 0, "typed");

    store.SetCellWithNoChange(0, 0, "derived");
    store.SetCellWithNoChange(1, 0, "derived");

    EXPECT_EQ(rowText(store, 0, 2), "derived!|derived");
}

TEST(DataGrid, ResetClearsEveryMarkAndKeepsTheValues) {
    TDataGrid store = filledStore(2, 2);
    store.SetColCount(3);

    store.ResetModified();

    EXPECT_EQ(rowText(store, 0, 3), "0.0|1.0|");
    EXPECT_EQ(rowText(store, 1, 3), "0.1|1.1|");
    EXPECT_FALSE(store.HasCell(2, 0)) << "no cells are made";
}

TEST(DataGrid, CountsAreZeroUntilTheyAreFirstSet) {
    TDataGrid store;
    EXPECT_EQ(store.GetColCount(), 0);
    EXPECT_EQ(store.GetRowCount(), 0);

    store.SetColCount(26);

    EXPECT_EQ(store.GetColCount(), 26);
    EXPECT_EQ(store.GetRowCount(), 0) << "counting columns does not count rows";
}

TEST(DataGrid, CountOfZeroLeavesOne) {
    TDataGrid store;
    store.SetRowCount(0);
    store.SetColCount(0);
    EXPECT_EQ(store.GetRowCount(), 1);
    EXPECT_EQ(store.GetColCount(), 1);
}

TEST(DataGrid, RowCountOfZeroEmptiesEveryRow) {
    TDataGrid store = filledStore(2, 3);

    store.SetRowCount(0);

    EXPECT_EQ(store.GetRowCount(), 1);
    store.SetRowCount(3);
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(rowText(store, row, 2), "|") << "row " << row;
    }
}

TEST(DataGrid, RowCountOfZeroEmptiesAStoreOfOneRowToo) {
    TDataGrid store = filledStore(1, 1);
    store.SetRowCount(0);
    EXPECT_FALSE(store.HasCell(0, 0));
}

TEST(DataGrid, ShrinkingEmptiesTheLastKeptRowToo) {
    TDataGrid store = filledStore(2, 5);

    store.SetRowCount(2);
    store.SetRowCount(5);

    EXPECT_EQ(store.GetRowCount(), 5);
    EXPECT_EQ(rowText(store, 0, 2), "0.0!|1.0!");
    for (int row = 1; row < 5; ++row) {
        EXPECT_EQ(rowText(store, row, 2), "|") << "row " << row;
    }
}

TEST(DataGrid, ShrinkingEmptiesTheLastKeptColumnToo) {
    TDataGrid store = filledStore(5, 2);

    store.SetColCount(3);
    store.SetColCount(5);

    for (int row = 0; row < 2; ++row) {
        const AnsiString number = std::to_string(row);
        EXPECT_EQ(rowText(store, row, 5), "0." + number + "!|1." + number + "!|||");
    }
}

TEST(DataGrid, EmptiedPositionStartsAnewWhenItIsMarked) {
    TDataGrid store = filledStore(1, 2);
    store.SetRowCount(1);

    store.SetModified(0, 1, true);

    store.SetRowCount(2);
    EXPECT_EQ(rowText(store, 1, 1), "!") << "the former text is gone";
}

TEST(DataGrid, SettingTheSameCountChangesNothing) {
    TDataGrid store = filledStore(2, 2);

    store.SetRowCount(2);
    store.SetColCount(2);

    EXPECT_EQ(rowText(store, 1, 2), "0.1!|1.1!");
}

TEST(DataGrid, GrowingChangesOnlyTheCount) {
    TDataGrid store = filledStore(2, 1);

    store.SetRowCount(3);
    store.SetColCount(3);

    EXPECT_EQ(store.GetRowCount(), 3);
    EXPECT_EQ(store.GetColCount(), 3);
    EXPECT_EQ(rowText(store, 0, 3), "0.0!|1.0!|");
    EXPECT_FALSE(store.HasCell(0, 2));
}

TEST(DataGrid, WriteOutsideTheCountsIsKeptAndTheCountsDoNotGrow) {
    TDataGrid store = filledStore(2, 2);

    store.SetCells(4, 6, "far");

    EXPECT_TRUE(store.HasCell(4, 6));
    EXPECT_EQ(store.GetColCount(), 2);
    EXPECT_EQ(store.GetRowCount(), 2);
}

TEST(DataGrid, WhatLiesOutsideTheCountsReadsEmptyUntilTheyHaveGrown) {
    TDataGrid store = filledStore(2, 2);
    store.SetCells(4, 1, "right");
    store.SetCells(1, 6, "below");

    EXPECT_EQ(rowText(store, 1, 5), "0.1!|1.1!|||");
    EXPECT_EQ(rowText(store, 6, 2), "|");
    store.SetColCount(5);
    EXPECT_EQ(rowText(store, 1, 5), "0.1!|1.1!|||right!");
    EXPECT_EQ(rowText(store, 6, 2), "|") << "its row is not counted yet";
    store.SetRowCount(7);
    EXPECT_EQ(rowText(store, 6, 2), "|below!");
}

TEST(DataGrid, AFirstCellAmongCountedRowsLeavesTheOthersWithoutOne) {
    TDataGrid store = sizedStore(1, 4);

    store.SetCells(0, 1, "only");

    EXPECT_FALSE(store.HasCell(0, 3));
    store.SetRowCount(3);
    store.SetRowCount(4);
    EXPECT_EQ(rowText(store, 1, 1), "only!");
    EXPECT_FALSE(store.HasCell(0, 2));
}

TEST(DataGrid, DerivedValueOutsideTheCountsLeavesTheMarkAsItWas) {
    TDataGrid store = filledStore(1, 1);
    store.SetCells(0, 1, "typed");

    store.SetCellWithNoChange(0, 1, "derived");
    store.SetCellWithNoChange(0, 2, "derived");

    store.SetRowCount(3);
    EXPECT_EQ(rowText(store, 1, 1), "derived!");
    EXPECT_EQ(rowText(store, 2, 1), "derived");
}

TEST(DataGrid, ShrinkingRowsEmptiesColumnsThatWereNeverCounted) {
    TDataGrid store;
    store.SetRowCount(3);
    store.SetCells(1, 0, "kept");
    store.SetCells(1, 2, "gone");

    store.SetRowCount(2);

    EXPECT_TRUE(store.HasCell(1, 0));
    EXPECT_FALSE(store.HasCell(1, 2));
}

TEST(DataGrid, ShrinkingColumnsEmptiesRowsThatWereNeverCounted) {
    TDataGrid store;
    store.SetColCount(3);
    store.SetCells(0, 1, "kept");
    store.SetCells(2, 1, "gone");

    store.SetColCount(2);

    EXPECT_TRUE(store.HasCell(0, 1));
    EXPECT_FALSE(store.HasCell(2, 1));
}

TEST(DataGrid, ResetClearsTheMarksOfColumnsThatWereNeverCounted) {
    TDataGrid store;
    store.SetRowCount(1);
    store.SetCells(1, 0, "loaded");

    store.ResetModified();

    store.SetColCount(2);
    EXPECT_EQ(rowText(store, 0, 2), "|loaded");
}

TEST(DataGrid, CellOutsideTheCountsOutlivesShrinkingAndReset) {
    TDataGrid store = filledStore(2, 3);
    store.SetCells(0, 6, "far");

    store.SetRowCount(1);
    store.ResetModified();

    store.SetRowCount(7);
    EXPECT_EQ(rowText(store, 6, 2), "far!|") << "cells are kept by their position, whatever the counts";
}

TEST(DataGrid, PositionFarOutsideReadsEmpty) {
    const TDataGrid store = filledStore(1, 1);
    EXPECT_EQ(store.GetCells(INT_MAX, 0), "");
    EXPECT_FALSE(store.GetModified(0, INT_MAX));
}

TEST(DataGrid, NegativePositionReadsEmptyAndRefusesAWrite) {
    TDataGrid store = filledStore(1, 1);
    EXPECT_EQ(store.GetCells(-1, 0), "");
    EXPECT_FALSE(store.GetModified(0, -1));
    EXPECT_THROW(store.SetCells(-1, 0, "x"), std::out_of_range);
    EXPECT_THROW(store.SetModified(0, -1, true), std::out_of_range);
    EXPECT_NO_THROW(store.SetModified(0, -1, false)) << "there is no cell to clear";
}

TEST(DataGrid, TextIsKeptByteForByte) {
    TDataGrid store = sizedStore(1, 1);
    const AnsiString text("  \xC5\x99\0;\n", 7);
    store.SetCells(0, 0, text);
    EXPECT_EQ(store.GetCells(0, 0), text);
}

TEST(DataGrid, AColumnFilledAtOnceIsThoseTextsWithoutMarks) {
    TDataGrid store = filledStore(2, 4);
    store.FillColumn(1, {"a", "", "c"});
    EXPECT_EQ(rowText(store, 0, 2), "0.0!|a");
    EXPECT_EQ(rowText(store, 1, 2), "0.1!|");
    EXPECT_EQ(rowText(store, 2, 2), "0.2!|c");
    EXPECT_EQ(rowText(store, 3, 2), "0.3!|");
    EXPECT_FALSE(store.HasCell(1, 1)) << "an empty text makes no cell";
    EXPECT_FALSE(store.HasCell(1, 3)) << "what was there before is gone";
    store.SetCells(1, 3, "d");
    EXPECT_EQ(rowText(store, 3, 2), "0.3!|d!");
    EXPECT_THROW(store.FillColumn(-1, {}), std::out_of_range);
}

TEST(DataGrid, AColumnsTextsAreThoseOfItsCountedRowsUpToTheLastCell) {
    TDataGrid store = sizedStore(2, 3);
    store.SetCells(0, 1, "b");
    store.SetCells(0, 7, "beyond the rows");
    store.SetCells(5, 0, "beyond the columns");
    const auto texts = store.ColumnTexts(0);
    EXPECT_EQ(std::vector<AnsiString>(texts.begin(), texts.end()), (std::vector<AnsiString>{"", "b", ""}));
    EXPECT_TRUE(store.ColumnTexts(1).empty()) << "no cell";
    EXPECT_TRUE(store.ColumnTexts(5).empty()) << "not counted";
    EXPECT_TRUE(store.ColumnTexts(-1).empty());
}

TEST(DataGrid, TenThousandRowsOfThirtyColumnsKeepEachValueAtItsPlace) {
    const int cols = 30;
    const int rows = 10'000;
    TDataGrid store = filledStore(cols, rows);
    store.ResetModified();
    store.SetCells(29, 9'999, "last");

    EXPECT_EQ(store.GetCells(0, 0), "0.0");
    EXPECT_EQ(store.GetCells(17, 4'321), "17.4321");
    int marked = 0;
    for (int col = 0; col < cols; ++col) {
        for (int row = 0; row < rows; ++row) {
            marked += store.GetModified(col, row) ? 1 : 0;
        }
    }
    EXPECT_EQ(marked, 1);
}

} // namespace
