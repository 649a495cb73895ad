#include "refhost/RunRecords.h"

#include "refhost/CommandLine.h"
#include "refhost/ErrorDisplay.h"
#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

namespace refhost {

namespace {

using testing::ElementsAre;
using testing::StartsWith;

std::string withoutStamp(const std::string& line) {
    return std::regex_replace(line, std::regex(R"(^\{"at":"[^"]*","process":[0-9]+,)"), "{");
}

class RunRecordsTest : public testing::Test {
protected:
    std::string path(const char* name) const { return (folder_.path() / name).string(); }
    std::vector<std::string> linesOf(const char* name) const {
        std::vector<std::string> lines;
        std::ifstream file(path(name));
        for (std::string line; std::getline(file, line);) {
            lines.push_back(withoutStamp(line));
        }
        return lines;
    }
    static std::vector<std::string> recent(const RunRecords& records) {
        std::vector<std::string> lines;
        for (const std::string& line : records.recentCalls().lines()) {
            lines.push_back(withoutStamp(line));
        }
        return lines;
    }

    TemporaryFolder folder_{"run-records"};
};

TEST_F(RunRecordsTest, TraceLogAndLastCallsGetTheSameCallEachAsItMayHaveIt) {
    CommandLine commandLine;
    commandLine.traceFile = path("trace");
    RunRecords records(commandLine);
    records.startLog({.file = path("log"), .values = Values::Hidden});

    records.trace().box("Obnovit práci na DL1?", 36, 6);

    EXPECT_THAT(linesOf("trace"), ElementsAre(R"({"box":"Obnovit práci na DL1?","flags":36,"result":6})"));
    const std::string hidden = R"({"box":null,"flags":36,"result":6})";
    EXPECT_THAT(linesOf("log"), ElementsAre(StartsWith(R"({"started":")" + programVersion() + '"'), hidden));
    EXPECT_THAT(recent(records), ElementsAre(hidden));
}

TEST_F(RunRecordsTest, TheLastCallsHideValuesAlsoWhenTheLogMayShowThem) {
    RunRecords records({});
    records.startLog({.file = path("log"), .values = Values::Shown});
    records.trace().message("Hodnota 7,5", "");
    EXPECT_THAT(linesOf("log"),
                ElementsAre(testing::EndsWith(R"("values":true})"), R"({"message":"Hodnota 7,5","style":""})"));
    EXPECT_THAT(recent(records), ElementsAre(R"({"message":null,"style":""})"));
}

TEST_F(RunRecordsTest, WhatACommandAsksForIsInTheLogAloneAndNotInTheTraceOfAModule) {
    CommandLine commandLine;
    commandLine.traceFile = path("trace");
    RunRecords records(commandLine);
    records.startLog({.file = path("log"), .values = Values::Hidden});

    records.commands().error("Doklad DL1 je uzavřen.", "ML001");

    EXPECT_THAT(linesOf("trace"), ElementsAre());
    EXPECT_THAT(linesOf("log"), ElementsAre(StartsWith(R"({"started":)"), R"({"error":"ML001"})"));
    EXPECT_THAT(recent(records), ElementsAre());
}

TEST_F(RunRecordsTest, WhatEndedTheRunIsInTheLogByItsCodeAndNotInTheTrace) {
    CommandLine commandLine;
    commandLine.traceFile = path("trace");
    RunRecords records(commandLine);
    records.startLog({.file = path("log"), .values = Values::Shown});
    records.failed({.sentence = "Heslo uživatele novak nesouhlasí.", .details = "…", .code = "ML915"});
    EXPECT_THAT(linesOf("trace"), ElementsAre());
    EXPECT_EQ(linesOf("log").back(), R"({"failed":"ML915"})");
    EXPECT_EQ(recent(records).back(), R"({"failed":"ML915"})");
}

TEST_F(RunRecordsTest, OnlyTheLastCallsAreKept) {
    RecentCalls calls(2);
    for (const char* line : {"a", "b", "c"}) {
        calls.add(line);
    }
    EXPECT_THAT(calls.lines(), ElementsAre("b", "c"));
}

} // namespace

} // namespace refhost
