#include "host/widgets/StringGrid.h"

#include "tests/support/RecordingHost.h"
#include "tests/widgets/GridForm.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class StringGridTest : public GridForm, public testing::Test {};

} // namespace

TEST_F(StringGridTest, StartsWithNarrowIndicatorAndTwentyPixelRows) {
    const TStringGrid fresh(nullptr);
    EXPECT_EQ(fresh.ColWidths(0), 10);
    EXPECT_EQ(fresh.RowHeight(), 20);
    EXPECT_EQ(fresh.ColCount(), 1);
    EXPECT_EQ(fresh.RowCount(), 1);
}

TEST_F(StringGridTest, BeforeACellWasCurrentTheColumnIsZeroAndTheRowTheFirstDataRow) {
    EXPECT_EQ(grid.Col(), 0);
    EXPECT_EQ(grid.Row(), 1);
    grid.SetRowCount(1);
    EXPECT_EQ(grid.Row(), 0);
}

TEST_F(StringGridTest, ColAndRowMoveTheCurrentCell) {
    grid.SetCurrentCell(2, 3);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(grid.Row(), 3);
    grid.SetCol(3);
    grid.SetRow(1);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(grid.Row(), 1);
    grid.SetCurrentCell(0, 1); // fixed cells are never current
    grid.SetCurrentCell(1, 0);
    grid.SetCurrentCell(99, 1);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(StringGridTest, CellRectsCountInTheClientAreaWithinTheBorder) {
    show();
    // Indicator 10 + line, columns of 100, 150 and 200, each with its line.
    EXPECT_EQ(grid.CellRect(0, 1).left(), 0);
    EXPECT_EQ(grid.CellRect(0, 1).width(), 10);
    EXPECT_EQ(grid.CellRect(1, 1).left(), 11);
    EXPECT_EQ(grid.CellRect(2, 1).left(), 11 + 101);
    EXPECT_EQ(grid.CellRect(2, 1).width(), 150);
    EXPECT_EQ(grid.CellRect(0, 0).topLeft(), QPoint(0, 0));
    EXPECT_EQ(grid.CellRect(2, 2).top() - grid.CellRect(2, 1).top(), 21);
    EXPECT_EQ(grid.CellRect(2, 1).height(), 20);
    EXPECT_TRUE(grid.CellRect(4, 1).isNull());
    EXPECT_TRUE(grid.CellRect(1, 99).isNull());
}

TEST_F(StringGridTest, AControlLaidOverACellRectCoversTheCellExactly) {
    show();
    const QRect rect = grid.CellRect(2, 3);
    const QPoint corner = grid.pos() + rect.topLeft() + QPoint(TStringGrid::c_BorderWidth, TStringGrid::c_BorderWidth);
    const QRect drawn = grid.visualRect(grid.model()->index(2, 1));
    EXPECT_EQ(QRect(corner, rect.size()), QRect(grid.viewport()->mapTo(&form, drawn.topLeft()), drawn.size()));
}

TEST_F(StringGridTest, ACellOutOfViewHasNoRect) {
    fill(3, 100);
    show();
    EXPECT_FALSE(grid.CellRect(1, 1).isNull());
    EXPECT_TRUE(grid.CellRect(1, 100).isNull());
    grid.ScrollToCell(1, 100);
    EXPECT_TRUE(grid.CellRect(1, 1).isNull());
    EXPECT_FALSE(grid.CellRect(1, 100).isNull());
    EXPECT_FALSE(grid.CellRect(1, 0).isNull()) << "the header row does not scroll";
    EXPECT_EQ(grid.Col(), 0) << "scrolling makes nothing current";
}

TEST_F(StringGridTest, MakingTheCurrentCellCurrentAgainScrollsItBackIntoView) {
    fill(3, 100);
    show();
    grid.SetCurrentCell(1, 2);
    grid.ScrollToCell(1, 100);
    grid.SetCurrentCell(1, 2);
    EXPECT_FALSE(grid.CellRect(1, 2).isNull());
}

TEST_F(StringGridTest, WholeColumnsTakeTheirWidthsAlong) {
    grid.MoveColumn(1, 3);
    EXPECT_EQ(headerText(), "B:150|C:200|A:100");
    grid.DeleteColumn(1);
    EXPECT_EQ(headerText(), "C:200|A:100");
    grid.InsertColumn(2);
    grid.SetColWidths(2, 30);
    EXPECT_EQ(headerText(), "C:200|:30|A:100");
    EXPECT_EQ(grid.Cells(3, 2), "A2");
}

TEST_F(StringGridTest, TheCurrentCellFollowsItsColumn) {
    grid.SetCurrentCell(1, 2);
    grid.MoveColumn(1, 3);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(grid.Row(), 2);
}

TEST_F(StringGridTest, DraggingAHeaderMovesTextsAndWidthAndTellsOnce) {
    show();
    QSignalSpy moved(&grid, &TStringGrid::ColumnMoved);
    dragHeader(headerCenter(1), headerCenter(3) + QPoint(20, 0));
    ASSERT_EQ(moved.count(), 1);
    EXPECT_EQ(moved.at(0).at(0).toInt(), 1);
    EXPECT_EQ(moved.at(0).at(1).toInt(), 3);
    EXPECT_EQ(headerText(), "B:150|C:200|A:100");
    EXPECT_EQ(grid.Cells(3, 1), "A1");
    EXPECT_TRUE(sectionsStandInOrder());
}

TEST_F(StringGridTest, HeadersThatDifferInTheirLastLetterLookDifferentInNarrowColumns) {
    show();
    const auto picture = [&](int col, const char* caption) {
        grid.SetCells(col, 0, caption);
        grid.SetColWidths(col, grid.fontMetrics().horizontalAdvance(QStringLiteral("Množství")));
        return grid.grab(grid.CellRect(col, 0)).toImage();
    };
    EXPECT_NE(picture(1, "Množství v jednotce 1"), picture(1, "Množství v jednotce 2"));
}

TEST_F(StringGridTest, AReleaseIsToldAfterWhatTheDragDid) {
    show();
    std::vector<std::string> told;
    QObject::connect(&grid, &TStringGrid::ColumnMoved, &grid, [&] { told.emplace_back("moved"); });
    QObject::connect(&grid, &TStringGrid::MouseUp, &grid, [&] { told.emplace_back("released " + headerText()); });
    dragHeader(headerCenter(1), headerCenter(2) + QPoint(20, 0));
    EXPECT_THAT(told, ElementsAre("moved", "released B:150|A:100|C:200"));
}

TEST_F(StringGridTest, DraggingAHeaderBackMovesItBack) {
    show();
    dragHeader(headerCenter(1), headerCenter(3) + QPoint(20, 0));
    dragHeader(headerCenter(3), headerCenter(1) - QPoint(20, 0));
    EXPECT_EQ(headerText(), "A:100|B:150|C:200");
    EXPECT_TRUE(sectionsStandInOrder());
}

TEST_F(StringGridTest, AWidthDraggedToAPlaceBelowTheHeaderIsTakenBeforeTheReleaseIsTold) {
    show();
    QList<int> widths;
    QObject::connect(&grid, &TStringGrid::MouseUp, &grid, [&](int, int row) {
        EXPECT_EQ(row, 0);
        widths.append(grid.ColWidths(1));
    });
    const QPoint edge(grid.horizontalHeader()->sectionViewportPosition(1) - 1, 8);
    dragHeader(edge, edge + QPoint(40, 90));
    EXPECT_EQ(widths, QList<int>{140});
}

TEST_F(StringGridTest, AReleaseOverACellTellsTheCell) {
    show();
    QSignalSpy released(&grid, &TStringGrid::MouseUp);
    click(2, 3);
    ASSERT_EQ(released.count(), 1);
    EXPECT_EQ(released.at(0), (QList<QVariant>{2, 3}));
}

TEST_F(StringGridTest, AClickOnAHeaderMakesNothingCurrent) {
    show();
    QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, headerCenter(2));
    EXPECT_EQ(grid.Col(), 0);
}

