#include "editors/DodakPrices.h"

#include "editwin/model/ColumnList.h"
#include "host/Exceptions.h"
#include "tests/editors/EditorRules.h"

#include <algorithm>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

const TFormatSettings c_Comma = TFormatSettings::Czech();
const TFormatSettings c_Point = TFormatSettings::English();

class DodakPrices : public EditorRules {
protected:
    static constexpr const char* Procedure = "MELVARKEDITORDodakVypocetCen";

    std::vector<melvark::RecalculatedCell> recalculate(const AnsiString& focus = "MNOZSTVI", bool all = true,
                                                       int row = 0) {
        return melvark::Recalculate(store_, columns(), {row, focus, all}, host_.formatSettings);
    }

    /// What a recalculation brings back, as "KEY=text".
    std::vector<AnsiString> recalculated() {
        std::vector<AnsiString> cells;
        for (const melvark::RecalculatedCell& cell : recalculate()) {
            cells.push_back(melvark::FindByDataColumn(defaults_, cell.DataColumn)->Name + "=" + cell.Text);
        }
        return cells;
    }

    void databaseReturns(const LineCells& cells) {
        std::vector<AnsiString> names;
        std::vector<AnsiString> texts;
        for (const auto& [key, text] : cells) {
            names.push_back(key);
            texts.push_back(text);
        }
        host_.connection.procedure(Procedure).returns({resultTable(names, {texts})});
    }
};

TEST_F(DodakPrices, TheNineteenCellsTravelInTheirOrder) {
    // Each number is the cell's place in the order of sending.
    putLine(0, {{"JEDNCENABBEZSLEVY", "1"},
                {"JEDNDPHABEZSLEVY", "2"},
                {"JEDNDPHBBEZSLEVY", "3"},
                {"JEDNCENASBEZSLEVY", "4"},
                {"JEDNCENABSESLEVOU", "5"},
                {"JEDNDPHASESLEVOU", "6"},
                {"JEDNDPHBSESLEVOU", "7"},
                {"JEDNCENASSESLEVOU", "8"},
                {"CENABSESLEVOU", "9"},
                {"DPHASESLEVOU", "10"},
                {"DPHBSESLEVOU", "11"},
                {"CENASSESLEVOU", "12"},
                {"CENABBEZSLEVY", "13"},
                {"DPHABEZSLEVY", "14"},
                {"DPHBBEZSLEVY", "15"},
                {"CENASBEZSLEVY", "16"},
                {"DPH", "21 %"},
                {"SLEVA", "18"},
                {"MNOZSTVI", "19"}});
    recalculate("CENABSESLEVOU", false);
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakVypocetCen(a_ZMENENEBUNKY=\"\", a_PREPOCETCEN=false, "
                            "a_FOCUS=\"CENABSESLEVOU\", a_JEDNCENABBEZSLEVY=1, a_JEDNDPHABEZSLEVY=2, "
                            "a_JEDNDPHBBEZSLEVY=3, a_JEDNCENASBEZSLEVY=4, a_JEDNCENABSESLEVOU=5, "
                            "a_JEDNDPHASESLEVOU=6, a_JEDNDPHBSESLEVOU=7, a_JEDNCENASSESLEVOU=8, a_CENABSESLEVOU=9, "
                            "a_DPHASESLEVOU=10, a_DPHBSESLEVOU=11, a_CENASSESLEVOU=12, a_CENABBEZSLEVY=13, "
                            "a_DPHABEZSLEVY=14, a_DPHBBEZSLEVY=15, a_CENASBEZSLEVY=16, a_DPH=\"21 %\", a_SLEVA=18, "
                            "a_MNOZSTVI=19) open"));
}

TEST_F(DodakPrices, EmptyCellsTravelAsNullAndAnEmptyRateAsText) {
    store_.SetRowCount(1);
    recalculate();
    const AnsiString line = host_.connection.calls().front();
    EXPECT_THAT(line, HasSubstr("a_JEDNCENABBEZSLEVY=null, "));
    EXPECT_THAT(line, HasSubstr("a_DPH=\"\", a_SLEVA=null, a_MNOZSTVI=null)"));
    EXPECT_THAT(line, testing::Not(HasSubstr("=0")));
}

TEST_F(DodakPrices, ChangedCellsStandInTableOrderEachClosed) {
    struct {
        std::vector<const char*> typed;
        const char* list;
        const char* remark;
    } const cases[] = {
        {{}, "", "nothing typed"},
        {{"MNOZSTVI"}, "MNOZSTVI;", "closed even when alone"},
        {{"MNOZSTVI", "JEDNCENABSESLEVOU"}, "JEDNCENABSESLEVOU;MNOZSTVI;", "not in the order of typing"},
        {{"SLEVA", "DPH", "CENASBEZSLEVY"}, "CENASBEZSLEVY;DPH;SLEVA;", "rate and discount count as changed"},
        {{"SKLAD", "TRVANLIVOST"}, "", "other columns take no part"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.remark);
        store_.SetRowCount(1);
        store_.ResetModified();
        for (const char* key : row.typed) {
            type(0, key, "1");
        }
        EXPECT_EQ(melvark::ChangedCells(columns(), store_, 0), row.list);
    }
}

TEST_F(DodakPrices, OnlyTheRowsOwnChangesAreListed) {
    type(1, "MNOZSTVI", "1");
    EXPECT_EQ(melvark::ChangedCells(columns(), store_, 0), "");
    EXPECT_EQ(melvark::ChangedCells(columns(), store_, 1), "MNOZSTVI;");
}

