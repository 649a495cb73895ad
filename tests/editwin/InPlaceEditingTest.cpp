#include "editwin/AskingCheckBox.h"
#include "editwin/model/EditExceptions.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class InPlaceEditing : public EditBoxTest {};

TEST_F(InPlaceEditing, ShowingTheFormOpensTheFirstAutomaticCellEvenInColumnOne) {
    open();
    EXPECT_EQ(openCellText(), "1,1");
    EXPECT_EQ(form->focusWidget(), &sharedEdit());
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("Šroub"));
}

TEST_F(InPlaceEditing, AnOpenedEditHasItsWholeTextSelectedWithoutCountingAsAChange) {
    open();
    EXPECT_EQ(sharedEdit().selectedText(), QStringLiteral("Šroub"));
    EXPECT_FALSE(sharedEdit().isModified());
    type(QStringLiteral("Vrut"));
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("Vrut"));
}

TEST_F(InPlaceEditing, TheEditorLiesExactlyOverItsCell) {
    open();
    openCell(c_PriceCol, 2);
    const QRect cell = grid().CellRect(c_PriceCol, 2);
    const QPoint corner = grid().mapTo(form.get(), QPoint(0, 0)) + cell.topLeft() + QPoint(2, 2);
    EXPECT_EQ(sharedEdit().geometry(), QRect(corner, cell.size()));
    EXPECT_EQ(cell.size(), QSize(80, 20));
}

TEST_F(InPlaceEditing, TypingBlanksAroundANumberStoresTheNumber) {
    open();
    openCell(c_CountCol, 1);
    type(QStringLiteral("  7 "));
    key(Qt::Key_Return);
    EXPECT_EQ(stored(7, 0), "7");
    EXPECT_EQ(grid().Cells(c_CountCol, 1), "7");
    EXPECT_TRUE(form->DataGrid().GetModified(7, 0));
    EXPECT_THAT(log.lines, ElementsAre("2,1=7"));
}

TEST_F(InPlaceEditing, AClearedNumberIsAcceptedAndStoredEmpty) {
    open();
    openCell(c_CountCol, 1);
    key(Qt::Key_Delete);
    EXPECT_TRUE(form->HideEditor());
    EXPECT_EQ(stored(7, 0), "");
    EXPECT_TRUE(form->DataGrid().GetModified(7, 0));
    EXPECT_THAT(log.lines, ElementsAre("2,1="));
}

TEST_F(InPlaceEditing, ADecimalPointBecomesTheLocalesComma) {
    open();
    openCell(c_PriceCol, 1);
    type(QStringLiteral("12.5"));
    EXPECT_TRUE(form->HideEditor());
    EXPECT_EQ(stored(6, 0), "12,5");
}

TEST_F(InPlaceEditing, LeavingWithoutTypingNormalisesTheGridOnly) {
    make();
    form->DataGrid().SetCellWithNoChange(6, 0, " 3.5 ");
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    openCell(c_PriceCol, 1);
    EXPECT_TRUE(form->HideEditor());
    EXPECT_EQ(grid().Cells(c_PriceCol, 1), "3,5");
    EXPECT_EQ(stored(6, 0), " 3.5 ");
    EXPECT_FALSE(form->DataGrid().GetModified(6, 0));
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(InPlaceEditing, ARefusalNamesTheValueBeforeTrimming) {
    open();
    openCell(c_CountCol, 1);
    type(QStringLiteral(" 7a "));
    EXPECT_FALSE(form->HideEditor());
    EXPECT_THAT(manager.boxes(), ElementsAre("16: Hodnota  7a  není celé číslo"));
    EXPECT_EQ(sharedEdit().text(), QStringLiteral(" 7a "));
    EXPECT_EQ(stored(7, 0), "5");
    EXPECT_EQ(grid().Cells(c_CountCol, 1), "5");
}

TEST_F(InPlaceEditing, EachKindOfValueHasItsOwnRefusal) {
    open();
    const std::pair<int, const char*> cases[] = {{c_CountCol, "16: Hodnota 1,5 není celé číslo"},
                                                 {c_PriceCol, "16: Hodnota 1.234,5 není desetinné číslo"},
                                                 {c_DateCol, "16: Hodnota 31.4. není datum"}};
    const QString typed[] = {QStringLiteral("1,5"), QStringLiteral("1.234,5"), QStringLiteral("31.4.")};
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        openCell(cases[i].first, 1);
        type(typed[i]);
        EXPECT_FALSE(form->HideEditor());
        EXPECT_EQ(manager.boxes().back(), cases[i].second);
        sharedEdit().setText({});
        EXPECT_TRUE(form->HideEditor());
    }
}

