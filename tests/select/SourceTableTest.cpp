#include "select/SourceTable.h"

#include <gtest/gtest.h>

namespace {

using std::chrono::local_days;
using std::chrono::month;

// Document 7 of warehouse 3 and supplier 5.
const RSourceArguments c_Document{.DocumentID = 7, .WarehouseID = 3, .SupplierID = 5, .Moment = {}};

// The supplier set-ups know neither warehouse nor supplier: both travel as -1.
RSourceArguments supplierAt(TDateTime moment) {
    return {.DocumentID = 7, .WarehouseID = -1, .SupplierID = -1, .Moment = moment};
}

constexpr TDateTime c_Afternoon =
    local_days{std::chrono::year{2027} / 2 / 1} + std::chrono::hours{13} + std::chrono::minutes{5};
constexpr TDateTime c_Midnight = local_days{std::chrono::year{2027} / 2 / 1};

struct ConditionCase {
    const char* Name;
    const RSourceSetup& Setup;
    RSourceArguments Arguments;
    const char* Expected;
};

const ConditionCase c_Conditions[] = {
    {"note from order: document and supplier", c_DodakFromObjednavka, c_Document,
     "V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, _SKLDID, _DODVID, 7, 5, _DODANO)=1"},
    {"note from note: document and supplier", c_DodakFromDodak, c_Document,
     "V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, 7, 5)=1"},
    {"order from template: document, warehouse, supplier", c_DodObjFromObjednavkaVzor, c_Document,
     "V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, 7, 3, 5)=1"},
    {"order from order: filtered by the templates' function on purpose", c_DodObjFromObjednavka, c_Document,
     "V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, 7, 3, 5)=1"},
    {"order from note: document, warehouse, supplier", c_DodObjFromDodak, c_Document,
     "V_MELVARKEDITORDodObjCheckZdrojDodak(_ID, _DODVID, 7, 3, 5)=1"},
    {"price list: the moment as date and time", c_DodObjFromDodCenik, supplierAt(c_Afternoon),
     "V_MELVARKEDITORDodObjCheckZdrojDodCenik(_ID, 7, -1, -1, '1.2.2027 13:05:00')=1"},
    {"price list at midnight: the time is written all the same", c_DodObjFromDodCenik, supplierAt(c_Midnight),
     "V_MELVARKEDITORDodObjCheckZdrojDodCenik(_ID, 7, -1, -1, '1.2.2027 00:00:00')=1"},
    {"deliveries: the months are asked of the database inside the condition", c_DodObjFromDodavky,
     supplierAt(c_Afternoon),
     "V_MELVARKEDITORDodObjCheckZdrojDodavky(_ID, 7, -1, -1, '1.2.2027 13:05:00', "
     "V_GetGlobalParam('SKLAD','POCETMESICUDODAVEK'))=1"},
};

TEST(SourceTable, EachSetUpRestrictsItsListByItsOwnCondition) {
    for (const ConditionCase& row : c_Conditions) {
        SCOPED_TRACE(row.Name);
        EXPECT_EQ(melvark::LookupCondition(row.Setup, row.Arguments, TFormatSettings::Czech()), row.Expected);
    }
}

TEST(SourceTable, ADocumentWithoutSupplierTravelsAsMinusOne) {
    const RSourceArguments arguments{.DocumentID = 7, .WarehouseID = -1, .SupplierID = -1, .Moment = {}};
    EXPECT_EQ(melvark::LookupCondition(c_DodakFromDodak, arguments, TFormatSettings::Czech()),
              "V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, 7, -1)=1");
}

TEST(SourceTable, APickedKeyThatIsNoNumberMeansNone) {
    EXPECT_EQ(melvark::PickedId("4711"), 4711);
    EXPECT_EQ(melvark::PickedId(""), -1);
    EXPECT_EQ(melvark::PickedId("47a"), -1);
    EXPECT_EQ(melvark::PickedId("99999999999"), -1); // beyond 32 bits
}

struct TextCase {
    const RSourceSetup& Setup;
    const char* Title;
    const char* Label;
    const char* Check;
    const char* Params;
    const char* List;
};

const TextCase c_Texts[] = {
    {c_DodakFromObjednavka, "ORDERSELECTION=Výběr objednávky", "ORDERNUMBER=Číslo objednávky:",
     "MELVARKEDITORDodakCheckZdrojObjednavka", "a_DODKIDMASTER a_CISLO a_DDOBID", "Kordan3:DODOBJEDNAVKA.Normal CISLO"},
    {c_DodakFromDodak, "DELIVERYNOTESELECTION=Výběr dodacího listu", "DELIVERYNOTENUMBER=Číslo dodacího listu:",
     "MELVARKEDITORDodakCheckZdrojDodak", "a_DODKIDMASTER a_DODAKCISLO a_DODKID", "Kordan3:DODAK.Normal CISLO"},
    {c_DodObjFromObjednavkaVzor, "ORDERPATTERNSELECTION=Výběr vzoru objednávky",
     "ORDERPATTERNNUMBER=Číslo vzoru objednávky:", "MELVARKEDITORDodObjCheckZdrojObjednavkaVzor",
     "a_DDOBIDMASTER a_CISLO a_DDOBID", "Kordan3:DODOBJEDNAVKAVZOR.Normal CISLO"},
    {c_DodObjFromObjednavka, "ORDERSELECTION=Výběr objednávky",
     "ORDERNUMBER=Číslo objednávky:", "MELVARKEDITORDodObjCheckZdrojObjednavka", "a_DDOBIDMASTER a_CISLO a_DDOBID",
     "Kordan3:DODOBJEDNAVKA.Normal CISLO"},
    {c_DodObjFromDodak, "DELIVERYNOTESELECTION=Výběr dodacího listu", "DELIVERYNOTENUMBER=Číslo dodacího listu:",
     "MELVARKEDITORDodObjCheckZdrojDodak", "a_DDOBIDMASTER a_CISLO a_DODKID", "Kordan3:DODAK.Normal CISLO"},
    {c_DodObjFromDodCenik, "SUPPLIERSELECTION=Výběr dodavatele", "SUPPLIERNAME=Jméno dodavatele:",
     "MELVARKEDITORDodObjCheckZdrojDodCenik", "a_DDOBIDMASTER a_JMENO a_DODVID", "Kordan3:DODAVATEL.Normal JMENO"},
    {c_DodObjFromDodavky, "SUPPLIERSELECTION=Výběr dodavatele", "SUPPLIERNAME=Jméno dodavatele:",
     "MELVARKEDITORDodObjCheckZdrojDodavky", "a_DDOBIDMASTER a_JMENO a_DODVID", "Kordan3:DODAVATEL.Normal JMENO"},
};

TEST(SourceTable, EachSetUpHasItsTextsProcedureAndList) {
    for (const TextCase& row : c_Texts) {
        SCOPED_TRACE(row.Check);
        EXPECT_EQ(std::string(row.Setup.TitleKey) + "=" + row.Setup.Title, row.Title);
        EXPECT_EQ(std::string(row.Setup.LabelKey) + "=" + row.Setup.Label, row.Label);
        EXPECT_EQ(std::string(row.Setup.CheckProcedure), row.Check);
        EXPECT_EQ(std::string(row.Setup.DocumentParam) + " " + row.Setup.TextParam + " " + row.Setup.IdParam,
                  row.Params);
        EXPECT_EQ(std::string(row.Setup.HostForm) + " " + row.Setup.DisplayColumn, row.List);
    }
}

} // namespace
