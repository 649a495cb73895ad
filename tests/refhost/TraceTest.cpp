#include "refhost/Trace.h"

#include "host/Exceptions.h"
#include "host/HostServices.h"
#include "host/LiveData.h"
#include "refhost/Json.h"
#include "refhost/TracingConnection.h"
#include "tests/support/RecordingHost.h"

#include <cstdio>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace refhost {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A trace into memory whose lines can be looked at.
class TraceTest : public testing::Test {
protected:
    std::vector<std::string> lines() const {
        std::istringstream text(output_->str());
        std::vector<std::string> result;
        for (std::string line; std::getline(text, line);) {
            result.push_back(line);
        }
        return result;
    }

    /// The lines with the durations, which no test can know, replaced by 0.
    std::vector<std::string> linesWithoutTime() const {
        std::vector<std::string> result = lines();
        for (std::string& line : result) {
            line = std::regex_replace(line, std::regex("\"ms\":[0-9.e-]+"), "\"ms\":0");
        }
        return result;
    }

private:
    std::ostringstream* output_ = new std::ostringstream; // owned by the trace
protected:
    Trace trace_{std::unique_ptr<std::ostream>(output_)};
};

TEST_F(TraceTest, WritesAProcedureWithItsParametersInOrder) {
    TProcedureCall call{.Name = "MELVARKEDITORDodakInit", .Params = {}, .Open = true};
    call.Params = {{"a_DODKID", std::int64_t{12}}, {"a_TEXT", AnsiString("1,5")}, {"a_CENY", true}, {"a_ID", {}}};

    trace_.procedure(call, {.rows = 3, .milliseconds = 1.23456});

    EXPECT_THAT(lines(), ElementsAre(R"({"call":"MELVARKEDITORDodakInit","open":true,)"
                                     R"("params":[["a_DODKID",12],["a_TEXT","1,5"],["a_CENY",true],["a_ID",null]],)"
                                     R"("rows":3,"error":null,"ms":1.235})"));
}

TEST_F(TraceTest, WritesAQueryByItsText) {
    trace_.query("select NAZEV from SKLAD_V order by NAZEV", {.rows = 3, .milliseconds = 0.5});

    EXPECT_THAT(lines(), ElementsAre(R"({"call":"select NAZEV from SKLAD_V order by NAZEV","open":true,)"
                                     R"("params":[],"rows":3,"error":null,"ms":0.5})"));
}

TEST_F(TraceTest, WritesLookupsMessagesBoxesAndErrors) {
    trace_.lookup("Kordan3:DODAK.Normal", "CISLO", "_ID", "_DODVID=3", TLookupPick{"DL-7", "7"});
    trace_.lookup("Kordan3:DODAK.Normal", "CISLO", "_ID", "", std::nullopt);
    trace_.message("Nepodporovaný typ", "O#");
    trace_.box("Obnovit?", 36, 6);
    trace_.error("Doklad je uzavřený.", "ML003");

    EXPECT_THAT(
        lines(),
        ElementsAre(
            R"({"lookup":"Kordan3:DODAK.Normal","display":"CISLO","key":"_ID","condition":"_DODVID=3","picked":"7"})",
            R"({"lookup":"Kordan3:DODAK.Normal","display":"CISLO","key":"_ID","condition":"","picked":null})",
            R"({"message":"Nepodporovaný typ","style":"O#"})", R"({"box":"Obnovit?","flags":36,"result":6})",
            R"({"error":"Doklad je uzavřený."})"));
}

TEST_F(TraceTest, RecordsWhatAModuleAsksOfItsConnection) {
    RecordingConnection database;
    database.procedure("MELVARKEDITORDodakCheckMaster").inputs({"a_DODKID"});
    database.procedure("ROWS").returns({resultTable({"A"}, {{"1"}, {"2"}}), resultTable({"B"}, {{"3"}})});
    database.answerQuery("select NAZEV from SKLAD_V", resultTable({"NAZEV"}, {{"Praha"}}));
    TracingConnection traced(database, trace_);

    traced.Execute({.Name = "MELVARKEDITORDodakCheckMaster", .Params = {{"a_DODKID", std::int64_t{4}}}, .Open = false});
    traced.Execute({.Name = "ROWS", .Params = {}, .Open = true});
    traced.Query("select NAZEV from SKLAD_V");

    // The rows of all result sets are counted together: two and one.
    EXPECT_THAT(
        linesWithoutTime(),
        ElementsAre(
            R"({"call":"MELVARKEDITORDodakCheckMaster","open":false,"params":[["a_DODKID",4]],"rows":0,"error":null,"ms":0})",
            R"({"call":"ROWS","open":true,"params":[],"rows":3,"error":null,"ms":0})",
            R"({"call":"select NAZEV from SKLAD_V","open":true,"params":[],"rows":1,"error":null,"ms":0})"));
}

