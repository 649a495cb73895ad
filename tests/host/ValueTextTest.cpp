#include "host/ValueText.h"

#include "host/Exceptions.h"
#include "tests/support/ValueTextCases.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <ios>
#include <limits>
#include <random>

namespace {

using namespace std::chrono_literals;
using valuetext::ymd;

TDateTime moment(std::chrono::year_month_day date, std::chrono::seconds time) {
    return TDateTime(std::chrono::local_days(date)) + time;
}

TEST(TrimText, TakesBlanksFromBothEndsOnly) {
    EXPECT_EQ(TrimText(" \t\r\n\u00A0a b\u00A0 \n"), "a b");
    EXPECT_EQ(TrimText("   "), "");
    EXPECT_EQ(TrimText(""), "");
}

TEST(TrimText, DoesNotCutCharactersThatEndLikeANoBreakSpace) {
    // "à" is C3 A0: its last byte is that of the no-break space C2 A0.
    EXPECT_EQ(TrimText("à"), "à");
    EXPECT_EQ(TrimText("\xA0"), "\xA0");
}

TEST(TextToFloat, FollowsTheTableWithAComma) {
    for (const auto& c : valuetext::numberCases) {
        EXPECT_EQ(TextToFloat(c.text, TFormatSettings::Czech()), c.czech) << '"' << c.text << "\" " << c.remark;
    }
}

TEST(TextToFloat, FollowsTheTableWithAPoint) {
    for (const auto& c : valuetext::numberCases) {
        EXPECT_EQ(TextToFloat(c.text, TFormatSettings::English()), c.english) << '"' << c.text << "\" " << c.remark;
    }
}

TEST(TextToFloat, RefusesWhatADoubleCannotHold) {
    EXPECT_EQ(TextToFloat(AnsiString(400, '9'), TFormatSettings::Czech()), std::nullopt);
    EXPECT_EQ(TextToFloat("-" + AnsiString(400, '9') + ",5", TFormatSettings::Czech()), std::nullopt);
}

TEST(TextToFloat, TakesALongTextOfASmallValue) {
    EXPECT_EQ(TextToFloat("0," + AnsiString(400, '0') + "1", TFormatSettings::Czech()), 0.0);
    EXPECT_EQ(TextToFloat(AnsiString(400, '0') + "7", TFormatSettings::Czech()), 7.0);
}

TEST(TextToFloat, DoesNotStopAtANullCharacter) {
    EXPECT_EQ(TextToFloat(std::string_view("7\0", 2), TFormatSettings::Czech()), std::nullopt);
}

TEST(TextToDecimalText, FollowsTheTable) {
    for (const auto& c : valuetext::numberCases) {
        const std::optional<AnsiString> expected = c.decimal ? std::optional<AnsiString>(*c.decimal) : std::nullopt;
        EXPECT_EQ(TextToDecimalText(c.text), expected) << '"' << c.text << "\" " << c.remark;
    }
}

TEST(TextToInt, FollowsTheTable) {
    for (const auto& c : valuetext::integerCases) {
        EXPECT_EQ(TextToInt(c.text), c.value) << '"' << c.text << "\" " << c.remark;
    }
}

TEST(TextToDate, FollowsTheTableInCzech) {
    for (const auto& c : valuetext::czechDateCases) {
        EXPECT_EQ(TextToDate(c.text, TFormatSettings::Czech(), valuetext::centuryToday), c.date)
            << '"' << c.text << "\" " << c.remark;
    }
}

TEST(TextToDate, ReadsTwoDigitYearsInASlidingCentury) {
    for (const auto& c : valuetext::centuryCases) {
        EXPECT_EQ(TextToDate(c.text, TFormatSettings::Czech(), valuetext::centuryToday), c.date)
            << '"' << c.text << "\" " << c.remark;
    }
}

TEST(TextToDate, TheCenturySlidesWithToday) {
    const TFormatSettings czech = TFormatSettings::Czech();
    EXPECT_EQ(TextToDate("1.1.77", czech, ymd(2027, 12, 31)), ymd(1977, 1, 1));
    EXPECT_EQ(TextToDate("1.1.77", czech, ymd(2028, 1, 1)), ymd(2077, 1, 1));
    EXPECT_EQ(TextToDate("1.1.99", czech, ymd(2050, 1, 1)), ymd(2099, 1, 1));
    EXPECT_EQ(TextToDate("1.1.00", czech, ymd(2050, 1, 1)), ymd(2000, 1, 1));
}

TEST(TextToDate, FollowsTheOrderAndSeparatorOfTheLocale) {
    TFormatSettings settings = TFormatSettings::English();
    EXPECT_EQ(TextToDate("1/2/2027", settings, valuetext::centuryToday), ymd(2027, 2, 1));
    EXPECT_EQ(TextToDate("1.2.2027", settings, valuetext::centuryToday), std::nullopt);
    settings.DateOrder = TDateOrder::MonthDayYear;
    EXPECT_EQ(TextToDate("1/22/27", settings, valuetext::centuryToday), ymd(2027, 1, 22));
    const TFormatSettings iso;
    EXPECT_EQ(TextToDate("2027-2-01", iso, valuetext::centuryToday), ymd(2027, 2, 1));
    EXPECT_EQ(TextToDate("27-2-1", iso, valuetext::centuryToday), ymd(2027, 2, 1));
}

struct MomentCase {
    const char* text;
    std::optional<TDateTime> value;
    const char* remark;
};

TEST(TextToDateTime, ReadsStoredMoments) {
    const MomentCase cases[] = {
        {"1.2.2027", moment(ymd(2027, 2, 1), 0s), "midnight"},
        {"1.2.2027 13:45", moment(ymd(2027, 2, 1), 13h + 45min), ""},
        {"1.2.2027 13:45:07", moment(ymd(2027, 2, 1), 13h + 45min + 7s), ""},
        {"1. 2. 2027  7:05", moment(ymd(2027, 2, 1), 7h + 5min), "blanks"},
        {" 1.2.2027 23:59:59 ", moment(ymd(2027, 2, 1), 24h - 1s), ""},
        {"2027-02-01", moment(ymd(2027, 2, 1), 0s), "ISO order in every locale"},
        {"2027-02-01 13:45:00", moment(ymd(2027, 2, 1), 13h + 45min), ""},
        {"1.2.27", std::nullopt, "a stored year is never guessed"},
        {"1.2.2027 24:00", std::nullopt, ""},
        {"1.2.2027 12:60", std::nullopt, ""},
        {"1.2.2027 12:00:60", std::nullopt, ""},
        {"1.2.2027 12", std::nullopt, "hours alone"},
        {"1.2.2027 12:", std::nullopt, ""},
        {"1.2.2027 12:00:00:00", std::nullopt, ""},
        {"1.2.2027 12:00 h", std::nullopt, ""},
        {"1.2.202712:00", std::nullopt, "no blank between"},
        {"2027-02-01T12:00", std::nullopt, "no blank between"},
        {"31.4.2027 12:00", std::nullopt, ""},
        {"12:00", std::nullopt, "no date"},
        {"", std::nullopt, ""},
    };
    for (const MomentCase& c : cases) {
        EXPECT_EQ(TextToDateTime(c.text, TFormatSettings::Czech()), c.value) << '"' << c.text << "\" " << c.remark;
    }
}

TEST(FloatToText, WritesTheShortestTextWithTheLocalesSeparator) {
    const TFormatSettings czech = TFormatSettings::Czech();
    EXPECT_EQ(FloatToText(12.5, czech), "12,5");
    EXPECT_EQ(FloatToText(12.5, TFormatSettings::English()), "12.5");
    EXPECT_EQ(FloatToText(-0.1, czech), "-0,1");
    EXPECT_EQ(FloatToText(1234567.0, czech), "1234567");
    EXPECT_EQ(FloatToText(-0.0, czech), "0");
    EXPECT_EQ(FloatToText(1e21, czech), "1" + AnsiString(21, '0'));
    EXPECT_EQ(FloatToText(1e-7, czech), "0,0000001");
}

TEST(FloatToText, RefusesWhatIsNotFinite) {
    EXPECT_THROW(FloatToText(std::numeric_limits<double>::infinity(), TFormatSettings::Czech()), EConvertError);
}

TEST(FloatToText, ReadsBackAsTheSameValue) {
    std::mt19937_64 random(20270201);
    const TFormatSettings czech = TFormatSettings::Czech();
    for (int i = 0; i < 2000; ++i) {
        const double value = std::bit_cast<double>(random());
        if (std::isfinite(value)) {
            ASSERT_EQ(TextToFloat(FloatToText(value, czech), czech), value) << std::hexfloat << value;
        }
    }
}

TEST(DateToText, WritesNoLeadingZerosAndAFourDigitYear) {
    EXPECT_EQ(DateToText(ymd(2027, 2, 1), TFormatSettings::Czech()), "1.2.2027");
    EXPECT_EQ(DateToText(ymd(2027, 12, 31), TFormatSettings::English()), "31/12/2027");
    EXPECT_EQ(DateToText(ymd(77, 2, 1), TFormatSettings::Czech()), "1.2.0077");
    EXPECT_EQ(DateToText(ymd(2027, 2, 1), TFormatSettings()), "2027-2-1");
    TFormatSettings monthFirst = TFormatSettings::English();
    monthFirst.DateOrder = TDateOrder::MonthDayYear;
    EXPECT_EQ(DateToText(ymd(2027, 2, 1), monthFirst), "2/1/2027");
}

TEST(DateTimeToText, AlwaysShowsTheTime) {
    const TFormatSettings czech = TFormatSettings::Czech();
    EXPECT_EQ(DateTimeToText(moment(ymd(2027, 2, 1), 0s), czech), "1.2.2027 00:00:00");
    EXPECT_EQ(DateTimeToText(moment(ymd(2027, 2, 1), 9h + 5min + 7s), czech), "1.2.2027 09:05:07");
    EXPECT_EQ(DateTimeToText(moment(ymd(1969, 12, 31), 24h - 1s), czech), "31.12.1969 23:59:59");
}

} // namespace