TEST_F(DodakPrices, EachRowIsRecalculatedFromItsOwnCellsAndMarks) {
    putLine(0, {{"MNOZSTVI", "1"}, {"CENABSESLEVOU", "1,00"}});
    putLine(2, {{"MNOZSTVI", "7"}});
    type(0, "SLEVA", "5");
    type(2, "JEDNCENABSESLEVOU", "3");
    recalculate("JEDNCENABSESLEVOU", true, 2);
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre(testing::AllOf(HasSubstr("a_ZMENENEBUNKY=\"JEDNCENABSESLEVOU;\""),
                                           HasSubstr("a_JEDNCENABSESLEVOU=3, "), HasSubstr("a_CENABSESLEVOU=null, "),
                                           HasSubstr("a_SLEVA=null, a_MNOZSTVI=7)"))));
}

struct NumberCase {
    const char* text;
    const TFormatSettings& settings;
    std::optional<double> number;
};

TEST_F(DodakPrices, ACellIsANumberWithPointOrComma) {
    const NumberCase cases[] = {
        {"12.5", c_Comma, 12.5}, {"12,5", c_Comma, 12.5},   {"12,5", c_Point, 12.5},     {"12.5", c_Point, 12.5},
        {" 7 ", c_Comma, 7},     {"-0,01", c_Comma, -0.01}, {"", c_Comma, std::nullopt}, {"  ", c_Point, std::nullopt},
    };
    for (const NumberCase& row : cases) {
        EXPECT_EQ(melvark::CellNumber(row.text, row.settings), row.number) << "'" << row.text << "'";
    }
}

TEST_F(DodakPrices, AnythingElseIsNoNumber) {
    for (const char* text : {"abc", "1,2,3", "1.234,5", "1e3", "nan", "12 %", "1 000"}) {
        EXPECT_THROW(melvark::CellNumber(text, c_Comma), EConvertError) << text;
    }
}

TEST_F(DodakPrices, ACellThatIsNoNumberStopsBeforeTheDatabaseIsAsked) {
    putLine(0, {{"CENASBEZSLEVY", "sto"}, {"MNOZSTVI", "2"}});
    databaseReturns({{"MNOZSTVI", "99"}});
    try {
        recalculate();
        FAIL() << "no error";
    } catch (const EConvertError& error) {
        EXPECT_EQ(error.Message(), "Hodnota sto není desetinné číslo");
    }
    EXPECT_THAT(host_.connection.calls(), SizeIs(0));
    EXPECT_EQ(cell(0, "MNOZSTVI"), "2");
}

TEST_F(DodakPrices, AKeyThatTheResultLacksStaysUntouched) {
    databaseReturns({{"CENABSESLEVOU", "2,00"}});
    EXPECT_THAT(recalculated(), ElementsAre("CENABSESLEVOU=2,00"));
}

TEST_F(DodakPrices, AResultColumnThatIsNoPriceIsNotRead) {
    databaseReturns({{"SKLADPOL", "Máslo"}, {"MNOZSTVI", "1"}});
    EXPECT_THAT(recalculated(), ElementsAre("MNOZSTVI=1"));
}

TEST_F(DodakPrices, CellsComeBackInTableOrder) {
    databaseReturns({{"CENABSESLEVOU", "2"}, {"DPH", "0 %"}, {"JEDNCENABBEZSLEVY", "3"}, {"MNOZSTVI", "1"}});
    EXPECT_THAT(recalculated(), ElementsAre("JEDNCENABBEZSLEVY=3", "CENABSESLEVOU=2", "DPH=0 %", "MNOZSTVI=1"));
}

TEST_F(DodakPrices, AResultWithoutARowBringsNothing) {
    host_.connection.procedure(Procedure).returns({resultTable({"CENABSESLEVOU"}, {})});
    EXPECT_THAT(recalculate(), SizeIs(0));
}

TEST_F(DodakPrices, ADatabaseErrorPropagates) {
    host_.connection.procedure(Procedure).refusesCall(1, "Sazba DPH 22 % neexistuje.");
    EXPECT_THROW(recalculate(), EDatabaseError);
}

TEST_F(DodakPrices, AColumnThatTheActiveListLacksIsStillSentAndBroughtBack) {
    std::erase_if(active_, [](const RColumn& column) { return column.Name == "CENABSESLEVOU"; });
    putLine(0, {{"CENABSESLEVOU", "4"}});
    databaseReturns({{"CENABSESLEVOU", "5,00"}});
    EXPECT_THAT(recalculated(), ElementsAre("CENABSESLEVOU=5,00"));
    EXPECT_THAT(host_.connection.calls().front(), HasSubstr("a_CENABSESLEVOU=4,"));
}

struct DiscountCase {
    const char* text;
    bool accepted;
};

TEST(Discount, IsEmptyOrFromZeroToAHundred) {
    for (const DiscountCase& row : std::initializer_list<DiscountCase>{{"", true},
                                                                       {"0", true},
                                                                       {"100", true},
                                                                       {"99,99", true},
                                                                       {"100,01", false},
                                                                       {"-0,01", false},
                                                                       {"-5", false},
                                                                       {"1000", false}}) {
        EXPECT_EQ(melvark::IsDiscount(row.text, c_Comma), row.accepted) << row.text;
    }
}

TEST(Discount, ThatIsNoNumberIsAConversionError) {
    RecordingHost host;
    TScopedHost scope(host);
    for (const char* text : {"pět", "5 %", "1,2,3"}) {
        EXPECT_THROW(melvark::IsDiscount(text, c_Comma), EConvertError) << text;
    }
}

} // namespace
