#include "editwin/CellWriter.h"

#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace {

constexpr int c_NameData = 8;
constexpr int c_PriceData = 6;
constexpr int c_CodeData = 3;
constexpr int c_DiscountData = 0;

class CellWriter : public EditBoxTest {
protected:
    melvark::CellWriter& cells() { return form->Cells(); }
    bool isMarked(int dataColumn, int row) const { return form->DataGrid().GetModified(dataColumn, row); }
};

TEST_F(CellWriter, ATypedValueIsStoredMarkedAndShown) {
    open();
    cells().WriteTyped(c_CodeData, 2, "X9");
    EXPECT_EQ(stored(c_CodeData, 2), "X9");
    EXPECT_TRUE(isMarked(c_CodeData, 2));
    EXPECT_EQ(grid().Cells(c_CodeCol, 3), "X9");
    EXPECT_EQ(rowText(2), "Matice|6|2||vedlejší|B2||y") << "no other row";
}

TEST_F(CellWriter, ADerivedValueLeavesTheMarkAsItWas) {
    open();
    cells().WriteTyped(c_CodeData, 1, "typed");
    cells().WriteDerived(c_CodeData, 1, "derived");
    cells().WriteDerived(c_PriceData, 1, "3,50");
    EXPECT_TRUE(isMarked(c_CodeData, 1));
    EXPECT_FALSE(isMarked(c_PriceData, 1));
    EXPECT_EQ(stored(c_PriceData, 1), "3,50");
    EXPECT_EQ(rowText(2), "Matice|6|3,50||vedlejší|derived||y");
}

TEST_F(CellWriter, AShownTextIsNotStored) {
    open();
    cells().Show(c_PriceData, 1, "2,00");
    EXPECT_EQ(grid().Cells(c_PriceCol, 2), "2,00");
    EXPECT_EQ(stored(c_PriceData, 1), "2");
    EXPECT_FALSE(isMarked(c_PriceData, 1));
}

TEST_F(CellWriter, TheGridShowsTheStoresTextsWithoutACopy) {
    open();
    cells().WriteTyped(c_PriceData, 1, "2,50");
    cells().WriteDerived(c_CodeData, 1, "C3");
    const auto& store = std::as_const(form->DataGrid());
    EXPECT_EQ(&grid().Cells(c_PriceCol, 2), &store.GetCells(c_PriceData, 1));
    EXPECT_EQ(&grid().Cells(c_CodeCol, 2), &store.GetCells(c_CodeData, 1));
    EXPECT_EQ(&grid().Cells(c_NameCol, 3), &store.GetCells(c_NameData, 2));
}

TEST_F(CellWriter, AShownTextGivesWayToTheNextStoredOne) {
    open();
    cells().Show(c_PriceData, 1, "2,00");
    cells().WriteDerived(c_PriceData, 1, "2");
    EXPECT_EQ(grid().Cells(c_PriceCol, 2), "2");
    cells().Show(c_PriceData, 1, "2,00");
    cells().ShowColumn(c_PriceData);
    EXPECT_EQ(grid().Cells(c_PriceCol, 2), "2");
}

TEST_F(CellWriter, AValueFollowsItsColumnToWhereverItWasMoved) {
    open();
    grid().MoveColumn(c_PriceCol, c_NameCol);
    form->StringGridColumnMoved(c_PriceCol, c_NameCol);
    cells().WriteDerived(c_PriceData, 1, "7,00");
    EXPECT_EQ(rowText(2), "7,00|Matice|6||vedlejší|B2||y");
}

TEST_F(CellWriter, AValueOfAHiddenColumnIsOnlyStoredUntilTheColumnIsShown) {
    open();
    cells().WriteDerived(c_DiscountData, 1, "12,5");
    EXPECT_EQ(rowText(2), "Matice|6|2||vedlejší|B2||y");
    EXPECT_EQ(stored(c_DiscountData, 1), "12,5");
    pick(form->SkryteSloupce->actions().front());
    EXPECT_EQ(rowText(2), "Matice|6|2||vedlejší|B2||y|12,5");
}

TEST_F(CellWriter, EveryColumnOfTheSameDataShowsTheValue) {
    std::vector<RColumn> columns = testColumns(log);
    columns.push_back(RColumn{.Name = "NAZEV2", .Visible = true, .ColumnType = ctReadOnly, .DataColumn = c_NameData});
    form = std::make_unique<TestEditBox>(&manager, columns);
    form->show();
    cells().WriteTyped(c_NameData, 1, "Nýt");
    EXPECT_EQ(rowText(2), "Nýt|6|2||vedlejší|B2||y|Nýt");
    cells().Show(c_NameData, 1, "nýt");
    EXPECT_EQ(rowText(2), "nýt|6|2||vedlejší|B2||y|nýt");
}

TEST_F(CellWriter, TheGridGetsTheStoresRowsWhenAllIsShown) {
    open();
    form->DataGrid().SetRowCount(5);
    cells().WriteTyped(c_NameData, 4, "Nýt");
    EXPECT_EQ(grid().RowCount(), 4);
    cells().ShowAll();
    EXPECT_EQ(grid().RowCount(), 6);
    EXPECT_EQ(rowText(4), "|||||||");
    EXPECT_EQ(rowText(5), "Nýt|||||||");
}

} // namespace
