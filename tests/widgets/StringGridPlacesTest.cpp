#include "host/widgets/StringGrid.h"
#include "tests/widgets/GridForm.h"

#include <QContextMenuEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

// What the mouse does in each part of a grid.

namespace {

struct MenuPlace {
    const char* name;
    QWidget* (*part)(TStringGrid&);
    QPoint (*position)(GridForm&);
    int col;
    int row;
};

class StringGridMenuTest : public GridForm, public testing::TestWithParam<MenuPlace> {};

QWidget* headerPart(TStringGrid& grid) {
    return grid.horizontalHeader()->viewport();
}

QWidget* cellsPart(TStringGrid& grid) {
    return grid.viewport();
}

} // namespace

TEST_P(StringGridMenuTest, IsToldWithItsGridCell) {
    show();
    QSignalSpy popups(&grid, &TStringGrid::ContextPopup);
    QWidget* part = GetParam().part(grid);
    const QPoint position = GetParam().position(*this);
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, part->mapToGlobal(position));
    QCoreApplication::sendEvent(part, &event);
    ASSERT_EQ(popups.count(), 1);
    EXPECT_EQ(popups.at(0).at(0).toInt(), GetParam().col);
    EXPECT_EQ(popups.at(0).at(1).toInt(), GetParam().row);
    EXPECT_EQ(popups.at(0).at(2).toPoint(), part->mapToGlobal(position));
}

INSTANTIATE_TEST_SUITE_P(
    Places, StringGridMenuTest,
    testing::Values(MenuPlace{"IndicatorHeader", [](TStringGrid& grid) -> QWidget* { return cornerOf(grid); },
                              [](GridForm&) { return QPoint(5, 5); }, 0, 0},
                    MenuPlace{"IndicatorCell", [](TStringGrid& grid) { return grid.verticalHeader()->viewport(); },
                              [](GridForm&) { return QPoint(5, 30); }, 0, 2},
                    MenuPlace{"Header", headerPart, [](GridForm& form) { return form.headerCenter(2); }, 2, 0},
                    MenuPlace{"RightOfTheLastHeader", headerPart, [](GridForm&) { return QPoint(470, 5); }, -1, 0},
                    MenuPlace{"Cell", cellsPart, [](GridForm& form) { return form.cellCenter(2, 3); }, 2, 3},
                    MenuPlace{"BelowTheLastRow", cellsPart, [](GridForm&) { return QPoint(20, 150); }, 1, -1}),
    [](const auto& instance) { return std::string(instance.param.name); });

namespace {

struct PressPlace {
    const char* name;
    int rows; ///< Of 12 columns when there are many, else of 3.
    QWidget* (*part)(TStringGrid&);
    QPoint (*position)(GridForm&);
    Qt::MouseButton button;
};

class StringGridPressTest : public GridForm, public testing::TestWithParam<PressPlace> {};

QWidget* verticalBar(TStringGrid& grid) {
    return grid.verticalScrollBar();
}

QWidget* horizontalBar(TStringGrid& grid) {
    return grid.horizontalScrollBar();
}

QWidget* indicatorPart(TStringGrid& grid) {
    return grid.verticalHeader()->viewport();
}

QPoint inTheFirstCell(GridForm& form) {
    return form.cellCenter(1, 1);
}

QPoint nearTheCorner(GridForm&) {
    return {8, 8};
}

} // namespace

TEST_P(StringGridPressTest, LeavesTheFocusAndTheCurrentCellAlone) {
    const PressPlace& place = GetParam();
    fill(place.rows > 10 ? 12 : 3, place.rows);
    show();
    grid.SetCurrentCell(2, 2);
    other.setFocus();
    settle();
    QSignalSpy wanted(&grid, &TStringGrid::EditorWanted);
    QWidget* part = place.part(grid);
    ASSERT_TRUE(part->isVisible());
    QTest::mouseClick(part, place.button, {}, place.position(*this));
    settle();
    QTest::mouseDClick(part, place.button, {}, place.position(*this));
    settle();
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(wanted.count(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Places, StringGridPressTest,
    testing::Values(
        PressPlace{"VerticalScrollBar", 100, verticalBar, nearTheCorner, Qt::LeftButton},
        PressPlace{"HorizontalScrollBar", 100, horizontalBar, nearTheCorner, Qt::LeftButton},
        PressPlace{"Header", 4, headerPart, [](GridForm& form) { return form.headerCenter(3); }, Qt::LeftButton},
        PressPlace{"RightOfTheLastHeader", 4, headerPart, [](GridForm&) { return QPoint(470, 5); }, Qt::LeftButton},
        PressPlace{"Corner", 4, [](TStringGrid& grid) -> QWidget* { return cornerOf(grid); },
                   [](GridForm&) { return QPoint(5, 5); }, Qt::LeftButton},
        PressPlace{"Indicator", 4, indicatorPart, [](GridForm&) { return QPoint(5, 50); }, Qt::LeftButton},
        PressPlace{"BelowTheLastRow", 4, cellsPart, [](GridForm&) { return QPoint(20, 150); }, Qt::LeftButton},
        PressPlace{"RightOfTheLastColumn", 4, cellsPart, [](GridForm&) { return QPoint(470, 10); }, Qt::LeftButton},
        PressPlace{"CellWithTheRightButton", 4, cellsPart, inTheFirstCell, Qt::RightButton},
        PressPlace{"CellWithTheMiddleButton", 4, cellsPart, inTheFirstCell, Qt::MiddleButton}),
    [](const auto& instance) { return std::string(instance.param.name); });