TEST_F(StringGridTest, AClickOnACellAsksForItsEditorLater) {
    show();
    QSignalSpy wanted(&grid, &TStringGrid::EditorWanted);
    click(2, 3);
    EXPECT_EQ(wanted.count(), 0) << "never from within the cause";
    EXPECT_TRUE(QTest::qWaitFor([&] { return wanted.count() > 0; }));
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.at(0), (QList<QVariant>{2, 3}));
}

TEST_F(StringGridTest, AClickOnTheCurrentCellAsksAgain) {
    show();
    click(2, 3);
    settle();
    QSignalSpy wanted(&grid, &TStringGrid::EditorWanted);
    click(2, 3);
    settle();
    EXPECT_EQ(wanted.count(), 1);
}

TEST_F(StringGridTest, AnArrowKeyAsksForTheEditorOfTheNewCell) {
    show();
    click(1, 1);
    settle();
    QSignalSpy wanted(&grid, &TStringGrid::EditorWanted);
    QTest::keyClick(&grid, Qt::Key_Right);
    settle();
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.at(0), (QList<QVariant>{2, 1}));
}

TEST_F(StringGridTest, GettingTheFocusAsksForTheEditorOfTheCurrentCell) {
    grid.SetCurrentCell(3, 2);
    show();
    other.setFocus();
    settle();
    QSignalSpy wanted(&grid, &TStringGrid::EditorWanted);
    grid.setFocus();
    settle();
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.at(0), (QList<QVariant>{3, 2}));
}

