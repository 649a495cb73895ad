#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"

namespace refhost {

namespace {

class SourceChecksContract : public Contract {
protected:
    static std::string orderForNote(const TDbValue& note, const TDbValue& number, const TDbValue& order) {
        return answer(sharedCompany(), "MELVARKEDITORDodakCheckZdrojObjednavka",
                      {{"a_DODKIDMASTER", note}, {"a_CISLO", number}, {"a_DDOBID", order}});
    }
    static std::string noteForNote(const TDbValue& note, const TDbValue& number, const TDbValue& source) {
        return answer(sharedCompany(), "MELVARKEDITORDodakCheckZdrojDodak",
                      {{"a_DODKIDMASTER", note}, {"a_DODAKCISLO", number}, {"a_DODKID", source}});
    }
    static std::string orderForOrder(const TDbValue& document, const TDbValue& number, const TDbValue& order) {
        return answer(sharedCompany(), "MELVARKEDITORDodObjCheckZdrojObjednavka",
                      {{"a_DDOBIDMASTER", document}, {"a_CISLO", number}, {"a_DDOBID", order}});
    }
    static std::string templateForOrder(const TDbValue& document, const TDbValue& number, const TDbValue& source) {
        return answer(sharedCompany(), "MELVARKEDITORDodObjCheckZdrojObjednavkaVzor",
                      {{"a_DDOBIDMASTER", document}, {"a_CISLO", number}, {"a_DDOBID", source}});
    }
    static std::string noteForOrder(const TDbValue& document, const TDbValue& number, const TDbValue& note) {
        return answer(sharedCompany(), "MELVARKEDITORDodObjCheckZdrojDodak",
                      {{"a_DDOBIDMASTER", document}, {"a_CISLO", number}, {"a_DODKID", note}});
    }
};

const TDbValue c_None;
constexpr const char* c_Nothing = "ML020 Zdroj není zadán. Zapište jej, nebo jej vyberte ze seznamu.";

TDbValue text(const char* value) {
    return AnsiString(value);
}

TEST_P(SourceChecksContract, AnOrderForANoteIsFoundByItsIdItsNumberOrBoth) {
    EXPECT_EQ(orderForNote(id(c_OpenNote), c_None, id(c_Order)), "1");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-1"), c_None), "1");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-1"), id(c_Order)), "1");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("  OBJ-1 "), id(-1)), "1"); // -1 means none, blanks mean nothing
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("   "), id(c_Order)), "1"); // an empty text says nothing
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-6"), c_None), "6");    // a closed order can still be delivered
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-5"), c_None), "5");    // nobody's order agrees with every note
    EXPECT_EQ(orderForNote(c_None, text("OBJ-3"), c_None), "3");            // without a note nothing restricts
    EXPECT_EQ(orderForNote(id(-1), text("OBJ-4"), c_None), "4");
}

TEST_P(SourceChecksContract, AnOrderForANoteIsRefusedInWords) {
    EXPECT_EQ(orderForNote(id(c_OpenNote), c_None, c_None), c_Nothing);
    EXPECT_EQ(orderForNote(id(c_OpenNote), text(" "), id(-1)), c_Nothing);
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-99"), c_None),
              "ML021 Objednávka „OBJ-99“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("obj-1"), c_None), // a number is matched to the letter
              "ML021 Objednávka „obj-1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-"), c_None), // and whole
              "ML021 Objednávka „OBJ-“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("VZ-1"), c_None), // a template is no order
              "ML021 Objednávka „VZ-1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(orderForNote(id(c_OpenNote), c_None, id(c_Template)),
              "ML021 Objednávka „7“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-10"), id(c_Order)),
              "ML022 Zapsáno je „OBJ-10“, ale vybráno bylo „OBJ-1“. Vyberte ze seznamu znovu.");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-1"), id(c_EarlierOrder)), // the picked one comes second
              "ML022 Zapsáno je „OBJ-1“, ale vybráno bylo „OBJ-10“. Vyberte ze seznamu znovu.");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-3"), c_None),
              "ML024 Objednávka „OBJ-3“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného "
              "dodavatele.");
    EXPECT_EQ(orderForNote(id(c_OpenNote), c_None, id(c_OrderOfBranch)),
              "ML025 Objednávka „OBJ-4“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného "
              "skladu.");
    EXPECT_EQ(orderForNote(id(c_OpenNote), text("OBJ-2"), c_None),
              "ML026 Objednávka „OBJ-2“ má už všechny položky dodané. Vyberte objednávku, na které něco zbývá.");
    EXPECT_EQ(orderForNote(id(c_Missing), text("OBJ-1"), c_None),
              "ML010 Dodací list s identifikátorem 999 neexistuje. Obnovte seznam a vyberte jiný.");
}

