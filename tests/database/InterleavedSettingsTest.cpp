#include "tests/database/Interleaving.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

constexpr std::int64_t c_Setting = 1001;
constexpr std::int64_t c_Notes = 1;

/// One shared setting of "novakova"; "dvorak" has none.
constexpr const char* c_OneShared =
    "delete from EDITORNASTAVENIDEF; delete from EDITOROKNO; delete from EDITORNASTAVENI; delete from UZIVATEL;"
    "insert into UZIVATEL (ID, JMENO) values (501, 'novakova'), (502, 'dvorak');"
    "insert into EDITORNASTAVENI (ID, UZIVID, TYPEDITACE, NAZEV, SDILENE, DATA) "
    "values (1001, 501, 1, 'Společné', 1, '<a/>')";
constexpr const char* c_Nobody =
    "delete from EDITORNASTAVENIDEF; delete from EDITOROKNO; delete from EDITORNASTAVENI; delete from UZIVATEL";
constexpr const char* c_Settings = "select NAZEV, SDILENE, DATA from EDITORNASTAVENI order by DATA";
constexpr const char* c_Defaults = "select UZIVID, NASTAVENIID from EDITORNASTAVENIDEF order by UZIVID";

SessionStep look() {
    return step("NASTAVENIGetInfo", {{"a_ID", c_Setting}});
}

SessionStep rename(const std::string& name, bool isShared = true) {
    return step("NASTAVENIPremenuj", {{"a_ID", c_Setting}, {"a_NAZEV", name}, {"a_SDILENE", isShared}});
}

SessionStep remove() {
    return step("NASTAVENISmaz", {{"a_ID", c_Setting}});
}

SessionStep load() {
    return step("NASTAVENINacti", {{"a_ID", c_Setting}});
}

SessionStep overwrite(const std::string& data) {
    return step("NASTAVENIUloz", {{"a_ID", c_Setting}, {"a_DATA", data}});
}

SessionStep keepAs(const std::string& name, const std::string& data) {
    return step("NASTAVENIUlozNove", {{"a_NAZEV", name}, {"a_TYPEDITACE", c_Notes}, {"a_DATA", data}});
}

SessionStep keepPlace(const std::string& data) {
    return step("NASTAVENIUlozNastaveniOkna", {{"a_TYPEDITACE", c_Notes}, {"a_DATA", data}});
}

