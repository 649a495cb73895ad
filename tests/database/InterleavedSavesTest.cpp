#include "tests/database/ContractCompany.h"
#include "tests/database/Interleaving.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

const std::string c_Identity(32, 'a');

SessionStep begin() {
    return step("ResetTemp");
}

SessionStep noteRow(const std::string& quantity) {
    return step("DodakInsertToTemp", {{"a_SKLADPOL", "Sirup"}, {"a_MNOZSTVI", quantity}});
}

SessionStep noteRowOf(const std::string& item, const std::string& orderLine, const std::string& quantity) {
    return step("DodakInsertToTemp", {{"a_SKLADPOL", item}, {"a_DOBSID", orderLine}, {"a_MNOZSTVI", quantity}});
}

SessionStep closeNote(std::int64_t note) {
    return step("DodakTempUloz", {{"a_DODKID", note}});
}

SessionStep orderRow(const std::string& quantity, const std::string& supplier = {}) {
    Parameters parameters{{"a_SKLADPOL", "Chléb"}, {"a_SKPLID", "51"}, {"a_MNOZSTVI", quantity}};
    if (!supplier.empty()) {
        parameters.push_back({"a_DODAVATEL", supplier});
    }
    return step("DodObjInsertToTemp", std::move(parameters));
}

SessionStep closeOrder(std::int64_t order) {
    return step("DodObjTempUloz", {{"a_DDOBID", order}});
}

SessionStep mark() {
    return step("UlozeniOznac", {{"a_ULOZENI", c_Identity}});
}

SessionStep ask() {
    return step("UlozeniOver", {{"a_ULOZENI", c_Identity}});
}

constexpr const char* c_OneNoteAnew = "delete from DODAKPOL where DODKID = 2 and PORADI > 1;"
                                      "update DODAK set OTEVRENO = 1 where ID = 2;"
                                      "delete from DODAKZDROJ; delete from ULOZENI";
constexpr const char* c_LinesOfNote =
    "select PORADI, number_text(MNOZSTVI) from DODAKPOL where DODKID = 2 and PORADI > 1 order by PORADI";
/// Note 9 is the one that is deleted.
constexpr const char* c_NoteAgain = "delete from DODAK where ID = 9;"
                                    "insert into DODAK (ID, CISLO, DATUM, DODVID, SKLDID) "
                                    "values (9, 'DL-9', '2025-11-09', 1, 1);"
                                    "delete from DODAKPOL where DODKID = 2 and PORADI > 1";
constexpr const char* c_OrderLinesAgain =
    "delete from DODAKPOL where DOBSID in (101, 103) or (DODKID in (2, 4) and SKLPID = 3);"
    "delete from DODOBJPOL where ID in (101, 103);"
    "insert into DODOBJPOL (ID, DDOBID, PORADI, SKLPID, SKPLID, SKLDID, MNOZSTVI, DODANO) "
    "values (101, 1, 1, 1, 12, 1, '4', '40'), (103, 1, 3, 3, 31, 2, '7.5', '0')";
constexpr const char* c_NoMadeOrders = "delete from DODOBJEDNAVKA where CISLO like 'OV2026-%'";
constexpr const char* c_MadeOrders =
    "select DODAVATEL, POCETPOLOZEK from SCREEN_DODOBJ_V where CISLO like 'OV2026-%' order by _ID";

