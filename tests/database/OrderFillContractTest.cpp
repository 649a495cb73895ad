#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"

namespace refhost {

namespace {

class OrderFillContract : public Contract {};

const TDbValue c_None;

std::string byOrder(Database& database, std::int64_t document, const TDbValue& source, const Columns& columns = {}) {
    return answer(database, "MELVARKEDITORDodObjGetPolozkyByObjednavka",
                  {{"a_DDOBIDMASTER", id(document)}, {"a_DDOBID", source}}, columns);
}

std::string byNote(Database& database, std::int64_t document, const TDbValue& note, const Columns& columns = {}) {
    return answer(database, "MELVARKEDITORDodObjGetPolozkyByDodak",
                  {{"a_DDOBIDMASTER", id(document)}, {"a_DODKID", note}}, columns);
}

std::string byGroups(Database& database, std::int64_t document, const TDbValue& first, const TDbValue& second,
                     const TDbValue& third, const Columns& columns = {}) {
    return answer(database, "MELVARKEDITORDodObjGetPolozkyBySkupSkladPol",
                  {{"a_DDOBIDMASTER", id(document)}, {"a_SSP1ID", first}, {"a_SSP2ID", second}, {"a_SSP3ID", third}},
                  columns);
}

std::string byPriceList(Database& database, std::int64_t document, const TDbValue& supplier,
                        const Columns& columns = {}) {
    return answer(database, "MELVARKEDITORDodObjGetPolozkyByDodCenik",
                  {{"a_DDOBIDMASTER", id(document)}, {"a_DODVID", supplier}}, columns);
}

std::string byDeliveries(Database& database, std::int64_t document, const TDbValue& supplier, bool quantities,
                         const Columns& columns = {}) {
    return answer(database, "MELVARKEDITORDodObjGetPolozkyByDodavky",
                  {{"a_DDOBIDMASTER", id(document)}, {"a_DODVID", supplier}, {"a_PRENESMNOZSTVI", quantities}},
                  columns);
}

const Columns c_Quantities = {"SKLADPOL", "MNOZSTVIHL", "MNOZSTVIV1", "MNOZSTVIV2"};

TEST_P(OrderFillContract, AnOrderGivesAllItsLinesEachQuantityInTheColumnOfItsUnit) {
    // 4 sacks are the first secondary unit of flour; the delivered line and what was delivered do not matter.
    EXPECT_EQ(byOrder(sharedCompany(), c_EarlierOrder, id(c_Order)),
              "Potraviny | Mouky | Hladké | Mouka hladká | Hlavní sklad | Mlýn Lípa | "
              "- | kg | 11 | 4 | pytel | 12 | - | paleta | 13 | - | -\n"
              "Potraviny | Mouky | Hrubé | Mouka hrubá | Hlavní sklad | Mlýn Lípa | "
              "10 | kg | 21 | - | pytel | 22 | - | - | - | - | -\n"
              "Potraviny | Cukry | Krystal | Cukr krystal | Pobočka Čáslav | Mlýn Lípa | "
              "7,5 | kg | 31 | - | karton | 32 | - | - | - | krystal jemný | spěchá");
}

TEST_P(OrderFillContract, AUnitThatAnItemLacksIsEmptyBetweenOthersToo) {
    EXPECT_EQ(byOrder(sharedCompany(), c_FreeOrder, id(c_OrderOfDrinks)),
              "Nápoje | Ostatní | Směsi | Sirup | Hlavní sklad | Nápoje Švec | "
              "- | l | 71 | 10 | lahev | 72 | - | - | - | - | -\n"
              "Nápoje | Čaje | Černé | Čaj černý | Hlavní sklad | Nápoje Švec | "
              "- | ks | 41 | - | - | - | 2 | krabice | 43 | - | -");
}

TEST_P(OrderFillContract, ATemplatesLineHasItsOwnSupplierOrTheTemplates) {
    EXPECT_EQ(byOrder(sharedCompany(), c_Order, id(c_Template), {"SKLADPOL", "SKLAD", "DODAVATEL", "MNOZSTVIHL"}),
              "Mouka hladká | Hlavní sklad | Mlýn Lípa | 50\nSirup | Hlavní sklad | Nápoje Švec | 5");
}

TEST_P(OrderFillContract, ASourceWithoutASupplierLeavesThatOfTheDocument) {
    const auto database = ownCompany();
    database->runScript("update DODOBJEDNAVKA set DODVID = null where ID = 10");
    const Columns columns = {"SKLADPOL", "DODAVATEL"};
    EXPECT_EQ(byOrder(*database, c_Order, id(c_EarlierOrder), columns),
              "Čaj černý | Mlýn Lípa\nChléb | Mlýn Lípa\nCukr krystal | Mlýn Lípa");
    EXPECT_EQ(byOrder(*database, c_FreeOrder, id(c_EarlierOrder), columns),
              "Čaj černý | -\nChléb | -\nCukr krystal | -");
}

TEST_P(OrderFillContract, WithoutASourceEachItemComesOnceFromTheLatestThreeOtherOrders) {
    // For OBJ-1: OBJ-4 of 10.4., OBJ-6 of 1.3. (its flour is older; of coarse flour its later line, in kilograms),
    // OBJ-10 of 9.2. (its sugar is older). OBJ-2 of 1.2. is the fourth.
    const std::string expected = "Mouka hladká | 3 | - | -\n"
                                 "Cukr krystal | 2 | - | -\n"
                                 "Mouka hrubá | 3 | - | -\n"
                                 "Čaj černý | - | - | 1\n"
                                 "Chléb | 6 | - | -";
    EXPECT_EQ(byOrder(sharedCompany(), c_Order, c_None, c_Quantities), expected);
    EXPECT_EQ(byOrder(sharedCompany(), c_Order, id(-1), c_Quantities), expected);
}

TEST_P(OrderFillContract, ATemplateWithoutASourceIsFilledFromOrdersToo) {
    // The latest three orders of Mill: OBJ-4, OBJ-6 and OBJ-1, whose items the others have already.
    EXPECT_EQ(byOrder(sharedCompany(), c_Template, c_None, c_Quantities), "Mouka hladká | 3 | - | -\n"
                                                                          "Cukr krystal | 2 | - | -\n"
                                                                          "Mouka hrubá | 3 | - | -");
    EXPECT_EQ(byOrder(sharedCompany(), c_FreeOrder, c_None), ""); // nobody's order has no supplier to look at
}

TEST_P(OrderFillContract, OfOrdersOfOneMomentTheHigherIdIsTheNewer) {
    const auto database = ownCompany();
    database->runScript("update DODOBJEDNAVKA set OBJEDNANIDC = '2026-04-10 10:00:00' where ID = 6");

    // OBJ-6 and OBJ-4 were ordered at the same moment: OBJ-6 comes first, with its 5 kg of flour.
    EXPECT_EQ(byOrder(*database, c_Template, c_None, c_Quantities), "Mouka hladká | 5 | - | -\n"
                                                                    "Mouka hrubá | 3 | - | -\n"
                                                                    "Cukr krystal | 2 | - | -");
}

TEST_P(OrderFillContract, OfManyOrdersOfOneMomentTheHighestIdsAreTheLatest) {
    // After OBJ-4 and OBJ-6 come OBJ-1, OBJ-2 and OBJ-10, all of one moment: the third is OBJ-10.
    const auto database = ownCompany();
    database->runScript("update DODOBJEDNAVKA set OBJEDNANIDC = '2026-02-10 08:30:00' where ID in (1, 2, 10)");
    EXPECT_EQ(byOrder(*database, c_Template, c_None, {"SKLADPOL"}),
              "Mouka hladká\nCukr krystal\nMouka hrubá\nČaj černý\nChléb");
}

TEST_P(OrderFillContract, ANoteGivesItsLinesInMainUnits) {
    EXPECT_EQ(byNote(sharedCompany(), c_Order, id(c_NoteOfMill),
                     {"SKLADPOL", "SKLAD", "DODAVATEL", "MNOZSTVIHL", "JEDNOTKYHL", "MNOZSTVIV1"}),
              "Mouka hladká | Hlavní sklad | Mlýn Lípa | 2 | kg | -\n"
              "Cukr krystal | Pobočka Čáslav | Mlýn Lípa | 5 | kg | -\n"
              "Mouka hrubá | Hlavní sklad | Mlýn Lípa | -1,5 | kg | -");
}

TEST_P(OrderFillContract, GroupsGiveTheirActiveItemsByTheGroupsNamesThenTheItems) {
    // Cukry, Mouky (Hladké, Hrubé), Ostatní; "Hruška" before "Chléb", for ch is a letter of its own behind h. The
    // flakes are not active any more.
    EXPECT_EQ(byGroups(sharedCompany(), c_OrderOfBranch, id(1), c_None, c_None),
              "Potraviny | Cukry | Krystal | Cukr krystal | Pobočka Čáslav | Mlýn Lípa | "
              "- | kg | 31 | - | karton | 32 | - | - | - | - | -\n"
              "Potraviny | Mouky | Hladké | Mouka hladká | Pobočka Čáslav | Mlýn Lípa | "
              "- | kg | 11 | - | pytel | 12 | - | paleta | 13 | - | -\n"
              "Potraviny | Mouky | Hrubé | Mouka hrubá | Pobočka Čáslav | Mlýn Lípa | "
              "- | kg | 21 | - | pytel | 22 | - | - | - | - | -\n"
              "Potraviny | Ostatní | Směsi | Hruška sušená | Pobočka Čáslav | Mlýn Lípa | "
              "- | kg | 61 | - | - | - | - | - | - | - | -\n"
              "Potraviny | Ostatní | Směsi | Chléb | Pobočka Čáslav | Mlýn Lípa | "
              "- | ks | 51 | - | - | - | - | - | - | - | -");
}

TEST_P(OrderFillContract, EachLevelOfGroupsRestricts) {
    const Columns columns = {"SKLADPOL", "DODAVATEL"};
    Database& database = sharedCompany();
    EXPECT_EQ(byGroups(database, c_FreeOrder, id(-1), id(5), id(-1), columns), "Sirup | -");
    EXPECT_EQ(byGroups(database, c_FreeOrder, c_None, c_None, id(5), columns), "Hruška sušená | -\nChléb | -");
    EXPECT_EQ(byGroups(database, c_FreeOrder, id(1), id(1), id(2), columns), "Mouka hrubá | -");
    EXPECT_EQ(byGroups(database, c_FreeOrder, id(2), c_None, c_None, columns), "Čaj černý | -\nSirup | -");
    EXPECT_EQ(byGroups(database, c_Order, c_None, c_None, c_None),
              "ML033 Není zadána žádná skupina. Zadejte skupinu aspoň jedné úrovně.");
    EXPECT_EQ(byGroups(database, c_Order, id(2), id(1), c_None),
              "ML034 Skupina 2. úrovně „Mouky“ neleží pod skupinou „Nápoje“. Vyberte skupiny, které k sobě patří.");
}

TEST_P(OrderFillContract, APriceListGivesWhatIsListedAtTheMomentOfTheOrder) {
    const Columns columns = {"SKLADPOL", "SKLAD", "DODAVATEL", "MNOZSTVIHL", "SKPLIDHL"};
    Database& database = sharedCompany();
    // 10.2.2026: everything that Mill ever listed, the flakes too, which are only no longer offered by groups.
    EXPECT_EQ(byPriceList(database, c_Order, id(c_Mill), columns), "Cukr krystal | Hlavní sklad | Mlýn Lípa | - | 31\n"
                                                                   "Mouka hladká | Hlavní sklad | Mlýn Lípa | - | 11\n"
                                                                   "Mouka hrubá | Hlavní sklad | Mlýn Lípa | - | 21\n"
                                                                   "Ovesné vločky | Hlavní sklad | Mlýn Lípa | - | 81");
    // 10.4.2026: sugar is not listed any more and flour between two lists.
    EXPECT_EQ(byPriceList(database, c_OrderOfBranch, id(c_Mill), columns),
              "Mouka hrubá | Pobočka Čáslav | Mlýn Lípa | - | 21\n"
              "Ovesné vločky | Pobočka Čáslav | Mlýn Lípa | - | 81");
    // A second before the end of the only day on which tea is listed; two days later only syrup is left.
    EXPECT_EQ(byPriceList(database, c_OrderOfDrinks, id(c_Drinks), {"SKLADPOL"}), "Čaj černý\nSirup");
    EXPECT_EQ(byPriceList(database, c_FreeOrder, id(c_Drinks), {"SKLADPOL"}), "Sirup");
    EXPECT_EQ(byPriceList(database, c_Order, id(c_Silent)), "");
    // A template's moment is now: the list of flour that began in May 2026 has no end, that of sugar is over.
    EXPECT_EQ(byPriceList(database, c_Template, id(c_Mill), {"SKLADPOL"}), "Mouka hladká\nMouka hrubá\nOvesné vločky");
}

TEST_P(OrderFillContract, DeliveriesGiveEachItemWithItsLatestQuantity) {
    // For OBJ-1 from 10.11.2025 to 10.2.2026: DL-1 of 1.2. (flour 2, sugar 5; the coarse flour is a return), DL-7
    // (pears 8), DL-8 of the first day (bread 1.25; its 100 kg of flour are older). DL-9 of 9.11. is a day too old.
    EXPECT_EQ(byDeliveries(sharedCompany(), c_Order, id(c_Mill), true),
              "Potraviny | Cukry | Krystal | Cukr krystal | Hlavní sklad | Mlýn Lípa | "
              "5 | kg | 31 | - | karton | 32 | - | - | - | - | -\n"
              "Potraviny | Mouky | Hladké | Mouka hladká | Hlavní sklad | Mlýn Lípa | "
              "2 | kg | 11 | - | pytel | 12 | - | paleta | 13 | - | -\n"
              "Potraviny | Ostatní | Směsi | Hruška sušená | Hlavní sklad | Mlýn Lípa | "
              "8 | kg | 61 | - | - | - | - | - | - | - | -\n"
              "Potraviny | Ostatní | Směsi | Chléb | Hlavní sklad | Mlýn Lípa | "
              "1,25 | ks | 51 | - | - | - | - | - | - | - | -");
    EXPECT_EQ(byDeliveries(sharedCompany(), c_Order, id(c_Mill), false, c_Quantities),
              "Cukr krystal | - | - | -\nMouka hladká | - | - | -\nHruška sušená | - | - | -\nChléb | - | - | -");
    // For OBJ-4 from 10.1. to 10.4.: of flour the last line of DL-4; DL-1, DL-2 and DL-6 give the rest.
    EXPECT_EQ(byDeliveries(sharedCompany(), c_OrderOfBranch, id(c_Mill), true, {"SKLADPOL", "SKLAD", "MNOZSTVIHL"}),
              "Čaj černý | Pobočka Čáslav | 1\nCukr krystal | Pobočka Čáslav | 6\n"
              "Mouka hladká | Pobočka Čáslav | 4\nChléb | Pobočka Čáslav | 20");
}

TEST_P(OrderFillContract, UnknownDocumentsAndSuppliersAreRefusedInWords) {
    Database& database = sharedCompany();
    const std::string document =
        "ML012 Objednávka ani vzor objednávky s identifikátorem 999 neexistuje. Obnovte seznam "
        "a vyberte jiný doklad.";
    EXPECT_EQ(byOrder(database, c_Missing, id(c_Order)), document);
    EXPECT_EQ(byNote(database, c_Missing, id(c_OpenNote)), document);
    EXPECT_EQ(byGroups(database, c_Missing, id(1), c_None, c_None), document);
    EXPECT_EQ(byPriceList(database, c_Missing, id(c_Mill)), document);
    EXPECT_EQ(byDeliveries(database, c_Missing, id(c_Mill), true), document);
    EXPECT_EQ(byOrder(database, c_Order, id(c_Missing)),
              "ML021 Objednávka „999“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(byNote(database, c_Order, id(c_Missing)),
              "ML021 Dodací list „999“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    const std::string supplier = "ML021 Dodavatel „999“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.";
    EXPECT_EQ(byPriceList(database, c_Order, id(c_Missing)), supplier);
    EXPECT_EQ(byDeliveries(database, c_Order, id(c_Missing), true), supplier);
}

INSTANTIATE_TEST_SUITE_P(Engines, OrderFillContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
