#include "tests/database/SQLiteFile.h"

#include <chrono>
#include <future>
#include <gtest/gtest.h>

namespace refhost {
namespace {

void reset(Database& database) {
    database.Execute(procedureCall("MELVARKEDITORResetTemp"));
}

void insert(Database& database, const std::string& quantity) {
    database.Execute(
        procedureCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", "Mléko"}, {"a_MNOZSTVI", quantity}}));
}

void save(Database& database, std::int64_t note) {
    database.Execute(procedureCall("MELVARKEDITORDodakTempUloz", {{"a_DODKID", note}}));
}

std::string lines(Database& database) {
    return rowsText(database, "select DODKID, PORADI, MNOZSTVI from DODAKPOL order by DODKID, PORADI");
}

TEST(SQLiteSession, ASaveBeginsWithEmptyingItsRows) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    EXPECT_EQ(refusalCode([&] { insert(*database, "1"); }), "ML040");
}

TEST(SQLiteSession, AClosingCallWithoutEmptyingIsRefused) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    EXPECT_EQ(refusalCode([&] { save(*database, 1); }), "ML040");
}

TEST(SQLiteSession, ARefusedRowClosesTheSaveUntilItIsBegunAgain) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    reset(*database);
    insert(*database, "1");
    EXPECT_EQ(refusalCode([&] { insert(*database, "mnoho"); }), "ML001");
    EXPECT_EQ(refusalCode([&] { insert(*database, "2"); }), "ML041");
    EXPECT_EQ(refusalCode([&] { save(*database, 1); }), "ML041");
    reset(*database);
    insert(*database, "3");
    save(*database, 1);
    EXPECT_EQ(lines(*database), "1,1,3");
}

TEST(SQLiteSession, ARefusedClosingCallClosesTheSaveToo) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    reset(*database);
    insert(*database, "1");
    EXPECT_EQ(refusalCode([&] { save(*database, 99); }), "ML010");
    EXPECT_EQ(refusalCode([&] { save(*database, 1); }), "ML041");
    EXPECT_EQ(lines(*database), "");
}

TEST(SQLiteSession, ASuccessEmptiesTheRows) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    reset(*database);
    insert(*database, "1");
    save(*database, 1);
    save(*database, 1);
    EXPECT_EQ(lines(*database), "1,1,1");
}

TEST(SQLiteSession, EachConnectionHasRowsOfItsOwn) {
    const SQLiteFile file;
    const auto first = file.createCompany();
    const auto second = file.open("dvorak");
    reset(*first);
    EXPECT_EQ(refusalCode([&] { insert(*second, "2"); }), "ML040");
    reset(*second);
    insert(*first, "1");
    insert(*second, "2");
    save(*second, 1);
    save(*first, 1);
    EXPECT_EQ(lines(*first), "1,1,2|1,2,1");
}

TEST(SQLiteSession, TwoConnectionsAppendToOneNoteWithoutLoss) {
    const SQLiteFile file;
    const auto first = file.createCompany();
    const auto second = file.open("dvorak");
    for (int i = 1; i <= 5; ++i) {
        for (Database* database : {static_cast<Database*>(first.get()), static_cast<Database*>(second.get())}) {
            reset(*database);
            insert(*database, std::to_string(i));
            save(*database, 2);
        }
    }
    EXPECT_EQ(rowsText(*first, "select count(*), max(PORADI) from DODAKPOL where DODKID = 2"), "10,10");
}

TEST(SQLiteSession, WhileAnotherSavesReadingGoesOnAndSavingSaysWhy) {
    const SQLiteFile file;
    const auto first = file.createCompany();
    const auto second = file.open("dvorak");
    reset(*second);
    insert(*second, "1");
    SQLiteSession blocker(file.path().string(), "svoboda", TFormatSettings::Czech(), OpenMode::Existing,
                          std::chrono::milliseconds(0));
    {
        const SQLiteTransaction writing(blocker, SQLiteTransaction::Kind::Writing);
        EXPECT_EQ(rowsText(*second, "select CISLO from DODAK_NORMAL_V order by CISLO"), "DL-1|DL-2");
        EXPECT_EQ(refusalCode([&] { save(*second, 1); }), "ML910");
    }
    reset(*second);
    insert(*second, "2");
    save(*second, 1);
    EXPECT_EQ(lines(*second), "1,1,2");
}

TEST(SQLiteSession, ATransactionThatCannotEndIsToldAndTakenBackAndTheNextOneEnds) {
    SQLiteSession session(SQLiteSession::c_InMemory, "novakova", TFormatSettings::Czech(), OpenMode::Create,
                          std::chrono::milliseconds(0));
    session.execute("create table PARENT (ID integer primary key);"
                    "create table CHILD (PARENTID references PARENT (ID) deferrable initially deferred)");
    {
        SQLiteTransaction transaction(session, SQLiteTransaction::Kind::Writing);
        session.execute("insert into CHILD values (7)"); // whose parent never comes
        EXPECT_THROW(transaction.commit(), EDatabaseError);
    }
    EXPECT_NE(sqlite3_get_autocommit(session.handle()), 0) << "the transaction is over";
    {
        SQLiteTransaction transaction(session, SQLiteTransaction::Kind::Writing);
        session.execute("insert into CHILD values (8); insert into PARENT values (8)");
        transaction.commit();
    }
    EXPECT_NE(sqlite3_get_autocommit(session.handle()), 0);
}

// The save takes the file before it asks whether the note is open: what it had read before it waited would be old.
TEST(SQLiteSession, ASaveWaitsForTheClosingOfItsNoteAndIsRefused) {
    const SQLiteFile file;
    const auto first = file.createCompany();
    const auto second = std::make_unique<SQLiteConnection>(file.path().string(), "dvorak", TFormatSettings::Czech(),
                                                           OpenMode::Existing, std::chrono::seconds(5));
    reset(*second);
    insert(*second, "1");
    std::future<std::string> saved;
    first->inOneTransaction([&] {
        first->runScript("update DODAK set OTEVRENO = 0 where ID = 1");
        saved = std::async(std::launch::async, [&] { return refusalCode([&] { save(*second, 1); }); });
        EXPECT_EQ(saved.wait_for(std::chrono::milliseconds(300)), std::future_status::timeout) << "it does not wait";
    });
    EXPECT_EQ(saved.get(), "ML011");
    EXPECT_EQ(lines(*first), "");
}

TEST(SQLiteSession, AClosedNoteRefusesTheSaveOfAnotherConnection) {
    const SQLiteFile file;
    const auto first = file.createCompany();
    const auto second = file.open("dvorak");
    reset(*second);
    insert(*second, "1");
    first->runScript("update DODAK set OTEVRENO = 0 where ID = 1");
    EXPECT_EQ(refusalCode([&] { save(*second, 1); }), "ML011");
    EXPECT_EQ(lines(*first), "");
}

} // namespace
} // namespace refhost