TEST_F(TraceTest, RecordsARefusalAndPassesItOn) {
    RecordingConnection database;
    database.procedure("X").refusesCall(1, "Doklad je uzavřený.", "ML003");
    database.refuseQuery("select 1", "Spojení se ztratilo.");
    TracingConnection traced(database, trace_);

    EXPECT_THROW(traced.Execute({.Name = "X", .Params = {}, .Open = true}), EDatabaseError);
    EXPECT_THROW(traced.Query("select 1"), EDatabaseError);

    EXPECT_THAT(
        linesWithoutTime(),
        ElementsAre(R"({"call":"X","open":true,"params":[],"rows":0,"error":"Doklad je uzavřený.","ms":0})",
                    R"({"call":"select 1","open":true,"params":[],"rows":0,"error":"Spojení se ztratilo.","ms":0})"));
}

/// Sends rows without waiting, and hears at the next call that the first one was refused.
class SendingConnection : public TConnection {
public:
    TProcedureInfo Describe(const AnsiString&) override { return {}; }
    TCallResult Execute(const TProcedureCall& call) override {
        if (call.Name == "CLOSE") {
            throw EDatabaseError("Položka neexistuje.", "ML043").AboutRow(0);
        }
        TCallResult result;
        result.Answered = false;
        return result;
    }
    TResultTable Query(const AnsiString&) override { return {}; }
};

TEST_F(TraceTest, ARowThatWasOnlySentIsRecordedAsThatAndItsErrorWhereItIsHeardOf) {
    SendingConnection database;
    TracingConnection traced(database, trace_);

    traced.Execute({.Name = "ROW", .Params = {}, .Open = false});
    EXPECT_THROW(traced.Execute({.Name = "CLOSE", .Params = {}, .Open = false}), EDatabaseError);

    EXPECT_THAT(
        linesWithoutTime(),
        ElementsAre(
            R"({"call":"ROW","open":false,"params":[],"rows":0,"error":null,"answered":false,"ms":0})",
            R"({"call":"CLOSE","open":false,"params":[],"rows":0,"error":"Položka neexistuje.","row":0,"ms":0})"));
}

TEST_F(TraceTest, DoesNotRecordTheQuestionWhichParametersAProcedureHas) {
    RecordingConnection database;
    database.procedure("X").inputs({"a_ID"});
    TracingConnection traced(database, trace_);

    EXPECT_THAT(traced.Describe("X").Inputs, ElementsAre("a_ID"));
    EXPECT_THAT(lines(), ElementsAre());
}

/// The lines that a record without values gets of what is done with a trace.
std::vector<std::string> hiddenLines(const std::function<void(Trace& trace)>& work) {
    std::vector<std::string> lines;
    Trace trace;
    trace.addRecord({.write = [&](const std::string& line) { lines.push_back(line); },
                     .values = Values::Hidden,
                     .stamp = [](JsonObject& line) { line.add("at", "noon"); }});
    work(trace);
    return lines;
}

