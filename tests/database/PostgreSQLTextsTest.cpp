#include "tests/database/ServerCompany.h"
#include "tests/support/ValueTextCases.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace refhost {
namespace {

std::string sqlText(std::string_view text) {
    std::string literal = "'";
    for (const char c : text) {
        literal += c == '\'' ? "''" : std::string(1, c);
    }
    return literal + "'";
}

/// The value as text; "-" for null, the code for a refusal.
std::string valueOf(Database& database, const std::string& expression) {
    std::string value;
    const EDatabaseError error = failure([&] { value = rowsOf(database, "select (" + expression + ")::text"); });
    return error.Code().empty() ? value : error.Code();
}

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

TEST(PostgreSQLTexts, NumbersAreReadByTheRuleOfTheProgram) {
    const ServerCompany company;
    const auto database = company.open();
    for (const valuetext::NumberCase& row : valuetext::numberCases) {
        std::string expected = isBlank(row.text) ? "-" : std::string(row.decimal.value_or("ML001"));
        if (row.text.starts_with("123456789012345678,")) {
            expected = "ML005"; // more digits than the tables hold
        }
        EXPECT_EQ(valueOf(*database, "trim_scale(parse_number(" + sqlText(row.text) + "))"), expected)
            << row.text << ": " << row.remark;
    }
}

TEST(PostgreSQLTexts, IntegersAreReadByTheRuleOfTheProgram) {
    const ServerCompany company;
    const auto database = company.open();
    for (const valuetext::IntegerCase& row : valuetext::integerCases) {
        EXPECT_EQ(valueOf(*database, "as_integer(" + sqlText(row.text) + ")"),
                  row.value ? std::to_string(*row.value) : "-")
            << row.text << ": " << row.remark;
    }
}

TEST(PostgreSQLTexts, DatesAreReadByTheRuleOfTheProgram) {
    const ServerCompany company;
    const auto database = company.open();
    for (const valuetext::DateCase& row : valuetext::czechDateCases) {
        std::string expected = isBlank(row.text) ? "-" : "ML002";
        if (row.date) {
            char iso[16];
            std::snprintf(iso, sizeof iso, "%04d-%02u-%02u", static_cast<int>(row.date->year()),
                          static_cast<unsigned>(row.date->month()), static_cast<unsigned>(row.date->day()));
            expected = iso;
        }
        EXPECT_EQ(valueOf(*database, "parse_date(" + sqlText(row.text) + ")"), expected)
            << row.text << ": " << row.remark;
    }
}

struct TextCase {
    const char* Expression;
    const char* Czech;
    const char* English;
};

TEST(PostgreSQLTexts, ValuesAreWrittenInTheFormatsOfTheSession) {
    const ServerCompany company;
    const auto czech = company.open();
    const TextCase cases[] = {
        {"number_text(12.500000)", "12,5", "12.5"},
        {"number_text(-0.000)", "0", "0"},
        {"number_text(1000000)", "1000000", "1000000"},
        {"total_text(12.5)", "12,50", "12.50"},
        {"total_text(-0.005)", "-0,01", "-0.01"},
        {"total_text(0)", "0,00", "0.00"},
        {"date_text('2027-02-01')", "1.2.2027", "1/2/2027"},
        {"date_text('0009-12-31')", "31.12.0009", "31/12/0009"},
        {"moment_text('2027-02-01 03:04:05')", "1.2.2027 03:04:05", "1/2/2027 03:04:05"},
        {"number_text(null)", "-", "-"},
        {"date_text(null)", "-", "-"},
        {"moment_text(null)", "-", "-"},
    };
    const auto english = company.openWith(TFormatSettings::English());
    for (const TextCase& row : cases) {
        EXPECT_EQ(valueOf(*czech, row.Expression), row.Czech) << row.Expression;
        EXPECT_EQ(valueOf(*english, row.Expression), row.English) << row.Expression;
    }
}

TEST(PostgreSQLTexts, MomentsAreReadInTheLocalesOrderOrAsIso) {
    const ServerCompany company;
    const auto database = company.open();
    const auto moment = [&](std::string_view text) {
        return valueOf(*database, "parse_moment(" + sqlText(text) + ")");
    };
    EXPECT_EQ(moment("1.2.2027 3:04:05"), "2027-02-01 03:04:05");
    EXPECT_EQ(moment(" 1. 2. 2027  23:59 "), "2027-02-01 23:59:00");
    EXPECT_EQ(moment("1.2.2027"), "2027-02-01 00:00:00");
    EXPECT_EQ(moment("2027-02-01 03:04:05"), "2027-02-01 03:04:05");
    for (const char* text : {"1.2.27", "1.2.2027 24:00", "1.2.2027 3", "1.2.2027 3:60", "1.2.2027 3:04:05:06",
                             "31.4.2027", "2027-02-01T03:04:05", "1.2.202703:04", "nan"}) {
        EXPECT_EQ(moment(text), "ML002") << text;
    }
    EXPECT_EQ(moment(" "), "-");
}

TEST(PostgreSQLTexts, LongTextsAreCutInSentences) {
    const ServerCompany company;
    const auto database = company.open();
    const std::string sixty(60, 'x');
    EXPECT_EQ(valueOf(*database, "shown(" + sqlText(sixty) + ")"), sixty);
    EXPECT_EQ(valueOf(*database, "shown(" + sqlText("ř" + sixty) + ")"), "ř" + sixty.substr(1) + "…");
}

} // namespace
} // namespace refhost
