#include "host/AsciiCase.h"

#include <gtest/gtest.h>

namespace {

using namespace melvark;

TEST(AsciiCase, ChangesTheLettersFromAToZAndNothingElse) {
    EXPECT_EQ(LowerAscii("a_DODKID @[AZ]`{az}09"), "a_dodkid @[az]`{az}09");
    EXPECT_EQ(UpperAscii("a_dodkid @[AZ]`{az}09"), "A_DODKID @[AZ]`{AZ}09");
}

TEST(AsciiCase, LeavesLettersWithMarksAsTheyAre) {
    EXPECT_EQ(LowerAscii("Příjem Ž"), "příjem Ž");
    EXPECT_EQ(UpperAscii("příjem ž"), "PříJEM ž");
}

TEST(AsciiCase, ComparesWholeTextsWithoutRegardToCase) {
    EXPECT_TRUE(SameButForAsciiCase("TRUE", "true"));
    EXPECT_FALSE(SameButForAsciiCase("true", "tru"));
    EXPECT_FALSE(SameButForAsciiCase("tru", "true"));
    EXPECT_FALSE(SameButForAsciiCase("Ž", "ž"));
    EXPECT_FALSE(SameButForAsciiCase("@", "`")) << "they lie as far apart as A and a";
}

} // namespace
