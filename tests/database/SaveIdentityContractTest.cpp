#include "refhost/database/SaveIdentity.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/Staging.h"

#include <gmock/gmock.h>

namespace refhost {
namespace {

const std::string c_First(32, '1');
const std::string c_Second(32, '2');
constexpr const char* c_GivenUp = "ML041 Předchozí ukládání bylo odmítnuto. Uložte doklad znovu.";

std::string mark(Database& database, const TDbValue& identity) {
    return answer(database, c_MarkSaveProcedure, {{"a_ULOZENI", identity}});
}

std::string ask(Database& database, const TDbValue& identity) {
    return answer(database, c_AskAboutSaveProcedure, {{"a_ULOZENI", identity}});
}

/// A save of one row under an identity; without one when it is null.
std::string saveUnder(Database& database, const TDbValue& identity, std::int64_t note = c_OpenNote) {
    beginSave(database);
    EXPECT_EQ(stageNoteRow(database, {{"a_SKLADPOL", "Sirup"}, {"a_MNOZSTVI", "2"}}), "");
    EXPECT_EQ(mark(database, identity), "");
    return saveNote(database, id(note));
}

std::string workOnNote(Database& database, std::int64_t note) {
    return answer(database, "MELVARKEDITORDodakObnovData", {{"a_DODKID", id(note)}});
}

std::string workOnOrder(Database& database, std::int64_t order) {
    return answer(database, "MELVARKEDITORDodObjObnovData", {{"a_DDOBID", id(order)}});
}

std::string addedLines(Database& database) {
    return rows(database, "select count(*) from DODAKPOL where DODKID = 2 and PORADI > 1");
}

class SaveIdentityContract : public Contract {};

TEST_P(SaveIdentityContract, ASaveThatHasComeIsKnownByItsIdentityToEverySession) {
    const std::string url = ownCompanyUrl();
    const auto saving = openAs(url, "novakova");
    EXPECT_EQ(saveUnder(*saving, c_First), "");
    EXPECT_EQ(ask(*openAs(url, "novakova"), c_First), "a_ULOZENO = 1");
    EXPECT_EQ(rows(*saving, "select IDENTITA, UZIVATEL, DRUH, DOKLAD from ULOZENI"),
              c_First + " | novakova | DODAK | 2");
}

TEST_P(SaveIdentityContract, ASaveThatIsAskedAboutBeforeItComesNeverComes) {
    const auto database = ownCompany();
    EXPECT_EQ(ask(*database, c_First), "a_ULOZENO = 0");
    EXPECT_EQ(saveUnder(*database, c_First), c_GivenUp);
    EXPECT_EQ(addedLines(*database), "0");
    EXPECT_EQ(ask(*database, c_First), "a_ULOZENO = 0");
    EXPECT_EQ(saveUnder(*database, c_Second), "");
    EXPECT_EQ(addedLines(*database), "1");
}

TEST_P(SaveIdentityContract, OneIdentitySavesOnce) {
    const auto database = ownCompany();
    EXPECT_EQ(saveUnder(*database, c_First), "");
    EXPECT_EQ(saveUnder(*database, c_First), c_GivenUp);
    EXPECT_EQ(addedLines(*database), "1");
}

TEST_P(SaveIdentityContract, TheIdentityIsSpentByItsSave) {
    const auto database = ownCompany();
    EXPECT_EQ(saveUnder(*database, c_First), "");
    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, {{"a_SKLADPOL", "Sirup"}, {"a_MNOZSTVI", "3"}}), "");
    EXPECT_EQ(saveNote(*database, id(c_OpenNote)), "") << "a save without an identity";
    EXPECT_EQ(addedLines(*database), "2");
    EXPECT_EQ(rows(*database, "select count(*) from ULOZENI"), "1");
}

TEST_P(SaveIdentityContract, ARefusedSaveHasNotCome) {
    const auto database = ownCompany();
    EXPECT_THAT(saveUnder(*database, c_First, c_NoteOfMill), testing::StartsWith("ML011 "));
    EXPECT_THAT(saveUnder(*database, c_Second, c_Missing), testing::StartsWith("ML010 "));
    EXPECT_EQ(ask(*database, c_First), "a_ULOZENO = 0");
    EXPECT_EQ(ask(*database, c_Second), "a_ULOZENO = 0");
}

