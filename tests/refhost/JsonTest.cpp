#include "refhost/Json.h"

#include "host/Exceptions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace refhost {

namespace {

using testing::HasSubstr;

TEST(Json, EscapesWhatAStringMustNotHoldRaw) {
    EXPECT_EQ(jsonString("say \"no\" \\ \n\r\t\x01"), R"("say \"no\" \\ \n\r\t\u0001")");
}

TEST(Json, LeavesOtherScriptsAsTheyAre) {
    EXPECT_EQ(jsonString("Železo 鉄"), "\"Železo 鉄\"");
}

TEST(Json, ReplacesBytesThatAreNoText) {
    EXPECT_EQ(jsonString("a\xff"
                         "b"),
              "\"a\uFFFDb\"");
}

TEST(Json, WritesEveryKindOfValue) {
    EXPECT_EQ(jsonValue(std::monostate{}), "null");
    EXPECT_EQ(jsonValue(std::int64_t{-7}), "-7");
    EXPECT_EQ(jsonValue(true), "true");
    EXPECT_EQ(jsonValue(false), "false");
    EXPECT_EQ(jsonValue(1.5), "1.5");
    EXPECT_EQ(jsonValue(AnsiString("7")), "\"7\"");
    // JSON has no such numbers.
    EXPECT_EQ(jsonValue(std::numeric_limits<double>::infinity()), "null");
}

TEST(Json, KeepsMembersInTheOrderInWhichTheyCame) {
    EXPECT_EQ(JsonObject().add("z", 1).add("a", "x").addJson("m", "[]").text(), R"({"z":1,"a":"x","m":[]})");
    EXPECT_EQ(JsonObject().text(), "{}");
}

TEST(Json, ReadsABatchCallWithEveryKindOfValue) {
    const TProcedureCall call = readBatchCall(R"({"call":"X","params":{"a":null,"b":7,"c":1.5,"d":true,"e":"7"}})", "");

    EXPECT_EQ(call.Name, "X");
    EXPECT_TRUE(call.Open);
    ASSERT_EQ(call.Params.size(), 5u);
    EXPECT_EQ(call.Params[0].Name, "a");
    EXPECT_EQ(call.Params[0].Value, TDbValue());
    EXPECT_EQ(call.Params[1].Value, TDbValue(std::int64_t{7}));
    EXPECT_EQ(call.Params[2].Value, TDbValue(1.5));
    EXPECT_EQ(call.Params[3].Value, TDbValue(true));
    EXPECT_EQ(call.Params[4].Value, TDbValue(AnsiString("7")));
}

TEST(Json, ABatchCallMayLeaveOutParametersAndTheProcedureNamedBeside) {
    const TProcedureCall call = readBatchCall("{}", "X");

    EXPECT_EQ(call.Name, "X");
    EXPECT_TRUE(call.Params.empty());
}

struct BadLine {
    const char* name;
    const char* line;
    const char* part;
};

class BadBatchLine : public testing::TestWithParam<BadLine> {};

TEST_P(BadBatchLine, IsRefusedInWords) {
    try {
        readBatchCall(GetParam().line, "");
        FAIL() << "accepted";
    } catch (const Exception& error) {
        EXPECT_THAT(error.Message(), HasSubstr(GetParam().part));
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, BadBatchLine,
                         testing::Values(BadLine{"NoJson", "call X", "no JSON object"},
                                         BadLine{"Array", "[]", "no JSON object"},
                                         BadLine{"NoProcedure", R"({"params":{}})", "no procedure"},
                                         BadLine{"ParamsAreAList", R"({"call":"X","params":[1]})", "\"params\""},
                                         BadLine{"NestedValue", R"({"call":"X","params":{"a_A":[1]}})", "a_A"}),
                         [](const auto& row) { return row.param.name; });

} // namespace

} // namespace refhost
