#include "editwin/CellWriter.h"
#include "editwin/GridEditing.h"
#include "editwin/InPlaceEditing.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QLineEdit>
#include <QTest>

#include <gmock/gmock.h>

using testing::ElementsAre;

// What the keeper holds of a cell from its opening to its commit.

class OpenedCell : public EditBoxTest {};

TEST_F(OpenedCell, AnOpenCellIsCommittedAsItWasOpenedWhereverItsColumnStands) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("42"));
    form->LoadColumnsSettingsFromXml("<settings><columns><column><name>CENA</name></column></columns></settings>");
    form->ApplyColumnsSettingsToGrid();
    ASSERT_EQ(form->GetColumnByName("POCET"), 3);
    EXPECT_EQ(openCellText(), "3,2");
    EXPECT_EQ(sharedEdit().pos(), grid().mapTo(form.get(), QPoint(2, 2)) + grid().CellRect(3, 2).topLeft());
    ASSERT_TRUE(form->HideEditor());
    EXPECT_EQ(stored(7, 1), "42");
    EXPECT_EQ(stored(6, 1), "2") << "the price that stands in its place now";
    EXPECT_THAT(log.lines, ElementsAre("3,2=42"));
    EXPECT_EQ(rowText(2), "2|Matice|42||vedlejší|B2||y");
}

TEST_F(OpenedCell, AColumnMovedJustBeforeTheCommitIsReportedWhereItStandsNow) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("42"));
    form->LoadColumnsSettingsFromXml("<settings><columns><column><name>CENA</name></column></columns></settings>");
    ASSERT_TRUE(form->HideEditor());
    EXPECT_THAT(log.lines, ElementsAre("3,2=42"));
    EXPECT_EQ(stored(7, 1), "42");
}

TEST_F(OpenedCell, AnOpenCellWhoseColumnIsNoLongerShownIsCheckedAndCommittedAllTheSame) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("x"));
    form->LoadColumnsSettingsFromXml("<settings><columns><column><name>POCET</name><visible>0</visible></column>"
                                     "</columns></settings>");
    ASSERT_EQ(form->GetColumnByName("POCET"), 0);
    EXPECT_FALSE(form->HideEditor());
    EXPECT_THAT(manager.boxes(), ElementsAre("16: Hodnota x není celé číslo"));
    sharedEdit().selectAll();
    QTest::keyClicks(&sharedEdit(), QStringLiteral("42"));
    ASSERT_TRUE(form->HideEditor());
    EXPECT_EQ(stored(7, 1), "42");
    EXPECT_THAT(log.lines, ElementsAre("0,2=42")) << "in no grid column";
    form->ApplyColumnsSettingsToGrid();
    EXPECT_EQ(rowText(2), "Matice|2||vedlejší|B2||y");
}

TEST_F(OpenedCell, OfTwoColumnsWithTheSameDataTheEditedOneIsReported) {
    make();
    form->LoadColumnsSettingsFromXml("<settings><columns><column><name>POCET</name></column>"
                                     "<column><name>POCET</name></column></columns></settings>");
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    ASSERT_EQ(rowText(0), "Počet|Počet|Název|Cena|Datum|Sklad|Kód|Poznámka|Typ");
    openCell(2, 2);
    type(QStringLiteral("42"));
    ASSERT_TRUE(form->HideEditor());
    EXPECT_THAT(log.lines, ElementsAre("2,2=42"));
    EXPECT_EQ(rowText(2), "42|42|Matice|2||vedlejší|B2||y");
}

TEST_F(OpenedCell, ACallbacksColumnHasItsKeyWhetherItIsShownOrNot) {
    open();
    EXPECT_EQ(form->CallbackKey(c_CountCol), "POCET");
    EXPECT_EQ(form->CallbackKey(0), "") << "the open cell is shown";
    std::vector<AnsiString> keys;
    log.answer = [&] {
        keys.push_back(form->CallbackKey(form->EditCol()));
        return true;
    };
    openCell(c_CountCol, 2);
    type(QStringLiteral("42"));
    form->LoadColumnsSettingsFromXml("<settings><columns><column><name>POCET</name><visible>0</visible></column>"
                                     "</columns></settings>");
    ASSERT_TRUE(form->HideEditor());
    EXPECT_THAT(log.lines, ElementsAre("0,2=42"));
    EXPECT_THAT(keys, ElementsAre("POCET"));
}

TEST(CommitAnswer, ARefusedValueAndACommitAtWorkAreTwoAnswers) {
    RecordingHost host;
    const TScopedHost installed(host);
    QWidget window;
    TStringGrid cells(&window);
    melvark::GridEditing editing(cells, {});
    CommitLog log;
    editing.Active = {testColumns(log)[2]}; // POCET
    editing.Store.SetColCount(8);
    editing.Store.SetRowCount(1);
    cells.SetColCount(2);
    cells.SetRowCount(2);
    std::vector<melvark::CommitAnswer> within;
    melvark::InPlaceEditing* self = nullptr;
    melvark::CellWriter writer(editing);
    melvark::InPlaceEditing keeper(editing, writer, window,
                                   [&](const AnsiString&) { within.push_back(self->CommitEditor()); });
    self = &keeper;
    log.answer = [&] {
        within.push_back(keeper.CommitEditor());
        return true;
    };

    EXPECT_EQ(keeper.CommitEditor(), melvark::CommitAnswer::Closed) << "none is open";
    keeper.ShowEditor(1, 1, melvark::Reach::BySelection);
    QTest::keyClicks(&keeper.SharedEdit(), QStringLiteral("x"));
    EXPECT_EQ(keeper.CommitEditor(), melvark::CommitAnswer::Refused);
    EXPECT_THAT(within, ElementsAre(melvark::CommitAnswer::Running)) << "in its message box";
    QTest::keyClick(&keeper.SharedEdit(), Qt::Key_Backspace);
    QTest::keyClicks(&keeper.SharedEdit(), QStringLiteral("4"));
    EXPECT_EQ(keeper.CommitEditor(), melvark::CommitAnswer::Closed);
    EXPECT_THAT(within, ElementsAre(melvark::CommitAnswer::Running, melvark::CommitAnswer::Running))
        << "in its callback";
    EXPECT_EQ(keeper.ActiveEditor(), nullptr);
}
