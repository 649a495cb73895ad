#include "tests/database/Answers.h"
#include "tests/database/WaitingSessions.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

constexpr std::int64_t c_Setting = 1001;
constexpr std::int64_t c_Notes = 1;

SessionWork renaming(const std::string& name, bool isShared = true) {
    return callOf("NASTAVENIPremenuj", {{"a_ID", c_Setting}, {"a_NAZEV", name}, {"a_SDILENE", isShared}});
}

SessionWork deleting() {
    return callOf("NASTAVENISmaz", {{"a_ID", c_Setting}});
}

SessionWork loading() {
    return callOf("NASTAVENINacti", {{"a_ID", c_Setting}});
}

SessionWork overwriting(const std::string& data) {
    return callOf("NASTAVENIUloz", {{"a_ID", c_Setting}, {"a_DATA", data}});
}

SessionWork keeping(const std::string& name) {
    return callOf("NASTAVENIUlozNove", {{"a_NAZEV", name}, {"a_TYPEDITACE", c_Notes}});
}

SessionWork placing(std::int64_t type, const std::string& data) {
    return callOf("NASTAVENIUlozNastaveniOkna", {{"a_TYPEDITACE", type}, {"a_DATA", data}});
}

/// One shared setting of "novakova"; "dvorak" has none.
class WaitingSettings : public testing::Test {
protected:
    WaitingSettings() {
        sessions_.change("insert into UZIVATEL (ID, JMENO) values (501, 'novakova'), (502, 'dvorak');"
                         "insert into EDITORNASTAVENI (ID, UZIVID, TYPEDITACE, NAZEV, SDILENE, DATA) "
                         "values (1001, 501, 1, 'Společné', 1, '<a/>')");
    }

    WaitingSessions sessions_;
};

TEST_F(WaitingSettings, ARenamingWaitsForADeletionAndIsRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = deleting(), .Second = renaming("Nové")}), "waited, ML060");
}

TEST_F(WaitingSettings, ARenamingGoesOnWhenADeletionIsTakenBack) {
    EXPECT_EQ(sessions_.outcomeOf({.First = deleting(), .Second = renaming("Nové"), .IsTakenBack = true}),
              "waited, alone, accepted");
    EXPECT_EQ(sessions_.look("select NAZEV from EDITORNASTAVENI"), "Nové");
}

TEST_F(WaitingSettings, ADeletionWaitsForARenaming) {
    EXPECT_EQ(sessions_.outcomeOf({.First = renaming("Nové"), .Second = deleting()}), "waited, accepted");
    EXPECT_EQ(sessions_.look("select count(*) from EDITORNASTAVENI"), "0");
}

TEST_F(WaitingSettings, AnOverwritingWaitsForADeletionAndIsRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = deleting(), .Second = overwriting("<b/>")}), "waited, ML060");
}

TEST_F(WaitingSettings, ASecondDeletionWaitsForTheFirstAndIsRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = deleting(), .Second = deleting()}), "waited, ML060");
}

TEST_F(WaitingSettings, ALoadingBySomebodyElseWaitsForADeletionAndIsRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = deleting(), .Second = loading(), .SecondUser = "dvorak"}), "waited, ML060");
}

TEST_F(WaitingSettings, ALoadingBySomebodyElseWaitsForTheEndOfSharingAndIsRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = renaming("Společné", false), .Second = loading(), .SecondUser = "dvorak"}),
              "waited, ML060");
}

TEST_F(WaitingSettings, OfTwoThatAreKeptByOneNameTheSecondWaitsAndIsRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = keeping("Nové"), .Second = keeping("Nové")}), "waited, ML063");
}

TEST_F(WaitingSettings, ARenamingWaitsForWhatIsKeptByThatNameAndIsRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = keeping("Nové"), .Second = renaming("Nové")}), "waited, ML063");
}

TEST_F(WaitingSettings, WhatIsKeptWaitsForARenamingToThatNameAndIsRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = renaming("Nové"), .Second = keeping("Nové")}), "waited, ML063");
}

TEST_F(WaitingSettings, TheDefaultIsTheOneThatWasChosenLast) {
    sessions_.change("insert into EDITORNASTAVENI (ID, UZIVID, TYPEDITACE, NAZEV) values (1002, 501, 1, 'Druhé')");
    EXPECT_EQ(
        sessions_.outcomeOf({.First = callOf("NASTAVENINacti", {{"a_ID", std::int64_t{1002}}}), .Second = loading()}),
        "waited, accepted");
    EXPECT_EQ(sessions_.look("select NASTAVENIID from EDITORNASTAVENIDEF"), "1001");
}

TEST_F(WaitingSettings, ThePlaceOfAWindowIsTheOneThatWasKeptLast) {
    EXPECT_EQ(sessions_.outcomeOf({.First = placing(1, "<left/>"), .Second = placing(1, "<right/>")}),
              "waited, accepted");
    EXPECT_EQ(sessions_.look("select DATA from EDITOROKNO"), "<right/>");
}

TEST_F(WaitingSettings, AUserIsMadeOnceByTheFirstOfHisSessions) {
    sessions_.change("delete from EDITORNASTAVENI; delete from UZIVATEL");
    EXPECT_EQ(sessions_.outcomeOf({.First = placing(1, "<left/>"), .Second = placing(2, "<right/>")}),
              "waited, accepted");
    EXPECT_EQ(sessions_.look("select count(*), count(distinct UZIVID) from EDITOROKNO"), "2 | 1");
    EXPECT_EQ(sessions_.look("select count(*) from UZIVATEL"), "1");
}

// Whoever opens the company meanwhile waits, and finds nothing left to do.
TEST_F(WaitingSettings, IndicesOverNamesAreMadeAnewOnce) {
    const std::string file = "select relfilenode::bigint from pg_class where oid = 'melvark.sklad_nazev_key'::regclass";
    const std::string before = sessions_.look(file);
    std::string made;
    EXPECT_EQ(sessions_.outcomeOf({.First =
                                       [&](Database& database) {
                                           sessions_.change("update pg_collation set collversion = '1.2.3' "
                                                            "where oid = 'melvark.czech'::regcollation");
                                           database.runScript("select refresh_collation()");
                                           made = rows(database, file);
                                           return std::string();
                                       },
                                   .Second = [](Database&) { return std::string(); }}),
              "waited, accepted");
    EXPECT_NE(made, before);
    EXPECT_EQ(sessions_.look(file), made);
}

} // namespace
} // namespace refhost