const SessionPair c_Pairs[] = {
    {.Name = "OneNoteSavedByTwo",
     .Restore = c_OneNoteAnew,
     .First = {begin(), noteRow("1"), noteRow("2"), closeNote(c_OpenNote)},
     .Second = {begin(), noteRow("3"), noteRow("4"), closeNote(c_OpenNote)},
     .Picture = c_LinesOfNote,
     .FirstThenSecond = "accepted / accepted\n2 | 1\n3 | 2\n4 | 3\n5 | 4",
     .SecondThenFirst = "accepted / accepted\n2 | 3\n3 | 4\n4 | 1\n5 | 2"},
    {.Name = "OneOrderSavedByTwo",
     .Restore = "delete from DODOBJPOL where DDOBID = 10 and PORADI > 3",
     .First = {begin(), orderRow("1"), orderRow("2"), closeOrder(c_EarlierOrder)},
     .Second = {begin(), orderRow("3"), orderRow("4"), closeOrder(c_EarlierOrder)},
     .Picture = "select PORADI, number_text(MNOZSTVI) from DODOBJPOL where DDOBID = 10 and PORADI > 3 order by PORADI",
     .FirstThenSecond = "accepted / accepted\n4 | 1\n5 | 2\n6 | 3\n7 | 4",
     .SecondThenFirst = "accepted / accepted\n4 | 3\n5 | 4\n6 | 1\n7 | 2"},
    {.Name = "OneTemplateSavedByTwo",
     .Restore = "delete from DODOBJPOL where DDOBID = 7 and PORADI > 2",
     .First = {begin(), orderRow("1"), orderRow("2", "Nápoje Švec"), closeOrder(c_Template)},
     .Second = {begin(), orderRow("3", "Čajovna Říp"), orderRow("4"), closeOrder(c_Template)},
     .Picture = "select PORADI, number_text(MNOZSTVI), DODVID from DODOBJPOL where DDOBID = 7 and PORADI > 2 "
                "order by PORADI",
     .FirstThenSecond = "accepted / accepted\n3 | 1 | -\n4 | 2 | 2\n5 | 3 | 3\n6 | 4 | -",
     .SecondThenFirst = "accepted / accepted\n3 | 3 | 3\n4 | 4 | -\n5 | 1 | -\n6 | 2 | 2"},
    {.Name = "ANoteAndAnOrderSavedAtOnce",
     .Restore = "delete from DODAKPOL where DODKID = 2 and PORADI > 1;"
                "delete from DODOBJPOL where DDOBID = 10 and PORADI > 3",
     .First = {begin(), noteRow("1"), noteRow("2"), closeNote(c_OpenNote)},
     .Second = {begin(), orderRow("3"), orderRow("4"), closeOrder(c_EarlierOrder)},
     .Picture = "select 'note', PORADI, number_text(MNOZSTVI) from DODAKPOL where DODKID = 2 and PORADI > 1 "
                "union all select 'order', PORADI, number_text(MNOZSTVI) from DODOBJPOL "
                "where DDOBID = 10 and PORADI > 3 order by 2",
     .FirstThenSecond = "accepted / accepted\nnote | 2 | 1\nnote | 3 | 2\norder | 4 | 3\norder | 5 | 4",
     .SecondThenFirst = "accepted / accepted\nnote | 2 | 1\nnote | 3 | 2\norder | 4 | 3\norder | 5 | 4"},
    {.Name = "ANoteClosedWhileItIsSaved",
     .Restore = c_OneNoteAnew,
     .First = {begin(), noteRow("1"), closeNote(c_OpenNote)},
     .Second = {statement("update DODAK set OTEVRENO = 0 where ID = 2")},
     .Picture = c_LinesOfNote,
     .FirstThenSecond = "accepted / accepted\n2 | 1",
     .SecondThenFirst = "ML011 / accepted\n"},
    {.Name = "AnOrderClosedWhileItIsSaved",
     .Restore = "delete from DODOBJPOL where DDOBID = 10 and PORADI > 3;"
                "update DODOBJEDNAVKA set OTEVRENO = 1 where ID = 10",
     .First = {begin(), orderRow("1"), closeOrder(c_EarlierOrder)},
     .Second = {statement("update DODOBJEDNAVKA set OTEVRENO = 0 where ID = 10")},
     .Picture = "select PORADI, number_text(MNOZSTVI) from DODOBJPOL where DDOBID = 10 and PORADI > 3",
     .FirstThenSecond = "accepted / accepted\n4 | 1",
     .SecondThenFirst = "ML013 / accepted\n"},
    {.Name = "ANoteDeletedWhileItIsSaved",
     .Restore = c_NoteAgain,
     .First = {begin(), noteRow("1"), closeNote(9)},
     .Second = {statement("delete from DODAK where ID = 9")},
     .Picture = "select count(*) from DODAKPOL where DODKID = 9",
     .FirstThenSecond = "accepted / accepted\n0",
     .SecondThenFirst = "ML010 / accepted\n0"},
    {.Name = "ASourceDeletedWhileItsLinesAreSaved",
     .Restore = c_NoteAgain,
     .First = {begin(), noteRow("1"), step("DodakTempUloz", {{"a_DODKID", id(c_OpenNote)}, {"a_DODKID_ZDROJ", id(9)}})},
     .Second = {statement("delete from DODAK where ID = 9")},
     .Picture = "select (select count(*) from DODAKPOL where DODKID = 2 and PORADI > 1), "
                "(select count(*) from DODAKZDROJ where DODKID = 2)",
     .FirstThenSecond = "accepted / accepted\n1 | 0",
     .SecondThenFirst = "ML055 / accepted\n0 | 0"},
    // Whoever finds the order line gone at the row is refused there, and then at the closing call.
    {.Name = "AnOrderLineDeletedWhileItIsDelivered",
     .Restore = c_OrderLinesAgain,
     .First = {begin(), noteRowOf("Cukr krystal", "103", "1"), closeNote(c_OpenNote)},
     .Second = {statement("delete from DODOBJPOL where ID = 103")},
     .Picture = "select number_text(MNOZSTVI), DOBSID from DODAKPOL where DODKID = 2 and SKLPID = 3",
     .FirstThenSecond = "accepted / accepted\n1 | -",
     .SecondThenFirst = "ML049 ML041 / accepted\n",
     .OtherEnds = {"ML049 / accepted\n"}},
    {.Name = "TheSameRestDeliveredByTwo",
     .Restore = c_OrderLinesAgain,
     .First = {begin(), noteRowOf("Mouka hladká", "101", "60"), closeNote(c_OpenNote)},
     .Second = {begin(), noteRowOf("Mouka hladká", "101", "60"), closeNote(c_NoteOfBranch)},
     .Picture = "select p.DODKID, number_text(o.DODANO), o.KOMPLETNI from DODAKPOL p "
                "join DODOBJPOL o on o.ID = p.DOBSID where o.ID = 101",
     .FirstThenSecond = "accepted / ML054\n2 | 100 | 1",
     .SecondThenFirst = "ML054 / accepted\n4 | 100 | 1"},
    {.Name = "PartsOfTheSameOrderDeliveredByTwo",
     .Restore = c_OrderLinesAgain,
     .First = {begin(), noteRowOf("Mouka hladká", "101", "10"), noteRowOf("Cukr krystal", "103", "1"),
               closeNote(c_OpenNote)},
     .Second = {begin(), noteRowOf("Cukr krystal", "103", "2"), noteRowOf("Mouka hladká", "101", "20"),
                closeNote(c_NoteOfBranch)},
     .Picture = "select ID, number_text(DODANO), KOMPLETNI from DODOBJPOL where ID in (101, 103) order by ID",
     .FirstThenSecond = "accepted / accepted\n101 | 70 | 0\n103 | 3 | 0",
     .SecondThenFirst = "accepted / accepted\n101 | 70 | 0\n103 | 3 | 0"},
    {.Name = "NewOrdersMadeByTwo",
     .Restore = c_NoMadeOrders,
     .First = {begin(), orderRow("1", "Nápoje Švec"), orderRow("2", "Nápoje Švec"), closeOrder(c_Order)},
     .Second = {begin(), orderRow("3", "Čajovna Říp"), closeOrder(c_OrderOfBranch)},
     .Picture = c_MadeOrders,
     .FirstThenSecond = "accepted / accepted\nNápoje Švec | 2\nČajovna Říp | 1",
     .SecondThenFirst = "accepted / accepted\nČajovna Říp | 1\nNápoje Švec | 2"},
    {.Name = "AnOrderGivenItsSupplierByTwo",
     .Restore = "delete from DODOBJEDNAVKA where CISLO like 'OV2026-%'; delete from DODOBJPOL where DDOBID = 5;"
                "update DODOBJEDNAVKA set DODVID = null where ID = 5",
     .First = {begin(), orderRow("1", "Nápoje Švec"), closeOrder(c_FreeOrder)},
     .Second = {begin(), orderRow("3", "Čajovna Říp"), closeOrder(c_FreeOrder)},
     .Picture = "select case _ID when 5 then 'the order' else 'a new one' end, DODAVATEL, POCETPOLOZEK "
                "from SCREEN_DODOBJ_V where _ID = 5 or CISLO like 'OV2026-%' order by _ID",
     .FirstThenSecond = "accepted / accepted\nthe order | Nápoje Švec | 1\na new one | Čajovna Říp | 1",
     .SecondThenFirst = "accepted / accepted\nthe order | Čajovna Říp | 1\na new one | Nápoje Švec | 1"},
    {.Name = "ASaveThatIsAskedAbout",
     .Restore = c_OneNoteAnew,
     .First = {begin(), noteRow("1"), mark(), closeNote(c_OpenNote)},
     .Second = {ask()},
     .Picture = c_LinesOfNote,
     .FirstThenSecond = "accepted / a_ULOZENO = 1\n2 | 1",
     .SecondThenFirst = "ML041 / a_ULOZENO = 0\n"},
    {.Name = "ASaveWhoseUnsavedWorkIsAskedAbout",
     .Restore = c_OneNoteAnew,
     .First = {begin(), noteRow("1"), mark(), closeNote(c_OpenNote)},
     .Second = {ask(), step("DodakObnovData", {{"a_DODKID", id(c_OpenNote)}})},
     .Picture = c_LinesOfNote,
     .FirstThenSecond = "accepted / a_ULOZENO = 1 a_OBNOVDATA = 0\n2 | 1",
     .SecondThenFirst = "ML041 / a_ULOZENO = 0 a_OBNOVDATA = 1\n"},
    {.Name = "UnsavedWorkOfSomebodyElseIsAskedAbout",
     .Restore = c_OneNoteAnew,
     .First = {begin(), noteRow("1"), mark(), closeNote(c_OpenNote)},
     .Second = {step("DodakObnovData", {{"a_DODKID", id(c_OpenNote)}})},
     .Picture = c_LinesOfNote,
     .FirstThenSecond = "accepted / a_OBNOVDATA = 1\n2 | 1",
     .SecondThenFirst = "accepted / a_OBNOVDATA = 1\n2 | 1",
     .SecondUser = "dvorak"},
};

class InterleavedSaves : public testing::TestWithParam<std::tuple<Engine, SessionPair>> {};

TEST_P(InterleavedSaves, EndAsOneAfterTheOtherInWhateverOrderTheirCallsCome) {
    expectRightEnds(std::get<1>(GetParam()), std::get<0>(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(OnBothEngines, InterleavedSaves,
                         testing::Combine(testing::ValuesIn(c_BothEngines), testing::ValuesIn(c_Pairs)),
                         [](const auto& each) {
                             return engineName(std::get<0>(each.param)) + std::get<1>(each.param).Name;
                         });

TEST(Interleaving, HasEveryOrderOfTheStepsOnce) {
    EXPECT_EQ(ordersOf(2, 2), (std::vector<std::string>{"1122", "1212", "1221", "2112", "2121", "2211"}));
    EXPECT_EQ(ordersOf(1, 3).size(), 4U);
    EXPECT_EQ(ordersOf(4, 4).size(), 70U);
}

} // namespace
} // namespace refhost
