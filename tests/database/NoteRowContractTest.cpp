#include "tests/database/ContractCompany.h"
#include "tests/database/Staging.h"

#include <tuple>

namespace refhost {

// What one row of a delivery note has to be before it is kept for the closing call.

struct NoteRowRefusal {
    const char* Name;
    Cells Row;
    const char* Sentence;
};

void PrintTo(const NoteRowRefusal& refusal, std::ostream* out) {
    *out << refusal.Name;
}

namespace {

class NoteRowContract : public Contract {
protected:
    /// What one row that begins a save of its own is answered.
    std::string staged(const Cells& cells) {
        Database& database = sharedCompany();
        beginSave(database);
        return stageNoteRow(database, cells);
    }
};

class NoteRowRefused : public testing::TestWithParam<std::tuple<Engine, NoteRowRefusal>> {};

const Cells c_Flour = {{"a_SKLADPOL", "Mouka hladká"}, {"a_MNOZSTVI", "2"}};

Cells flourWith(const Cells& cells) {
    Cells all = cells;
    all.insert(c_Flour.begin(), c_Flour.end());
    return all;
}

const std::vector<NoteRowRefusal>& refusals() {
    static const std::vector<NoteRowRefusal> all = {
        {"NoItem", {{"a_MNOZSTVI", "1"}}, "ML042 Řádek nemá skladovou položku. Doplňte ji, nebo řádek vyprázdněte."},
        {"UnknownItem", {{"a_SKLADPOL", "Mouka"}}, "ML043 Skladová položka „Mouka“ neexistuje. Vyberte jinou."},
        {"ItemInOtherLetters", // names of items are matched to the letter
         {{"a_SKLADPOL", "mouka hladká"}},
         "ML043 Skladová položka „mouka hladká“ neexistuje. Vyberte jinou."},
        {"UnknownWarehouse", flourWith({{"a_SKLAD", "Sklep"}}),
         "ML044 Sklad „Sklep“ neexistuje. Vyberte sklad ze seznamu."},
        {"UnknownRate", flourWith({{"a_DPH", "19 %"}}),
         "ML110 Sazba DPH „19 %“ neexistuje. Vyberte sazbu ze seznamu sazeb DPH."},
        {"UnknownOrderLine", flourWith({{"a_DOBSID", "999"}}),
         "ML049 Řádek objednávky „999“ neexistuje. Načtěte položky z objednávky znovu."},
        {"NoOrderLineAtAll", flourWith({{"a_DOBSID", "řádek"}}),
         "ML049 Řádek objednávky „řádek“ neexistuje. Načtěte položky z objednávky znovu."},
        {"LineOfATemplate", // nothing is delivered on a template
         flourWith({{"a_DOBSID", "701"}}),
         "ML049 Řádek objednávky „701“ neexistuje. Načtěte položky z objednávky znovu."},
        {"LineOfAnotherItem", flourWith({{"a_DOBSID", "103"}}),
         "ML050 Řádek objednávky „103“ je pro jinou položku než „Mouka hladká“. Načtěte položky z objednávky znovu."},
        {"QuantityInWords",
         {{"a_SKLADPOL", "Mouka hladká"}, {"a_MNOZSTVI", "mnoho"}},
         "ML001 Množství „mnoho“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou čárku."},
        {"QuantityWithSevenDecimals",
         {{"a_SKLADPOL", "Mouka hladká"}, {"a_MNOZSTVI", "1.1234567"}},
         "ML006 Množství „1.1234567“ má příliš mnoho desetinných míst. Zapište nejvýše 6."},
        {"QuantityWithSixteenDigits",
         {{"a_SKLADPOL", "Mouka hladká"}, {"a_MNOZSTVI", "1234567890123456"}},
         "ML005 Množství „1234567890123456“ je příliš dlouhé číslo. Zapište nejvýše 15 číslic před desetinnou čárkou a "
         "50 za ní."},
        {"TwoNumbersInOneCell", flourWith({{"a_CENAB", "1;2"}}),
         "ML001 Celková cena „1;2“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou čárku."},
        {"TheWordForNothing", flourWith({{"a_CENAB", "null"}}),
         "ML001 Celková cena „null“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou čárku."},
        {"TotalWithThreeDecimals", flourWith({{"a_CENAS", "1,125"}}),
         "ML006 Celková cena „1,125“ má příliš mnoho desetinných míst. Zapište nejvýše 2."},
        {"DiscountWithThreeDecimals", flourWith({{"a_SLEVA", "12.345"}}),
         "ML006 Sleva „12.345“ má příliš mnoho desetinných míst. Zapište nejvýše 2."},
        {"DiscountBelowZero", flourWith({{"a_SLEVA", "-0.01"}}),
         "ML111 Sleva -0,01 % není přípustná. Zadejte slevu od 0 do 100 %."},
        {"DiscountAboveAHundred", flourWith({{"a_SLEVA", "100,01"}}),
         "ML111 Sleva 100,01 % není přípustná. Zadejte slevu od 0 do 100 %."},
        {"ADayThatDoesNotExist", flourWith({{"a_TRVANLIVOST", "31.4.2026"}}),
         "ML002 Trvanlivost „31.4.2026“ není datum. Zapište existující den, měsíc a rok."},
        {"ADayInAnotherOrder", flourWith({{"a_TRVANLIVOST", "2026-04-30"}}),
         "ML002 Trvanlivost „2026-04-30“ není datum. Zapište existující den, měsíc a rok."},
        {"TheDiscountIsJudgedBeforeTheShelfLife", flourWith({{"a_SLEVA", "101"}, {"a_TRVANLIVOST", "31.4.2026"}}),
         "ML111 Sleva 101 % není přípustná. Zadejte slevu od 0 do 100 %."},
        {"TheNumbersAreJudgedBeforeTheDiscount", flourWith({{"a_SLEVA", "101"}, {"a_CENAS", "zdarma"}}),
         "ML001 Celková cena „zdarma“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou čárku."},
        {"TotalThatDoesNotFit", // 2 times 10 is not 21
         flourWith({{"a_JEDNCENAB", "10"}, {"a_CENAB", "21"}}),
         "ML052 Celková cena 21,00 položky „Mouka hladká“ neodpovídá množství 2 krát jednotkové ceně 10. Opravte jednu "
         "z nich."},
        {"ALongTextIsShortened",
         {{"a_SKLADPOL", std::string(10000, 'x')}},
         "ML043 Skladová položka „xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx…“ neexistuje. Vyberte "
         "jinou."},
        {"TheItemIsJudgedBeforeTheNumbers",
         {{"a_SKLADPOL", "Mouka"}, {"a_MNOZSTVI", "mnoho"}, {"a_SKLAD", "Sklep"}},
         "ML043 Skladová položka „Mouka“ neexistuje. Vyberte jinou."},
    };
    return all;
}

TEST_P(NoteRowRefused, InWords) {
    const auto& [engine, refusal] = GetParam();
    Database& database = sharedCompanyOn(engine);
    beginSave(database);
    const std::string before = digest(database);

    EXPECT_EQ(stageNoteRow(database, refusal.Row), refusal.Sentence);

    EXPECT_EQ(saveNote(database, id(c_OpenNote)), "ML041 Předchozí ukládání bylo odmítnuto. Uložte doklad znovu.");
    EXPECT_EQ(digest(database), before);
}

struct Pair {
    const char* Unit;
    const char* Total;
};

constexpr Pair c_Pairs[] = {{"a_JEDNCENABSL", "a_CENABSL"}, {"a_JEDNDPHASL", "a_DPHASL"}, {"a_JEDNDPHBSL", "a_DPHBSL"},
                            {"a_JEDNCENASSL", "a_CENASSL"}, {"a_JEDNCENAB", "a_CENAB"},   {"a_JEDNDPHA", "a_DPHA"},
                            {"a_JEDNDPHB", "a_DPHB"},       {"a_JEDNCENAS", "a_CENAS"}};

TEST_P(NoteRowContract, EachPriceIsReadWithItsDecimals) {
    for (const Pair& pair : c_Pairs) {
        EXPECT_EQ(staged(flourWith({{pair.Unit, "0,1234567"}})),
                  "ML006 Jednotková cena „0,1234567“ má příliš mnoho desetinných míst. Zapište nejvýše 6.")
            << pair.Unit;
        EXPECT_EQ(staged(flourWith({{pair.Total, "0.123"}})),
                  "ML006 Celková cena „0.123“ má příliš mnoho desetinných míst. Zapište nejvýše 2.")
            << pair.Total;
        EXPECT_EQ(staged(flourWith({{pair.Unit, "zdarma"}})),
                  "ML001 Jednotková cena „zdarma“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou čárku.")
            << pair.Unit;
        EXPECT_EQ(staged(flourWith({{pair.Total, "1 000"}})),
                  "ML001 Celková cena „1 000“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou čárku.")
            << pair.Total;
        EXPECT_EQ(staged(flourWith({{pair.Unit, "0.1234560"}, {pair.Total, "0.250"}})), "") << "needless zeros";
    }
}

struct ToleranceCase {
    const char* Quantity;
    const char* Unit;
    const char* Total;
    bool Accepted;
};

TEST_P(NoteRowContract, ATotalMayDifferByAsMuchAsRoundingCanTake) {
    // The difference may be 0.02 + |q| · 0.000002: for 1000 it is 0.022, for 1000000 it is 2.02, for 1 it is 0.020002,
    // for 0.000001 hardly more than 0.02, for 0.5 it is 0.020001.
    constexpr ToleranceCase cases[] = {
        {"1000", "1.000022", "1000", true},   {"1000", "1.000023", "1000", false},
        {"1000", "0.999978", "1000", true},   {"1000", "0.999977", "1000", false},
        {"-1000", "1.000022", "-1000", true}, {"-1000", "1.000023", "-1000", false},
        {"-1000", "1", "1000", false},        {"1", "1.020002", "1", true},
        {"1", "1.020003", "1", false},        {"1", "-1.020002", "-1", true},
        {"0.000001", "20000", "0", true},     {"0.000001", "20001", "0", false},
        {"0.5", "2.040002", "1", true},       {"0.5", "2.040003", "1", false},
        {"1000000", "1", "999997.98", true},  {"1000000", "1", "999997.97", false},
        {"1000000", "1", "1000002.02", true}, {"1000000", "1", "1000002.03", false},
        {"3", "0.333333", "1", true},         {"123456789", "0.01", "1234567.89", true},
    };
    for (const ToleranceCase& c : cases) {
        for (const Pair& pair : c_Pairs) {
            const std::string text = staged({{"a_SKLADPOL", "Mouka hladká"},
                                             {"a_MNOZSTVI", c.Quantity},
                                             {pair.Unit, c.Unit},
                                             {pair.Total, c.Total}});
            EXPECT_EQ(text.substr(0, 5), c.Accepted ? "" : "ML052")
                << c.Quantity << " · " << c.Unit << " = " << c.Total << " " << pair.Unit;
        }
    }
}

TEST_P(NoteRowContract, ThePairThatClashesFirstIsNamed) {
    EXPECT_EQ(
        staged({{"a_SKLADPOL", "Chléb"},
                {"a_MNOZSTVI", "-1,5"},
                {"a_JEDNCENAB", "7"},
                {"a_CENAB", "1"},
                {"a_JEDNCENASSL", "8,25"},
                {"a_CENASSL", "12,38"}}),
        "ML052 Celková cena 12,38 položky „Chléb“ neodpovídá množství -1,5 krát jednotkové ceně 8,25. Opravte jednu "
        "z nich.");
}

TEST_P(NoteRowContract, WithoutAQuantityOrOneOfThePairNothingIsCompared) {
    EXPECT_EQ(staged({{"a_SKLADPOL", "Mouka hladká"}, {"a_JEDNCENAB", "1"}, {"a_CENAB", "99"}}), "");
    EXPECT_EQ(
        staged({{"a_SKLADPOL", "Mouka hladká"}, {"a_MNOZSTVI", "0,000"}, {"a_JEDNCENAB", "1"}, {"a_CENAB", "99"}}), "");
    EXPECT_EQ(staged(flourWith({{"a_JEDNCENAB", "1"}, {"a_CENABSL", "99"}})), ""); // of different sides
    EXPECT_EQ(staged(flourWith({{"a_CENAS", "99"}})), "");
}

TEST_P(NoteRowContract, TheEdgesOfADiscountAreAllowed) {
    EXPECT_EQ(staged(flourWith({{"a_SLEVA", "0"}})), "");
    EXPECT_EQ(staged(flourWith({{"a_SLEVA", "100.00"}})), "");
    EXPECT_EQ(staged(flourWith({{"a_SLEVA", "99,99"}})), "");
}

std::string refusalName(const testing::TestParamInfo<std::tuple<Engine, NoteRowRefusal>>& info) {
    return engineName(std::get<0>(info.param)) + "_" + std::get<1>(info.param).Name;
}

INSTANTIATE_TEST_SUITE_P(Engines, NoteRowContract, testing::ValuesIn(c_BothEngines), engineOf);
INSTANTIATE_TEST_SUITE_P(Engines, NoteRowRefused,
                         testing::Combine(testing::ValuesIn(c_BothEngines), testing::ValuesIn(refusals())),
                         refusalName);

} // namespace
} // namespace refhost
