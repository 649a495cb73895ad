#include "tests/database/SQLiteFile.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

/// The value of an expression, or the code of its refusal.
std::string value(Database& database, const std::string& expression) {
    try {
        return rowsText(database, "select " + expression);
    } catch (const EDatabaseError& error) {
        return error.Code();
    }
}

struct Case {
    const char* Expression;
    const char* Value;
};

void expectValues(std::span<const Case> cases) {
    const SQLiteFile file;
    const auto database = file.open();
    for (const Case& c : cases) {
        EXPECT_EQ(value(*database, c.Expression), c.Value) << c.Expression;
    }
}

TEST(SQLiteFunctions, NumbersOfPeopleAreRead) {
    const Case cases[] = {
        {"parse_number('1,5')", "1.5"},
        {"parse_number('1.50')", "1.5"},
        {"parse_number(' 7 ')", "7"},
        {"parse_number('-0,0')", "0"},
        {"parse_number(null)", "-"},
        {"parse_number('  ')", "-"}, // an emptied cell is no number, not a wrong one
        {"parse_number('1e3')", "ML001"},
        {"parse_number('nan')", "ML001"},
        {"parse_number('１２')", "ML001"},
        {"parse_number('1 000')", "ML001"},
        {"parse_number('123456789012345')", "123456789012345"},
        {"parse_number('1234567890123456')", "ML005"},
        {"parse_number('0000001234567890123')", "1234567890123"}, // leading zeros are no digits of the number
        {"parse_number('1,123456', 'Množství', 6)", "1.123456"},
        {"parse_number('1,1234560', 'Množství', 6)", "1.123456"}, // a needless zero is no decimal
        {"parse_number('1,1234567', 'Množství', 6)", "ML006"},
    };
    expectValues(cases);
}

TEST(SQLiteFunctions, ARefusedNumberIsNamedByItsLabelAndShortened) {
    const SQLiteFile file;
    const auto database = file.open();
    try {
        database->Query("select parse_number('" + std::string(10000, 'x') + "', 'Sleva')");
        FAIL() << "a text of 10,000 letters is no number";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Message(), "Sleva „" + std::string(60, 'x') +
                                       "…“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou čárku.");
    }
}

TEST(SQLiteFunctions, DatesAndMomentsOfPeopleAreRead) {
    const Case cases[] = {
        {"parse_date('1.2.2027')", "2027-02-01"},
        {"parse_date('1. 2. 2027')", "2027-02-01"},
        {"parse_date('31.4.2027')", "ML002"},
        {"parse_date('2027-02-01')", "ML002"}, // a date is typed in the user's order
        {"parse_date('')", "-"},
        {"parse_moment('1.2.2027 8:05:09')", "2027-02-01 08:05:09"},
        {"parse_moment('1.2.2027')", "2027-02-01 00:00:00"},
        {"parse_moment('dnes')", "ML002"},
        {"date_text('2027-02-01')", "1.2.2027"},
        {"moment_text('2027-02-01 08:05:09')", "1.2.2027 08:05:09"},
        {"date_text(null)", "-"},
    };
    expectValues(cases);
}

TEST(SQLiteFunctions, NumbersAreWrittenForPeople) {
    const Case cases[] = {
        {"number_text('12.50')", "12,5"}, {"number_text('1234567')", "1234567"}, {"total_text('12.5')", "12,50"},
        {"total_text('-0.1')", "-0,10"},  {"total_text('7')", "7,00"},           {"total_text(null)", "-"},
    };
    expectValues(cases);
}

TEST(SQLiteFunctions, MonthsAreCountedBackToADayThatExists) {
    const Case cases[] = {
        {"months_before('2026-03-31', 1)", "2026-02-28"},
        {"months_before('2024-03-31', 1)", "2024-02-29"}, // a leap year
        {"months_before('2026-03-10 08:30:00', 12)", "2025-03-10"},
        {"months_before('2026-01-15', 1)", "2025-12-15"},
        {"months_before('2026-03-31', 0)", "2026-03-31"},
    };
    expectValues(cases);
}

TEST(SQLiteFunctions, TextsAreTrimmedAndReadAsIntegers) {
    const Case cases[] = {
        {"typed('  Mléko ')", "Mléko"}, {"typed('   ')", "-"},
        {"typed(null)", "-"},           {"as_integer('12')", "12"},
        {"as_integer('1e3')", "-"},     {"as_integer('3000000000')", "-"},
        {"as_integer('-5')", "-5"},     {"current_user_name()", "novakova"},
    };
    expectValues(cases);
}

TEST(SQLiteFunctions, LettersOfAllScriptsHaveTwoCases) {
    const Case cases[] = {
        {"lower('ČERSTVÉ Řízky')", "čerstvé řízky"},
        {"upper('žluťoučký kůň')", "ŽLUŤOUČKÝ KŮŇ"},
        {"lower('ΣΑΜΟΣ')", "σαμος"},
    };
    expectValues(cases);
}

TEST(SQLiteFunctions, NamesSortByCzechRules) {
    const SQLiteFile file;
    const auto database = file.open();
    EXPECT_EQ(rowsText(*database, "with N (X) as (values ('ibis'), ('chléb'), ('cukr'), ('hrách'), ('čaj'), ('Cukr'), "
                                  "('auto')) select X from N order by X collate CZECH"),
              "auto|cukr|Cukr|čaj|hrách|chléb|ibis");
}

TEST(SQLiteFunctions, OnlyEqualTextsAreEqual) {
    // The zero-width joiner has no weight in the collation: only the bytes tell the two texts apart.
    const Case cases[] = {
        {"'ab' = ('a' || char(8205) || 'b') collate CZECH", "0"},
        {"'ab' = 'ab' collate CZECH", "1"},
        {"'á' = 'a' collate CZECH", "0"},
        {"'' < 'a' collate CZECH", "1"},
    };
    expectValues(cases);
}

TEST(SQLiteFunctions, ARefusalOfAFunctionInsideAFunctionKeepsItsCode) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    EXPECT_EQ(value(*database, "V_MELVARKEDITORDodObjCheckZdrojDodavky(1, -1, -1, -1, '1.2.2027', 'rok')"), "ML070");
    EXPECT_EQ(value(*database, "V_MELVARKEDITORDodObjCheckZdrojDodavky(1, -1, -1, -1, 'zítra', '12')"), "ML002");
}

} // namespace
} // namespace refhost
