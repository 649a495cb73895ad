#include "host/Exceptions.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/EditedCell.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>
#include <tuple>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The ways to leave a cell that ask for its commit first.
enum class Way {
    Enter,
    ShiftEnter,
    CtrlEnter,
    ClickOtherCell,
    ClickCellWithoutEditor,
    TabAway,
    ClickOk,
    ClickOkNext,
    ClickSwitch,
    ClickMenuButton,
    HideColumn,
    HideOtherColumn,
    MakeNotEditable,
    ShowHiddenColumn,
    ChooseLayout,
    RestoreLayout
};

const char* const c_Ways[] = {
    "Enter",        "ShiftEnter",      "CtrlEnter",       "ClickOtherCell",   "ClickCellWithoutEditor",
    "TabAway",      "ClickOk",         "ClickOkNext",     "ClickSwitch",      "ClickMenuButton",
    "HideColumn",   "HideOtherColumn", "MakeNotEditable", "ShowHiddenColumn", "ChooseLayout",
    "RestoreLayout"};

bool confirms(Way way) {
    return way == Way::CtrlEnter || way == Way::ClickOk;
}

} // namespace

class LeavingACell : public EditedCellTest, public testing::WithParamInterface<std::tuple<Way, EditedCellCase>> {
protected:
    LeavingACell() {
        const auto script = [this](const AnsiString& name, std::vector<AnsiString> inputs) -> ProcedureScript& {
            return host.connection.procedure("MELVARKEDITORNASTAVENI" + name).inputs(std::move(inputs));
        };
        script("GetList", {"a_TYPEDITACE"}).returns({{{"NAZEV", "ID"}, {{AnsiString("Moje"), std::int64_t{3}}}}});
        script("Nacti", {"a_ID"}).returns({resultTable({"DATA"}, {{"<settings/>"}})});
        script("SmazDef", {"a_TYPEDITACE"});
    }

    Way way() const { return std::get<0>(GetParam()); }

    void leave() {
        switch (way()) {
        case Way::Enter:
            key(Qt::Key_Return);
            break;
        case Way::ShiftEnter:
            key(Qt::Key_Return, Qt::ShiftModifier);
            break;
        case Way::CtrlEnter:
            key(Qt::Key_Return, Qt::ControlModifier);
            break;
        case Way::ClickOtherCell:
            click(c_NoteCol, 2);
            break;
        case Way::ClickCellWithoutEditor:
            click(c_CodeCol, 3);
            break;
        case Way::TabAway:
            key(Qt::Key_Tab);
            break;
        case Way::ClickOk:
            QTest::mouseClick(form->OkBtn, Qt::LeftButton);
            break;
        case Way::ClickOkNext:
            form->OKDalsiBtn->setEnabled(true);
            QTest::mouseClick(form->OKDalsiBtn, Qt::LeftButton);
            break;
        case Way::ClickSwitch:
            QTest::mouseClick(form->findChild<QWidget*>(QStringLiteral("chbPrepocetCen")), Qt::LeftButton, {},
                              QPoint(8, 8));
            break;
        case Way::ClickMenuButton:
            clickMenuButton();
            break;
        case Way::HideColumn:
            openColumnMenu(col());
            pick(form->SkrytSloupec);
            break;
        case Way::HideOtherColumn:
            openColumnMenu(c_NameCol);
            pick(form->SkrytSloupec);
            break;
        case Way::MakeNotEditable:
            openColumnMenu(col());
            pick(form->NeeditovatelnySloupec);
            break;
        case Way::ShowHiddenColumn:
            openColumnMenu(c_NameCol);
            pick(form->findChild<QAction*>(QStringLiteral("HiddenColumnSLEVA")));
            break;
        case Way::ChooseLayout:
            pick(form->findChild<QAction*>(QStringLiteral("SavedSetting3")));
            break;
        case Way::RestoreLayout:
            manager.boxAnswers = {c_ResultYes};
            pick(form->ObnovVychoziNastaveni);
            break;
        }
        settle();
    }

    /// Its menu is no leaving while it shows; the button has the focus once it is closed.
    void clickMenuButton() {
        form->SettingsPopupMenu->addAction(QStringLiteral("vzor"));
        QTest::mouseClick(form->MenuBtn, Qt::LeftButton);
        settle();
        ASSERT_TRUE(form->SettingsPopupMenu->isVisible());
        expectNothingCommitted();
        form->SettingsPopupMenu->close();
    }

    void expectCommandWentOn() {
        EXPECT_EQ(saves, confirms(way()) ? 1 : 0);
        EXPECT_EQ(form->isVisible(), !confirms(way()));
        EXPECT_EQ(form->ModalResult(), confirms(way()) ? c_ResultOk : 0);
        EXPECT_EQ(form->GetPrepocetCen(), way() != Way::ClickSwitch);
        EXPECT_EQ(grid().ColCount(), columnsAfter());
        EXPECT_EQ(form->SettingsId(), way() == Way::ChooseLayout ? 3 : -1);
        EXPECT_EQ(host.connection.callsOf("MELVARKEDITORNASTAVENISmazDef").size(),
                  way() == Way::RestoreLayout ? 1U : 0U);
    }

    int columnsAfter() const {
        switch (way()) {
        case Way::HideColumn:
        case Way::HideOtherColumn:
            return 8;
        case Way::ShowHiddenColumn:
            return 10;
        default:
            return 9;
        }
    }

