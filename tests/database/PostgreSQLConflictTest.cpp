#include "tests/database/ServerCompany.h"

#include <functional>
#include <future>
#include <gtest/gtest.h>

namespace refhost {
namespace {

/// Procedures of the test. Swap locks two warehouses one after the other and renames them; each begin is counted in a
/// sequence, which a rollback does not take back. It takes its time between the two, so that two calls that begin with
/// different warehouses wait for each other.
void addSwap(Database& database) {
    database.runScript("insert into SKLAD (NAZEV) values ('Druhý sklad');"
                       "create sequence melvark.BEGUN;"
                       "create function melvark.MELVARKEDITORTestSwap(a_FIRST integer default null,"
                       "                                              a_SECOND integer default null)"
                       "returns void language plpgsql as $$ begin"
                       "    perform nextval('melvark.BEGUN');"
                       "    update SKLAD set NAZEV = NAZEV || '.' where ID = a_FIRST;"
                       "    perform pg_sleep(0.5);"
                       "    update SKLAD set NAZEV = NAZEV || '.' where ID = a_SECOND;"
                       "end $$;"
                       "create function melvark.MELVARKEDITORTestConflict(a_CODE text default null)"
                       "returns void language plpgsql as $$ begin"
                       "    perform nextval('melvark.BEGUN');"
                       "    raise exception using errcode = a_CODE;"
                       "end $$");
}

TProcedureCall swapCall(std::int64_t first, std::int64_t second) {
    return serverCall("MELVARKEDITORTestSwap", {{"a_FIRST", first}, {"a_SECOND", second}});
}

TEST(PostgreSQLConflict, ADeadlockIsTriedAgainAndNothingIsLostOrDoubled) {
    const ServerCompany company;
    const auto one = company.open();
    const auto other = company.open();
    addSwap(*one);

    auto call = std::async(std::launch::async, [&] { other->Execute(swapCall(2, 1)); });
    one->Execute(swapCall(1, 2));
    call.get();

    EXPECT_EQ(rowsOf(*one, "select NAZEV from SKLAD order by ID"), "Hlavní sklad..|Druhý sklad..");
    EXPECT_EQ(rowsOf(*one, "select last_value > 2 from melvark.BEGUN"), "1") << "there was no deadlock";
}

TEST(PostgreSQLConflict, ACallThatNeverGetsThroughEndsInASentence) {
    const ServerCompany company;
    const auto database = company.open();
    addSwap(*database);
    const EDatabaseError error = failure([&] {
        database->Execute(serverCall("MELVARKEDITORTestConflict", {{"a_CODE", "40001"}}));
    });
    EXPECT_EQ(error.Code(), "ML910");
    EXPECT_EQ(error.Message(),
              "Databázi „" + company.name() + "“ právě používá někdo jiný. Zkuste to za chvíli znovu.");
    EXPECT_EQ(rowsOf(*database, "select last_value from melvark.BEGUN"), "5");
}

TEST(PostgreSQLConflict, ARefusalIsNotTriedAgain) {
    const ServerCompany company;
    const auto database = company.open();
    addSwap(*database);
    EXPECT_EQ(failure([&] {
                  database->Execute(serverCall("MELVARKEDITORTestConflict", {{"a_CODE", "ML099"}}));
              }).Code(),
              "ML099");
    EXPECT_EQ(rowsOf(*database, "select last_value from melvark.BEGUN"), "1");
}

struct StateCase {
    const char* SqlState;
    const char* Code;
};

/// What an integrator's own procedure may meet.
TEST(PostgreSQLConflict, EachStateOfTheServerHasItsCodeAndTheServersWordsInTheDetails) {
    const ServerCompany company;
    const auto database = company.open();
    addSwap(*database);
    for (const StateCase& row : {StateCase{"40P01", "ML910"},
                                 {"55P03", "ML910"},
                                 {"53300", "ML910"},
                                 {"25006", "ML911"},
                                 {"3D000", "ML915"},
                                 {"08006", "ML916"},
                                 {"57P04", "ML916"},
                                 {"28P01", "ML917"},
                                 {"53100", "ML923"},
                                 {"42501", "ML924"},
                                 {"23503", "ML925"},
                                 {"2BP01", "ML929"},
                                 {"22012", "ML930"},
                                 {"P0001", "ML930"}}) {
        const EDatabaseError error = failure([&] {
            database->Execute(serverCall("MELVARKEDITORTestConflict", {{"a_CODE", AnsiString(row.SqlState)}}));
        });
        EXPECT_EQ(error.Code(), row.Code) << row.SqlState;
        EXPECT_EQ(error.Cause(), TDatabaseCause::Failure) << row.SqlState;
        EXPECT_NE(error.Details().find(row.SqlState), std::string::npos) << error.Details();
    }
}

TEST(PostgreSQLConflict, AnotherUsersSaveIsNotWaitedForWithoutEnd) {
    const ServerCompany company;
    const auto database = company.open();
    addSwap(*database);
    const auto other = company.open();
    auto holder = std::async(std::launch::async, [&] {
        other->runScript("update SKLAD set NAZEV = NAZEV; "
                         "select pg_sleep(2)");
    });
    ASSERT_TRUE(company.waitFor("select count(*) from pg_stat_activity where wait_event = 'PgSleep' "
                                "and datname = current_database()",
                                "1"));
    database->runScript("set lock_timeout = '100ms'");
    EXPECT_EQ(failure([&] { database->Execute(swapCall(1, 2)); }).Code(), "ML910");
    holder.get();
    database->Execute(swapCall(1, 2));
}

/// Two sessions that write prices of the same item for the same days, neither of which sees the other's.
class OverlappingPrices : public testing::Test {
protected:
    /// Writes a price in one session, and another one in a second session, which waits for the first; `decide` ends the
    /// first one's work. Returns how the second one ended.
    EDatabaseError secondPrice(const std::function<void()>& decide) {
        std::future<EDatabaseError> second;
        const auto one = company_.open();
        const auto other = company_.open();
        try {
            one->inOneTransaction([&] {
                one->runScript(priceFrom("2026-01-01"));
                second = std::async(std::launch::async,
                                    [&] { return failure([&] { other->runScript(priceFrom("2026-02-01")); }); });
                EXPECT_TRUE(company_.waitFor("select count(*) from pg_stat_activity where wait_event_type = 'Lock' "
                                             "and query like '%2026-02-01%' and datname = current_database()",
                                             "1"))
                    << "the second one does not wait";
                decide();
            });
        } catch (const EDatabaseError&) {
            EXPECT_EQ(rowsOf(*one, "select count(*) from DODCENIK where PLATIOD = '2026-01-01'"), "0");
        }
        return second.get();
    }

