#include "editwin/model/RowView.h"

#include "editwin/model/DataGrid.h"

#include <algorithm>

namespace melvark {

int RowView::GridRowCount() const {
    return c_FixedRows + std::max(FStore.GetRowCount(), 1);
}

int RowView::StoreRow(int gridRow) const {
    return gridRow - c_FixedRows;
}

int RowView::GridRow(int storeRow) const {
    const int gridRow = storeRow + c_FixedRows;
    return storeRow >= 0 && gridRow < GridRowCount() ? gridRow : 0;
}

} // namespace melvark
