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

/// How an attempt to commit and close the open editor ended.
enum class CommitAnswer {
    Closed,  ///< No editor is open any more.
    Refused, ///< A check or the column's callback refused the value; the editor stays open on its cell with the focus.
    Running  ///< A commit is at work already, in its message box or its callback; nothing was done.
};

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

    /// Opens the editor on a grid cell as it is pictured, when the cell may be edited, once the open one is committed.
    /// An exception of the open column's callback passes through, here and in HideEditor.
    void ShowEditor(int pictured, int row, Reach reach);
    /// Commits and closes the open editor. What is committed is the cell as it was opened, whatever became of the
    /// column list meanwhile. An exception of the callback passes through and leaves the editor open as a refusal does.
    CommitAnswer CommitEditor();
    /// The same for a command that goes on only when no editor is open.
    bool HideEditor() { return CommitEditor() == CommitAnswer::Closed; }
    /// Closes the open editor without a check; its text is lost.
    void DropEditor();
    /// Lays out the columns that are awaited, if any, once the open cell is committed as it is pictured; the cursor
    /// goes along with its column. Gives the place of the column that was pictured at a grid column: 0 when it is no
    /// longer shown. Nothing when the value was refused: the picture stays. Asked before a grid column is opened or
    /// changed.
    std::optional<int> LaidOut(int pictured);
    /// The same when no column is meant.
    bool LayOutAwaited() { return LaidOut(0).has_value(); }
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

    QWidget* ActiveEditor() const { return FOpened.Editor; }
    QLineEdit& SharedEdit() const { return *FSharedEdit; }
    /// The cell that was opened last; column or row 0 once the open one is no longer shown.
    int EditCol() const { return FEditCol; }
    int EditRow() const { return FEditRow; }
    /// The key of the column that a callback's grid column means: the one that stands there, or the opened one when the
    /// edited column is shown no longer (grid column 0). Empty when there is neither.
    AnsiString CallbackKey(int gridCol) const;
    /// The edited column stands elsewhere.
    void SetEditCol(int col) { FEditCol = col; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The open cell, as it stood when it was opened: the column list may change before it is committed.
    struct OpenedCell {
        QWidget* Editor = nullptr; ///< Null while no cell is open.
        AnsiString Key;
        int DataColumn = -1;
        int StoreRow = 0;
        TColumnsDataType DataType = cdtString;
        TColumnCallback Callback;
    };

    bool Commit();
    AnsiString CheckedText() const;
    bool CommitText(const AnsiString& text, bool isChanged);
    void CloseEditor();
    void FollowOpenedCell();
    int DataColumnAt(int gridCol) const;
    int FirstGridColumnOf(int dataColumn) const;
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
    OpenedCell FOpened;
    int FEditCol = 0;
    int FEditRow = 0;
    bool FCommitting = false;
    bool FCheckWanted = false;
    bool FOpenWanted = false;
    bool FSettleQueued = false;
};

} // namespace melvark