    std::string prices() { return rowsOf(*company_.open(), "select PLATIOD::text from DODCENIK"); }

private:
    static std::string priceFrom(const std::string& day) {
        return "insert into DODCENIK (DODVID, SKLPID, PLATIOD, CENA) values (1, 1, '" + day + "', 7)";
    }

    ServerCompany company_;
};

TEST_F(OverlappingPrices, TheSecondOneWaitsAndIsRefusedWhenTheFirstIsThere) {
    const EDatabaseError refusal = secondPrice([] {});
    EXPECT_EQ(refusal.Code(), "ML901");
    EXPECT_EQ(refusal.Message(), "Platnost ceníku se překrývá s jiným ceníkem téže položky a téhož dodavatele.");
    EXPECT_EQ(prices(), "2026-01-01");
}

TEST_F(OverlappingPrices, TheSecondOneIsKeptWhenTheFirstIsTakenBack) {
    EXPECT_EQ(secondPrice([] { throw EDatabaseError("taken back"); }).Code(), "");
    EXPECT_EQ(prices(), "2026-02-01");
}

/// Saves a line of another supplier into the order, so that an order is made of it.
void makeOrder(Database& database, std::int64_t from) {
    database.Execute(serverCall("MELVARKEDITORResetTemp"));
    database.Execute(
        serverCall("MELVARKEDITORDodObjInsertToTemp",
                   {{"a_SKLADPOL", "Mléko"}, {"a_DODAVATEL", "Pekárna"}, {"a_SKPLID", "1"}, {"a_MNOZSTVI", "1"}}));
    database.Execute(serverCall("MELVARKEDITORDodObjTempUloz", {{"a_DDOBID", from}}));
}

// The first one is about to move the sequence behind the chosen id: the second one would move it there again.
TEST(PostgreSQLConflict, ASaveThatMakesAnOrderWaitsForAnotherOneThatDoes) {
    const ServerCompany company;
    const auto one = company.open();
    const auto other = company.open();
    one->runScript("insert into DODAVATEL (JMENO) values ('Pekárna');"
                   "insert into DODOBJEDNAVKA (ID, VZOR, CISLO, OBJEDNANIDC, DODVID, SKLDID)"
                   "values (1, 0, 'OV-1', '2026-04-11 10:00:00', 1, 1), (2, 0, 'OV-2', '2026-04-11 10:00:00', 1, 1),"
                   "       (40, 0, 'RUČNÍ', '2026-04-11 10:00:00', 1, 1)");
    std::future<void> second;
    one->inOneTransaction([&] {
        makeOrder(*one, 1);
        second = std::async(std::launch::async, [&] { makeOrder(*other, 2); });
        EXPECT_TRUE(company.waitFor(
            "select count(*) from pg_stat_activity where wait_event = 'advisory' and datname = current_database()",
            "1"))
            << "the second one does not wait";
    });
    second.get();
    EXPECT_EQ(rowsOf(*one, "select ID, CISLO from DODOBJEDNAVKA where ID > 40 order by ID"),
              "41,OV2026-000041|42,OV2026-000042");
}

TEST(PostgreSQLConflict, TwoSavesIntoOneNoteFollowOneAnother) {
    const ServerCompany company;
    const auto save = [&company](const std::string& quantity) {
        const auto database = company.open();
        for (int i = 0; i < 10; ++i) {
            database->Execute(serverCall("MELVARKEDITORResetTemp"));
            database->Execute(
                serverCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", "Mléko"}, {"a_MNOZSTVI", quantity}}));
            database->Execute(serverCall("MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{1}}}));
        }
    };
    auto other = std::async(std::launch::async, save, "1");
    save("2");
    other.get();
    EXPECT_EQ(rowsOf(*company.open(), "select count(*), count(distinct PORADI), min(PORADI), max(PORADI), "
                                      "sum(MNOZSTVI)::integer from DODAKPOL where DODKID = 1"),
              "20,20,1,20,30");
}

} // namespace
} // namespace refhost
