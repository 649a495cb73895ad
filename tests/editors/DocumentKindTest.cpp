#include "editors/DocumentKind.h"

#include "editors/DodObjTables.h"
#include "editors/DodakTables.h"
#include "editwin/model/DataGrid.h"
#include "host/Exceptions.h"
#include "tests/support/DodObjScripts.h"

#include <gmock/gmock.h>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::StartsWith;

/// The lines of a supplier order; what is tested here serves every kind of document.
class DocumentKind : public testing::Test {
protected:
    DocumentKind() { scriptDodObjEditor(host_.connection); }

    melvark::DocumentColumns columns() const { return {columns_, columns_}; }
    AnsiString cell(int row, const AnsiString& key) const { return columns().Cell(store_, key, row); }

    void fillFromOrder(int id) {
        melvark::FillLines(store_, columns(), "MELVARKEDITORDodObjGetPolozkyByObjednavka",
                           {{"a_DDOBIDMASTER", 7}, {"a_DDOBID", id}});
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    melvark::DodObjBindings bindings_;
    std::vector<RColumn> columns_ = melvark::LoadDefaultColumnsSettings(melvark::c_DodObjOpening.Columns, bindings_);
    TDataGrid store_;
};

TEST_F(DocumentKind, EveryColumnOfEachRowIsFilledFromTheFieldOfItsKey) {
    LineCells first;
    LineCells second;
    for (const AnsiString& key : dodObjKeys()) {
        first[key] = key + " of the first";
        second[key] = key + " of the second";
    }
    scriptDodObjEditor(host_.connection, {first, second});
    fillFromOrder(31);
    ASSERT_EQ(store_.GetRowCount(), 2);
    for (const AnsiString& key : dodObjKeys()) {
        EXPECT_EQ(cell(0, key), key + " of the first");
        EXPECT_EQ(cell(1, key), key + " of the second");
    }
}

TEST_F(DocumentKind, TheLinesOfASkippedKeyHaveNone) {
    melvark::FillLines(store_, columns(), "MELVARKEDITORDodObjGetPolozkyByObjednavka",
                       {{"a_DDOBIDMASTER", 7}, {"a_DDOBID", 31}}, "SKPLIDHL");
    EXPECT_EQ(cell(0, "SKLADPOL") + cell(0, "SKPLIDHL"), "Mouka");
}

TEST_F(DocumentKind, ParametersOfAFillAreSetInTheirOrderAndNoneIsNull) {
    melvark::FillLines(store_, columns(), "MELVARKEDITORDodObjGetPolozkyByDodavky",
                       {{"a_DDOBIDMASTER", 7}, {"a_DODVID", -1}, {"a_PRENESMNOZSTVI", false}});
    melvark::FillLines(store_, columns(), "MELVARKEDITORDodObjGetPolozkyByDodavky",
                       {{"a_DDOBIDMASTER", 7}, {"a_PRENESMNOZSTVI", true}, {"a_DODVID", 0}});
    EXPECT_THAT(
        host_.connection.calls(),
        ElementsAre(
            "MELVARKEDITORDodObjGetPolozkyByDodavky(a_DDOBIDMASTER=7, a_DODVID=null, a_PRENESMNOZSTVI=false) open",
            "MELVARKEDITORDodObjGetPolozkyByDodavky(a_DDOBIDMASTER=7, a_PRENESMNOZSTVI=true, a_DODVID=0) open"));
}

TEST_F(DocumentKind, AFillThatReportsFailureBringsNothingAndSaysSo) {
    fillFromOrder(31);
    host_.connection.procedure("MELVARKEDITORDodObjGetPolozkyByDodCenik").failsCall(1);
    EXPECT_FALSE(melvark::FillLines(store_, columns(), "MELVARKEDITORDodObjGetPolozkyByDodCenik",
                                    {{"a_DDOBIDMASTER", 7}, {"a_DODVID", 5}}));
    EXPECT_EQ(store_.GetRowCount(), 3);
    EXPECT_TRUE(melvark::FillLines(store_, columns(), "MELVARKEDITORDodObjGetPolozkyByDodCenik",
                                   {{"a_DDOBIDMASTER", 7}, {"a_DODVID", 5}}));
}

TEST_F(DocumentKind, ASourceWithoutRowsLeavesOneEmptyRow) {
    fillFromOrder(31);
    ASSERT_EQ(store_.GetRowCount(), 3);
    scriptDodObjEditor(host_.connection, {});
    fillFromOrder(32);
    EXPECT_EQ(store_.GetRowCount(), 1);
    EXPECT_EQ(cell(0, "SKLADPOL"), "");
}

// ---- Saving ----

/// Saves of delivery note 7 and of order 7, with one store row.
class DocumentKindSaving : public DocumentKind {
protected:
    DocumentKindSaving() {
        scriptDodakEditor(host_.connection);
        store_.SetColCount(static_cast<int>(columns_.size()));
        store_.SetRowCount(2);
    }

    bool save(const melvark::DocumentKind& kind, std::initializer_list<melvark::IdParam> sources) {
        return melvark::SaveLines(kind, columns(), store_, 7, sources);
    }
};

TEST_F(DocumentKindSaving, StagesEachRowAndThenNamesTheDocumentAndItsSourcesOrNull) {
    EXPECT_TRUE(save(melvark::c_DodakKind, {{"a_DODKID_ZDROJ", 12}, {"a_DDOBID_ZDROJ", -1}}));
    EXPECT_THAT(host_.connection.takeCalls(),
                ElementsAre(StartsWith("MELVARKEDITORDodakInsertToTemp(a_DOBSID=null, "),
                            StartsWith("MELVARKEDITORDodakInsertToTemp(a_DOBSID=null, "),
                            "MELVARKEDITORDodakTempUloz(a_DODKID=7, a_DODKID_ZDROJ=12, a_DDOBID_ZDROJ=null)"));
    for (const melvark::DocumentKind* kind : {&melvark::c_OrderKind, &melvark::c_TemplateKind}) {
        EXPECT_TRUE(save(*kind, {{"a_DDOBID_ZDROJ", -1}, {"a_DDOBIDVZOR_ZDROJ", 12}, {"a_DODKID_ZDROJ", -1}}));
        EXPECT_THAT(host_.connection.takeCalls(),
                    ElementsAre(StartsWith("MELVARKEDITORDodObjInsertToTemp(a_SKLADPOL=null, "),
                                StartsWith("MELVARKEDITORDodObjInsertToTemp(a_SKLADPOL=null, "),
                                "MELVARKEDITORDodObjTempUloz(a_DDOBID=7, a_DDOBID_ZDROJ=null, a_DDOBIDVZOR_ZDROJ=12, "
                                "a_DODKID_ZDROJ=null)"));
    }
}

TEST_F(DocumentKindSaving, ARowThatFailsIsTheLastCall) {
    host_.connection.procedure("MELVARKEDITORDodakInsertToTemp").failsCall(1);
    EXPECT_FALSE(save(melvark::c_DodakKind, {}));
    EXPECT_THAT(host_.connection.calls(), ElementsAre(StartsWith("MELVARKEDITORDodakInsertToTemp(")));
}

TEST_F(DocumentKindSaving, AClosingCallThatFailsIsAFailedSaveAndARefusedOneThrows) {
    host_.connection.procedure("MELVARKEDITORDodakTempUloz").failsCall(1).refusesCall(2, "Doklad je uzavřen.");
    EXPECT_FALSE(save(melvark::c_DodakKind, {}));
    EXPECT_THROW(save(melvark::c_DodakKind, {}), EDatabaseError);
}

} // namespace
