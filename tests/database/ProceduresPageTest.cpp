#include "host/AsciiCase.h"
#include "refhost/database/Databases.h"
#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/PostgreSQLSession.h"
#include "refhost/dbcheck/DatabaseContract.h"
#include "tests/database/Engines.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <iterator>
#include <map>

namespace refhost {
namespace {

using Names = std::vector<std::string>;

/// What is shipped, held against the page to the last name: a database of somebody else may have more than the page
/// tells (StructureCheckTest), ours may not.
class ProceduresPage : public testing::TestWithParam<Engine> {
protected:
    ProceduresPage() {
        const std::string url = newDatabaseUrl(GetParam());
        address_ = GetParam() == Engine::SQLite ? url : url + " user=postgres";
        inspector_ = inspectDatabase(address_, "novakova", TFormatSettings::Czech(), std::string());
    }

    /// "NAME", "NAME integer" or "NAME boolean" in upper case; of what a file declares the name alone when it knows no
    /// types. Parameters and columns are known by their names, so that their order is free.
    Names sorted(const DeclaredNames& declared, bool hasTypes) const {
        Names names;
        std::ranges::transform(declared, std::back_inserter(names), [&](const DeclaredName& name) {
            const bool isTold = hasTypes && name.Type != "text";
            return melvark::UpperAscii(name.Name) + (isTold ? " " + name.Type : "");
        });
        std::ranges::sort(names);
        return names;
    }

    bool tellsTypesOfResults() const { return GetParam() == Engine::PostgreSQL; }

    std::string address_;
    std::unique_ptr<DatabaseInspector> inspector_;
};

TEST_P(ProceduresPage, TellsEveryProcedureAsItIs) {
    const auto shipped =
        std::ranges::count_if(sqliteFiles(), [](const SqlFile& file) { return file.Path.starts_with("procedures/"); });
    EXPECT_EQ(shipped, 43);
    EXPECT_EQ(contract().Procedures.size(), 43U);
    for (const auto& [name, told] : contract().Procedures) {
        const auto found = inspector_->procedure(name);
        ASSERT_TRUE(found) << name;
        EXPECT_EQ(sorted(told.Inputs, true), sorted(found->Inputs, true)) << name;
        EXPECT_EQ(sorted(told.Outputs, tellsTypesOfResults()), sorted(found->Outputs, tellsTypesOfResults())) << name;
        if (!found->Sets) {
            EXPECT_GT(told.Sets->size(), 1U) << name << " brings its one set as a cursor";
            continue;
        }
        ASSERT_EQ(told.Sets->size(), found->Sets->size()) << name;
        for (std::size_t set = 0; set < told.Sets->size(); ++set) {
            EXPECT_EQ(sorted((*told.Sets)[set], tellsTypesOfResults()),
                      sorted((*found->Sets)[set], tellsTypesOfResults()))
                << name;
        }
    }
}

TEST_P(ProceduresPage, TellsEveryViewThatTheHostReadsWithItsColumns) {
    EXPECT_EQ(contract().Views.size(), 16U);
    for (const auto& [name, columns] : contract().Views) {
        EXPECT_EQ(sorted(columns, tellsTypesOfResults()),
                  sorted(inspector_->columns("select * from " + name), tellsTypesOfResults()))
            << name;
    }
}

INSTANTIATE_TEST_SUITE_P(OnBothEngines, ProceduresPage, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& each) { return engineName(each.param); });

/// The settings of the server itself that the page tells, with their values.
std::map<std::string, std::string> toldSettings() {
    std::map<std::string, std::string> settings;
    for (const auto& row : pageTable("setting")) {
        const Names names = codeOf(row[0]);
        if (names.size() == 1 && names.front().find_first_of(" .") == std::string::npos) {
            settings[names.front()] = codeOf(row[1]).front();
        }
    }
    return settings;
}

TEST(ProceduresPageSettings, AreThoseOfASession) {
    PostgreSQLSession session(newDatabaseUrl(Engine::PostgreSQL).substr(std::string("postgresql:").size()) +
                                  " user=postgres",
                              TFormatSettings{});
    const PostgreSQLResult set = session.execute("select lower(name) from pg_settings where source = 'session'");
    EXPECT_GT(PQntuples(set.get()), 0);
    for (int row = 0; row < PQntuples(set.get()); ++row) {
        EXPECT_TRUE(toldSettings().contains(PQgetvalue(set.get(), row, 0))) << PQgetvalue(set.get(), row, 0);
    }
    EXPECT_EQ(toldSettings().size(), 9U);
    for (const auto& [name, value] : toldSettings()) {
        const std::vector<TDbValue> parameters{AnsiString(name), AnsiString(value)};
        const bool isTime = name.ends_with("_timeout"); // 60s and 1min are the same one
        const PostgreSQLResult same = session.execute(isTime ? "select current_setting($1)::interval = $2::interval"
                                                             : "select current_setting($1) = $2",
                                                      parameters);
        EXPECT_STREQ(PQgetvalue(same.get(), 0, 0), "t") << name;
    }
}

} // namespace
} // namespace refhost
