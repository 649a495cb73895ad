#include "refhost/commands/DataCommands.h"

#include "host/Exceptions.h"
#include "refhost/Languages.h"
#include "tests/refhost/ScreenRows.h"
#include "tests/support/RecordingHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace refhost {

namespace {

using testing::ElementsAre;

class DataCommandsTest : public testing::Test {
protected:
    /// Runs the command line and returns the printed lines.
    std::vector<std::string> run(const std::vector<std::string>& words, const std::string& input = {}) {
        std::istringstream in(input);
        std::ostringstream out;
        runDataCommand(parseCommandLine(words), {database_, settings_, languages_, in, out});
        std::vector<std::string> lines;
        std::istringstream printed(out.str());
        for (std::string line; std::getline(printed, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    RecordingConnection database_;
    TFormatSettings settings_ = TFormatSettings::Czech();
    Languages languages_{"cs"};
};

TEST_F(DataCommandsTest, ACallSendsTextsInOrderAndPrintsEverySetAndTheOutputs) {
    database_.procedure("X")
        .inputs({"a_B", "a_A"})
        .outputs({"a_OBNOVDATA"})
        .returns({{.Columns = {"Nazev", "ID"}, .Rows = {{AnsiString("Praha"), std::int64_t{7}}, {TDbValue(), 1.5}}},
                  {.Columns = {"SAZBA"}, .Rows = {{AnsiString("21 %")}}}})
        .setsOutputs({{"a_OBNOVDATA", true}});

    const auto lines = run({"--call", "X", "a_B=1", "a_A="});

    EXPECT_THAT(database_.calls(), ElementsAre(R"(X(a_B="1", a_A="") open)"));
    EXPECT_THAT(lines, ElementsAre(R"({"set":1,"row":{"NAZEV":"Praha","ID":"7"}})",
                                   R"({"set":1,"row":{"NAZEV":null,"ID":"1,5"}})", // the locale's comma
                                   R"({"set":2,"row":{"SAZBA":"21 %"}})", R"({"out":{"A_OBNOVDATA":"1"}})"));
}

TEST_F(DataCommandsTest, ACallWithoutRowsAndOutputsPrintsNothing) {
    database_.procedure("X");
    EXPECT_THAT(run({"--call", "X"}), ElementsAre());
}

TEST_F(DataCommandsTest, ARefusedCallIsAnError) {
    database_.procedure("X").refusesCall(1, "Doklad je uzavřený.");
    EXPECT_THROW(run({"--call", "X"}), EDatabaseError);
}

TEST_F(DataCommandsTest, ABatchGoesOnAfterARefusalAndCountsEveryCall) {
    database_.procedure("X").refusesCall(1, "Doklad je uzavřený.").returns({resultTable({"A"}, {{"1"}})});

    const auto lines = run({"--call", "--batch"}, "{\"call\":\"X\"}\n\nnot json\n{\"call\":\"X\"}\n");

    EXPECT_THAT(lines, ElementsAre(R"({"error":"Doklad je uzavřený."})", R"({"done":1})",
                                   testing::StartsWith(R"({"error":"The line is no JSON object)"), R"({"done":2})",
                                   R"({"set":1,"row":{"A":"1"}})", R"({"done":3})"));
}

TEST_F(DataCommandsTest, AQueryPrintsItsRows) {
    database_.answerQuery("select 1", resultTable({"jedna"}, {{"1"}}));
    EXPECT_THAT(run({"--query", "select 1"}), ElementsAre(R"({"JEDNA":"1"})"));
}

TEST_F(DataCommandsTest, DocumentsAreListedWithTheirState) {
    TResultTable notes = deliveryNotes();
    notes.Rows[2][3] = TDbValue(); // an order may have no supplier yet
    database_.answerQuery("select * from SCREEN_DODOBJ_V order by _ID", notes);

    EXPECT_THAT(run({"--documents", "DODOBJ"}),
                ElementsAre(R"({"id":101,"number":"DL-9","supplier":"Železárny","open":true,"lines":2})",
                            R"({"id":102,"number":"DL-10","supplier":"Čapek","open":false,"lines":10})",
                            R"({"id":103,"number":"DL-11","supplier":null,"open":true,"lines":0})"));
}

TEST_F(DataCommandsTest, AnUnknownScreenIsAnError) {
    EXPECT_THROW(run({"--documents", "dodak"}), EHostError);
}

TEST_F(DataCommandsTest, LinesOfADocumentArePrintedWithTheColumnsOfTheScreen) {
    database_.answerQuery("select * from SCREEN_DODAK_V where _ID = 101", deliveryNotes());
    database_.answerQuery("select * from SCREEN_DODAK_LINES_V where _DOCID = 101 order by PORADI, _ID", linesOf(101));

    EXPECT_THAT(run({"--show", "DODAK", "--document", "101"}),
                ElementsAre(R"({"PORADI":"1","SKLADPOL":"Položka dokladu 101","MNOZSTVI":"1,5"})"));
}

TEST_F(DataCommandsTest, ADocumentThatTheScreenLacksIsAnError) {
    database_.answerQuery("select * from SCREEN_DODAK_V where _ID = 5", {.Columns = {"_ID"}, .Rows = {}});
    EXPECT_THROW(run({"--show", "DODAK", "--document", "5"}), EHostError);
}

} // namespace

} // namespace refhost
