#include "tests/database/ServerCompany.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(PostgreSQLConnection, TheUserIsTheConnectingRole) {
    const ServerCompany company;
    const auto database = company.openAs("dvorak", "melvark_clerk");
    EXPECT_EQ(database->user(), "dvorak");
    const TCallResult result = database->Execute(serverCall("MELVARKEDITORDodObjInit"));
    ASSERT_EQ(result.Sets.size(), 1U);
    EXPECT_EQ(std::get<AnsiString>(result.Sets[0].Rows.at(0).at(0)), "dvorak");
}

TEST(PostgreSQLConnection, TellsTheServersVersion) {
    const ServerCompany company;
    const auto database = company.open();
    const TResultTable version = database->Query("select current_setting('server_version') as VERZE");
    EXPECT_EQ(database->engine(), "PostgreSQL " + std::get<AnsiString>(version.Rows.at(0).at(0)));
}

TEST(PostgreSQLConnection, FetchesAllResultSetsInsideTheCall) {
    const ServerCompany company;
    const auto database = company.open();
    const TCallResult result = database->Execute(serverCall("MELVARKEDITORDodakInit"));
    ASSERT_EQ(result.Sets.size(), 3U);
    EXPECT_THAT(result.Sets[0].Columns, ElementsAre("UZIVATEL", "DPHBLIC"));
    EXPECT_THAT(result.Sets[1].Columns, ElementsAre("NAZEV"));
    ASSERT_EQ(result.Sets[1].Rows.size(), 1U);
    EXPECT_EQ(std::get<AnsiString>(result.Sets[1].Rows[0][0]), "12 %");
    ASSERT_EQ(result.Sets[2].Rows.size(), 1U);
    EXPECT_EQ(std::get<AnsiString>(result.Sets[2].Rows[0][0]), "Hlavní sklad");
}

TEST(PostgreSQLConnection, ResultSetsThatNobodyOpensAreDropped) {
    const ServerCompany company;
    const auto database = company.open();
    EXPECT_TRUE(database->Execute({"MELVARKEDITORDodakInit", {}, false}).Sets.empty());
    EXPECT_TRUE(database->Execute({"MELVARKEDITORDodObjInit", {}, false}).Sets.empty());
}

TEST(PostgreSQLConnection, OutputParametersAreNoResultSet) {
    const ServerCompany company;
    const auto database = company.open();
    const TCallResult result =
        database->Execute(serverCall("MELVARKEDITORDodakObnovData", {{"a_DODKID", std::int64_t{1}}}));
    EXPECT_TRUE(result.Sets.empty());
    ASSERT_EQ(result.Outputs.size(), 1U);
    EXPECT_EQ(result.Outputs[0].Name, "a_OBNOVDATA");
    EXPECT_EQ(std::get<std::int64_t>(result.Outputs[0].Value), 1);
}

TEST(PostgreSQLConnection, NamesOfProceduresAndParametersAreMatchedInAnyCase) {
    const ServerCompany company;
    const auto database = company.open();
    const TProcedureInfo info = database->Describe("melvarkeditordodakOBNOVDATA");
    EXPECT_THAT(info.Inputs, ElementsAre("a_DODKID"));
    EXPECT_THAT(info.Outputs, ElementsAre("a_OBNOVDATA"));
    const TCallResult result =
        database->Execute(serverCall("melvarkeditordodakOBNOVDATA", {{"A_dodkid", std::int64_t{99}}}));
    EXPECT_EQ(std::get<std::int64_t>(result.Outputs.at(0).Value), 0);
}

TEST(PostgreSQLConnection, UnknownNamesAreRefused) {
    const ServerCompany company;
    const auto database = company.open();
    const EDatabaseError procedure = failure([&] { database->Describe("MELVARKEDITORNic"); });
    EXPECT_EQ(procedure.Code(), "ML918");
    EXPECT_EQ(procedure.Message(), "Databáze nemá proceduru „MELVARKEDITORNic“. Obraťte se na správce.");
    EXPECT_EQ(failure([&] {
                  database->Execute(serverCall("shown", {{"value", "x"}}));
              }).Code(),
              "ML918")
        << "a function that is none of the contract's procedures";
    const EDatabaseError parameter = failure([&] {
        database->Execute(serverCall("MELVARKEDITORDodakCheckMaster", {{"a_ID", std::int64_t{1}}}));
    });
    EXPECT_EQ(parameter.Code(), "ML919");
    EXPECT_EQ(parameter.Message(), "Procedura MELVARKEDITORDodakCheckMaster nemá parametr a_ID.");
}

