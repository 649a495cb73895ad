#include "refhost/database/PostgreSQLUpgrade.h"

#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "tests/database/CompanyPicture.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/VersionOne.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

EDatabaseError failureOf(const std::string& url) {
    try {
        upgradeDatabase(url);
    } catch (const EDatabaseError& error) {
        return error;
    }
    return EDatabaseError("no failure");
}

std::unique_ptr<Database> opened(const std::string& url) {
    return openDatabase(url, "", TFormatSettings::Czech(), OpenMode::Existing);
}

constexpr const char* c_OwnInit =
    "create or replace function melvark.melvarkeditordodobjinit() returns table (uzivatel text) "
    "language sql security definer set search_path = melvark, pg_temp as "
    "$$ select 'vlastní'::text $$";

TEST(PostgreSQLUpgrade, TheSchemaIsThatOfANewCompanyWithItsRights) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    upgraded(url);
    EXPECT_EQ(schemaOf(url), schemaOf(newDatabaseUrl(Engine::PostgreSQL) + " user=postgres"));
}

TEST(PostgreSQLUpgrade, AReplacedProcedureIsNamedAndStays) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    BareConnection(url).run(c_OwnInit);

    const UpgradeReport report = upgraded(url);

    EXPECT_THAT(report.Kept, ElementsAre("melvarkeditordodobjinit"));
    const TCallResult result = opened(url)->Execute({"MELVARKEDITORDodObjInit", {}, true});
    EXPECT_EQ(std::get<AnsiString>(result.Sets.at(0).Rows.at(0).at(0)), "vlastní");
}

TEST(PostgreSQLUpgrade, AProcedureThatWasMadeAnewWithOtherParametersIsTheOnlyOneOfItsName) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    BareConnection(url).run("drop function melvark.melvarkeditordodakcheckmaster;"
                            "create function melvark.melvarkeditordodakcheckmaster("
                            "a_dodkid integer default null, a_navic text default null) returns void "
                            "language sql as ''");

    EXPECT_THAT(upgraded(url).Kept, ElementsAre("melvarkeditordodakcheckmaster"));

    EXPECT_THAT(
        BareConnection(url).rows("select pronargs from pg_proc where proname = 'melvarkeditordodakcheckmaster'"),
        ElementsAre("2"));
    opened(url)->Execute({"MELVARKEDITORDodakCheckMaster", {{"a_DODKID", std::int64_t{-5}}}, false});
}

TEST(PostgreSQLUpgrade, WhatStandsOnOurViewsIsNeverDroppedWithThem) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    BareConnection database(url);
    database.run("create view public.moje as select * from melvark.screen_dodak_v");

    const EDatabaseError error = failureOf(url);

    EXPECT_EQ(error.Code(), "ML929");
    EXPECT_THAT(error.Details(), HasSubstr("moje"));
    EXPECT_THAT(database.rows("select obj_description('melvark'::regnamespace)"), ElementsAre("Melvark, version 1"));
}

TEST(PostgreSQLUpgrade, ATableAndAFunctionOfOnesOwnStay) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    BareConnection database(url);
    database.run("create table melvark.poznamka (dodkid integer references melvark.dodak (id), text text);"
                 "insert into melvark.poznamka values (1087, 'volat');"
                 "create function melvark.pocet_poznamek() returns bigint language sql as "
                 "'select count(*) from melvark.poznamka'");
    EXPECT_THAT(upgraded(url).Kept, ElementsAre());
    EXPECT_THAT(database.rows("select melvark.pocet_poznamek()"), ElementsAre("1"));
}

TEST(PostgreSQLUpgrade, RowsThatAClerkHasStagedAreNotInTheWay) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    BareConnection clerk(url + " user=novakova");
    clerk.run("select melvark.melvarkeditorresettemp();"
              "select melvark.melvarkeditordodakinserttotemp(a_skladpol => '" +
              BareConnection(url)
                  .rows("select nazev from melvark.skladpol where id = (select min(id) from "
                        "melvark.skladpol)")
                  .front() +
              "', a_mnozstvi => '1')");
    EXPECT_EQ(upgraded(url).From, 1);
}

TEST(PostgreSQLUpgrade, ATableThatStandsOnAnotherTypeOfOursIsNeverDropped) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    BareConnection database(url);
    database.run("create table public.moje (cena melvark.price_row)");
    EXPECT_EQ(failureOf(url).Code(), "ML929");
    EXPECT_THAT(database.rows("select count(*) from public.moje"), ElementsAre("0"));
}

TEST(PostgreSQLUpgrade, ACallUnderWayIsWaitedForAndNeverCutShort) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    BareConnection clerk(url);
    clerk.run("begin; update melvark.dodak set otevreno = 1 where id = 1089");
    EXPECT_EQ(failureOf(url).Code(), "ML910");
    clerk.run("commit");
    EXPECT_EQ(upgraded(url).From, 1);
}

TEST(PostgreSQLUpgrade, ARoleThatMakesRolesAndOwnsTheDatabaseUpgradesIt) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    BareConnection(url).run(
        "create role spravce login createrole in role melvark_owner;"
        "do $$ begin execute format('alter database %I owner to spravce', current_database()); end $$");
    EXPECT_EQ(upgraded(url + " user=spravce").From, 1);
    EXPECT_EQ(opened(url)->Execute({"MELVARKEDITORDodObjInit", {}, true}).Sets.size(), 1U);
}

TEST(PostgreSQLUpgrade, AClerkMayNotUpgrade) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    EXPECT_EQ(failureOf(url + " user=novakova").Code(), "ML924");
    EXPECT_THAT(BareConnection(url).rows("select obj_description('melvark'::regnamespace)"),
                ElementsAre("Melvark, version 1"));
}

TEST(PostgreSQLUpgrade, AnEmptyDatabaseIsNoCompany) {
    PrivateServer& server = PrivateServer::instance();
    EXPECT_EQ(failureOf("postgresql:" + server.address(server.newEmptyDatabase(), "postgres")).Code(), "ML922");
}

} // namespace
} // namespace refhost
