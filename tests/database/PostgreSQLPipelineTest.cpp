#include "tests/database/LongLink.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/ServerCompany.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

/// The calls of a save as the editors make them: none opens results.
TProcedureCall saveCall(const char* procedure, std::vector<TDbParam> params = {}) {
    return {procedure, std::move(params), false};
}

const TProcedureCall c_Begin = saveCall("MELVARKEDITORResetTemp");
const TProcedureCall c_Close = saveCall("MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{1}}});

TProcedureCall row(const char* item, const char* quantity = "1") {
    return saveCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", item}, {"a_MNOZSTVI", quantity}});
}

const TProcedureCall c_GoodRow = row("Mléko");
const TProcedureCall c_UnknownItem = row("Kefír");     // ML043
const TProcedureCall c_NoNumber = row("Mléko", "tři"); // ML001
const TProcedureCall c_NoText = row("Mléko", "1\xff"); // ML009, found before anything is sent

/// So many good rows that the server has them: fewer may be waiting here for more.
void sendPortion(Database& database) {
    for (int i = 0; i < 16; ++i) {
        database.Execute(c_GoodRow);
    }
}

std::string quantities(Database& database) {
    return rowsOf(database, "select coalesce(string_agg(number_text(MNOZSTVI), ' ' order by PORADI), 'none') "
                            "from DODAKPOL where DODKID = 1");
}

/// A save of these rows up to its end or its first error.
EDatabaseError save(Database& database, const std::vector<TProcedureCall>& rows) {
    return failure([&] {
        database.Execute(c_Begin);
        for (const TProcedureCall& each : rows) {
            database.Execute(each);
        }
        database.Execute(c_Close);
    });
}

std::string outcome(const EDatabaseError& error) {
    return error.Code() + (error.Row() ? " in row " + std::to_string(*error.Row()) : " in no row");
}

/// Until the server has worked on all that was sent and waits for more.
bool waitUntilIdle(const ServerCompany& company, const std::string& state) {
    return company.waitFor("select count(*) from pg_stat_activity where usename = 'novakova' and "
                           "datname = current_database() and state = '" +
                               state + "'",
                           "1");
}

/// How often a client waits for answers while a save of so many rows runs over a long link.
int turnsOfSave(const ServerCompany& company, int rows, bool open) {
    LongLink link(PrivateServer::instance().folder());
    PostgreSQLConnection database("host=" + link.folder().string() + " dbname=" + company.name() + " user=novakova",
                                  TFormatSettings::Czech());
    TProcedureCall each = c_GoodRow;
    each.Open = open;
    database.Execute(c_Begin);
    database.Execute(each); // by now everything is prepared
    const int before = link.turns();
    for (int i = 1; i < rows; ++i) {
        database.Execute(each);
    }
    database.Execute(c_Close);
    return link.turns() - before;
}

/// A company and one clerk's connection to it.
class PostgreSQLPipeline : public testing::Test {
protected:
    const ServerCompany company_;
    const std::unique_ptr<PostgreSQLConnection> database_ = company_.open();
};

TEST_F(PostgreSQLPipeline, RowsAreOnlySentAndTheClosingCallTakesThemOverInTheirOrder) {
    database_->Execute(c_Begin);
    for (const char* quantity : {"3", "1", "2,5"}) {
        EXPECT_FALSE(database_->Execute(row("Mléko", quantity)).Answered);
    }
    EXPECT_TRUE(database_->Execute(c_Close).Answered);
    EXPECT_EQ(quantities(*database_), "3 1 2,5");
}

TEST_F(PostgreSQLPipeline, ARefusalNamesItsRowWhereverThatStands) {
    for (const std::size_t place : {0U, 3U, 5U}) {
        std::vector<TProcedureCall> rows(6, c_GoodRow);
        rows[place] = c_UnknownItem;
        const EDatabaseError error = save(*database_, rows);
        EXPECT_EQ(outcome(error), "ML043 in row " + std::to_string(place));
        EXPECT_EQ(error.Message(), "Skladová položka „Kefír“ neexistuje. Vyberte jinou.");
        EXPECT_EQ(quantities(*database_), "none");
    }
}

TEST_F(PostgreSQLPipeline, OfTwoRefusalsTheFirstIsTold) {
    EXPECT_EQ(outcome(save(*database_, {c_GoodRow, c_NoNumber, c_UnknownItem})), "ML001 in row 1");
    EXPECT_EQ(outcome(save(*database_, {c_UnknownItem, c_GoodRow, c_NoNumber})), "ML043 in row 0");
    EXPECT_EQ(outcome(save(*database_, {c_GoodRow, c_UnknownItem, c_NoText})), "ML043 in row 1")
        << "one that is found before it is sent, too";
}

TEST_F(PostgreSQLPipeline, ARefusalIsThrownByALaterRowOnceItIsKnown) {
    database_->Execute(c_Begin);
    database_->Execute(c_GoodRow);
    database_->Execute(c_UnknownItem);
    for (int i = 2; i < 16; ++i) {
        database_->Execute(c_GoodRow);
    }
    ASSERT_TRUE(waitUntilIdle(company_, "idle in transaction (aborted)"));
    EXPECT_EQ(outcome(failure([&] { sendPortion(*database_); })), "ML043 in row 1");
}

TEST_F(PostgreSQLPipeline, ARefusalOfTheLastRowIsThrownInPlaceOfTheClosingCall) {
    database_->Execute(c_Begin);
    database_->Execute(c_GoodRow);
    database_->Execute(c_UnknownItem);
    EXPECT_EQ(outcome(failure([&] { database_->Execute(c_Close); })), "ML043 in row 1");
    EXPECT_EQ(quantities(*database_), "none");
}

TEST_F(PostgreSQLPipeline, AfterARefusalTheSaveIsClosedUntilTheNextOneBegins) {
    EXPECT_EQ(outcome(save(*database_, {c_UnknownItem})), "ML043 in row 0");
    EXPECT_EQ(failure([&] { database_->Execute(c_Close); }).Code(), "ML041");
    database_->Execute(c_GoodRow);
    EXPECT_EQ(outcome(failure([&] { database_->Execute(c_Close); })), "ML041 in row 1");

    EXPECT_EQ(save(*database_, {row("Mléko", "7"), row("Mléko", "8")}).Message(), "no failure");
    EXPECT_EQ(quantities(*database_), "7 8");
    EXPECT_EQ(outcome(save(*database_, {c_GoodRow, c_UnknownItem})), "ML043 in row 1") << "rows are counted anew";
}

TEST_F(PostgreSQLPipeline, ARowThatCannotBeSentClosesTheSaveToo) {
    EXPECT_EQ(save(*database_, {c_GoodRow, c_NoText}).Code(), "ML009");
    EXPECT_EQ(failure([&] { database_->Execute(c_Close); }).Code(), "ML041");
    EXPECT_EQ(quantities(*database_), "none");
}

TEST_F(PostgreSQLPipeline, AnotherCallBetweenTheRowsIsAnsweredAndTheRefusalStaysTheSaves) {
    database_->Execute(c_Begin);
    database_->Execute(c_GoodRow);
    EXPECT_EQ(rowsOf(*database_, "select 1"), "1");
    EXPECT_EQ(database_->Execute(serverCall("MELVARKEDITORDodObjInit")).Sets.size(), 1U);
    database_->Execute(c_UnknownItem);
    EXPECT_EQ(rowsOf(*database_, "select 1"), "1") << "the query is not to blame";
    EXPECT_EQ(outcome(failure([&] { database_->Execute(c_Close); })), "ML043 in row 1");

    database_->Execute(c_Begin);
    database_->Execute(c_GoodRow);
    EXPECT_EQ(rowsOf(*database_, "select 1"), "1");
    database_->Execute(c_GoodRow);
    database_->Execute(c_Close);
    EXPECT_EQ(quantities(*database_), "1 1");
}

TEST_F(PostgreSQLPipeline, ANewSaveIsNotToldWhatAnAbandonedOneWas) {
    database_->Execute(c_Begin);
    // A server that answers fast refuses it at once, a slow one later: either way nobody closes this save.
    static_cast<void>(failure([&] { database_->Execute(c_UnknownItem); }));
    EXPECT_EQ(save(*database_, {c_GoodRow}).Message(), "no failure");
    EXPECT_EQ(quantities(*database_), "1");
}

TEST_F(PostgreSQLPipeline, ALinkThatIsLostAmongTheRowsIsToldAndNoSessionCarriesTheSaveOn) {
    database_->Execute(c_Begin);
    sendPortion(*database_);
    ASSERT_TRUE(waitUntilIdle(company_, "idle in transaction"));
    company_.cutLinks();

    const EDatabaseError error = failure([&] {
        for (int i = 0; i < 1000; ++i) {
            database_->Execute(c_GoodRow);
        }
    });
    EXPECT_EQ(outcome(error), "ML916 in no row");
    EXPECT_EQ(error.Cause(), TDatabaseCause::Failure);
    EXPECT_EQ(failure([&] { database_->Execute(c_GoodRow); }).Code(), "ML916") << "no new session for a row";
    EXPECT_EQ(failure([&] { database_->Execute(c_Close); }).Code(), "ML916") << "nor for the closing call";

    EXPECT_EQ(quantities(*database_), "none");
    EXPECT_EQ(failure([&] { database_->Execute(c_Close); }).Code(), "ML040") << "the new session has no save";
    EXPECT_EQ(save(*database_, {c_GoodRow}).Message(), "no failure");
    EXPECT_EQ(quantities(*database_), "1");
}

TEST_F(PostgreSQLPipeline, ALinkThatIsLostBehindTheLastRowIsToldByTheClosingCall) {
    database_->Execute(c_Begin);
    sendPortion(*database_);
    ASSERT_TRUE(waitUntilIdle(company_, "idle in transaction"));
    company_.cutLinks();
    EXPECT_EQ(outcome(failure([&] { database_->Execute(c_Close); })), "ML916 in no row");

    database_->Execute(c_Begin);
    sendPortion(*database_);
    ASSERT_TRUE(waitUntilIdle(company_, "idle in transaction"));
    company_.cutLinks();
    EXPECT_EQ(rowsOf(*database_, "select 1"), "1") << "a query has a new session";
    EXPECT_EQ(failure([&] { database_->Execute(c_Close); }).Code(), "ML916") << "and the save was lost all the same";
    EXPECT_EQ(quantities(*database_), "none");
}

TEST_F(PostgreSQLPipeline, AProgramThatStopsAmongTheRowsLosesItsLocks) {
    database_->runScript("set idle_in_transaction_session_timeout = '100ms'");
    database_->Execute(c_Begin);
    sendPortion(*database_);
    ASSERT_TRUE(company_.waitFor("select count(*) from pg_stat_activity where usename = 'novakova' and "
                                 "datname = current_database()",
                                 "0"));
    EXPECT_EQ(failure([&] { database_->Execute(c_Close); }).Code(), "ML916");
}

TEST_F(PostgreSQLPipeline, ARowWhoseResultsAreWantedIsWaitedFor) {
    database_->Execute(c_Begin);
    database_->Execute(c_GoodRow);
    TProcedureCall opened = c_GoodRow;
    opened.Open = true;
    EXPECT_TRUE(database_->Execute(opened).Answered);
    opened = c_UnknownItem;
    opened.Open = true;
    EXPECT_EQ(failure([&] { database_->Execute(opened); }).Code(), "ML043");
}

TEST_F(PostgreSQLPipeline, AProcedureOfAnIntegratorThatBringsSomethingIsWaitedFor) {
    database_->runScript(
        "do $$ begin execute 'drop function ' || 'melvark.melvarkeditordodakinserttotemp'::regproc::oid::regprocedure;"
        "end $$;"
        "create function melvark.MELVARKEDITORDodakInsertToTemp(a_SKLADPOL text default null,"
        "                                                       a_MNOZSTVI text default null)"
        "returns integer language sql as 'select 1'");
    EXPECT_TRUE(database_->Execute(c_GoodRow).Answered);
}

TEST_F(PostgreSQLPipeline, ARowThatTheServerGivesUpIsNotSentAgain) {
    database_->runScript("create sequence melvark.BEGUN;"
                         "grant usage on sequence melvark.BEGUN to melvark_owner;"
                         "create or replace function melvark.note_line_numbers(texts text[]) returns numeric[]"
                         "language plpgsql as $$ begin"
                         "    perform nextval('melvark.BEGUN');"
                         "    raise exception using errcode = '40001';"
                         "end $$");
    EXPECT_EQ(outcome(save(*database_, {c_GoodRow, c_NoNumber})), "ML910 in no row");
    EXPECT_EQ(rowsOf(*database_, "select last_value from melvark.BEGUN"), "1");
}

TEST_F(PostgreSQLPipeline, RowsOfOneSaveMayNameDifferentParameters) {
    const TProcedureCall empty = saveCall("MELVARKEDITORDodakInsertToTemp");
    const TProcedureCall withRate =
        saveCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", "Mléko"}, {"a_MNOZSTVI", "5"}, {"a_DPH", "12 %"}});
    EXPECT_EQ(save(*database_, {row("Mléko", "4"), withRate, empty, row("Mléko", "6")}).Message(), "no failure");
    EXPECT_EQ(quantities(*database_), "4 5 6");
    EXPECT_EQ(outcome(save(*database_, {c_GoodRow, withRate, empty, c_UnknownItem})), "ML043 in row 3");
}

TEST_F(PostgreSQLPipeline, ManyAndLargeRowsTravelWithoutADeadlock) {
    constexpr int c_Rows = 5'000; // more than may be without an answer
    database_->Execute(c_Begin);
    for (int i = 0; i < c_Rows; ++i) {
        database_->Execute(c_GoodRow);
    }
    database_->Execute(c_Close);
    EXPECT_EQ(rowsOf(*database_, "select count(*) from DODAKPOL"), std::to_string(c_Rows));

    // Every refused row's answer is as long as its text, and many are under way when the first one is known.
    const std::string longText(200'000, '7');
    EXPECT_EQ(outcome(save(*database_, std::vector<TProcedureCall>(200, row("Mléko", longText.c_str())))),
              "ML005 in row 0");
}

TEST_F(PostgreSQLPipeline, OverALongLinkRowsDoNotWaitEachForItsAnswer) {
    EXPECT_GE(turnsOfSave(company_, 30, true), 30) << "else the link would not show anything";
    // At rest a handful; on a full machine either side is silent when it only waits for the processor.
    EXPECT_LE(turnsOfSave(company_, 1'000, false), 50);
    EXPECT_EQ(rowsOf(*database_, "select count(*) from DODAKPOL"), "1030");
}

} // namespace
} // namespace refhost
