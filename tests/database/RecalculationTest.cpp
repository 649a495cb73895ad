#include "host/Exceptions.h"
#include "tests/database/Engines.h"
#include "tests/database/RecalculationCompany.h"
#include "tests/database/RecalculationLine.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

namespace refhost {

// How the test framework prints a parameter; it would print the bytes otherwise.
void PrintTo(const RecalculationCase& row, std::ostream* out) {
    *out << row.Name;
}
void PrintTo(const RecalculationRefusal& row, std::ostream* out) {
    *out << row.Name;
}

namespace {

/// A company with the VAT rates of the cases, one for each engine for the whole program.
class Company {
public:
    static Database& on(Engine engine) {
        static std::map<Engine, std::unique_ptr<Database>> companies;
        std::unique_ptr<Database>& database = companies[engine];
        if (!database) {
            database = newDatabase(engine);
            addRecalculationCompany(*database);
        }
        return *database;
    }
};

class Recalculation : public testing::TestWithParam<std::tuple<Engine, RecalculationCase>> {};
class RecalculationRefused : public testing::TestWithParam<std::tuple<Engine, RecalculationRefusal>> {};
class RecalculationOn : public testing::TestWithParam<Engine> {};

TEST_P(Recalculation, GivesTheLineWorkedOutByHand) {
    const auto& [engine, row] = GetParam();
    Database& database = Company::on(engine);
    switchLocalVat(database, row.Given.LocalVat);

    const TCallResult result = database.Execute(recalculationCall(row.Given));

    EXPECT_EQ(lineText(result), expectedText(row)) << row.Remark;
}

TEST_P(RecalculationRefused, SaysWhyInWords) {
    const auto& [engine, row] = GetParam();
    Database& database = Company::on(engine);
    switchLocalVat(database, row.Given.LocalVat);

    try {
        database.Execute(recalculationCall(row.Given));
        FAIL() << "not refused";
    } catch (const EDatabaseError& refusal) {
        EXPECT_EQ(refusal.Message(), row.Sentence);
        EXPECT_EQ(refusal.Code(), row.Code);
    }
}

TEST_P(RecalculationOn, ARefusedLineLeavesNothingToTheNextCall) {
    Database& database = Company::on(GetParam());
    switchLocalVat(database, false);
    const RecalculationInput refused{.Focus = "JEDNCENABBEZSLEVY", .Rate = "19 %", .UnitBefore = "100 - - -"};
    EXPECT_THROW(database.Execute(recalculationCall(refused)), EDatabaseError);

    const RecalculationCase empty{"", "", {.Rate = "0 %"}, {}};
    EXPECT_EQ(lineText(database.Execute(recalculationCall(empty.Given))), expectedText(empty));
}

TEST_P(RecalculationOn, FloatingPointCountsAsItsShortestDecimal) {
    Database& database = Company::on(GetParam());
    switchLocalVat(database, false);
    TProcedureCall call = recalculationCall({.Focus = "JEDNCENABBEZSLEVY", .Quantity = "1"});
    // The nearest binary number is 1.00499999999999989…, which alone would round to 1,00.
    std::ranges::find(call.Params, "a_JEDNCENABBEZSLEVY", &TDbParam::Name)->Value = 1.005;

    EXPECT_EQ(lineText(database.Execute(call)), "unit before: 1,005 0,21105 0 1,21605\n"
                                                "unit after: 1,005 0,21105 0 1,21605\n"
                                                "total after: 1,01 0,21 0,00 1,22\n"
                                                "total before: 1,01 0,21 0,00 1,22\n"
                                                "21 % | - | 1");
}

TEST_P(RecalculationOn, ParametersThatWereNotSetAreEmptyCells) {
    Database& database = Company::on(GetParam());
    const TProcedureCall call{"MELVARKEDITORDodakVypocetCen", {}, true};

    EXPECT_EQ(lineText(database.Execute(call)), "unit before: - - - -\nunit after: - - - -\n"
                                                "total after: - - - -\ntotal before: - - - -\n- | - | -");
}

TEST_P(RecalculationOn, PointAndCommaAreBothUnderstood) {
    Database& database = Company::on(GetParam());
    switchLocalVat(database, false);
    const TProcedureCall call = recalculationCall(
        {.Focus = "JEDNCENABBEZSLEVY", .Discount = "12.5", .Quantity = " 3,0 ", .UnitBefore = "1000.50 - - -"});

    // 1000,5·0,21 = 210,105; after 875,4375 with 183,841875; totals 3001,5 (630,315 up) and 2626,3125 (551,52510… up).
    EXPECT_EQ(lineText(database.Execute(call)), "unit before: 1000,5 210,105 0 1210,605\n"
                                                "unit after: 875,4375 183,841875 0 1059,279375\n"
                                                "total after: 2626,31 551,53 0,00 3177,84\n"
                                                "total before: 3001,50 630,32 0,00 3631,82\n"
                                                "21 % | 12,5 | 3");
}

constexpr Engine c_Engines[] = {Engine::SQLite, Engine::PostgreSQL};

std::vector<RecalculationCase> allCases() {
    std::vector<RecalculationCase> all;
    for (const auto cases : {focusCases(), truthCases(), discountCases(), amountCases()}) {
        all.insert(all.end(), cases.begin(), cases.end());
    }
    return all;
}

template <typename Row>
std::string nameOf(const testing::TestParamInfo<std::tuple<Engine, Row>>& info) {
    return engineName(std::get<0>(info.param)) + "_" + std::get<1>(info.param).Name;
}

std::string engineOf(const testing::TestParamInfo<Engine>& info) {
    return engineName(info.param);
}

INSTANTIATE_TEST_SUITE_P(Cases, Recalculation,
                         testing::Combine(testing::ValuesIn(c_Engines), testing::ValuesIn(allCases())),
                         nameOf<RecalculationCase>);
INSTANTIATE_TEST_SUITE_P(Cases, RecalculationRefused,
                         testing::Combine(testing::ValuesIn(c_Engines),
                                          testing::ValuesIn(refusalCases().begin(), refusalCases().end())),
                         nameOf<RecalculationRefusal>);
INSTANTIATE_TEST_SUITE_P(Engines, RecalculationOn, testing::ValuesIn(c_Engines), engineOf);

} // namespace
} // namespace refhost
