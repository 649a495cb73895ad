#include "tests/database/Answers.h"
#include "tests/database/BothEngines.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/PriceColumns.h"
#include "tests/database/RandomCalls.h"
#include "tests/database/RandomFlows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace refhost {

namespace {

// The short form of tests/compare, for every run.
constexpr std::uint64_t c_Seed = 20'270'201;

TEST(EngineComparison, RandomCallsAreAnsweredAlike) {
    constexpr int c_Calls = 1'500;
    BothEngines both(addContractCompany);
    RandomCalls random(both.embedded(), c_Seed);

    for (int i = 0; i < c_Calls; ++i) {
        random.call(both);
    }
    both.compareContents();

    EXPECT_EQ(both.report(), "");
    EXPECT_GT(both.refused(), c_Calls / 10) << "the calls are too good to show anything";
    EXPECT_LT(both.refused(), c_Calls * 2 / 3) << "the calls are too bad to show anything";
}

TEST(EngineComparison, WholeFlowsLeaveTheSameLines) {
    constexpr int c_Flows = 25;
    BothEngines both(addContractCompany);
    RandomFlows random(both, c_Seed);

    for (int i = 0; i < c_Flows; ++i) {
        random.next();
    }
    both.compareContents();

    EXPECT_EQ(both.report(), "");
    EXPECT_GT(random.saved(), c_Flows / 3) << "too few saves are accepted to show anything";
}

TEST(EngineComparison, OfTwoBadNumbersTheFirstParameterIsNamed) {
    BothEngines both(addContractCompany);
    for (std::size_t first = 0; first < c_RecalculatedColumns.size(); ++first) {
        for (std::size_t second = first + 1; second < c_RecalculatedColumns.size(); ++second) {
            const std::string columns[] = {c_RecalculatedColumns[first], c_RecalculatedColumns[second]};
            if (columns[0] == "DPH" || columns[1] == "DPH") {
                continue; // a rate is a name
            }
            const Parameters parameters{
                {"a_FOCUS", "MNOZSTVI"}, {"a_" + columns[1], "druhé"}, {"a_" + columns[0], "první"}};
            for (Database* database : {&both.embedded(), &both.server()}) {
                EXPECT_THAT(answer(*database, "MELVARKEDITORDodakVypocetCen", parameters),
                            testing::AllOf(testing::StartsWith("ML001"), testing::HasSubstr("„první“")))
                    << columns[0] << " and " << columns[1];
            }
        }
    }
}

/// Else the comparison could not tell anything.
TEST(EngineComparison, ShowsADifference) {
    BothEngines both(addContractCompany);
    both.server().runScript("update SKLAD set NAZEV = 'Jiný sklad' where ID = 2");

    both.call({"MELVARKEDITORDodakInit", {}, true});
    both.call({"MELVARKEDITORDodObjInit", {}, true});
    both.compareContents();

    EXPECT_GE(both.differences(), 2U);
}

} // namespace

} // namespace refhost
