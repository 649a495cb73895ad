#include "tests/widgets/GridForm.h"
#include "tests/widgets/RealInput.h"

#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>

namespace {

class GridOnDisplay : public GridForm, public testing::Test {};

} // namespace

TEST_F(GridOnDisplay, AHeaderIsDraggedWithTheMouse) {
    show();
    QSignalSpy moved(&grid, &TStringGrid::ColumnMoved);
    realinput::dragTo(*grid.horizontalHeader()->viewport(), headerCenter(1), headerCenter(3) + QPoint(20, 0));
    ASSERT_TRUE(QTest::qWaitFor([&] { return moved.count() == 1; }));
    EXPECT_EQ(moved.at(0), (QList<QVariant>{1, 3}));
    EXPECT_EQ(headerText(), "B:150|C:200|A:100");
    EXPECT_TRUE(sectionsStandInOrder());
}

TEST_F(GridOnDisplay, AColumnIsSizedWithTheMouseAndReleasedBelowTheHeader) {
    show();
    QSignalSpy released(&grid, &TStringGrid::MouseUp);
    const QPoint edge(grid.horizontalHeader()->sectionViewportPosition(1) - 1, 8);
    realinput::dragTo(*grid.horizontalHeader()->viewport(), edge, edge + QPoint(40, 90));
    ASSERT_TRUE(QTest::qWaitFor([&] { return released.count() == 1; }));
    EXPECT_EQ(released.at(0).at(1).toInt(), 0);
    EXPECT_EQ(grid.ColWidths(1), 140);
}

TEST_F(GridOnDisplay, AClickGivesTheGridTheFocusAndAsksForTheEditorOnce) {
    show();
    QSignalSpy wanted(&grid, &TStringGrid::EditorWanted);
    realinput::click(*grid.viewport(), cellCenter(2, 3));
    ASSERT_TRUE(QTest::qWaitFor([&] { return wanted.count() > 0; }));
    settle();
    EXPECT_TRUE(grid.hasFocus());
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.at(0), (QList<QVariant>{2, 3}));
}

TEST_F(GridOnDisplay, ARightClickOnTheIndicatorHeaderAsksForItsMenu) {
    show();
    QSignalSpy popups(&grid, &TStringGrid::ContextPopup);
    realinput::click(*cornerOf(grid), QPoint(5, 5), 3);
    ASSERT_TRUE(QTest::qWaitFor([&] { return popups.count() > 0; }));
    ASSERT_EQ(popups.count(), 1);
    EXPECT_EQ(popups.at(0).at(0).toInt(), 0);
    EXPECT_EQ(popups.at(0).at(1).toInt(), 0);
}

TEST_F(GridOnDisplay, TheHintShowsOverTheHeaderLetterForLetterUntilItIsCancelled) {
    show();
    grid.SetHint("Sleva <b>v %</b>");
    EXPECT_EQ(grid.Hint(), "Sleva <b>v %</b>");
    const QWidget* header = grid.horizontalHeader()->viewport();
    realinput::moveTo(*header, headerCenter(2));
    realinput::moveTo(*header, headerCenter(2) + QPoint(3, 0));
    ASSERT_TRUE(QTest::qWaitFor([] { return QToolTip::isVisible(); }));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("&lt;b&gt;")));
    grid.CancelHint();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(GridOnDisplay, WithoutAHintNothingShows) {
    show();
    QWidget* header = grid.horizontalHeader()->viewport();
    QHelpEvent help(QEvent::ToolTip, headerCenter(2), header->mapToGlobal(headerCenter(2)));
    EXPECT_TRUE(QCoreApplication::sendEvent(header, &help));
    EXPECT_FALSE(QToolTip::isVisible());
}