TEST_P(SourceChecksContract, ANoteForANoteIsOfTheSameSupplierInAnyWarehouse) {
    EXPECT_EQ(noteForNote(id(c_OpenNote), text("DL-6"), c_None), "6");
    EXPECT_EQ(noteForNote(id(c_OpenNote), c_None, id(c_NoteOfBranch)), "4"); // another warehouse does not matter here
    // Two notes are called DL-1; only one of them is of this note's supplier.
    EXPECT_EQ(noteForNote(id(c_OpenNote), text("DL-1"), c_None), "1");
    EXPECT_EQ(noteForNote(id(c_NoteOfDrinks), text("DL-1"), c_None), "5");
    EXPECT_EQ(noteForNote(c_None, text("DL-1"), id(c_NamesakeOfDrinks)), "5");
}

TEST_P(SourceChecksContract, ANoteForANoteIsRefusedInWords) {
    EXPECT_EQ(noteForNote(id(c_OpenNote), c_None, c_None), c_Nothing);
    EXPECT_EQ(noteForNote(id(c_OpenNote), text("DL-2"), c_None),
              "ML027 Dodací list „DL-2“ je právě upravovaný doklad. Vyberte jako zdroj jiný.");
    EXPECT_EQ(noteForNote(id(c_OpenNote), text("DL-3"), c_None),
              "ML024 Dodací list „DL-3“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného "
              "dodavatele.");
    EXPECT_EQ(noteForNote(c_None, text("DL-1"), c_None), // nothing tells the two apart
              "ML023 Označení „DL-1“ má více záznamů. Vyberte ten správný ze seznamu.");
    EXPECT_EQ(noteForNote(id(c_OpenNote), text("DL-99"), c_None),
              "ML021 Dodací list „DL-99“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(noteForNote(id(c_OpenNote), c_None, id(c_Missing)),
              "ML021 Dodací list „999“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(noteForNote(id(c_OpenNote), text("DL-1"), id(c_SameDayNote)),
              "ML022 Zapsáno je „DL-1“, ale vybráno bylo „DL-6“. Vyberte ze seznamu znovu.");
    EXPECT_EQ(noteForNote(id(c_Missing), text("DL-1"), c_None),
              "ML010 Dodací list s identifikátorem 999 neexistuje. Obnovte seznam a vyberte jiný.");
}

TEST_P(SourceChecksContract, AnOrderForAnOrderMayBeFullyDelivered) {
    EXPECT_EQ(orderForOrder(id(c_Order), text("OBJ-2"), c_None), "2");
    EXPECT_EQ(orderForOrder(id(c_Order), c_None, id(c_EarlierOrder)), "10");
    EXPECT_EQ(orderForOrder(id(c_FreeOrder), text("OBJ-3"), c_None), "3"); // an order without a supplier takes any
    EXPECT_EQ(orderForOrder(id(c_Namesake), text("OBJ-1"), c_None), "1");  // the order, not the template of this number
    EXPECT_EQ(orderForOrder(c_None, text("OBJ-4"), c_None), "4");
}

TEST_P(SourceChecksContract, AnOrderForAnOrderIsRefusedInWords) {
    EXPECT_EQ(orderForOrder(id(c_Order), c_None, id(0)), c_Nothing);
    EXPECT_EQ(orderForOrder(id(c_Order), text("OBJ-1"), c_None),
              "ML027 Objednávka „OBJ-1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.");
    EXPECT_EQ(orderForOrder(id(c_Order), text("OBJ-3"), c_None),
              "ML024 Objednávka „OBJ-3“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného "
              "dodavatele.");
    EXPECT_EQ(orderForOrder(id(c_Order), text("OBJ-4"), c_None),
              "ML025 Objednávka „OBJ-4“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného "
              "skladu.");
    EXPECT_EQ(orderForOrder(id(c_Order), text("OBJ-2"), id(c_EarlierOrder)),
              "ML022 Zapsáno je „OBJ-2“, ale vybráno bylo „OBJ-10“. Vyberte ze seznamu znovu.");
    EXPECT_EQ(orderForOrder(id(c_Order), c_None, id(c_Template)),
              "ML021 Objednávka „7“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(orderForOrder(id(c_Missing), text("OBJ-1"), c_None),
              "ML012 Objednávka ani vzor objednávky s identifikátorem 999 neexistuje. Obnovte seznam a vyberte jiný "
              "doklad.");
}

