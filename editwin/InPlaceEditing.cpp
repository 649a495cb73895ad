#include "editwin/InPlaceEditing.h"

#include "editwin/CellWriter.h"
#include "editwin/GridComboBox.h"
#include "editwin/model/ColumnList.h"
#include "editwin/model/EditExceptions.h"
#include "editwin/model/ValueChecks.h"
#include "host/HostServices.h"
#include "host/widgets/Fonts.h"
#include "host/widgets/Guard.h"
#include "host/widgets/Later.h"
#include "host/widgets/StringGrid.h"
#include "host/widgets/Text.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QRect>
#include <QRegion>
#include <QScopeGuard>

#include <algorithm>
#include <utility>

namespace melvark {

InPlaceEditing::InPlaceEditing(GridEditing& editing, CellWriter& writer, QWidget& form,
                               std::function<void(const AnsiString&)> showErrorBox)
    : FEditing(editing),
      FWriter(writer),
      FForm(form),
      FShowErrorBox(std::move(showErrorBox)),
      FSharedEdit(new QLineEdit(&form)) {
    FSharedEdit->setObjectName(QStringLiteral("SharedEdit"));
    FSharedEdit->setFont(GridFont());
    FSharedEdit->hide();
}

void InPlaceEditing::CreateListEditors() {
    for (RColumn& column : FEditing.Defaults) {
        if (!column.Values) {
            continue;
        }
        auto* const combo = new TGridComboBox(&FForm);
        combo->setObjectName(QStringLiteral("GridComboBox") + ToQString(column.Name));
        combo->setFont(GridFont());
        combo->SetItems(*column.Values);
        column.Editor = combo;
    }
}

std::vector<QWidget*> InPlaceEditing::Editors() const {
    std::vector<QWidget*> editors{FSharedEdit};
    for (const RColumn& column : FEditing.Defaults) {
        if (column.Editor) {
            editors.push_back(column.Editor);
        }
    }
    return editors;
}

void InPlaceEditing::ShowEditor(int pictured, int row, Reach reach) {
    if (!HideEditor()) {
        return;
    }
    const int col = LaidOut(pictured).value_or(0);
    TStringGrid& grid = FEditing.Grid;
    const RColumn* const column = FEditing.ColumnAt(col);
    if (!column || row < 1 || row >= grid.RowCount() || !MayOpen(*column, reach, FEditing.Rule, col, row)) {
        return;
    }
    grid.SetCurrentCell(col, row);
    FEditCol = col;
    FEditRow = row;
    FOpened = {.Editor = FSharedEdit,
               .Key = column->Name,
               .DataColumn = column->DataColumn,
               .StoreRow = FEditing.Rows.StoreRow(row),
               .DataType = column->DataType,
               .Callback = column->Callback};
    if (auto* const combo = qobject_cast<TGridComboBox*>(column->Editor)) {
        combo->SelectText(grid.Cells(col, row));
        FOpened.Editor = combo;
    } else {
        FSharedEdit->setText(ToQString(grid.Cells(col, row)));
        FSharedEdit->setModified(false);
        FSharedEdit->selectAll();
    }
    FOpened.Editor->setAccessibleName(ToQString(column->Caption));
    LayEditor();
    FOpened.Editor->show();
    FOpened.Editor->raise();
    FOpened.Editor->setFocus(Qt::OtherFocusReason);
}

CommitAnswer InPlaceEditing::CommitEditor() {
    if (FCommitting) {
        return CommitAnswer::Running;
    }
    FCheckWanted = false; // this is the check
    if (!FOpened.Editor || FOpened.Editor->isHidden()) {
        return CommitAnswer::Closed;
    }
    FCommitting = true;
    const auto finish = qScopeGuard([this] { FCommitting = false; });
    try {
        if (Commit()) {
            CloseEditor();
            if (FOpenWanted) {
                QueueSettle();
            }
            return CommitAnswer::Closed;
        }
        ReturnToEditCell();
    } catch (const EBadValue& refusal) {
        ReturnToEditCell();
        FShowErrorBox(refusal.Message());
        ReturnToEditCell();
    } catch (...) {
        ReturnToEditCell();
        throw;
    }
    return CommitAnswer::Refused;
}

bool InPlaceEditing::Commit() {
    FollowOpenedCell();
    if (const auto* const combo = qobject_cast<const TGridComboBox*>(FOpened.Editor)) {
        return CommitText(combo->SelectedText(), combo->HasChanged());
    }
    return CommitText(CheckedText(), FSharedEdit->isModified());
}

AnsiString InPlaceEditing::CheckedText() const {
    const AnsiString text = ToAnsi(FSharedEdit->text());
    switch (FOpened.DataType) {
    case cdtInt:
        return CheckInt(FSharedEdit, text);
    case cdtFlt:
        return CheckFloat(FSharedEdit, text);
    case cdtDate:
        return CheckDate(FSharedEdit, text);
    case cdtString:
    case cdtType:
        break;
    }
    return text;
}

bool InPlaceEditing::CommitText(const AnsiString& text, bool isChanged) {
    if (!isChanged) {
        FWriter.Show(FOpened.DataColumn, FOpened.StoreRow, text);
        return true;
    }
    FWriter.WriteTyped(FOpened.DataColumn, FOpened.StoreRow, text);
    // A copy: the callback may close the cell.
    const TColumnCallback callback = FOpened.Callback;
    return !callback || callback(FEditCol, FEditRow, text);
}

void InPlaceEditing::CloseEditor() {
    QWidget* const editor = std::exchange(FOpened, {}).Editor;
    if (!editor) {
        return;
    }
    // Left to itself, Qt would hand the focus of a hidden control to whatever comes next.
    if (FForm.focusWidget() == editor) {
        FEditing.Grid.setFocus(Qt::OtherFocusReason);
    }
    editor->hide();
}

void InPlaceEditing::DropEditor() {
    FCheckWanted = false;
    FOpenWanted = false;
    if (QWidget* const editor = std::exchange(FOpened, {}).Editor) {
        editor->hide();
    }
}

/// The columns may have been moved, hidden or replaced under the open editor. Two columns can show the same data: the
/// edited one is then the one that still stands in its place.
void InPlaceEditing::FollowOpenedCell() {
    if (DataColumnAt(FEditCol) != FOpened.DataColumn) {
        FEditCol = FirstGridColumnOf(FOpened.DataColumn);
    }
    FEditRow = FEditing.Rows.GridRow(FOpened.StoreRow);
}

AnsiString InPlaceEditing::CallbackKey(int gridCol) const {
    if (const RColumn* const column = FEditing.ColumnAt(gridCol)) {
        return column->Name;
    }
    return gridCol == FEditCol ? FOpened.Key : AnsiString();
}

void InPlaceEditing::ReturnToEditCell() {
    FOpenWanted = false;
    if (!FOpened.Editor) {
        return;
    }
    FEditing.Grid.SetCurrentCell(FEditCol, FEditRow);
    LayEditor();
    FOpened.Editor->setFocus(Qt::OtherFocusReason);
}

std::optional<int> InPlaceEditing::LaidOut(int pictured) {
    if (!FEditing.Awaited) {
        return pictured;
    }
    if (!HideEditor()) {
        return std::nullopt;
    }
    TStringGrid& grid = FEditing.Grid;
    const int wanted = DataColumnAt(pictured);
    const int current = DataColumnAt(grid.Col());
    const int row = grid.Row();
    FEditing.LayOut();
    grid.SetCurrentCell(FirstGridColumnOf(current), row);
    return FirstGridColumnOf(wanted);
}

int InPlaceEditing::DataColumnAt(int gridCol) const {
    const RColumn* const column = FEditing.ColumnAt(gridCol);
    return (column ? *column : BlankColumn()).DataColumn;
}

/// 0 when none shows these data.
int InPlaceEditing::FirstGridColumnOf(int dataColumn) const {
    const std::vector<int> shownAt = GridColumnsOfData(FEditing.Active, dataColumn);
    return shownAt.empty() ? 0 : shownAt.front();
}

void InPlaceEditing::GoNextEditable() {
    if (!LayOutAwaited()) {
        return;
    }
    const TStringGrid& grid = FEditing.Grid;
    OpenFirst(NextEditableCell({grid.ColCount(), grid.RowCount()}, {grid.Col(), grid.Row()},
                               [this](int col, int row) { return MayStop(col, row); }));
}

void InPlaceEditing::GoPrevEditable() {
    if (!LayOutAwaited()) {
        return;
    }
    const TStringGrid& grid = FEditing.Grid;
    OpenFirst(PreviousEditableCell({grid.ColCount(), grid.RowCount()}, {grid.Col(), grid.Row()},
                                   [this](int col, int row) { return MayStop(col, row); }));
}

bool InPlaceEditing::MayStop(int col, int row) const {
    const RColumn* const column = FEditing.ColumnAt(col);
    return column && MayOpen(*column, Reach::ByTraversal, FEditing.Rule, col, row);
}

void InPlaceEditing::OpenFirst(std::optional<GridPosition> cell) {
    if (cell) {
        ShowEditor(cell->Col, cell->Row, Reach::ByTraversal);
    }
}

void InPlaceEditing::CheckWhenSettled(const QWidget* editor) {
    if (editor != FOpened.Editor || FCommitting) {
        return;
    }
    FCheckWanted = true;
    QueueSettle();
}

void InPlaceEditing::OpenWhenSettled() {
    FOpenWanted = true;
    QueueSettle();
}

void InPlaceEditing::QueueSettle() {
    if (std::exchange(FSettleQueued, true)) {
        return;
    }
    CallLater(this, [this] { Settle(); });
}

void InPlaceEditing::Settle() {
    FSettleQueued = false;
    // A running commit sees to what is wanted when it ends.
    if (FCommitting) {
        return;
    }
    if (QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget()) {
        qApp->installEventFilter(this);
        return;
    }
    const bool checks = std::exchange(FCheckWanted, false) && FOpened.Editor && FForm.focusWidget() != FOpened.Editor;
    const bool opens = std::exchange(FOpenWanted, false);
    Guarded([&] {
        if (checks && !HideEditor()) {
            return;
        }
        const TStringGrid& grid = FEditing.Grid;
        if (opens && grid.hasFocus()) {
            ShowEditor(grid.Col(), grid.Row(), Reach::BySelection);
        }
    });
}

bool InPlaceEditing::eventFilter(QObject*, QEvent* event) {
    // A released button or a closed menu; Settle looks whether it was the last.
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::Hide) {
        qApp->removeEventFilter(this);
        QueueSettle();
    }
    return false;
}

