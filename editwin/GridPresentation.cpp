#include "editwin/GridPresentation.h"

#include "editwin/CellWriter.h"
#include "editwin/model/ColumnList.h"
#include "editwin/model/DisplayFormat.h"
#include "host/HostServices.h"

namespace melvark {

namespace {

constexpr int c_IndicatorWidth = 10;

Qt::AlignmentFlag Alignment(TColumnAlign align) {
    switch (align) {
    case caCenter:
        return Qt::AlignHCenter;
    case caRight:
        return Qt::AlignRight;
    case caLeft:
        break;
    }
    return Qt::AlignLeft;
}

} // namespace

void GridPresentation::ApplyColumns() {
    TStringGrid& grid = FEditing.Grid;
    grid.SetColCount(1);
    grid.SetColWidths(0, c_IndicatorWidth);
    grid.SetColCount(1 + VisibleColumnCount(FEditing.Active));
    for (int col = 1; col < grid.ColCount(); ++col) {
        const RColumn& column = *FEditing.ColumnAt(col);
        grid.SetCells(col, 0, column.Caption);
        grid.SetColWidths(col, ShownWidth(column));
    }
    FWriter.ShowAll();
}

TCellLook GridPresentation::Look(int col, int row) const {
    const AnsiString& text = FEditing.Grid.Cells(col, row);
    const RColumn* const column = FEditing.ColumnAt(col);
    if (!column) {
        return {.Text = text};
    }
    return {.Text = DisplayText(*column, text, CurrentHost().FormatSettings()),
            .Align = Alignment(column->Align),
            .Bold = FEditing.Store.GetModified(column->DataColumn, FEditing.Rows.StoreRow(row))};
}

void GridPresentation::ShowHintOf(int col, int row) {
    TStringGrid& grid = FEditing.Grid;
    const bool isColumnHeader = row == 0 && col >= 1 && col <= static_cast<int>(FEditing.Active.size());
    if (!isColumnHeader) {
        grid.SetHint({});
        grid.CancelHint();
        return;
    }
    const RColumn* const column = FEditing.ColumnAt(col);
    if (!column || column->Hint.empty() || column->Hint == grid.Hint()) {
        return;
    }
    grid.CancelHint();
    grid.SetHint(column->Hint);
}

} // namespace melvark
