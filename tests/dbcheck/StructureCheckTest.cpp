#include "refhost/dbcheck/StructureCheck.h"

#include "refhost/database/Databases.h"
#include "tests/dbcheck/Broken.h"
#include "tests/dbcheck/StructureFaults.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>

namespace refhost {
namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

class HealthyDatabase : public testing::TestWithParam<Engine> {};
class FaultOfStructure : public testing::TestWithParam<Fault> {};

CheckCommandLine commandLineFor(Engine engine, const std::string& url) {
    CheckCommandLine commandLine;
    commandLine.database = checkedAddress(engine, url);
    commandLine.user = "novakova";
    return commandLine;
}

std::string bytesOf(const std::string& sqliteUrl) {
    std::ostringstream bytes;
    bytes << std::ifstream(sqliteUrl.substr(std::string("sqlite:").size()), std::ios::binary).rdbuf();
    return bytes.str();
}

TEST_P(HealthyDatabase, HasNoFinding) {
    const std::string url = newDatabaseUrl(GetParam());
    EXPECT_THAT(sentencesOf(inspect(commandLineFor(GetParam(), url))), IsEmpty());
}

TEST_P(HealthyDatabase, MayHaveMoreThanTheContractNames) {
    const std::string url = newDatabaseUrl(GetParam());
    const std::string end =
        GetParam() == Engine::SQLite ? "" : "; grant select on SKLAD_V to melvark_clerk, melvark_owner";
    runIn(checkedAddress(GetParam(), url),
          "drop view SKLAD_V; create view SKLAD_V as select ID, NAZEV, 1 as DALSI from SKLAD" + end);
    EXPECT_THAT(sentencesOf(inspect(commandLineFor(GetParam(), url))), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(OnBothEngines, HealthyDatabase, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& each) { return engineName(each.param); });

TEST_P(FaultOfStructure, IsFoundAndNamed) {
    const BrokenDatabase database(GetParam());
    EXPECT_THAT(sentencesOf(inspect(database.commandLine())), ElementsAreArray(GetParam().Sentences));
}

INSTANTIATE_TEST_SUITE_P(Each, FaultOfStructure, testing::ValuesIn(structureFaults()),
                         [](const auto& each) { return engineName(each.param.On) + each.param.Name; });

TEST(StructureCheck, LeavesAFileAsItWasToTheLastByte) {
    const std::string url = newDatabaseUrl(Engine::SQLite);
    const std::string before = bytesOf(url);
    ASSERT_FALSE(before.empty());
    inspect(commandLineFor(Engine::SQLite, url));
    EXPECT_EQ(bytesOf(url), before);
}

TEST(StructureCheck, LeavesTheLogOfACrashedProgramUnderWay) {
    // What a program that died has left in the log is in the file only when somebody who writes opens it.
    const std::string url = newDatabaseUrl(Engine::SQLite);
    const auto working = openAs(url, "novakova");
    const std::string before = bytesOf(url);
    working->runScript("insert into SKLAD (NAZEV) values ('Nový')");
    inspect(commandLineFor(Engine::SQLite, url));
    EXPECT_EQ(bytesOf(url), before);
}

TEST(StructureCheck, WritesNothingEvenWhenAProcedureOfTheServerTriesTo) {
    const std::string url = newDatabaseUrl(Engine::PostgreSQL);
    runIn(checkedAddress(Engine::PostgreSQL, url),
          "create or replace function MELVARKEDITORDodakInit() returns setof refcursor language plpgsql as $$ "
          "begin insert into SKLAD (NAZEV) values ('Zapsaný'); return; end $$");
    EXPECT_THAT(sentencesOf(inspect(commandLineFor(Engine::PostgreSQL, url))),
                ElementsAreArray({"Procedura MELVARKEDITORDodakInit nemůže běžet. Opravte ji. (…)"}));
    const auto database = openAs(url, "novakova");
    EXPECT_THAT(database->Query("select NAZEV from SKLAD_V").Rows, IsEmpty());
}

TEST(StructureCheck, AnInspectorRefusesToWriteOnEitherEngine) {
    for (const Engine engine : {Engine::SQLite, Engine::PostgreSQL}) {
        const std::string url = newDatabaseUrl(engine);
        const auto inspector =
            inspectDatabase(checkedAddress(engine, url), "novakova", TFormatSettings::Czech(), std::string());
        EXPECT_THROW(inspector->call({"MELVARKEDITORNASTAVENIUlozNastaveniOkna",
                                      {{"a_TYPEDITACE", std::int64_t{1}}, {"a_DATA", AnsiString("x")}},
                                      false}),
                     EDatabaseError)
            << engineName(engine);
    }
}

TEST(StructureCheck, ADatabaseOutOfReachIsNoFinding) {
    CheckCommandLine commandLine;
    commandLine.database = "sqlite:/nowhere/company.db";
    EXPECT_THROW(inspect(commandLine), EDatabaseError);
    commandLine.database = "postgresql:host=/nowhere dbname=company";
    EXPECT_THROW(inspect(commandLine), EDatabaseError);
}

/// Loses its link at the first question.
class LostDatabase : public DatabaseInspector {
public:
    bool hasSchema() override { return true; }
    std::optional<ProcedureDeclaration> procedure(const AnsiString& /*name*/) override { lose(); }
    DeclaredNames columns(const AnsiString& /*sql*/) override { lose(); }
    TCallResult call(const TProcedureCall& /*call*/) override { lose(); }
    TResultTable query(const AnsiString& /*sql*/) override { lose(); }
    bool hasRoles() const override { return false; }
    bool hasRole(std::string_view /*role*/) override { lose(); }
    bool mayEnter(std::string_view /*role*/) override { lose(); }
    bool mayCall(std::string_view /*role*/, std::string_view /*name*/) override { lose(); }
    bool mayRead(std::string_view /*role*/, std::string_view /*view*/) override { lose(); }
    std::vector<std::string> writable(std::string_view /*role*/) override { lose(); }

private:
    [[noreturn]] static void lose() { throw EDatabaseError("Spojení je ztraceno.", "ML916"); }
};

TEST(StructureCheck, ALostLinkEndsTheCheckAndBlamesNoProcedure) {
    LostDatabase database;
    EXPECT_THROW(checkStructure(contract(), database), EDatabaseError);
}

} // namespace
} // namespace refhost
