#include "editwin/model/DataGrid.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

namespace {

std::size_t AsSize(int index) {
    return static_cast<std::size_t>(index);
}

void RequireNotNegative(int coordinate) {
    if (coordinate < 0) {
        throw std::out_of_range("a cell store has no negative coordinates");
    }
}

/// How many of `size` positions a count covers; one that was never set bounds nothing.
std::size_t Covered(int count, std::size_t size) {
    return count == 0 ? size : std::min(AsSize(count), size);
}

} // namespace

TDataGridCell::TDataGridCell(AnsiString value) : FValue(std::move(value)) {}

void TDataGridCell::SetValue(AnsiString value) {
    FValue = std::move(value);
    Modified = true;
}

void TDataGrid::SetRowCount(int n) {
    if (n < FRowCount) {
        EmptyCells(0, n - 1);
    }
    FRowCount = std::max(n, 1);
}

void TDataGrid::SetColCount(int n) {
    if (n < FColCount) {
        EmptyCells(n - 1, 0);
    }
    FColCount = std::max(n, 1);
}

void TDataGrid::SetCells(int col, int row, AnsiString value) {
    TColumn& column = ColumnWithRoom(col, row);
    TDataGridCell cell{AnsiString()}; // what the position holds is overwritten whatever it is
    cell.SetValue(std::move(value));
    PutCell(column, row, std::move(cell));
}

const AnsiString& TDataGrid::GetCells(int col, int row) const {
    static const AnsiString empty;
    return IsCounted(col, row) && HasCell(col, row) ? FColumns[AsSize(col)].Values[AsSize(row)] : empty;
}

void TDataGrid::SetModified(int col, int row, bool flag) {
    if (!flag && !HasCell(col, row)) {
        return;
    }
    TColumn& column = ColumnWithRoom(col, row);
    TDataGridCell cell(std::move(column.Values[AsSize(row)]));
    cell.Modified = flag;
    PutCell(column, row, std::move(cell));
}

bool TDataGrid::GetModified(int col, int row) const {
    return IsCounted(col, row) && IsMarked(col, row);
}

void TDataGrid::SetCellWithNoChange(int col, int row, AnsiString value) {
    const bool modified = IsMarked(col, row);
    SetCells(col, row, std::move(value));
    if (!modified) {
        SetModified(col, row, false);
    }
}

void TDataGrid::FillColumn(int col, std::vector<AnsiString> texts) {
    TColumn& column = Column(col);
    column.Values = std::move(texts);
    column.Modified.assign(column.Values.size(), false);
    column.Present.resize(column.Values.size());
    std::transform(column.Values.begin(), column.Values.end(), column.Present.begin(),
                   [](const AnsiString& text) { return !text.empty(); });
}

std::span<const AnsiString> TDataGrid::ColumnTexts(int col) const {
    if (col >= FColCount || AsSize(col) >= FColumns.size()) {
        return {};
    }
    const std::vector<AnsiString>& texts = FColumns[AsSize(col)].Values;
    return std::span(texts).first(std::min(texts.size(), AsSize(FRowCount)));
}

void TDataGrid::ResetModified() {
    for (std::size_t col = 0; col < Covered(FColCount, FColumns.size()); ++col) {
        std::vector<bool>& marks = FColumns[col].Modified;
        std::fill_n(marks.begin(), Covered(FRowCount, marks.size()), false);
    }
}

bool TDataGrid::HasCell(int col, int row) const {
    return col >= 0 && AsSize(col) < FColumns.size() && row >= 0 &&
           AsSize(row) < FColumns[AsSize(col)].Present.size() && FColumns[AsSize(col)].Present[AsSize(row)];
}

bool TDataGrid::IsMarked(int col, int row) const {
    return HasCell(col, row) && FColumns[AsSize(col)].Modified[AsSize(row)];
}

TDataGrid::TColumn& TDataGrid::Column(int col) {
    RequireNotNegative(col);
    if (AsSize(col) >= FColumns.size()) {
        FColumns.resize(AsSize(col) + 1);
    }
    return FColumns[AsSize(col)];
}

/// The column, made long enough to hold the row.
TDataGrid::TColumn& TDataGrid::ColumnWithRoom(int col, int row) {
    RequireNotNegative(row);
    TColumn& column = Column(col);
    if (AsSize(row) >= column.Values.size()) {
        const std::size_t size = std::max(AsSize(row) + 1, AsSize(FRowCount)); // counted rows come without any to spare
        column.Values.resize(size);
        column.Present.resize(size);
        column.Modified.resize(size);
    }
    return column;
}

void TDataGrid::PutCell(TColumn& column, int row, TDataGridCell&& cell) {
    column.Present[AsSize(row)] = true;
    column.Modified[AsSize(row)] = cell.Modified;
    column.Values[AsSize(row)] = std::move(cell).GetValue();
}

/// Empties the positions from the given column and row up to the last counted ones.
void TDataGrid::EmptyCells(int firstCol, int firstRow) {
    for (std::size_t col = AsSize(std::max(firstCol, 0)); col < Covered(FColCount, FColumns.size()); ++col) {
        TColumn& column = FColumns[col];
        const std::size_t end = Covered(FRowCount, column.Values.size());
        for (std::size_t row = AsSize(std::max(firstRow, 0)); row < end; ++row) {
            column.Values[row] = AnsiString();
            column.Present[row] = false;
            column.Modified[row] = false;
        }
    }
}
