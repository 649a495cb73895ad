#include "refhost/database/Databases.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/ServerCompany.h"
#include "tests/database/UnixLink.h"
#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace refhost {
namespace {

EDatabaseError openingFailure(const std::string& address) {
    return failure([&] { openDatabase("postgresql:" + address, "", TFormatSettings::Czech(), OpenMode::Existing); });
}

TEST(PostgreSQLOpening, ADatabaseThatIsNotThereIsNamed) {
    const EDatabaseError error = openingFailure(PrivateServer::instance().address("nikde", "postgres"));
    EXPECT_EQ(error.Code(), "ML915");
    EXPECT_EQ(error.Message(), "Databáze „nikde“ na serveru není. Zkontrolujte její název, nebo ji nejprve vytvořte.");
}

TEST(PostgreSQLOpening, AServerThatDoesNotRunIsNamed) {
    const EDatabaseError error = openingFailure("host=/nonexistent dbname=x user=y");
    EXPECT_EQ(error.Code(), "ML916");
    EXPECT_EQ(error.Message(), "Server databáze „/nonexistent“ není dostupný. Zkontrolujte jeho adresu a zda běží.");
}

/// A machine that is gone refuses nothing.
TEST(PostgreSQLOpening, AServerThatNeverAnswersDoesNotHideTheOneBehindItInTheList) {
    const ServerCompany company;
    const TemporaryFolder silent("silent");
    const int listening = listenIn(silent.path());
    std::string address = PrivateServer::instance().address(company.name(), "postgres") + " connect_timeout=2";
    address.insert(address.find("host=") + 5, silent.path().string() + ",");
    PostgreSQLConnection database(address, TFormatSettings::Czech());
    EXPECT_EQ(rowsOf(database, "select 1"), "1");
    close(listening);
}

TEST(PostgreSQLOpening, AnAddressThatIsNoneIsRefusedWithoutItsPassword) {
    const EDatabaseError error = openingFailure("host=a password='tajné");
    EXPECT_EQ(error.Code(), "ML915");
    EXPECT_EQ((error.Message() + error.Details()).find("tajné"), std::string::npos);
}

TEST(PostgreSQLOpening, ARoleThatIsNotThereIsRefused) {
    const EDatabaseError error = openingFailure(PrivateServer::instance().address("postgres", "nikdo"));
    EXPECT_EQ(error.Code(), "ML917");
    EXPECT_EQ(error.Message(), "Databáze „postgres“ odmítla přihlášení. Zkontrolujte jméno a heslo.");
}

TEST(PostgreSQLOpening, AWrongPasswordIsRefused) {
    PrivateServer& server = PrivateServer::instance();
    server.addRole("zamceny", "melvark_clerk");
    server.administrator("postgres").execute("alter role zamceny password 'správné'");
    const std::filesystem::path rules = server.folder() / "data" / "pg_hba.conf";
    std::filesystem::copy_file(rules, server.folder() / "pg_hba.conf");
    std::ofstream(rules) << "local all zamceny scram-sha-256\nlocal all all trust\n";
    server.administrator("postgres").execute("select pg_reload_conf()");
    const ServerCompany company;
    ASSERT_TRUE(company.waitFor("select count(*) from pg_hba_file_rules where auth_method = 'scram-sha-256'", "1"));

    const std::string address = server.address(company.name(), "zamceny");
    EXPECT_EQ(openingFailure(address + " password=chybné").Code(), "ML917");
    EXPECT_EQ(openingFailure(address).Code(), "ML917") << "no password at all";
    EXPECT_EQ(openingFailure(address + " password=správné").Message(), "no failure");
}

TEST(PostgreSQLOpening, ADatabaseHasOneAddressWhoeverConnectsInWhicheverWords) {
    PrivateServer& server = PrivateServer::instance();
    server.addRole("dvorak", "melvark_clerk");
    const ServerCompany company;
    const ServerCompany other;
    const auto address = [](const std::string& words) {
        return openDatabase("postgresql:" + words, "", TFormatSettings::Czech(), OpenMode::Existing)->address();
    };
    const std::string place = server.folder().string();
    const std::string own = address(server.address(company.name(), "postgres"));
    EXPECT_EQ(own, "postgresql:" + place + "//5432/" + company.name());
    EXPECT_EQ(address(server.address(company.name(), "dvorak") + " password=tajné"), own);
    EXPECT_EQ(address("dbname=" + company.name() + " port=5432 user=dvorak host=" + place), own);
    EXPECT_NE(address(server.address(other.name(), "postgres")), own);
}

TEST(PostgreSQLOpening, AnEmptyDatabaseHasNoSchemaAndNoProcedures) {
    PrivateServer& server = PrivateServer::instance();
    PostgreSQLConnection database(server.address(server.newEmptyDatabase(), "postgres"), TFormatSettings::Czech());
    EXPECT_FALSE(database.hasSchema());
    EXPECT_EQ(failure([&] { database.Execute(serverCall("MELVARKEDITORDodObjInit")); }).Code(), "ML922");
    EXPECT_EQ(failure([&] { database.Query("select NAZEV from SKLAD_V"); }).Code(), "ML922");
    EXPECT_EQ(rowsOf(database, "select 1"), "1") << "what needs no table is answered";
}

TEST(PostgreSQLOpening, ADatabaseOfAnotherEncodingIsRefusedBeforeAnythingIsMade) {
    PrivateServer& server = PrivateServer::instance();
    server.administrator("postgres").execute("create database latin encoding 'LATIN2' locale 'C' template template0");
    PostgreSQLConnection database(server.address("latin", "postgres"), TFormatSettings::Czech());
    EXPECT_EQ(failure([&] { database.createSchema(); }).Message(),
              "Databáze „latin“ má kódování LATIN2, ale potřebuje UTF8. Založte ji znovu s tímto kódováním.");
    EXPECT_FALSE(database.hasSchema());
}

TEST(PostgreSQLOpening, TheSchemaIsMadeOnce) {
    PrivateServer& server = PrivateServer::instance();
    PostgreSQLConnection database(server.address(server.newEmptyDatabase(), "postgres"), TFormatSettings::Czech());
    database.createSchema();
    EXPECT_TRUE(database.hasSchema());
    EXPECT_EQ(failure([&] { database.createSchema(); }).Code(), "ML921");
    EXPECT_EQ(database.Execute(serverCall("MELVARKEDITORDodObjInit")).Sets.size(), 1U);
}

TEST(PostgreSQLOpening, AClerkMayNotMakeTheSchema) {
    PrivateServer& server = PrivateServer::instance();
    server.addRole("dvorak", "melvark_clerk");
    PostgreSQLConnection database(server.address(server.newEmptyDatabase(), "dvorak"), TFormatSettings::Czech());
    const EDatabaseError error = failure([&] { database.createSchema(); });
    EXPECT_EQ(error.Code(), "ML924");
    EXPECT_FALSE(database.hasSchema());
}

TEST(PostgreSQLOpening, AnotherProgramsSchemaOrAnotherVersionIsRefused) {
    const ServerCompany company;
    company.open()->runScript("comment on schema melvark is 'somebody else''s'");
    EXPECT_EQ(failure([&] { company.open(); }).Code(), "ML913");
    PrivateServer::instance()
        .administrator(company.name())
        .execute("comment on schema melvark is 'Melvark, version 99'");
    EXPECT_EQ(failure([&] { company.open(); }).Code(), "ML914");
}

} // namespace
} // namespace refhost