TEST_F(StringGridTest, WithoutTheFocusAMovedCurrentCellAsksForNothing) {
    show();
    other.setFocus();
    settle();
    QSignalSpy wanted(&grid, &TStringGrid::EditorWanted);
    grid.SetCurrentCell(2, 2);
    settle();
    EXPECT_EQ(wanted.count(), 0);
}

TEST_F(StringGridTest, ARequestLapsesWhenTheFocusLeavesBeforeIt) {
    show();
    QSignalSpy wanted(&grid, &TStringGrid::EditorWanted);
    click(2, 3);
    other.setFocus();
    settle();
    EXPECT_EQ(wanted.count(), 0);
}

TEST_F(StringGridTest, PaintingAsksForNothing) {
    show();
    click(2, 3);
    settle();
    QSignalSpy wanted(&grid, &TStringGrid::EditorWanted);
    grid.grab();
    grid.viewport()->repaint();
    settle();
    EXPECT_EQ(wanted.count(), 0);
}

TEST_F(StringGridTest, OnlyTheLeftButtonMovesTheCurrentCell) {
    show();
    click(1, 1);
    QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, cellCenter(3, 3));
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(StringGridTest, EnterIsToldWithItsModifiers) {
    show();
    grid.setFocus();
    QList<Qt::KeyboardModifiers> told;
    QObject::connect(&grid, &TStringGrid::EnterPressed, &grid,
                     [&](Qt::KeyboardModifiers modifiers) { told.append(modifiers); });
    QTest::keyClick(&grid, Qt::Key_Return);
    QTest::keyClick(&grid, Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(&grid, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(&grid, Qt::Key_Return, Qt::ControlModifier);
    QTest::keyClick(&grid, Qt::Key_Return, Qt::AltModifier);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(told, (QList<Qt::KeyboardModifiers>{{}, Qt::KeypadModifier, Qt::ShiftModifier, Qt::ControlModifier}));
}

TEST_F(StringGridTest, TabLeavesTheGrid) {
    show();
    click(1, 1);
    QTest::keyClick(&grid, Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(grid.Col(), 1);
}

TEST_F(StringGridTest, WithoutTabStopTheGridIsReachedByMouseOnly) {
    show();
    grid.SetTabStop(false);
    EXPECT_FALSE(grid.TabStop());
    other.setFocus();
    QTest::keyClick(&other, Qt::Key_Tab);
    EXPECT_FALSE(grid.hasFocus());
    click(1, 1);
    EXPECT_TRUE(grid.hasFocus());
    other.setFocus();
    grid.SetTabStop(true);
    QTest::keyClick(&other, Qt::Key_Tab);
    EXPECT_TRUE(grid.hasFocus());
}

TEST_F(StringGridTest, APressBesideTheCellsThatIsDraggedOverThemMovesNothing) {
    show();
    click(1, 1);
    dragOver(*grid.viewport(), QPoint(60, 150), cellCenter(2, 3));
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Row(), 1);
    dragOver(*grid.viewport(), cellCenter(1, 2), cellCenter(2, 3));
    EXPECT_EQ(grid.Col(), 2) << "dragged from a cell, the current cell follows the mouse";
    EXPECT_EQ(grid.Row(), 3);
}

TEST_F(StringGridTest, ADoubleClickOnTheEdgeOfAHeaderSizesNothing) {
    show();
    QWidget* header = grid.horizontalHeader()->viewport();
    const QPoint edge(grid.horizontalHeader()->sectionViewportPosition(1) - 1, 8);
    hover(*header, edge);
    QTest::mouseClick(header, Qt::LeftButton, {}, edge);
    QTest::mouseDClick(header, Qt::LeftButton, {}, edge);
    settle();
    EXPECT_EQ(headerText(), "A:100|B:150|C:200");
}

TEST_F(StringGridTest, TheWheelCanBeHandedToIt) {
    fill(3, 100);
    show();
    QWheelEvent down(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    grid.ScrollByWheel(down);
    EXPECT_GT(grid.verticalScrollBar()->value(), 0);
}

TEST_F(StringGridTest, HeaderRowAndIndicatorColumnStayWhenTheCellsScroll) {
    fill(12, 100);
    show();
    // The frame is 2 wide, the indicator 10 and a line, the header as high as a row at least.
    const auto picture = [&](QRect part) { return grid.grab(part).toImage(); };
    const QRect indicator(2, 30, 10, 100);
    const QRect header(20, 2, 300, 15);
    const QImage indicatorBefore = picture(indicator);
    const QImage headerBefore = picture(header);
    grid.verticalScrollBar()->setValue(40);
    EXPECT_EQ(picture(header), headerBefore);
    grid.verticalScrollBar()->setValue(0);
    grid.horizontalScrollBar()->setValue(150);
    EXPECT_EQ(picture(indicator), indicatorBefore);
    EXPECT_NE(picture(header), headerBefore) << "the captions go along with their columns";
}

TEST_F(StringGridTest, TypingALetterDoesNotSearch) {
    show();
    click(1, 1);
    QTest::keyClick(&grid, 'c');
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(StringGridTest, TheMouseOverHeadersAndCellsIsTold) {
    show();
    QList<QPoint> places;
    QObject::connect(&grid, &TStringGrid::MouseMoved, &grid, [&](int col, int row) { places.append({col, row}); });
    hover(*grid.horizontalHeader()->viewport(), headerCenter(2));
    hover(*grid.viewport(), cellCenter(3, 1));
    hover(*cornerOf(grid), QPoint(4, 4));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(grid.viewport(), &leave);
    EXPECT_EQ(places, (QList<QPoint>{{2, 0}, {3, 1}, {0, 0}, {-1, -1}}));
}

TEST_F(StringGridTest, ScrollingResizingAndSizingAColumnAreTold) {
    fill(3, 100);
    show();
    QSignalSpy changed(&grid, &TStringGrid::TopLeftChanged);
    grid.verticalScrollBar()->setValue(5);
    EXPECT_EQ(changed.count(), 1);
    grid.SetColWidths(1, 77);
    EXPECT_GE(changed.count(), 2);
    changed.clear();
    form.resize(form.width() + 50, form.height());
    EXPECT_TRUE(QTest::qWaitFor([&] { return changed.count() > 0; }));
}

TEST_F(StringGridTest, TheCurrentCellHasTheBackgroundOfAllCells) {
    show();
    click(2, 3);
    grid.selectAll();
    const QImage image = grid.grab().toImage();
    const QPoint border(TStringGrid::c_BorderWidth, TStringGrid::c_BorderWidth);
    // Near the right end of the cell, inside its frame, where no text stands.
    const auto background = [&](int col, int row) {
        const QRect cell = grid.CellRect(col, row).translated(border);
        return image.pixel(cell.right() - 8, cell.center().y());
    };
    EXPECT_EQ(background(2, 3), background(1, 1));
    EXPECT_EQ(background(2, 3), grid.palette().color(QPalette::Base).rgb());
}

TEST_F(StringGridTest, AFocusedGridFramesItsCurrentCell) {
    show();
    click(2, 3);
    const QPoint border(TStringGrid::c_BorderWidth, TStringGrid::c_BorderWidth);
    const auto leftEdge = [&](int col, int row) {
        const QRect cell = grid.CellRect(col, row).translated(border);
        return grid.grab(QRect(cell.topLeft(), QSize(1, cell.height()))).toImage();
    };
    EXPECT_NE(leftEdge(2, 3), leftEdge(2, 2));
    other.setFocus();
    EXPECT_EQ(leftEdge(2, 3), leftEdge(2, 2));
}

TEST_F(StringGridTest, ACellWithoutPresentationShowsItsText) {
    const TCellLook look = grid.Look(2, 1);
    EXPECT_EQ(look.Text, "B1");
    EXPECT_EQ(look.Align, Qt::AlignLeft);
    EXPECT_FALSE(look.Bold);
}

TEST_F(StringGridTest, ThePresentationDecidesWhatIsShownNotWhatIsStored) {
    grid.SetPresentation([this](int col, int row) {
        return TCellLook{.Text = grid.Cells(col, row) + " Kč", .Align = Qt::AlignRight, .Bold = true};
    });
    EXPECT_EQ(grid.Look(2, 1).Text, "B1 Kč");
    EXPECT_EQ(grid.Cells(2, 1), "B1");
}

TEST_F(StringGridTest, AFailingPresentationIsReportedOnceAndTheTextsStayVisible) {
    RecordingHost host;
    const TScopedHost scope(host);
    show();
    grid.SetPresentation([](int, int) -> TCellLook { throw Exception("Formát nelze použít"); });
    grid.grab();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !host.errors().empty(); }));
    grid.grab();
    settle();
    EXPECT_THAT(host.errors(), ElementsAre("Formát nelze použít"));
    EXPECT_EQ(grid.Look(1, 1).Text, "A1");
}
