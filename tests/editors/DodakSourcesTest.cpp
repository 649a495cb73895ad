#include "editors/DodakSources.h"

#include "tests/editors/EditorRules.h"

namespace {

using testing::ElementsAre;

class DodakSources : public EditorRules {};

TEST_F(DodakSources, AnOrdersLinesCarryTheirOrderLine) {
    melvark::FillFromOrder(store_, columns(), 7, 31);
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakGetPolozkyByObjednavka(a_DODKID=7, a_DDOBID=31) open"));
    EXPECT_EQ(cell(0, "DOBSID"), "501");
    EXPECT_EQ(cell(1, "DOBSID"), "502");
    EXPECT_EQ(cell(1, "SKLADPOL"), "Žitný chléb");
}

TEST_F(DodakSources, AnotherDeliveryNotesLinesHaveNoOrderLine) {
    melvark::FillFromDeliveryNote(store_, columns(), 7,
                                  {.DeliveryNoteID = 12, .WithQuantities = true, .WithPrices = false});
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakGetPolozkyByDodak(a_DODKIDMASTER=12, a_DODKID=7, "
                            "a_PRENESMNOZSTVI=true, a_PRENESCENY=false) open"));
    EXPECT_EQ(cell(0, "DOBSID"), "");
    EXPECT_EQ(cell(0, "SKLADPOL"), "Mléko");
}

TEST_F(DodakSources, TheTemplateIsADeliveryNoteOfNone) {
    melvark::FillFromDeliveryNote(store_, columns(), 7, {});
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakGetPolozkyByDodak(a_DODKIDMASTER=null, a_DODKID=7, "
                            "a_PRENESMNOZSTVI=true, a_PRENESCENY=true) open"));
    EXPECT_EQ(store_.GetRowCount(), 2);
}

} // namespace
