#include "editors/DodObjTables.h"

#include "editors/DocumentRows.h"
#include "editors/EditTypes.h"
#include "editwin/model/DataGrid.h"

#include <algorithm>
#include <array>

namespace melvark {

namespace {

using B = DodObjBindings;
using Row = ColumnRow<B>;

constexpr int c_MainWidth = 55;
constexpr int c_SecondaryWidth = 80;

constexpr Row Quantity(std::string_view key, std::string_view keySuffix, std::string_view caption,
                       std::string_view hint, int width) {
    return {.Key = key,
            .KeySuffix = keySuffix,
            .Caption = caption,
            .Hint = hint,
            .Align = caRight,
            .Editable = eAuto,
            .Width = width,
            .DataType = cdtFlt};
}

// A remark: traversal passes it by, a click opens it.
constexpr Row Remark(std::string_view key, std::string_view caption, std::string_view hint) {
    return {.Key = key, .KeySuffix = key, .Caption = caption, .Hint = hint, .Editable = eManual};
}

// Each quantity stands before the name and the identifier of its unit: the main one (HL), the secondary ones (V1, V2).
constexpr std::array c_Rows{
    c_Group1Column<B>,
    c_Group2Column<B>,
    c_Group3Column<B>,
    c_ItemColumn<B>,
    c_WarehouseColumn<B>,
    Row{.Key = "DODAVATEL",
        .KeySuffix = "DODAVATEL",
        .Caption = "Dodavatel",
        .Hint = "Dodavatel",
        .List = &B::Suppliers},
    Quantity("MNOZSTVIHL", "MNOZSTVI", "Množství", "Množství", c_MainWidth),
    ReadOnlyColumn<B>("JEDNOTKYHL", "JEDNOTKY", "Jednotky", "Hlavní jednotky", c_MainWidth),
    KeyColumn<B>("SKPLIDHL", caRight, true),
    Quantity("MNOZSTVIV1", "MNOZSTVI1", "Ved.množství 1", "Množství ve vedlejších jednotkách 1", c_SecondaryWidth),
    ReadOnlyColumn<B>("JEDNOTKYV1", "VEDJEDNOTKY1", "Ved.jednotky 1", "Vedlejší jednotky 1", c_SecondaryWidth),
    KeyColumn<B>("SKPLIDV1", caRight, true),
    Quantity("MNOZSTVIV2", "MNOZSTVI2", "Ved.množství 2", "Množství ve vedlejších jednotkách 2", c_SecondaryWidth),
    ReadOnlyColumn<B>("JEDNOTKYV2", "VEDJEDNOTKY2", "Ved.jednotky 2", "Vedlejší jednotky 2", c_SecondaryWidth),
    KeyColumn<B>("SKPLIDV2", caLeft, true),
    Remark("POPIS", "Popis", "Popis k položce objednávky"),
    Remark("KOMENTAR", "Komentář", "Komentář k položce objednávky"),
};

/// A quantity and the identifier of its unit.
struct UnitOfQuantity {
    std::string_view Quantity;
    std::string_view Unit;
};

constexpr std::array c_Units{
    UnitOfQuantity{"MNOZSTVIHL", "SKPLIDHL"},
    UnitOfQuantity{"MNOZSTVIV1", "SKPLIDV1"},
    UnitOfQuantity{"MNOZSTVIV2", "SKPLIDV2"},
};

// The columns of the main unit end in HL, its parameters in nothing.
constexpr std::array c_RowParams{
    RowParam{"a_SKLADPOL", "SKLADPOL", ParamForm::Text},
    RowParam{"a_SKLAD", "SKLAD", ParamForm::Text},
    RowParam{"a_DODAVATEL", "DODAVATEL", ParamForm::Text},
    RowParam{"a_SKPLID", "SKPLIDHL", ParamForm::Text},
    RowParam{"a_MNOZSTVI", "MNOZSTVIHL", ParamForm::NumberText},
    RowParam{"a_JEDNOTKY", "JEDNOTKYHL", ParamForm::Text},
    RowParam{"a_SKPLIDV1", "SKPLIDV1", ParamForm::Text},
    RowParam{"a_MNOZSTVIV1", "MNOZSTVIV1", ParamForm::NumberText},
    RowParam{"a_JEDNOTKYV1", "JEDNOTKYV1", ParamForm::Text},
    RowParam{"a_SKPLIDV2", "SKPLIDV2", ParamForm::Text},
    RowParam{"a_MNOZSTVIV2", "MNOZSTVIV2", ParamForm::NumberText},
    RowParam{"a_JEDNOTKYV2", "JEDNOTKYV2", ParamForm::Text},
    RowParam{"a_POPIS", "POPIS", ParamForm::Text},
    RowParam{"a_KOMENTAR", "KOMENTAR", ParamForm::Text},
};

// How an order and an order template are called; all else is alike.
constexpr DocumentKind KindOf(int editTypeNumber, const char* firstNamePart, const char* titleKey, const char* title) {
    return {.EditTypeNumber = editTypeNumber,
            .FirstNamePart = firstNamePart,
            .TitleKey = titleKey,
            .Title = title,
            .HasPrices = false,
            .IdParam = "a_DDOBID",
            .CheckProcedure = "MELVARKEDITORDodObjCheckMaster",
            .RestoreProcedure = "MELVARKEDITORDodObjObnovData",
            .InsertProcedure = "MELVARKEDITORDodObjInsertToTemp",
            .RowParams = c_RowParams,
            .TakeOverProcedure = "MELVARKEDITORDodObjTempUloz"};
}

std::vector<AnsiString> FillDodavatelList() {
    return QueryTexts("select JMENO from DODAVATEL_V order by JMENO", "JMENO");
}

void Init(TLiveStoredProc&, DodObjBindings& bindings) {
    bindings.Warehouses = FillSkladList();
    bindings.Suppliers = FillDodavatelList();
}

} // namespace

constinit const OpeningTable<DodObjBindings> c_DodObjOpening{
    .EditTypes = c_DodObjEditType, .Procedure = "MELVARKEDITORDodObjInit", .Init = Init, .Columns = c_Rows};

constinit const DocumentKind c_OrderKind =
    KindOf(10, "DODOBJ", R"(KORDAN30\MELVARKEDITOR\OBJEDNAVKYZBOZIAPPTITLE)", "Vložení položek do objednávky zboží");
constinit const DocumentKind c_TemplateKind =
    KindOf(20, "DODOBJVZOR", R"(KORDAN30\MELVARKEDITOR\VZOROBJEDNAVKYZBOZIAPPTITLE)",
           "Vložení položek do vzorové objednávky zboží");

bool HasItsUnit(const DocumentColumns& columns, const TDataGrid& store, std::string_view key, int row) {
    const auto* const counted = std::ranges::find(c_Units, key, &UnitOfQuantity::Quantity);
    return counted == c_Units.end() || !columns.Cell(store, counted->Unit, row).empty();
}

} // namespace melvark
