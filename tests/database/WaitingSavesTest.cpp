#include "tests/database/ContractCompany.h"
#include "tests/database/Staging.h"
#include "tests/database/WaitingSessions.h"

namespace refhost {
namespace {

/// The code of a refusal, empty for a success.
std::string codeOf(const std::string& answer) {
    return answer.substr(0, answer.find(' '));
}

SessionWork savingNote(std::int64_t note, std::vector<Cells> lines, NoteSources sources = {}) {
    return [=](Database& database) {
        beginSave(database);
        for (const Cells& line : lines) {
            EXPECT_EQ(stageNoteRow(database, line), "");
        }
        return codeOf(saveNote(database, id(note), sources));
    };
}

SessionWork savingOrder(std::int64_t order, std::vector<Cells> lines, OrderSources sources = {}) {
    return [=](Database& database) {
        beginSave(database);
        for (const Cells& line : lines) {
            EXPECT_EQ(stageOrderRow(database, line), "");
        }
        return codeOf(saveOrder(database, id(order), sources));
    };
}

const Cells c_Syrup{{"a_SKLADPOL", "Sirup"}, {"a_MNOZSTVI", "1"}};
const Cells c_Bread{{"a_SKLADPOL", "Chléb"}, {"a_SKPLID", "51"}, {"a_MNOZSTVI", "1"}};
const Cells c_BreadOfDrinks{
    {"a_SKLADPOL", "Chléb"}, {"a_SKPLID", "51"}, {"a_MNOZSTVI", "1"}, {"a_DODAVATEL", "Nápoje Švec"}};
const Cells c_RestOfFlour{{"a_SKLADPOL", "Mouka hladká"}, {"a_DOBSID", "101"}, {"a_MNOZSTVI", "60"}};
const Cells c_SomeFlour{{"a_SKLADPOL", "Mouka hladká"}, {"a_DOBSID", "101"}, {"a_MNOZSTVI", "1"}};
const Cells c_SomeSugar{{"a_SKLADPOL", "Cukr krystal"}, {"a_DOBSID", "103"}, {"a_MNOZSTVI", "1"}};

const char* const c_CloseNote = "update DODAK set OTEVRENO = 0 where ID = 2";
const char* const c_CloseOrder = "update DODOBJEDNAVKA set OTEVRENO = 0 where ID = 10";

class WaitingSaves : public testing::Test {
protected:
    WaitingSessions sessions_;
};

TEST_F(WaitingSaves, OfANoteWaitForItsClosingAndAreRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = statementOf(c_CloseNote), .Second = savingNote(c_OpenNote, {c_Syrup})}),
              "waited, ML011");
    EXPECT_EQ(sessions_.look("select count(*) from DODAKPOL where DODKID = 2"), "1");
}

TEST_F(WaitingSaves, OfANoteGoOnWhenItsClosingIsTakenBack) {
    EXPECT_EQ(
        sessions_.outcomeOf(
            {.First = statementOf(c_CloseNote), .Second = savingNote(c_OpenNote, {c_Syrup}), .IsTakenBack = true}),
        "waited, alone, accepted");
    EXPECT_EQ(sessions_.look("select count(*) from DODAKPOL where DODKID = 2"), "2");
}

TEST_F(WaitingSaves, OfANoteHoldItsClosingUp) {
    EXPECT_EQ(sessions_.outcomeOf({.First = savingNote(c_OpenNote, {c_Syrup}), .Second = statementOf(c_CloseNote)}),
              "waited, accepted");
}

TEST_F(WaitingSaves, OfOneNoteFollowOneAnother) {
    EXPECT_EQ(sessions_.outcomeOf(
                  {.First = savingNote(c_OpenNote, {c_Syrup, c_Syrup}), .Second = savingNote(c_OpenNote, {c_Syrup})}),
              "waited, accepted");
    EXPECT_EQ(sessions_.look("select count(*), max(PORADI) from DODAKPOL where DODKID = 2"), "4 | 4");
}

TEST_F(WaitingSaves, OfAnOrderWaitForItsClosingAndAreRefused) {
    EXPECT_EQ(
        sessions_.outcomeOf({.First = statementOf(c_CloseOrder), .Second = savingOrder(c_EarlierOrder, {c_Bread})}),
        "waited, ML013");
    EXPECT_EQ(sessions_.look("select count(*) from DODOBJPOL where DDOBID = 10"), "3");
}

TEST_F(WaitingSaves, OfAnOrderHoldItsClosingUp) {
    EXPECT_EQ(
        sessions_.outcomeOf({.First = savingOrder(c_EarlierOrder, {c_Bread}), .Second = statementOf(c_CloseOrder)}),
        "waited, accepted");
}

TEST_F(WaitingSaves, OfOneTemplateFollowOneAnother) {
    EXPECT_EQ(sessions_.outcomeOf(
                  {.First = savingOrder(c_Template, {c_Bread, c_Bread}), .Second = savingOrder(c_Template, {c_Bread})}),
              "waited, accepted");
    EXPECT_EQ(sessions_.look("select count(*), max(PORADI) from DODOBJPOL where DDOBID = 7"), "5 | 5");
}

TEST_F(WaitingSaves, OfTheSameRestWaitAndAreRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = savingNote(c_OpenNote, {c_RestOfFlour}),
                                   .Second = savingNote(c_NoteOfBranch, {c_RestOfFlour})}),
              "waited, ML054");
    EXPECT_EQ(sessions_.look("select DODANO::integer from DODOBJPOL where ID = 101"), "100");
}

