#include "editors/DodObjOpening.h"

#include "editors/EditTypes.h"
#include "tests/support/DodObjScripts.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DodObjOpening : public testing::Test {
protected:
    DodObjOpening() { scriptDodObjEditor(host_.connection); }

    static melvark::DodObjOpening open(const AnsiString& sourceKind) {
        return melvark::OpenDodObj(sourceKind, {.DdobID = 7,
                                                .IsTemplate = true,
                                                .SkldID = 3,
                                                .DodvID = 5,
                                                .Sklad = "Praha",
                                                .Dodavatel = "Lípa",
                                                .Moment = c_Moment});
    }

    static constexpr TDateTime c_Moment =
        std::chrono::local_days(std::chrono::year(2026) / 3 / 5) + std::chrono::hours(14);

    RecordingHost host_;
    TScopedHost scope_{host_};
};

TEST_F(DodObjOpening, AsksForTheUserThenTheWarehousesThenTheSuppliers) {
    const melvark::DodObjOpening opening = open("DODAVKY");
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodObjInit() open", "select NAZEV from SKLAD_V order by NAZEV",
                            "select JMENO from DODAVATEL_V order by JMENO"));
    EXPECT_EQ(opening.UserName, "novak");
    EXPECT_THAT(opening.Lists->Warehouses, ElementsAre("Brno", "Praha"));
    EXPECT_THAT(opening.Lists->Suppliers, ElementsAre("Lípa", "Vrba"));
    EXPECT_TRUE(opening.Document.IsTemplate);
    EXPECT_EQ(opening.DocumentID, 7);
    EXPECT_EQ(opening.EditType, "DODAVKY");
    EXPECT_EQ(opening.Document.SkldID, 3);
    EXPECT_EQ(opening.Document.DodvID, 5);
    EXPECT_EQ(opening.Document.Sklad, "Praha");
    EXPECT_EQ(opening.Document.Dodavatel, "Lípa");
    EXPECT_EQ(opening.Document.Moment, c_Moment);
}

TEST_F(DodObjOpening, TheSourcesNumberIsItsPlaceInTheTable) {
    int expected = 0;
    for (const char* code :
         {"OBJEDNAVKA", "OBJEDNAVKAVZOR", "SABLONA", "DODAK", "SKUPSKLADPOL", "DODAVATEL", "DODAVKY"}) {
        EXPECT_EQ(open(code).SourceNumber, ++expected) << code;
    }
}

TEST_F(DodObjOpening, AnUnknownSourceIsRefusedBeforeTheDatabaseIsAsked) {
    for (const char* code : {"objednavka", "", "DODOBJ", "DODAVKY "}) {
        try {
            open(code);
            ADD_FAILURE() << "no error for " << code;
        } catch (const EDodObjEditBox& error) {
            EXPECT_EQ(error.Message(), "Neplatný typ editace (" + AnsiString(code) + ")");
        }
    }
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

} // namespace
