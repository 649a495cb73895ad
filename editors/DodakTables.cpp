#include "editors/DodakTables.h"

#include "editors/DocumentRows.h"
#include "editors/EditTypes.h"
#include "host/LiveData.h"

#include <array>
#include <string_view>

namespace melvark {

namespace {

using B = DodakBindings;
using Row = ColumnRow<B>;

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
            .Changed = &B::Recalculate};
}

constexpr Row LocalVatPrice(std::string_view key, std::string_view keySuffix, std::string_view caption,
                            std::string_view hint) {
    Row row = Price(key, keySuffix, caption, hint);
    row.Visible = false;
    row.OfferedWhen = &B::LocalVat;
    return row;
}

// Quantity, unit price and total, both without VAT after the discount, are what a clerk types: unit price times
// quantity is the total. The other normal columns wait until the clerk makes them editable.
constexpr std::array c_Rows{
    KeyColumn<B>("DOBSID", caLeft, false),
    c_Group1Column<B>,
    c_Group2Column<B>,
    c_Group3Column<B>,
    c_ItemColumn<B>,
    c_WarehouseColumn<B>,
    Row{.Key = "MNOZSTVI",
        .KeySuffix = "MNOZSTVI",
        .Caption = "Množství",
        .Hint = "Množství",
        .Align = caRight,
        .Editable = eAuto,
        .Width = 55,
        .DataType = cdtFlt,
        .Changed = &B::Recalculate},
    Row{.Key = "DPH",
        .KeySuffix = "DPH",
        .Caption = "Sazba DPH",
        .Hint = "Sazba DPH",
        .Width = 60,
        .List = &B::VatRates},
    Row{.Key = "SLEVA",
        .KeySuffix = "SLEVA",
        .Caption = "Sleva",
        .Hint = "Sleva v procentech",
        .Align = caRight,
        .Width = 55,
        .DataType = cdtFlt,
        .DisplayFormat = "%f %%",
        .Changed = &B::CheckDiscount},
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

// The parameters' names shorten what the column keys spell out: "SL" is after the discount, nothing is before it.
constexpr std::array c_RowParams{
    RowParam{"a_DOBSID", "DOBSID", ParamForm::Text},
    RowParam{"a_SKLADPOL", "SKLADPOL", ParamForm::Text},
    RowParam{"a_SKLAD", "SKLAD", ParamForm::Text},
    RowParam{"a_MNOZSTVI", "MNOZSTVI", ParamForm::NumberText},
    RowParam{"a_DPH", "DPH", ParamForm::Text},
    RowParam{"a_SLEVA", "SLEVA", ParamForm::NumberText},
    RowParam{"a_JEDNCENABSL", "JEDNCENABSESLEVOU", ParamForm::NumberText},
    RowParam{"a_JEDNDPHASL", "JEDNDPHASESLEVOU", ParamForm::NumberText},
    RowParam{"a_JEDNDPHBSL", "JEDNDPHBSESLEVOU", ParamForm::NumberText},
    RowParam{"a_JEDNCENASSL", "JEDNCENASSESLEVOU", ParamForm::NumberText},
    RowParam{"a_JEDNCENAB", "JEDNCENABBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_JEDNDPHA", "JEDNDPHABEZSLEVY", ParamForm::NumberText},
    RowParam{"a_JEDNDPHB", "JEDNDPHBBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_JEDNCENAS", "JEDNCENASBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_CENABSL", "CENABSESLEVOU", ParamForm::NumberText},
    RowParam{"a_DPHASL", "DPHASESLEVOU", ParamForm::NumberText},
    RowParam{"a_DPHBSL", "DPHBSESLEVOU", ParamForm::NumberText},
    RowParam{"a_CENASSL", "CENASSESLEVOU", ParamForm::NumberText},
    RowParam{"a_CENAB", "CENABBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_DPHA", "DPHABEZSLEVY", ParamForm::NumberText},
    RowParam{"a_DPHB", "DPHBBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_CENAS", "CENASBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_TRVANLIVOST", "TRVANLIVOST", ParamForm::Text},
};

// The VAT rates, from the result set at which the procedure stands.
std::vector<AnsiString> FillDPHList(TLiveStoredProc& initialisation) {
    return ReadTexts(initialisation, "NAZEV");
}

// The first result set has the flag, the second the VAT rates. The warehouses have a query of their own, which runs
// once the procedure stands behind the rates.
void Init(TLiveStoredProc& initialisation, DodakBindings& bindings) {
    bindings.LocalVat = initialisation.FieldByName("DPHBLIC").AsInteger() == 1;
    initialisation.Resume();
    bindings.VatRates = FillDPHList(initialisation);
    initialisation.Resume();
    bindings.Warehouses = FillSkladList();
}

} // namespace

constinit const OpeningTable<DodakBindings> c_DodakOpening{
    .EditTypes = c_DodakEditType, .Procedure = "MELVARKEDITORDodakInit", .Init = Init, .Columns = c_Rows};

constinit const DocumentKind c_DodakKind{.EditTypeNumber = 0,
                                         .FirstNamePart = "DODAK",
                                         .TitleKey = R"(KORDAN30\MELVARKEDITOR\DODAKAPPTITLE)",
                                         .Title = "Vložení položek dodacího listu",
                                         .HasPrices = true,
                                         .IdParam = "a_DODKID",
                                         .CheckProcedure = "MELVARKEDITORDodakCheckMaster",
                                         .RestoreProcedure = "MELVARKEDITORDodakObnovData",
                                         .InsertProcedure = "MELVARKEDITORDodakInsertToTemp",
                                         .RowParams = c_RowParams,
                                         .TakeOverProcedure = "MELVARKEDITORDodakTempUloz"};

} // namespace melvark
