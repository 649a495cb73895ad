#include "editwin/GridEditing.h"

#include "editwin/model/ColumnList.h"
#include "host/widgets/StringGrid.h"

#include <utility>

namespace melvark {

const RColumn* GridEditing::ColumnAt(int gridCol) const {
    const int index = VisibleColumnIndex(Active, gridCol);
    return index < 0 ? nullptr : &Active[static_cast<std::size_t>(index)];
}

RColumn* GridEditing::ColumnAt(int gridCol) {
    return const_cast<RColumn*>(std::as_const(*this).ColumnAt(gridCol));
}

int GridEditing::StoreRow(int gridRow) const {
    return gridRow - Grid.FixedRows();
}

void GridEditing::FillGridColumn(int gridCol) {
    const RColumn* const column = ColumnAt(gridCol);
    if (!column) {
        return;
    }
    std::vector<AnsiString> texts;
    for (int row = StoreRow(1); row < StoreRow(Grid.RowCount()); ++row) {
        texts.push_back(Store.GetCells(column->DataColumn, row));
    }
    Grid.SetColumnCells(gridCol, std::move(texts));
}

} // namespace melvark
