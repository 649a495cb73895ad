#include "refhost/database/SampleCompany.h"

#include "refhost/database/sample/Stock.h"
#include "refhost/database/sample/Suppliers.h"
#include "tests/database/Engines.h"
#include "tests/database/SampleContent.h"

#include <gmock/gmock.h>

namespace refhost {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SampleCompany, HasTheSizeOfAWholesaler) {
    EXPECT_EQ(count("SKLAD"), 3);
    EXPECT_EQ(count("DODAVATEL"), 40);
    EXPECT_EQ(count("SKLADPOL"), 2'000);
    EXPECT_GE(count("SKLADPOL where AKTIVNI = 1"), 1'900);
    EXPECT_GE(count("SKLADPOL where AKTIVNI = 0"), 10) << "some goods are no longer kept";
    EXPECT_GE(count("DODOBJEDNAVKA where VZOR = 0"), 500);
    EXPECT_GE(count("DODOBJEDNAVKA where VZOR = 1"), 10);
    EXPECT_GE(count("DODAK"), 500);
    EXPECT_THAT(queryRows(sampleCompany(), "select JMENO from UZIVATEL order by ID"),
                ElementsAre("novakova", "dvorak", "svoboda", "admin"));
}

TEST(SampleCompany, OffersTheVatRatesOfTodayAndKnowsFormerOnes) {
    const auto validOn = [](const std::string& day) {
        return queryRows(sampleCompany(), "select NAZEV from DPH where PLATIOD <= '" + day +
                                              "' and coalesce(PLATIDO, '9999-12-31') >= '" + day + "' order by NAZEV");
    };

    EXPECT_THAT(validOn(c_SampleTodayText), ElementsAre("0 %", "12 %", "21 %"));
    EXPECT_THAT(validOn("2023-12-31"), ElementsAre("0 %", "10 %", "15 %", "21 %"));
}

TEST(SampleCompany, HasTheParametersThatTheEditorsAskFor) {
    EXPECT_THAT(queryRows(sampleCompany(), "select SEKCE, NAZEV, HODNOTA from GLOBALPARAM order by SEKCE, NAZEV"),
                ElementsAre("DPH | DPHBLIC | 0", "DPH | SAZBADPHB | 2", "SKLAD | POCETMESICUDODAVEK | 12"));
}

TEST(SampleStock, NoTwoNamesDifferOnlyInCaseOrBlanks) {
    EXPECT_THAT(contradicting("select lower(NAZEV) from SKLADPOL group by lower(NAZEV) having count(*) > 1"),
                IsEmpty());
    EXPECT_THAT(contradicting("select lower(JMENO) from DODAVATEL group by lower(JMENO) having count(*) > 1"),
                IsEmpty());
    EXPECT_THAT(contradicting("select NAZEV from SKLADPOL where NAZEV <> trim(NAZEV) or NAZEV like '%  %' or "
                              "NAZEV glob '*[|:]*'"),
                IsEmpty());
}

TEST(SampleStock, EveryGroupOfEveryLevelHoldsItems) {
    EXPECT_THAT(
        contradicting("select NAZEV from SKUPSPOL1 g where not exists (select 1 from ITEM_V where SSP1ID = g.ID)"),
        IsEmpty());
    EXPECT_THAT(
        contradicting("select NAZEV from SKUPSPOL2 g where not exists (select 1 from ITEM_V where SSP2ID = g.ID)"),
        IsEmpty());
    EXPECT_THAT(
        contradicting("select NAZEV from SKUPSPOL3 g where not exists (select 1 from ITEM_V where SSP3ID = g.ID)"),
        IsEmpty());
    EXPECT_EQ(count("ITEM_V"), 2'000) << "and every item lies in a group of each level";
    EXPECT_GE(count("SKUPSPOL1"), 5);
    EXPECT_GE(count("SKUPSPOL2"), 20);
    EXPECT_GE(count("SKUPSPOL3"), 50);
}

TEST(SampleStock, EveryItemHasAMainUnitAndSomeHaveOneOrTwoMore) {
    EXPECT_THAT(contradicting("select SKLADPOL from ITEM_V where JEDNOTKYHL is null"), IsEmpty());
    EXPECT_THAT(contradicting("select SKLADPOL from ITEM_V where JEDNOTKYV2 is not null and JEDNOTKYV1 is null"),
                IsEmpty());
    EXPECT_THAT(contradicting("select ID from SKPL where dec_cmp(FAKTOR, 0) <= 0"), IsEmpty());
    EXPECT_GE(count("ITEM_V where JEDNOTKYV1 is null or JEDNOTKYV2 is null"), 500);
    EXPECT_GE(count("ITEM_V where JEDNOTKYV2 is not null"), 500);
}

TEST(SampleStock, PerishableGoodsHaveAShelfLife) {
    EXPECT_EQ(queryNumber(sampleCompany(), "select TRVANLIVOSTDNU from SKLADPOL where NAZEV = 'Rohlík tukový 50 g'"),
              2);
    EXPECT_THAT(
        contradicting("select SKLADPOL from ITEM_V where SKUPSPOL2 = 'Mléčné výrobky' and TRVANLIVOSTDNU is null"),
        IsEmpty());
    EXPECT_THAT(contradicting("select SKLADPOL from ITEM_V where SKUPSPOL1 = 'Nářadí a železářství' and "
                              "SKUPSPOL2 = 'Ruční nářadí' and TRVANLIVOSTDNU is not null"),
                IsEmpty());
}

TEST(SampleSuppliers, SellGroupsThatExist) {
    const sample::Stock stock = sample::makeStock();
    for (const sample::Supplier& supplier : sample::suppliers()) {
        std::size_t sold = 0;
        for (const sample::StockGroup& group : stock.Groups2) {
            sold += sample::sells(supplier, group.Name) ? 1U : 0U;
        }
        EXPECT_EQ(sold, static_cast<std::size_t>(std::ranges::count(supplier.Assortment, '|')) + 1) << supplier.Name;
    }
}

TEST(SamplePriceLists, NeverListAnItemTwiceAtOneMoment) {
    EXPECT_THAT(contradicting("select a.DODVID, a.SKLPID from PRICE_V a join PRICE_V b on b.DODVID = a.DODVID and "
                              "b.SKLPID = a.SKLPID and b.FIRSTDAY > a.FIRSTDAY and b.FIRSTDAY <= a.LASTDAY"),
                IsEmpty());
}

TEST(SamplePriceLists, ListEveryActiveItemSomewhereTodayAndNoOther) {
    const std::string listed =
        "(select SKLPID from PRICE_V where '" + std::string(c_SampleTodayText) + "' between FIRSTDAY and LASTDAY)";
    EXPECT_LE(count("SKLADPOL where AKTIVNI = 1 and ID not in " + listed), 40) << "a few are out of every list";
    EXPECT_EQ(count("SKLADPOL where AKTIVNI = 0 and ID in " + listed), 0);
}

TEST(SamplePriceLists, ChangeWithTheHalfYearsALittle) {
    EXPECT_THAT(contradicting("select distinct substr(FIRSTDAY, 6) from PRICE_V "
                              "where substr(FIRSTDAY, 6) not in ('01-01', '07-01')"),
                IsEmpty());
    EXPECT_THAT(
        contradicting("select a.SKLPID, a.CENA, b.CENA from PRICE_V a join PRICE_V b on b.DODVID = a.DODVID and "
                      "b.SKLPID = a.SKLPID and b.FIRSTDAY = date(a.LASTDAY, '+1 day') "
                      "where dec_cmp(b.CENA, dec_mul(a.CENA, '1.06')) > 0 or "
                      "dec_cmp(b.CENA, dec_mul(a.CENA, '0.96')) < 0"),
        IsEmpty());
    EXPECT_THAT(queryRows(sampleCompany(), "select distinct SLEVA from DODCENIK order by 0 + SLEVA"),
                ElementsAre("0", "2", "5", "7.5", "10"));
}

TEST(SampleCompany, IsTheSameEveryTimeOnTheSameDay) {
    const auto again = newDatabase(Engine::SQLite);
    createSampleCompany(*again, 0, c_SampleToday);

    const auto expected = sampleContent(sampleCompany());
    for (const auto& [table, rows] : sampleContent(*again)) {
        EXPECT_TRUE(rows == expected.at(table)) << table;
    }
}

TEST(SampleCompany, IsTheSameOnBothEngines) {
    const auto server = newDatabase(Engine::PostgreSQL);
    createSampleCompany(*server, 0, c_SampleToday);

    const auto expected = sampleContent(sampleCompany());
    for (const auto& [table, rows] : sampleContent(*server)) {
        ASSERT_EQ(rows.size(), expected.at(table).size()) << table;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            ASSERT_EQ(rows[row], expected.at(table)[row]) << table;
        }
    }
}

TEST(SampleCompany, TakesMoreLinesForTrialsAndLeavesTheRestAlone) {
    const auto longer = newDatabase(Engine::SQLite);
    createSampleCompany(*longer, 2'500, c_SampleToday);

    auto expected = sampleContent(sampleCompany());
    auto content = sampleContent(*longer);
    for (const auto& [table, more] : std::map<std::string, std::size_t>{
             {"DODOBJEDNAVKA", 2}, {"DODOBJPOL", 5'000}, {"DODAK", 1}, {"DODAKPOL", 2'500}}) {
        ASSERT_EQ(content[table].size(), expected[table].size() + more) << table;
        content[table].resize(expected[table].size());
    }
    EXPECT_TRUE(content == expected);
    EXPECT_THAT(queryRows(*longer, "select POCETPOLOZEK, STAV from SCREEN_DODAK_V where POCETPOLOZEK = 2500"),
                ElementsAre("2500 | otevřený"));
    EXPECT_THAT(queryRows(*longer, "select POCETPOLOZEK, STAV from SCREEN_DODOBJ_V where POCETPOLOZEK = 2500"),
                ElementsAre("2500 | otevřený"));
    EXPECT_THAT(queryRows(*longer, "select POCETPOLOZEK, STAV from SCREEN_DODOBJVZOR_V where POCETPOLOZEK = 2500"),
                ElementsAre("2500 | otevřený"));
}

TEST(SampleCompany, MovesWithTheDayOfItsCreation) {
    const auto later = newDatabase(Engine::SQLite);
    createSampleCompany(*later, 0, std::chrono::year(2028) / 2 / 29);

    EXPECT_THAT(queryRows(*later, "select max(DATUM), date(max(DATUM), '-17 months') > min(DATUM) from DODAK"),
                ElementsAre("2028-02-29 | 1"));
    EXPECT_GE(queryNumber(*later, "select count(*) from PRICE_V where '2028-02-29' between FIRSTDAY and LASTDAY"),
              3'000);
    EXPECT_TRUE(queryRows(*later, "select * from SKLADPOL order by ID") ==
                queryRows(sampleCompany(), "select * from SKLADPOL order by ID"));
}

} // namespace

} // namespace refhost
