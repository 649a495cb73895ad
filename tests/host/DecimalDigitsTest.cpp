#include "host/DecimalDigits.h"

#include "host/Exceptions.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

AnsiString plain(const melvark::DecimalDigits& number) {
    return (number.Negative ? "-" : "") + number.Whole + "|" + number.Fraction;
}

struct DigitsCase {
    double value;
    AnsiString digits;
    const char* remark;
};

TEST(DecimalDigits, AreTheShortestOfTheValue) {
    const DigitsCase cases[] = {
        {0.0, "0|", ""},
        {-0.0, "0|", "zero has no sign"},
        {7.0, "7|", ""},
        {-12.5, "-12|5", ""},
        {0.1, "0|1", "not 0.1000000000000000055"},
        {2.675, "2|675", "not 2.67499999999999982"},
        {100.0, "100|", ""},
        {1.05, "1|05", ""},
        {0.001, "0|001", ""},
        {1e23, "1" + AnsiString(23, '0') + "|", "not 99999999999999991611392"},
        {1e-7, "0|0000001", ""},
        {123456789.125, "123456789|125", ""},
        {5e-324, "0|" + AnsiString(323, '0') + "5", "the smallest double"},
    };
    for (const DigitsCase& c : cases) {
        EXPECT_EQ(plain(melvark::ToDecimalDigits(c.value)), c.digits) << c.remark;
    }
}

TEST(DecimalDigits, TakeIntegersExactly) {
    EXPECT_EQ(plain(melvark::ToDecimalDigits(std::int64_t{9007199254740993})), "9007199254740993|");
    EXPECT_EQ(plain(melvark::ToDecimalDigits(std::numeric_limits<std::int64_t>::min())), "-9223372036854775808|");
    EXPECT_EQ(plain(melvark::ToDecimalDigits(std::int64_t{0})), "0|");
}

TEST(DecimalDigits, RefuseWhatIsNotFinite) {
    EXPECT_THROW(melvark::ToDecimalDigits(std::numeric_limits<double>::quiet_NaN()), EConvertError);
    EXPECT_THROW(melvark::ToDecimalDigits(-std::numeric_limits<double>::infinity()), EConvertError);
}

struct RoundingCase {
    double value;
    std::size_t decimals;
    const char* digits;
    const char* remark;
};

TEST(DecimalDigits, RoundHalfAwayFromZero) {
    const RoundingCase cases[] = {
        {2.674, 2, "2|67", ""},
        {2.675, 2, "2|68", "the double is a little less than the half"},
        {-2.675, 2, "-2|68", "away from zero"},
        {1.005, 2, "1|01", ""},
        {0.5, 0, "1|", ""},
        {1.5, 0, "2|", ""},
        {2.5, 0, "3|", "not to the even neighbour"},
        {0.49, 0, "0|", "only the first dropped digit decides"},
        {9.995, 2, "10|00", "the carry makes a digit"},
        {99.5, 0, "100|", ""},
        {0.095, 2, "0|10", ""},
        {-0.004, 2, "0|00", "what rounds to zero has no sign"},
        {-0.005, 2, "-0|01", ""},
        {7.0, 3, "7|000", "filled with zeros"},
        {7.5, 3, "7|500", ""},
    };
    for (const RoundingCase& c : cases) {
        EXPECT_EQ(plain(melvark::Rounded(melvark::ToDecimalDigits(c.value), c.decimals)), c.digits)
            << c.value << ' ' << c.remark;
    }
}

} // namespace
