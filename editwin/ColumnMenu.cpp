#include "editwin/ColumnMenu.h"

#include "dialogs/MelvarkEditorColumnPropWin.h"
#include "editwin/CellWriter.h"
#include "editwin/InPlaceEditing.h"
#include "editwin/model/ColumnList.h"
#include "host/widgets/Guard.h"
#include "host/widgets/StringGrid.h"
#include "host/widgets/Text.h"

#include <QAction>
#include <QMenu>
#include <QScopeGuard>

#include <algorithm>
#include <optional>
#include <utility>

namespace melvark {

ColumnMenu::ColumnMenu(GridEditing& editing, CellWriter& writer, InPlaceEditing& keeper, const Items& items)
    : FEditing(editing), FWriter(writer), FKeeper(keeper), FItems(items) {}

void ColumnMenu::OpenAt(int col, int row, const QPoint& globalPos) {
    const std::optional<int> column = row == 0 ? FKeeper.LaidOut(std::max(col, 0)) : std::nullopt;
    FPopupColumn = column.value_or(0);
    if (column) {
        FItems.Menu.popup(globalPos);
    }
}

void ColumnMenu::PrepareItems() {
    const RColumn* const column = FEditing.ColumnAt(FPopupColumn);
    FItems.Properties.setEnabled(column);
    FItems.Hide.setEnabled(column);
    CheckEditability(column && column->ColumnType == ctNormal ? column : nullptr);
}

void ColumnMenu::CheckEditability(const RColumn* column) {
    const std::pair<QAction&, TEditable> items[] = {
        {FItems.Automatic, eAuto}, {FItems.Manual, eManual}, {FItems.None, eNone}};
    for (const auto& [item, editable] : items) {
        item.setEnabled(column);
        item.setChecked(column && column->Editable == editable);
    }
}

void ColumnMenu::EditProperties(TLibraryManager* manager) {
    RColumn* const column = FEditing.ColumnAt(FPopupColumn);
    if (!column) {
        return;
    }
    TStringGrid& grid = FEditing.Grid;
    TColumnPropertyBox box(grid.window(), manager);
    box.SetColumnCaption(column->Caption);
    box.SetColumnHint(column->Hint);
    box.SetColumnAlign(column->Align);
    if (box.ShowModal() != c_ResultOk) {
        return;
    }
    column->Caption = box.GetColumnCaption();
    column->Hint = box.GetColumnHint();
    column->Align = box.GetColumnAlign();
    grid.SetCells(FPopupColumn, 0, column->Caption);
    grid.viewport()->update();
}

void ColumnMenu::SetEditability(TEditable editable) {
    // The click has moved the check mark by itself, also when nothing is changed.
    const auto showMark = qScopeGuard([this] { PrepareItems(); });
    const bool isEdited = FKeeper.ActiveEditor() && FKeeper.EditCol() == FPopupColumn;
    const bool closes = editable == eNone && isEdited;
    // The column is sought after the commit, whose callback may have replaced the list.
    const bool mayChange = !closes || FKeeper.HideEditor();
    RColumn* const column = FEditing.ColumnAt(FPopupColumn);
    if (column && mayChange) {
        column->Editable = editable;
        if (closes) {
            FEditing.Grid.SetCurrentCell(FKeeper.EditCol(), FKeeper.EditRow());
        }
    }
}

void ColumnMenu::HidePopupColumn() {
    if (!FKeeper.HideEditor()) {
        return;
    }
    const int index = VisibleColumnIndex(FEditing.Active, FPopupColumn);
    if (index < 0) {
        return;
    }
    const int place = PlaceOfHiddenItem(FEditing.Active, index);
    RColumn& column = FEditing.Active[static_cast<std::size_t>(index)];
    column.HiddenMenuItem = MakeHiddenItem(column);
    FItems.HiddenColumns.insertAction(FItems.HiddenColumns.actions().value(place), column.HiddenMenuItem);
    UpdateSubmenu();
    FEditing.Grid.DeleteColumn(FPopupColumn);
    column.Visible = false;
}

void ColumnMenu::ShowColumnOf(const QAction* item) {
    if (!FKeeper.HideEditor()) {
        return;
    }
    const auto column = std::find_if(FEditing.Active.begin(), FEditing.Active.end(),
                                     [item](const RColumn& candidate) { return candidate.HiddenMenuItem == item; });
    if (!item || column == FEditing.Active.end()) {
        return;
    }
    const int place = PlaceOfShownColumn(FEditing.Active, static_cast<int>(column - FEditing.Active.begin()));
    FEditing.Grid.InsertColumn(place);
    column->Visible = true;
    FEditing.Grid.SetCells(place, 0, column->Caption);
    FEditing.Grid.SetColWidths(place, ShownWidth(*column));
    FWriter.ShowColumn(column->DataColumn);
    QAction* const shownItem = std::exchange(column->HiddenMenuItem, nullptr);
    FItems.HiddenColumns.removeAction(shownItem);
    // Later: the item may be the very sender of this call.
    shownItem->deleteLater();
    UpdateSubmenu();
}

void ColumnMenu::RebuildHiddenItems() {
    FItems.HiddenColumns.clear();
    for (RColumn& column : FEditing.Active) {
        column.HiddenMenuItem = IsHiddenByUser(column) ? MakeHiddenItem(column) : nullptr;
        if (column.HiddenMenuItem) {
            FItems.HiddenColumns.addAction(column.HiddenMenuItem);
        }
    }
    UpdateSubmenu();
}

QAction* ColumnMenu::MakeHiddenItem(const RColumn& column) {
    auto* const item = new QAction(PlainCaption(column.Caption), &FItems.HiddenColumns);
    item->setObjectName(QStringLiteral("HiddenColumn") + ToQString(column.Name));
    ConnectGuarded(item, &QAction::triggered, this, [this, item] { FItems.OnShow(item); });
    return item;
}

void ColumnMenu::UpdateSubmenu() {
    FItems.HiddenColumns.menuAction()->setEnabled(!FItems.HiddenColumns.isEmpty());
}

void ColumnMenu::FollowMovedColumn(int from, int to) {
    if (FEditing.Awaited) {
        MoveAwaited(from, to);
    }
    melvark::MoveColumn(FEditing.Active, from, to);
    FKeeper.SetEditCol(FEditing.Grid.Col());
    FKeeper.LayEditor();
    FKeeper.LayOutAwaited();
}

/// The drag in the picture is one of the same two columns in the layout that comes.
void ColumnMenu::MoveAwaited(int from, int to) {
    const RColumn* const moved = FEditing.ColumnAt(from);
    const RColumn* const target = FEditing.ColumnAt(to);
    if (moved && target) {
        std::vector<RColumn>& awaited = *FEditing.Awaited;
        melvark::MoveColumn(awaited, ColumnByName(awaited, moved->Name), ColumnByName(awaited, target->Name));
    }
}

void ColumnMenu::CaptureWidths() {
    bool isTaken = false;
    for (int col = 1; col < FEditing.Grid.ColCount(); ++col) {
        RColumn* const column = FEditing.ColumnAt(col);
        const int width = FEditing.Grid.ColWidths(col);
        if (column && width != ShownWidth(*column)) {
            TakeWidth(*column, width);
            isTaken = true;
        }
    }
    FKeeper.LayEditor();
    if (isTaken) { // a mere click on the header is no leaving of the cell
        FKeeper.LayOutAwaited();
    }
}

void ColumnMenu::TakeWidth(RColumn& column, int width) {
    column.Width = width;
    if (FEditing.Awaited) {
        const auto same = std::ranges::find(*FEditing.Awaited, column.Name, &RColumn::Name);
        if (same != FEditing.Awaited->end()) {
            same->Width = width;
        }
    }
}

} // namespace melvark
