#include "tests/database/ServerCompany.h"

#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace refhost {
namespace {

constexpr const char* c_OtherPath = "set search_path = pg_catalog";

std::set<std::string> texts(Database& database, const std::string& sql) {
    std::set<std::string> all;
    for (const std::vector<TDbValue>& row : database.Query(sql).Rows) {
        all.insert(std::get<AnsiString>(row.front()));
    }
    return all;
}

/// The words of a body that could be names of the schema: those without anything before a point.
std::set<std::string> unqualifiedWords(const std::string& body) {
    static const std::regex word("(^|[^a-zA-Z0-9_.])([a-zA-Z_][a-zA-Z0-9_]*)");
    std::set<std::string> words;
    for (std::sregex_iterator match(body.begin(), body.end(), word), end; match != end; ++match) {
        std::string lower = (*match)[2];
        for (char& c : lower) {
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
        words.insert(lower);
    }
    return words;
}

TEST(PostgreSQLSearchPath, AClerkReadsEveryScreenFromAnyClient) {
    const ServerCompany company;
    const auto owner = company.open();
    owner->runScript("insert into DODOBJEDNAVKA (VZOR, CISLO, OBJEDNANIDC, DODVID, SKLDID) "
                     "values (0, 'OBJ1', '2026-03-01 10:00:00', 1, 1);"
                     "insert into DODAKPOL (DODKID, PORADI, SKLPID, SKLDID, MNOZSTVI, TRVANLIVOST) "
                     "values (1, 1, 1, 1, 2, '2026-04-01')");
    const auto clerk = company.openAs("dvorak", "melvark_clerk");
    clerk->runScript(c_OtherPath);
    for (const std::string& view :
         texts(*owner, "select relname::text from pg_class where relnamespace = 'melvark'::regnamespace "
                       "and has_table_privilege('melvark_clerk', oid, 'select')")) {
        EXPECT_EQ(failure([&] { clerk->Query("select * from melvark." + view); }).Message(), "no failure") << view;
    }
    EXPECT_EQ(rowsOf(*clerk, "select CISLO, OBJEDNANIDC from melvark.SCREEN_DODOBJ_V"), "OBJ1,1.3.2026 10:00:00");
}

TEST(PostgreSQLSearchPath, APriceIsInsertedFromAnyClient) {
    const ServerCompany company;
    const auto owner = company.open();
    owner->runScript(c_OtherPath);
    const std::string price =
        "insert into melvark.DODCENIK (DODVID, SKLPID, PLATIOD, CENA) values (1, 1, '2026-01-01', 7)";

    owner->runScript(price);

    EXPECT_EQ(failure([&] { owner->runScript(price); }).Code(), "ML901");
}

TEST(PostgreSQLSearchPath, FunctionsAnswerAnyClient) {
    const ServerCompany company;
    const auto owner = company.open();
    owner->runScript(c_OtherPath);
    const auto code = [&](const std::string& call) {
        return failure([&] { owner->Query("select melvark." + call); }).Code();
    };
    EXPECT_EQ(code("parse_number('1x')"), "ML001");
    EXPECT_EQ(code("parse_date('x')"), "ML002");
    EXPECT_EQ(code("refuse_unknown_note(77)"), "ML010");
    EXPECT_EQ(code("typed_id('1')"), "");
    EXPECT_EQ(code("order_moment(1)"), "");
    EXPECT_EQ(code("recalculated_line(row(row(10, null, null, null)::melvark.price_row, null, null, null)"
                   "::melvark.line_prices, 2, 21, 0, 10, 'unit', 'before', 'CENAB')"),
              "");
}

TEST(PostgreSQLSearchPath, NoFunctionLooksForANameOnTheCallersPath) {
    const ServerCompany company;
    const auto owner = company.open();
    const std::set<std::string> names = texts(
        *owner, "select relname::text from pg_class where relnamespace = 'melvark'::regnamespace and relkind in "
                "('r', 'v', 'c') union select proname::text from pg_proc where pronamespace = 'melvark'::regnamespace");
    const TResultTable open = owner->Query(
        "select proname::text, prosrc from pg_proc where pronamespace = 'melvark'::regnamespace "
        "and prosqlbody is null and coalesce(array_to_string(proconfig, ' '), '') not like '%search_path=melvark,%'");
    EXPECT_FALSE(open.Rows.empty()) << "a setting costs each call: the hot ones do without";
    for (const std::vector<TDbValue>& function : open.Rows) {
        for (const std::string& word : unqualifiedWords(std::get<AnsiString>(function[1]))) {
            EXPECT_FALSE(names.contains(word)) << std::get<AnsiString>(function[0]) << " names " << word;
        }
    }
}

} // namespace
} // namespace refhost