TEST_P(SaveIdentityContract, WorkOnWhatTheSessionsSaveBroughtIsNotTakenUp) {
    const std::string url = ownCompanyUrl();
    EXPECT_EQ(saveUnder(*openAs(url, "novakova"), c_First), "");

    const auto later = openAs(url, "novakova");
    EXPECT_EQ(workOnNote(*later, c_OpenNote), "a_OBNOVDATA = 1") << "nobody has named the save yet";
    ask(*later, c_First);
    EXPECT_EQ(workOnNote(*later, c_OpenNote), "a_OBNOVDATA = 0");
    EXPECT_EQ(workOnNote(*later, c_SameDayNote), "a_OBNOVDATA = 1");
    EXPECT_EQ(workOnOrder(*later, c_OpenNote), "a_OBNOVDATA = 1") << "an order of the same number";
    ask(*later, c_Second);
    EXPECT_EQ(workOnNote(*later, c_OpenNote), "a_OBNOVDATA = 1") << "a save that has not come";
    ask(*later, c_First);
    mark(*later, TDbValue());
    EXPECT_EQ(workOnNote(*later, c_OpenNote), "a_OBNOVDATA = 1");
}

TEST_P(SaveIdentityContract, AnOrdersSaveIsKnownAsAnOrders) {
    const auto database = ownCompany();
    beginSave(*database);
    EXPECT_EQ(stageOrderRow(*database,
                            {{"a_SKLADPOL", "Sirup"}, {"a_SKPLID", "71"}, {"a_MNOZSTVI", "5"}, {"a_JEDNOTKY", "l"}}),
              "");
    mark(*database, c_First);
    EXPECT_EQ(saveOrder(*database, id(c_Order)), "");
    EXPECT_EQ(ask(*database, c_First), "a_ULOZENO = 1");
    EXPECT_EQ(workOnOrder(*database, c_Order), "a_OBNOVDATA = 0");
    EXPECT_EQ(workOnOrder(*database, c_EarlierOrder), "a_OBNOVDATA = 1");
}

TEST_P(SaveIdentityContract, WhatIsNoIdentityIsRefused) {
    const auto database = ownCompany();
    for (const std::string& text : {std::string(), std::string(31, '1'), std::string(33, '1'), std::string(32, 'A'),
                                    std::string(31, '1') + "\n", std::string(32, '1') + "\n"}) {
        EXPECT_THAT(mark(*database, text), testing::StartsWith("ML056 ")) << text;
        EXPECT_THAT(ask(*database, text), testing::StartsWith("ML056 ")) << text;
    }
    EXPECT_EQ(ask(*database, TDbValue()),
              "ML056 Označení ukládání „NULL“ nemá 32 šestnáctkových číslic. Obraťte se na správce.");
}

TEST_P(SaveIdentityContract, SavesOfAMonthAgoAreForgottenByLaterOnes) {
    const auto database = ownCompany();
    const std::string now = GetParam() == Engine::SQLite ? "datetime('now', '-DAYS days')"
                                                         : "timezone('UTC', now()) - interval 'DAYS days'";
    const auto add = [&](const std::string& identity, const std::string& days) {
        std::string moment = now;
        moment.replace(moment.find("DAYS"), 4, days);
        database->runScript("insert into ULOZENI (IDENTITA, UZIVATEL, KDY) values ('" + identity + "', 'dvorak', " +
                            moment + ")");
    };
    add(std::string(32, 'a'), "31");
    add(std::string(32, 'b'), "29");
    EXPECT_EQ(saveUnder(*database, c_First), "");
    EXPECT_EQ(rows(*database, "select IDENTITA from ULOZENI order by IDENTITA"), c_First + "\n" + std::string(32, 'b'));
}

INSTANTIATE_TEST_SUITE_P(OnBothEngines, SaveIdentityContract, testing::ValuesIn(c_BothEngines), engineOf);

TEST(SaveIdentity, IsOfItsFormAndNeverTheSame) {
    const std::string identity = newSaveIdentity();
    EXPECT_THAT(identity, testing::MatchesRegex("[0-9a-f]{32}"));
    EXPECT_NE(identity, newSaveIdentity());
}

} // namespace
} // namespace refhost
