#include "tests/editwin/EditedCell.h"

#include "host/Exceptions.h"
#include "host/widgets/StringGrid.h"

#include <QComboBox>
#include <QLineEdit>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<EditedCellCase> allEditedCells() {
    std::vector<EditedCellCase> all;
    for (const CommitOutcome outcome : {CommitOutcome::Accepted, CommitOutcome::RefusedByCheck,
                                        CommitOutcome::CallbackFalse, CommitOutcome::CallbackThrows}) {
        all.push_back({CellEditor::EditBox, outcome});
        if (outcome != CommitOutcome::RefusedByCheck) {
            all.push_back({CellEditor::List, outcome});
        }
    }
    return all;
}

std::string nameOf(const EditedCellCase& cell) {
    const char* const editors[] = {"EditBox", "List"};
    const char* const outcomes[] = {"Accepted", "RefusedByCheck", "CallbackFalse", "CallbackThrows"};
    return std::string(editors[static_cast<int>(cell.Editor)]) + "_" + outcomes[static_cast<int>(cell.Outcome)];
}

void EditedCellTest::openAndChange(const EditedCellCase& cell) {
    cell_ = cell;
    log.answer = [this] {
        if (cell_.Outcome == CommitOutcome::CallbackThrows) {
            throw EDatabaseError("spojení ztraceno");
        }
        return cell_.Outcome != CommitOutcome::CallbackFalse;
    };
    if (!form) {
        open();
    }
    openCell(col(), 1);
    if (isList()) {
        key(Qt::Key_Down);
    } else {
        type(QString::fromStdString(typed()));
    }
}

AnsiString EditedCellTest::typed() const {
    if (isList()) {
        return "Vedlejší";
    }
    return cell_.Outcome == CommitOutcome::RefusedByCheck ? "abc" : "42";
}

void EditedCellTest::expectTextStillInOpenEditor() {
    EXPECT_EQ(openCellText(), std::to_string(col()) + ",1");
    EXPECT_EQ(grid().Col(), col());
    EXPECT_EQ(grid().Row(), 1);
    EXPECT_EQ(form->focusWidget(), form->ActiveEditor());
    EXPECT_EQ(isList() ? combo().currentText() : sharedEdit().text(), QString::fromStdString(typed()));
}

std::vector<AnsiString> EditedCellTest::errorBoxes() const {
    std::vector<AnsiString> errors = manager.boxes();
    std::erase_if(errors, [](const AnsiString& box) { return !box.starts_with("16: "); });
    return errors;
}

void EditedCellTest::expectNothingCommitted() {
    EXPECT_THAT(log.lines, IsEmpty());
    EXPECT_THAT(manager.boxes(), IsEmpty());
    EXPECT_THAT(host.errors(), IsEmpty());
    EXPECT_EQ(stored(dataCol(), 0), before());
    EXPECT_FALSE(form->DataGrid().GetModified(dataCol(), 0));
    EXPECT_EQ(grid().Cells(col(), 1), before());
    EXPECT_EQ(saves, 0);
}

void EditedCellTest::expectCommitted(bool isOpenedAgain) {
    const AnsiString line = std::to_string(col()) + ",1=" + typed();
    EXPECT_THAT(log.lines, ElementsAre(line));
    EXPECT_EQ(stored(dataCol(), 0), typed());
    EXPECT_TRUE(form->DataGrid().GetModified(dataCol(), 0));
    EXPECT_EQ(openCellText() == std::to_string(col()) + ",1", isOpenedAgain);
    EXPECT_THAT(errorBoxes(), IsEmpty());
    EXPECT_THAT(host.errors(), IsEmpty());
}

void EditedCellTest::expectRefusedOnce() {
    expectTextStillInOpenEditor();
    EXPECT_FALSE(grid().CellRect(col(), 1).isNull()) << "the refused cell is in view";
    const bool checked = cell_.Outcome == CommitOutcome::RefusedByCheck;
    EXPECT_EQ(log.lines.size(), checked ? 0U : 1U);
    EXPECT_EQ(errorBoxes().size(), checked ? 1U : 0U);
    EXPECT_EQ(host.errors().size(), cell_.Outcome == CommitOutcome::CallbackThrows ? 1U : 0U);
    EXPECT_EQ(stored(dataCol(), 0), checked ? before() : typed()) << "only a check keeps it out of the store";
    EXPECT_EQ(saves, 0);
}

void EditedCellTest::expectOutcome(bool isOpenedAgain) {
    if (isAccepted()) {
        expectCommitted(isOpenedAgain);
    } else {
        expectRefusedOnce();
    }
}
