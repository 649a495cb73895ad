#include "refhost/CompanyDatabase.h"

#include <gtest/gtest.h>

namespace refhost {

namespace {

struct LabelCase {
    const char* name;
    const char* database;
    const char* label;
};

class DatabaseLabel : public testing::TestWithParam<LabelCase> {};

TEST_P(DatabaseLabel, IsWhatPeopleCallItAndNeverShowsAPassword) {
    CommandLine commandLine;
    commandLine.database = GetParam().database;
    EXPECT_EQ(databaseLabel(commandLine), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DatabaseLabel,
    testing::Values(
        LabelCase{"File", "sqlite:/data/company.sqlite", "/data/company.sqlite"},
        LabelCase{"Words", "postgresql:host=db dbname=company", "postgresql:host=db dbname=company"},
        LabelCase{"Password", "postgresql:host=db password=secret dbname=company", "postgresql:host=db dbname=company"},
        LabelCase{"SpacedPassword", "postgresql:dbname=company password = secret", "postgresql:dbname=company"},
        LabelCase{"QuotedPassword", R"(postgresql:password='my \' secret' dbname=company)",
                  "postgresql:dbname=company"},
        LabelCase{"Address", "postgresql://novakova:secret@db/company", "postgresql://novakova@db/company"},
        LabelCase{"AddressWithoutPassword", "postgresql://novakova@db/company", "postgresql://novakova@db/company"}),
    [](const auto& row) { return row.param.name; });

TEST(DatabaseLabel, OfTheOwnDatabaseIsItsFile) {
    EXPECT_EQ(databaseLabel({}), defaultDatabaseFile());
}

} // namespace

} // namespace refhost
