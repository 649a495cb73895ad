#include "host/Exceptions.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <gmock/gmock.h>
#include <tuple>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

enum class Way {
    Enter,
    ShiftEnter,
    CtrlEnter,
    ClickOtherCell,
    TabAway,
    ClickOk,
    HideColumn,
    MakeNotEditable,
    CloseBox,
    Cancel,
    OtherWindow
};
enum class Editor { EditBox, List };
enum class Outcome { Accepted, RefusedByCheck, CallbackFalse, CallbackThrows };

const char* const c_Ways[] = {"Enter",      "ShiftEnter",      "CtrlEnter", "ClickOtherCell", "TabAway",    "ClickOk",
                              "HideColumn", "MakeNotEditable", "CloseBox",  "Cancel",         "OtherWindow"};
const char* const c_Editors[] = {"EditBox", "List"};
const char* const c_Outcomes[] = {"Accepted", "RefusedByCheck", "CallbackFalse", "CallbackThrows"};

/// Cancel and the close box drop the editor; another window leaves it alone.
bool asksForCommit(Way way) {
    return way < Way::CloseBox;
}

bool confirms(Way way) {
    return way == Way::CtrlEnter || way == Way::ClickOk;
}

bool closesForm(Way way) {
    return way == Way::CloseBox || way == Way::Cancel;
}

} // namespace

class LeavingACell : public EditBoxTest, public testing::WithParamInterface<std::tuple<Way, Editor, Outcome>> {
protected:
    Way way() const { return std::get<0>(GetParam()); }
    bool isList() const { return std::get<1>(GetParam()) == Editor::List; }
    Outcome outcome() const { return std::get<2>(GetParam()); }

    int col() const { return isList() ? c_WarehouseCol : c_CountCol; }
    int dataCol() const { return isList() ? 4 : 7; }
    AnsiString before() const { return isList() ? "Hlavní" : "5"; }
    AnsiString typed() const {
        if (isList()) {
            return "Vedlejší";
        }
        return outcome() == Outcome::RefusedByCheck ? "abc" : "42";
    }

    void openAndChange() {
        log.answer = [this] {
            if (outcome() == Outcome::CallbackThrows) {
                throw EDatabaseError("spojení ztraceno");
            }
            return outcome() != Outcome::CallbackFalse;
        };
        open();
        openCell(col(), 1);
        if (isList()) {
            key(Qt::Key_Down);
        } else {
            type(QString::fromStdString(typed()));
        }
    }

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
        case Way::TabAway:
            key(Qt::Key_Tab);
            break;
        case Way::ClickOk:
            QTest::mouseClick(form->OkBtn, Qt::LeftButton);
            break;
        case Way::HideColumn:
            openColumnMenu(col());
            pick(form->SkrytSloupec);
            break;
        case Way::MakeNotEditable:
            openColumnMenu(col());
            pick(form->NeeditovatelnySloupec);
            break;
        case Way::CloseBox:
            form->close();
            break;
        case Way::Cancel:
            QTest::mouseClick(form->CancelBtn, Qt::LeftButton);
            break;
        case Way::OtherWindow:
            other_.show();
            other_.activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&other_));
            break;
        }
        settle();
    }

    void expectTextStillInOpenEditor() {
        EXPECT_EQ(openCellText(), std::to_string(col()) + ",1");
        EXPECT_EQ(grid().Col(), col());
        EXPECT_EQ(grid().Row(), 1);
        EXPECT_EQ(form->focusWidget(), form->ActiveEditor());
        EXPECT_EQ(isList() ? combo().currentText() : sharedEdit().text(), QString::fromStdString(typed()));
    }

    void expectAccepted() {
        const AnsiString line = std::to_string(col()) + ",1=" + typed();
        EXPECT_THAT(log.lines, ElementsAre(line));
        EXPECT_EQ(stored(dataCol(), 0), typed());
        EXPECT_TRUE(form->DataGrid().GetModified(dataCol(), 0));
        EXPECT_NE(openCellText(), std::to_string(col()) + ",1");
        EXPECT_THAT(manager.boxes(), IsEmpty());
        EXPECT_THAT(host.errors(), IsEmpty());
        EXPECT_EQ(saves, confirms(way()) ? 1 : 0);
        EXPECT_EQ(form->isVisible(), !confirms(way()));
        EXPECT_EQ(form->ModalResult(), confirms(way()) ? c_ResultOk : 0);
    }

    /// One report at most, no second round, nothing saved, the command did not go on.
    void expectRefused() {
        expectTextStillInOpenEditor();
        const bool checked = outcome() == Outcome::RefusedByCheck;
        EXPECT_EQ(log.lines.size(), checked ? 0U : 1U);
        EXPECT_EQ(manager.boxes().size(), checked ? 1U : 0U);
        EXPECT_EQ(host.errors().size(), outcome() == Outcome::CallbackThrows ? 1U : 0U);
        EXPECT_EQ(stored(dataCol(), 0), checked ? before() : typed()) << "only a check keeps it out of the store";
        EXPECT_EQ(saves, 0);
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(form->ModalResult(), 0);
        EXPECT_TRUE(columnAt(col()).Visible);
        EXPECT_EQ(columnAt(col()).Editable, eAuto);
    }

    void expectNothingCommitted() {
        EXPECT_THAT(log.lines, IsEmpty());
        EXPECT_THAT(manager.boxes(), IsEmpty());
        EXPECT_THAT(host.errors(), IsEmpty());
        EXPECT_EQ(stored(dataCol(), 0), before());
        EXPECT_FALSE(form->DataGrid().GetModified(dataCol(), 0));
        EXPECT_EQ(saves, 0);
    }

private:
    QWidget other_;
};

TEST_P(LeavingACell, EndsAsItsOutcomeSays) {
    openAndChange();
    leave();
    if (asksForCommit(way())) {
        if (outcome() == Outcome::Accepted) {
            expectAccepted();
        } else {
            expectRefused();
        }
        return;
    }
    expectNothingCommitted();
    EXPECT_EQ(form->isVisible(), !closesForm(way()));
    if (closesForm(way())) {
        EXPECT_EQ(form->ModalResult(), c_ResultCancel);
        EXPECT_EQ(openCellText(), "none");
    } else {
        expectTextStillInOpenEditor();
    }
}

namespace {

std::vector<std::tuple<Way, Editor, Outcome>> allLeavings() {
    std::vector<std::tuple<Way, Editor, Outcome>> all;
    for (int way = 0; way <= static_cast<int>(Way::OtherWindow); ++way) {
        for (const Editor editor : {Editor::EditBox, Editor::List}) {
            for (const Outcome outcome :
                 {Outcome::Accepted, Outcome::RefusedByCheck, Outcome::CallbackFalse, Outcome::CallbackThrows}) {
                // The values of a list are not checked.
                if (editor != Editor::List || outcome != Outcome::RefusedByCheck) {
                    all.emplace_back(static_cast<Way>(way), editor, outcome);
                }
            }
        }
    }
    return all;
}

std::string nameOfLeaving(const testing::TestParamInfo<LeavingACell::ParamType>& testCase) {
    const auto [way, editor, outcome] = testCase.param;
    return std::string(c_Ways[static_cast<int>(way)]) + "_" + c_Editors[static_cast<int>(editor)] + "_" +
           c_Outcomes[static_cast<int>(outcome)];
}

} // namespace

INSTANTIATE_TEST_SUITE_P(EveryWay, LeavingACell, testing::ValuesIn(allLeavings()), nameOfLeaving);

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
