#pragma once

#include "editwin/model/Column.h"
#include "editwin/model/DataGrid.h"

#include <string_view>
#include <vector>

class TStringGrid;

namespace melvark {

/// What the helpers of the editor form share: the grid that shows, the store that holds the values, the two column
/// lists and the document editor's rule. The form owns one and hands it to each helper, so that no helper knows the
/// form.
///
/// Grid column k >= 1 is the k-th shown active column, grid row r >= 1 is store row r - 1; the cell there holds store
/// cell (DataColumn of that column, r - 1). Row 0 is the header, column 0 the indicator.
struct GridEditing {
    explicit GridEditing(TStringGrid& grid) : Grid(grid) {}

    TStringGrid& Grid;
    TDataGrid Store;
    std::vector<RColumn> Defaults; ///< As handed in, never reordered.
    std::vector<RColumn> Active;   ///< What the user made of them, in the order of the grid.
    TIsEditable Rule;              ///< The document editor's rule; empty lets every cell pass.

    /// The active column of a grid column; null for the indicator column and beyond the last one. The pointer holds as
    /// long as the active list is not changed.
    RColumn* ColumnAt(int gridCol);
    const RColumn* ColumnAt(int gridCol) const;
    /// The store row of a grid row.
    int StoreRow(int gridRow) const;
    /// Writes the store's texts into every data cell of a grid column.
    void FillGridColumn(int gridCol);
};

} // namespace melvark
