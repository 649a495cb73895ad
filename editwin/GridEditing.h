#pragma once

#include "editwin/model/Column.h"
#include "editwin/model/DataGrid.h"
#include "editwin/model/RowView.h"

#include <functional>
#include <list>
#include <optional>
#include <span>
#include <vector>

class TStringGrid;

namespace melvark {

/// What the helpers of the editor form share: the grid that shows, the store that holds the values, the two column
/// lists and the document editor's rule. The form owns one and hands it to each helper, so that no helper knows the
/// form. Values are written by CellWriter alone.
///
/// Grid column k >= 1 is the k-th shown active column, Rows tells the store row of a grid row; the cell there shows the
/// store cell of the column's DataColumn in that row. Row 0 is the header, column 0 the indicator.
struct GridEditing {
    /// Takes copies of the columns and of their value lists.
    GridEditing(TStringGrid& grid, std::span<const RColumn> columns);
    GridEditing(const GridEditing&) = delete;
    GridEditing& operator=(const GridEditing&) = delete;

    TStringGrid& Grid;
    TDataGrid Store;
    const RowView Rows{Store};
    /// What the columns' Values point to; stands before them, since it outlives them.
    std::list<std::vector<AnsiString>> ValueLists;
    std::vector<RColumn> Defaults; ///< As handed in, never reordered.
    std::vector<RColumn> Active;   ///< What the user made of them, in the order of the grid, as it pictures them.
    /// The columns in force when they are not those of the picture: after a setting was deleted, the grid goes on
    /// showing Active, and a grid column means the one pictured there, until these are laid out.
    std::optional<std::vector<RColumn>> Awaited;
    /// Lays the columns in force out in the grid. Set by the form.
    std::function<void()> LayOut;
    TIsEditable Rule; ///< The document editor's rule; empty lets every cell pass.

    /// The active column of a grid column; null for the indicator column and beyond the last one. The pointer holds as
    /// long as the active list is not changed.
    RColumn* ColumnAt(int gridCol);
    const RColumn* ColumnAt(int gridCol) const;

    /// The columns that a document of the layout tells of.
    const std::vector<RColumn>& InForce() const { return Awaited ? *Awaited : Active; }
    /// Columns that are laid out next; none are awaited any more.
    void SetActive(std::vector<RColumn> columns);
    /// Whoever lays out takes what is awaited.
    void TakeAwaited();
};

} // namespace melvark
