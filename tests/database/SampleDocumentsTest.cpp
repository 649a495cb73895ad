#include "tests/database/RecalculationLine.h"
#include "tests/database/SampleContent.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace refhost {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SampleOrders, FillAYearAndAHalfUpToToday) {
    EXPECT_THAT(queryRows(sampleCompany(), "select min(OBJEDNANIDC) between '2025-05-18' and '2025-05-31 23:59:59', "
                                           "date(max(OBJEDNANIDC)) from DODOBJEDNAVKA where VZOR = 0"),
                ElementsAre("1 | 2026-11-18"));
    EXPECT_THAT(
        contradicting("select ID from DODOBJEDNAVKA where VZOR = 0 and strftime('%w', OBJEDNANIDC) in ('0', '6')"),
        IsEmpty())
        << "nobody orders at the weekend";
    EXPECT_THAT(
        contradicting("select s.ID from DODAVATEL s where (select count(*) from DODOBJEDNAVKA o where o.DODVID = s.ID "
                      "and VZOR = 0) < 8"),
        IsEmpty());
}

TEST(SampleOrders, AreNumberedByYearAndIdentifierAndFollowTheMomentOfOrdering) {
    EXPECT_THAT(contradicting("select ID, CISLO from DODOBJEDNAVKA where VZOR = 0 and "
                              "CISLO <> 'OV' || substr(OBJEDNANIDC, 1, 4) || '-' || printf('%06d', ID)"),
                IsEmpty());
    EXPECT_THAT(contradicting("select a.ID from DODOBJEDNAVKA a join DODOBJEDNAVKA b on b.ID = a.ID + 1 "
                              "where b.OBJEDNANIDC < a.OBJEDNANIDC"),
                IsEmpty());
}

TEST(SampleOrders, HaveWhatTheSupplierListedOnThatDay) {
    EXPECT_THAT(
        contradicting("select p.ID from DODOBJPOL p join DODOBJEDNAVKA o on o.ID = p.DDOBID and o.VZOR = 0 "
                      "where not exists (select 1 from PRICE_V c where c.DODVID = o.DODVID and c.SKLPID = p.SKLPID "
                      "and date(o.OBJEDNANIDC) between c.FIRSTDAY and c.LASTDAY)"),
        IsEmpty());
    EXPECT_THAT(contradicting("select DDOBID from DODOBJPOL group by DDOBID, SKLPID having count(*) > 1"), IsEmpty())
        << "no item twice in one order";
}

TEST(SampleOrders, AreDeliveredAsMuchAsTheDeliveryNotesSay) {
    EXPECT_THAT(contradicting("select p.ID, p.DODANO from DODOBJPOL p where p.DODANO <> coalesce("
                              "(select dec_sum(d.MNOZSTVI) from DODAKPOL d where d.DOBSID = p.ID), '0')"),
                IsEmpty());
    EXPECT_THAT(contradicting("select p.ID from DODOBJPOL p join SKPL u on u.ID = p.SKPLID "
                              "where p.KOMPLETNI <> (dec_cmp(p.DODANO, dec_mul(p.MNOZSTVI, u.FAKTOR)) >= 0)"),
                IsEmpty());
    const std::string partly = "DODOBJPOL where KOMPLETNI = 0 and DODANO <> '0'";
    EXPECT_GE(count(partly), 10) << "some lines came in part";
    EXPECT_GE(
        count("DODOBJPOL p join SKPL u on u.ID = p.SKPLID where dec_cmp(p.DODANO, dec_mul(p.MNOZSTVI, u.FAKTOR)) > 0"),
        10)
        << "some notes brought more than was ordered";
}

TEST(SampleOrders, AreOpenWhileSomethingMayStillCome) {
    EXPECT_THAT(contradicting("select o.ID from DODOBJEDNAVKA o where o.VZOR = 0 and o.OTEVRENO = 1 "
                              "and o.OBJEDNANIDC < '2026-10-28'"),
                IsEmpty());
    EXPECT_GE(count("DODOBJEDNAVKA o where VZOR = 0 and OTEVRENO = 1 and exists (select 1 from DODOBJPOL p "
                    "where p.DDOBID = o.ID and p.KOMPLETNI = 0)"),
              5);
    EXPECT_EQ(count("DODOBJEDNAVKA o where VZOR = 0 and not exists (select 1 from DODOBJPOL where DDOBID = o.ID)"), 2)
        << "two that a clerk has just begun";
    EXPECT_EQ(count("DODOBJEDNAVKA where VZOR = 0 and OTEVRENO = 1 and DODVID is null"), 1);
}

TEST(SampleTemplates, NameTheSuppliersOfTheirLinesWhereTheyHaveNone) {
    EXPECT_THAT(contradicting("select p.ID from DODOBJPOL p join DODOBJEDNAVKA o on o.ID = p.DDOBID and o.VZOR = 1 "
                              "where (p.DODVID is null) = (o.DODVID is null)"),
                IsEmpty());
    EXPECT_GE(count("DODOBJEDNAVKA where VZOR = 1 and DODVID is null and OTEVRENO = 1"), 1);
    EXPECT_GE(count("DODOBJEDNAVKA where VZOR = 1 and OTEVRENO = 0"), 1);
}

