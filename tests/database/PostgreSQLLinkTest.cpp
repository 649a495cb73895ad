#include "tests/database/ServerCompany.h"

#include <future>
#include <gtest/gtest.h>

namespace refhost {
namespace {

constexpr const char* c_LostSentence = "“ se přerušilo. Ověřte, co se stihlo uložit, a zkuste to znovu.";

/// A procedure of the test that takes long enough to be cut off.
void addSlowProcedure(Database& database) {
    database.runScript("create function melvark.MELVARKEDITORTestSlow() returns void language sql as "
                       "'select pg_sleep(60)'");
}

TEST(PostgreSQLLink, ALinkThatIsLostInsideACallIsToldAndTheNextCallHasANewOne) {
    const ServerCompany company;
    const auto database = company.open();
    addSlowProcedure(*database);
    auto call = std::async(std::launch::async,
                           [&] { return failure([&] { database->Execute(serverCall("MELVARKEDITORTestSlow")); }); });
    ASSERT_TRUE(company.waitFor("select count(*) from pg_stat_activity where state = 'active' and usename = 'novakova' "
                                "and query like '%testslow%' and datname = current_database()",
                                "1"));
    company.cutLinks();

    const EDatabaseError error = call.get();
    EXPECT_EQ(error.Code(), "ML916");
    EXPECT_EQ(error.Message(), "Spojení s databází „" + company.name() + c_LostSentence);
    EXPECT_EQ(database->Execute(serverCall("MELVARKEDITORDodObjInit")).Sets.size(), 1U);
}

TEST(PostgreSQLLink, ALinkThatWasLostBetweenCallsIsToldOnce) {
    const ServerCompany company;
    const auto database = company.open();
    database->Execute(serverCall("MELVARKEDITORDodakInit"));
    company.cutLinks();
    EXPECT_EQ(failure([&] { database->Execute(serverCall("MELVARKEDITORDodakInit")); }).Code(), "ML916");
    EXPECT_EQ(database->Execute(serverCall("MELVARKEDITORDodakInit")).Sets.size(), 3U);
    company.cutLinks();
    EXPECT_EQ(failure([&] { database->Query("select 1"); }).Code(), "ML916");
    EXPECT_EQ(rowsOf(*database, "select 1"), "1");
}

TEST(PostgreSQLLink, ALinkThatIsLostAmongTheRowsOfAListIsToldByTheList) {
    const ServerCompany company;
    const auto database = company.open();
    const auto read = [](RowReader& reader) { return failure([&] { reader.read(1); }).Code(); };
    const auto told = database->openRows("select ID from DODAK order by ID");
    ASSERT_EQ(told->read(1).size(), 1U);
    company.cutLinks();
    EXPECT_EQ(read(*told), "ML916");
    EXPECT_EQ(rowsOf(*database, "select 1"), "1") << "the next call has a new link";

    const auto interrupted = database->openRows("select ID from DODAK order by ID");
    ASSERT_EQ(interrupted->read(1).size(), 1U);
    company.cutLinks();
    EXPECT_EQ(rowsOf(*database, "select 1"), "1") << "a call that comes first is not to blame";
    EXPECT_EQ(read(*interrupted), "ML916");
    EXPECT_EQ(rowsOf(*database, "select 1"), "1");
}

TEST(PostgreSQLLink, ASaveIsNotCarriedOnInANewSession) {
    const ServerCompany company;
    const auto database = company.open();
    const auto row = serverCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", "Mléko"}, {"a_MNOZSTVI", "1"}});
    const auto close = serverCall("MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{1}}});
    database->Execute(serverCall("MELVARKEDITORResetTemp"));
    database->Execute(row);
    company.cutLinks();

    EXPECT_EQ(failure([&] { database->Execute(row); }).Code(), "ML916");
    EXPECT_EQ(failure([&] { database->Execute(row); }).Code(), "ML916") << "no new session for a row";
    EXPECT_EQ(failure([&] { database->Execute(close); }).Code(), "ML916") << "nor for the closing call";
    database->Query("select 1");
    EXPECT_EQ(failure([&] { database->Execute(close); }).Code(), "ML040") << "the new session has no save";
    EXPECT_EQ(rowsOf(*database, "select count(*) from DODAKPOL"), "0");

    database->Execute(serverCall("MELVARKEDITORResetTemp"));
    database->Execute(row);
    database->Execute(close);
    EXPECT_EQ(rowsOf(*database, "select count(*) from DODAKPOL"), "1");
}

/// Whoever calls a procedure asks first what it declares.
TEST(PostgreSQLLink, ALinkThatIsLostBeforeTheFirstRowIsNotOpenedAnewForIt) {
    const ServerCompany company;
    const auto database = company.open();
    const auto row = serverCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", "Mléko"}, {"a_MNOZSTVI", "1"}});
    const auto call = [&](const TProcedureCall& procedure) {
        database->Describe(procedure.Name);
        database->Execute(procedure);
    };
    call(serverCall("MELVARKEDITORResetTemp"));
    call(row);
    call(serverCall("MELVARKEDITORResetTemp"));
    company.cutLinks();

    EXPECT_EQ(failure([&] { call(row); }).Code(), "ML916");
    EXPECT_EQ(failure([&] { call(row); }).Code(), "ML916") << "no new session, in which no save was begun";
    call(serverCall("MELVARKEDITORResetTemp"));
    call(row);
    call(serverCall("MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{1}}}));
    EXPECT_EQ(rowsOf(*database, "select count(*) from DODAKPOL"), "1");
}

/// A minute of a real session is a moment here.
TEST(PostgreSQLLink, WhoStopsInTheMiddleOfACallLosesHisLocksAndBeginsAnew) {
    const ServerCompany company;
    const auto stopped = company.open();
    const auto waiting = company.open();
    stopped->runScript("set idle_in_transaction_session_timeout = '300ms'");

    const EDatabaseError error = failure([&] {
        stopped->inOneTransaction([&] {
            stopped->runScript("update DODAK set OTEVRENO = 0 where ID = 1");
            waiting->runScript("update DODAK set CISLO = 'DL9' where ID = 1"); // waits for the lock, and not for ever
        });
    });

    EXPECT_EQ(error.Code(), "ML916");
    EXPECT_EQ(rowsOf(*waiting, "select CISLO, OTEVRENO from DODAK where ID = 1"), "DL9,1");
    EXPECT_EQ(rowsOf(*stopped, "select current_setting('idle_in_transaction_session_timeout')"), "1min");
}

TEST(PostgreSQLLink, ANewSessionHasTheUsersFormats) {
    const ServerCompany company;
    const auto database = company.open();
    company.cutLinks();
    EXPECT_EQ(failure([&] { database->Query("select 1"); }).Code(), "ML916");
    EXPECT_EQ(rowsOf(*database, "select number_text(1.5), date_text('2027-02-01')"), "1,5,1.2.2027");
}

} // namespace
} // namespace refhost
