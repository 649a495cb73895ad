#include "editors/DocumentRows.h"

#include "host/Exceptions.h"
#include "tests/editors/EditorRules.h"

#include <algorithm>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DocumentRows : public EditorRules {
protected:
    void fillFrom(TResultTable result, std::string_view skippedKey = {}) {
        host_.connection.procedure("SOURCE").returns({std::move(result)});
        TLiveStoredProc source("SOURCE");
        source.Exec(true);
        melvark::FillStore(store_, columns(), source, skippedKey);
    }

    /// The row's non-empty cells as "key=text" in column order.
    std::vector<AnsiString> rowTexts(int row) const {
        std::vector<AnsiString> texts;
        for (const RColumn& column : defaults_) {
            if (!cell(row, column.Name).empty()) {
                texts.push_back(column.Name + "=" + cell(row, column.Name));
            }
        }
        return texts;
    }
};

TEST_F(DocumentRows, EachResultRowBecomesOneStoreRowByColumnKey) {
    fillFrom(dodakLines({{{"DOBSID", "7"}, {"SKLADPOL", "Mléko"}}, {{"SKLADPOL", "Máslo"}, {"MNOZSTVI", "1,5"}}}));
    EXPECT_EQ(store_.GetColCount(), 26);
    ASSERT_EQ(store_.GetRowCount(), 2);
    EXPECT_THAT(rowTexts(0), ElementsAre("DOBSID=7", "SKLADPOL=Mléko"));
    EXPECT_THAT(rowTexts(1), ElementsAre("SKLADPOL=Máslo", "MNOZSTVI=1,5"));
}

TEST_F(DocumentRows, OnlyTheRestOfTheRowsIsFilledIn) {
    host_.connection.procedure("SOURCE").returns(
        {dodakLines({{{"SKLADPOL", "Mléko"}}, {{"SKLADPOL", "Máslo"}}, {{"SKLADPOL", "Sýr"}}})});
    TLiveStoredProc source("SOURCE");
    source.Exec(true);
    source.Next();
    melvark::FillStore(store_, columns(), source);
    ASSERT_EQ(store_.GetRowCount(), 2);
    EXPECT_THAT(rowTexts(0), ElementsAre("SKLADPOL=Máslo"));
    EXPECT_THAT(rowTexts(1), ElementsAre("SKLADPOL=Sýr"));
}

TEST_F(DocumentRows, ASkippedKeyLeavesItsCellsEmpty) {
    fillFrom(dodakLines({{{"DOBSID", "7"}, {"SKLADPOL", "Mléko"}}}), "DOBSID");
    EXPECT_THAT(rowTexts(0), ElementsAre("SKLADPOL=Mléko"));
    EXPECT_FALSE(store_.HasCell(0, 0));
}

TEST_F(DocumentRows, NoResultRowsLeaveExactlyOneEmptyRow) {
    fillFrom(dodakLines({}));
    EXPECT_EQ(store_.GetRowCount(), 1);
    EXPECT_THAT(rowTexts(0), ElementsAre());
}

TEST_F(DocumentRows, FillingForgetsWhatTheStoreHeldBefore) {
    for (const int rowsBefore : {1, 2, 5}) {
        for (int row = 0; row < rowsBefore; ++row) {
            putLine(row, {{"DOBSID", "old"}, {"SLEVA", "old"}});
        }
        fillFrom(dodakLines({}), "DOBSID");
        EXPECT_EQ(store_.GetRowCount(), 1);
        EXPECT_THAT(rowTexts(0), ElementsAre()) << rowsBefore << " rows before";
        store_.SetRowCount(5);
        EXPECT_THAT(rowTexts(4), ElementsAre()) << "a row that grows back is empty too";
    }
}

