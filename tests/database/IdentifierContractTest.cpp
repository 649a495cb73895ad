#include "tests/database/ContractCompany.h"
#include "tests/database/Staging.h"

namespace refhost {

namespace {

/// What an identifier means that is none, and one that is the document's own.
class Identifiers : public Contract {
protected:
    void SetUp() override { database_ = ownCompany(); }

    std::string fillNote(std::int64_t note, const TDbValue& source) {
        return answer(*database_, "MELVARKEDITORDodakGetPolozkyByDodak",
                      {{"a_DODKIDMASTER", source}, {"a_DODKID", id(note)}, {"a_PRENESMNOZSTVI", true}});
    }
    std::string fillOrder(std::int64_t document, const TDbValue& source) {
        return answer(*database_, "MELVARKEDITORDodObjGetPolozkyByObjednavka",
                      {{"a_DDOBIDMASTER", id(document)}, {"a_DDOBID", source}});
    }

    std::unique_ptr<Database> database_;
};

constexpr const char* c_OwnNote = "ML027 Dodací list „DL-2“ je právě upravovaný doklad. Vyberte jako zdroj jiný.";
constexpr const char* c_OwnOrder = "ML027 Objednávka „OBJ-1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.";
constexpr const char* c_OwnTemplate =
    "ML027 Vzor objednávky „VZ-1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.";

TEST_P(Identifiers, ADocumentIsNotFilledFromItself) {
    EXPECT_EQ(fillNote(c_OpenNote, id(c_OpenNote)), c_OwnNote);
    EXPECT_EQ(fillOrder(c_Order, id(c_Order)), c_OwnOrder);
    EXPECT_EQ(fillOrder(c_Template, id(c_Template)), c_OwnTemplate);
}

TEST_P(Identifiers, ADocumentIsNotSavedAsItsOwnSource) {
    beginSave(*database_);
    EXPECT_EQ(saveNote(*database_, id(c_OpenNote), {.Note = id(c_OpenNote)}), c_OwnNote);
    beginSave(*database_);
    EXPECT_EQ(saveOrder(*database_, id(c_Order), {.Order = id(c_Order)}), c_OwnOrder);
    beginSave(*database_);
    EXPECT_EQ(saveOrder(*database_, id(c_Template), {.Template = id(c_Template)}), c_OwnTemplate);
}

/// A note and an order may well have the same number.
TEST_P(Identifiers, ADocumentOfTheOtherKindMayBearTheSameIdentifier) {
    beginSave(*database_);
    EXPECT_EQ(saveNote(*database_, id(c_OpenNote), {.Order = id(c_OpenNote)}), "");
    beginSave(*database_);
    EXPECT_EQ(saveOrder(*database_, id(c_Order), {.Note = id(c_Order)}), "");
}

TEST_P(Identifiers, ZeroAndNegativeOnesAreNoSource) {
    const std::string latest = fillNote(c_OpenNote, {});
    const std::string latestOrders = fillOrder(c_Order, {});
    for (const TDbValue& none : {id(0), id(-1), TDbValue(AnsiString("0")), TDbValue(AnsiString(" -1 "))}) {
        EXPECT_EQ(fillNote(c_OpenNote, none), latest);
        EXPECT_EQ(fillOrder(c_Order, none), latestOrders);
    }
}

TEST_P(Identifiers, AsTextsOfARowTheyMeanNoneToo) {
    for (const char* none : {"0", "-1", " 0 ", "-0", "00"}) {
        beginSave(*database_);
        EXPECT_EQ(stageNoteRow(*database_, {{"a_DOBSID", none}}), "") << none << " in an empty row";
        EXPECT_EQ(stageNoteRow(*database_, {{"a_DOBSID", none}, {"a_SKLADPOL", "Chléb"}, {"a_MNOZSTVI", "2"}}), "")
            << none;
        EXPECT_EQ(stageOrderRow(*database_, {{"a_SKPLID", none}, {"a_SKPLIDV1", none}, {"a_SKPLIDV2", none}}), "")
            << none << " in an empty row";
        EXPECT_EQ(stageOrderRow(*database_, {{"a_SKLADPOL", "Chléb"}, {"a_SKPLIDV1", none}}), "") << none;
        EXPECT_EQ(stageOrderRow(*database_, {{"a_SKLADPOL", "Chléb"}, {"a_SKPLID", none}, {"a_MNOZSTVI", "2"}}),
                  "ML048 Množství položky „Chléb“ nemá jednotku. Množství vymažte, nebo vyberte položku, která tu "
                  "jednotku má.")
            << none;
    }
}

TEST_P(Identifiers, WhatIsNoIntegerIsNamed) {
    beginSave(*database_);
    EXPECT_EQ(stageNoteRow(*database_, {{"a_DOBSID", "-1x"}, {"a_SKLADPOL", "Chléb"}}),
              "ML049 Řádek objednávky „-1x“ neexistuje. Načtěte položky z objednávky znovu.");
}

INSTANTIATE_TEST_SUITE_P(Engines, Identifiers, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace

} // namespace refhost
