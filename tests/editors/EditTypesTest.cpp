#include "editors/EditTypes.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

TEST(EditTypes, AreNumberedFromOneInTheirTable) {
    EXPECT_THAT(c_DodakEditType, ElementsAre("DODOBJ", "DODAK", "SABLONA"));
    EXPECT_THAT(c_DodObjEditType, ElementsAre("OBJEDNAVKA", "OBJEDNAVKAVZOR", "SABLONA", "DODAK", "SKUPSKLADPOL",
                                              "DODAVATEL", "DODAVKY"));
    EXPECT_EQ(melvark::EditTypeNumber(c_DodakEditType, "DODOBJ"), 1);
    EXPECT_EQ(melvark::EditTypeNumber(c_DodakEditType, "SABLONA"), 3);
    EXPECT_EQ(melvark::EditTypeNumber(c_DodObjEditType, "DODAVKY"), 7);
}

TEST(EditTypes, AreComparedExactly) {
    for (const char* code : {"dodak", "DODAK ", "", "DODA", "OBJEDNAVKA"}) {
        EXPECT_EQ(melvark::EditTypeNumber(c_DodakEditType, code), 0) << code;
    }
}

} // namespace