// The first one has the lower of the two lines: the second one has to come to it before it has the higher one, although
// its rows and the table's file have them the other way round.
TEST_F(WaitingSaves, TakeOrderLinesByRisingIdentifiers) {
    sessions_.change("update DODOBJPOL set DODANO = DODANO where ID = 101");
    EXPECT_EQ(sessions_.outcomeOf({.First = statementOf("select from DODOBJPOL where ID = 101 for no key update"),
                                   .Second = savingNote(c_OpenNote, {c_SomeSugar, c_SomeFlour}),
                                   .Meanwhile =
                                       [](Database& database) {
                                           return rows(database, "select ID from DODOBJPOL where ID = 103 "
                                                                 "for update skip locked") +
                                                  " is free, ";
                                       }}),
              "waited, 103 is free, accepted");
}

TEST_F(WaitingSaves, FromANoteThatIsBeingDeletedWaitAndAreRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = statementOf("delete from DODAK where ID = 6"),
                                   .Second = savingNote(c_OpenNote, {c_Syrup}, {.Note = id(c_SameDayNote)})}),
              "waited, ML055");
}

TEST_F(WaitingSaves, FromAnOrderThatIsBeingDeletedWaitAndAreRefused) {
    EXPECT_EQ(sessions_.outcomeOf({.First = statementOf("delete from DODOBJEDNAVKA where ID = 10"),
                                   .Second = savingOrder(c_FreeOrder, {c_Bread}, {.Order = id(c_EarlierOrder)})}),
              "waited, ML055");
}

TEST_F(WaitingSaves, KeepTheirSourceFromBeingDeletedBeforeTheyEnd) {
    EXPECT_EQ(sessions_.outcomeOf({.First = savingNote(c_OpenNote, {c_Syrup}, {.Order = id(c_EarlierOrder)}),
                                   .Second = statementOf("delete from DODOBJEDNAVKA where ID = 10")}),
              "waited, accepted");
    EXPECT_EQ(sessions_.look("select count(*) from DODAKZDROJ"), "0");
}

TEST_F(WaitingSaves, OfAnItemThatIsBeingDeletedWaitAndAreRefused) {
    EXPECT_EQ(sessions_.outcomeOf(
                  {.First = statementOf("delete from SKPL where SKLPID = 8;"
                                        "delete from DODCENIK where SKLPID = 8;"
                                        "delete from SKLADPOL where ID = 8"),
                   .Second = savingNote(c_OpenNote, {{{"a_SKLADPOL", "Ovesné vločky"}, {"a_MNOZSTVI", "1"}}})}),
              "waited, ML925");
}

TEST_F(WaitingSaves, ThatMakeOrdersFollowOneAnother) {
    EXPECT_EQ(sessions_.outcomeOf({.First = savingOrder(c_Order, {c_BreadOfDrinks}),
                                   .Second = savingOrder(c_OrderOfBranch, {c_BreadOfDrinks})}),
              "waited, accepted");
    EXPECT_EQ(sessions_.look("select ID, CISLO from DODOBJEDNAVKA where ID > 10 order by ID"),
              "11 | OV2026-000011\n12 | OV2026-000012");
}

const char* const c_NumberOfSomebody = "insert into DODOBJEDNAVKA (ID, VZOR, CISLO, OBJEDNANIDC, SKLDID)"
                                       "values (9, 0, 'OV2026-000011', '2026-04-11 10:00:00', 1)";

class NumberGivenOutElsewhere : public WaitingSaves {
protected:
    /// Identifier 9 is free for the order that somebody makes by hand.
    NumberGivenOutElsewhere() { sessions_.change("delete from DODOBJEDNAVKA where ID = 9"); }
};

TEST_F(NumberGivenOutElsewhere, IsWaitedForAndPassedOver) {
    EXPECT_EQ(sessions_.outcomeOf(
                  {.First = statementOf(c_NumberOfSomebody), .Second = savingOrder(c_Order, {c_BreadOfDrinks})}),
              "waited, accepted");
    EXPECT_EQ(sessions_.look("select CISLO from DODOBJEDNAVKA where ID = 11"), "OV2026-000012");
}

TEST_F(NumberGivenOutElsewhere, IsWaitedForAndTakenWhenItWasTakenBack) {
    EXPECT_EQ(sessions_.outcomeOf({.First = statementOf(c_NumberOfSomebody),
                                   .Second = savingOrder(c_Order, {c_BreadOfDrinks}),
                                   .IsTakenBack = true}),
              "waited, alone, accepted");
    EXPECT_EQ(sessions_.look("select CISLO from DODOBJEDNAVKA where ID = 11"), "OV2026-000011");
}

SessionWork identified(char identity, const SessionWork& save) {
    return [=](Database& database) {
        const std::string marked = callOf("UlozeniOznac", {{"a_ULOZENI", std::string(32, identity)}})(database);
        return marked + save(database);
    };
}

TEST_F(WaitingSaves, DoNotWaitForOneAnotherToDropOldIdentities) {
    sessions_.change("insert into ULOZENI (IDENTITA, UZIVATEL, KDY) "
                     "select md5(n::text), 'novakova', '2020-01-01' from generate_series(1, 3) n");
    EXPECT_EQ(sessions_.outcomeOf({.First = identified('a', savingNote(c_OpenNote, {c_Syrup})),
                                   .Second = identified('b', savingNote(c_SameDayNote, {c_Syrup}))}),
              "did not wait, accepted");
    EXPECT_EQ(sessions_.look("select count(*) from ULOZENI"), "2");
}

TEST_F(WaitingSaves, OfDifferentDocumentsDoNotWait) {
    EXPECT_EQ(sessions_.outcomeOf({.First = savingNote(c_OpenNote, {c_SomeFlour}, {.Order = id(c_Order)}),
                                   .Second = savingNote(c_NoteOfBranch, {c_SomeSugar}, {.Order = id(c_Order)})}),
              "did not wait, accepted");
}

} // namespace
} // namespace refhost
