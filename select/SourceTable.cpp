#include "select/SourceTable.h"

#include "host/Format.h"
#include "host/ValueText.h"

#include <vector>

namespace {

using enum TConditionArgument;

constexpr TConditionArgument c_DocumentSupplier[] = {Document, Supplier};
constexpr TConditionArgument c_DocumentWarehouseSupplier[] = {Document, Warehouse, Supplier};
constexpr TConditionArgument c_DocumentAndMoment[] = {Document, Warehouse, Supplier, Moment};

TFormatArg ConditionArgument(TConditionArgument kind, const RSourceArguments& arguments,
                             const TFormatSettings& settings) {
    switch (kind) {
    case Document:
        return arguments.DocumentID;
    case Warehouse:
        return arguments.WarehouseID;
    case Supplier:
        return arguments.SupplierID;
    case Moment:
        break;
    }
    return DateTimeToText(arguments.Moment, settings);
}

} // namespace

const RSourceSetup c_DodakFromObjednavka = {
    .TitleKey = "ORDERSELECTION",
    .Title = "Výběr objednávky",
    .LabelKey = "ORDERNUMBER",
    .Label = "Číslo objednávky:",
    .Options = TTransferOptions::None,
    .CheckProcedure = "MELVARKEDITORDodakCheckZdrojObjednavka",
    .DocumentParam = "a_DODKIDMASTER",
    .TextParam = "a_CISLO",
    .IdParam = "a_DDOBID",
    .HostForm = "Kordan3:DODOBJEDNAVKA.Normal",
    .DisplayColumn = "CISLO",
    .Condition = "V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, _SKLDID, _DODVID, %d, %d, _DODANO)=1",
    .ConditionArguments = c_DocumentSupplier,
};

const RSourceSetup c_DodakFromDodak = {
    .TitleKey = "DELIVERYNOTESELECTION",
    .Title = "Výběr dodacího listu",
    .LabelKey = "DELIVERYNOTENUMBER",
    .Label = "Číslo dodacího listu:",
    .Options = TTransferOptions::QuantitiesAndPrices,
    .CheckProcedure = "MELVARKEDITORDodakCheckZdrojDodak",
    .DocumentParam = "a_DODKIDMASTER",
    .TextParam = "a_DODAKCISLO",
    .IdParam = "a_DODKID",
    .HostForm = "Kordan3:DODAK.Normal",
    .DisplayColumn = "CISLO",
    .Condition = "V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, %d, %d)=1",
    .ConditionArguments = c_DocumentSupplier,
};

const RSourceSetup c_DodObjFromObjednavkaVzor = {
    .TitleKey = "ORDERPATTERNSELECTION",
    .Title = "Výběr vzoru objednávky",
    .LabelKey = "ORDERPATTERNNUMBER",
    .Label = "Číslo vzoru objednávky:",
    .Options = TTransferOptions::None,
    .CheckProcedure = "MELVARKEDITORDodObjCheckZdrojObjednavkaVzor",
    .DocumentParam = "a_DDOBIDMASTER",
    .TextParam = "a_CISLO",
    .IdParam = "a_DDOBID",
    .HostForm = "Kordan3:DODOBJEDNAVKAVZOR.Normal",
    .DisplayColumn = "CISLO",
    .Condition = "V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, %d, %d, %d)=1",
    .ConditionArguments = c_DocumentWarehouseSupplier,
};

// The list of orders is filtered by the templates' function while the check asks the orders' procedure: on purpose, the
// function decides from the ids of both kinds, which share one sequence.
const RSourceSetup c_DodObjFromObjednavka = {
    .TitleKey = "ORDERSELECTION",
    .Title = "Výběr objednávky",
    .LabelKey = "ORDERNUMBER",
    .Label = "Číslo objednávky:",
    .Options = TTransferOptions::None,
    .CheckProcedure = "MELVARKEDITORDodObjCheckZdrojObjednavka",
    .DocumentParam = "a_DDOBIDMASTER",
    .TextParam = "a_CISLO",
    .IdParam = "a_DDOBID",
    .HostForm = "Kordan3:DODOBJEDNAVKA.Normal",
    .DisplayColumn = "CISLO",
    .Condition = "V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, %d, %d, %d)=1",
    .ConditionArguments = c_DocumentWarehouseSupplier,
};

const RSourceSetup c_DodObjFromDodak = {
    .TitleKey = "DELIVERYNOTESELECTION",
    .Title = "Výběr dodacího listu",
    .LabelKey = "DELIVERYNOTENUMBER",
    .Label = "Číslo dodacího listu:",
    .Options = TTransferOptions::None,
    .CheckProcedure = "MELVARKEDITORDodObjCheckZdrojDodak",
    .DocumentParam = "a_DDOBIDMASTER",
    .TextParam = "a_CISLO",
    .IdParam = "a_DODKID",
    .HostForm = "Kordan3:DODAK.Normal",
    .DisplayColumn = "CISLO",
    .Condition = "V_MELVARKEDITORDodObjCheckZdrojDodak(_ID, _DODVID, %d, %d, %d)=1",
    .ConditionArguments = c_DocumentWarehouseSupplier,
};

const RSourceSetup c_DodObjFromDodCenik = {
    .TitleKey = "SUPPLIERSELECTION",
    .Title = "Výběr dodavatele",
    .LabelKey = "SUPPLIERNAME",
    .Label = "Jméno dodavatele:",
    .Options = TTransferOptions::None,
    .CheckProcedure = "MELVARKEDITORDodObjCheckZdrojDodCenik",
    .DocumentParam = "a_DDOBIDMASTER",
    .TextParam = "a_JMENO",
    .IdParam = "a_DODVID",
    .HostForm = "Kordan3:DODAVATEL.Normal",
    .DisplayColumn = "JMENO",
    .Condition = "V_MELVARKEDITORDodObjCheckZdrojDodCenik(_ID, %d, %d, %d, '%s')=1",
    .ConditionArguments = c_DocumentAndMoment,
};

// How many months back deliveries count is the database's parameter, evaluated inside the condition.
const RSourceSetup c_DodObjFromDodavky = {
    .TitleKey = "SUPPLIERSELECTION",
    .Title = "Výběr dodavatele",
    .LabelKey = "SUPPLIERNAME",
    .Label = "Jméno dodavatele:",
    .Options = TTransferOptions::QuantitiesOnlyUnchecked,
    .CheckProcedure = "MELVARKEDITORDodObjCheckZdrojDodavky",
    .DocumentParam = "a_DDOBIDMASTER",
    .TextParam = "a_JMENO",
    .IdParam = "a_DODVID",
    .HostForm = "Kordan3:DODAVATEL.Normal",
    .DisplayColumn = "JMENO",
    .Condition = "V_MELVARKEDITORDodObjCheckZdrojDodavky(_ID, %d, %d, %d, '%s', "
                 "V_GetGlobalParam('SKLAD','POCETMESICUDODAVEK'))=1",
    .ConditionArguments = c_DocumentAndMoment,
};

namespace melvark {

AnsiString LookupCondition(const RSourceSetup& setup, const RSourceArguments& arguments,
                           const TFormatSettings& settings) {
    std::vector<TFormatArg> values;
    for (const TConditionArgument kind : setup.ConditionArguments) {
        values.push_back(ConditionArgument(kind, arguments, settings));
    }
    return Format(setup.Condition, values, settings);
}

int PickedId(const AnsiString& key) {
    return TextToInt(key).value_or(c_NullValue);
}

} // namespace melvark
