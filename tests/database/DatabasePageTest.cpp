#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/RefusalTable.h"
#include "tests/database/VersionOne.h"

#include <fstream>
#include <gmock/gmock.h>
#include <regex>
#include <set>
#include <sstream>

namespace refhost {
namespace {

using testing::ContainerEq;

using Words = std::set<std::string>;

/// The page for administrators, a part of it at a time.
class DatabasePage : public testing::Test {
protected:
    /// What the pattern finds in the first cell of each row of the tables below a heading.
    static Words inFirstCells(const std::string& heading, const std::regex& pattern) {
        Words found;
        for (const std::string& row : rowsBelow(heading)) {
            const std::string cell = row.substr(0, row.find(" | "));
            found.insert(std::sregex_token_iterator(cell.begin(), cell.end(), pattern), std::sregex_token_iterator());
        }
        return found;
    }

    static std::vector<std::string> rowsBelow(const std::string& heading) {
        std::ifstream page(MELVARK_SOURCE_DIR "/docs/database.md");
        std::vector<std::string> rows;
        bool isBelow = false;
        for (std::string line; std::getline(page, line);) {
            if (line.starts_with("#")) {
                isBelow = line.ends_with("# " + heading);
            } else if (isBelow && line.starts_with("| ")) {
                rows.push_back(line);
            }
        }
        return rows;
    }
};

TEST_F(DatabasePage, TellsEveryCodeOfTheRefusals) {
    Words codes;
    for (const RefusalRow& row : refusalRows()) {
        codes.emplace(row.Key.substr(0, std::string_view("ML000").size()));
    }
    EXPECT_THAT(inFirstCells("Refusals", std::regex("ML[0-9]{3}")), ContainerEq(codes));
}

TEST_F(DatabasePage, TellsEveryTableOfBothEngines) {
    Words told;
    for (const std::string& name : inFirstCells("Tables", std::regex("`[A-Z0-9]+`"))) {
        told.insert(name.substr(1, name.size() - 2));
    }
    told.insert("GLOBALPARAM"); // in the section about parameters
    const auto embedded = BareConnection(newDatabaseUrl(Engine::SQLite))
                              .rows("select name from sqlite_schema where type = 'table' and name not like 'sqlite%'");
    EXPECT_THAT(told, ContainerEq(Words(embedded.begin(), embedded.end())));

    const auto server =
        BareConnection(newDatabaseUrl(Engine::PostgreSQL) + " user=postgres")
            .rows("select upper(relname) from pg_class where relnamespace = 'melvark'::regnamespace and relkind = 'r'");
    told.erase("RAZENI"); // on SQLite only, as the page says
    EXPECT_THAT(told, ContainerEq(Words(server.begin(), server.end())));
}

TEST_F(DatabasePage, TellsEveryParameterThatTheSqlAsksFor) {
    static const std::regex row("^\\| `([A-Z]+)` \\| `([A-Z]+)` \\|");
    Words told;
    for (const std::string& line : rowsBelow("Parameters of the company")) {
        std::smatch found;
        if (std::regex_search(line, found, row)) {
            told.insert(found[1].str() + "." + found[2].str());
        }
    }
    static const std::regex asked(
        "V_GetGlobalParam\\('([A-Z]+)', *'([A-Z]+)'\\)|\\.SEKCE = '([A-Z]+)' and [A-Z]+\\.NAZEV = '([A-Z]+)'");
    for (const auto files : {sqliteFiles(), postgresqlFiles()}) {
        Words parameters;
        for (const SqlFile& file : files) {
            const std::string sql(file.Text);
            for (auto found = std::sregex_iterator(sql.begin(), sql.end(), asked); found != std::sregex_iterator();
                 ++found) {
                const std::smatch& pair = *found;
                parameters.insert(pair[1].str() + pair[3].str() + "." + pair[2].str() + pair[4].str());
            }
        }
        EXPECT_THAT(told, ContainerEq(parameters));
    }
}

} // namespace
} // namespace refhost
