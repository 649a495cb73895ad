#include "host/Exceptions.h"
#include "refhost/database/PostgreSQLSession.h"
#include "refhost/database/SqlScript.h"
#include "tests/database/Engines.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <gmock/gmock.h>
#include <map>
#include <regex>
#include <sstream>

namespace refhost {
namespace {

using Names = std::vector<std::string>;

/// A row of the page's table of procedures: parameters and result columns, each "NAME integer", "NAME boolean" or
/// "NAME".
struct PageRow {
    Names Takes;
    Names Outputs;
    std::vector<Names> Sets;
};

Names splitAt(const std::string& text, const std::string& separator) {
    Names parts;
    std::size_t start = 0;
    for (std::size_t end = text.find(separator); end != text.npos; end = text.find(separator, start)) {
        parts.push_back(text.substr(start, end - start));
        start = end + separator.size();
    }
    parts.push_back(text.substr(start));
    return parts;
}

/// The names between backticks with the type behind each, up to a remark, which follows a semicolon or a colon.
Names namesOf(const std::string& cell, const Names& prices, const std::string& prefix) {
    static const std::regex name("`([A-Za-z_0-9]+)`( integer| boolean)?|the prices");
    const std::string list = cell.substr(0, cell.find_first_of(";:"));
    Names names;
    for (auto found = std::sregex_iterator(list.begin(), list.end(), name); found != std::sregex_iterator(); ++found) {
        if (found->str() == "the prices") {
            std::ranges::transform(prices, std::back_inserter(names),
                                   [&](const std::string& price) { return prefix + price; });
        } else {
            names.push_back((*found)[1].str() + (*found)[2].str());
        }
    }
    return names;
}

/// The page, read into its tables.
class Page {
public:
    Page() {
        std::ifstream file(MELVARK_SOURCE_DIR "/docs/procedures.md");
        std::ostringstream text;
        text << file.rdbuf();
        const std::string page = text.str();
        readPrices(page);
        for (const std::string& line : splitAt(page, "\n")) {
            readLine(line);
        }
    }

    const std::map<std::string, PageRow>& procedures() const { return procedures_; }
    const std::map<std::string, Names>& views() const { return views_; }
    /// Settings of the server itself and their values.
    const std::map<std::string, std::string>& settings() const { return settings_; }

private:
    void readPrices(std::string page) {
        std::ranges::replace(page, '\n', ' ');
        const std::string_view intro = "*The prices* are sixteen columns:";
        const std::size_t start = page.find(intro) + intro.size();
        prices_ = namesOf(page.substr(start, page.find(';', start) - start), {}, "");
    }

    void readLine(const std::string& line) {
        static const std::regex name("`([A-Za-z_0-9]+)`");
        static const std::regex setting("^\\| `([a-z_]+)` \\| `([^`]+)`");
        const Names cells = splitAt(line, " | ");
        std::smatch found;
        if (!line.starts_with("| `") || !std::regex_search(cells[0], found, name)) {
            return;
        }
        if (std::smatch pair; std::regex_search(line, pair, setting)) {
            settings_[pair[1]] = pair[2];
        }
        if (cells.size() == 2 && found[1].str().ends_with("_V")) {
            views_[found[1]] = namesOf(cells[1], prices_, "");
        }
        if (cells.size() == 3) {
            procedures_["MELVARKEDITOR" + found[1].str()] = row(cells[1], cells[2]);
        }
    }

    PageRow row(const std::string& takes, const std::string& brings) const {
        PageRow row{namesOf(takes, prices_, "a_"), {}, {}};
        if (brings.starts_with("output ")) {
            row.Outputs = namesOf(brings, prices_, "");
        } else if (!brings.starts_with("nothing")) {
            for (const std::string& set : splitAt(brings, "; then ")) {
                row.Sets.push_back(namesOf(set, prices_, ""));
            }
        }
        return row;
    }