TEST(PostgreSQLConnection, ARefusalHasOurCodeAndSentence) {
    const ServerCompany company;
    const auto database = company.open();
    const EDatabaseError refusal = failure([&] {
        database->Execute(serverCall("MELVARKEDITORDodakCheckMaster", {{"a_DODKID", std::int64_t{7}}}));
    });
    EXPECT_EQ(refusal.Code(), "ML010");
    EXPECT_EQ(refusal.Message(), "Dodací list s identifikátorem 7 neexistuje. Obnovte seznam a vyberte jiný.");
}

TEST(PostgreSQLConnection, ANulInATextIsRefusedAndNotCutOff) {
    const ServerCompany company;
    const auto database = company.open();
    const AnsiString text("DL1\0x", 5);
    EXPECT_EQ(failure([&] {
                  database->Execute(serverCall("MELVARKEDITORDodakCheckZdrojDodak", {{"a_DODAKCISLO", text}}));
              }).Code(),
              "ML007");
    EXPECT_EQ(failure([&] { database->Query("select 1" + text); }).Code(), "ML007");
}

TEST(PostgreSQLConnection, AProcedureIsPreparedOnceInASession) {
    const ServerCompany company;
    const auto database = company.open();
    for (std::int64_t id = 1; id <= 3; ++id) {
        database->Execute(serverCall("MELVARKEDITORDodakObnovData", {{"a_DODKID", id}}));
    }
    EXPECT_EQ(rowsOf(*database, "select count(*) from pg_prepared_statements where statement like '%dodakobnovdata(%'"),
              "1");
}

TEST(PostgreSQLConnection, AQueryIsOneReadingStatement) {
    const ServerCompany company;
    const auto database = company.open();
    EXPECT_EQ(rowsOf(*database, "select ID, CISLO, null as NIC from DODAK order by ID"), "1,DL1,-|2,DL2,-");
    EXPECT_THAT(database->Query("select ID as id, CISLO from DODAK").Columns, ElementsAre("ID", "CISLO"));
    for (const char* sql : {"delete from DODAK", "delete from DODAK returning ID", "select 1; select 2", "",
                            "drop table DODAK", "commit", "copy DODAK to stdout", "select 1; delete from DODAK"}) {
        EXPECT_EQ(failure([&] { database->Query(sql); }).Code(), "ML920") << sql;
    }
    EXPECT_EQ(failure([&] { database->Query("select from from"); }).Code(), "ML930") << "a mistake in one statement";
    EXPECT_EQ(rowsOf(*database, "select count(*) from DODAK"), "2");
}

TEST(PostgreSQLConnection, InsertedRowsKeepEveryCharacterAndLaterIdsAreHigher) {
    const ServerCompany company;
    const auto database = company.open();
    const AnsiString name = "a\\b\tc\nd\re'f\"g;h — ř";
    const std::vector<std::string> columns{"ID", "NAZEV"};
    const std::vector<std::vector<TDbValue>> rows{{std::int64_t{500}, name}, {std::int64_t{400}, "\\N"}};
    database->insertRows("SKLAD", columns, rows);
    database->runScript("insert into SKLAD (NAZEV) values ('další')");

    const TResultTable table = database->Query("select ID, NAZEV from SKLAD where ID >= 400 order by ID");
    ASSERT_EQ(table.Rows.size(), 3U);
    EXPECT_EQ(std::get<AnsiString>(table.Rows[0][1]), "\\N");
    EXPECT_EQ(std::get<AnsiString>(table.Rows[1][1]), name);
    EXPECT_EQ(std::get<std::int64_t>(table.Rows[2][0]), 501);
}

TEST(PostgreSQLConnection, NamesSortByCzechRulesWithoutBeingTold) {
    const ServerCompany company;
    const auto database = company.open();
    database->runScript("delete from DODAK; delete from SKLAD;"
                        "insert into SKLAD (NAZEV) values ('Chleba'), ('Houska'), ('Čaj'), ('chalva'), ('Cihla'), "
                        "('Dub'), ('cihla')");
    // Č follows C, Ch follows H, small letters come before capital ones of the same word.
    EXPECT_EQ(rowsOf(*database, "select NAZEV from SKLAD_V order by NAZEV"),
              "cihla|Cihla|Čaj|Dub|Houska|chalva|Chleba");
}

TEST(PostgreSQLConnection, AFailedScriptLeavesNothing) {
    const ServerCompany company;
    const auto database = company.open();
    const EDatabaseError error = failure([&] { database->runScript("delete from DODAK; select 1 / 0"); });
    EXPECT_EQ(error.Code(), "ML930");
    EXPECT_THAT(error.Details(), HasSubstr("22012")) << "the server's own code, for the administrator";
    EXPECT_EQ(rowsOf(*database, "select count(*) from DODAK"), "2");
}

} // namespace
} // namespace refhost
