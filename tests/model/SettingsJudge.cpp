#include "tests/model/SettingsJudge.h"

#include "tests/model/ColumnsForTests.h"

#include <algorithm>
#include <map>
#include <string>

namespace {

const RColumn* named(std::span<const RColumn> columns, const AnsiString& name) {
    const auto found = std::ranges::find(columns, name, &RColumn::Name);
    return found == columns.end() ? nullptr : &*found;
}

AnsiString faultOfColumn(const RColumn& column, std::span<const RColumn> previous, std::span<const RColumn> defaults) {
    const RColumn* const builtIn = named(defaults, column.Name);
    if (!builtIn) {
        return "no column was built under the name " + column.Name;
    }
    if (column.Align > caRight || column.Editable > eManual) {
        return column.Name + " has a state that there is none of";
    }
    if (column.ColumnType != builtIn->ColumnType || column.DataType != builtIn->DataType ||
        column.DisplayFormat != builtIn->DisplayFormat || column.Values != builtIn->Values) {
        return column.Name + " is no longer what it was built as";
    }
    const RColumn* const before = named(previous, column.Name);
    return column.DataColumn == (before ? before : builtIn)->DataColumn ? "" : column.Name + " shows other data";
}

} // namespace

std::vector<RColumn> columnsOfEveryKind() {
    std::vector<RColumn> columns = {keyColumn("DOBSID", 0), shownColumn("NAZEV", 1), shownColumn("MNOZSTVI", 2),
                                    shownColumn("CENA", 3), shownColumn("DPH", 4),   hiddenColumn("POZNAMKA", 5)};
    const TColumnsDataType types[] = {cdtInt, cdtString, cdtFlt, cdtFlt, cdtType, cdtDate};
    for (std::size_t index = 0; index < columns.size(); ++index) {
        RColumn& column = columns[index];
        column.Caption = "Sloupec " + column.Name;
        column.Hint = index % 2 == 0 ? "nápověda " + column.Name : "";
        column.Align = static_cast<TColumnAlign>(index % 3);
        column.Editable = static_cast<TEditable>((index + 1) % 3);
        column.Width = static_cast<int>(40 + 20 * index);
        column.DataType = types[index];
    }
    columns[1].ColumnType = ctReadOnly;
    columns[3].DisplayFormat = "%m";
    return columns;
}

std::vector<RColumn> reboundColumns(std::span<const RColumn> columns) {
    std::vector<RColumn> rebound(columns.rbegin(), columns.rend());
    for (RColumn& column : rebound) {
        column.DataColumn = (column.DataColumn + 1) % static_cast<int>(columns.size());
    }
    return rebound;
}

AnsiString shapesOf(std::span<const RColumn> columns) {
    AnsiString shapes;
    for (const RColumn& column : columns) {
        shapes += column.Name + "|" + column.Caption + "|" + column.Hint + "|align " + std::to_string(column.Align) +
                  "|visible " + std::to_string(column.Visible) + "|editable " + std::to_string(column.Editable) +
                  "|width " + std::to_string(column.Width) + "|data " + std::to_string(column.DataColumn) + "\n";
    }
    return shapes;
}

AnsiString faultOfLayout(std::span<const RColumn> columns, std::span<const RColumn> previous,
                         std::span<const RColumn> defaults) {
    if (columns.size() != defaults.size()) {
        return "there are " + std::to_string(columns.size()) + " columns";
    }
    std::map<AnsiString, int> timesPlaced;
    for (const RColumn& column : columns) {
        const int most = column.Name == columns.front().Name ? 2 : 1;
        if (++timesPlaced[column.Name] > most) {
            return column.Name + " is placed once too often";
        }
        if (AnsiString fault = faultOfColumn(column, previous, defaults); !fault.empty()) {
            return fault;
        }
    }
    return {};
}
