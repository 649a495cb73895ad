#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"

namespace refhost {

namespace {

class NoteFillContract : public Contract {};

const TDbValue c_Template; ///< no source: the latest notes of the supplier

std::string byOrder(Database& database, std::int64_t note, const TDbValue& order, const Columns& columns = {}) {
    return answer(database, "MELVARKEDITORDodakGetPolozkyByObjednavka", {{"a_DODKID", id(note)}, {"a_DDOBID", order}},
                  columns);
}

struct Carry {
    bool Quantities = true;
    bool Prices = true;
};

std::string byNote(Database& database, std::int64_t note, const TDbValue& source, Carry carry = {},
                   const Columns& columns = {}) {
    return answer(database, "MELVARKEDITORDodakGetPolozkyByDodak",
                  {{"a_DODKIDMASTER", source},
                   {"a_DODKID", id(note)},
                   {"a_PRENESMNOZSTVI", carry.Quantities},
                   {"a_PRENESCENY", carry.Prices}},
                  columns);
}

const Columns c_UnitPrices = {"SKLADPOL",          "MNOZSTVI",          "DPH",          "SLEVA",
                              "JEDNCENABBEZSLEVY", "JEDNCENASSESLEVOU", "CENASSESLEVOU"};

TEST_P(NoteFillContract, AnOrderGivesWhatIsLeftOfItsLinesInTheirOrder) {
    // Line 1: 4 sacks of 25 kg less 40 kg delivered are 60 kg; on 10.2.2026 flour costs 10, with 12 % 11.2, times 60.
    // Line 2 is complete. Line 3: 7.5 kg of sugar at 30, with 12 % 33.6. Shelf lives: 15.2.2026 and 180 days (13 + 31 +
    // 30 + 31 + 30 + 31 to the end of July, then 14), and 720 days (365 to 15.2.2027, 365 to 15.2.2028, less 10).
    EXPECT_EQ(byOrder(sharedCompany(), c_OpenNote, id(c_Order)),
              "101 | Potraviny | Mouky | Hladké | Mouka hladká | Hlavní sklad | 60 | 12 % | 0 | "
              "10 | 1,2 | 0 | 11,2 | 10 | 1,2 | 0 | 11,2 | "
              "600,00 | 72,00 | 0,00 | 672,00 | 600,00 | 72,00 | 0,00 | 672,00 | 14.8.2026\n"
              "103 | Potraviny | Cukry | Krystal | Cukr krystal | Pobočka Čáslav | 7,5 | 12 % | 0 | "
              "30 | 3,6 | 0 | 33,6 | 30 | 3,6 | 0 | 33,6 | "
              "225,00 | 27,00 | 0,00 | 252,00 | 225,00 | 27,00 | 0,00 | 252,00 | 5.2.2028");
}

TEST_P(NoteFillContract, AnOrderInSecondaryUnitsIsDeliveredInMainUnits) {
    // 10 bottles of 0.7 l are 7 l; 40 less 5 % is 38; 21 % of them 8.4 and 7.98; times 7: 280 and 58.80, 266 and 55.86.
    // 2 boxes of 20 are 40 pieces of tea, which is listed on the day of the order only: 99.9, 12 % are 11.988.
    EXPECT_EQ(byOrder(sharedCompany(), c_NoteOfDrinks, id(c_OrderOfDrinks)),
              "301 | Nápoje | Ostatní | Směsi | Sirup | Hlavní sklad | 7 | 21 % | 5 | "
              "38 | 7,98 | 0 | 45,98 | 40 | 8,4 | 0 | 48,4 | "
              "266,00 | 55,86 | 0,00 | 321,86 | 280,00 | 58,80 | 0,00 | 338,80 | -\n"
              "302 | Nápoje | Čaje | Černé | Čaj černý | Hlavní sklad | 40 | 12 % | 0 | "
              "99,9 | 11,988 | 0 | 111,888 | 99,9 | 11,988 | 0 | 111,888 | "
              "3996,00 | 479,52 | 0,00 | 4475,52 | 3996,00 | 479,52 | 0,00 | 4475,52 | -");
}

TEST_P(NoteFillContract, LocalVatIsAddedWhereItIsOn) {
    const auto database = ownCompany();
    database->runScript("update GLOBALPARAM set HODNOTA = '1' where NAZEV = 'DPHBLIC'");

    // 2 % of 10 are 0.2: 11.4 a kilogram, 60 of them 684; 2 % of 30 are 0.6: 34.2, 7.5 of them 256.50.
    const Columns columns = {"SKLADPOL",          "JEDNDPHASESLEVOU", "JEDNDPHBSESLEVOU",
                             "JEDNCENASSESLEVOU", "DPHBBEZSLEVY",     "CENASBEZSLEVY"};
    EXPECT_EQ(byOrder(*database, c_OpenNote, id(c_Order), columns), "Mouka hladká | 1,2 | 0,2 | 11,4 | 12,00 | 684,00\n"
                                                                    "Cukr krystal | 3,6 | 0,6 | 34,2 | 4,50 | 256,50");
}

TEST_P(NoteFillContract, APriceIsThatOfTheOrdersDayBeforeThatOfTheNotes) {
    const auto database = ownCompany();
    database->runScript("update DODAK set DATUM = '2026-05-10' where ID = 2");

    // Flour costs 12 less 10 % in May, but 10 when it was ordered; so does sugar, which is not listed in May.
    EXPECT_EQ(byOrder(*database, c_OpenNote, id(c_Order), {"SKLADPOL", "SLEVA", "JEDNCENABBEZSLEVY"}),
              "Mouka hladká | 0 | 10\nCukr krystal | 0 | 30");
}

TEST_P(NoteFillContract, WithoutAPriceOnTheOrdersDayThatOfTheNotesCounts) {
    const auto database = ownCompany();
    database->runScript("update DODAK set DATUM = '2026-05-10' where ID = 2");

    // Ordered on 10.4.2026, when nothing of it was listed. In May flour is 12 less 10 %: 10.8 and 12 % of it 1.296;
    // three of them 32.40, 12 % of that 3.888, rounded 3.89. Sugar is not listed any more: no price and no discount.
    EXPECT_EQ(byOrder(*database, c_OpenNote, id(c_OrderOfBranch)),
              "401 | Potraviny | Mouky | Hladké | Mouka hladká | Pobočka Čáslav | 3 | 12 % | 10 | "
              "10,8 | 1,296 | 0 | 12,096 | 12 | 1,44 | 0 | 13,44 | "
              "32,40 | 3,89 | 0,00 | 36,29 | 36,00 | 4,32 | 0,00 | 40,32 | 6.11.2026\n"
              "402 | Potraviny | Cukry | Krystal | Cukr krystal | Pobočka Čáslav | 2 | 12 % | - | "
              "- | - | - | - | - | - | - | - | - | - | - | - | - | - | - | - | 29.4.2028");

    database->runScript("update DODAK set DATUM = '2026-04-30' where ID = 2"); // the list begins on the next day
    EXPECT_EQ(byOrder(*database, c_OpenNote, id(c_OrderOfBranch), c_UnitPrices),
              "Mouka hladká | 3 | 12 % | - | - | - | -\nCukr krystal | 2 | 12 % | - | - | - | -");
}

TEST_P(NoteFillContract, AnOrderWithNothingLeftGivesNoRow) {
    EXPECT_EQ(byOrder(sharedCompany(), c_OpenNote, id(c_DeliveredOrder)), "");
    EXPECT_EQ(byOrder(sharedCompany(), c_OpenNote, id(c_FreeOrder)), "");
}

TEST_P(NoteFillContract, ANoteIsCarriedOverToTheLetter) {
    // Totals that are a cent off, a rate that has ended and a single price stay; shelf lives are counted
    // from 15.2.2026.
    EXPECT_EQ(byNote(sharedCompany(), c_OpenNote, id(c_NoteOfMill)),
              "- | Potraviny | Mouky | Hladké | Mouka hladká | Hlavní sklad | 2 | 12 % | 0 | "
              "10 | 1,2 | 0 | 11,2 | 10 | 1,2 | 0 | 11,2 | "
              "20,01 | 2,40 | 0,00 | 22,41 | 20,01 | 2,40 | 0,00 | 22,41 | 14.8.2026\n"
              "- | Potraviny | Cukry | Krystal | Cukr krystal | Pobočka Čáslav | 5 | 15 % | 10 | "
              "27 | 4,05 | 0 | 31,05 | 30 | 4,5 | 0 | 34,5 | "
              "135,00 | 20,25 | 0,00 | 155,25 | 150,00 | 22,50 | 0,00 | 172,50 | 5.2.2028\n"
              "- | Potraviny | Mouky | Hrubé | Mouka hrubá | Hlavní sklad | -1,5 | - | - | "
              "- | - | - | - | 7,000001 | - | - | - | - | - | - | - | - | - | - | - | -");
}

TEST_P(NoteFillContract, ANoteWithoutQuantitiesHasNoTotals) {
    EXPECT_EQ(byNote(sharedCompany(), c_OpenNote, id(c_NoteOfMill), {.Quantities = false}),
              "- | Potraviny | Mouky | Hladké | Mouka hladká | Hlavní sklad | - | 12 % | 0 | "
              "10 | 1,2 | 0 | 11,2 | 10 | 1,2 | 0 | 11,2 | - | - | - | - | - | - | - | - | 14.8.2026\n"
              "- | Potraviny | Cukry | Krystal | Cukr krystal | Pobočka Čáslav | - | 15 % | 10 | "
              "27 | 4,05 | 0 | 31,05 | 30 | 4,5 | 0 | 34,5 | - | - | - | - | - | - | - | - | 5.2.2028\n"
              "- | Potraviny | Mouky | Hrubé | Mouka hrubá | Hlavní sklad | - | - | - | "
              "- | - | - | - | 7,000001 | - | - | - | - | - | - | - | - | - | - | - | -");
}

TEST_P(NoteFillContract, ANoteWithoutPricesTakesThoseOfTheListOnItsDay) {
    // On 15.2.2026: flour 10 without a discount, sugar 30, both 12 % though the line had 15 %. Coarse flour 20.5 less
    // 12.5 % is 17.9375; 12 % of them 2.46 and 2.1525; of the returned 1.5 kg -30.75 and -3.69, and -26.90625, rounded
    // -26.91, with 12 % of that -3.2292, rounded -3.23.
    EXPECT_EQ(byNote(sharedCompany(), c_OpenNote, id(c_NoteOfMill), {.Prices = false}),
              "- | Potraviny | Mouky | Hladké | Mouka hladká | Hlavní sklad | 2 | 12 % | 0 | "
              "10 | 1,2 | 0 | 11,2 | 10 | 1,2 | 0 | 11,2 | "
              "20,00 | 2,40 | 0,00 | 22,40 | 20,00 | 2,40 | 0,00 | 22,40 | 14.8.2026\n"
              "- | Potraviny | Cukry | Krystal | Cukr krystal | Pobočka Čáslav | 5 | 12 % | 0 | "
              "30 | 3,6 | 0 | 33,6 | 30 | 3,6 | 0 | 33,6 | "
              "150,00 | 18,00 | 0,00 | 168,00 | 150,00 | 18,00 | 0,00 | 168,00 | 5.2.2028\n"
              "- | Potraviny | Mouky | Hrubé | Mouka hrubá | Hlavní sklad | -1,5 | 12 % | 12,5 | "
              "17,9375 | 2,1525 | 0 | 20,09 | 20,5 | 2,46 | 0 | 22,96 | "
              "-26,91 | -3,23 | 0,00 | -30,14 | -30,75 | -3,69 | 0,00 | -34,44 | -");
}

TEST_P(NoteFillContract, ANoteWithNeitherHasTheUnitPricesOfTheList) {
    EXPECT_EQ(
        byNote(sharedCompany(), c_OpenNote, id(c_NoteOfMill), {.Quantities = false, .Prices = false}, c_UnitPrices),
        "Mouka hladká | - | 12 % | 0 | 10 | 11,2 | -\n"
        "Cukr krystal | - | 12 % | 0 | 30 | 33,6 | -\n"
        "Mouka hrubá | - | 12 % | 12,5 | 20,5 | 20,09 | -");
    // Mill does not list bread, and flour not on 15.4.: the line's own discount goes with its prices.
    const auto database = ownCompany();
    database->runScript("update DODAK set DATUM = '2026-04-15' where ID = 2");
    EXPECT_EQ(byNote(*database, c_OpenNote, id(c_NoteOfBranch), {.Prices = false}, c_UnitPrices),
              "Mouka hladká | 3 | 12 % | - | - | - | -\n"
              "Chléb | 20 | 12 % | - | - | - | -\n"
              "Mouka hladká | 4 | 12 % | - | - | - | -");
}

const Columns c_TemplateColumns = {"DOBSID", "SKLADPOL", "SKLAD", "MNOZSTVI", "SLEVA", "TRVANLIVOST"};

TEST_P(NoteFillContract, TheTemplateHasEachItemOnceFromTheLatestThreeOtherNotes) {
    // For DL-2: DL-4 of 5.3. (bread, then the later of its two lines of flour), DL-6 of 15.2. (its flour is older),
    // DL-1 of 1.2. (its flour and sugar are older). DL-7, DL-8 and DL-9 come after the third.
    EXPECT_EQ(byNote(sharedCompany(), c_OpenNote, c_Template, {}, c_TemplateColumns),
              "- | Chléb | Pobočka Čáslav | 20 | - | 20.2.2026\n"
              "- | Mouka hladká | Pobočka Čáslav | 4 | 6 | 14.8.2026\n"
              "- | Cukr krystal | Hlavní sklad | 6 | - | 5.2.2028\n"
              "- | Mouka hrubá | Hlavní sklad | -1,5 | - | -");
    EXPECT_EQ(byNote(sharedCompany(), c_OpenNote, id(-1)), byNote(sharedCompany(), c_OpenNote, c_Template));
}

TEST_P(NoteFillContract, OfNotesOfOneDayTheHigherIdIsTheNewer) {
    // For DL-7: DL-4, then DL-6 before DL-2, both of 15.2. Shelf life from 31.12.2025.
    EXPECT_EQ(byNote(sharedCompany(), c_OldNote, c_Template, {}, {"SKLADPOL", "MNOZSTVI", "TRVANLIVOST"}),
              "Chléb | 20 | 5.1.2026\n"
              "Mouka hladká | 4 | 29.6.2026\n"
              "Cukr krystal | 6 | 21.12.2027\n"
              "Čaj černý | 1 | -");

    // With DL-1 moved to that day there are three of it; the lowest id does not come among the latest three notes.
    const auto database = ownCompany();
    database->runScript("update DODAK set DATUM = '2026-02-15' where ID = 1");
    EXPECT_EQ(byNote(*database, c_OldNote, c_Template, {}, {"SKLADPOL"}),
              "Chléb\nMouka hladká\nCukr krystal\nČaj černý");
}

TEST_P(NoteFillContract, TheTemplateIsOfTheSameSupplierOnly) {
    // The only other note of Drinks has no lines.
    EXPECT_EQ(byNote(sharedCompany(), c_NoteOfDrinks, c_Template), "");
    EXPECT_EQ(byNote(sharedCompany(), c_NamesakeOfDrinks, c_Template, {}, {"SKLADPOL", "MNOZSTVI"}), "Sirup | 14");
}

TEST_P(NoteFillContract, TheTemplateHeedsBothFlags) {
    EXPECT_EQ(byNote(sharedCompany(), c_OpenNote, c_Template, {.Quantities = false, .Prices = false}, c_UnitPrices),
              "Chléb | - | 12 % | - | - | - | -\n"
              "Mouka hladká | - | 12 % | 0 | 10 | 11,2 | -\n"
              "Cukr krystal | - | 12 % | 0 | 30 | 33,6 | -\n"
              "Mouka hrubá | - | 12 % | 12,5 | 20,5 | 20,09 | -");
}

TEST_P(NoteFillContract, UnknownDocumentsAreRefusedInWords) {
    Database& database = sharedCompany();
    const std::string note = "ML010 Dodací list s identifikátorem 999 neexistuje. Obnovte seznam a vyberte jiný.";
    EXPECT_EQ(byOrder(database, c_Missing, id(c_Order)), note);
    EXPECT_EQ(byNote(database, c_Missing, id(c_NoteOfMill)), note);
    EXPECT_EQ(byOrder(database, c_OpenNote, id(c_Missing)),
              "ML021 Objednávka „999“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(byOrder(database, c_OpenNote, id(7)), // a template
              "ML021 Objednávka „7“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(byOrder(database, c_OpenNote, {}),
              "ML021 Objednávka „NULL“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
    EXPECT_EQ(byNote(database, c_OpenNote, id(c_Missing)),
              "ML021 Dodací list „999“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.");
}

INSTANTIATE_TEST_SUITE_P(Engines, NoteFillContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
