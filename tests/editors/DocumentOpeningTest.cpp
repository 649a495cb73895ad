#include "editors/DocumentOpening.h"

#include "host/Exceptions.h"
#include "tests/support/RecordingHost.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class DocumentOpening : public testing::Test {
protected:
    RecordingHost host_;
    TScopedHost scope_{host_};
};

TEST_F(DocumentOpening, AnEditTypeHasItsNumberInTheTable) {
    EXPECT_EQ(melvark::RequireEditType<Exception>(c_DodObjEditType, "OBJEDNAVKA"), 1);
    EXPECT_EQ(melvark::RequireEditType<Exception>(c_DodObjEditType, "DODAVKY"), 7);
}

TEST_F(DocumentOpening, AnEditTypeOfAnotherDocumentIsRefusedInTheUsersLanguage) {
    host_.translations[R"(KORDAN30\MELVARKEDITOR\INVALIDEDITTYPE)"] = "Unknown edit type: %s";
    try {
        melvark::RequireEditType<Exception>(c_DodakEditType, "DODAVKY");
        FAIL() << "no error";
    } catch (const Exception& error) {
        EXPECT_EQ(error.Message(), "Unknown edit type: DODAVKY");
    }
}

TEST_F(DocumentOpening, WarehousesStandAsTheDatabaseSortsThem) {
    host_.connection.answerQuery("select NAZEV from SKLAD_V order by NAZEV",
                                 resultTable({"NAZEV"}, {{"Hodonín"}, {"Cheb"}}));
    EXPECT_THAT(melvark::FillSkladList(), ElementsAre("Hodonín", "Cheb"));
}

TEST_F(DocumentOpening, ADocumentIsCheckedByItsIdentifier) {
    host_.connection.procedure("CHECK").inputs({"a_ID"}).failsCall(2).refusesCall(3, "Doklad je uzavřen.");
    EXPECT_TRUE(melvark::CheckMasterDocument("CHECK", "a_ID", 7));
    EXPECT_FALSE(melvark::CheckMasterDocument("CHECK", "a_ID", 7));
    EXPECT_THROW(melvark::CheckMasterDocument("CHECK", "a_ID", 7), EDatabaseError);
    EXPECT_THAT(host_.connection.calls(), ElementsAre("CHECK(a_ID=7)", "CHECK(a_ID=7)", "CHECK(a_ID=7)"));
}

} // namespace
