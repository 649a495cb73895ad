#include "host/Format.h"

#include "tests/host/FakeHost.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

AnsiString czech(std::string_view format, std::initializer_list<TFormatArg> arguments) {
    return Format(format, arguments, TFormatSettings::Czech());
}

AnsiString refusal(std::string_view format, std::initializer_list<TFormatArg> arguments) {
    return messageOf<EConvertError>([&] { czech(format, arguments); });
}

struct FormatCase {
    const char* format;
    std::vector<TFormatArg> arguments;
    AnsiString text;
    const char* remark;
};

void expectCases(const std::vector<FormatCase>& cases, const TFormatSettings& settings = TFormatSettings::Czech()) {
    for (const FormatCase& c : cases) {
        EXPECT_EQ(Format(c.format, c.arguments, settings), c.text) << c.format << ' ' << c.remark;
    }
}

TEST(Format, WritesTexts) {
    expectCases({
        {"", {}, "", "nothing"},
        {"Uložit", {}, "Uložit", "no specifier"},
        {"Hodnota %s není celé číslo", {"7a"}, "Hodnota 7a není celé číslo", ""},
        {"%s%s", {"a", "b"}, "ab", "in order"},
        {"%s", {""}, "", ""},
        {"%s", {"%d"}, "%d", "an argument is not a format"},
        {"100 %%", {}, "100 %", ""},
        {"%%s %s", {"a"}, "%s a", "a percent sign is no specifier"},
        {"%s", {"a", "b"}, "a", "arguments left over are ignored"},
        {"%5s|", {"abc"}, "  abc|", ""},
        {"%-5s|", {"abc"}, "abc  |", ""},
        {"%2s|", {"abc"}, "abc|", "a width never cuts"},
        {"%.2s|", {"abc"}, "ab|", "a precision cuts"},
        {"%.0s|", {"abc"}, "|", ""},
        {"%.s|", {"abc"}, "|", "a precision without digits is 0"},
        {"%.9s|", {"abc"}, "abc|", ""},
        {"%-5.2s|", {"abc"}, "ab   |", ""},
    });
}

TEST(Format, CountsCharactersAndNotBytes) {
    expectCases({
        {"%6s|", {"žluť"}, "  žluť|", "two of four letters have two bytes"},
        {"%-6s|", {"žluť"}, "žluť  |", ""},
        {"%.1s|", {"žluť"}, "ž|", "no half of a letter"},
        {"%.3s|", {"žluť"}, "žlu|", ""},
        {"%.4s|", {"žluť"}, "žluť|", ""},
        {"%3s|", {"😀"}, "  😀|", "four bytes"},
        {"%.1s|", {"😀a"}, "😀|", ""},
        {"%3s|", {"\u20AC"}, "  \u20AC|", "three bytes"},
    });
}

TEST(Format, WritesIntegers) {
    expectCases({
        {"%d", {0}, "0", ""},
        {"%d", {-7}, "-7", ""},
        {"%d", {std::numeric_limits<std::int64_t>::min()}, "-9223372036854775808", ""},
        {"%5d|", {42}, "   42|", ""},
        {"%-5d|", {42}, "42   |", ""},
        {"%.3d", {7}, "007", "least digits"},
        {"%.3d", {-7}, "-007", "the sign is no digit"},
        {"%.3d", {1234}, "1234", ""},
        {"%6.3d|", {-7}, "  -007|", ""},
        {"%.0d", {0}, "0", ""},
    });
}

TEST(Format, WritesNumbersRoundedAsAPersonRounds) {
    expectCases({
        {"%f", {12.5}, "12,50", "two decimals unless told"},
        {"%f", {2.675}, "2,68", "the half of the decimal text, not of the double below it"},
        {"%f", {-2.675}, "-2,68", "away from zero"},
        {"%f", {1.005}, "1,01", ""},
        {"%f", {2.665}, "2,67", ""},
        {"%f", {9.995}, "10,00", ""},
        {"%f", {-0.001}, "0,00", "zero has no sign"},
        {"%.0f", {2.5}, "3", "no separator without decimals"},
        {"%.0f", {0.4}, "0", ""},
        {"%.1f", {0.25}, "0,3", ""},
        {"%.3f", {7}, "7,000", "an integer"},
        {"%.4f", {0.1}, "0,1000", "no binary noise"},
        {"%.20f", {0.1}, "0,10000000000000000000", ""},
        {"%.0f", {std::int64_t{9007199254740993}}, "9007199254740993", "an integer that no double holds"},
        {"%f", {1e15}, "1000000000000000,00", "no groups"},
        {"%8.1f|", {-2.25}, "    -2,3|", ""},
        {"%-8.1f|", {2.25}, "2,3     |", ""},
    });
    expectCases({{"%f", {1234.5}, "1234.50", ""}}, TFormatSettings::English());
}

