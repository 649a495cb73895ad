#include "editors/DodObjSources.h"

#include "editors/DodObjColumns.h"
#include "editwin/model/DataGrid.h"
#include "tests/support/DodObjScripts.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class DodObjSources : public testing::Test {
protected:
    DodObjSources() { scriptDodObjEditor(host_.connection); }

    melvark::DocumentColumns columns() const { return {columns_, columns_}; }
    AnsiString cell(int row, const char* key) const { return columns().Cell(store_, key, row); }

    RecordingHost host_;
    TScopedHost scope_{host_};
    std::vector<RColumn> columns_ = melvark::DodObjColumns({});
    TDataGrid store_;
};

TEST_F(DodObjSources, EveryColumnOfEachRowIsFilledFromTheFieldOfItsKey) {
    LineCells first;
    LineCells second;
    for (const AnsiString& key : dodObjKeys()) {
        first[key] = key + " of the first";
        second[key] = key + " of the second";
    }
    scriptDodObjEditor(host_.connection, {first, second});
    melvark::FillFromOrderLines(store_, columns(), 7, 31);
    ASSERT_EQ(store_.GetRowCount(), 2);
    for (const AnsiString& key : dodObjKeys()) {
        EXPECT_EQ(cell(0, key.c_str()), key + " of the first");
        EXPECT_EQ(cell(1, key.c_str()), key + " of the second");
    }
}

TEST_F(DodObjSources, TheTemplateIsAnOrderOfNone) {
    melvark::FillFromOrderLines(store_, columns(), 7, -1);
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodObjGetPolozkyByObjednavka(a_DDOBIDMASTER=7, a_DDOBID=null) open"));
}

TEST_F(DodObjSources, LevelsThatWereNotChosenGoAsNull) {
    melvark::FillFromGroups(store_, columns(), 7, {-1, 12, -1});
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodObjGetPolozkyBySkupSkladPol(a_DDOBIDMASTER=7, a_SSP1ID=null, a_SSP2ID=12, "
                            "a_SSP3ID=null) open"));
}

TEST_F(DodObjSources, ASupplierIsAskedForItsPriceListOrItsDeliveries) {
    melvark::FillFromNoteLines(store_, columns(), 7, 12);
    melvark::FillFromPriceList(store_, columns(), 7, 40);
    melvark::FillFromDeliveries(store_, columns(), 7, 41, true);
    melvark::FillFromDeliveries(store_, columns(), 7, 41, false);
    EXPECT_THAT(
        host_.connection.calls(),
        ElementsAre(
            "MELVARKEDITORDodObjGetPolozkyByDodak(a_DDOBIDMASTER=7, a_DODKID=12) open",
            "MELVARKEDITORDodObjGetPolozkyByDodCenik(a_DDOBIDMASTER=7, a_DODVID=40) open",
            "MELVARKEDITORDodObjGetPolozkyByDodavky(a_DDOBIDMASTER=7, a_DODVID=41, a_PRENESMNOZSTVI=true) open",
            "MELVARKEDITORDodObjGetPolozkyByDodavky(a_DDOBIDMASTER=7, a_DODVID=41, a_PRENESMNOZSTVI=false) open"));
}

TEST_F(DodObjSources, ASourceWithoutRowsLeavesOneEmptyRow) {
    melvark::FillFromOrderLines(store_, columns(), 7, 31);
    ASSERT_EQ(store_.GetRowCount(), 3);
    scriptDodObjEditor(host_.connection, {});
    melvark::FillFromPriceList(store_, columns(), 7, 40);
    EXPECT_EQ(store_.GetRowCount(), 1);
    EXPECT_EQ(cell(0, "SKLADPOL"), "");
}

} // namespace
