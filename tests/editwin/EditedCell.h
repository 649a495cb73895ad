#pragma once

#include "tests/editwin/TestEditBox.h"

#include <string>
#include <vector>

/// The kinds of in-place editor.
enum class CellEditor { EditBox, List };
/// What becomes of the value in the open editor when it is committed.
enum class CommitOutcome { Accepted, RefusedByCheck, CallbackFalse, CallbackThrows };

/// The kinds of editor with the outcomes that each can have: the values of a list are not checked.
struct EditedCellCase {
    CellEditor Editor;
    CommitOutcome Outcome;
};
std::vector<EditedCellCase> allEditedCells();
/// As a part of a test's name.
std::string nameOf(const EditedCellCase& cell);

/// A test with one opened and changed cell in the first row: a count in the edit box or a warehouse in its list.
class EditedCellTest : public EditBoxTest {
protected:
    void openAndChange(const EditedCellCase& cell);

    int col() const { return isList() ? c_WarehouseCol : c_CountCol; }
    int dataCol() const { return isList() ? 4 : 7; }
    AnsiString before() const { return isList() ? "Hlavní" : "5"; }
    AnsiString typed() const;

    /// The editor still lies on its cell with the focus and what was typed.
    void expectTextStillInOpenEditor();
    void expectNothingCommitted();
    /// One callback, stored and marked, no report. The grid may want an editor on its current cell at once.
    void expectCommitted(bool isOpenedAgain = false);
    /// Exactly one report, nothing saved, the editor as it was.
    void expectRefusedOnce();
    void expectOutcome(bool isOpenedAgain = false);

    bool isAccepted() const { return cell_.Outcome == CommitOutcome::Accepted; }

private:
    /// Without the questions that a command asks before it acts.
    std::vector<AnsiString> errorBoxes() const;
    bool isList() const { return cell_.Editor == CellEditor::List; }

    EditedCellCase cell_{CellEditor::EditBox, CommitOutcome::Accepted};
};
