#include "tests/database/PrivateServer.h"
#include "tests/database/ServerCompany.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

/// The rows of a save lie in tables of the session, which must not grow as long as a clerk works.
class PostgreSQLStaging : public testing::Test {
protected:
    PostgreSQLStaging() : clerk_(company_.open()) {
        clerk_->runScript("insert into DODAVATEL (JMENO) values ('Pekárna');"
                          "insert into DODOBJEDNAVKA (VZOR, CISLO, OBJEDNANIDC, DODVID, SKLDID) "
                          "values (0, 'OV1', '2026-03-10', 1, 1)");
    }

    void begin() { clerk_->Execute(serverCall("MELVARKEDITORResetTemp")); }

    /// A row for another supplier, which becomes an order of his.
    void stageForTheOther() {
        clerk_->Execute(
            serverCall("MELVARKEDITORDodObjInsertToTemp",
                       {{"a_SKLADPOL", "Mléko"}, {"a_SKPLID", "1"}, {"a_MNOZSTVI", "2"}, {"a_DODAVATEL", "Pekárna"}}));
    }

    void stageNoteRow() {
        clerk_->Execute(serverCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", "Mléko"}, {"a_MNOZSTVI", "1"}}));
    }

    EDatabaseError close() {
        return failure([&] {
            clerk_->Execute(serverCall("MELVARKEDITORDodObjTempUloz", {{"a_DDOBID", std::int64_t{1}}}));
        });
    }

    /// The bytes of all tables of the session.
    std::string bytes() {
        return rowsOf(*clerk_, "select sum(pg_relation_size(oid)) from pg_class "
                               "where relnamespace = pg_my_temp_schema() and relkind = 'r'");
    }

    /// What the server's process keeps for the pages of these tables. Only an administrator may ask.
    int kilobytesOfBuffers() {
        PrivateServer::instance()
            .administrator(company_.name())
            .execute("grant select on pg_backend_memory_contexts to novakova;"
                     "grant execute on function pg_get_backend_memory_contexts() to novakova");
        return std::stoi(rowsOf(*clerk_, "select (sum(total_bytes) / 1024)::integer from pg_backend_memory_contexts "
                                         "where name = 'LocalBufferContext'"));
    }

    ServerCompany company_;
    std::unique_ptr<PostgreSQLConnection> clerk_;
};

TEST_F(PostgreSQLStaging, ARefusedSaveLeavesNothingInTheTablesOfTheNext) {
    clerk_->runScript("create function melvark.nothing_today() returns trigger language plpgsql as "
                      "$$ begin raise exception 'nothing is ordered today'; end $$;"
                      "create trigger LATE before insert on DODOBJPOL execute function melvark.nothing_today()");
    for (int i = 0; i < 3; ++i) {
        begin();
        EXPECT_EQ(bytes(), "0");
        stageForTheOther();
        EXPECT_EQ(close().Code(), "ML930");
        EXPECT_NE(bytes(), "0") << "rows that were taken back are no test";
    }
}

TEST_F(PostgreSQLStaging, RowsThatWereTakenBackLeaveNothingInTheTablesOfTheNextSave) {
    begin();
    EXPECT_THROW(clerk_->inOneTransaction([&] {
        clerk_->runScript("insert into pg_temp.ORDER_TARGET (DODVID, DDOBID) values (1, 1);"
                          "insert into pg_temp.ORDER_STAGED (MNOZSTVI) values (1)");
        throw EDatabaseError("taken back");
    }),
                 EDatabaseError);
    EXPECT_NE(bytes(), "0");
    begin();
    EXPECT_EQ(bytes(), "0");
}

TEST_F(PostgreSQLStaging, ASaveThatSucceedsLeavesNothing) {
    begin();
    stageNoteRow();
    stageForTheOther();
    EXPECT_NE(bytes(), "0");
    EXPECT_EQ(close().Code(), "");
    EXPECT_EQ(bytes(), "0");
    EXPECT_EQ(rowsOf(*clerk_, "select count(*) from DODOBJEDNAVKA"), "2");
}

// By default each save takes pages that the session has not used before, until it has 8 MB of them.
TEST_F(PostgreSQLStaging, ManySavesDoNotTakeMoreAndMoreOfTheServersMemory) {
    for (int i = 0; i < 60; ++i) {
        begin();
        stageNoteRow();
        stageForTheOther();
        ASSERT_EQ(close().Code(), "");
    }
    EXPECT_LT(kilobytesOfBuffers(), 1000);
}

} // namespace
} // namespace refhost