void InPlaceEditing::EditorToCell(QWidget& editor, const QRect& rect) const {
    const QPoint gridPosition = FEditing.Grid.mapTo(&FForm, QPoint(0, 0));
    const QPoint border(TStringGrid::c_BorderWidth, TStringGrid::c_BorderWidth);
    editor.setGeometry(QRect(gridPosition + rect.topLeft() + border, rect.size()));
}

void InPlaceEditing::LayEditor() {
    if (!FOpened.Editor) {
        return;
    }
    FollowOpenedCell();
    const bool isShown = FEditCol > 0 && FEditRow > 0;
    const QRect rect = isShown ? FEditing.Grid.CellRect(FEditCol, FEditRow) : QRect();
    const QRect shown = rect & FEditing.Grid.CellsArea();
    if (shown.isEmpty()) {
        // An empty mask would mean none; this one lies outside, so that nothing of the editor shows.
        FOpened.Editor->setMask(QRegion(-1, -1, 1, 1));
        return;
    }
    EditorToCell(*FOpened.Editor, rect);
    if (shown == rect) {
        FOpened.Editor->clearMask();
    } else {
        FOpened.Editor->setMask(shown.translated(-rect.topLeft()));
    }
}

namespace {

/// Runs a check; a refusal gives the focus back to a visible edit box first.
template <class Check>
AnsiString Checked(QWidget* sender, Check check) {
    try {
        return check();
    } catch (const EBadValue&) {
        if (auto* const edit = qobject_cast<QLineEdit*>(sender); edit && edit->isVisible()) {
            edit->setFocus(Qt::OtherFocusReason);
        }
        throw;
    }
}

} // namespace

AnsiString InPlaceEditing::CheckInt(QWidget* sender, const AnsiString& value) const {
    return Checked(sender, [&] { return melvark::CheckInt(value); });
}

AnsiString InPlaceEditing::CheckFloat(QWidget* sender, const AnsiString& value) const {
    return Checked(sender, [&] { return melvark::CheckFloat(value, CurrentHost().FormatSettings()); });
}

AnsiString InPlaceEditing::CheckDate(QWidget* sender, const AnsiString& value) const {
    const THostServices& host = CurrentHost();
    return Checked(sender, [&] {
        const auto today = std::chrono::floor<std::chrono::days>(CurrentHost().Now());
        return melvark::CheckDate(value, host.FormatSettings(), std::chrono::year_month_day(today));
    });
}

} // namespace melvark
