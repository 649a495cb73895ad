#include "host/Exceptions.h"
#include "refhost/database/EmbeddedSql.h"
#include "tests/database/Engines.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/ServerCompany.h"

#include <gtest/gtest.h>
#include <vector>

namespace refhost {

namespace {

std::vector<std::string> procedures() {
    std::vector<std::string> names;
    for (const SqlFile& file : postgresqlFiles()) {
        if (file.Path.starts_with("procedures/")) {
            names.emplace_back(sqlObjectName(file));
        }
    }
    return names;
}

class EveryProcedure : public testing::TestWithParam<std::string> {};

TEST_P(EveryProcedure, WithoutParametersAnswersOrRefusesInWords) {
    const auto database = newDatabase(Engine::PostgreSQL);
    try {
        database->Execute({GetParam(), {}, true});
    } catch (const EDatabaseError& error) {
        EXPECT_NE(error.Code(), "ML930") << error.Details();
        EXPECT_EQ(error.Code().substr(0, 3), "ML0") << error.Details();
    }
}

std::string nameOf(const testing::TestParamInfo<std::string>& info) {
    return info.param;
}

INSTANTIATE_TEST_SUITE_P(PostgreSQL, EveryProcedure, testing::ValuesIn(procedures()), nameOf);

// The server keeps a plan after five calls of a session. Made for sources of usual length, it took eight times as long
// for 100,000 lines.
TEST(PostgreSQLProcedure, EachFillIsPlannedForItsSource) {
    const auto database = newDatabase(Engine::PostgreSQL);
    EXPECT_EQ(rowsOf(*database, "select count(*), count(*) filter (where 'plan_cache_mode=force_custom_plan' = any "
                                "(proconfig)) from pg_proc where proname like '%getpolozkyby%'"),
              "7,7");
}

TEST(PostgreSQLProcedure, ADetailThatIsARowAndNothingElseSaysWhatARefusalIsAbout) {
    const ServerCompany company;
    const auto database = company.open();
    database->runScript("create function melvark.MELVARKEDITORTestRefuse(a_CODE text default null,"
                        "                                                a_DETAIL text default null)"
                        "returns void language plpgsql as $$ begin"
                        "    raise exception using errcode = a_CODE, message = 'Tento řádek ne.', detail = a_DETAIL;"
                        "end $$");
    const auto rowOf = [&](const char* code, const char* detail) {
        const auto row =
            failure([&] {
                database->Execute(serverCall("MELVARKEDITORTestRefuse", {{"a_CODE", code}, {"a_DETAIL", detail}}));
            }).Row();
        return row ? std::to_string(*row) : "none";
    };
    EXPECT_EQ(rowOf("ML501", "row 0"), "0");
    EXPECT_EQ(rowOf("ML501", "row 1999"), "1999");
    for (const char* detail : {"", "row", "row ", "row -1", "row 2 of 3", "row two", "row 99999999999", "2"}) {
        EXPECT_EQ(rowOf("ML501", detail), "none") << detail;
    }
    EXPECT_EQ(rowOf("P0001", "row 2"), "none") << "not a refusal";
}

} // namespace
} // namespace refhost
