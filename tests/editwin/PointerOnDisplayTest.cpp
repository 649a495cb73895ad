#include "editwin/AskingCheckBox.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"
#include "tests/widgets/RealInput.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

/// The mouse as the clerk moves it, through the display, while a cell of the second row is open.
class PointerOnDisplay : public EditBoxTest {
protected:
    static constexpr int c_Wheel = 5; ///< The wheel turned towards the clerk.

    /// A form with more rows and columns than it can show.
    void openLong() {
        make();
        form->DataGrid().SetRowCount(100);
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        grid().SetColWidths(c_KindCol, 900);
        settle();
    }

    void clickCell(int col, int row, int button = 1) { realinput::click(grid(), cellCentre(col, row), button); }

    /// Opens a cell by a click and types one letter into it.
    void openAndType(int col, int row, const char* letter) {
        clickCell(col, row);
        const AnsiString wanted = std::to_string(col) + "," + std::to_string(row);
        ASSERT_TRUE(QTest::qWaitFor([&] { return openCellText() == wanted; })) << wanted;
        realinput::key(QString::fromLatin1(letter));
        ASSERT_TRUE(QTest::qWaitFor([&] { return sharedEdit().text() == QLatin1String(letter); }));
    }

    static void doubleClick(const QWidget& part, QPoint place) {
        realinput::moveTo(part, place);
        realinput::run({QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
                        QStringLiteral("--delay"), QStringLiteral("60"), QStringLiteral("1")});
    }

    void expectBadCountStillOpen() {
        settle();
        EXPECT_THAT(manager.boxes(), IsEmpty());
        EXPECT_EQ(openCellText(), "2,2");
        EXPECT_EQ(sharedEdit().text(), QStringLiteral("x"));
        EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
        EXPECT_EQ(grid().Col(), c_CountCol);
        EXPECT_EQ(grid().Row(), 2);
        EXPECT_EQ(stored(7, 1), "6");
    }
};

TEST_F(PointerOnDisplay, DraggingAScrollBarKeepsTheOpenCellItsTextAndTheView) {
    openLong();
    openAndType(c_CountCol, 2, "x");
    QScrollBar& down = *grid().verticalScrollBar();
    QScrollBar& right = *grid().horizontalScrollBar();
    realinput::dragTo(down, QPoint(down.width() / 2, 25), QPoint(down.width() / 2, 110));
    ASSERT_TRUE(QTest::qWaitFor([&] { return down.value() > 0; }));
    realinput::dragTo(right, QPoint(40, right.height() / 2), QPoint(200, right.height() / 2));
    ASSERT_TRUE(QTest::qWaitFor([&] { return right.value() > 0; }));
    const QPoint view(right.value(), down.value());
    expectBadCountStillOpen();
    EXPECT_EQ(QPoint(right.value(), down.value()), view);
    realinput::key(QStringLiteral("Return"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !manager.boxes().empty(); }));
    settle();
    EXPECT_THAT(manager.boxes(), ElementsAre("16: Hodnota x není celé číslo"));
    EXPECT_FALSE(grid().CellRect(c_CountCol, 2).isNull()) << "the refused cell has come back into view";
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
}

TEST_F(PointerOnDisplay, HeaderIndicatorAndTheAreaBesideTheCellsAreNoLeaving) {
    open();
    openAndType(c_CountCol, 2, "x");
    QWidget& header = *grid().horizontalHeader()->viewport();
    QWidget& indicator = *grid().verticalHeader()->viewport();
    QWidget& cells = *grid().viewport();
    const std::pair<QWidget*, QPoint> places[] = {{&header, QPoint(30, 8)},
                                                  {&header, QPoint(header.width() - 10, 8)},
                                                  {grid().childAt(cellCentre(0, 0)), QPoint(5, 5)},
                                                  {&indicator, QPoint(5, 30)},
                                                  {&indicator, QPoint(5, indicator.height() - 10)},
                                                  {&cells, QPoint(20, cells.height() - 10)},
                                                  {&cells, QPoint(cells.width() - 10, 10)},
                                                  {form->MainPanel, QPoint(2, 60)},
                                                  {form->ButtonPanel, QPoint(50, 300)}};
    for (const auto& [part, place] : places) {
        realinput::click(*part, place);
        expectBadCountStillOpen();
        doubleClick(*part, place);
        expectBadCountStillOpen();
    }
    clickCell(c_NoteCol, 1, 3);
    clickCell(c_CodeCol, 1, 2);
    expectBadCountStillOpen();
    realinput::dragTo(cells, QPoint(20, cells.height() - 10), cells.mapFrom(&grid(), cellCentre(c_NoteCol, 1)));
    expectBadCountStillOpen();
    EXPECT_FALSE(form->ColumnsPopupMenu->isVisible());
}