TEST(Format, WritesMoneyWithGroupsAndCurrency) {
    expectCases({
        {"%m", {0}, "0,00\u00A0Kč", ""},
        {"%m", {999.5}, "999,50\u00A0Kč", ""},
        {"%m", {1234.5}, "1\u00A0234,50\u00A0Kč", "no-break spaces"},
        {"%m", {1234567.891}, "1\u00A0234\u00A0567,89\u00A0Kč", ""},
        {"%m", {-1234.5}, "-1\u00A0234,50\u00A0Kč", "the minus first"},
        {"%m", {-100}, "-100,00\u00A0Kč", "no group of the sign alone"},
        {"%m", {999.995}, "1\u00A0000,00\u00A0Kč", "grouped after rounding"},
        {"%m", {1.005}, "1,01\u00A0Kč", ""},
        {"%m", {-0.004}, "0,00\u00A0Kč", "zero has no sign"},
        {"%.0m", {1234.5}, "1\u00A0235\u00A0Kč", ""},
        {"%12m|", {5}, "     5,00\u00A0Kč|", "12 characters wide"},
        {"%-12m|", {5}, "5,00\u00A0Kč     |", ""},
    });
    expectCases({{"%m", {-1234567.5}, "-1,234,567.50\u00A0CZK", ""}}, TFormatSettings::English());
}

TEST(Format, PlacesTheCurrencyAsTheLocaleDoes) {
    TFormatSettings settings = TFormatSettings::English();
    settings.CurrencyAfterNumber = false;
    expectCases({{"%m", {-5.5}, "-CZK\u00A05.50", "the minus first here too"}}, settings);
    settings.CurrencyString = "";
    expectCases({{"%m", {1234.5}, "1,234.50", "no currency, no blank"}}, settings);
    settings.CurrencyDecimals = 0;
    expectCases({{"%m", {1234.5}, "1,235", "the locale's decimals"}}, settings);
}

TEST(Format, RefusesAnUnknownSpecifier) {
    EXPECT_EQ(refusal("Hodnota %x", {1}), "Text „Hodnota %x“ nelze sestavit: neznámá značka %x.");
    EXPECT_EQ(refusal("%č", {1}), "Text „%č“ nelze sestavit: neznámá značka %č.");
    EXPECT_EQ(refusal("% s", {"a"}), "Text „% s“ nelze sestavit: neznámá značka % .");
    EXPECT_THROW(czech("%5%", {}), EConvertError);
    EXPECT_THROW(czech("%--5s", {"a"}), EConvertError);
    EXPECT_THROW(czech("%*s", {5, "a"}), EConvertError);
    EXPECT_THROW(czech("%n", {5}), EConvertError);
    EXPECT_THROW(czech(std::string_view("%\0", 2), {5}), EConvertError);
}

TEST(Format, RefusesACutSpecifier) {
    const AnsiString reason = "značka na konci není úplná.";
    EXPECT_EQ(refusal("100 %", {}), "Text „100 %“ nelze sestavit: " + reason);
    EXPECT_THROW(czech("%-", {"a"}), EConvertError);
    EXPECT_THROW(czech("%5", {"a"}), EConvertError);
    EXPECT_THROW(czech("%5.", {"a"}), EConvertError);
    EXPECT_THROW(czech("%%%", {"a"}), EConvertError);
}

TEST(Format, RefusesAMissingArgument) {
    EXPECT_EQ(refusal("%s a %s", {"x"}), "Text „%s a %s“ nelze sestavit: chybí 2. hodnota.");
}

TEST(Format, RefusesAnArgumentOfTheWrongType) {
    EXPECT_EQ(refusal("%d", {"7"}), "Text „%d“ nelze sestavit: 1. hodnota není celé číslo.");
    EXPECT_EQ(refusal("%s%d", {"a", 1.0}), "Text „%s%d“ nelze sestavit: 2. hodnota není celé číslo.");
    EXPECT_EQ(refusal("%s", {7}), "Text „%s“ nelze sestavit: 1. hodnota není text.");
    EXPECT_EQ(refusal("%f", {"7"}), "Text „%f“ nelze sestavit: 1. hodnota není číslo.");
    EXPECT_EQ(refusal("%m", {"7"}), "Text „%m“ nelze sestavit: 1. hodnota není číslo.");
}

TEST(Format, RefusesNumbersThatAreNotFinite) {
    EXPECT_EQ(refusal("%f", {std::numeric_limits<double>::quiet_NaN()}),
              "Text „%f“ nelze sestavit: 1. hodnota není číslo.");
    EXPECT_THROW(czech("%m", {std::numeric_limits<double>::infinity()}), EConvertError);
}

TEST(Format, BoundsWidthAndPrecision) {
    EXPECT_EQ(czech("%1000s", {"a"}), AnsiString(999, ' ') + "a");
    EXPECT_EQ(refusal("%1001s", {"a"}), "Text „%1001s“ nelze sestavit: šířka nebo přesnost je příliš velká.");
    EXPECT_THROW(czech("%99999999999999999999999999s", {"a"}), EConvertError);
    EXPECT_THROW(czech("%.2147483648f", {1.0}), EConvertError);
    EXPECT_EQ(czech("%.1000d", {5}), AnsiString(999, '0') + "5");
}

TEST(Format, TakesTheLargestNumbers) {
    EXPECT_EQ(czech("%.0f", {1e300}), "1" + AnsiString(300, '0'));
}

TEST(Format, TakesANullPointerAsAnEmptyText) {
    const char* nothing = nullptr;
    EXPECT_EQ(czech("[%s]", {nothing}), "[]");
}

TEST(Format, SurvivesTextsThatAreNoUtf8) {
    EXPECT_EQ(czech("%.1s|", {"\xC5"}), "\xC5|");
    EXPECT_EQ(czech("%3s|", {"\x80\x80"}), "   \x80\x80|");
}

} // namespace
