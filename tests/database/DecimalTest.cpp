#include "refhost/database/Decimal.h"

#include "tests/database/CountedAllocations.h"

#include <gtest/gtest.h>
#include <string>

namespace refhost {
namespace {

TEST(Decimal, TextsBecomeCanonical) {
    struct Row {
        const char* Text;
        const char* Canonical;
    };
    const Row rows[] = {
        {"0", "0"},        {"-0.00", "0"},                                     // there is one zero
        {"+01.50", "1.5"}, {"-012", "-12"}, {"100", "100"},                    // zeros before the point count
        {".5", "0.5"},     {"5.", "5"},     {"0.070", "0.07"}, {"0089", "89"}, // no octal reading
    };
    for (const Row& row : rows) {
        EXPECT_EQ(canonicalDecimal(row.Text), row.Canonical) << row.Text;
    }
}

// Long integers ask for memory at each step, which cost a recalculation most of its time.
TEST(Decimal, NumbersOfADocumentAreComputedWithoutMemory) {
    const auto compute = [] {
        EXPECT_EQ(decimalSum("1234.56", "-0.07"), "1234.49");
        EXPECT_EQ(decimalProduct("12.345678", "-7.5"), "-92.592585");
        EXPECT_EQ(decimalQuotient("100", "1.21", 6), "82.644628");
        EXPECT_EQ(roundedDecimal("92.592585", 2), "92.59");
        EXPECT_EQ(canonicalDecimal("0012.500"), "12.5");
    };
    compute();
    EXPECT_EQ(allocationsOf(compute), 0);
}

TEST(Decimal, WhatIsNoNumberIsRefused) {
    for (const char* text :
         {"", "-", "+", ".", "1,5", "1e3", "nan", "inf", " 1", "1 ", "0x10", "--1", "1.2.3", "１２"}) {
        EXPECT_THROW(canonicalDecimal(text), DecimalError) << text;
    }
}

TEST(Decimal, ATextPastTheLengthLimitIsRefused) {
    EXPECT_EQ(canonicalDecimal(std::string(c_MaximumDecimalLength, '9')).size(), c_MaximumDecimalLength);
    EXPECT_THROW(canonicalDecimal(std::string(c_MaximumDecimalLength + 1, '9')), DecimalError);
}

TEST(Decimal, SumsDifferencesAndProductsAreExact) {
    EXPECT_EQ(decimalSum("0.1", "0.2"), "0.3");
    EXPECT_EQ(decimalSum("99.99", "0.01"), "100");
    EXPECT_EQ(decimalDifference("1", "0.000001"), "0.999999");
    EXPECT_EQ(decimalDifference("0.07", "0.07"), "0");
    EXPECT_EQ(decimalProduct("1.005", "100"), "100.5");
    EXPECT_EQ(decimalProduct("-0.000001", "0.000001"), "-0.000000000001");
    // 64-bit integers end at 9.2 · 10^18, binary floating point is exact up to 9.0 · 10^15.
    EXPECT_EQ(decimalProduct("12345678901234567890", "10"), "123456789012345678900");
    // So do integers of 128 bits at 1.7 · 10^38.
    EXPECT_EQ(decimalProduct("99999999999999999999", "99999999999999999999"),
              "9999999999999999999800000000000000000001");
    EXPECT_EQ(decimalSum("9999999999999999999999999999999999999", "0.00001"),
              "9999999999999999999999999999999999999.00001");
    EXPECT_EQ(decimalQuotient("99999999999999999999999999999999999", "7", 6),
              "14285714285714285714285714285714285.571429");
    EXPECT_EQ(compareDecimals("99999999999999999999999999999999999999999", "0.1"), 1);
}

TEST(Decimal, NoZeroIsLostInALongNumber) {
    for (const std::size_t zeros : {16U, 17U, 18U, 19U, 20U, 33U, 34U}) {
        const std::string number = "1" + std::string(zeros, '0');
        EXPECT_EQ(canonicalDecimal(number), number);
        EXPECT_EQ(canonicalDecimal("-" + number + "7"), "-" + number + "7");
    }
    EXPECT_EQ(canonicalDecimal("20000000000000000030000000000000000"), "20000000000000000030000000000000000");
}

TEST(Decimal, RoundingGoesHalfAwayFromZero) {
    struct Row {
        const char* Text;
        int Decimals;
        const char* Rounded;
    };
    const Row rows[] = {
        {"0.125", 2, "0.13"},   {"-0.125", 2, "-0.13"}, {"0.1249999999", 2, "0.12"},
        {"0.115", 2, "0.12"},   {"1.005", 2, "1.01"}, // in binary floating point 1.005 is a little less than itself
        {"2.675", 2, "2.68"},   {"0.5", 0, "1"},        {"-0.5", 0, "-1"},
        {"0.4", 0, "0"},        {"-0.004", 2, "0"}, // no negative zero
        {"999.995", 2, "1000"}, {"1.2", 6, "1.2"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(roundedDecimal(row.Text, row.Decimals), row.Rounded) << row.Text;
    }
}

TEST(Decimal, AQuotientIsRoundedOnceFromItsExactValue) {
    EXPECT_EQ(decimalQuotient("1", "3", 6), "0.333333");
    EXPECT_EQ(decimalQuotient("2", "3", 6), "0.666667");
    EXPECT_EQ(decimalQuotient("-2", "3", 6), "-0.666667");
    EXPECT_EQ(decimalQuotient("100", "-8", 0), "-13"); // -12.5
    EXPECT_EQ(decimalQuotient("0", "-8", 2), "0");
    EXPECT_EQ(decimalQuotient("121", "1.21", 6), "100");
    // A little below one half: rounded to two decimals first it would be 0.50, and then 1.
    EXPECT_EQ(decimalQuotient("1.49999999999999999999", "3", 0), "0");
    EXPECT_THROW(decimalQuotient("1", "0.00", 2), DecimalError);
}

TEST(Decimal, NumbersCompareByValueNotByText) {
    EXPECT_EQ(compareDecimals("10", "9"), 1);
    EXPECT_EQ(compareDecimals("-10", "9"), -1);
    EXPECT_EQ(compareDecimals("1.50", "1.5"), 0);
    EXPECT_EQ(compareDecimals("-0", "0"), 0);
    EXPECT_EQ(absoluteDecimal("-1.5"), "1.5");
    EXPECT_EQ(negatedDecimal("-1.5"), "1.5");
    EXPECT_EQ(negatedDecimal("0"), "0");
}

TEST(Decimal, AProductMayBeAsFarFromANumberAsIsSaid) {
    EXPECT_TRUE(isProductWithin("2.5", "4", "10", "0"));
    EXPECT_TRUE(isProductWithin("2.5", "4.01", "10", "0.025"));
    EXPECT_FALSE(isProductWithin("2.5", "4.01", "10", "0.0249"));
    EXPECT_TRUE(isProductWithin("2.5", "3.99", "10", "0.025")) << "on either side";
    EXPECT_FALSE(isProductWithin("2.5", "3.99", "10", "0.0249"));
    EXPECT_TRUE(isProductWithin("-1.5", "-2", "3", "0"));
    EXPECT_FALSE(isProductWithin("-1.5", "2", "3", "5.99"));
    EXPECT_TRUE(isProductWithin("0.000001", "0.000001", "0", "0.000000000001"));
    EXPECT_FALSE(isProductWithin("0.000001", "0.000001", "0", "0.0000000000009"));
    // Too long for the processor's integers.
    EXPECT_TRUE(
        isProductWithin("123456789012345.123456", "100000000000000.1", "12345678901234524691278901234.5123456", "0"));
    EXPECT_FALSE(
        isProductWithin("123456789012345.123456", "100000000000000.1", "12345678901234524691278901234.5123455", "0"));
    EXPECT_THROW(isProductWithin("1", "1", "x", "0"), DecimalError);
}

TEST(Decimal, FixedTextsKeepTheirZeros) {
    EXPECT_EQ(fixedDecimal("12.5", 2), "12.50");
    EXPECT_EQ(fixedDecimal("0", 2), "0.00");
    EXPECT_EQ(fixedDecimal("-0.004", 2), "0.00");
    EXPECT_EQ(fixedDecimal("-0.005", 2), "-0.01");
    EXPECT_EQ(fixedDecimal("1234.567", 0), "1235");
}

TEST(Decimal, DecimalsOutOfRangeAreRefused) {
    EXPECT_THROW(roundedDecimal("1", -1), DecimalError);
    EXPECT_THROW(roundedDecimal("1", c_MaximumDecimals + 1), DecimalError);
    EXPECT_THROW(decimalQuotient("1", "3", -1), DecimalError);
    EXPECT_THROW(fixedDecimal("1", -1), DecimalError);
}

} // namespace
} // namespace refhost
