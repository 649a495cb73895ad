#include "refhost/database/PostgreSQLUpgrade.h"

#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/VersionOne.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// All that the schema consists of, with rights and comments, one line each.
constexpr const char* c_Schema = R"(
    select 'column ' || c.relname || '.' || a.attname || ' ' || format_type(a.atttypid, a.atttypmod)
           || ' ' || a.attnotnull || ' ' || a.attidentity::text || ' ' || a.attcollation::regcollation
           || ' ' || coalesce(pg_get_expr(d.adbin, d.adrelid), '-')
    from pg_class c
    join pg_attribute a on a.attrelid = c.oid and a.attnum > 0 and not a.attisdropped
    left join pg_attrdef d on d.adrelid = c.oid and d.adnum = a.attnum
    where c.relnamespace = 'melvark'::regnamespace and c.relkind in ('r', 'v', 'c')
    union all
    select 'relation ' || c.relname || ' ' || c.relkind::text || ' ' || c.relowner::regrole
           || ' ' || coalesce(c.relacl::text, '-') || ' ' || coalesce(obj_description(c.oid, 'pg_class'), '-')
           || ' ' || coalesce(obj_description(c.reltype, 'pg_type'), '-')
           || case c.relkind when 'v' then pg_get_viewdef(c.oid) else '' end
    from pg_class c where c.relnamespace = 'melvark'::regnamespace
    union all
    select 'constraint ' || conrelid::regclass || ' ' || conname || ' ' || pg_get_constraintdef(oid)
    from pg_constraint where connamespace = 'melvark'::regnamespace
    union all
    select 'index ' || pg_get_indexdef(indexrelid)
    from pg_index where indrelid in (select oid from pg_class where relnamespace = 'melvark'::regnamespace)
    union all
    select 'trigger ' || pg_get_triggerdef(oid)
    from pg_trigger where not tgisinternal
                          and tgrelid in (select oid from pg_class where relnamespace = 'melvark'::regnamespace)
    union all
    select 'function ' || proowner::regrole || ' ' || coalesce(proacl::text, '-')
           || ' ' || coalesce(obj_description(oid, 'pg_proc'), '-') || pg_get_functiondef(oid)
    from pg_proc where pronamespace = 'melvark'::regnamespace
    union all
    select 'schema ' || obj_description(oid, 'pg_namespace') || nspacl::text
    from pg_namespace where nspname = 'melvark'
    order by 1)";

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
    BareConnection upgraded(url);
    BareConnection fresh(newDatabaseUrl(Engine::PostgreSQL) + " user=postgres");
    upgraded.run("set search_path = pg_catalog");
    fresh.run("set search_path = pg_catalog");
    EXPECT_EQ(upgraded.rows(c_Schema), fresh.rows(c_Schema));
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