    Names prices_;
    std::map<std::string, PageRow> procedures_;
    std::map<std::string, Names> views_;
    std::map<std::string, std::string> settings_;
};

std::string withoutType(const std::string& name) {
    return name.substr(0, name.find(' '));
}

Names withoutTypes(Names names) {
    std::ranges::transform(names, names.begin(), withoutType);
    return names;
}

/// Parameters and columns are known by their names, so that their order is free.
Names sorted(Names names) {
    std::ranges::sort(names);
    return names;
}

std::string upperCase(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

/// "NAME" or "NAME integer" for each column that a statement of the server brings; nothing for "void".
Names columnsOf(PostgreSQLSession& session, const std::string& sql) {
    constexpr Oid c_Void = 2278;
    constexpr std::array<Oid, 3> c_Integers{20, 21, 23};
    const PostgreSQLResult described = session.describe(sql);
    Names columns;
    for (int i = 0; i < PQnfields(described.get()); ++i) {
        const Oid type = PQftype(described.get(), i);
        if (type != c_Void) {
            const bool isInteger = std::ranges::find(c_Integers, type) != c_Integers.end();
            columns.push_back(upperCase(PQfname(described.get(), i)) + (isInteger ? " integer" : ""));
        }
    }
    return columns;
}

PostgreSQLSession serverSession() {
    return PostgreSQLSession(newDatabaseUrl(Engine::PostgreSQL).substr(std::string("postgresql:").size()) +
                                 " user=postgres",
                             TFormatSettings{});
}

TEST(ProceduresPage, TellsEveryProcedureOfTheEmbeddedEngineAsItIs) {
    const Page page;
    std::size_t count = 0;
    for (const SqlFile& file : sqliteFiles()) {
        if (!file.Path.starts_with("procedures/")) {
            continue;
        }
        ++count;
        const SqlScript script = readSqlScript(file, sqliteFiles());
        ASSERT_TRUE(page.procedures().contains(script.Name)) << script.Name << " is missing";
        const PageRow& row = page.procedures().at(script.Name);
        Names inputs;
        for (const SqlScript::Parameter& input : script.Inputs) {
            inputs.push_back(input.Name + (input.Kind == ParameterKind::Integer   ? " integer"
                                           : input.Kind == ParameterKind::Boolean ? " boolean"
                                                                                  : ""));
        }
        EXPECT_EQ(sorted(row.Takes), sorted(inputs)) << script.Name;
        EXPECT_EQ(withoutTypes(row.Outputs), script.Outputs) << script.Name;
        ASSERT_EQ(row.Sets.size(), script.Results.size()) << script.Name;
        for (std::size_t set = 0; set < row.Sets.size(); ++set) {
            EXPECT_EQ(sorted(withoutTypes(row.Sets[set])), sorted(script.Results[set])) << script.Name;
        }
    }
    EXPECT_EQ(page.procedures().size(), count) << "the page has a procedure that is not there";
    EXPECT_EQ(count, 41U);
}

TEST(ProceduresPage, TellsTheServersTypesOfParametersAndColumns) {
    const Page page;
    PostgreSQLSession session = serverSession();
    for (const auto& [name, row] : page.procedures()) {
        const std::vector<TDbValue> parameters{AnsiString(name)};
        const PostgreSQLResult declared = session.execute(
            "select a.name, format_type(p.proargtypes[a.place - 1], null), p.prorettype = 'refcursor'::regtype "
            "from pg_proc p left join unnest(p.proargnames) with ordinality a(name, place) "
            "on coalesce(p.proargmodes[a.place], 'i') = 'i' "
            "where p.pronamespace = 'melvark'::regnamespace and p.proname = lower($1) order by a.place",
            parameters);
        ASSERT_GT(PQntuples(declared.get()), 0) << name;
        Names inputs;
        for (int i = 0; i < PQntuples(declared.get()) && PQgetisnull(declared.get(), i, 0) == 0; ++i) {
            const std::string type = PQgetvalue(declared.get(), i, 1);
            inputs.push_back(upperCase(PQgetvalue(declared.get(), i, 0)) + (type == "text" ? "" : " " + type));
        }
        Names told;
        std::ranges::transform(row.Takes, std::back_inserter(told), [](const std::string& parameter) {
            const std::string bare = withoutType(parameter);
            return upperCase(bare) + parameter.substr(bare.size());
        });
        EXPECT_EQ(sorted(told), sorted(inputs)) << name;

        const bool bringsCursors = std::string(PQgetvalue(declared.get(), 0, 2)) == "t";
        EXPECT_EQ(bringsCursors, row.Sets.size() > 1) << name;
        if (!bringsCursors) {
            Names expected = row.Sets.empty() ? row.Outputs : row.Sets.front();
            std::ranges::transform(expected, expected.begin(), [](const std::string& column) {
                const std::string bare = withoutType(column);
                return upperCase(bare) + column.substr(bare.size());
            });
            EXPECT_EQ(sorted(columnsOf(session, "select * from melvark." + name + "()")), sorted(expected)) << name;
        }
    }
}

TEST(ProceduresPage, TellsEveryViewThatTheHostReadsWithItsColumnsOnBothEngines) {
    const Page page;
    PostgreSQLSession session = serverSession();
    const auto embedded = newDatabase(Engine::SQLite);
    EXPECT_EQ(page.views().size(), 16U);
    for (const auto& [name, columns] : page.views()) {
        EXPECT_EQ(columnsOf(session, "select * from melvark." + name), columns) << name;
        EXPECT_EQ(embedded->Query("select * from " + name).Columns, withoutTypes(columns)) << name;
    }
}

TEST(ProceduresPage, TellsTheSettingsOfASession) {
    const Page page;
    PostgreSQLSession session = serverSession();
    EXPECT_EQ(page.settings().size(), 5U);
    for (const auto& [name, value] : page.settings()) {
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
