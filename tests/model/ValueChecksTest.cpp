#include "editwin/model/ValueChecks.h"

#include "editwin/model/EditExceptions.h"
#include "tests/support/RecordingHost.h"

#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <span>

namespace {

using namespace std::chrono_literals;

const TFormatSettings czech = TFormatSettings::Czech();
const TFormatSettings english = TFormatSettings::English();
constexpr auto today = 2027y / std::chrono::February / 1;

/// A typed text and the text kept of it; null when it is refused.
struct CheckRow {
    const char* remark;
    AnsiString typed;
    const char* kept;
};

class ValueChecks : public testing::Test {
protected:
    void expectRows(std::span<const CheckRow> rows, const std::function<AnsiString(std::string_view)>& check) {
        for (const CheckRow& row : rows) {
            SCOPED_TRACE(row.remark);
            if (row.kept == nullptr) {
                EXPECT_THROW(check(row.typed), EBadValue);
            } else {
                EXPECT_EQ(check(row.typed), row.kept);
            }
        }
    }

    AnsiString refusalOf(const std::function<AnsiString()>& check) {
        try {
            return "kept: " + check();
        } catch (const EBadValue& refusal) {
            return refusal.Message();
        }
    }

    RecordingHost host_;
    TScopedHost installed_{host_};
};

TEST_F(ValueChecks, IntegerIsAnOptionalSignAndDigits) {
    const CheckRow rows[] = {
        {"blanks around it are dropped", "  7 ", "7"},
        {"no-break spaces are blanks",
         "\u00A0"
         "7"
         "\u00A0",
         "7"},
        {"a cleared cell", "", ""},
        {"nothing but blanks", "   ", ""},
        {"a sign", "-12", "-12"},
        {"the text is kept as typed, plus and zeros included", "+007", "+007"},
        {"the greatest", "2147483647", "2147483647"},
        {"one more", "2147483648", nullptr},
        {"the least", "-2147483648", "-2147483648"},
        {"a decimal number", "1,5", nullptr},
        {"groups", "1 000", nullptr},
        {"an exponent", "1e3", nullptr},
        {"another base", "0x10", nullptr},
        {"a sign alone", "-", nullptr},
        {"full-width digits", "１２", nullptr},
        {"a word", "sedm", nullptr},
    };
    expectRows(rows, [](std::string_view typed) { return melvark::CheckInt(typed); });
}

TEST_F(ValueChecks, DecimalNumberTakesPointOrCommaAndKeepsTheComma) {
    const CheckRow rows[] = {
        {"the locale's separator", "12,5", "12,5"},
        {"the point becomes a comma", "12.5", "12,5"},
        {"blanks around it are dropped", " 12.5 ", "12,5"},
        {"a cleared cell", "", ""},
        {"nothing but blanks", " ", ""},
        {"the text is not written anew", "+007.50", "+007,50"},
        {"no digit before the separator", ".5", ",5"},
        {"an integer", "3", "3"},
        {"groups and decimals give two separators", "1.234,5", nullptr},
        {"groups by blanks", "1 234,5", nullptr},
        {"a separator alone", ".", nullptr},
        {"an exponent", "1e3", nullptr},
        {"no number", "nan", nullptr},
        {"infinite", "inf", nullptr},
        {"a word", "pět", nullptr},
    };
    expectRows(rows, [](std::string_view typed) { return melvark::CheckFloat(typed, czech); });
}

TEST_F(ValueChecks, DecimalNumberKeepsThePointWhereThatSeparates) {
    const CheckRow rows[] = {
        {"the locale's separator", "12.5", "12.5"},
        {"the comma becomes a point", "12,5", "12.5"},
        {"a comma is no group", "1,234.5", nullptr},
    };
    expectRows(rows, [](std::string_view typed) { return melvark::CheckFloat(typed, english); });
}

TEST_F(ValueChecks, DateIsDayMonthAndYearInTheLocalesOrder) {
    const CheckRow rows[] = {
        {"short", "1.2.2027", "1.2.2027"},
        {"with zeros, kept as typed", "01.02.2027", "01.02.2027"},
        {"blanks around the dots stay, those around the whole go", " 1. 2. 2027 ", "1. 2. 2027"},
        {"a two-digit year is kept so", "1.2.27", "1.2.27"},
        {"a cleared cell", "", ""},
        {"nothing but blanks", "  ", ""},
        {"a leap day", "29.2.2028", "29.2.2028"},
        {"no leap day that year", "29.2.2027", nullptr},
        {"a day that April has not", "31.4.2027", nullptr},
        {"no year", "1.2.", nullptr},
        {"another separator", "1/2/2027", nullptr},
        {"an integer", "20270201", nullptr},
        {"a word", "zítra", nullptr},
    };
    expectRows(rows, [](std::string_view typed) { return melvark::CheckDate(typed, czech, today); });
    EXPECT_EQ(melvark::CheckDate("31/1/2027", english, today), "31/1/2027");
}

TEST_F(ValueChecks, RefusalNamesTheValueAsItWasTyped) {
    EXPECT_EQ(refusalOf([] { return melvark::CheckInt(" sedm  "); }), "Hodnota  sedm   není celé číslo");
    EXPECT_EQ(refusalOf([] { return melvark::CheckFloat(" 1.234,5", czech); }),
              "Hodnota  1.234,5 není desetinné číslo");
    EXPECT_EQ(refusalOf([] { return melvark::CheckDate("31.4.2027 ", czech, today); }),
              "Hodnota 31.4.2027  není datum");
}

TEST_F(ValueChecks, RefusalSpeaksTheUsersLanguage) {
    host_.translations = {
        {R"(KORDAN30\MELVARKEDITOR\NOTINTEGERVALUE)", "%s is not an integer"},
        {R"(KORDAN30\MELVARKEDITOR\NOTFLOATVALUE)", "%s is not a number"},
        {R"(KORDAN30\MELVARKEDITOR\NOTDATEVALUE)", "%s is not a date"},
    };
    EXPECT_EQ(refusalOf([] { return melvark::CheckInt("x"); }), "x is not an integer");
    EXPECT_EQ(refusalOf([] { return melvark::CheckFloat("x", english); }), "x is not a number");
    EXPECT_EQ(refusalOf([] { return melvark::CheckDate("x", english, today); }), "x is not a date");
}

TEST_F(ValueChecks, TypedPercentSignsAreNoFormat) {
    EXPECT_EQ(refusalOf([] { return melvark::CheckInt("5 %s %%"); }), "Hodnota 5 %s %% není celé číslo");
}

} // namespace
