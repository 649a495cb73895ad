#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QTest>

#include <gmock/gmock.h>

class GridPresentation : public EditBoxTest {
protected:
    /// The look of a cell: text, then "<", "|" or ">" for its place, then "*" when bold.
    AnsiString look(int col, int row) {
        const TCellLook shown = form->StringGridDrawCell(col, row);
        const AnsiString place = shown.Align == Qt::AlignLeft ? "<" : shown.Align == Qt::AlignRight ? ">" : "|";
        return shown.Text + place + (shown.Bold ? "*" : "");
    }

    void hover(int col, int row) {
        const QPoint place = cellCentre(col, row);
        QWidget* const part = grid().childAt(place);
        // Sent, not moved there: a pointer that already stands in the place would not move.
        QMouseEvent event(QEvent::MouseMove, part->mapFrom(&grid(), place), grid().mapToGlobal(place), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(part, &event);
    }
};

TEST_F(GridPresentation, ShowsTheVisibleColumnsAndTheStoresTexts) {
    open();
    EXPECT_EQ(rowText(0), "Název|Počet|Cena|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(rowText(1), "Šroub|5|1234,5|1.2.2027|Hlavní|A1|první|x");
    EXPECT_EQ(rowText(3), "Podložka||||Zrušený|C3||z");
    EXPECT_EQ(grid().ColWidths(0), 10);
    EXPECT_EQ(grid().ColWidths(c_NameCol), 90);
    EXPECT_EQ(grid().ColWidths(c_CodeCol), 40);
    EXPECT_EQ(grid().RowCount(), 4);
}

TEST_F(GridPresentation, AStoreWithoutRowsShowsOneEmptyRow) {
    make();
    form->DataGrid().SetRowCount(0);
    form->show();
    EXPECT_EQ(grid().RowCount(), 2);
    EXPECT_EQ(rowText(1), "|||||||");
}

TEST_F(GridPresentation, AStoreThatWasNeverSizedShowsOneEmptyRowToo) {
    TEditBox plain(nullptr, &manager, 30, "ZKOUSKA", 2, "SABLONA", "novak", testColumns(log));
    ASSERT_EQ(plain.DataGrid().GetRowCount(), 0);
    plain.show();
    EXPECT_EQ(plain.StringGrid->RowCount(), 2);
    EXPECT_EQ(plain.EditRow(), 1);
}

TEST_F(GridPresentation, AColumnOfTheHiddenTypeHasNeitherPlaceNorItem) {
    open();
    EXPECT_EQ(form->GetColumnByName("ID"), 0);
    EXPECT_EQ(form->findChild<QAction*>(QStringLiteral("HiddenColumnID")), nullptr);
    EXPECT_EQ(form->SkryteSloupce->actions().size(), 1);
}

TEST_F(GridPresentation, ApplyingAgainShowsWhatTheStoreHolds) {
    open();
    ASSERT_TRUE(form->HideEditor());
    form->DataGrid().SetRowCount(4);
    form->DataGrid().SetCells(8, 3, "Nýt");
    form->ApplyColumnsSettingsToGrid();
    EXPECT_EQ(grid().RowCount(), 5);
    EXPECT_EQ(rowText(4), "Nýt|||||||");
    EXPECT_EQ(form->SkryteSloupce->actions().size(), 1);
}

TEST_F(GridPresentation, ValuesAppearInTheirFormatAndPlace) {
    open();
    // The money form: groups by a no-break space, two decimals, the currency behind a no-break space.
    EXPECT_EQ(look(c_PriceCol, 1), "1\u00a0234,50\u00a0Kč>");
    EXPECT_EQ(grid().Cells(c_PriceCol, 1), "1234,5") << "the cell keeps the plain number";
    EXPECT_EQ(look(c_PriceCol, 3), ">") << "an empty text has no form";
    EXPECT_EQ(look(c_CountCol, 1), "5|");
    EXPECT_EQ(look(c_NameCol, 1), "Šroub<");
}

TEST_F(GridPresentation, AValueThatDoesNotConvertIsShownAsItIs) {
    make();
    form->DataGrid().SetCellWithNoChange(6, 0, "zdarma");
    form->show();
    EXPECT_EQ(look(c_PriceCol, 1), "zdarma>");
}

TEST_F(GridPresentation, APercentFormatShowsThePercentSign) {
    make();
    form->show();
    form->ShowGridColumn(form->findChild<QAction*>(QStringLiteral("HiddenColumnSLEVA")));
    EXPECT_EQ(look(9, 1), "10,00 %>");
}

TEST_F(GridPresentation, CellsThatTheUserChangedAreBold) {
    open();
    EXPECT_EQ(look(c_CountCol, 1), "5|");
    openCell(c_CountCol, 1);
    type(QStringLiteral("6"));
    ASSERT_TRUE(form->HideEditor());
    EXPECT_EQ(look(c_CountCol, 1), "6|*");
    EXPECT_EQ(look(c_CountCol, 2), "6|");
    form->DataGrid().SetCellWithNoChange(6, 0, "7");
    EXPECT_EQ(look(c_PriceCol, 1).back(), '>') << "a value that the program worked out is no change";
}

TEST_F(GridPresentation, TheHeaderUnderTheMouseGivesTheHint) {
    open();
    hover(c_NameCol, 0);
    EXPECT_EQ(grid().Hint(), "Název položky");
    hover(c_PriceCol, 0);
    EXPECT_EQ(grid().Hint(), "Cena za kus");
}

TEST_F(GridPresentation, AHeaderWithoutHintKeepsTheHintOfTheColumnBefore) {
    open();
    hover(c_PriceCol, 0);
    hover(c_WarehouseCol, 0);
    EXPECT_EQ(grid().Hint(), "Cena za kus");
}

TEST_F(GridPresentation, AnywhereElseThereIsNoHint) {
    open();
    const std::pair<int, int> places[] = {{c_PriceCol, 1}, {0, 0}, {0, 2}};
    for (const auto& [col, row] : places) {
        hover(c_PriceCol, 0);
        ASSERT_EQ(grid().Hint(), "Cena za kus");
        hover(col, row);
        EXPECT_EQ(grid().Hint(), "") << col << "," << row;
    }
}

TEST_F(GridPresentation, TheHintIsThatOfTheShownColumnWhenOthersAreHidden) {
    open();
    openColumnMenu(c_NameCol);
    pick(form->SkrytSloupec);
    hover(2, 0);
    EXPECT_EQ(grid().Hint(), "Cena za kus");
}

TEST_F(GridPresentation, APointerThatLeavesTheHeaderTakesTheHintAlong) {
    open();
    hover(c_PriceCol, 0);
    ASSERT_EQ(grid().Hint(), "Cena za kus");
    QWidget* const header = grid().childAt(cellCentre(c_PriceCol, 0));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(header, &leave);
    EXPECT_EQ(grid().Hint(), "");
}

TEST_F(GridPresentation, PaintingOpensNoEditor) {
    open();
    // The grid has the focus on a cell whose editor did not open; now it could.
    form->SetOnIsEditable([](int, int) { return false; });
    click(c_NoteCol, 2);
    settle();
    ASSERT_EQ(openCellText(), "none");
    ASSERT_EQ(form->focusWidget(), &grid());
    form->SetOnIsEditable(nullptr);
    grid().viewport()->repaint();
    grid().grab();
    settle();
    EXPECT_EQ(openCellText(), "none");
    click(c_NoteCol, 2);
    settle();
    EXPECT_EQ(openCellText(), "7,2") << "a click on the very cell opens it";
}
