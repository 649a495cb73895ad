#include "host/LiveData.h"

#include "tests/host/FakeHost.h"

#include <gtest/gtest.h>

namespace {

using Table = TResultTable;

const TFormatSettings c_Czech = TFormatSettings::Czech();

TDbValue text(const char* value) {
    return AnsiString(value);
}

TDbValue integer(std::int64_t value) {
    return value;
}

/// A parameter list as one text: "a_ID=7 a_NAZEV=null".
AnsiString shown(const std::vector<TDbParam>& params) {
    AnsiString all;
    for (const TDbParam& param : params) {
        const TField field(param.Name, param.Value, c_Czech);
        all += (all.empty() ? "" : " ") + param.Name + "=" + (field.IsNull() ? "null" : field.AsString());
    }
    return all;
}

class LiveStoredProcTest : public testing::Test {
protected:
    LiveStoredProcTest() {
        host.connection.procedures["Uloz"] = {{"a_ID", "a_NAZEV", "a_CENA", "a_SDILENE"}, {"a_OBNOVDATA"}};
    }

    FakeConnection& connection() { return host.connection; }

    FakeHost host;
    TScopedHost installed{host};
};

TEST_F(LiveStoredProcTest, SendsParametersInTheOrderFirstTouched) {
    TLiveStoredProc proc("Uloz");
    proc.ParamByName("a_SDILENE").SetAsBoolean(true);
    proc.ParamByName("a_NAZEV").SetAsString("Šroub");
    proc.ParamByName("a_ID").SetAsInteger(7);
    proc.ParamByName("a_SDILENE").SetAsBoolean(false);
    proc.ParamByName("a_CENA").SetAsFloat(12.5);

    ASSERT_TRUE(proc.Exec(false));

    ASSERT_EQ(connection().calls.size(), 1U);
    EXPECT_EQ(connection().calls[0].Name, "Uloz");
    EXPECT_FALSE(connection().calls[0].Open);
    EXPECT_EQ(shown(connection().calls[0].Params), "a_SDILENE=0 a_NAZEV=Šroub a_ID=7 a_CENA=12,5");
}

TEST_F(LiveStoredProcTest, KeepsTheTypesOfWhatWasSet) {
    TLiveStoredProc proc("Uloz");
    EXPECT_TRUE(proc.ParamByName("a_ID").IsNull());
    proc.ParamByName("a_ID").SetAsInteger(-7);
    EXPECT_EQ(proc.ParamByName("a_ID").Value(), integer(-7));
    proc.ParamByName("a_ID").SetAsString("");
    EXPECT_EQ(proc.ParamByName("a_ID").Value(), text(""));
    EXPECT_FALSE(proc.ParamByName("a_ID").IsNull());
    proc.ParamByName("a_ID").SetAsFloat(0.5);
    EXPECT_EQ(proc.ParamByName("a_ID").Value(), TDbValue(0.5));
    proc.ParamByName("a_ID").SetAsBoolean(true);
    EXPECT_EQ(proc.ParamByName("a_ID").Value(), TDbValue(true));
}

TEST_F(LiveStoredProcTest, TakesAnIntegerOrATextFromAVariant) {
    TLiveStoredProc proc("Uloz");
    proc.ParamByName("a_ID").SetAsVariant(-7);
    proc.ParamByName("a_NAZEV").SetAsVariant("-7");
    EXPECT_EQ(proc.ParamByName("a_ID").Value(), integer(-7));
    EXPECT_EQ(proc.ParamByName("a_NAZEV").Value(), text("-7"));
}

TEST_F(LiveStoredProcTest, SendsAClearedParameterAsNull) {
    TLiveStoredProc proc("Uloz");
    proc.ParamByName("a_ID").SetAsInteger(7);
    proc.ParamByName("a_ID").Clear();
    proc.ParamByName("a_NAZEV").Clear();
    proc.Exec(false);
    EXPECT_EQ(shown(connection().calls[0].Params), "a_ID=null a_NAZEV=null");
}

TEST_F(LiveStoredProcTest, MatchesNamesWithoutCaseAndSendsTheFirstSpelling) {
    TLiveStoredProc proc("Uloz");
    proc.ParamByName("A_Nazev").SetAsString("a");
    proc.ParamByName("a_NAZEV").SetAsString("b");
    proc.Exec(false);
    EXPECT_EQ(shown(connection().calls[0].Params), "A_Nazev=b");
}

TEST_F(LiveStoredProcTest, NamesProcedureAndParameterThatItDoesNotDeclare) {
    TLiveStoredProc proc("Uloz");
    EXPECT_EQ(messageOf<EDatabaseError>([&] { proc.ParamByName("a_BARVA"); }), "Procedura Uloz nemá parametr a_BARVA.");
}

TEST_F(LiveStoredProcTest, ReportsAnUnknownProcedureAtItsFirstParameter) {
    TLiveStoredProc proc("Chybi");
    EXPECT_EQ(messageOf<EDatabaseError>([&] { proc.ParamByName("a_ID"); }), "Procedura Chybi neexistuje.");
}

TEST_F(LiveStoredProcTest, IsAskedWhichParametersThereAre) {
    TLiveStoredProc proc("Uloz");
    EXPECT_TRUE(proc.HasParam("A_ID"));
    EXPECT_TRUE(proc.HasParam("a_obnovdata"));
    EXPECT_FALSE(proc.HasParam("a_BARVA"));
    proc.Exec(false);
    EXPECT_EQ(shown(connection().calls[0].Params), "") << "asking does not touch";
}

TEST_F(LiveStoredProcTest, AsksTheDatabaseForItsDescriptionOnce) {
    TLiveStoredProc proc("Uloz");
    EXPECT_EQ(connection().describeCount, 0);
    proc.ParamByName("a_ID").SetAsInteger(7);
    proc.ParamByName("a_NAZEV").Clear();
    proc.Exec(false);
    EXPECT_EQ(connection().describeCount, 1);
}

TEST_F(LiveStoredProcTest, ParameterReferencesStayValid) {
    TLiveStoredProc proc("Uloz");
    TLiveParam& id = proc.ParamByName("a_ID");
    for (const char* name : {"a_NAZEV", "a_CENA", "a_SDILENE", "a_OBNOVDATA"}) {
        proc.ParamByName(name);
    }
    EXPECT_EQ(&proc.ParamByName("a_id"), &id);
}

TEST_F(LiveStoredProcTest, ReadsOutputParametersAfterTheCall) {
    connection().answer.Outputs = {{"a_obnovdata", true}};
    TLiveStoredProc proc("Uloz");
    proc.ParamByName("a_ID").SetAsInteger(7);
    proc.Exec(false);
    EXPECT_TRUE(proc.ParamByName("a_OBNOVDATA").AsBoolean());
    EXPECT_EQ(shown(connection().calls[0].Params), "a_ID=7");
}

TEST_F(LiveStoredProcTest, AnOutputParameterIsNeverSent) {
    connection().answer.Outputs = {{"a_OBNOVDATA", text("1")}};
    TLiveStoredProc proc("Uloz");
    const TLiveParam& output = proc.ParamByName("a_OBNOVDATA");
    EXPECT_FALSE(output.AsBoolean()) << "null before the call";
    proc.Exec(false);
    EXPECT_EQ(shown(connection().calls[0].Params), "");
    EXPECT_TRUE(output.AsBoolean());
}

TEST_F(LiveStoredProcTest, AnOutputThatDidNotComeIsNull) {
    TLiveStoredProc proc("Uloz");
    proc.Exec(false);
    EXPECT_TRUE(proc.ParamByName("a_OBNOVDATA").IsNull());
}

TEST_F(LiveStoredProcTest, AnOutputThatIsNotDeclaredIsPassedOver) {
    connection().answer.Outputs = {{"a_NAVIC", text("1")}, {"a_OBNOVDATA", true}};
    TLiveStoredProc proc("Uloz");
    EXPECT_TRUE(proc.Exec(false));
    EXPECT_FALSE(proc.HasParam("a_NAVIC"));
    EXPECT_TRUE(proc.ParamByName("a_OBNOVDATA").AsBoolean());
}

TEST_F(LiveStoredProcTest, ReadsRowByRow) {
    connection().answer.Sets = {Table{{"ID", "NAZEV"}, {{integer(1), text("Šroub")}, {integer(2), {}}}}};
    TLiveStoredProc proc("Uloz");
    ASSERT_TRUE(proc.Exec(true));
    EXPECT_TRUE(connection().calls[0].Open);

    ASSERT_FALSE(proc.Eof());
    EXPECT_EQ(proc.FieldByName("id").AsInteger(), 1);
    EXPECT_EQ(proc.FieldByName("Nazev").AsString(), "Šroub");
    proc.Next();
    ASSERT_FALSE(proc.Eof());
    EXPECT_EQ(proc.FieldByName("ID").AsInteger(), 2);
    EXPECT_TRUE(proc.FieldByName("NAZEV").IsNull());
    proc.Next();
    EXPECT_TRUE(proc.Eof());
    proc.Next();
    EXPECT_TRUE(proc.Eof());
    EXPECT_TRUE(proc.FieldByName("ID").IsNull()) << "behind the last row";
}

TEST_F(LiveStoredProcTest, FieldsOfAnEmptyResultAreNull) {
    connection().answer.Sets = {Table{{"ID", "DATA"}, {}}};
    TLiveStoredProc proc("Uloz");
    proc.Exec(true);
    EXPECT_TRUE(proc.Eof());
    EXPECT_TRUE(proc.FieldByName("DATA").IsNull());
    EXPECT_EQ(proc.FieldByName("DATA").AsString(), "");
}

TEST_F(LiveStoredProcTest, NamesTheMissingColumn) {
    connection().answer.Sets = {Table{{"ID"}, {{integer(1)}}}};
    TLiveStoredProc proc("Uloz");
    EXPECT_EQ(messageOf<EDatabaseError>([&] { proc.FieldByName("DATA"); }), "Výsledek nemá pole DATA.")
        << "before the call there is no result";
    proc.Exec(true);
    EXPECT_EQ(messageOf<EDatabaseError>([&] { proc.FieldByName("DATA"); }), "Výsledek nemá pole DATA.");
    EXPECT_TRUE(proc.HasField("id"));
    EXPECT_FALSE(proc.HasField("DATA"));
}

TEST_F(LiveStoredProcTest, AColumnIsFoundOnceAndReadInEveryRow) {
    connection().answer.Sets = {Table{{"ID", "NAZEV"}, {{integer(1), text("Šroub")}, {integer(2), text("Matice")}}}};
    TLiveStoredProc proc("Uloz");
    proc.Exec(true);
    const std::size_t name = proc.FieldNumber("Nazev");
    EXPECT_EQ(proc.Fields(name).AsString(), "Šroub");
    proc.Next();
    EXPECT_EQ(proc.Fields(name).AsString(), "Matice");
    EXPECT_EQ(messageOf<EDatabaseError>([&] { proc.FieldNumber("DATA"); }), "Výsledek nemá pole DATA.");
}

TEST_F(LiveStoredProcTest, ATakenTextLeavesTheResult) {
    const AnsiString longText = "Šroub se šestihrannou hlavou";
    connection().answer.Sets = {Table{{"ID", "NAZEV"}, {{integer(1), longText}, {integer(2), text("Matice")}}}};
    TLiveStoredProc proc("Uloz");
    proc.Exec(true);
    proc.Next();
    const std::size_t name = proc.FieldNumber("NAZEV");
    EXPECT_EQ(proc.TakeString(name), "Matice");
    EXPECT_EQ(proc.Fields(name).AsString(), "");
    EXPECT_EQ(proc.FieldByName("ID").AsInteger(), 2) << "the row's other fields stay";
}

TEST_F(LiveStoredProcTest, TakenValuesAreTheTextsOfTheirFields) {
    connection().answer.Sets = {Table{{"A", "B", "C", "D"}, {{integer(-7), 12.5, true, {}}}}};
    TLiveStoredProc proc("Uloz");
    proc.Exec(true);
    AnsiString taken;
    for (std::size_t number = 0; number < 4; ++number) {
        taken += proc.TakeString(number) + "|";
    }
    EXPECT_EQ(taken, "-7|12,5|1||");
    proc.Next();
    EXPECT_EQ(proc.TakeString(0), "") << "behind the last row";
}

TEST_F(LiveStoredProcTest, CountsTheRowsThatAreLeft) {
    connection().answer.Sets = {Table{{"A"}, {{integer(1)}, {integer(2)}}}};
    TLiveStoredProc proc("Uloz");
    EXPECT_EQ(proc.RowsLeft(), 0U);
    proc.Exec(true);
    EXPECT_EQ(proc.RowsLeft(), 2U);
    proc.Next();
    EXPECT_EQ(proc.RowsLeft(), 1U);
    proc.Next();
    proc.Next();
    EXPECT_EQ(proc.RowsLeft(), 0U);
}

TEST_F(LiveStoredProcTest, FieldsReadNumbersInTheHostsFormat) {
    connection().answer.Sets = {Table{{"CENA"}, {{text("12,5")}}}};
    TLiveStoredProc proc("Uloz");
    proc.Exec(true);
    EXPECT_EQ(proc.FieldByName("CENA").AsFloat(), 12.5);
}

TEST_F(LiveStoredProcTest, MovesToTheNextResultSet) {
    connection().answer.Sets = {Table{{"A"}, {{integer(1)}, {integer(2)}}}, Table{{"B"}, {{integer(3)}}}};
    TLiveStoredProc proc("Uloz");
    proc.Exec(true);
    proc.Next();
    ASSERT_TRUE(proc.Resume());
    EXPECT_EQ(proc.FieldByName("B").AsInteger(), 3) << "on the first row of the second set";
    EXPECT_FALSE(proc.HasField("A"));
    EXPECT_FALSE(proc.Resume());
    EXPECT_TRUE(proc.Eof());
    EXPECT_FALSE(proc.Resume());
}

TEST_F(LiveStoredProcTest, DropsResultsThatWereNotWanted) {
    connection().answer.Sets = {Table{{"A"}, {{integer(1)}}}};
    TLiveStoredProc proc("Uloz");
    EXPECT_TRUE(proc.Exec(false));
    EXPECT_TRUE(proc.Eof());
    EXPECT_FALSE(proc.HasField("A"));
}

TEST_F(LiveStoredProcTest, AnswersFalseForAFailureTheHostKeptToItself) {
    connection().answer.Success = false;
    connection().answer.Sets = {Table{{"A"}, {{integer(1)}}}};
    TLiveStoredProc proc("Uloz");
    EXPECT_FALSE(proc.Exec(true));
    EXPECT_TRUE(proc.Eof());
}

TEST_F(LiveStoredProcTest, LetsARefusalThroughWithItsCode) {
    connection().fails = true;
    TLiveStoredProc proc("Uloz");
    try {
        proc.Exec(true);
        FAIL() << "nothing was thrown";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Code(), "MV001");
    }
    EXPECT_TRUE(proc.Eof());
}