    void expectCommandStopped() {
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(form->ModalResult(), 0);
        EXPECT_TRUE(form->GetPrepocetCen());
        EXPECT_EQ(grid().ColCount(), 9);
        EXPECT_EQ(columnAt(col()).Editable, eAuto);
        EXPECT_EQ(form->SettingsId(), -1);
        EXPECT_THAT(host.connection.callsOf("MELVARKEDITORNASTAVENISmazDef"), IsEmpty());
    }
};

TEST_P(LeavingACell, EndsAsItsOutcomeSays) {
    openAndChange(std::get<1>(GetParam()));
    leave();
    if (isAccepted()) {
        expectCommandWentOn();
    } else {
        expectCommandStopped();
    }
    expectOutcome(way() == Way::ShowHiddenColumn); // which leaves the grid's cursor where it was
}

namespace {

std::vector<std::tuple<Way, EditedCellCase>> allLeavings() {
    std::vector<std::tuple<Way, EditedCellCase>> all;
    for (int way = 0; way <= static_cast<int>(Way::RestoreLayout); ++way) {
        for (const EditedCellCase& cell : allEditedCells()) {
            all.emplace_back(static_cast<Way>(way), cell);
        }
    }
    return all;
}

std::string nameOfLeaving(const testing::TestParamInfo<LeavingACell::ParamType>& testCase) {
    const auto& [way, cell] = testCase.param;
    return std::string(c_Ways[static_cast<int>(way)]) + "_" + nameOf(cell);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(EveryWay, LeavingACell, testing::ValuesIn(allLeavings()), nameOfLeaving);

/// Cancel and the close box ask for nothing, whatever would have become of the value.
class DroppingACell : public EditedCellTest, public testing::WithParamInterface<EditedCellCase> {
protected:
    void expectDropped() {
        expectNothingCommitted();
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(form->ModalResult(), c_ResultCancel);
        EXPECT_EQ(openCellText(), "none");
    }
};

TEST_P(DroppingACell, ByCancel) {
    openAndChange(GetParam());
    QTest::mouseClick(form->CancelBtn, Qt::LeftButton);
    settle();
    expectDropped();
}

TEST_P(DroppingACell, ByTheCloseBox) {
    openAndChange(GetParam());
    form->close();
    settle();
    expectDropped();
}

INSTANTIATE_TEST_SUITE_P(EveryText, DroppingACell,
                         testing::Values(EditedCellCase{CellEditor::EditBox, CommitOutcome::Accepted},
                                         EditedCellCase{CellEditor::EditBox, CommitOutcome::RefusedByCheck},
                                         EditedCellCase{CellEditor::List, CommitOutcome::Accepted}),
                         [](const auto& testCase) { return nameOf(testCase.param); });

class LeavingACellAgain : public EditBoxTest {};

TEST_F(LeavingACellAgain, EachNewAttemptIsReportedOnce) {
    open();
    openCell(c_CountCol, 1);
    type(QStringLiteral("abc"));
    for (std::size_t attempt = 1; attempt <= 3; ++attempt) {
        key(Qt::Key_Tab);
        settle();
        EXPECT_EQ(manager.boxes().size(), attempt);
        EXPECT_EQ(form->focusWidget(), &sharedEdit());
    }
}

TEST_F(LeavingACellAgain, ACallbackThatRefusedIsAskedAgainForTheSameText) {
    open();
    log.answer = [] { return false; };
    openCell(c_CountCol, 1);
    type(QStringLiteral("42"));
    key(Qt::Key_Return);
    key(Qt::Key_Return);
    EXPECT_THAT(log.lines, ElementsAre("2,1=42", "2,1=42"));
    log.answer = nullptr;
    key(Qt::Key_Return);
    EXPECT_EQ(openCellText(), "3,1");
}

TEST_F(LeavingACellAgain, TheOkButtonNeverSavesPastARefusedValue) {
    open();
    openCell(c_CountCol, 1);
    type(QStringLiteral("abc"));
    form->OkBtnClick(form->OkBtn);
    EXPECT_EQ(saves, 0);
    EXPECT_EQ(form->ModalResult(), 0);
}

TEST_F(LeavingACellAgain, AShortcutOfTheOkButtonCommitsWithoutMovingTheFocus) {
    open();
    openCell(c_CountCol, 1);
    type(QStringLiteral("42"));
    form->OkBtn->click();
    settle();
    EXPECT_EQ(stored(7, 0), "42");
    EXPECT_EQ(saves, 1);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(LeavingACellAgain, AFailedSaveIsReportedOnceAndKeepsEverythingTyped) {
    open();
    form->SetOnSaveData([]() -> bool { throw EDatabaseError("databáze je zamčená"); });
    openCell(c_CountCol, 1);
    type(QStringLiteral("42"));
    key(Qt::Key_Return, Qt::ControlModifier);
    settle();
    EXPECT_THAT(host.errors(), ElementsAre("databáze je zamčená"));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(stored(7, 0), "42");
    QTest::mouseClick(form->OkBtn, Qt::LeftButton);
    settle();
    EXPECT_EQ(host.errors().size(), 2U);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(LeavingACellAgain, ComingBackFromAnotherWindowContinuesTheEditing) {
    open();
    openCell(c_CountCol, 1);
    type(QStringLiteral("4"));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    type(QStringLiteral("2"));
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("42")) << "the half-typed number is neither selected nor committed";
}
