#include "editors/DodakColumns.h"

#include "host/LangStr.h"

#include <array>
#include <string_view>

namespace melvark {

namespace {

enum class Role { Normal, ReadOnly, Hidden, LocalVat };
enum class Choices { None, Warehouses, VatRates };
enum class Change { None, Recalculation, Discount };

struct Row {
    std::string_view Key;
    std::string_view KeySuffix{}; ///< End of the language keys; empty for a key column, which is not translated.
    std::string_view Caption{};
    std::string_view Hint{};
    TColumnAlign Align = caLeft;
    bool Visible = true;
    TEditable Editable = eNone;
    Role Kind = Role::Normal;
    int Width = 100;
    TColumnsDataType DataType = cdtString;
    std::string_view DisplayFormat{};
    Choices List = Choices::None;
    Change Changed = Change::None;
};

// A column that says what the line is about: the clerk reads it only.
constexpr Row Fixed(std::string_view key, std::string_view caption, std::string_view hint) {
    return {.Key = key, .KeySuffix = key, .Caption = caption, .Hint = hint, .Kind = Role::ReadOnly};
}

// The language keys of a price spell out what its column key shortens.
constexpr Row Price(std::string_view key, std::string_view keySuffix, std::string_view caption, std::string_view hint,
                    TEditable editable = eNone) {
    return {.Key = key,
            .KeySuffix = keySuffix,
            .Caption = caption,
            .Hint = hint,
            .Align = caRight,
            .Editable = editable,
            .DataType = cdtFlt,
            .DisplayFormat = "%m",
            .Changed = Change::Recalculation};
}

constexpr Row LocalVatPrice(std::string_view key, std::string_view keySuffix, std::string_view caption,
                            std::string_view hint) {
    Row row = Price(key, keySuffix, caption, hint);
    row.Visible = false;
    row.Kind = Role::LocalVat;
    return row;
}

// Quantity, unit price and total, both without VAT after the discount, are what a clerk types: unit price times
// quantity is the total. The other normal columns wait until the clerk makes them editable.
constexpr std::array c_Rows{
    Row{.Key = "DOBSID", .Caption = "DOBSID", .Hint = "DOBSID", .Visible = false, .Kind = Role::Hidden},
    Fixed("SKUPSPOL1", "Skup.sklad.pol.1", "Skupina skladových položek 1"),
    Fixed("SKUPSPOL2", "Skup.sklad.pol.2", "Skupina skladových položek 2"),
    Fixed("SKUPSPOL3", "Skup.sklad.pol.3", "Skupina skladových položek 3"),
    Fixed("SKLADPOL", "Skladová položka", "Název skladové položky"),
    Row{.Key = "SKLAD", .KeySuffix = "SKLAD", .Caption = "Sklad", .Hint = "Sklad", .List = Choices::Warehouses},
    Row{.Key = "MNOZSTVI",
        .KeySuffix = "MNOZSTVI",
        .Caption = "Množství",
        .Hint = "Množství",
        .Align = caRight,
        .Editable = eAuto,
        .Width = 55,
        .DataType = cdtFlt,
        .Changed = Change::Recalculation},
    Row{.Key = "DPH",
        .KeySuffix = "DPH",
        .Caption = "Sazba DPH",
        .Hint = "Sazba DPH",
        .Width = 60,
        .List = Choices::VatRates},
    Row{.Key = "SLEVA",
        .KeySuffix = "SLEVA",
        .Caption = "Sleva",
        .Hint = "Sleva v procentech",
        .Align = caRight,
        .Width = 55,
        .DataType = cdtFlt,
        .DisplayFormat = "%f %%",
        .Changed = Change::Discount},
    Price("JEDNCENABSESLEVOU", "JEDNCENABEZDPHSESLEVOU", "Jedn.cena bez DPH se sl.",
          "Cena bez DPH se slevou za jednotku množství", eAuto),
    Price("JEDNDPHASESLEVOU", "JEDNCENADPHASESLEVOU", "Jedn.DPH se sl.", "DPH ceny se slevou za jednotku množství"),
    LocalVatPrice("JEDNDPHBSESLEVOU", "JEDNCENADPHBSESLEVOU", "Jedn.místní DPH se sl.",
                  "Místní DPH ceny se slevou za jednotku množství"),
    Price("JEDNCENASSESLEVOU", "JEDNCENASDPHSESLEVOU", "Jedn.cena s DPH se sl.",
          "Cena s DPH se slevou za jednotku množství"),
    Price("JEDNCENABBEZSLEVY", "JEDNCENABEZDPHBEZSLEVY", "Jedn.cena bez DPH bez sl.",
          "Cena bez DPH bez slevy za jednotku množství"),
    Price("JEDNDPHABEZSLEVY", "JEDNCENADPHABEZSLEVY", "Jedn.DPH bez sl.", "DPH ceny bez slevy za jednotku množství"),
    LocalVatPrice("JEDNDPHBBEZSLEVY", "JEDNCENADPHBBEZSLEVY", "Jedn.místní DPH bez sl.",
                  "Místní DPH ceny bez slevy za jednotku množství"),
    Price("JEDNCENASBEZSLEVY", "JEDNCENASDPHBEZSLEVY", "Jedn.cena s DPH bez sl.",
          "Cena s DPH bez slevy za jednotku množství"),
    Price("CENABSESLEVOU", "CENABEZDPHSESLEVOU", "Cena bez DPH se sl.", "Cena bez DPH se slevou za celkové množství",
          eAuto),
    Price("DPHASESLEVOU", "CENADPHASESLEVOU", "DPH se sl.", "DPH ceny se slevou za celkové množství"),
    LocalVatPrice("DPHBSESLEVOU", "CENADPHBSESLEVOU", "Místní DPH se sl.",
                  "Místní DPH ceny se slevou za celkové množství"),
    Price("CENASSESLEVOU", "CENASDPHSESLEVOU", "Cena s DPH se sl.", "Cena s DPH se slevou za celkové množství"),
    Price("CENABBEZSLEVY", "CENABEZDPHBEZSLEVY", "Cena bez DPH bez sl.", "Cena bez DPH bez slevy za celkové množství"),
    Price("DPHABEZSLEVY", "CENADPHABEZSLEVY", "DPH bez sl.", "DPH ceny bez slevy za celkové množství"),
    LocalVatPrice("DPHBBEZSLEVY", "CENADPHBBEZSLEVY", "Místní DPH bez sl.",
                  "Místní DPH ceny bez slevy za celkové množství"),
    Price("CENASBEZSLEVY", "CENASDPHBEZSLEVY", "Cena s DPH bez sl.", "Cena s DPH bez slevy za celkové množství"),
    Row{.Key = "TRVANLIVOST",
        .KeySuffix = "TRVANLIVOST",
        .Caption = "Trvanlivost",
        .Hint = "Trvanlivost",
        .Width = 80,
        .DataType = cdtDate},
};

TColumnType ColumnTypeOf(Role role, bool localVat) {
    switch (role) {
    case Role::Normal:
        return ctNormal;
    case Role::ReadOnly:
        return ctReadOnly;
    case Role::Hidden:
        return ctHidden;
    case Role::LocalVat:
        return localVat ? ctNormal : ctHidden;
    }
    return ctHidden;
}

const std::vector<AnsiString>* ListOf(Choices choices, const DodakColumnBindings& bindings) {
    if (choices == Choices::Warehouses) {
        return bindings.Warehouses;
    }
    return choices == Choices::VatRates ? bindings.VatRates : nullptr;
}

TColumnCallback CallbackOf(Change change, const DodakColumnBindings& bindings) {
    if (change == Change::Recalculation) {
        return bindings.Recalculate;
    }
    return change == Change::Discount ? bindings.CheckDiscount : TColumnCallback();
}

AnsiString Translated(std::string_view keyStart, std::string_view keySuffix, std::string_view builtIn) {
    if (keySuffix.empty()) {
        return AnsiString(builtIn);
    }
    return LangStr(AnsiString(keyStart) + AnsiString(keySuffix), {}, builtIn);
}

} // namespace

std::vector<RColumn> DodakColumns(const DodakColumnBindings& bindings) {
    std::vector<RColumn> columns;
    columns.reserve(c_Rows.size());
    for (const Row& row : c_Rows) {
        const int place = static_cast<int>(columns.size());
        columns.push_back(ColumnProperties(
            AnsiString(row.Key), Translated("KORDAN30\\MELVARKEDITOR\\COLUMN", row.KeySuffix, row.Caption),
            Translated("KORDAN30\\MELVARKEDITOR\\COLUMNHINT", row.KeySuffix, row.Hint), row.Align, row.Visible,
            row.Editable, ColumnTypeOf(row.Kind, bindings.LocalVat), row.Width, row.DataType, place,
            AnsiString(row.DisplayFormat), ListOf(row.List, bindings), nullptr, CallbackOf(row.Changed, bindings),
            nullptr));
    }
    return columns;
}

} // namespace melvark
