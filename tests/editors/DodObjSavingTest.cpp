#include "editors/DodObjTables.h"
#include "editwin/model/DataGrid.h"
#include "tests/support/DodObjScripts.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DodObjSaving : public testing::Test {
protected:
    DodObjSaving() {
        scriptDodObjEditor(host_.connection);
        store_.SetColCount(static_cast<int>(columns_.size()));
        store_.SetRowCount(1);
    }

    void put(int row, const AnsiString& key, const AnsiString& text) {
        store_.SetRowCount(std::max(store_.GetRowCount(), row + 1));
        store_.SetCells(columns().ByKey(key).DataColumn, row, text);
    }
    melvark::DocumentColumns columns() const { return {columns_, columns_}; }
    bool insertRows() {
        const melvark::DocumentKind& kind = melvark::c_OrderKind;
        return melvark::InsertRows(kind.InsertProcedure, kind.RowParams, columns(), store_);
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    melvark::DodObjBindings bindings_;
    std::vector<RColumn> columns_ = melvark::LoadDefaultColumnsSettings(melvark::c_DodObjOpening.Columns, bindings_);
    TDataGrid store_;
};

// Every cell holds its own column key, so that the line below reads as "parameter = column"; a key with a comma shows
// which ones travel as number texts.
TEST_F(DodObjSaving, ARowsParametersStandInTheirOrderWithTheirColumns) {
    for (const AnsiString& key : dodObjKeys()) {
        put(0, key, " " + key + ", ");
    }
    EXPECT_TRUE(insertRows());
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodObjInsertToTemp("
                            "a_SKLADPOL=\"SKLADPOL,\", a_SKLAD=\"SKLAD,\", a_DODAVATEL=\"DODAVATEL,\", "
                            "a_SKPLID=\"SKPLIDHL,\", a_MNOZSTVI=\"MNOZSTVIHL.\", a_JEDNOTKY=\"JEDNOTKYHL,\", "
                            "a_SKPLIDV1=\"SKPLIDV1,\", a_MNOZSTVIV1=\"MNOZSTVIV1.\", a_JEDNOTKYV1=\"JEDNOTKYV1,\", "
                            "a_SKPLIDV2=\"SKPLIDV2,\", a_MNOZSTVIV2=\"MNOZSTVIV2.\", a_JEDNOTKYV2=\"JEDNOTKYV2,\", "
                            "a_POPIS=\"POPIS,\", a_KOMENTAR=\"KOMENTAR,\")"));
}

TEST_F(DodObjSaving, AQuantityWithACommaIsSentWithAPointWhateverTheLocaleWrites) {
    for (const TFormatSettings& locale : {TFormatSettings::Czech(), TFormatSettings()}) {
        host_.formatSettings = locale;
        put(0, "MNOZSTVIHL", "2,5");
        EXPECT_TRUE(insertRows());
        EXPECT_THAT(host_.connection.takeCalls(), ElementsAre(HasSubstr("a_MNOZSTVI=\"2.5\"")));
    }
}

TEST_F(DodObjSaving, AnEmptyRowIsFourteenNulls) {
    EXPECT_TRUE(insertRows());
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodObjInsertToTemp(a_SKLADPOL=null, a_SKLAD=null, a_DODAVATEL=null, "
                            "a_SKPLID=null, a_MNOZSTVI=null, a_JEDNOTKY=null, a_SKPLIDV1=null, a_MNOZSTVIV1=null, "
                            "a_JEDNOTKYV1=null, a_SKPLIDV2=null, a_MNOZSTVIV2=null, a_JEDNOTKYV2=null, a_POPIS=null, "
                            "a_KOMENTAR=null)"));
}

TEST_F(DodObjSaving, RowsAreSentFromTheFirstToTheOneThatFails) {
    for (int row = 0; row < 4; ++row) {
        put(row, "SKLADPOL", "Položka " + std::to_string(row));
    }
    host_.connection.procedure("MELVARKEDITORDodObjInsertToTemp").failsCall(3);
    EXPECT_FALSE(insertRows());
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre(HasSubstr("\"Položka 0\""), HasSubstr("\"Položka 1\""), HasSubstr("\"Položka 2\"")));
}

} // namespace