TEST(HiddenTrace, NamesTheCallItsParametersItsRefusalAndItsDuration) {
    TProcedureCall call{.Name = "MELVARKEDITORDodakInit", .Params = {}, .Open = true};
    call.Params = {{"a_DODKID", std::int64_t{12}}, {"a_TEXT", AnsiString("1,5")}, {"a_ID", {}}};
    const auto lines = hiddenLines([&](Trace& trace) {
        trace.procedure(call, {.error = "Doklad „DL1“ je uzavřený.", .code = "ML003", .row = 4, .milliseconds = 1.5});
        trace.procedure(call, {.error = "std::bad_alloc", .milliseconds = 2});
        trace.query("select NAZEV from SKLAD_V where ID = 12", {.rows = 3, .milliseconds = 0.5});
    });
    EXPECT_THAT(lines,
                ElementsAre(R"({"at":"noon","call":"MELVARKEDITORDodakInit","open":true,)"
                            R"("params":["a_DODKID","a_TEXT","a_ID"],"rows":0,"error":"ML003","row":4,"ms":1.5})",
                            R"({"at":"noon","call":"MELVARKEDITORDodakInit","open":true,)"
                            R"("params":["a_DODKID","a_TEXT","a_ID"],"rows":0,"error":"?","ms":2})",
                            R"({"at":"noon","call":"select NAZEV from SKLAD_V where ID = ?","open":true,)"
                            R"("params":[],"rows":3,"error":null,"ms":0.5})"));
}

TEST(HiddenTrace, TellsThatSomethingWasPickedAskedAndShownAndNotWhat) {
    const auto lines = hiddenLines([](Trace& trace) {
        trace.lookup("Kordan3:DODAK.Normal", "CISLO", "_ID", "_DODVID=3", TLookupPick{"DL-7", "7"});
        trace.lookup("Kordan3:DODAK.Normal", "CISLO", "_ID", "", std::nullopt);
        trace.message("Nepodporovaný typ", "O#");
        trace.box("Obnovit?", 36, 6);
        trace.error("Doklad je uzavřený.", "ML003");
        trace.error("Bez kódu.", "");
    });
    const std::string lookup = R"({"at":"noon","lookup":"Kordan3:DODAK.Normal","display":"CISLO","key":"_ID",)";
    EXPECT_THAT(lines, ElementsAre(lookup + R"("condition":"_DODVID=?","picked":true})",
                                   lookup + R"("condition":"","picked":false})",
                                   R"({"at":"noon","message":null,"style":"O#"})",
                                   R"({"at":"noon","box":null,"flags":36,"result":6})",
                                   R"({"at":"noon","error":"ML003"})", R"({"at":"noon","error":"?"})"));
}

TEST(HiddenTrace, KnowsTheCodeOfARefusalThatAConnectionRaises) {
    RecordingConnection database;
    database.procedure("X").refusesCall(1, "Doklad je uzavřený.", "ML003");
    const auto lines = hiddenLines([&](Trace& trace) {
        TracingConnection traced(database, trace);
        EXPECT_THROW(traced.Execute({.Name = "X", .Params = {}, .Open = true}), EDatabaseError);
    });
    EXPECT_THAT(lines, ElementsAre(HasSubstr(R"("error":"ML003")")));
}

TEST(Trace, WithoutAFileRecordsNothing) {
    Trace trace;
    EXPECT_NO_THROW(trace.error("x", ""));
}

TEST(TraceFile, IsAppendedToAndWrittenThroughAtOnce) {
    const std::string path = testing::TempDir() + "melvark-trace-test.jsonl";
    std::remove(path.c_str());
    std::ofstream(path) << "before\n";
    Trace trace(openTraceFile(path));

    trace.error("x", "");

    std::ostringstream content; // read while the trace still has the file open
    content << std::ifstream(path).rdbuf();
    EXPECT_EQ(content.str(), "before\n{\"error\":\"x\"}\n");
    std::remove(path.c_str());
}

TEST(TraceFile, ThatCannotBeOpenedIsNamed) {
    try {
        openTraceFile(testing::TempDir() + "no-such-folder/trace.jsonl");
        FAIL() << "opened";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Code(), "ML935");
        EXPECT_THAT(error.Message(), HasSubstr("no-such-folder/trace.jsonl"));
    }
}

TEST(TraceFile, ThatCannotBeWrittenAnyFurtherDoesNotStopTheWork) {
    auto output = std::make_unique<std::ostringstream>();
    output->setstate(std::ios::badbit);
    Trace trace(std::move(output));

    EXPECT_NO_THROW(trace.error("first", ""));
    EXPECT_NO_THROW(trace.error("second", ""));
}

} // namespace

} // namespace refhost
