#include "tests/database/PrivateServer.h"
#include "tests/database/ServerCompany.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

std::unique_ptr<PostgreSQLConnection> clerkOf(const ServerCompany& company) {
    return company.openAs("dvorak", "melvark_clerk");
}

TEST(PostgreSQLRoles, AClerkSavesADeliveryNote) {
    const ServerCompany company;
    const auto clerk = clerkOf(company);
    clerk->Execute(serverCall("MELVARKEDITORResetTemp"));
    clerk->Execute(serverCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", "Mléko"}, {"a_MNOZSTVI", "2,5"}}));
    clerk->Execute(serverCall("MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{1}}}));
    EXPECT_EQ(rowsOf(*clerk, "select SKLADPOL, SKLAD, MNOZSTVI from SCREEN_DODAK_LINES_V where _DOCID = 1"),
              "Mléko,Hlavní sklad,2,5");
}

// After some calls the server keeps a plan, for which functions are no longer called with the owner's rights.
TEST(PostgreSQLRoles, AClerkOpensManyDocumentsInOneSession) {
    const ServerCompany company;
    const auto clerk = clerkOf(company);
    constexpr int c_Documents = 12;
    for (int document = 1; document <= c_Documents; ++document) {
        for (const char* const opening : {"MELVARKEDITORDodakInit", "MELVARKEDITORDodObjInit"}) {
            EXPECT_EQ(failure([&] { clerk->Execute(serverCall(opening)); }).Details(), "") << opening << document;
        }
        for (const char* const reading : {"MELVARKEDITORDodakGetPolozkyByDodak", "MELVARKEDITORDodakCheckMaster"}) {
            const auto call = serverCall(reading, {{"a_DODKID", std::int64_t{1}}});
            EXPECT_EQ(failure([&] { clerk->Execute(call); }).Details(), "") << reading << document;
        }
    }
}

TEST(PostgreSQLRoles, AClerkReadsEveryListAndScreen) {
    const ServerCompany company;
    const auto clerk = clerkOf(company);
    const auto owner = company.open();
    const TResultTable views = owner->Query("select relname from pg_class where relnamespace = 'melvark'::regnamespace "
                                            "and has_table_privilege('melvark_clerk', oid, 'select')");
    EXPECT_EQ(views.Rows.size(), 16U) << "two pick lists, seven lookups, three screens with their lines, new orders";
    for (const std::vector<TDbValue>& view : views.Rows) {
        const AnsiString& name = std::get<AnsiString>(view[0]);
        EXPECT_EQ(failure([&] { clerk->Query("select * from " + name); }).Message(), "no failure") << name;
    }
}

TEST(PostgreSQLRoles, AClerkIsRefusedEveryTable) {
    const ServerCompany company;
    const auto clerk = clerkOf(company);
    const auto owner = company.open();
    const TResultTable tables =
        owner->Query("select relname from pg_class where relnamespace = 'melvark'::regnamespace "
                     "and relkind = 'r' order by relname");
    EXPECT_EQ(tables.Rows.size(), 21U);
    for (const std::vector<TDbValue>& table : tables.Rows) {
        const AnsiString& name = std::get<AnsiString>(table[0]);
        const EDatabaseError reading = failure([&] { clerk->Query("select * from " + name); });
        EXPECT_EQ(reading.Code(), "ML924") << name;
        EXPECT_EQ(reading.Message(),
                  "V databázi „" + company.name() + "“ k tomu nemáte oprávnění. Požádejte o ně správce.");
        EXPECT_EQ(failure([&] { clerk->runScript("delete from " + name); }).Code(), "ML924") << name;
    }
}

TEST(PostgreSQLRoles, AClerkIsRefusedWhatTheProceduresStandOn) {
    const ServerCompany company;
    const auto clerk = clerkOf(company);
    for (const char* sql : {"select * from ITEM_V", "select * from PRICE_V", "select * from DELIVERY_V",
                            "select refuse('ML000', 'x')", "select user_row()", "select parse_number('1')"}) {
        EXPECT_EQ(failure([&] { clerk->Query(sql); }).Code(), "ML924") << sql;
    }
    for (const char* sql :
         {"create table T (A integer)", "create temporary table NOTE_STAGED (A integer)",
          "create function F() returns integer language sql as 'select 1'", "set role melvark_owner"}) {
        EXPECT_EQ(failure([&] { clerk->runScript(sql); }).Code(), "ML924") << sql;
    }
}

TEST(PostgreSQLRoles, WhoIsNoClerkIsRefusedEverything) {
    const ServerCompany company;
    const auto stranger = company.openAs("cizi", "pg_monitor");
    EXPECT_EQ(failure([&] { stranger->Execute(serverCall("MELVARKEDITORDodObjInit")); }).Code(), "ML924");
    EXPECT_EQ(failure([&] { stranger->Query("select * from melvark.SKLAD_V"); }).Code(), "ML924");
}

TEST(PostgreSQLRoles, ASaveDoesNotUseTemporaryTablesThatTheClerkMade) {
    const ServerCompany company;
    PrivateServer::instance()
        .administrator(company.name())
        .execute("grant temporary on database " + company.name() + " to public");
    const auto clerk = clerkOf(company);
    clerk->runScript("create temporary table NOTE_STAGED (PLACE integer, LINE text);"
                     "create temporary table ORDER_STAGED (PLACE integer, LINE text);"
                     "create temporary table ORDER_TARGET (DODVID integer, DDOBID integer);"
                     "grant all on NOTE_STAGED, ORDER_STAGED, ORDER_TARGET to public");
    EXPECT_EQ(failure([&] { clerk->Execute(serverCall("MELVARKEDITORResetTemp")); }).Code(), "ML930");
    clerk->runScript("set melvark.staging = 'open'");
    EXPECT_EQ(failure([&] { clerk->Execute(serverCall("MELVARKEDITORDodakInsertToTemp")); }).Code(), "ML040");
}

TEST(PostgreSQLRoles, ARoleThatMakesRolesAndOwnsTheDatabaseMakesTheCompany) {
    PrivateServer& server = PrivateServer::instance();
    const std::string name = server.newEmptyDatabase();
    PostgreSQLSession administrator = server.administrator("postgres");
    administrator.execute("create role spravce login createrole; alter database " + name + " owner to spravce");

    PostgreSQLConnection company(server.address(name, "spravce"), TFormatSettings::Czech());
    company.createSchema();

    const std::vector<std::string> columns{"NAZEV"};
    const std::vector<std::vector<TDbValue>> rows{{AnsiString("Hlavní sklad")}};
    company.insertRows("SKLAD", columns, rows);
    server.addRole("dvorak", "melvark_clerk");
    PostgreSQLConnection clerk(server.address(name, "dvorak"), TFormatSettings::Czech());
    EXPECT_EQ(rowsOf(clerk, "select NAZEV from SKLAD_V"), "Hlavní sklad");
    EXPECT_EQ(failure([&] { clerk.runScript("create temporary table X (A integer)"); }).Code(), "ML924");
}

TEST(PostgreSQLRoles, ASecondAdministratorNeedsNoGrantForRolesThatSomebodyElseMade) {
    PrivateServer& server = PrivateServer::instance();
    const ServerCompany other; // its making made the roles
    const std::string name = server.newEmptyDatabase();
    PostgreSQLSession administrator = server.administrator("postgres");
    if (PQserverVersion(administrator.handle()) >= 160000) {
        administrator.execute("create role vedouci login createrole; grant melvark_owner to vedouci;"
                              "grant melvark_clerk to vedouci with admin option");
    } else {
        administrator.execute("create role vedouci login createrole");
    }
    administrator.execute("alter database " + name + " owner to vedouci");

    PostgreSQLConnection company(server.address(name, "vedouci"), TFormatSettings::Czech());
    company.createSchema();
    company.runScript("create role vyborny login in role melvark_clerk");

    PostgreSQLConnection clerk(server.address(name, "vyborny"), TFormatSettings::Czech());
    EXPECT_EQ(rowsOf(clerk, "select NAZEV from SKLAD_V"), "");
}

TEST(PostgreSQLRoles, AClerksOwnTablesDoNotReachIntoProcedures) {
    const ServerCompany company;
    PrivateServer::instance()
        .administrator(company.name())
        .execute("grant temporary on database " + company.name() + " to public");
    const auto clerk = clerkOf(company);
    clerk->runScript(
        "create temporary table DODAK (ID integer, OTEVRENO integer); insert into pg_temp.DODAK values (77, 1);"
        "set search_path = pg_temp, melvark");
    const TCallResult result =
        clerk->Execute(serverCall("MELVARKEDITORDodakObnovData", {{"a_DODKID", std::int64_t{77}}}));
    EXPECT_EQ(std::get<std::int64_t>(result.Outputs.at(0).Value), 0) << "the clerk's own table was read";
}

} // namespace
} // namespace refhost
