#include "refhost/dbcheck/CheckProgram.h"

#include "refhost/database/Databases.h"
#include "tests/database/ContractCompany.h"
#include "tests/dbcheck/Broken.h"

#include <array>
#include <cstdio>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/wait.h>

namespace refhost {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

struct Outcome {
    int status = -1;
    std::string output;
    std::string errors;
};

Outcome check(const CheckCommandLine& commandLine, const std::string& typed = {}) {
    std::istringstream input(typed);
    std::ostringstream output;
    std::ostringstream errors;
    Outcome outcome;
    outcome.status = runCheck(commandLine, {.input = input, .output = output, .errors = errors});
    outcome.output = output.str();
    outcome.errors = errors.str();
    return outcome;
}

CheckCommandLine fileCommandLine() {
    CheckCommandLine commandLine;
    commandLine.database = newDatabaseUrl(Engine::SQLite);
    return commandLine;
}

/// The built program as a script runs it; errors go to the output.
Outcome runProgram(const std::string& words) {
    Outcome outcome;
    FILE* const program = popen((std::string(CHECK_PROGRAM) + " " + words + " 2>&1").c_str(), "r");
    std::array<char, 4096> part{};
    while (const std::size_t length = fread(part.data(), 1, part.size(), program)) {
        outcome.output.append(part.data(), length);
    }
    outcome.status = WEXITSTATUS(pclose(program));
    return outcome;
}

TEST(CheckProgram, SaysThatAHealthyDatabaseFits) {
    const Outcome outcome = check(fileCommandLine());
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "Databáze vyhovuje.\n");
    EXPECT_THAT(outcome.errors, IsEmpty());
}

TEST(CheckProgram, EndsWithOneForFindings) {
    const CheckCommandLine commandLine = fileCommandLine();
    runIn(commandLine.database, "drop view SKUPSPOL_SKUPSPOL1_V");
    const Outcome outcome = check(commandLine);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("Pohled SKUPSPOL_SKUPSPOL1_V nejde číst."));
    EXPECT_THAT(outcome.output, HasSubstr("no such table: SKUPSPOL_SKUPSPOL1_V"));
    EXPECT_THAT(outcome.output, HasSubstr("Nevyhovuje, nálezů: 1\n"));
}

TEST(CheckProgram, EndsWithTwoWhenTheDatabaseIsOutOfReach) {
    CheckCommandLine commandLine;
    commandLine.database = "sqlite:/nowhere/company.db";
    const Outcome outcome = check(commandLine);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_THAT(outcome.errors, HasSubstr("/nowhere"));
}

TEST(CheckProgram, NeverShowsAPassword) {
    CheckCommandLine commandLine;
    commandLine.database = checkedAddress(Engine::PostgreSQL, newDatabaseUrl(Engine::PostgreSQL)) + " password=tajne";
    commandLine.json = true;
    const Outcome outcome = check(commandLine);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output.find("tajne"), std::string::npos) << outcome.output;
}

TEST(CheckProgram, RunsFromAScript) {
    const std::string database = newDatabaseUrl(Engine::SQLite);
    const Outcome fits = runProgram("--json --database '" + database + "'");
    EXPECT_EQ(fits.status, 0);
    EXPECT_THAT(fits.output, HasSubstr(R"("fits":true)"));
    runIn(database, "drop view SKLAD_V");
    EXPECT_EQ(runProgram("--language en --database '" + database + "'").status, 1);
    EXPECT_EQ(runProgram("--database sqlite:/nowhere/company.db").status, 2);
    const Outcome unknown = runProgram("--databaze x");
    EXPECT_EQ(unknown.status, 2);
    EXPECT_THAT(unknown.output, HasSubstr("melvark-dbcheck [OPTIONS]"));
    EXPECT_EQ(runProgram("--help").status, 0);
}

CheckCommandLine trialCommandLine() {
    CheckCommandLine commandLine = fileCommandLine();
    commandLine.user = "novakova";
    addContractCompany(*openAs(commandLine.database, "novakova"));
    commandLine.screen = "DODAK";
    commandLine.document = static_cast<std::int32_t>(c_OpenNote);
    return commandLine;
}

std::size_t linesOf(const CheckCommandLine& commandLine) {
    return openAs(commandLine.database, "novakova")->Query("select ID from DODAKPOL").Rows.size();
}

TEST(CheckProgram, AsksInTheUsersLanguageBeforeItWrites) {
    CheckCommandLine commandLine = trialCommandLine();
    const std::size_t before = linesOf(commandLine);
    const Outcome declined = check(commandLine, "n\n");
    EXPECT_EQ(declined.status, 2);
    EXPECT_THAT(declined.errors, HasSubstr("Zkouška přidá do dokladu DODAK 2 řádky"));
    EXPECT_THAT(declined.output, IsEmpty());
    EXPECT_EQ(check(commandLine, "").status, 2) << "the end of the input is no yes";
    EXPECT_EQ(linesOf(commandLine), before);

    EXPECT_EQ(check(commandLine, "A\n").status, 0);
    EXPECT_EQ(linesOf(commandLine), before + 4);
    commandLine.language = "en";
    EXPECT_EQ(check(commandLine, "a\n").status, 2);
    const Outcome accepted = check(commandLine, "y\n");
    EXPECT_EQ(accepted.status, 0);
    EXPECT_THAT(accepted.output, HasSubstr("Written: document DODAK 2, new lines: 4\n"));
}

TEST(CheckProgram, AScriptConfirmsBeforehand) {
    CheckCommandLine commandLine = trialCommandLine();
    commandLine.isConfirmed = true;
    commandLine.json = true;
    const Outcome outcome = check(commandLine);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, IsEmpty());
    EXPECT_THAT(outcome.output, HasSubstr(R"({"kind":"lines","object":"DODAK 2","count":4})"));
}

TEST(CheckProgram, TriesNothingInADatabaseWhoseStructureIsWrong) {
    CheckCommandLine commandLine = trialCommandLine();
    commandLine.isConfirmed = true;
    runIn(commandLine.database, "drop view SKUPSPOL_SKUPSPOL1_V");
    const std::size_t before = linesOf(commandLine);
    const Outcome outcome = check(commandLine);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors, HasSubstr("Zkouška neproběhla."));
    EXPECT_EQ(linesOf(commandLine), before);
}

TEST(CheckProgram, ADocumentWithoutAnythingToSaveIsNoFinding) {
    CheckCommandLine commandLine = trialCommandLine();
    commandLine.isConfirmed = true;
    commandLine.screen = "DODOBJ";
    commandLine.document = static_cast<std::int32_t>(c_FreeOrder);
    runIn(commandLine.database, "delete from DODOBJPOL");
    const Outcome outcome = check(commandLine);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, HasSubstr("Zvolte jiný doklad."));
}

} // namespace
} // namespace refhost
