#pragma once

#include "editwin/model/Column.h"
#include "editwin/model/DataGrid.h"
#include "editwin/model/RowView.h"

#include <list>
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
    std::vector<RColumn> Active;   ///< What the user made of them, in the order of the grid.
    TIsEditable Rule;              ///< The document editor's rule; empty lets every cell pass.

    /// The active column of a grid column; null for the indicator column and beyond the last one. The pointer holds as
    /// long as the active list is not changed.
    RColumn* ColumnAt(int gridCol);
    const RColumn* ColumnAt(int gridCol) const;
};

} // namespace melvark
