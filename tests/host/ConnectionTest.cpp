#include "host/Connection.h"

#include <gtest/gtest.h>

namespace {

TEST(SameDbName, IgnoresTheCaseOfAsciiLetters) {
    EXPECT_TRUE(SameDbName("a_DODKID", "A_dodkid"));
    EXPECT_TRUE(SameDbName("", ""));
}

TEST(SameDbName, TellsOtherNamesApart) {
    EXPECT_FALSE(SameDbName("NAZEV", "NAZEV2"));
    EXPECT_FALSE(SameDbName("NAZEV2", "NAZEV"));
    EXPECT_FALSE(SameDbName("a_ID", "aÁID"));
}

TEST(SameDbName, LeavesTheNeighboursOfLettersAlone) {
    // '@' and '`' or '[' and '{' differ by the same bit as a small and a capital letter.
    EXPECT_FALSE(SameDbName("@", "`"));
    EXPECT_FALSE(SameDbName("[", "{"));
}

TEST(SameDbName, ComparesOtherLettersExactly) {
    EXPECT_TRUE(SameDbName("Č", "Č"));
    EXPECT_FALSE(SameDbName("Č", "č"));
}

} // namespace
