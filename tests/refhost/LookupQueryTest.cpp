#include "refhost/lookup/LookupQuery.h"

#include "host/Exceptions.h"
#include "refhost/Languages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace refhost {

namespace {

TEST(LookupQuery, ReadsTheNamedViewRestrictedByTheCondition) {
    const Languages languages("cs");

    EXPECT_EQ(lookupQuery("Kordan3:DODAK.Normal", "_DODVID=3", languages),
              "select * from DODAK_NORMAL_V where _DODVID=3");
    EXPECT_EQ(lookupQuery("Kordan3:SKUPSPOL.SKUPSPOL1", "", languages), "select * from SKUPSPOL_SKUPSPOL1_V");
}

TEST(LookupQuery, IsPutInTheOrderOfAColumn) {
    EXPECT_EQ(inOrderOf("CISLO", "select * from DODAK_NORMAL_V where _DODVID=3"),
              "select * from DODAK_NORMAL_V where _DODVID=3 order by CISLO");
}

class StrangeIdentifier : public testing::TestWithParam<const char*> {};

TEST_P(StrangeIdentifier, IsRefusedByName) {
    try {
        lookupQuery(GetParam(), "", Languages("cs"));
        FAIL() << "accepted";
    } catch (const EHostError& error) {
        EXPECT_EQ(error.Message(), "Seznam „" + std::string(GetParam()) + "“ tento program nemá.");
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, StrangeIdentifier,
                         testing::Values("", "DODAK.Normal", "Kordan3:DODAK", "Kordan2:DODAK.Normal",
                                         "Kordan3:DODAK.Normal; drop table DODAK", "Kordan3:.", "Kordan3:A.B\n"));

} // namespace

} // namespace refhost