TEST_F(PointerOnDisplay, AHeaderDraggedWhileACellIsOpenTakesTheEditorAlong) {
    open();
    openAndType(c_CountCol, 2, "x");
    const QWidget& header = *grid().horizontalHeader()->viewport();
    const auto middle = [&](int col) { return header.mapFrom(&grid(), cellCentre(col, 0)); };
    realinput::dragTo(header, middle(c_CountCol), middle(c_DateCol) + QPoint(25, 0));
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->GetColumnByName("POCET") == 4; }));
    settle();
    EXPECT_EQ(openCellText(), "4,2");
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("x"));
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
    EXPECT_EQ(sharedEdit().pos(), grid().mapTo(form.get(), QPoint(2, 2)) + grid().CellRect(4, 2).topLeft());
    EXPECT_THAT(manager.boxes(), IsEmpty());
}

TEST_F(PointerOnDisplay, TheWheelOverTheOpenEditorScrollsTheGridAndChangesNothing) {
    openLong();
    openAndType(c_CountCol, 2, "x");
    realinput::click(sharedEdit(), QPoint(8, 8), c_Wheel);
    ASSERT_TRUE(QTest::qWaitFor([&] { return grid().verticalScrollBar()->value() > 0; }));
    expectBadCountStillOpen();
    grid().verticalScrollBar()->setValue(0);
    sharedEdit().setText(QStringLiteral("6"));

    clickCell(c_WarehouseCol, 2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return openCellText() == "5,2"; }));
    realinput::click(combo(), QPoint(8, 8), c_Wheel);
    ASSERT_TRUE(QTest::qWaitFor([&] { return grid().verticalScrollBar()->value() > 0; }));
    EXPECT_EQ(combo().currentText(), QStringLiteral("Vedlejší"));
    EXPECT_EQ(openCellText(), "5,2");
    EXPECT_EQ(QApplication::focusWidget(), &combo());
}

TEST_F(PointerOnDisplay, TheSwitchFlipsAfterTheCommitAndStaysOnARefusedValue) {
    open();
    std::vector<bool> seen;
    log.answer = [&] {
        seen.push_back(form->GetPrepocetCen());
        return true;
    };
    const QPoint mark(8, form->chbPrepocetCen->height() / 2);
    openAndType(c_CountCol, 2, "3");
    realinput::click(*form->chbPrepocetCen, mark);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !form->GetPrepocetCen(); }));
    EXPECT_EQ(seen, std::vector<bool>{true});
    EXPECT_EQ(stored(7, 1), "3");

    openAndType(c_CountCol, 2, "x");
    realinput::click(*form->chbPrepocetCen, mark);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !manager.boxes().empty(); }));
    settle();
    EXPECT_EQ(manager.boxes().size(), 1U);
    EXPECT_FALSE(form->GetPrepocetCen());
    EXPECT_EQ(openCellText(), "2,2");
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
}

TEST_F(PointerOnDisplay, ADoubleClickOnAnotherCellCommitsOnceAndOpensThatCell) {
    open();
    openAndType(c_CountCol, 2, "3");
    doubleClick(grid(), cellCentre(c_NoteCol, 1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return openCellText() == "7,1"; }));
    settle();
    EXPECT_THAT(log.lines, ElementsAre("2,2=3"));
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());

    openAndType(c_CountCol, 2, "x");
    doubleClick(grid(), cellCentre(c_CodeCol, 1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !manager.boxes().empty(); }));
    settle();
    EXPECT_EQ(openCellText(), "2,2");
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("x"));
}

TEST_F(PointerOnDisplay, TheMenuButtonShowsItsMenuBeforeARefusedValueIsReported) {
    open();
    form->SettingsPopupMenu->addAction(QStringLiteral("vzor"));
    openAndType(c_CountCol, 2, "x");
    realinput::click(*form->MenuBtn, form->MenuBtn->rect().center());
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->SettingsPopupMenu->isVisible(); }));
    settle();
    EXPECT_THAT(manager.boxes(), IsEmpty());
    realinput::key(QStringLiteral("Escape"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !manager.boxes().empty(); }));
    settle();
    EXPECT_EQ(manager.boxes().size(), 1U);
    EXPECT_EQ(openCellText(), "2,2");
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
}

TEST_F(PointerOnDisplay, TheHintGoesWhenThePointerLeavesTheHeader) {
    openLong();
    const QWidget& header = *grid().horizontalHeader()->viewport();
    const std::pair<QWidget*, QPoint> places[] = {
        {form->chbPrepocetCen, QPoint(60, 8)}, {grid().verticalScrollBar(), QPoint(5, 3)}, {form->OkBtn, QPoint(5, 5)}};
    for (const auto& [part, place] : places) {
        const QPoint overPrice = header.mapFrom(&grid(), cellCentre(c_PriceCol, 0));
        realinput::moveTo(header, overPrice);
        realinput::moveTo(header, overPrice + QPoint(3, 0));
        ASSERT_TRUE(QTest::qWaitFor([&] { return grid().Hint() == "Cena za kus"; }));
        realinput::moveTo(*part, place);
        EXPECT_TRUE(QTest::qWaitFor([&] { return grid().Hint().empty(); })) << qPrintable(part->objectName());
    }
}
