#pragma once

#include "editwin/GridEditing.h"
#include "editwin/model/CellRules.h"
#include "editwin/model/Navigation.h"
#include "host/Types.h"

#include <QObject>

#include <functional>
#include <optional>

class QLineEdit;
class QRect;
class QWidget;

namespace melvark {

class CellWriter;

/// The keeper of in-place editing, one for each form: it opens an editor over a cell, commits it to the grid and the
/// store, and sees to it that a refused value is neither lost nor reported twice.
///
/// A cell is left in many ways. Keys and commands call HideEditor themselves and stop when it is refused. A focus that
/// goes elsewhere only asks for a check (CheckWhenSettled), which runs from the event loop with all mouse buttons up
/// and all menus closed: a box shown inside the focus event, between press and release, or over a menu, would break the
/// click that caused it. The grid asks for an editor in the same way (OpenWhenSettled).
///
/// It does not watch the editors' events itself: the form connects EditorEvents.
class InPlaceEditing : public QObject {
    Q_OBJECT

public:
    /// The shared edit box and the list editors become children of `form`. `showErrorBox` shows a modal box.
    InPlaceEditing(GridEditing& editing, CellWriter& writer, QWidget& form,
                   std::function<void(const AnsiString&)> showErrorBox);

    /// Makes a list editor for each default column with a value list and keeps it in the column's Editor.
    void CreateListEditors();
    /// The shared edit box and every list editor.
    std::vector<QWidget*> Editors() const;

    /// Opens the editor on a grid cell, when the cell may be edited, once the open one is committed. An exception of
    /// the open column's callback passes through, here and in HideEditor.
    void ShowEditor(int col, int row, Reach reach);
    /// Commits and closes the open editor. False when the value was refused, by a check, by the column's callback or
    /// by an exception of it that passes through: then the editor stays open on its cell with the focus. Also false
    /// while a commit is still running: its message box must not start a second one.
    bool HideEditor();
    /// Closes the open editor without a check; its text is lost.
    void DropEditor();
    void GoNextEditable();
    void GoPrevEditable();

    /// The focus left the editor: commit it soon, unless it has the focus again by then.
    void CheckWhenSettled(const QWidget* editor);
    /// The grid wants an editor on its current cell.
    void OpenWhenSettled();

    void EditorToCell(QWidget& editor, const QRect& rect) const;
    /// Lays the open editor over its cell again. What is scrolled out of the cells' area does not show, but stays open.
    void LayEditor();

    /// The checks of typed values: as in model/ValueChecks, and a refusal gives the focus back to a visible edit box.
    AnsiString CheckInt(QWidget* sender, const AnsiString& value) const;
    AnsiString CheckFloat(QWidget* sender, const AnsiString& value) const;
    AnsiString CheckDate(QWidget* sender, const AnsiString& value) const;

    QWidget* ActiveEditor() const { return FActive; }
    QLineEdit& SharedEdit() const { return *FSharedEdit; }
    /// The cell that was opened last.
    int EditCol() const { return FEditCol; }
    int EditRow() const { return FEditRow; }
    /// The edited column stands elsewhere.
    void SetEditCol(int col) { FEditCol = col; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Commit();
    AnsiString CheckedText(const RColumn& column) const;
    bool CommitText(const RColumn& column, const AnsiString& text, bool isChanged);
    void CloseEditor();
    void ReturnToEditCell();
    void OpenFirst(std::optional<GridPosition> cell);
    bool MayStop(int col, int row) const;
    void QueueSettle();
    void Settle();

    GridEditing& FEditing;
    CellWriter& FWriter;
    QWidget& FForm;
    std::function<void(const AnsiString&)> FShowErrorBox;
    QLineEdit* FSharedEdit;
    QWidget* FActive = nullptr;
    int FEditCol = 0;
    int FEditRow = 0;
    bool FCommitting = false;
    bool FCheckWanted = false;
    bool FOpenWanted = false;
    bool FSettleQueued = false;
};

} // namespace melvark
