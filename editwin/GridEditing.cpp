#include "editwin/GridEditing.h"

#include "editwin/model/ColumnList.h"

#include <utility>

namespace melvark {

GridEditing::GridEditing(TStringGrid& grid, std::span<const RColumn> columns)
    : Grid(grid), Defaults(columns.begin(), columns.end()) {
    for (RColumn& column : Defaults) {
        if (column.Values) {
            column.Values = &ValueLists.emplace_back(*column.Values);
        }
    }
}

const RColumn* GridEditing::ColumnAt(int gridCol) const {
    const int index = VisibleColumnIndex(Active, gridCol);
    return index < 0 ? nullptr : &Active[static_cast<std::size_t>(index)];
}

RColumn* GridEditing::ColumnAt(int gridCol) {
    return const_cast<RColumn*>(std::as_const(*this).ColumnAt(gridCol));
}

void GridEditing::SetActive(std::vector<RColumn> columns) {
    Active = std::move(columns);
    Awaited.reset();
}

void GridEditing::TakeAwaited() {
    if (Awaited) {
        SetActive(*std::exchange(Awaited, std::nullopt));
    }
}

} // namespace melvark
