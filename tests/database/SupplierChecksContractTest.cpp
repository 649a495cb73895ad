#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"

#include <gmock/gmock.h>

namespace refhost {

namespace {

const TDbValue c_None;

TDbValue text(const char* value) {
    return AnsiString(value);
}

std::string listOf(Database& database, const TDbValue& document, const TDbValue& name, const TDbValue& supplier) {
    return answer(database, "MELVARKEDITORDodObjCheckZdrojDodCenik",
                  {{"a_DDOBIDMASTER", document}, {"a_JMENO", name}, {"a_DODVID", supplier}});
}

std::string deliveriesOf(Database& database, const TDbValue& document, const TDbValue& name, const TDbValue& supplier) {
    return answer(database, "MELVARKEDITORDodObjCheckZdrojDodavky",
                  {{"a_DDOBIDMASTER", document}, {"a_JMENO", name}, {"a_DODVID", supplier}});
}

class SupplierChecksContract : public Contract {};

TEST_P(SupplierChecksContract, ASupplierIsFoundByHisNameInAnyCaseOfLetters) {
    Database& database = sharedCompany();
    EXPECT_EQ(listOf(database, id(c_Order), text("Mlýn Lípa"), c_None), "1");
    EXPECT_EQ(listOf(database, id(c_Order), text(" mLÝN lÍPA "), c_None), "1");
    EXPECT_EQ(listOf(database, id(c_Order), text("NÁPOJE ŠVEC"), id(c_Drinks)), "2");
    EXPECT_EQ(listOf(database, id(c_Order), c_None, id(c_Mill)), "1");
    EXPECT_EQ(deliveriesOf(database, id(c_Order), text("MLÝN LÍPA"), c_None), "1");
    EXPECT_EQ(listOf(database, id(c_Order), text("Mlyn Lipa"), c_None), // letters without their accents are others
              "ML021 Dodavatel „Mlyn Lipa“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
}

TEST_P(SupplierChecksContract, AWrongOrMissingSupplierIsRefusedInWords) {
    Database& database = sharedCompany();
    EXPECT_EQ(listOf(database, id(c_Order), text(""), id(-1)),
              "ML020 Zdroj není zadán. Zapište jej, nebo jej vyberte ze seznamu.");
    EXPECT_EQ(listOf(database, id(c_Order), c_None, id(c_Missing)),
              "ML021 Dodavatel „999“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(listOf(database, id(c_Order), text("Nápoje Švec"), id(c_Mill)),
              "ML022 Zapsáno je „Nápoje Švec“, ale vybráno bylo „Mlýn Lípa“. Vyberte ze seznamu znovu.");
    EXPECT_EQ(deliveriesOf(database, id(c_Order), text("Nápoje Švec"), id(c_Mill)),
              "ML022 Zapsáno je „Nápoje Švec“, ale vybráno bylo „Mlýn Lípa“. Vyberte ze seznamu znovu.");
    EXPECT_EQ(listOf(database, id(c_Missing), text("Mlýn Lípa"), c_None),
              "ML012 Objednávka ani vzor objednávky s identifikátorem 999 neexistuje. Obnovte seznam a vyberte jiný "
              "doklad.");
}

TEST_P(SupplierChecksContract, NamesThatDifferInCaseOnlyAreTwo) {
    const auto database = ownCompany();
    database->runScript("insert into DODAVATEL (ID, JMENO) values (4, 'MLÝN LÍPA')");

    // The second one lists nothing and delivers nothing: only one is admissible.
    EXPECT_EQ(listOf(*database, id(c_Order), text("mlýn lípa"), c_None), "1");
    EXPECT_EQ(deliveriesOf(*database, id(c_Order), text("mlýn lípa"), c_None), "1");

    database->runScript("insert into DODCENIK (DODVID, SKLPID, PLATIOD, CENA) values (4, 1, '2020-01-01', '1')");
    EXPECT_EQ(listOf(*database, id(c_Order), text("mlýn lípa"), c_None),
              "ML023 Označení „mlýn lípa“ má více záznamů. Vyberte ten správný ze seznamu.");
    EXPECT_EQ(listOf(*database, id(c_Order), text("mlýn lípa"), id(4)), "4");
}

// The dialog of an order's own supplier offers no list and no other text: the name has to be enough.
TEST_P(SupplierChecksContract, OfNamesThatDifferInCaseOnlyTheOneWrittenJustSoIsMeant) {
    const auto database = ownCompany();
    database->runScript("insert into DODAVATEL (ID, JMENO) values (4, 'MLÝN LÍPA'), (5, 'mlýn lípa')");
    EXPECT_EQ(deliveriesOf(*database, id(c_Order), text("MLÝN LÍPA"), c_None), // never somebody else's in their place
              "ML029 Dodavatel „MLÝN LÍPA“ v posledních měsících nic nedodal. Vyberte jiného dodavatele.");

    database->runScript("update DODAK set DODVID = 4 where ID = 7;"
                        "insert into DODCENIK (DODVID, SKLPID, PLATIOD, CENA) values (4, 1, '2020-01-01', '1')");
    for (const auto& check : {deliveriesOf, listOf}) {
        EXPECT_EQ(check(*database, id(c_Order), text("Mlýn Lípa"), c_None), "1");
        EXPECT_EQ(check(*database, id(c_Order), text(" MLÝN LÍPA "), c_None), "4");
        EXPECT_EQ(check(*database, id(c_Order), text("Mlýn LÍPA"), c_None),
                  "ML023 Označení „Mlýn LÍPA“ má více záznamů. Vyberte ten správný ze seznamu.");
        EXPECT_EQ(check(*database, id(c_Order), text("MLÝN LÍPA"), id(c_Mill)), "1"); // the pick decides
    }
}

TEST_P(SupplierChecksContract, APriceListCountsOnTheDayOfTheOrder) {
    const auto database = ownCompany();
    EXPECT_EQ(listOf(*database, id(c_Order), text("Čajovna Říp"), c_None),
              "ML028 Dodavatel „Čajovna Říp“ nemá k datu 10.2.2026 žádný platný ceník. Vyberte jiného dodavatele.");

    // Drinks list tea on 10.2. only, and syrup until 30.6.; without the syrup only that one day is left.
    database->runScript("delete from DODCENIK where SKLPID = 7");
    EXPECT_EQ(listOf(*database, id(c_OrderOfDrinks), text("Nápoje Švec"), c_None), "2"); // a second before midnight
    EXPECT_EQ(listOf(*database, id(c_EarlierOrder), text("Nápoje Švec"), c_None),
              "ML028 Dodavatel „Nápoje Švec“ nemá k datu 9.2.2026 žádný platný ceník. Vyberte jiného dodavatele.");
    EXPECT_EQ(listOf(*database, id(c_FreeOrder), text("Nápoje Švec"), c_None),
              "ML028 Dodavatel „Nápoje Švec“ nemá k datu 12.2.2026 žádný platný ceník. Vyberte jiného dodavatele.");
}

TEST_P(SupplierChecksContract, ForATemplateThePriceListOfTodayCounts) {
    // Drinks' lists ended in the first half of 2026, which is over; Mill's has no end.
    Database& database = sharedCompany();
    EXPECT_EQ(listOf(database, id(c_Template), c_None, id(c_Mill)), "1");
    EXPECT_EQ(listOf(database, c_None, c_None, id(c_Mill)), "1"); // without a document too
    EXPECT_THAT(listOf(database, id(c_Template), c_None, id(c_Drinks)),
                testing::StartsWith("ML028 Dodavatel „Nápoje Švec“ nemá k datu "));
}

TEST_P(SupplierChecksContract, DeliveriesCountForTheMonthsOfTheParameter) {
    const auto database = ownCompany();
    const auto check = [&](std::int64_t document) {
        return deliveriesOf(*database, id(document), c_None, id(c_Drinks));
    };
    const std::string nothing =
        "ML029 Dodavatel „Nápoje Švec“ v posledních měsících nic nedodal. Vyberte jiného dodavatele.";

    // Of Drinks there is DL-3 of 20.2.2026; their other note of 1.10.2025 has no lines.
    EXPECT_EQ(check(c_Order), nothing);     // 10.11.2025 to 10.2.2026: DL-3 comes later
    EXPECT_EQ(check(c_OrderOfBranch), "2"); // 10.1. to 10.4.2026
    database->runScript("update GLOBALPARAM set HODNOTA = '1' where NAZEV = 'POCETMESICUDODAVEK'");
    EXPECT_EQ(check(c_OrderOfBranch), nothing); // 10.3. to 10.4.2026
    database->runScript("update DODAK set DATUM = '2026-03-10' where ID = 3");
    EXPECT_EQ(check(c_OrderOfBranch), "2"); // the first day counts
    database->runScript("update DODAK set DATUM = '2026-03-09' where ID = 3");
    EXPECT_EQ(check(c_OrderOfBranch), nothing); // the day before does not
    database->runScript("update DODAK set DATUM = '2026-04-10' where ID = 3");
    EXPECT_EQ(check(c_OrderOfBranch), "2"); // the day of the order counts
    database->runScript("update DODAKPOL set MNOZSTVI = '-14' where DODKID = 3");
    EXPECT_EQ(check(c_OrderOfBranch), nothing); // a return is no delivery
}

TEST_P(SupplierChecksContract, TheNumberOfMonthsIsATextThatHasToBeANumber) {
    const auto database = ownCompany();
    const auto check = [&](const std::string& months) {
        database->runScript("update GLOBALPARAM set HODNOTA = " + months + " where NAZEV = 'POCETMESICUDODAVEK'");
        return deliveriesOf(*database, id(c_Order), c_None, id(c_Mill));
    };
    EXPECT_EQ(check("' 3 '"), "1");
    EXPECT_EQ(check("'" + std::string(100, '9') + "'"), "ML070 Počet měsíců „" + std::string(60, '9') +
                                                            "…“ není celé číslo od 0 do 1200. Opravte parametr firmy.");
    EXPECT_EQ(check("'0'"), // the day of the order only
              "ML029 Dodavatel „Mlýn Lípa“ v posledních měsících nic nedodal. Vyberte jiného dodavatele.");
    EXPECT_EQ(check("'tři'"), "ML070 Počet měsíců „tři“ není celé číslo od 0 do 1200. Opravte parametr firmy.");
    EXPECT_EQ(check("'-1'"), "ML070 Počet měsíců „-1“ není celé číslo od 0 do 1200. Opravte parametr firmy.");
    database->runScript("update DODAK set DATUM = '1950-01-01' where DODVID = 1");
    EXPECT_EQ(check("'1200'"), "1"); // a hundred years
    EXPECT_EQ(check("'900'").substr(0, 5), "ML029");
    EXPECT_EQ(check("null"), "1"); // no limit
    EXPECT_EQ(check("'1201'"), "ML070 Počet měsíců „1201“ není celé číslo od 0 do 1200. Opravte parametr firmy.");
}

std::string group(Database& database, int level, const TDbValue& name, const TDbValue& chosen) {
    const std::string n = std::to_string(level);
    return answer(database, "MELVARKEDITORDodObjCheckSkupSkladPol" + n,
                  {{"a_DDOBIDMASTER", id(c_Order)}, {"a_NAZEV", name}, {"a_SSP" + n + "ID", chosen}});
}

std::string groups(Database& database, const TDbValue& first, const TDbValue& second, const TDbValue& third) {
    return answer(database, "MELVARKEDITORDodObjCheckSkupSkladPol",
                  {{"a_DDOBIDMASTER", id(c_Order)}, {"a_SSP1ID", first}, {"a_SSP2ID", second}, {"a_SSP3ID", third}});
}

TEST_P(SupplierChecksContract, AGroupOfALevelIsFoundOrLeftEmpty) {
    Database& database = sharedCompany();
    EXPECT_EQ(group(database, 1, text("Potraviny"), c_None), "1");
    EXPECT_EQ(group(database, 1, text(" NÁPOJE "), c_None), "2");
    EXPECT_EQ(group(database, 2, text("Cukry"), c_None), "2");
    EXPECT_EQ(group(database, 2, text("Ostatní"), id(5)), "5"); // picked: one of the two of this name
    EXPECT_EQ(group(database, 3, c_None, id(4)), "4");
    for (const int level : {1, 2, 3}) {
        EXPECT_EQ(group(database, level, c_None, c_None), "-");
        EXPECT_EQ(group(database, level, text("  "), id(-1)), "-");
    }
}

TEST_P(SupplierChecksContract, AGroupOfALevelIsRefusedInWords) {
    Database& database = sharedCompany();
    EXPECT_EQ(group(database, 1, text("Mouky"), c_None), // a group of level 2
              "ML030 Skupina 1. úrovně „Mouky“ neexistuje. Opravte název, nebo ji vyberte ze seznamu.");
    EXPECT_EQ(group(database, 2, c_None, id(c_Missing)),
              "ML030 Skupina 2. úrovně „999“ neexistuje. Opravte název, nebo ji vyberte ze seznamu.");
    EXPECT_EQ(group(database, 2, text("ostatní"), c_None),
              "ML031 Název „ostatní“ má více skupin 2. úrovně. Vyberte tu správnou ze seznamu.");
    EXPECT_EQ(group(database, 3, text("Směsi"), c_None),
              "ML031 Název „Směsi“ má více skupin 3. úrovně. Vyberte tu správnou ze seznamu.");
    EXPECT_EQ(group(database, 3, text("Hladké"), id(2)),
              "ML032 Zapsáno je „Hladké“, ale vybráno bylo „Hrubé“. Vyberte ze seznamu znovu.");
}

TEST_P(SupplierChecksContract, ChosenGroupsLieUnderOneAnother) {
    Database& database = sharedCompany();
    EXPECT_EQ(groups(database, id(1), c_None, c_None), "");
    EXPECT_EQ(groups(database, id(-1), id(2), c_None), "");
    EXPECT_EQ(groups(database, c_None, c_None, id(6)), "");
    EXPECT_EQ(groups(database, id(1), id(3), id(5)), "");
    EXPECT_EQ(groups(database, id(2), c_None, id(6)), ""); // the level between is left empty
    EXPECT_EQ(groups(database, c_None, c_None, c_None),
              "ML033 Není zadána žádná skupina. Zadejte skupinu aspoň jedné úrovně.");
    EXPECT_EQ(groups(database, id(-1), id(-1), id(-1)),
              "ML033 Není zadána žádná skupina. Zadejte skupinu aspoň jedné úrovně.");
    EXPECT_EQ(groups(database, id(2), id(1), c_None),
              "ML034 Skupina 2. úrovně „Mouky“ neleží pod skupinou „Nápoje“. Vyberte skupiny, které k sobě patří.");
    EXPECT_EQ(groups(database, id(1), id(3), id(6)), // the namesake under drinks
              "ML034 Skupina 3. úrovně „Směsi“ neleží pod skupinou „Ostatní“. Vyberte skupiny, které k sobě patří.");
    EXPECT_EQ(groups(database, id(1), c_None, id(4)),
              "ML034 Skupina 3. úrovně „Černé“ neleží pod skupinou „Potraviny“. Vyberte skupiny, které k sobě patří.");
    EXPECT_EQ(groups(database, c_None, id(1), id(3)),
              "ML034 Skupina 3. úrovně „Krystal“ neleží pod skupinou „Mouky“. Vyberte skupiny, které k sobě patří.");
    EXPECT_EQ(groups(database, id(1), id(c_Missing), c_None),
              "ML030 Skupina 2. úrovně „999“ neexistuje. Opravte název, nebo ji vyberte ze seznamu.");
    EXPECT_EQ(answer(database, "MELVARKEDITORDodObjCheckSkupSkladPol", {{"a_DDOBIDMASTER", id(c_Missing)}}),
              "ML012 Objednávka ani vzor objednávky s identifikátorem 999 neexistuje. Obnovte seznam a vyberte jiný "
              "doklad.");
}

INSTANTIATE_TEST_SUITE_P(Engines, SupplierChecksContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