TEST(SampleDeliveryNotes, EndTodayAndFollowTheirDates) {
    EXPECT_EQ(queryRows(sampleCompany(), "select max(DATUM) from DODAK").at(0), c_SampleTodayText);
    EXPECT_THAT(contradicting("select a.ID from DODAK a join DODAK b on b.ID = a.ID + 1 where b.DATUM < a.DATUM"),
                IsEmpty());
    EXPECT_EQ(queryNumber(sampleCompany(), "select max(ID) - count(*) from DODAK"), 0);
}

TEST(SampleDeliveryNotes, BringLinesOfOrdersOfTheSameSupplierAndWarehouse) {
    EXPECT_THAT(
        contradicting("select p.ID from DODAKPOL p join DODAK d on d.ID = p.DODKID "
                      "join DODOBJPOL l on l.ID = p.DOBSID join DODOBJEDNAVKA o on o.ID = l.DDOBID "
                      "where o.VZOR = 1 or o.DODVID <> d.DODVID or o.SKLDID <> d.SKLDID or p.SKLDID <> d.SKLDID "
                      "or l.SKLPID <> p.SKLPID or date(o.OBJEDNANIDC) > d.DATUM"),
        IsEmpty());
    EXPECT_THAT(contradicting("select DODKID, DDOBIDZDROJ from DODAKZDROJ except select p.DODKID, l.DDOBID "
                              "from DODAKPOL p join DODOBJPOL l on l.ID = p.DOBSID"),
                testing::SizeIs(testing::Le(30U)))
        << "an order of which nothing arrived may be named too";
    EXPECT_THAT(contradicting("select p.DODKID, l.DDOBID from DODAKPOL p join DODOBJPOL l on l.ID = p.DOBSID "
                              "except select DODKID, DDOBIDZDROJ from DODAKZDROJ"),
                IsEmpty());
    EXPECT_GE(queryNumber(sampleCompany(), "select count(*) from (select DODKID from DODAKZDROJ group by DODKID "
                                           "having count(*) = 2)"),
              20)
        << "some are of two orders";
}

TEST(SampleDeliveryNotes, HaveVatRatesOfTheirDayAndShelfLivesFromIt) {
    EXPECT_THAT(
        contradicting("select p.ID from DODAKPOL p join DODAK d on d.ID = p.DODKID join DPH r on r.ID = p.DPHID "
                      "where d.DATUM not between r.PLATIOD and coalesce(r.PLATIDO, '9999-12-31')"),
        IsEmpty());
    EXPECT_THAT(
        contradicting("select p.ID from DODAKPOL p join DODAK d on d.ID = p.DODKID join SKLADPOL i on i.ID = p.SKLPID "
                      "where p.TRVANLIVOST is not date(d.DATUM, '+' || i.TRVANLIVOSTDNU || ' days')"),
        IsEmpty());
}

TEST(SampleDeliveryNotes, SendBackOnlyWhatTheSupplierBroughtBefore) {
    EXPECT_THAT(
        contradicting("select r.ID from DODAKPOL r join DODAK d on d.ID = r.DODKID where dec_cmp(r.MNOZSTVI, 0) < 0 "
                      "and not exists (select 1 from DODAKPOL p join DODAK e on e.ID = p.DODKID "
                      "where e.DODVID = d.DODVID and e.SKLDID = d.SKLDID and e.ID < d.ID and p.SKLPID = r.SKLPID "
                      "and dec_cmp(p.MNOZSTVI, dec_neg(r.MNOZSTVI)) >= 0)"),
        IsEmpty());
    EXPECT_GE(count("DODAKPOL where dec_cmp(MNOZSTVI, 0) < 0"), 20);
}

TEST(SampleDeliveryNotes, TheNewestOnesAreOpen) {
    const std::int64_t openNotes = count("DODAK where OTEVRENO = 1");
    EXPECT_EQ(openNotes, 8);
    EXPECT_EQ(queryNumber(sampleCompany(), "select max(ID) - min(ID) + 1 from DODAK where OTEVRENO = 1"), openNotes);
    EXPECT_EQ(queryNumber(sampleCompany(), "select max(ID) from DODAK where OTEVRENO = 1"), count("DODAK"));
}

TEST(SampleDeliveryNotes, AnEmptyOneWaitsForAnOrderOfASupplierWithThreeEarlierNotes) {
    const std::vector<std::string> emptyNotes = queryRows(
        sampleCompany(), "select ID from DODAK d where not exists (select 1 from DODAKPOL where DODKID = d.ID)");
    ASSERT_EQ(emptyNotes.size(), 2U);
    for (const std::string& note : emptyNotes) {
        EXPECT_EQ(count("DODAK where OTEVRENO = 1 and DATUM = '2026-11-18' and ID = " + note), 1) << note;
        EXPECT_GE(count("DODAK d join DODAK e on e.DODVID = d.DODVID and e.ID < d.ID "
                        "and exists (select 1 from DODAKPOL where DODKID = e.ID) where d.ID = " +
                        note),
                  3)
            << note;
        EXPECT_GE(
            count("DODAK d join DODOBJEDNAVKA o on o.DODVID = d.DODVID and o.SKLDID = d.SKLDID and o.OTEVRENO = 1 "
                  "and exists (select 1 from DODOBJPOL where DDOBID = o.ID and DODANO = '0') where d.ID = " +
                  note),
            1)
            << note;
    }
}

