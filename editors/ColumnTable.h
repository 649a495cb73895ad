#pragma once

#include "editwin/model/Column.h"
#include "host/Types.h"

#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

/// The default columns of a document's lines as data: a table of rows and the one function that makes columns of them.
namespace melvark {

/// One default column. `Bindings` is what the editor binds its columns to: a structure whose members are the choice
/// lists, the callbacks and the flags that rows name.
template <class Bindings>
struct ColumnRow {
    std::string_view Key;
    std::string_view KeySuffix{}; ///< End of the language keys; empty for a key column, which is not translated.
    std::string_view Caption{};
    std::string_view Hint{};
    TColumnAlign Align = caLeft;
    bool Visible = true;
    TEditable Editable = eNone;
    TColumnType Type = ctNormal;
    int Width = 100;
    TColumnsDataType DataType = cdtString;
    std::string_view DisplayFormat{};
    std::vector<AnsiString> Bindings::*List = nullptr; ///< The choices, for a list column.
    TColumnCallback Bindings::*Changed = nullptr;      ///< What a changed value calls.
    bool Bindings::*OfferedWhen = nullptr;             ///< While this flag is false the column is ctHidden.
};

/// A column that says what the line is about: the clerk reads it only.
template <class Bindings>
constexpr ColumnRow<Bindings> ReadOnlyColumn(std::string_view key, std::string_view keySuffix, std::string_view caption,
                                             std::string_view hint, int width = 100) {
    return {.Key = key, .KeySuffix = keySuffix, .Caption = caption, .Hint = hint, .Type = ctReadOnly, .Width = width};
}

/// A column that carries an identifier through to saving; it is never shown.
template <class Bindings>
constexpr ColumnRow<Bindings> KeyColumn(std::string_view key, TColumnAlign align, bool visible) {
    return {.Key = key, .Caption = key, .Hint = key, .Align = align, .Visible = visible, .Type = ctHidden};
}

// The columns that every kind of document has.
template <class Bindings>
inline constexpr ColumnRow<Bindings> c_Group1Column =
    ReadOnlyColumn<Bindings>("SKUPSPOL1", "SKUPSPOL1", "Skup.sklad.pol.1", "Skupina skladových položek 1");
template <class Bindings>
inline constexpr ColumnRow<Bindings> c_Group2Column =
    ReadOnlyColumn<Bindings>("SKUPSPOL2", "SKUPSPOL2", "Skup.sklad.pol.2", "Skupina skladových položek 2");
template <class Bindings>
inline constexpr ColumnRow<Bindings> c_Group3Column =
    ReadOnlyColumn<Bindings>("SKUPSPOL3", "SKUPSPOL3", "Skup.sklad.pol.3", "Skupina skladových položek 3");
template <class Bindings>
inline constexpr ColumnRow<Bindings> c_ItemColumn =
    ReadOnlyColumn<Bindings>("SKLADPOL", "SKLADPOL", "Skladová položka", "Název skladové položky");
template <class Bindings>
inline constexpr ColumnRow<Bindings> c_WarehouseColumn{
    .Key = "SKLAD", .KeySuffix = "SKLAD", .Caption = "Sklad", .Hint = "Sklad", .List = &Bindings::Warehouses};

/// A column's caption and hint in the user's language; the built-in text for a column without language keys. Need a
/// current host.
AnsiString ColumnCaption(std::string_view keySuffix, std::string_view builtIn);
AnsiString ColumnHint(std::string_view keySuffix, std::string_view builtIn);

/// The columns of the table, in its order; a row's place is its column's data column. They point to the lists of
/// `bindings`, which outlive them. Needs a current host.
template <class Bindings>
std::vector<RColumn> LoadDefaultColumnsSettings(std::type_identity_t<std::span<const ColumnRow<Bindings>>> rows,
                                                const Bindings& bindings) {
    std::vector<RColumn> columns;
    columns.reserve(rows.size());
    for (const ColumnRow<Bindings>& row : rows) {
        const bool isOffered = !row.OfferedWhen || bindings.*row.OfferedWhen;
        columns.push_back(ColumnProperties(
            AnsiString(row.Key), ColumnCaption(row.KeySuffix, row.Caption), ColumnHint(row.KeySuffix, row.Hint),
            row.Align, row.Visible, row.Editable, isOffered ? row.Type : ctHidden, row.Width, row.DataType,
            static_cast<int>(columns.size()), AnsiString(row.DisplayFormat), row.List ? &(bindings.*row.List) : nullptr,
            nullptr, row.Changed ? bindings.*row.Changed : TColumnCallback(), nullptr));
    }
    return columns;
}

} // namespace melvark
