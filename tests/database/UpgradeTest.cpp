#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "refhost/database/SchemaVersion.h"
#include "tests/database/CompanyPicture.h"
#include "tests/database/VersionOne.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::HasSubstr;

std::string openingSentence(const std::string& url) {
    try {
        openDatabase(url, "novakova", TFormatSettings::Czech(), OpenMode::Existing);
    } catch (const EDatabaseError& error) {
        return error.Code() + " " + error.Message();
    }
    return "opened";
}

void setVersion(Engine engine, const std::string& url, int version) {
    BareConnection(url).run(engine == Engine::SQLite
                                ? "pragma user_version = " + std::to_string(version)
                                : "comment on schema melvark is 'Melvark, version " + std::to_string(version) + "'");
}

class Upgrade : public testing::TestWithParam<Engine> {};

TEST_P(Upgrade, AnOlderDatabaseIsRefusedAndTheSentenceNamesTheCommand) {
    const std::string url = versionOneUrl(GetParam());
    EXPECT_THAT(openingSentence(url), testing::StartsWith("ML914 Databáze „"));
    EXPECT_THAT(openingSentence(url), HasSubstr("“ je starší než tento program. Převeďte ji příkazem melvark-host "
                                                "--upgrade-database."));
}

TEST_P(Upgrade, ANewerDatabaseIsRefusedBothByOpeningAndByTheUpgrade) {
    const std::string url = newDatabaseUrl(GetParam()) + (GetParam() == Engine::SQLite ? "" : " user=postgres");
    setVersion(GetParam(), url, static_cast<int>(c_SchemaVersion) + 1);
    const char* sentence = "“ je novější než tento program. Nainstalujte program její verze.";
    EXPECT_THAT(openingSentence(url), HasSubstr(sentence));
    try {
        upgradeDatabase(url);
        FAIL() << "the upgrade took a newer database";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Code(), "ML914");
        EXPECT_THAT(error.Message(), HasSubstr(sentence));
    }
}

TEST_P(Upgrade, EveryRowIsStillThereAsItWas) {
    const std::string url = versionOneUrl(GetParam());
    const auto before = contentsOf(url);
    ASSERT_EQ(before.at("DODAKPOL").size(), 13U);
    ASSERT_EQ(before.at("DODOBJPOL").size(), 32U);

    const UpgradeReport report = upgraded(url);

    EXPECT_EQ(report.From, 1);
    EXPECT_TRUE(report.Kept.empty()) << report.Kept.front();
    EXPECT_EQ(contentsOf(url), before);
}

TEST_P(Upgrade, TheUpgradedCompanyOpensAndItsProceduresWork) {
    const std::string url = versionOneUrl(GetParam());
    upgraded(url);

    const auto database = openDatabase(url, "novakova", TFormatSettings::Czech(), OpenMode::Existing);
    EXPECT_TRUE(database->hasSchema());
    const TCallResult lines = database->Execute(
        {"MELVARKEDITORDodakGetPolozkyByDodak",
         {{"a_DODKIDMASTER", std::int64_t{1087}}, {"a_DODKID", std::int64_t{1089}}, {"a_PRENESMNOZSTVI", true}},
         true});
    EXPECT_EQ(lines.Sets.at(0).Rows.size(),
              database->Query("select 1 from SCREEN_DODAK_LINES_V where _DOCID = 1087").Rows.size());
    EXPECT_GT(lines.Sets.at(0).Rows.size(), 0U);
}

TEST_P(Upgrade, ACompanyOfVersionTwoGetsThisProgramsViewsAndFunctionsAndKeepsItsRows) {
    const std::string url = newDatabaseUrl(GetParam()) + (GetParam() == Engine::SQLite ? "" : " user=postgres");
    const auto schema = schemaOf(url);
    const auto rows = contentsOf(url);
    // What that version lacked, and something that its upgrade has to bring back.
    BareConnection(url).run(GetParam() == Engine::SQLite
                                ? "drop table ULOZENI; drop view DODAVATEL_V"
                                : "drop table melvark.ULOZENI; drop function melvark.next_order_id");
    setVersion(GetParam(), url, 2);
    ASSERT_NE(schemaOf(url), schema);

    EXPECT_EQ(upgraded(url).From, 2);

    EXPECT_EQ(schemaOf(url), schema);
    EXPECT_EQ(contentsOf(url), rows);
}

TEST_P(Upgrade, ARowThatBreaksTheNewRulesNamesItsTableAndNothingChanges) {
    const std::string url = versionOneUrl(GetParam());
    const std::string schema = GetParam() == Engine::SQLite ? "" : "melvark.";
    BareConnection(url).run("update " + schema + "DODAKPOL set SLEVA = '150' where DODKID = 1087");
    const auto schemaBefore = schemaOf(url);
    const auto rows = contentsOf(url);

    try {
        upgradeDatabase(url);
        FAIL() << "the upgrade took a discount that no line may have";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Code(), "ML927");
        EXPECT_EQ(error.Message(),
                  "Údaje v tabulce „DODAKPOL“ neodpovídají pravidlům nové verze. Opravte je a převod zopakujte.");
        EXPECT_THAT(error.Details(), HasSubstr("constraint"));
    }

    EXPECT_EQ(schemaOf(url), schemaBefore);
    EXPECT_EQ(contentsOf(url), rows);
}

TEST_P(Upgrade, PricesThatOverlapAreNamedByTheirTable) {
    const std::string url = versionOneUrl(GetParam());
    const bool isServer = GetParam() == Engine::PostgreSQL;
    const std::string prices = isServer ? "melvark.DODCENIK" : "DODCENIK";
    BareConnection database(url);
    database.run(isServer ? "alter table melvark.dodcenik disable trigger user"
                          : "drop trigger DODCENIK_PREKRYV; drop trigger DODCENIK_PREKRYV_ZMENA");
    const std::string first = " where ID = (select min(ID) from " + prices + ")";
    database.run("update " + prices + " set PLATIDO = null" + first + "; insert into " + prices +
                 " (DODVID, SKLPID, PLATIOD, CENA) select DODVID, SKLPID, '2030-01-01', CENA from " + prices + first);

    try {
        upgradeDatabase(url);
        FAIL() << "the upgrade took two prices of one day";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Code(), "ML927");
        EXPECT_THAT(error.Message(), HasSubstr("„DODCENIK“"));
    }
}

TEST_P(Upgrade, ASecondUpgradeHasNothingToDo) {
    const std::string url = versionOneUrl(GetParam());
    upgraded(url);
    const auto routines = [&] {
        return GetParam() == Engine::SQLite
                   ? std::vector<std::string>{}
                   : BareConnection(url).rows(
                         "select oid from pg_proc where pronamespace = 'melvark'::regnamespace order by oid");
    };
    const auto before = routines();

    const UpgradeReport again = upgraded(url);

    EXPECT_EQ(again.From, c_SchemaVersion);
    EXPECT_EQ(again.Copy, "");
    EXPECT_EQ(routines(), before) << "they were made anew";
}

INSTANTIATE_TEST_SUITE_P(Engines, Upgrade, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return engineName(row.param); });

} // namespace
} // namespace refhost
