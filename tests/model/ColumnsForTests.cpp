#include "tests/model/ColumnsForTests.h"

#include <string>
#include <utility>

namespace {

AnsiString withBlankBetween(AnsiString words, const AnsiString& word) {
    return words.empty() ? word : std::move(words) + " " + word;
}

} // namespace

RColumn shownColumn(AnsiString name, int dataColumn) {
    return RColumn{.Name = std::move(name), .Visible = true, .DataColumn = dataColumn};
}

RColumn hiddenColumn(AnsiString name, int dataColumn) {
    return RColumn{.Name = std::move(name), .Visible = false, .DataColumn = dataColumn};
}

RColumn keyColumn(AnsiString name, int dataColumn, bool visible) {
    return RColumn{.Name = std::move(name), .Visible = visible, .ColumnType = ctHidden, .DataColumn = dataColumn};
}

AnsiString layoutOf(std::span<const RColumn> columns) {
    AnsiString layout;
    for (const RColumn& column : columns) {
        if (column.ColumnType == ctHidden) {
            layout = withBlankBetween(layout, column.Name + "#");
        } else {
            layout = withBlankBetween(layout, column.Visible ? column.Name : "(" + column.Name + ")");
        }
    }
    return layout;
}

AnsiString dataColumnsOf(std::span<const RColumn> columns) {
    AnsiString numbers;
    for (const RColumn& column : columns) {
        numbers = withBlankBetween(numbers, std::to_string(column.DataColumn));
    }
    return numbers;
}
