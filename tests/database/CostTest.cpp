// How the work grows, counted by the engines themselves. Each test stands for a cause of cost that once was there.

#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/SqlScript.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/CountedAllocations.h"
#include "tests/database/CountedEffort.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace refhost {
namespace {

constexpr int c_Few = 100;
constexpr int c_Many = 400;
constexpr int c_Most = 1'600; ///< Looking at all lines before each line is then more than all else that a closing does.

constexpr std::int64_t c_LongDocument = 50; ///< An order and a note of Mill with so many lines of different items.
constexpr std::int64_t c_Target = 51;       ///< An order and a note of Mill without lines.
constexpr std::int64_t c_FirstItem = 1000;  ///< So many items, which Mill lists.

std::string itemName(int i) {
    return "Zboží " + std::to_string(i);
}

/// The company of the contract's tests, and beside it documents, items and orders of the given number.
class LongCompany : public CountedDatabase {
    using Rows = std::vector<std::vector<TDbValue>>;
    static constexpr std::int64_t c_IsOrder = 0;
    static constexpr const char* c_Moment = "2026-02-20 08:00:00";

public:
    LongCompany(Engine engine, int lines) : CountedDatabase(engine), lines_(lines) {
        addContractCompany(database());
        addItems();
        addDocuments();
        refreshStatistics();
    }

    int lines() const { return lines_; }

    TResultTable call(const char* procedure, const std::vector<TDbParam>& parameters) {
        TCallResult result = database().Execute({procedure, parameters, true});
        return result.Sets.empty() ? TResultTable{} : std::move(result.Sets.front());
    }
    TResultTable noteFromOrder() {
        return call("MELVARKEDITORDodakGetPolozkyByObjednavka", {{"a_DODKID", c_Target}, {"a_DDOBID", c_LongDocument}});
    }
    TResultTable noteFromNote(bool prices) {
        return call("MELVARKEDITORDodakGetPolozkyByDodak", {{"a_DODKIDMASTER", c_LongDocument},
                                                            {"a_DODKID", c_Target},
                                                            {"a_PRENESMNOZSTVI", true},
                                                            {"a_PRENESCENY", prices}});
    }
    TResultTable orderFromPriceList() {
        return call("MELVARKEDITORDodObjGetPolozkyByDodCenik", {{"a_DDOBIDMASTER", c_Target}, {"a_DODVID", c_Mill}});
    }
    void recalculate() {
        call("MELVARKEDITORDodakVypocetCen", {{"a_ZMENENEBUNKY", ""},
                                              {"a_PREPOCETCEN", true},
                                              {"a_FOCUS", "MNOZSTVI"},
                                              {"a_JEDNCENABBEZSLEVY", "12,35"},
                                              {"a_DPH", "21 %"},
                                              {"a_SLEVA", "5"},
                                              {"a_MNOZSTVI", "7,5"}});
    }

    void stageNote() {
        database().Execute({"MELVARKEDITORResetTemp", {}, false});
        const TResultTable rows = noteFromOrder();
        const auto place = [&](const char* column) {
            return static_cast<std::size_t>(std::ranges::find(rows.Columns, column) - rows.Columns.begin());
        };
        for (const std::vector<TDbValue>& row : rows.Rows) {
            stageNoteRow(std::to_string(std::get<std::int64_t>(row[place("DOBSID")])), row[place("SKLADPOL")]);
        }
        database().awaitAnswers();
    }
    void stageNoteRow(const TDbValue& orderLine, const TDbValue& item) {
        database().Execute({"MELVARKEDITORDodakInsertToTemp",
                            {{"a_DOBSID", orderLine},
                             {"a_SKLADPOL", item},
                             {"a_MNOZSTVI", "2"},
                             {"a_JEDNCENAB", "10,5"},
                             {"a_CENAB", "21,00"},
                             {"a_DPH", "12 %"}},
                            false});
    }
    void closeNote() { database().Execute({"MELVARKEDITORDodakTempUloz", {{"a_DODKID", c_Target}}, false}); }
    void stageOrder() {
        database().Execute({"MELVARKEDITORResetTemp", {}, false});
        for (int i = 0; i < lines_; ++i) {
            database().Execute({"MELVARKEDITORDodObjInsertToTemp",
                                {{"a_SKLADPOL", itemName(i)},
                                 {"a_SKPLID", std::to_string(unitOf(i))},
                                 {"a_MNOZSTVI", "2"},
                                 {"a_JEDNOTKY", "ks"}},
                                false});
        }
        database().awaitAnswers();
    }
    void closeOrder() { database().Execute({"MELVARKEDITORDodObjTempUloz", {{"a_DDOBID", c_Target}}, false}); }

