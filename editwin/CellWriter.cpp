#include "editwin/CellWriter.h"

#include "editwin/model/ColumnList.h"
#include "host/widgets/StringGrid.h"

#include <utility>

namespace melvark {

static_assert(RowView::c_FixedRows == TStringGrid::c_FixedRows);

void CellWriter::WriteTyped(int dataColumn, int storeRow, const AnsiString& text) {
    FEditing.Store.SetCells(dataColumn, storeRow, text);
    Show(dataColumn, storeRow, text);
}

void CellWriter::WriteDerived(int dataColumn, int storeRow, const AnsiString& text) {
    FEditing.Store.SetCellWithNoChange(dataColumn, storeRow, text);
    Show(dataColumn, storeRow, text);
}

void CellWriter::Show(int dataColumn, int storeRow, const AnsiString& text) {
    const int gridRow = FEditing.Rows.GridRow(storeRow);
    if (gridRow == 0) {
        return;
    }
    for (const int gridCol : GridColumnsOfData(FEditing.Active, dataColumn)) {
        FEditing.Grid.SetCells(gridCol, gridRow, text);
    }
}

void CellWriter::ShowColumn(int dataColumn) {
    for (const int gridCol : GridColumnsOfData(FEditing.Active, dataColumn)) {
        ShowIn(gridCol, dataColumn);
    }
}

void CellWriter::ShowAll() {
    FEditing.Grid.SetRowCount(FEditing.Rows.GridRowCount());
    for (int gridCol = 1; gridCol < FEditing.Grid.ColCount(); ++gridCol) {
        if (const RColumn* const column = FEditing.ColumnAt(gridCol)) {
            ShowIn(gridCol, column->DataColumn);
        }
    }
}

void CellWriter::ShowIn(int gridCol, int dataColumn) {
    FEditing.Grid.SetColumnTexts(gridCol, [&editing = FEditing, dataColumn](int gridRow) -> const AnsiString& {
        return editing.Store.GetCells(dataColumn, editing.Rows.StoreRow(gridRow));
    });
}

} // namespace melvark
