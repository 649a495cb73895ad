#pragma once

#include <functional>
#include <optional>

/// Where Enter and Shift+Enter go. Pure arithmetic over grid coordinates: row 0 is the header and column 0 the
/// indicator column, neither is ever found.
namespace melvark {

struct GridPosition {
    int Col = 0;
    int Row = 0;

    bool operator==(const GridPosition&) const = default;
};

/// The grid's counts with header row and indicator column included: the last column is ColCount - 1.
struct GridExtent {
    int ColCount = 0;
    int RowCount = 0;
};

/// Whether traversal may stop at a cell (column, row); see MayOpen in CellRules.h.
using CellTest = std::function<bool(int col, int row)>;

/// The cell that forward traversal opens: the first one right of `current` in its row; else the first one of the next
/// row from column 1 on, with row 1 after the last row. No further row is looked at: nothing found means that nothing
/// happens. Before the first opening `current` has column 0.
std::optional<GridPosition> NextEditableCell(GridExtent grid, GridPosition current, const CellTest& mayStop);

/// The cell that backward traversal opens: the first one left of `current` in its row; else the last one of the
/// previous row, with the last row before row 1. Both scans end at column 2: going back never lands on the first shown
/// column.
std::optional<GridPosition> PreviousEditableCell(GridExtent grid, GridPosition current, const CellTest& mayStop);

} // namespace melvark