    /// Orders without lines, from one place of their sequence to another.
    void addOrders(int from, int to) {
        Rows orders;
        for (int i = from; i < to; ++i) {
            orders.push_back(
                {c_FirstItem + i, c_IsOrder, "JINA-" + std::to_string(i), c_Moment, c_Mill, c_MainWarehouse});
        }
        insert("DODOBJEDNAVKA", {"ID", "VZOR", "CISLO", "OBJEDNANIDC", "DODVID", "SKLDID"}, orders);
        refreshStatistics();
    }

private:
    static std::int64_t itemOf(int i) { return c_FirstItem + i; }
    static std::int64_t unitOf(int i) { return 10'000 + i; }
    void insert(const char* table, const std::vector<std::string>& columns, const Rows& rows) {
        database().insertRows(table, columns, rows);
    }
    void addItems() {
        Rows items;
        Rows units;
        Rows prices;
        for (int i = 0; i < lines_; ++i) {
            items.push_back({itemOf(i), itemName(i), std::int64_t{1}, std::int64_t{2}});
            units.push_back({unitOf(i), itemOf(i), std::int64_t{0}, "ks", "1"});
            prices.push_back({c_Mill, itemOf(i), "2026-01-01", "10"});
        }
        insert("SKLADPOL", {"ID", "NAZEV", "SSP3ID", "DPHID"}, items);
        insert("SKPL", {"ID", "SKLPID", "PORADI", "NAZEV", "FAKTOR"}, units);
        insert("DODCENIK", {"DODVID", "SKLPID", "PLATIOD", "CENA"}, prices);
    }
    void addDocuments() {
        const Rows orders{{c_LongDocument, c_IsOrder, "DLOUHA", c_Moment, c_Mill, c_MainWarehouse},
                          {c_Target, c_IsOrder, "CIL", c_Moment, c_Mill, c_MainWarehouse}};
        Rows orderLines;
        Rows noteLines;
        for (int i = 0; i < lines_; ++i) {
            orderLines.push_back(
                {10'000 + i, c_LongDocument, std::int64_t{i} + 1, itemOf(i), unitOf(i), c_MainWarehouse, "5"});
            noteLines.push_back({c_LongDocument, std::int64_t{i} + 1, itemOf(i), c_MainWarehouse, "5", "10"});
        }
        insert("DODOBJEDNAVKA", {"ID", "VZOR", "CISLO", "OBJEDNANIDC", "DODVID", "SKLDID"}, orders);
        insert("DODOBJPOL", {"ID", "DDOBID", "PORADI", "SKLPID", "SKPLID", "SKLDID", "MNOZSTVI"}, orderLines);
        insert("DODAK", {"ID", "CISLO", "DATUM", "DODVID", "SKLDID"},
               {{c_LongDocument, "DLOUHY", "2026-02-20", c_Mill, c_MainWarehouse},
                {c_Target, "CIL", "2026-02-21", c_Mill, c_MainWarehouse}});
        insert("DODAKPOL", {"DODKID", "PORADI", "SKLPID", "SKLDID", "MNOZSTVI", "JEDNCENABBEZSLEVY"}, noteLines);
    }

    int lines_;
};

/// Items with two units each, of which the server has not counted any yet.
void addUncountedItems(Database& database, int count) {
    std::vector<std::vector<TDbValue>> items;
    std::vector<std::vector<TDbValue>> units;
    for (int i = 0; i < count; ++i) {
        const std::int64_t item = c_FirstItem + i;
        items.push_back({item, itemName(i), std::int64_t{1}, std::int64_t{2}});
        units.push_back({item, std::int64_t{0}, "ks", "1"});
        units.push_back({item, std::int64_t{1}, "karton", "12"});
    }
    database.insertRows("SKLADPOL", std::vector<std::string>{"ID", "NAZEV", "SSP3ID", "DPHID"}, items);
    database.insertRows("SKPL", std::vector<std::string>{"SKLPID", "PORADI", "NAZEV", "FAKTOR"}, units);
}

class Cost : public testing::TestWithParam<Engine> {
protected:
    LongCompany few_{GetParam(), c_Few};
    LongCompany many_{GetParam(), c_Many};

    /// Each work once for nothing: a first call prepares its statements.
    template <typename Work>
    static Effort effort(LongCompany& company, Work work) {
        work(company);
        return company.of([&] { work(company); });
    }

    /// Four times the lines cost four times as much, not sixteen times.
    template <typename Work>
    void expectLinear(const char* name, Work work) {
        expectLinear(name, effort(few_, work), effort(many_, work));
    }
    static void expectLinear(const char* name, const Effort& few, const Effort& many,
                             std::int64_t times = c_Many / c_Few) {
        EXPECT_GT(few.Steps, c_Few) << name << ": nothing is counted";
        EXPECT_LT(2 * many.Steps, 3 * times * few.Steps) << name << ": " << few.Steps;
    }
    /// And what does not depend on the number costs the same.
    static void expectEqual(const Effort& few, const Effort& many) {
        EXPECT_GT(few.Steps, 0) << "nothing is counted";
        EXPECT_LE(many.Steps, few.Steps + few.Steps / 4);
        EXPECT_LE(many.Calls, few.Calls);
    }
};

TEST_P(Cost, FillsGrowWithTheirLines) {
    expectLinear("note from order", [](LongCompany& company) {
        EXPECT_EQ(company.noteFromOrder().Rows.size(), static_cast<std::size_t>(company.lines()));
    });
    expectLinear("note from note", [](LongCompany& company) { company.noteFromNote(true); });
    expectLinear("note from note, list prices", [](LongCompany& company) { company.noteFromNote(false); });
    expectLinear("order from price list", [](LongCompany& company) {
        EXPECT_GT(company.orderFromPriceList().Rows.size(), static_cast<std::size_t>(company.lines()));
    });
}

// The place of the last line was looked up again for each line, among all that had just been inserted.
TEST_P(Cost, ClosingANoteGrowsWithItsLines) {
    const auto closing = [](LongCompany& company) {
        company.stageNote();
        return company.of([&] { company.closeNote(); });
    };
    LongCompany most(GetParam(), c_Most);
    expectLinear("closing", closing(few_), closing(most), c_Most / c_Few);
}

TEST_P(Cost, ClosingAnOrderGrowsWithItsLines) {
    const auto closing = [](LongCompany& company) {
        company.stageOrder();
        return company.of([&] { company.closeOrder(); });
    };
    LongCompany most(GetParam(), c_Most);
    expectLinear("closing", closing(few_), closing(most), c_Most / c_Few);
}

TEST_P(Cost, ARowCostsTheSameHoweverManyStandBeforeIt) {
    const auto row = [](LongCompany& company) { company.stageNoteRow({}, itemName(1)); };
    few_.database().Execute({"MELVARKEDITORResetTemp", {}, false});
    many_.stageNote();
    expectEqual(effort(few_, row), effort(many_, row));
}

// The check asked for "this identifier or this number", and so looked at every order.
TEST_P(Cost, AnOrderIsFoundByItsNumberWithoutLookingAtAllOthers) {
    const auto check = [](LongCompany& company, const char* procedure, const char* master, std::int64_t document) {
        EXPECT_EQ(company.call(procedure, {{master, document}, {"a_CISLO", "OBJ-10"}}).Rows.size(), 1U);
    };
    const auto forNote = [&](LongCompany& company) {
        check(company, "MELVARKEDITORDodakCheckZdrojObjednavka", "a_DODKIDMASTER", c_OpenNote);
    };
    const auto forOrder = [&](LongCompany& company) {
        check(company, "MELVARKEDITORDodObjCheckZdrojObjednavka", "a_DDOBIDMASTER", c_Target);
    };
    few_.addOrders(0, 2'000); // among so few as there are without them nobody asks an index
    const Effort note = effort(few_, forNote);
    const Effort order = effort(few_, forOrder);

    few_.addOrders(2'000, 8'000);

    expectEqual(note, effort(few_, forNote));
    expectEqual(order, effort(few_, forOrder));
}

// The rows of the fill's recalculation stayed until the next one, which cleared them away.
TEST_P(Cost, TheFirstRecalculationIsThatOfAnyOther) {
    few_.recalculate();
    many_.recalculate();
    few_.noteFromNote(false);
    many_.noteFromNote(false);
    const Effort few = few_.of([&] { few_.recalculate(); });
    expectEqual(few, many_.of([&] { many_.recalculate(); }));
}

// The order's moment was looked up for each price of the list.
TEST_P(Cost, WhatHoldsForTheWholeFillIsAskedOnce) {
    const auto fill = [](LongCompany& company) { company.orderFromPriceList(); };
    EXPECT_EQ(effort(many_, fill).Calls, effort(few_, fill).Calls);
}

INSTANTIATE_TEST_SUITE_P(Engines, Cost, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return engineName(row.param); });

// Lines whose prices are carried over were recalculated, too.
TEST(CostOnSQLite, CarriedPricesAreNotComputed) {
    LongCompany company(Engine::SQLite, c_Few);
    company.noteFromNote(true);
    company.noteFromNote(false);
    const Effort carried = company.of([&] { company.noteFromNote(true); });
    const Effort listed = company.of([&] { company.noteFromNote(false); });
    EXPECT_GT(listed.Steps, 3 * carried.Steps);
}

// What kind of procedure is called was read from its text for each saved row.
TEST(CostOnPostgreSQL, TheTextOfAProcedureIsNotReadForEachRow) {
    LongCompany company(Engine::PostgreSQL, c_Few);
    company.database().Execute({"MELVARKEDITORResetTemp", {}, false});
    const auto row = [&] {
        company.stageNoteRow({}, itemName(1));
        company.database().awaitAnswers();
    };
    row();
    const std::string text = builtInScript("procedures/MELVARKEDITORDodakInsertToTemp.sql", postgresqlFiles()).Text;
    EXPECT_LT(allocationsOf(row), std::ranges::count(text, '\n')); // a reader of lines asks for memory once a line
}

// Joined by "is not distinct from", rows can only be compared each with each.
TEST(CostOnPostgreSQL, NoJoinComparesEachRowWithEach) {
    LongCompany company(Engine::PostgreSQL, c_Few);
    const TResultTable routines =
        company.database().Query("select p.proname::text from pg_proc p where p.pronamespace = 'melvark'::regnamespace "
                                 "and p.prosrc ~* 'join[^;]* on [^;]*is not distinct from'");
    EXPECT_TRUE(routines.Rows.empty()) << std::get<AnsiString>(routines.Rows.front().front());
}

// A function in SQL that another one calls is planned anew for each line.
TEST(CostOnPostgreSQL, TheLocalRateIsLookedUpOnceAFill) {
    LongCompany company(Engine::PostgreSQL, c_Few);
    EXPECT_EQ(
        company.callsOf("v_getglobalparam", [&] { company.noteFromOrder(); }), company.callsOf("v_getglobalparam", [&] {
            company.call("MELVARKEDITORDodakGetPolozkyByObjednavka", {{"a_DODKID", c_Target}, {"a_DDOBID", c_Order}});
        }));
    EXPECT_LE(company.callsOf("recalculation_local_rate", [&] { company.noteFromOrder(); }), 1);
}

// Rows without a warehouse or supplier of their own asked two functions of refusals, which planned their questions anew
// each time; and until the server had counted its rows, so did the look-up of an order row's units.
TEST(CostOnPostgreSQL, TheRowsOfASaveKeepTheirPlans) {
    CountedDatabase company(Engine::PostgreSQL);
    addContractCompany(company.database());
    addUncountedItems(company.database(), 2'000);
    const auto row = [&](const char* procedure, const std::vector<TDbParam>& parameters) {
        company.database().Execute({procedure, parameters, false});
    };
    const auto rows = [&] {
        row("MELVARKEDITORDodakInsertToTemp",
            {{"a_SKLADPOL", "Sirup"}, {"a_MNOZSTVI", "2"}, {"a_DPH", "12 %"}, {"a_TRVANLIVOST", "1.2.2027"}});
        row("MELVARKEDITORDodObjInsertToTemp",
            {{"a_SKLADPOL", "Sirup"}, {"a_SKPLID", "71"}, {"a_MNOZSTVI", "2"}, {"a_JEDNOTKY", "l"}});
    };
    row("MELVARKEDITORResetTemp", {});
    for (int i = 0; i < 10; ++i) {
        rows(); // the first runs of a statement are planned for their values, to see whether that is better
    }
    // The server may find its statistics outdated meanwhile and plan once more; not each time.
    EXPECT_EQ(std::min({company.plansOf(rows), company.plansOf(rows), company.plansOf(rows)}), 0);
    const auto anotherSave = [&] {
        row("MELVARKEDITORResetTemp", {});
        rows();
    };
    EXPECT_GT(company.plansOf(anotherSave), 0) << "the plans are not counted";
}

// A function that is called for each line costs more than all that it does.
TEST(CostOnPostgreSQL, TheRowsOfAnOrderAreMadeWithoutACallForEach) {
    LongCompany company(Engine::PostgreSQL, c_Few);
    EXPECT_EQ(company.callsOf("order_row_of", [&] { company.orderFromPriceList(); }), 0);
}

// To take a text apart by a pattern with captures cost most of a row; plain numbers are all read at a glance.
TEST(CostOnPostgreSQL, PlainNumbersOfARowAreNotTakenApart) {
    LongCompany company(Engine::PostgreSQL, c_Few);
    company.database().Execute({"MELVARKEDITORResetTemp", {}, false});
    EXPECT_EQ(company.callsOf("parse_number", [&] { company.stageNoteRow({}, itemName(1)); }), 0);
    EXPECT_EQ(company.callsOf("note_line_numbers", [&] { company.stageNoteRow({}, itemName(1)); }), 0);
}

// To take a date apart by patterns cost a third of a note's row.
TEST(CostOnPostgreSQL, APlainDateOfARowIsNotTakenApart) {
    LongCompany company(Engine::PostgreSQL, c_Few);
    company.database().Execute({"MELVARKEDITORResetTemp", {}, false});
    const auto row = [&](const char* shelfLife) {
        company.database().Execute({"MELVARKEDITORDodakInsertToTemp",
                                    {{"a_SKLADPOL", itemName(1)}, {"a_MNOZSTVI", "2"}, {"a_TRVANLIVOST", shelfLife}},
                                    false});
    };
    EXPECT_EQ(company.callsOf("date_parts", [&] { row("31.12.2027"); }), 0);
    EXPECT_GT(company.callsOf("date_parts", [&] { row("31. 12. 27"); }), 0) << "the calls are not counted";
}

// The rule of a list is asked for every document that it shows. In SQL it was planned anew each time.
TEST(CostOnPostgreSQL, TheRulesOfListsKeepTheirPlans) {
    LongCompany company(Engine::PostgreSQL, c_Few);
    const TResultTable rules = company.database().Query(
        "select p.proname || ' ' || l.lanname from pg_proc p join pg_language l on l.oid = p.prolang "
        "where p.pronamespace = 'melvark'::regnamespace and p.proname like '%\\_fault%' order by 1");
    EXPECT_EQ(rules.Rows.size(), 6U);
    for (const std::vector<TDbValue>& rule : rules.Rows) {
        EXPECT_TRUE(std::get<AnsiString>(rule.front()).ends_with(" plpgsql")) << std::get<AnsiString>(rule.front());
    }
}

} // namespace
} // namespace refhost
