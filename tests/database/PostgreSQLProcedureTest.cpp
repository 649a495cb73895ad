#include "host/Exceptions.h"
#include "refhost/database/EmbeddedSql.h"
#include "tests/database/Engines.h"
#include "tests/database/PrivateServer.h"

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

} // namespace
} // namespace refhost
