#pragma once

#include "editwin/GridEditing.h"
#include "host/widgets/Vocabulary.h"

#include <QObject>

class QAction;
class QMenu;
class QPoint;
class TLibraryManager;

namespace melvark {

class CellWriter;
class InPlaceEditing;

/// What the user does to columns with the mouse on the header: the menu that changes their texts, hides them, shows
/// them again and sets their editability, the dragged order and the dragged widths. It changes the active columns and
/// the grid together; the store is only read. Every command that takes the edited cell away first asks the keeper to
/// commit.
class ColumnMenu : public QObject {
    Q_OBJECT

public:
    /// The menus, items and handlers are the form's.
    struct Items {
        QMenu& Menu;
        QAction& Properties;
        QAction& Hide;
        QAction& Automatic;
        QAction& Manual;
        QAction& None;
        QMenu& HiddenColumns;
        TNotifyEvent OnShow; ///< The click of each item in the submenu.
    };

    ColumnMenu(GridEditing& editing, CellWriter& writer, InPlaceEditing& keeper, const Items& items);

    /// A right click at a grid cell. Only the header row has the menu; elsewhere the popup column becomes 0.
    void OpenAt(int col, int row, const QPoint& globalPos);
    /// Enables and checks the items for the popup column; called each time before the menu shows.
    void PrepareItems();

    /// Lets the user change caption, hint and alignment of the popup column in a dialog. An open editor stays open.
    void EditProperties(TLibraryManager* manager);
    /// "Needitovatelný" on the edited column changes nothing when its value is refused.
    void SetEditability(TEditable editable);
    void HidePopupColumn();
    /// Shows the column again that `item` stands for, and destroys the item.
    void ShowColumnOf(const QAction* item);
    /// Fills the submenu anew from the active columns.
    void RebuildHiddenItems();

    /// The grid moved the column at `from` to `to`.
    void FollowMovedColumn(int from, int to);
    /// A column whose grid column was dragged to another width takes it.
    void CaptureWidths();

    /// The grid column under the last right click; 0 for none.
    int PopupColumn() const { return FPopupColumn; }

private:
    QAction* MakeHiddenItem(const RColumn& column);
    void CheckEditability(const RColumn* column);
    void UpdateSubmenu();
    void MoveAwaited(int from, int to);
    void TakeWidth(RColumn& column, int width);

    GridEditing& FEditing;
    CellWriter& FWriter;
    InPlaceEditing& FKeeper;
    Items FItems;
    int FPopupColumn = 0;
};

} // namespace melvark
