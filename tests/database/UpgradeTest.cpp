#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "refhost/database/SchemaVersion.h"
#include "tests/database/VersionOne.h"

#include <gmock/gmock.h>
#include <map>

namespace refhost {
namespace {

using testing::HasSubstr;

/// The columns that the first version's tables had, by which their rows are compared.
const std::map<std::string, std::string> c_Tables{
    {"UZIVATEL", "ID, JMENO"},
    {"SKLAD", "ID, NAZEV"},
    {"DODAVATEL", "ID, JMENO, MESTO"},
    {"DPH", "ID, NAZEV, SAZBA, PLATIOD, PLATIDO"},
    {"SKUPSPOL1", "ID, NAZEV"},
    {"SKUPSPOL2", "ID, SSP1ID, NAZEV"},
    {"SKUPSPOL3", "ID, SSP2ID, NAZEV"},
    {"SKLADPOL", "ID, NAZEV, SSP3ID, DPHID, TRVANLIVOSTDNU, AKTIVNI"},
    {"SKPL", "ID, SKLPID, PORADI, NAZEV, FAKTOR"},
    {"DODCENIK", "ID, DODVID, SKLPID, PLATIOD, PLATIDO, CENA, SLEVA"},
    {"DODOBJEDNAVKA", "ID, VZOR, CISLO, NAZEV, OBJEDNANIDC, DODVID, SKLDID, OTEVRENO"},
    {"DODOBJPOL", "ID, DDOBID, PORADI, SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI, DODANO, KOMPLETNI, POPIS, KOMENTAR"},
    {"DODAK", "ID, CISLO, DATUM, DODVID, SKLDID, OTEVRENO"},
    {"DODAKPOL", "ID, DODKID, PORADI, SKLPID, SKLDID, DPHID, MNOZSTVI, SLEVA, JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, "
                 "JEDNDPHBBEZSLEVY, JEDNCENASBEZSLEVY, JEDNCENABSESLEVOU, CENASSESLEVOU, TRVANLIVOST, DOBSID"},
    {"DODAKZDROJ", "ID, DODKID, DODKIDZDROJ, DDOBIDZDROJ"},
    {"EDITORNASTAVENI", "ID, UZIVID, TYPEDITACE, NAZEV, KOMENTAR, SDILENE, DATA"},
    {"EDITORNASTAVENIDEF", "UZIVID, TYPEDITACE, NASTAVENIID"},
    {"EDITOROKNO", "UZIVID, TYPEDITACE, DATA"},
};

std::map<std::string, std::vector<std::string>> contents(const std::string& url) {
    BareConnection database(url);
    std::map<std::string, std::vector<std::string>> all;
    for (const auto& [table, columns] : c_Tables) {
        const std::string schema = url.starts_with("sqlite:") ? "" : "melvark.";
        all[table] = database.rows("select " + columns + " from " + schema + table + " order by 1, 2");
    }
    return all;
}

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
    const auto before = contents(url);
    ASSERT_EQ(before.at("DODAKPOL").size(), 13U);
    ASSERT_EQ(before.at("DODOBJPOL").size(), 32U);

    const UpgradeReport report = upgraded(url);

    EXPECT_EQ(report.From, 1);
    EXPECT_TRUE(report.Kept.empty()) << report.Kept.front();
    EXPECT_EQ(contents(url), before);
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

TEST_P(Upgrade, ASecondUpgradeHasNothingToDo) {
    const std::string url = versionOneUrl(GetParam());
    upgraded(url);
    const UpgradeReport again = upgraded(url);
    EXPECT_EQ(again.From, c_SchemaVersion);
    EXPECT_EQ(again.Copy, "");
}

INSTANTIATE_TEST_SUITE_P(Engines, Upgrade, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return engineName(row.param); });

} // namespace
} // namespace refhost
