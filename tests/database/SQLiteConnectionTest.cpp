#include "refhost/database/EmbeddedSql.h"
#include "tests/database/SQLiteFile.h"

#include <gmock/gmock.h>
#include <limits>

namespace refhost {
namespace {

using testing::ElementsAre;

TEST(SQLiteConnection, EveryProcedureIsPreparedAndDeclaresItsParametersAndResults) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    int procedures = 0;
    for (const SqlFile& script : sqliteFiles()) {
        if (!script.Path.starts_with("procedures/")) {
            continue;
        }
        ++procedures;
        EXPECT_NO_THROW(database->Describe(std::string(sqlObjectName(script)))) << script.Path;
    }
    EXPECT_EQ(procedures, 43);
}

TEST(SQLiteConnection, TellsTheEnginesVersion) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    const TResultTable version = database->Query("select sqlite_version() as VERZE");
    EXPECT_EQ(database->engine(), "SQLite " + std::get<AnsiString>(version.Rows.at(0).at(0)));
}

TEST(SQLiteConnection, NamesOfProceduresAndParametersAreMatchedInAnyCase) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    const TProcedureInfo info = database->Describe("melvarkeditordodakOBNOVDATA");
    EXPECT_THAT(info.Inputs, ElementsAre("a_DODKID"));
    EXPECT_THAT(info.Outputs, ElementsAre("a_OBNOVDATA"));
    const TCallResult result =
        database->Execute(procedureCall("melvarkeditordodakOBNOVDATA", {{"A_dodkid", std::int64_t{1}}}));
    ASSERT_EQ(result.Outputs.size(), 1U);
    EXPECT_EQ(std::get<std::int64_t>(result.Outputs.front().Value), 1);
}

TEST(SQLiteConnection, UnknownNamesAreRefused) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    EXPECT_EQ(refusalCode([&] { database->Describe("MELVARKEDITORNic"); }), "ML918");
    EXPECT_EQ(refusalCode([&] {
                  database->Execute(procedureCall("MELVARKEDITORDodakCheckMaster", {{"a_ID", std::int64_t{1}}}));
              }),
              "ML919");
}

struct ParameterCase {
    const char* Name;
    TDbValue DocumentId; ///< Of a delivery note.
    const char* Code;
};

TEST(SQLiteConnection, AnIntegerParameterTakesWhatIsAnInteger) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    const ParameterCase cases[] = {
        {"integer", std::int64_t{1}, "none"},
        {"digits", "1", "none"},
        {"blanks around", " 1 ", "none"},
        {"floating point without decimals", 1.0, "none"},
        {"boolean: 1 is the note", true, "none"},
        {"exponent", "1e0", "ML003"},
        {"decimals", 1.5, "ML003"},
        {"full-width digits", "１", "ML003"},
        {"not a number", std::numeric_limits<double>::quiet_NaN(), "ML003"},
        {"beyond 32 bits", std::int64_t{1} << 40, "ML003"},
        {"empty text", "", "ML003"},
        {"null: there is no such note", {}, "ML010"},
        {"NUL", AnsiString("1\0", 2), "ML007"},
    };
    for (const ParameterCase& c : cases) {
        EXPECT_EQ(refusalCode([&] {
                      database->Execute(procedureCall("MELVARKEDITORDodakCheckMaster", {{"a_DODKID", c.DocumentId}}));
                  }),
                  c.Code)
            << c.Name;
    }
}

TEST(SQLiteConnection, ATextIsKeptWholeOrRefused) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    const auto save = [&](const TDbValue& data) {
        database->Execute(procedureCall("MELVARKEDITORNASTAVENIUlozNastaveniOkna",
                                        {{"a_TYPEDITACE", std::int64_t{0}}, {"a_DATA", data}}));
    };
    const AnsiString odd = "'; drop table DODAK; -- % _ \"日本\"";
    save(odd);
    EXPECT_EQ(rowsText(*database, "select DATA from EDITOROKNO"), odd);
    EXPECT_EQ(refusalCode([&] { save(AnsiString("a\0b", 3)); }), "ML007");
    EXPECT_EQ(refusalCode([&] { save("\xC3("); }), "ML009");
    EXPECT_EQ(rowsText(*database, "select DATA from EDITOROKNO"), odd);
}