TEST_P(SourceChecksContract, ATemplateForAnOrder) {
    EXPECT_EQ(templateForOrder(id(c_Order), text("VZ-1"), c_None), "7");
    EXPECT_EQ(templateForOrder(id(c_Order), text("OBJ-1"), c_None), "9"); // the template of this number, not the order
    EXPECT_EQ(templateForOrder(id(c_Order), c_None, id(c_Namesake)), "9");
    EXPECT_EQ(templateForOrder(id(c_Order), c_None, c_None), c_Nothing);
    EXPECT_EQ(templateForOrder(id(c_Template), text("VZ-1"), c_None),
              "ML027 Vzor objednávky „VZ-1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.");
    EXPECT_EQ(templateForOrder(id(c_Order), text("VZ-2"), c_None), // the supplier is judged before the warehouse
              "ML024 Vzor objednávky „VZ-2“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad "
              "stejného dodavatele.");
    EXPECT_EQ(templateForOrder(id(c_FreeOrder), text("VZ-2"), c_None),
              "ML025 Vzor objednávky „VZ-2“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného "
              "skladu.");
    EXPECT_EQ(templateForOrder(id(c_Order), text("OBJ-10"), c_None),
              "ML021 Vzor objednávky „OBJ-10“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(templateForOrder(id(c_Order), text("VZ-1"), id(c_Namesake)),
              "ML022 Zapsáno je „VZ-1“, ale vybráno bylo „OBJ-1“. Vyberte ze seznamu znovu.");
}

TEST_P(SourceChecksContract, ANoteForAnOrder) {
    EXPECT_EQ(noteForOrder(id(c_Order), text("DL-2"), c_None), "2");
    EXPECT_EQ(noteForOrder(id(c_Order), text("DL-1"), c_None), "1"); // of this supplier's two namesakes
    EXPECT_EQ(noteForOrder(id(c_Template), c_None, id(c_OldNote)), "7");
    EXPECT_EQ(noteForOrder(id(c_OrderOfBranch), text("DL-4"), c_None), "4");
    EXPECT_EQ(noteForOrder(id(c_Order), c_None, c_None), c_Nothing);
    EXPECT_EQ(noteForOrder(id(c_FreeOrder), text("DL-1"), c_None), // both namesakes would do
              "ML023 Označení „DL-1“ má více záznamů. Vyberte ten správný ze seznamu.");
    EXPECT_EQ(noteForOrder(id(c_FreeOrder), text("DL-1"), id(c_NamesakeOfDrinks)), "5");
    EXPECT_EQ(noteForOrder(id(c_Order), text("DL-3"), c_None),
              "ML024 Dodací list „DL-3“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného "
              "dodavatele.");
    EXPECT_EQ(noteForOrder(id(c_Order), text("DL-4"), c_None),
              "ML025 Dodací list „DL-4“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného "
              "skladu.");
    EXPECT_EQ(noteForOrder(id(c_OrderOfBranch), text("DL-1"), c_None), // none will do: the fault of the lowest id
              "ML025 Dodací list „DL-1“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného "
              "skladu.");
    EXPECT_EQ(noteForOrder(id(c_Order), text("DL-2"), id(c_SameDayNote)),
              "ML022 Zapsáno je „DL-2“, ale vybráno bylo „DL-6“. Vyberte ze seznamu znovu.");
    EXPECT_EQ(noteForOrder(id(c_Order), text("DL-99"), c_None),
              "ML021 Dodací list „DL-99“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
}

INSTANTIATE_TEST_SUITE_P(Engines, SourceChecksContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