const std::vector<std::string> c_PriceKeys = [] {
    std::vector<std::string> keys;
    for (const PriceRow& row : c_PriceRows) {
        keys.insert(keys.end(), row.Keys.begin(), row.Keys.end());
    }
    return keys;
}();

/// The lines of all notes as the host shows them.
TResultTable shownLines() {
    return sampleCompany().Query("select * from SCREEN_DODAK_LINES_V order by _ID");
}

const TDbValue& cell(const TResultTable& table, const std::vector<TDbValue>& row, const std::string& column) {
    const auto found = std::ranges::find(table.Columns, column);
    return row.at(static_cast<std::size_t>(found - table.Columns.begin()));
}

/// The parameter of a staged row that takes a price cell: "JEDNCENABSESLEVOU" goes into "a_JEDNCENABSL".
std::string stagedName(std::string key) {
    if (key.ends_with("BEZSLEVY")) {
        return "a_" + key.substr(0, key.size() - 8);
    }
    return "a_" + key.substr(0, key.size() - 8) + "SL";
}

TEST(SampleDeliveryNotes, EveryLineWouldBeSavedAsItStands) {
    const TResultTable lines = shownLines();
    ASSERT_GE(lines.Rows.size(), 4'000U);
    sampleCompany().Execute({"MELVARKEDITORResetTemp", {}, false});
    for (const std::vector<TDbValue>& row : lines.Rows) {
        TProcedureCall call{"MELVARKEDITORDodakInsertToTemp", {}, false};
        for (const char* column : {"SKLADPOL", "SKLAD", "MNOZSTVI", "DPH", "SLEVA", "TRVANLIVOST"}) {
            call.Params.push_back({"a_" + std::string(column), cell(lines, row, column)});
        }
        for (const std::string& key : c_PriceKeys) {
            call.Params.push_back({stagedName(key), cell(lines, row, key)});
        }
        ASSERT_NO_THROW(sampleCompany().Execute(call)) << std::get<std::int64_t>(row.at(0));
    }
    sampleCompany().Execute({"MELVARKEDITORResetTemp", {}, false});
}

TEST(SampleDeliveryNotes, PricesAreThoseThatTheEditorWouldReckon) {
    const TResultTable lines = shownLines();
    for (std::size_t place = 0; place < lines.Rows.size(); place += 50) {
        const std::vector<TDbValue>& row = lines.Rows[place];
        TProcedureCall call{"MELVARKEDITORDodakVypocetCen", {}, true};
        call.Params = {{"a_ZMENENEBUNKY", AnsiString()},
                       {"a_PREPOCETCEN", true},
                       {"a_FOCUS", AnsiString("JEDNCENABBEZSLEVY")},
                       {"a_MNOZSTVI", cell(lines, row, "MNOZSTVI")},
                       {"a_DPH", cell(lines, row, "DPH")},
                       {"a_SLEVA", cell(lines, row, "SLEVA")},
                       {"a_JEDNCENABBEZSLEVY", cell(lines, row, "JEDNCENABBEZSLEVY")}};
        const TCallResult result = sampleCompany().Execute(call);
        const TResultTable& reckoned = result.Sets.at(0);
        for (const std::string& key : c_PriceKeys) {
            EXPECT_EQ(cell(reckoned, reckoned.Rows.at(0), key), cell(lines, row, key))
                << key << " of line " << std::get<std::int64_t>(row.at(0));
        }
    }
}

TEST(SampleDeliveryNotes, TotalsAreSumsOfTheirParts) {
    EXPECT_THAT(
        contradicting("select ID from DODAKPOL where dec_cmp(CENASSESLEVOU, dec_add(CENABSESLEVOU, DPHASESLEVOU)) <> 0 "
                      "or dec_cmp(JEDNCENASBEZSLEVY, dec_add(JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY)) <> 0 "
                      "or DPHBSESLEVOU <> '0'"),
        IsEmpty());
    EXPECT_THAT(contradicting(
                    "select p.ID from DODAKPOL p join DPH r on r.ID = p.DPHID where dec_cmp(p.CENABSESLEVOU, dec_round("
                    "dec_mul(p.MNOZSTVI, p.JEDNCENABSESLEVOU), 2)) <> 0 or dec_cmp(p.DPHASESLEVOU, "
                    "dec_round(dec_div(dec_mul(p.CENABSESLEVOU, r.SAZBA), 100, 6), 2)) <> 0"),
                IsEmpty());
}

} // namespace

} // namespace refhost