TEST_F(InPlaceEditing, ACheckGivesTheFocusBackToAVisibleEditBox) {
    open();
    form->OkBtn->setFocus();
    EXPECT_THROW(form->CheckInt(&sharedEdit(), "x"), EBadValue);
    EXPECT_EQ(form->focusWidget(), &sharedEdit());
    EXPECT_EQ(form->CheckFloat(&sharedEdit(), " 1.5 "), "1,5");
    EXPECT_EQ(form->CheckDate(&sharedEdit(), " 1.2.2027"), "1.2.2027");
}

TEST_F(InPlaceEditing, AListSelectsTheItemOfTheCellWithoutRegardToCase) {
    open();
    openCell(c_WarehouseCol, 2);
    EXPECT_EQ(combo().currentText(), QStringLiteral("Vedlejší"));
    EXPECT_FALSE(combo().isEditable());
}

TEST_F(InPlaceEditing, AListLeftWithoutAChoiceWritesNothingToTheStore) {
    open();
    openCell(c_WarehouseCol, 3);
    EXPECT_EQ(combo().currentIndex(), -1);
    EXPECT_TRUE(form->HideEditor());
    EXPECT_EQ(grid().Cells(c_WarehouseCol, 3), "");
    EXPECT_EQ(stored(4, 2), "Zrušený");
    EXPECT_FALSE(form->DataGrid().GetModified(4, 2));
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(InPlaceEditing, AChosenItemIsStoredAndReported) {
    open();
    openCell(c_WarehouseCol, 1);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(stored(4, 0), "Vedlejší");
    EXPECT_TRUE(form->DataGrid().GetModified(4, 0));
    EXPECT_THAT(log.lines, ElementsAre("5,1=Vedlejší"));
}

TEST_F(InPlaceEditing, EnterStopsAtAutomaticCellsOnly) {
    open();
    std::vector<AnsiString> visited;
    for (int step = 0; step < 5; ++step) {
        key(Qt::Key_Return);
        visited.push_back(openCellText());
    }
    // KOD is read-only, POZN manual, TYP not editable.
    EXPECT_THAT(visited, ElementsAre("2,1", "3,1", "4,1", "5,1", "1,2"));
}

TEST_F(InPlaceEditing, EnterOnTheLastAutomaticCellOfTheLastRowGoesToTheFirstRow) {
    open();
    openCell(c_WarehouseCol, 3);
    key(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(openCellText(), "1,1");
}

TEST_F(InPlaceEditing, ShiftEnterNeverLandsOnTheFirstColumn) {
    open();
    openCell(c_PriceCol, 1);
    key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(openCellText(), "2,1");
    key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(openCellText(), "5,3") << "row 1 goes back to the last row";
}

TEST_F(InPlaceEditing, EnterWithNowhereToGoLeavesTheValueUncommitted) {
    make();
    form->SetOnIsEditable([](int col, int row) { return col == c_CountCol && row == 1; });
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    ASSERT_EQ(openCellText(), "2,1");
    type(QStringLiteral("8"));
    key(Qt::Key_Return);
    EXPECT_EQ(openCellText(), "2,1");
    EXPECT_EQ(stored(7, 0), "5");
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(InPlaceEditing, EnterInTheGridItselfMovesOnFromItsCurrentCell) {
    open();
    click(c_CodeCol, 1);
    settle();
    ASSERT_EQ(openCellText(), "none");
    ASSERT_EQ(form->focusWidget(), &grid());
    key(Qt::Key_Return);
    EXPECT_EQ(openCellText(), "1,2");
    click(c_CodeCol, 2);
    settle();
    key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(openCellText(), "5,2");
}

TEST_F(InPlaceEditing, AClickOpensAManualCell) {
    open();
    openCell(c_NoteCol, 1);
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("první"));
}

TEST_F(InPlaceEditing, AClickOnlySelectsCellsThatAreNotEditable) {
    open();
    for (const int col : {c_CodeCol, c_KindCol}) {
        click(col, 2);
        settle();
        EXPECT_EQ(openCellText(), "none");
        EXPECT_EQ(grid().Col(), col);
        EXPECT_EQ(grid().Row(), 2);
    }
    form->SetOnIsEditable([](int, int) { return false; });
    click(c_NoteCol, 1);
    settle();
    EXPECT_EQ(openCellText(), "none");
}

TEST_F(InPlaceEditing, OnlyAutomaticColumnsAreOpenedByTraversal) {
    open();
    ASSERT_TRUE(form->HideEditor());
    for (const int col : {c_CodeCol, c_NoteCol, c_KindCol}) {
        form->ShowEditor(col, 1, false);
        EXPECT_EQ(openCellText(), "none") << col;
    }
    form->ShowEditor(c_NoteCol, 1, true);
    EXPECT_EQ(openCellText(), "7,1");
}

TEST_F(InPlaceEditing, MovingTheGridsCursorOpensTheCellThere) {
    open();
    click(c_CodeCol, 1);
    settle();
    key(Qt::Key_Right);
    settle();
    EXPECT_EQ(openCellText(), "7,1");
}

TEST_F(InPlaceEditing, HeaderAndIndicatorAreNeverOpened) {
    open();
    ASSERT_TRUE(form->HideEditor());
    const std::pair<int, int> places[] = {{0, 1}, {1, 0}, {0, 0}, {9, 1}, {1, 4}};
    for (const auto& [col, row] : places) {
        form->ShowEditor(col, row, true);
        EXPECT_EQ(openCellText(), "none") << col << "," << row;
    }
}

TEST_F(InPlaceEditing, AlternativeKeysSetAndClearTheRecalculation) {
    open();
    struct {
        int key;
        Qt::KeyboardModifiers modifiers;
        bool before, after;
    } const cases[] = {
        {Qt::Key_C, Qt::AltModifier, true, false},
        {Qt::Key_C, Qt::AltModifier, false, false},
        {Qt::Key_P, Qt::AltModifier, false, true},
        {Qt::Key_P, Qt::AltModifier, true, true}, // the mnemonic of the check box would toggle it
        {Qt::Key_3, Qt::AltModifier | Qt::KeypadModifier, true, false},
        {Qt::Key_F1, Qt::AltModifier, false, true},
        {Qt::Key_F1, {}, false, false},
    };
    for (QWidget* const control :
         std::initializer_list<QWidget*>{&sharedEdit(), &combo(), form->OkBtn, form->CancelBtn}) {
        for (const auto& each : cases) {
            form->chbPrepocetCen->setChecked(each.before);
            QTest::keyClick(control, static_cast<Qt::Key>(each.key), each.modifiers);
            EXPECT_EQ(form->GetPrepocetCen(), each.after) << each.key << " on " << qPrintable(control->objectName());
        }
    }
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("Šroub")) << "the keys type nothing";
}

TEST_F(InPlaceEditing, CtrlEnterSavesFromEditorsAndFromTheOkAndCancelButtons) {
    open();
    saveSucceeds = false;
    openCell(c_CountCol, 1);
    type(QStringLiteral("9"));
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(stored(7, 0), "9");
    QTest::keyClick(form->OkBtn, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(saves, 2);
    QTest::keyClick(form->CancelBtn, Qt::Key_Enter, Qt::ControlModifier);
    EXPECT_EQ(saves, 3);
    settle();
    EXPECT_TRUE(form->isVisible()) << "a refused save keeps the window open";
}

TEST_F(InPlaceEditing, CtrlEnterConfirmsFromTheGridToo) {
    open();
    click(c_CodeCol, 2);
    settle();
    ASSERT_EQ(form->focusWidget(), &grid());
    saveSucceeds = false;
    key(Qt::Key_Return, Qt::ControlModifier);
    settle();
    EXPECT_EQ(saves, 1);
    EXPECT_TRUE(form->isVisible());
    saveSucceeds = true;
    key(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    settle();
    EXPECT_EQ(saves, 2);
    EXPECT_EQ(form->ModalResult(), c_ResultOk);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(InPlaceEditing, TheGridIsATabStopOnlyWhileAButtonHasTheFocus) {
    open();
    EXPECT_FALSE(grid().TabStop());
    for (QWidget* const button : {form->OkBtn, form->CancelBtn}) {
        button->setFocus();
        settle();
        EXPECT_TRUE(grid().TabStop());
        openCell(c_WarehouseCol, 1);
        EXPECT_FALSE(grid().TabStop());
    }
    form->OKDalsiBtn->setEnabled(true);
    form->OKDalsiBtn->setFocus();
    EXPECT_TRUE(grid().TabStop());
}

TEST_F(InPlaceEditing, TabbingFromTheButtonsIntoTheGridOpensItsCurrentCell) {
    open();
    openCell(c_CountCol, 2);
    key(Qt::Key_Tab);
    settle();
    ASSERT_EQ(openCellText(), "none");
    ASSERT_TRUE(grid().TabStop());
    for (int step = 0; step < 8 && form->focusWidget() != &grid(); ++step) {
        key(Qt::Key_Tab);
        settle();
        if (openCellText() != "none") {
            break;
        }
    }
    EXPECT_EQ(openCellText(), "2,2");
}

TEST_F(InPlaceEditing, AnEditorScrolledOutOfViewStaysOpenAndComesBack) {
    make();
    form->DataGrid().SetRowCount(100);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    openCell(c_CountCol, 1);
    type(QStringLiteral("77"));
    const QRect place = sharedEdit().geometry();

    grid().ScrollToCell(1, 90);
    settle();
    EXPECT_EQ(openCellText(), "2,1");
    EXPECT_NE(form->childAt(place.center()), &sharedEdit()) << "nothing of it is in the way of the mouse";

    grid().ScrollToCell(1, 1);
    settle();
    EXPECT_EQ(sharedEdit().geometry(), place);
    EXPECT_EQ(form->childAt(place.center()), &sharedEdit());
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("77"));
    EXPECT_EQ(stored(7, 0), "5") << "scrolling commits nothing";
}

TEST_F(InPlaceEditing, ARefusedEditorScrollsBackIntoView) {
    make();
    form->DataGrid().SetRowCount(100);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    openCell(c_CountCol, 1);
    type(QStringLiteral("x"));
    grid().ScrollToCell(1, 90);
    manager.whileBoxIsShown = [this] { EXPECT_FALSE(grid().CellRect(c_CountCol, 1).isNull()); };
    EXPECT_FALSE(form->HideEditor());
    EXPECT_THAT(manager.boxes(), ElementsAre("16: Hodnota x není celé číslo"));
    EXPECT_FALSE(grid().CellRect(c_CountCol, 1).isNull());
    EXPECT_EQ(form->focusWidget(), &sharedEdit());
}

TEST_F(InPlaceEditing, AnEditorWiderThanTheGridDoesNotCoverTheButtons) {
    open();
    grid().SetColWidths(c_NameCol, 2000);
    ASSERT_EQ(openCellText(), "1,1");
    const QPoint besideTheGrid(form->ButtonPanel->geometry().center().x(), sharedEdit().geometry().center().y());
    ASSERT_TRUE(sharedEdit().geometry().contains(besideTheGrid)) << "the whole cell reaches under the buttons";
    EXPECT_NE(form->childAt(besideTheGrid), &sharedEdit());
}

TEST_F(InPlaceEditing, ACommitInsideACommitsOwnBoxDoesNothing) {
    open();
    openCell(c_CountCol, 1);
    type(QStringLiteral("x"));
    bool nestedResult = true;
    manager.whileBoxIsShown = [&] {
        nestedResult = form->HideEditor();
        form->ShowEditor(c_NameCol, 2, true);
        settle();
    };
    EXPECT_FALSE(form->HideEditor());
    EXPECT_FALSE(nestedResult);
    EXPECT_EQ(manager.boxes().size(), 1U);
    EXPECT_EQ(openCellText(), "2,1");
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("x"));
}

TEST_F(InPlaceEditing, TheSwitchIsFlippedAfterTheCommitAndNotPastARefusedOne) {
    open();
    std::vector<bool> seen;
    log.answer = [&] {
        seen.push_back(form->GetPrepocetCen());
        return true;
    };
    openCell(c_CountCol, 2);
    type(QStringLiteral("3"));
    const auto clickSwitch = [&] {
        QTest::mouseClick(form->chbPrepocetCen, Qt::LeftButton, {}, QPoint(8, 8));
        settle();
    };
    clickSwitch();
    EXPECT_EQ(seen, std::vector<bool>{true}) << "the value goes with the switch as it was";
    EXPECT_FALSE(form->GetPrepocetCen());
    EXPECT_EQ(stored(7, 1), "3");
    EXPECT_EQ(openCellText(), "none");

    openCell(c_CountCol, 2);
    type(QStringLiteral("x"));
    clickSwitch();
    EXPECT_FALSE(form->GetPrepocetCen());
    EXPECT_EQ(manager.boxes().size(), 1U);
    EXPECT_EQ(openCellText(), "2,2");
    EXPECT_EQ(form->focusWidget(), &sharedEdit());
    clickSwitch();
    EXPECT_EQ(manager.boxes().size(), 2U) << "each attempt is told once";
    EXPECT_EQ(seen.size(), 1U);
}

TEST_F(InPlaceEditing, TheWheelOverAListLeavesItsValueAndScrollsTheGrid) {
    make();
    form->DataGrid().SetRowCount(100);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    openCell(c_WarehouseCol, 2);
    for (const int turn : {-120, -120, 120}) {
        QWheelEvent event(QPointF(5, 5), combo().mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, turn), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&combo(), &event);
        EXPECT_EQ(combo().currentText(), QStringLiteral("Vedlejší"));
        EXPECT_GT(grid().verticalScrollBar()->value(), 0);
    }
    ASSERT_TRUE(form->HideEditor());
    EXPECT_FALSE(form->DataGrid().GetModified(4, 1));
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(InPlaceEditing, ARefusedValueCanBeMendedAndIsThenAccepted) {
    open();
    openCell(c_CountCol, 1);
    type(QStringLiteral("x"));
    key(Qt::Key_Return);
    ASSERT_EQ(manager.boxes().size(), 1U);
    sharedEdit().selectAll();
    type(QStringLiteral("12"));
    key(Qt::Key_Return);
    EXPECT_EQ(manager.boxes().size(), 1U);
    EXPECT_EQ(stored(7, 0), "12");
    EXPECT_EQ(openCellText(), "3,1");
}

TEST_F(InPlaceEditing, TheEditorFollowsAColumnThatIsResized) {
    open();
    openCell(c_PriceCol, 1);
    grid().SetColWidths(c_NameCol, 130);
    settle();
    const QPoint corner = grid().mapTo(form.get(), QPoint(2, 2)) + grid().CellRect(c_PriceCol, 1).topLeft();
    EXPECT_EQ(sharedEdit().pos(), corner);
}

TEST_F(InPlaceEditing, AnEditorIsNotAskedForByAGridWithoutFocus) {
    open();
    form->OkBtn->setFocus();
    settle();
    ASSERT_EQ(openCellText(), "none");
    grid().SetCurrentCell(c_CountCol, 2);
    settle();
    EXPECT_EQ(openCellText(), "none");
}

TEST_F(InPlaceEditing, AnEditorThatTheGridWantedIsNotOpenedOnceTheFocusHasGoneOn) {
    open();
    click(c_CodeCol, 1);
    settle();
    Q_EMIT grid().EditorWanted(c_CodeCol, 1);
    grid().SetCurrentCell(c_NoteCol, 1);
    form->OkBtn->setFocus();
    settle();
    EXPECT_EQ(openCellText(), "none");
    EXPECT_EQ(form->focusWidget(), form->OkBtn);
}