TEST_F(LiveStoredProcTest, KeepsNoRowsOfBeforeWhenRefused) {
    connection().answer.Sets = {Table{{"A"}, {{integer(1)}}}};
    TLiveStoredProc proc("Uloz");
    proc.Exec(true);
    ASSERT_FALSE(proc.Eof());
    connection().fails = true;
    EXPECT_THROW(proc.Exec(true), EDatabaseError);
    EXPECT_TRUE(proc.Eof());
}

TEST(LiveStoredProc, NeedsAHost) {
    EXPECT_THROW(TLiveStoredProc("Uloz"), EHostError);
}

TEST(LiveQuery, ReadsTheRowsOfItsText) {
    FakeHost host;
    const TScopedHost installed(host);
    host.connection.queryAnswer = Table{{"NAZEV"}, {{text("Brno")}, {text("Praha")}}};
    TLiveQuery query("select NAZEV from SKLAD_V order by NAZEV");
    EXPECT_TRUE(query.Eof());

    query.LiveOpen();

    EXPECT_EQ(host.connection.queries, std::vector<AnsiString>{"select NAZEV from SKLAD_V order by NAZEV"});
    AnsiString all;
    for (; !query.Eof(); query.Next()) {
        all += query.FieldByName("nazev").AsString() + ";";
    }
    EXPECT_EQ(all, "Brno;Praha;");
}

TEST(LiveQuery, StandsOnTheFirstRowWhenOpenedAgain) {
    FakeHost host;
    const TScopedHost installed(host);
    host.connection.queryAnswer = Table{{"NAZEV"}, {{text("Brno")}}};
    TLiveQuery query("select NAZEV from SKLAD_V");
    query.LiveOpen();
    query.Next();
    query.LiveOpen();
    EXPECT_FALSE(query.Eof());
}

TEST(LiveQuery, KeepsNoRowsOfBeforeWhenTheLinkIsLost) {
    FakeHost host;
    const TScopedHost installed(host);
    host.connection.queryAnswer = Table{{"NAZEV"}, {{text("Brno")}}};
    TLiveQuery query("select NAZEV from SKLAD_V");
    query.LiveOpen();
    host.connection.fails = true;
    EXPECT_EQ(messageOf<EDatabaseError>([&] { query.LiveOpen(); }), "Spojení je přerušeno.");
    EXPECT_TRUE(query.Eof());
}

TEST(LiveQuery, NeedsAHost) {
    EXPECT_THROW(TLiveQuery("select 1"), EHostError);
}

} // namespace
