#include "editors/DodakOpening.h"

#include "tests/support/DodakScripts.h"
#include "tests/support/RecordingHost.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::SizeIs;

class DodakOpening : public testing::Test {
protected:
    DodakOpening() { scriptDodakEditor(host_.connection); }

    RecordingHost host_;
    TScopedHost scope_{host_};
};

TEST_F(DodakOpening, AsksTheProcedureAndThenTheWarehouses) {
    const melvark::DodakOpening opening = melvark::OpenDodak("SABLONA", 7, 40);
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakInit() open", "select NAZEV from SKLAD_V order by NAZEV"));
    EXPECT_EQ(opening.EditType, "SABLONA");
    EXPECT_EQ(opening.DocumentID, 7);
    EXPECT_EQ(opening.DodvID, 40);
    EXPECT_EQ(opening.UserName, "novak");
    EXPECT_THAT(opening.Lists->VatRates, ElementsAre("21 %", "12 %", "0 %")) << "as returned, not sorted";
    EXPECT_THAT(opening.Lists->Warehouses, ElementsAre("Brno", "Praha"));
}

TEST_F(DodakOpening, TheSourcesNumberIsThatOfTheEditType) {
    EXPECT_EQ(melvark::OpenDodak("DODOBJ", 7, 40).SourceNumber, 1);
    EXPECT_EQ(melvark::OpenDodak("DODAK", 7, 40).SourceNumber, 2);
    EXPECT_EQ(melvark::OpenDodak("SABLONA", 7, 40).SourceNumber, 3);
}

TEST_F(DodakOpening, AnUnknownEditTypeIsRefusedBeforeTheDatabaseIsAsked) {
    for (const char* editType : {"dodak", "", "DODAK ", "OBJEDNAVKA"}) {
        try {
            melvark::OpenDodak(editType, 7, 40);
            ADD_FAILURE() << "no error for " << editType;
        } catch (const EDodakEditBox& error) {
            EXPECT_EQ(error.Message(), "Neplatný typ editace (" + AnsiString(editType) + ")");
        }
    }
    EXPECT_THAT(host_.connection.calls(), SizeIs(0));
}

TEST_F(DodakOpening, TheRefusalIsInTheUsersLanguage) {
    host_.translations[R"(KORDAN30\MELVARKEDITOR\INVALIDEDITTYPE)"] = "Unknown edit type: %s";
    try {
        melvark::OpenDodak("X", 7, 40);
        FAIL() << "no error";
    } catch (const EDodakEditBox& error) {
        EXPECT_EQ(error.Message(), "Unknown edit type: X");
    }
}

TEST_F(DodakOpening, LocalVatIsOnForOneAlone) {
    for (const auto& [flag, expected] :
         std::initializer_list<std::pair<const char*, bool>>{{"1", true}, {"0", false}, {"", false}, {"2", false}}) {
        scriptInit(host_.connection, flag);
        if (AnsiString(flag).empty()) {
            host_.connection.procedure("MELVARKEDITORDodakInit")
                .returns({{{"UZIVATEL", "DPHBLIC"}, {{AnsiString("novak"), std::monostate{}}}}});
        }
        EXPECT_EQ(melvark::OpenDodak("SABLONA", 7, 40).LocalVat, expected) << "'" << flag << "'";
    }
}

} // namespace
