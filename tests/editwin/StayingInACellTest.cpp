#include "host/widgets/StringGrid.h"
#include "tests/editwin/EditedCell.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>
#include <tuple>

namespace {

/// What the clerk may do with the mouse while a cell is open, without leaving it.
enum class Act {
    ScrollDown,
    ScrollRight,
    PressHeader,
    PressCorner,
    PressIndicator,
    PressBesideTheCells,
    RightClickHeader,
    RightClickCell,
    MiddleClickCell,
    SizeColumn,
    TurnWheelOverEditor,
    TurnWheelOverCells,
    LookIntoOtherWindow
};

const char* const c_Acts[] = {"ScrollDown",         "ScrollRight",         "PressHeader",         "PressCorner",
                              "PressIndicator",     "PressBesideTheCells", "RightClickHeader",    "RightClickCell",
                              "MiddleClickCell",    "SizeColumn",          "TurnWheelOverEditor", "TurnWheelOverCells",
                              "LookIntoOtherWindow"};

bool scrollsDown(Act act) {
    return act == Act::ScrollDown || act == Act::TurnWheelOverEditor || act == Act::TurnWheelOverCells;
}

} // namespace

class StayingInACell : public EditedCellTest, public testing::WithParamInterface<std::tuple<Act, EditedCellCase>> {
protected:
    Act act() const { return std::get<0>(GetParam()); }

    void openWithRoomToScroll() {
        make();
        if (scrollsDown(act())) {
            form->DataGrid().SetRowCount(100);
        }
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        settle();
        if (act() == Act::ScrollRight) {
            grid().SetColWidths(c_KindCol, 900);
        }
    }

    void clickPart(QWidget* part, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
        ASSERT_TRUE(part && part->isVisible());
        QTest::mousePress(part, button, {}, place);
        settle();
        QTest::mouseRelease(part, button, {}, place);
    }

    /// A press behind the slider, which scrolls by a page.
    void pageOn(QScrollBar* bar) {
        const bool isVertical = bar->orientation() == Qt::Vertical;
        const QPoint behind(isVertical ? bar->width() / 2 : bar->width() - 25,
                            isVertical ? bar->height() - 25 : bar->height() / 2);
        clickPart(bar, behind);
        EXPECT_GT(bar->value(), 0);
    }

    void turnWheelOver(QWidget& part) {
        const QPoint middle = part.rect().center();
        QWheelEvent event(middle, part.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&part, &event);
        EXPECT_GT(grid().verticalScrollBar()->value(), 0);
    }

    void rightClickHeader() {
        openColumnMenu(c_PriceCol);
        settle();
        ASSERT_TRUE(form->ColumnsPopupMenu->isVisible());
        form->ColumnsPopupMenu->close();
    }

    void sizeColumn() {
        QWidget* const header = grid().horizontalHeader()->viewport();
        const QPoint edge(grid().horizontalHeader()->sectionViewportPosition(c_PriceCol) - 1, 8);
        QTest::mouseMove(header, edge);
        QTest::mousePress(header, Qt::LeftButton, {}, edge);
        QTest::mouseMove(header, edge + QPoint(30, 0));
        QTest::mouseRelease(header, Qt::LeftButton, {}, edge + QPoint(30, 0));
    }

    void lookIntoOtherWindow() {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        settle();
        other.close();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }

    void perform() {
        QWidget* const cells = grid().viewport();
        const QPoint otherCell = cells->mapFrom(&grid(), cellCentre(c_NoteCol, 2));
        switch (act()) {
        case Act::ScrollDown:
            pageOn(grid().verticalScrollBar());
            break;
        case Act::ScrollRight:
            pageOn(grid().horizontalScrollBar());
            break;
        case Act::PressHeader:
            clickPart(grid().horizontalHeader()->viewport(), QPoint(30, 8));
            break;
        case Act::PressCorner:
            clickPart(grid().childAt(cellCentre(0, 0)), QPoint(4, 4));
            break;
        case Act::PressIndicator:
            clickPart(grid().verticalHeader()->viewport(), QPoint(5, 30));
            break;
        case Act::PressBesideTheCells:
            clickPart(cells, QPoint(20, cells->height() - 10));
            clickPart(cells, QPoint(cells->width() - 10, 10));
            break;
        case Act::RightClickHeader:
            rightClickHeader();
            break;
        case Act::RightClickCell:
            clickPart(cells, otherCell, Qt::RightButton);
            break;
        case Act::MiddleClickCell:
            clickPart(cells, otherCell, Qt::MiddleButton);
            break;
        case Act::SizeColumn:
            sizeColumn();
            break;
        case Act::TurnWheelOverEditor:
            turnWheelOver(*form->ActiveEditor());
            break;
        case Act::TurnWheelOverCells:
            turnWheelOver(*cells);
            break;
        case Act::LookIntoOtherWindow:
            lookIntoOtherWindow();
            break;
        }
    }
};

TEST_P(StayingInACell, CommitsNothingUntilTheClerkLeaves) {
    openWithRoomToScroll();
    openAndChange(std::get<1>(GetParam()));
    perform();
    const QPoint view(grid().horizontalScrollBar()->value(), grid().verticalScrollBar()->value());
    settle();
    expectNothingCommitted();
    expectTextStillInOpenEditor();
    EXPECT_EQ(QPoint(grid().horizontalScrollBar()->value(), grid().verticalScrollBar()->value()), view)
        << "the view stays where the clerk put it";
    EXPECT_EQ(view.y() > 0, scrollsDown(act()));
    if (const QRect cell = grid().CellRect(col(), 1); !cell.isNull()) {
        EXPECT_EQ(form->ActiveEditor()->pos(), grid().mapTo(form.get(), QPoint(2, 2)) + cell.topLeft());
    }
    key(Qt::Key_Return);
    expectOutcome();
}

namespace {

std::vector<std::tuple<Act, EditedCellCase>> allStays() {
    std::vector<std::tuple<Act, EditedCellCase>> all;
    for (int act = 0; act <= static_cast<int>(Act::LookIntoOtherWindow); ++act) {
        for (const EditedCellCase& cell : allEditedCells()) {
            all.emplace_back(static_cast<Act>(act), cell);
        }
    }
    return all;
}

std::string nameOfStay(const testing::TestParamInfo<StayingInACell::ParamType>& testCase) {
    const auto& [act, cell] = testCase.param;
    return std::string(c_Acts[static_cast<int>(act)]) + "_" + nameOf(cell);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(EveryAct, StayingInACell, testing::ValuesIn(allStays()), nameOfStay);