/// The first one's user is at two desks, unless a pair says who the second one is.
const SessionPair c_Pairs[] = {
    // A clerk who opened the dialog of names before the other one deleted the setting is refused at its OK alone.
    {.Name = "RenamedAndDeleted",
     .Restore = c_OneShared,
     .First = {look(), rename("Nové")},
     .Second = {look(), remove()},
     .Picture = c_Settings,
     .FirstThenSecond = "accepted / accepted\n",
     .SecondThenFirst = "ML060 ML060 / accepted\n",
     .OtherEnds = {"ML060 / accepted\n"}},
    {.Name = "RenamedAndDeletedBySomebodyElse",
     .Restore = c_OneShared,
     .First = {look(), rename("Nové")},
     .Second = {look(), remove()},
     .Picture = c_Settings,
     .FirstThenSecond = "accepted / ML061\nNové | 1 | <a/>",
     .SecondThenFirst = "accepted / ML061\nNové | 1 | <a/>",
     .SecondUser = "dvorak"},
    {.Name = "DeletedTwice",
     .Restore = c_OneShared,
     .First = {remove()},
     .Second = {remove()},
     .Picture = c_Settings,
     .FirstThenSecond = "accepted / ML060\n",
     .SecondThenFirst = "ML060 / accepted\n"},
    {.Name = "OverwrittenAndDeleted",
     .Restore = c_OneShared,
     .First = {overwrite("<b/>")},
     .Second = {remove()},
     .Picture = c_Defaults,
     .FirstThenSecond = "accepted / accepted\n501 | -",
     .SecondThenFirst = "ML060 / accepted\n"},
    {.Name = "LoadedBySomebodyElseAndDeleted",
     .Restore = c_OneShared,
     .First = {remove()},
     .Second = {load()},
     .Picture = c_Defaults,
     .FirstThenSecond = "accepted / ML060\n",
     .SecondThenFirst = "accepted / accepted\n502 | -",
     .SecondUser = "dvorak"},
    {.Name = "LoadedBySomebodyElseAndSharedNoMore",
     .Restore = c_OneShared,
     .First = {look(), rename("Společné", false)},
     .Second = {load()},
     .Picture = c_Defaults,
     .FirstThenSecond = "accepted / ML060\n",
     .SecondThenFirst = "accepted / accepted\n502 | 1001",
     .SecondUser = "dvorak"},
    {.Name = "RenamedToWhatIsKeptAnew",
     .Restore = c_OneShared,
     .First = {look(), rename("Nové")},
     .Second = {keepAs("Nové", "<b/>")},
     .Picture = c_Settings,
     .FirstThenSecond = "accepted / ML063\nNové | 1 | <a/>",
     .SecondThenFirst = "ML063 / accepted\nSpolečné | 1 | <a/>\nNové | 0 | <b/>"},
    {.Name = "TwoKeptByOneName",
     .Restore = c_Nobody,
     .First = {keepAs("Nové", "<a/>")},
     .Second = {keepAs("Nové", "<b/>")},
     .Picture = c_Settings,
     .FirstThenSecond = "accepted / ML063\nNové | 0 | <a/>",
     .SecondThenFirst = "ML063 / accepted\nNové | 0 | <b/>"},
    {.Name = "OneNameKeptByTwoUsers",
     .Restore = c_Nobody,
     .First = {keepAs("Nové", "<a/>")},
     .Second = {keepAs("Nové", "<b/>")},
     .Picture = c_Settings,
     .FirstThenSecond = "accepted / accepted\nNové | 0 | <a/>\nNové | 0 | <b/>",
     .SecondThenFirst = "accepted / accepted\nNové | 0 | <a/>\nNové | 0 | <b/>",
     .SecondUser = "dvorak"},
    {.Name = "OverwrittenTwice",
     .Restore = c_OneShared,
     .First = {overwrite("<b/>")},
     .Second = {overwrite("<c/>")},
     .Picture = c_Settings,
     .FirstThenSecond = "accepted / accepted\nSpolečné | 1 | <c/>",
     .SecondThenFirst = "accepted / accepted\nSpolečné | 1 | <b/>"},
    {.Name = "TheWindowPlacedTwice",
     .Restore = c_Nobody,
     .First = {keepPlace("<left/>")},
     .Second = {keepPlace("<right/>")},
     .Picture = "select DATA from EDITOROKNO",
     .FirstThenSecond = "accepted / accepted\n<right/>",
     .SecondThenFirst = "accepted / accepted\n<left/>"},
    {.Name = "TheDefaultChosenAndForgotten",
     .Restore = c_OneShared,
     .First = {load()},
     .Second = {step("NASTAVENISmazDef", {{"a_TYPEDITACE", c_Notes}})},
     .Picture = c_Defaults,
     .FirstThenSecond = "accepted / accepted\n",
     .SecondThenFirst = "accepted / accepted\n501 | 1001"},
};

class InterleavedSettings : public testing::TestWithParam<std::tuple<Engine, SessionPair>> {};

TEST_P(InterleavedSettings, EndAsOneAfterTheOtherInWhateverOrderTheirCallsCome) {
    expectRightEnds(std::get<1>(GetParam()), std::get<0>(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(OnBothEngines, InterleavedSettings,
                         testing::Combine(testing::ValuesIn(c_BothEngines), testing::ValuesIn(c_Pairs)),
                         [](const auto& each) {
                             return engineName(std::get<0>(each.param)) + std::get<1>(each.param).Name;
                         });

} // namespace
} // namespace refhost
