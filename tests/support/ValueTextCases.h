#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

/// Which texts are numbers, integers and dates. One table for the rules in C++ and for every database engine, which
/// read the same texts as parameters. The expected values are worked out by hand from the rules of host/ValueText.h.
namespace valuetext {

struct NumberCase {
    std::string_view text;
    std::optional<std::string_view> decimal; ///< As a database parameter, in canonical form; nothing when refused.
    std::optional<double> czech;             ///< Typed where the separator is a comma.
    std::optional<double> english;           ///< Typed where the separator is a point.
    std::string_view remark;
};

inline constexpr std::nullopt_t refused = std::nullopt;

inline constexpr NumberCase numberCases[] = {
    {"7", "7", 7.0, 7.0, ""},
    {"007", "7", 7.0, 7.0, "zeros in front mean nothing"},
    {"+7", "7", 7.0, 7.0, ""},
    {"-7", "-7", -7.0, -7.0, ""},
    {"12,5", "12.5", 12.5, refused, "the locale's separator only where a locale applies"},
    {"12.5", "12.5", refused, 12.5, ""},
    {"-0,50", "-0.5", -0.5, refused, ""},
    {",5", "0.5", 0.5, refused, "a digit on one side is enough"},
    {"5,", "5", 5.0, refused, "a digit on one side is enough"},
    {".5", "0.5", refused, 0.5, ""},
    {"-.5", "-0.5", refused, -0.5, ""},
    {"0", "0", 0.0, 0.0, ""},
    {"-0", "0", 0.0, 0.0, "zero has no sign"},
    {"-0,00", "0", 0.0, refused, "zero has no sign"},
    {"1,10", "1.1", 1.1, refused, ""},
    {"100", "100", 100.0, 100.0, "zeros before the separator count"},
    {"123456789012345678,25", "123456789012345678.25", 123456789012345678.25, refused,
     "more digits than a double holds"},
    {"  7 ", "7", 7.0, 7.0, "blanks around"},
    {"\t7\r\n", "7", 7.0, 7.0, "a tab and a line break around"},
    {"\u00A07\u00A0", "7", 7.0, 7.0, "no-break spaces around, as pasted from a formatted document"},
    {"", refused, refused, refused, "nothing is no number; callers decide what an empty text means"},
    {"   ", refused, refused, refused, "blanks only"},
    {",", refused, refused, refused, "a separator without digits"},
    {".", refused, refused, refused, ""},
    {"-", refused, refused, refused, "a sign without digits"},
    {"+", refused, refused, refused, ""},
    {"-,", refused, refused, refused, ""},
    {"--1", refused, refused, refused, ""},
    {"+-1", refused, refused, refused, ""},
    {"- 1", refused, refused, refused, "a blank behind the sign"},
    {"1-", refused, refused, refused, "a sign behind"},
    {"1 000", refused, refused, refused, "groups are not typed"},
    {"1\u00A0000", refused, refused, refused, "groups as people's texts show them"},
    {"1\u202F000", refused, refused, refused, "groups with a narrow no-break space"},
    {"1.234,5", refused, refused, refused, "groups with a point"},
    {"1,234.5", refused, refused, refused, "groups with a comma"},
    {"1,2,3", refused, refused, refused, "two separators"},
    {"1..2", refused, refused, refused, ""},
    {"1e3", refused, refused, refused, "an exponent"},
    {"1E3", refused, refused, refused, ""},
    {"nan", refused, refused, refused, ""},
    {"NaN", refused, refused, refused, ""},
    {"inf", refused, refused, refused, ""},
    {"-Infinity", refused, refused, refused, ""},
    {"0x10", refused, refused, refused, "hexadecimal"},
    {"1_000", refused, refused, refused, ""},
    {"１２", refused, refused, refused, "full-width digits"},
    {"١٢", refused, refused, refused, "Arabic digits"},
    {"\u221212", refused, refused, refused, "a typographic minus"},
    {"½", refused, refused, refused, ""},
    {"12 Kč", refused, refused, refused, "a unit behind"},
    {"5%", refused, refused, refused, ""},
    {"abc", refused, refused, refused, ""},
    {"1\n2", refused, refused, refused, "two lines"},
};

struct IntegerCase {
    std::string_view text;
    std::optional<std::int32_t> value;
    std::string_view remark;
};

inline constexpr IntegerCase integerCases[] = {
    {"7", 7, ""},
    {"  7 ", 7, "blanks around"},
    {"\u00A07", 7, "a no-break space in front"},
    {"+7", 7, ""},
    {"-7", -7, ""},
    {"0", 0, ""},
    {"-0", 0, ""},
    {"007", 7, ""},
    {"000000000000000000007", 7, "many digits, a small value"},
    {"2147483647", 2147483647, "the largest"},
    {"-2147483648", -2147483647 - 1, "the smallest"},
    {"2147483648", refused, "one too large"},
    {"-2147483649", refused, "one too small"},
    {"99999999999999999999", refused, "too large for 64 bits too"},
    {"", refused, "nothing is no integer; callers decide what an empty text means"},
    {" ", refused, ""},
    {"-", refused, ""},
    {"+", refused, ""},
    {"+-7", refused, ""},
    {"--7", refused, ""},
    {"- 7", refused, ""},
    {"7,0", refused, "a decimal number, even a whole one"},
    {"7.", refused, ""},
    {"1 000", refused, "groups"},
    {"1\u00A0000", refused, "groups"},
    {"1.000", refused, "groups"},
    {"1e3", refused, ""},
    {"0x10", refused, ""},
    {"$10", refused, "hexadecimal of another notation"},
    {"１２", refused, "full-width digits"},
    {"nan", refused, ""},
    {"7a", refused, ""},
};

struct DateCase {
    std::string_view text;
    std::optional<std::chrono::year_month_day> date;
    std::string_view remark;
};

constexpr std::chrono::year_month_day ymd(int year, unsigned month, unsigned day) {
    return {std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
}

/// Czech dates that mean the same on every day until the end of 2076.
inline constexpr DateCase czechDateCases[] = {
    {"1.2.2027", ymd(2027, 2, 1), ""},
    {"01.02.2027", ymd(2027, 2, 1), ""},
    {"1.02.2027", ymd(2027, 2, 1), "one and two digits mixed"},
    {"31.12.1999", ymd(1999, 12, 31), ""},
    {"1. 2. 2027", ymd(2027, 2, 1), "as Czech typography writes it"},
    {"1 . 2 . 2027", ymd(2027, 2, 1), "blanks on both sides of the dots"},
    {"1.\u00A02.\u00A02027", ymd(2027, 2, 1), "no-break spaces behind the dots"},
    {"  1.2.2027\t", ymd(2027, 2, 1), "blanks around"},
    {"1.2.27", ymd(2027, 2, 1), "a two-digit year"},
    {"1. 2. 27", ymd(2027, 2, 1), ""},
    {"29.2.2028", ymd(2028, 2, 29), "a leap year"},
    {"29.2.2000", ymd(2000, 2, 29), "a leap century"},
    {"1.1.0001", ymd(1, 1, 1), "the first day of the calendar"},
    {"31.12.9999", ymd(9999, 12, 31), "the last one"},
    {"29.2.2027", refused, "no leap year"},
    {"29.2.1900", refused, "no leap century"},
    {"31.4.2027", refused, "April has 30 days"},
    {"0.2.2027", refused, ""},
    {"32.1.2027", refused, ""},
    {"1.0.2027", refused, ""},
    {"1.13.2027", refused, ""},
    {"2.13.2027", refused, "month and day are not exchanged"},
    {"1.1.0000", refused, "there is no year 0"},
    {"31.4.", refused, "no year"},
    {"1.2.", refused, "no year"},
    {"1.2", refused, "no year"},
    {"1.2.2027.", refused, "a dot behind"},
    {"1.2.7", refused, "a one-digit year"},
    {"1.2.027", refused, "a three-digit year"},
    {"1.2.02027", refused, "a five-digit year"},
    {"001.2.2027", refused, "a three-digit day"},
    {"1.002.2027", refused, "a three-digit month"},
    {"1..2027", refused, "no month"},
    {".2.2027", refused, "no day"},
    {"1 2 2027", refused, "no dots"},
    {"1 1.2.2027", refused, "a blank inside the day"},
    {"1.2.20 27", refused, "a blank inside the year"},
    {"1/2/2027", refused, "another locale's separator"},
    {"1-2-2027", refused, ""},
    {"1,2,2027", refused, ""},
    {"2027-02-01", refused, "not the locale's order"},
    {"2027.2.1", refused, "not the locale's order"},
    {"-1.2.2027", refused, "a sign"},
    {"1.2.-2027", refused, ""},
    {"1.2.+27", refused, ""},
    {"1.2.2027 10:00", refused, "a time of day"},
    {"1. února 2027", refused, "a month's name"},
    {"1.II.2027", refused, "a Roman month"},
    {"１.２.２０２７", refused, "full-width digits"},
    {"01022027", refused, ""},
    {"dnes", refused, ""},
    {"", refused, "nothing is no date; callers decide what an empty text means"},
    {"  ", refused, ""},
};

/// The day on which the two-digit years below are read: the window goes from 1977 to 2076.
inline constexpr std::chrono::year_month_day centuryToday = ymd(2027, 2, 1);

inline constexpr DateCase centuryCases[] = {
    {"1.2.27", ymd(2027, 2, 1), "this year"},
    {"31.12.76", ymd(2076, 12, 31), "the last year of the window"},
    {"1.1.77", ymd(1977, 1, 1), "the first year of the window, though its day is long past"},
    {"1.1.99", ymd(1999, 1, 1), ""},
    {"1.1.00", ymd(2000, 1, 1), ""},
    {"29.2.00", ymd(2000, 2, 29), "a leap year only in the right century"},
    {"1.1.0077", ymd(77, 1, 1), "four digits are taken as they are"},
};

} // namespace valuetext
