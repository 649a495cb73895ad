#include "editwin/model/Navigation.h"

namespace melvark {

namespace {

constexpr int c_FirstColumnForward = 1;
constexpr int c_FirstColumnBackward = 2;
constexpr int c_FirstRow = 1;

std::optional<GridPosition> ScanRight(int row, int from, int last, const CellTest& mayStop) {
    for (int col = from; col <= last; ++col) {
        if (mayStop(col, row)) {
            return GridPosition{col, row};
        }
    }
    return std::nullopt;
}

std::optional<GridPosition> ScanLeft(int row, int from, const CellTest& mayStop) {
    for (int col = from; col >= c_FirstColumnBackward; --col) {
        if (mayStop(col, row)) {
            return GridPosition{col, row};
        }
    }
    return std::nullopt;
}

/// A grid without data rows has only its header, which is never looked at.
bool HasRows(GridExtent grid) {
    return grid.RowCount > c_FirstRow;
}

/// Whether the row is one of the grid's data rows; before the grid is first entered the current one may be the header.
bool IsDataRow(GridExtent grid, int row) {
    return row >= c_FirstRow && row < grid.RowCount;
}

} // namespace

std::optional<GridPosition> NextEditableCell(GridExtent grid, GridPosition current, const CellTest& mayStop) {
    if (!HasRows(grid)) {
        return std::nullopt;
    }
    const int lastColumn = grid.ColCount - 1;
    if (IsDataRow(grid, current.Row)) {
        if (const auto found = ScanRight(current.Row, current.Col + 1, lastColumn, mayStop)) {
            return found;
        }
    }
    const int nextRow = IsDataRow(grid, current.Row + 1) ? current.Row + 1 : c_FirstRow;
    return ScanRight(nextRow, c_FirstColumnForward, lastColumn, mayStop);
}

std::optional<GridPosition> PreviousEditableCell(GridExtent grid, GridPosition current, const CellTest& mayStop) {
    if (!HasRows(grid)) {
        return std::nullopt;
    }
    if (IsDataRow(grid, current.Row)) {
        if (const auto found = ScanLeft(current.Row, current.Col - 1, mayStop)) {
            return found;
        }
    }
    const int previousRow = IsDataRow(grid, current.Row - 1) ? current.Row - 1 : grid.RowCount - 1;
    return ScanLeft(previousRow, grid.ColCount - 1, mayStop);
}

} // namespace melvark
