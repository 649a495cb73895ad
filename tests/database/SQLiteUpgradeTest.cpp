#include "refhost/database/SQLiteUpgrade.h"

#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "refhost/database/SchemaVersion.h"
#include "tests/database/CompanyPicture.h"
#include "tests/database/CountedWrites.h"
#include "tests/database/Interruption.h"
#include "tests/database/VersionOne.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string pathOf(const std::string& url) {
    return url.substr(std::string("sqlite:").size());
}

EDatabaseError failureOf(const std::string& url) {
    try {
        upgradeDatabase(url);
    } catch (const EDatabaseError& error) {
        return error;
    }
    return EDatabaseError("no failure");
}

TEST(SQLiteUpgrade, TheSchemaIsThatOfANewCompany) {
    const std::string url = versionOneUrl(Engine::SQLite);
    upgraded(url);
    EXPECT_EQ(schemaOf(url), schemaOf(newDatabaseUrl(Engine::SQLite)));
}

TEST(SQLiteUpgrade, TheCopyIsTheCompanyAsItWasAndItsOwnersAlone) {
    const std::string url = versionOneUrl(Engine::SQLite);
    const UpgradeReport report = upgraded(url);

    EXPECT_EQ(report.Copy, pathOf(url) + ".version-1");
    EXPECT_EQ(std::filesystem::status(report.Copy).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    BareConnection copy("sqlite:" + report.Copy);
    EXPECT_THAT(copy.rows("pragma user_version"), ElementsAre("1"));
    EXPECT_THAT(copy.rows("select count(*) from DODAKPOL"), ElementsAre("13"));
    EXPECT_THAT(copy.rows("pragma integrity_check"), ElementsAre("ok"));
}

TEST(SQLiteUpgrade, ACopyNeverReplacesAnotherFile) {
    const std::string url = versionOneUrl(Engine::SQLite);
    BareConnection("sqlite:" + pathOf(url) + ".version-1").run("create table MINE (A integer)");
    EXPECT_EQ(upgraded(url).Copy, pathOf(url) + ".version-1-2");
    EXPECT_THAT(BareConnection("sqlite:" + pathOf(url) + ".version-1").rows("select count(*) from MINE"),
                ElementsAre("0"));
}

TEST(SQLiteUpgrade, WhatIsNotOursStaysAlsoOnOurTables) {
    const std::string url = versionOneUrl(Engine::SQLite);
    BareConnection(url).run(
        "create table POZNAMKA (DODKID integer references DODAK (ID), TEXT text);"
        "insert into POZNAMKA values (1087, 'volat');"
        "create index MUJ_INDEX on DODAKPOL (SKLPID);"
        "create trigger MUJ_TRIGGER after update on DODAK begin insert into POZNAMKA values (new.ID, 'změna'); end;"
        "create view MUJ_POHLED as select p.TEXT, d.CISLO from POZNAMKA p join SCREEN_DODAK_V d on d._ID = p.DODKID");

    upgraded(url);

    BareConnection database(url);
    database.run("update DODAK set OTEVRENO = OTEVRENO where ID = 1089");
    EXPECT_THAT(database.rows("select DODKID, TEXT from POZNAMKA order by DODKID"),
                ElementsAre("1087,volat", "1089,změna"));
    EXPECT_THAT(database.rows("select TEXT from MUJ_POHLED order by TEXT"), ElementsAre("volat", "změna"));
    EXPECT_THAT(database.rows("select tbl_name from sqlite_schema where name = 'MUJ_INDEX'"), ElementsAre("DODAKPOL"));
    EXPECT_THAT(database.rows("select \"table\" from pragma_foreign_key_list('POZNAMKA')"), ElementsAre("DODAK"));
}

TEST(SQLiteUpgrade, AnIdentifierOfADeletedDocumentIsNotGivenAgain) {
    const std::string url = versionOneUrl(Engine::SQLite);
    BareConnection database(url);
    database.run(
        "insert into DODAK (ID, CISLO, DATUM, DODVID, SKLDID) select 7000, 'X', DATUM, DODVID, SKLDID from DODAK "
        "where ID = 1087; delete from DODAK where ID = 7000");
    upgraded(url);
    database.run("insert into DODAK (CISLO, DATUM, DODVID, SKLDID) select 'Y', DATUM, DODVID, SKLDID from DODAK "
                 "where ID = 1087");
    EXPECT_THAT(database.rows("select ID from DODAK where CISLO = 'Y'"), ElementsAre("7001"));
}

TEST(SQLiteUpgrade, AColumnThatTheNewTableLacksIsNamedAndNothingChanges) {
    const std::string url = versionOneUrl(Engine::SQLite);
    BareConnection database(url);
    database.run("alter table SKLAD add column VEDOUCI text");
    const std::vector<std::string> before = schemaOf(url);

    const EDatabaseError error = failureOf(url);

    EXPECT_EQ(error.Code(), "ML926");
    EXPECT_THAT(error.Message(), HasSubstr("„SKLAD“ má navíc sloupec „VEDOUCI“"));
    EXPECT_EQ(schemaOf(url), before);
    EXPECT_THAT(database.rows("pragma user_version"), ElementsAre("1"));
    EXPECT_FALSE(std::filesystem::exists(pathOf(url) + ".version-1")) << "a copy that nobody needs was left";
}

TEST(SQLiteUpgrade, ARowThatBreaksTheNewRulesNamesItsTableAndNothingChanges) {
    const std::string url = versionOneUrl(Engine::SQLite);
    BareConnection database(url);
    database.run("pragma foreign_keys = off; update DODAKPOL set DODKID = 4711 where DODKID = 1087");

    const EDatabaseError error = failureOf(url);

    EXPECT_EQ(error.Code(), "ML927");
    EXPECT_THAT(error.Message(), HasSubstr("„DODAKPOL“"));
    EXPECT_THAT(database.rows("pragma user_version"), ElementsAre("1"));
}

TEST(SQLiteUpgrade, AFullDiskIsToldChangesNothingAndLeavesNoCopy) {
    constexpr int c_ToldSo = 31;
    std::string url = versionOneUrl(Engine::SQLite);
    const auto schema = schemaOf(url);
    const auto rows = contentsOf(url);
    const int writes = interruptedAt(c_NoPoint, versionOneUrl(Engine::SQLite), [](const std::string& other) {
                           upgradeDatabase(other);
                       }).Passed;
    int told = 0;
    atManyPoints(writes, [&](int point) {
        const int status = statusOnFullDisk(point, [&] { return failureOf(url).Code() == "ML923" ? c_ToldSo : 0; });
        if (schemaVersionOf(url) == c_SchemaVersion) { // the last writes need no more room
            url = versionOneUrl(Engine::SQLite);
            return true;
        }
        EXPECT_EQ(status, c_ToldSo) << point;
        EXPECT_EQ(schemaOf(url), schema) << point;
        EXPECT_EQ(contentsOf(url), rows) << point;
        EXPECT_FALSE(std::filesystem::exists(pathOf(url) + ".version-1")) << point;
        ++told;
        return false;
    });
    EXPECT_GT(told, 5);
    EXPECT_EQ(contentsOf(url), rows);
}

/// A company that does not fit the engine's cache is written while its rows are still being taken over.
TEST(SQLiteUpgrade, ADiskThatIsFullBeforeTheRowsAreOverIsNoFaultOfTheRows) {
    constexpr int c_Told = 31;
    constexpr int c_OfTheRows = 32;
    const std::string url = versionOneUrl(Engine::SQLite);
    BareConnection(url).run("update DODOBJPOL set KOMENTAR = hex(zeroblob(2000000)) where DDOBID = 940");
    int copied = 0;
    for (int point = 1; point < 100'000 && copied < 3; point = point * 3 / 2 + 1) {
        std::filesystem::remove(pathOf(url) + ".version-1");
        const int status = statusOnFullDisk(point, [&] {
            const EDatabaseError error = failureOf(url);
            const bool isTakeOver = error.Details().find("insert into DODOBJPOL") != std::string::npos;
            return error.Code() != "ML923" ? c_OfTheRows : isTakeOver ? c_Told : 0;
        });
        if (schemaVersionOf(url) == c_SchemaVersion) {
            break;
        }
        EXPECT_NE(status, c_OfTheRows) << point;
        copied += status == c_Told ? 1 : 0;
    }
    EXPECT_GT(copied, 0) << "the disk was never full among the rows";
}

TEST(SQLiteUpgrade, ACopyThatCannotBeMadeIsToldAndNothingChanges) {
    const std::string url = versionOneUrl(Engine::SQLite);
    const std::filesystem::path file = pathOf(url);
    // The journal's name still fits the system, the copy's does not.
    const std::filesystem::path longName = file.parent_path() / std::string(246, 'd');
    std::filesystem::rename(file, longName);
    const std::string longUrl = "sqlite:" + longName.string();
    const auto schema = schemaOf(longUrl);

    const EDatabaseError error = failureOf(longUrl);

    EXPECT_EQ(error.Code(), "ML934");
    EXPECT_EQ(error.Message(), "Kopii databáze „" + longName.string() +
                                   ".version-1“ nelze založit. Zkontrolujte místo na disku a oprávnění ke složce.");
    EXPECT_EQ(schemaOf(longUrl), schema);
    std::filesystem::remove(longName);
}

TEST(SQLiteUpgrade, AnEmptyFileIsNoCompany) {
    const std::string url = newSQLiteUrl();
    BareConnection(url).rows("pragma user_version");
    EXPECT_EQ(failureOf(url).Code(), "ML922");
}

} // namespace
} // namespace refhost
