#include "editwin/model/ColumnList.h"

#include <algorithm>
#include <cstddef>
#include <map>

namespace melvark {

namespace {

std::size_t AsSize(int index) {
    return static_cast<std::size_t>(index);
}

/// The first `count` columns of the list, all of them when it has fewer.
std::span<const RColumn> FirstColumns(std::span<const RColumn> columns, int count) {
    return columns.first(std::min(AsSize(std::max(count, 0)), columns.size()));
}

const RColumn* OrNull(std::span<const RColumn> columns, std::span<const RColumn>::iterator found) {
    return found == columns.end() ? nullptr : &*found;
}

} // namespace

bool IsShown(const RColumn& column) {
    return column.Visible && column.ColumnType != ctHidden;
}

bool IsHiddenByUser(const RColumn& column) {
    return !column.Visible && column.ColumnType != ctHidden;
}

int ShownWidth(const RColumn& column) {
    constexpr int c_Narrowest = 4;
    constexpr int c_Widest = 10000;
    return std::clamp(column.Width, c_Narrowest, c_Widest);
}

int VisibleColumnCount(std::span<const RColumn> columns) {
    return static_cast<int>(std::ranges::count_if(columns, IsShown));
}

int VisibleColumnIndex(std::span<const RColumn> columns, int gridColumn) {
    int shown = 0;
    for (std::size_t index = 0; index < columns.size(); ++index) {
        if (IsShown(columns[index]) && ++shown == gridColumn) {
            return static_cast<int>(index);
        }
    }
    return -1;
}

int ColumnByName(std::span<const RColumn> columns, std::string_view name) {
    const RColumn* column = FindByName(columns, name);
    if (column == nullptr || !IsShown(*column)) {
        return 0;
    }
    return PlaceOfShownColumn(columns, static_cast<int>(column - columns.data()));
}

const RColumn* FindByName(std::span<const RColumn> columns, std::string_view name) {
    return OrNull(columns, std::ranges::find(columns, name, &RColumn::Name));
}

const RColumn* FindByDataColumn(std::span<const RColumn> columns, int dataColumn) {
    return OrNull(columns, std::ranges::find(columns, dataColumn, &RColumn::DataColumn));
}

std::vector<int> GridColumnsOfData(std::span<const RColumn> columns, int dataColumn) {
    std::vector<int> gridColumns;
    int gridColumn = 0;
    for (const RColumn& column : columns) {
        if (!IsShown(column)) {
            continue;
        }
        ++gridColumn;
        if (column.DataColumn == dataColumn) {
            gridColumns.push_back(gridColumn);
        }
    }
    return gridColumns;
}

bool IsValidName(std::span<const RColumn> defaults, std::string_view name) {
    return FindByName(defaults, name) != nullptr;
}

const RColumn& ColumnSettings(std::span<const RColumn> active, std::span<const RColumn> defaults,
                              std::string_view name) {
    for (const auto list : {active, defaults}) {
        if (const RColumn* column = FindByName(list, name)) {
            return *column;
        }
    }
    return BlankColumn();
}

const RColumn& DataColumnSettings(std::span<const RColumn> active, int dataColumn) {
    const RColumn* column = FindByDataColumn(active, dataColumn);
    return column == nullptr ? BlankColumn() : *column;
}

bool MoveColumn(std::span<RColumn> active, int from, int to) {
    const int fromIndex = VisibleColumnIndex(active, from);
    const int toIndex = VisibleColumnIndex(active, to);
    if (fromIndex < 0 || toIndex < 0) {
        return false;
    }
    const auto moved = active.begin() + fromIndex;
    const auto target = active.begin() + toIndex;
    if (fromIndex < toIndex) {
        std::rotate(moved, moved + 1, target + 1);
    } else {
        std::rotate(target, moved, moved + 1);
    }
    return true;
}

int PlaceOfShownColumn(std::span<const RColumn> active, int activeIndex) {
    return 1 + VisibleColumnCount(FirstColumns(active, activeIndex));
}

int PlaceOfHiddenItem(std::span<const RColumn> active, int activeIndex) {
    const auto before = FirstColumns(active, activeIndex);
    return before.empty() ? 0 : static_cast<int>(std::ranges::count_if(before.subspan(1), IsHiddenByUser));
}

std::vector<RColumn> DefaultsWithDataOf(std::span<const RColumn> active, std::span<const RColumn> defaults) {
    std::map<int, AnsiString> nameOfDataColumn;
    for (const RColumn& column : active) {
        nameOfDataColumn[column.DataColumn] = column.Name;
    }
    std::vector<RColumn> reset(defaults.begin(), defaults.end());
    for (RColumn& column : reset) {
        const auto recorded =
            std::ranges::find(nameOfDataColumn, column.Name, &decltype(nameOfDataColumn)::value_type::second);
        if (recorded != nameOfDataColumn.end()) {
            column.DataColumn = recorded->first;
        }
    }
    return reset;
}

} // namespace melvark
