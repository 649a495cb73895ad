#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"

#include <chrono>
#include <ctime>

namespace refhost {

namespace {

class OpeningContract : public Contract {};

/// A day counted from today in UTC, as the database keeps it.
std::string dayFromToday(int days) {
    const std::time_t now =
        std::chrono::system_clock::to_time_t(std::chrono::system_clock::now() + std::chrono::days(days));
    std::tm utc{};
    gmtime_r(&now, &utc);
    char text[16];
    std::strftime(text, sizeof text, "%Y-%m-%d", &utc);
    return text;
}

TEST_P(OpeningContract, ANoteNeedsTheUserTheSwitchTheRatesOfTodayAndTheWarehouses) {
    // The rate of 15 % ended in 2023.
    EXPECT_EQ(answer(sharedCompany(), "MELVARKEDITORDodakInit"), "novakova | 0\n\n"
                                                                 "0 %\n12 %\n21 %\n\n"
                                                                 "Hlavní sklad\nPobočka Čáslav");
}

TEST_P(OpeningContract, RatesAreSortedByTheirPercentageNotByTheirName) {
    const auto database = ownCompany();
    database->runScript("insert into DPH (NAZEV, SAZBA, PLATIOD) values ('9.5 %', '9.5', '2020-01-01'), "
                        "('100 %', '100', '2020-01-01')");

    // As texts "100 %" would come before "12 %", and "9.5 %" last.
    EXPECT_EQ(answer(*database, "MELVARKEDITORDodakInit"), "novakova | 0\n\n"
                                                           "0 %\n9.5 %\n12 %\n21 %\n100 %\n\n"
                                                           "Hlavní sklad\nPobočka Čáslav");
}

TEST_P(OpeningContract, ARateIsValidOnItsFirstAndItsLastDay) {
    const auto database = ownCompany();
    const std::string yesterday = dayFromToday(-1);
    const std::string today = dayFromToday(0);
    const std::string tomorrow = dayFromToday(1);
    database->runScript("insert into GLOBALPARAM (SEKCE, NAZEV, HODNOTA) values ('FIRMA', 'CASOVEPASMO', 'UTC')");
    database->runScript("delete from DPH where NAZEV = '0 %'");
    database->runScript("insert into DPH (NAZEV, SAZBA, PLATIOD, PLATIDO) values ('1 %', '1', '2000-01-01', '" +
                        yesterday + "'), ('2 %', '2', '" + today + "', '" + today + "'), ('3 %', '3', '" + tomorrow +
                        "', null)");

    EXPECT_EQ(answer(*database, "MELVARKEDITORDodakInit"), "novakova | 0\n\n"
                                                           "2 %\n12 %\n21 %\n\n"
                                                           "Hlavní sklad\nPobočka Čáslav");
}

TEST_P(OpeningContract, LocalVatIsOnOnlyWhenTheCompanySaysSo) {
    const auto database = ownCompany();
    const auto localVat = [&] { return answer(*database, "MELVARKEDITORDodakInit").substr(0, 12); };

    database->runScript("update GLOBALPARAM set HODNOTA = '1' where NAZEV = 'DPHBLIC'");
    EXPECT_EQ(localVat(), "novakova | 1");
    database->runScript("update GLOBALPARAM set HODNOTA = null where NAZEV = 'DPHBLIC'");
    EXPECT_EQ(localVat(), "novakova | 0");
    database->runScript("delete from GLOBALPARAM where NAZEV = 'DPHBLIC'");
    EXPECT_EQ(localVat(), "novakova | 0");
}

TEST_P(OpeningContract, TheUserIsTheOneOfTheConnection) {
    const std::string url = ownCompanyUrl();
    EXPECT_EQ(answer(*openAs(url, "dvorak"), "MELVARKEDITORDodObjInit"), "dvorak");
    EXPECT_EQ(answer(*openAs(url, "Šťastný"), "MELVARKEDITORDodObjInit"), "Šťastný");
}

TEST_P(OpeningContract, OnlyAnOpenNoteMayBeEdited) {
    const auto check = [&](const TDbValue& note) {
        return answer(sharedCompany(), "MELVARKEDITORDodakCheckMaster", {{"a_DODKID", note}});
    };
    EXPECT_EQ(check(id(c_OpenNote)), "");
    EXPECT_EQ(check(id(c_NoteOfMill)), "ML011 Dodací list „DL-1“ je uzavřený. Otevřete jej, nebo vyberte jiný.");
    EXPECT_EQ(check(id(c_Missing)),
              "ML010 Dodací list s identifikátorem 999 neexistuje. Obnovte seznam a vyberte jiný.");
    EXPECT_EQ(check(id(-1)), "ML010 Dodací list s identifikátorem -1 neexistuje. Obnovte seznam a vyberte jiný.");
    EXPECT_EQ(check({}), "ML010 Dodací list s identifikátorem NULL neexistuje. Obnovte seznam a vyberte jiný.");
}

TEST_P(OpeningContract, OnlyAnOpenOrderOrTemplateMayBeEdited) {
    const auto check = [&](const TDbValue& document) {
        return answer(sharedCompany(), "MELVARKEDITORDodObjCheckMaster", {{"a_DDOBID", document}});
    };
    EXPECT_EQ(check(id(c_Order)), "");
    EXPECT_EQ(check(id(c_Template)), "");
    EXPECT_EQ(check(id(c_FreeOrder)), "");
    EXPECT_EQ(check(id(c_ClosedOrder)), "ML013 Objednávka „OBJ-6“ je uzavřená. Otevřete ji, nebo vyberte jinou.");
    EXPECT_EQ(check(id(c_ClosedTemplate)),
              "ML013 Vzor objednávky „VZ-2“ je uzavřený. Otevřete jej, nebo vyberte jiný.");
    EXPECT_EQ(check(id(c_Missing)), "ML012 Objednávka ani vzor objednávky s identifikátorem 999 neexistuje. "
                                    "Obnovte seznam a vyberte jiný doklad.");
    EXPECT_EQ(check({}), "ML012 Objednávka ani vzor objednávky s identifikátorem NULL neexistuje. "
                         "Obnovte seznam a vyberte jiný doklad.");
}

TEST_P(OpeningContract, UnsavedWorkComesBackOnlyForADocumentThatIsThereAndOpen) {
    const auto note = [&](const TDbValue& value) {
        return answer(sharedCompany(), "MELVARKEDITORDodakObnovData", {{"a_DODKID", value}});
    };
    EXPECT_EQ(note(id(c_OpenNote)), "a_OBNOVDATA = 1");
    EXPECT_EQ(note(id(c_NoteOfMill)), "a_OBNOVDATA = 0");
    EXPECT_EQ(note(id(c_Missing)), "a_OBNOVDATA = 0");
    EXPECT_EQ(note({}), "a_OBNOVDATA = 0");

    const auto order = [&](const TDbValue& value) {
        return answer(sharedCompany(), "MELVARKEDITORDodObjObnovData", {{"a_DDOBID", value}});
    };
    EXPECT_EQ(order(id(c_Order)), "a_OBNOVDATA = 1");
    EXPECT_EQ(order(id(c_Template)), "a_OBNOVDATA = 1");
    EXPECT_EQ(order(id(c_ClosedOrder)), "a_OBNOVDATA = 0");
    EXPECT_EQ(order(id(c_ClosedTemplate)), "a_OBNOVDATA = 0");
    EXPECT_EQ(order(id(c_Missing)), "a_OBNOVDATA = 0");
    EXPECT_EQ(order({}), "a_OBNOVDATA = 0");
}

TEST_P(OpeningContract, PickListsSortByCzechRules) {
    // č behind c, ch behind h: "Bílek", "Cukrárna", "Čajovna Říp", "Hrubý", "Chalupa", "Mlýn Lípa", "Nápoje Švec".
    const auto database = ownCompany();
    database->runScript("insert into DODAVATEL (JMENO) values ('Chalupa'), ('Cukrárna'), ('Hrubý'), ('Bílek')");
    EXPECT_EQ(rows(*database, "select JMENO from DODAVATEL_V order by JMENO"),
              "Bílek\nCukrárna\nČajovna Říp\nHrubý\nChalupa\nMlýn Lípa\nNápoje Švec");
    EXPECT_EQ(rows(*database, "select NAZEV from SKLAD_V order by NAZEV"), "Hlavní sklad\nPobočka Čáslav");
}

TEST_P(OpeningContract, NamesThatCzechRulesHoldForEqualHaveAFixedOrderToo) {
    // Small letters come before capitals. The two forms of "é" are one letter: its bytes 65 CC 81 come before C3 A9.
    const auto database = ownCompany();
    database->runScript("insert into SKLAD (NAZEV) values ('ABC'), ('caf\u00e9'), ('Abc'), ('cafe\u0301'), ('abc'), "
                        "('abd'), ('ábc')");
    EXPECT_EQ(rows(*database, "select NAZEV from SKLAD_V order by NAZEV"),
              "abc\nAbc\nABC\nábc\nabd\ncafe\u0301\ncaf\u00e9\nHlavní sklad\nPobočka Čáslav");
}

TEST_P(OpeningContract, OfAParameterThatIsNamedTwiceTheLastValueCounts) {
    const auto outputFor = [](const Parameters& parameters) {
        return answer(sharedCompany(), "MELVARKEDITORDodakObnovData", parameters);
    };
    EXPECT_EQ(outputFor({{"a_DODKID", id(c_Missing)}, {"A_dodkid", id(c_OpenNote)}}), "a_OBNOVDATA = 1");
    EXPECT_EQ(outputFor({{"a_DODKID", id(c_OpenNote)}, {"A_dodkid", id(c_Missing)}}), "a_OBNOVDATA = 0");
}

TEST_P(OpeningContract, OfAParameterThatIsSetTwiceTheLastValueCounts) {
    EXPECT_EQ(outcome(sharedCompany(), "MELVARKEDITORDodakCheckMaster",
                      {{"a_DODKID", id(4711)}, {"A_dodkid", id(c_OpenNote)}}),
              "accepted");
    EXPECT_EQ(outcome(sharedCompany(), "MELVARKEDITORDodakCheckMaster",
                      {{"a_DODKID", id(c_OpenNote)}, {"A_dodkid", id(4711)}}),
              "ML010");
}

INSTANTIATE_TEST_SUITE_P(Engines, OpeningContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
