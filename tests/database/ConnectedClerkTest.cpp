#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "refhost/database/PostgreSQLSession.h"
#include "refhost/database/SchemaVersion.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/VersionOne.h"

#include <chrono>
#include <gmock/gmock.h>
#include <thread>

namespace refhost {
namespace {

using testing::HasSubstr;

const std::string c_Later = std::to_string(c_SchemaVersion + 1);

/// What an upgrade by a later program leaves behind, as far as a connected clerk can see it.
void leaveALaterVersion(Engine engine, const std::string& url) {
    BareConnection(url).run(engine == Engine::SQLite
                                ? "pragma user_version = " + c_Later
                                : "begin; comment on schema melvark is 'Melvark, version " + c_Later +
                                      "';"
                                      "notify melvark_upgraded; commit");
}

std::string sentenceOf(Database& database, const std::string& procedure) {
    try {
        database.Execute({procedure, {}, true});
    } catch (const EDatabaseError& error) {
        return error.Code() + " " + error.Message();
    }
    return "no refusal";
}

/// An upgrade, until the clerk has heard of it: a server's news takes a moment.
void upgradeByALaterProgram(Engine engine, const std::string& url, Database& clerk) {
    leaveALaterVersion(engine, url);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (sentenceOf(clerk, "MELVARKEDITORDodObjInit") == "no refusal" &&
           std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

class ConnectedClerk : public testing::TestWithParam<Engine> {
protected:
    ConnectedClerk()
        : url_(newDatabaseUrl(GetParam())),
          administrator_(url_ + (GetParam() == Engine::SQLite ? "" : " user=postgres")) {}

    std::string url_;
    std::string administrator_;
};

TEST_P(ConnectedClerk, IsToldOfTheUpgradeAndRefusedUntilHeStartsAgain) {
    const auto clerk = openAs(url_, "dvorak");
    EXPECT_EQ(sentenceOf(*clerk, "MELVARKEDITORDodObjInit"), "no refusal");

    upgradeByALaterProgram(GetParam(), administrator_, *clerk);

    const char* sentence = "“ byla mezitím převedena na jinou verzi. Ukončete program a spusťte jej znovu.";
    EXPECT_THAT(sentenceOf(*clerk, "MELVARKEDITORDodObjInit"), HasSubstr(sentence)) << "a procedure that was used";
    EXPECT_THAT(sentenceOf(*clerk, "MELVARKEDITORDodakInit"), HasSubstr(sentence)) << "one that is new to the session";
    EXPECT_THROW(clerk->Query("select NAZEV from SKLAD_V"), EDatabaseError);
    EXPECT_THROW(openAs(url_, "dvorak"), EDatabaseError);
}

TEST_P(ConnectedClerk, IsRefusedInTheMiddleOfASaveWithNothingSaved) {
    const auto clerk = openAs(url_, "dvorak");
    clerk->Execute({"MELVARKEDITORResetTemp", {}, false});

    upgradeByALaterProgram(GetParam(), administrator_, *clerk);

    EXPECT_THAT(sentenceOf(*clerk, "MELVARKEDITORDodakInsertToTemp"), HasSubstr("byla mezitím převedena"));
    EXPECT_THAT(sentenceOf(*clerk, "MELVARKEDITORDodakTempUloz"), HasSubstr("byla mezitím převedena"));
}

INSTANTIATE_TEST_SUITE_P(Engines, ConnectedClerk, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return engineName(row.param); });

TEST(ConnectedClerkOfAServer, HearsOfARealUpgrade) {
    const std::string url = versionOneUrl(Engine::PostgreSQL);
    PostgreSQLSession clerk(url.substr(std::string("postgresql:").size()), TFormatSettings{});
    EXPECT_FALSE(clerk.isUpgraded());
    upgraded(url);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!clerk.isUpgraded() && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_TRUE(clerk.isUpgraded());
}

TEST(ConnectedClerkOfAServer, WhoseLinkWasCutMeanwhileIsRefusedAsWell) {
    const std::string url = newDatabaseUrl(Engine::PostgreSQL);
    const auto clerk = openAs(url, "svoboda");
    BareConnection administrator(url + " user=postgres");
    administrator.rows("select pg_terminate_backend(pid, 5000) from pg_stat_activity where usename = 'svoboda' and "
                       "datname = current_database()");
    administrator.run("comment on schema melvark is 'Melvark, version " + c_Later + "'");
    EXPECT_THAT(sentenceOf(*clerk, "MELVARKEDITORDodObjInit"), HasSubstr("ML9"));
    EXPECT_THAT(sentenceOf(*clerk, "MELVARKEDITORDodObjInit"), HasSubstr("je novější než tento program"));
}

TEST(ConnectedClerkOfAServer, WhoStopsInTheMiddleOfACallLosesHisLocksAfterAMinute) {
    const std::string url = newDatabaseUrl(Engine::PostgreSQL);
    const auto clerk = openAs(url, "svoboda");
    EXPECT_EQ(std::get<AnsiString>(clerk->Query("show idle_in_transaction_session_timeout").Rows.at(0).at(0)), "1min");
}

} // namespace
} // namespace refhost