TEST_F(DocumentRows, FillingGoesByDataColumnWhateverTheUsersOrder) {
    std::reverse(active_.begin(), active_.end());
    active_.front().Visible = false;
    fillFrom(dodakLines({{{"SKUPSPOL1", "Nápoje"}, {"TRVANLIVOST", "1.2.2027"}}}));
    EXPECT_EQ(store_.GetCells(1, 0), "Nápoje");
    EXPECT_EQ(store_.GetCells(25, 0), "1.2.2027");
}

TEST_F(DocumentRows, AColumnThatTheActiveListLacksIsFoundAmongTheDefaults) {
    std::erase_if(active_, [](const RColumn& column) { return column.Name == "MNOZSTVI"; });
    fillFrom(dodakLines({{{"MNOZSTVI", "3"}}}));
    EXPECT_EQ(store_.GetCells(6, 0), "3");
    EXPECT_EQ(columns().ByKey("MNOZSTVI").DataColumn, 6);
}

TEST_F(DocumentRows, AnUnknownKeyHasNoDataColumnAndAnEmptyCell) {
    EXPECT_EQ(columns().ByKey("NENI").DataColumn, -1);
    EXPECT_EQ(cell(0, "NENI"), "");
}

TEST_F(DocumentRows, AResultWithoutAColumnIsTheDatabasesError) {
    TResultTable result = resultTable({"DOBSID"}, {{"7"}});
    try {
        fillFrom(result);
        FAIL() << "no error";
    } catch (const EDatabaseError& error) {
        EXPECT_THAT(error.Message(), HasSubstr("SKUPSPOL1"));
    }
}

TEST_F(DocumentRows, AResultWithoutRowsIsNotAskedForItsColumns) {
    fillFrom(resultTable({"JINE"}, {}));
    EXPECT_EQ(store_.GetRowCount(), 1);
}

struct ParamCase {
    const char* cell;
    melvark::ParamForm form;
    const char* sent;
    const char* remark;
};

/// What travels does not depend on what the locale writes.
std::vector<std::pair<TFormatSettings, ParamCase>> inBothLocales(std::span<const ParamCase> cases) {
    std::vector<std::pair<TFormatSettings, ParamCase>> all;
    for (const ParamCase& row : cases) {
        all.emplace_back(TFormatSettings::Czech(), row);
        all.emplace_back(TFormatSettings::English(), row);
    }
    return all;
}

TEST_F(DocumentRows, CellsTravelTrimmedAndEmptyOnesAsNull) {
    using melvark::ParamForm;
    const ParamCase cases[] = {
        {"Praha", ParamForm::Text, "\"Praha\"", ""},
        {"  Praha 2\t", ParamForm::Text, "\"Praha 2\"", "blanks inside stay"},
        {"", ParamForm::Text, "null", ""},
        {"   ", ParamForm::Text, "null", "blank throughout"},
        {"12,5 %", ParamForm::Text, "\"12,5 %\"", "a text keeps its comma"},
        {"1,5", ParamForm::NumberText, "\"1.5\"", "a string, not a number"},
        {" 1.5 ", ParamForm::NumberText, "\"1.5\"", ""},
        {"1,234,5", ParamForm::NumberText, "\"1.234.5\"", "every comma; the database refuses it"},
        {"0", ParamForm::NumberText, "\"0\"", "zero is not empty"},
        {" ", ParamForm::NumberText, "null", ""},
    };
    host_.connection.procedure("ROW").inputs({"a_X"});
    for (const auto& [settings, row] : inBothLocales(cases)) {
        SCOPED_TRACE(row.remark);
        host_.formatSettings = settings;
        putLine(0, {{"SKLAD", row.cell}});
        const melvark::RowParam params[] = {{"a_X", "SKLAD", row.form}};
        TLiveStoredProc procedure("ROW");
        melvark::SetRowParams(procedure, melvark::BindParams(params, columns()), store_, 0);
        procedure.Exec(false);
        EXPECT_THAT(host_.connection.takeCalls(), ElementsAre("ROW(a_X=" + AnsiString(row.sent) + ")"));
    }
}

} // namespace