TEST(SQLiteConnection, ANumberInFloatingPointIsItsShortestDecimal) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    database->Execute(procedureCall("MELVARKEDITORResetTemp"));
    database->Execute(procedureCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", "Mléko"}, {"a_MNOZSTVI", 0.1}}));
    database->Execute(procedureCall("MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{1}}}));
    EXPECT_EQ(rowsText(*database, "select MNOZSTVI from DODAKPOL"), "0.1");
}

TEST(SQLiteConnection, ResultSetsThatAreNotOpenedAreDropped) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    TProcedureCall call = procedureCall("MELVARKEDITORDodakInit");
    EXPECT_EQ(database->Execute(call).Sets.size(), 3U);
    call.Open = false;
    EXPECT_TRUE(database->Execute(call).Sets.empty());
}

TEST(SQLiteConnection, AQueryIsOneReadingStatement) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    for (const char* sql :
         {"delete from DODAK", "select 1; select 2", "", "-- nothing", "pragma foreign_keys = off",
          "attach ':memory:' as OTHER", "create temp table T (X)", "begin", "update STAGING set STATE = 'open'",
          "pragma journal_mode", "insert into SKLAD (NAZEV) values ('X') returning ID"}) {
        EXPECT_EQ(refusalCode([&] { database->Query(sql); }), "ML920") << sql;
    }
    EXPECT_EQ(refusalCode([&] { database->Query(AnsiString("select 1\0", 9)); }), "ML007");
    EXPECT_EQ(rowsText(*database, "with N as (select CISLO from DODAK) select CISLO from N order by CISLO"),
              "DL-1|DL-2");
}

TEST(SQLiteConnection, AFailedQueryOfTheAdministratorNamesNoRefusal) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    EXPECT_EQ(refusalCode([&] { database->Query("select NIC from DODAK"); }), "ML930");
}

TEST(SQLiteConnection, RowsAreInsertedTogetherOrNotAtAll) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    const std::vector<std::string> columns{"ID", "NAZEV"};
    const std::vector<std::vector<TDbValue>> rows{{std::int64_t{7}, "Vedlejší sklad"},
                                                  {std::int64_t{8}, "Hlavní sklad"}};
    EXPECT_THROW(database->insertRows("SKLAD", columns, rows), EDatabaseError);
    EXPECT_EQ(rowsText(*database, "select NAZEV from SKLAD"), "Hlavní sklad");
    database->insertRows("SKLAD", columns, std::span(rows).first(1));
    EXPECT_EQ(rowsText(*database, "select ID, NAZEV from SKLAD order by ID"), "1,Hlavní sklad|7,Vedlejší sklad");
}

TEST(SQLiteConnection, ForeignKeysAreWatched) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    EXPECT_THROW(database->runScript("delete from SKLAD"), EDatabaseError);
}

TEST(SQLiteConnection, APriceListOfOneItemDoesNotOverlap) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    const auto list = [&](const std::string& from, const std::string& to) {
        database->runScript("insert into DODCENIK (DODVID, SKLPID, PLATIOD, PLATIDO, CENA) values (1, 1, '" + from +
                            "', " + to + ", '1')");
    };
    list("2026-01-01", "'2026-03-31'");
    list("2026-04-01", "null");
    EXPECT_THROW(list("2026-03-31", "'2026-03-31'"), EDatabaseError);
    EXPECT_THROW(list("2030-01-01", "null"), EDatabaseError);
    list("2025-01-01", "'2025-12-31'");
    EXPECT_THROW(database->runScript("update DODCENIK set PLATIDO = '2026-01-01' where PLATIOD = '2025-01-01'"),
                 EDatabaseError);
}

} // namespace
} // namespace refhost
