#include "editors/DodObjTables.h"

#include "editwin/model/ColumnList.h"
#include "editwin/model/DataGrid.h"
#include "host/Exceptions.h"
#include "tests/support/DodObjScripts.h"

#include <gmock/gmock.h>
#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ExpectedColumn {
    const char* key;
    const char* keySuffix; ///< "-": neither caption nor hint is translated.
    const char* caption;
    const char* hint;
    const char* layout; ///< Alignment, editability, type, width, data type, list.
};

// The columns as the users of the order editor know them, one row each, in grid order; all are visible.
const ExpectedColumn c_Expected[] = {
    {"SKUPSPOL1", "SKUPSPOL1", "Skup.sklad.pol.1", "Skupina skladových položek 1",
     "caLeft eNone ctReadOnly 100 cdtString -"},
    {"SKUPSPOL2", "SKUPSPOL2", "Skup.sklad.pol.2", "Skupina skladových položek 2",
     "caLeft eNone ctReadOnly 100 cdtString -"},
    {"SKUPSPOL3", "SKUPSPOL3", "Skup.sklad.pol.3", "Skupina skladových položek 3",
     "caLeft eNone ctReadOnly 100 cdtString -"},
    {"SKLADPOL", "SKLADPOL", "Skladová položka", "Název skladové položky", "caLeft eNone ctReadOnly 100 cdtString -"},
    {"SKLAD", "SKLAD", "Sklad", "Sklad", "caLeft eNone ctNormal 100 cdtString warehouses"},
    {"DODAVATEL", "DODAVATEL", "Dodavatel", "Dodavatel", "caLeft eNone ctNormal 100 cdtString suppliers"},
    {"MNOZSTVIHL", "MNOZSTVI", "Množství", "Množství", "caRight eAuto ctNormal 55 cdtFlt -"},
    {"JEDNOTKYHL", "JEDNOTKY", "Jednotky", "Hlavní jednotky", "caLeft eNone ctReadOnly 55 cdtString -"},
    {"SKPLIDHL", "-", "SKPLIDHL", "SKPLIDHL", "caRight eNone ctHidden 100 cdtString -"},
    {"MNOZSTVIV1", "MNOZSTVI1", "Ved.množství 1", "Množství ve vedlejších jednotkách 1",
     "caRight eAuto ctNormal 80 cdtFlt -"},
    {"JEDNOTKYV1", "VEDJEDNOTKY1", "Ved.jednotky 1", "Vedlejší jednotky 1", "caLeft eNone ctReadOnly 80 cdtString -"},
    {"SKPLIDV1", "-", "SKPLIDV1", "SKPLIDV1", "caRight eNone ctHidden 100 cdtString -"},
    {"MNOZSTVIV2", "MNOZSTVI2", "Ved.množství 2", "Množství ve vedlejších jednotkách 2",
     "caRight eAuto ctNormal 80 cdtFlt -"},
    {"JEDNOTKYV2", "VEDJEDNOTKY2", "Ved.jednotky 2", "Vedlejší jednotky 2", "caLeft eNone ctReadOnly 80 cdtString -"},
    // Aligned unlike its siblings, which nobody sees.
    {"SKPLIDV2", "-", "SKPLIDV2", "SKPLIDV2", "caLeft eNone ctHidden 100 cdtString -"},
    {"POPIS", "POPIS", "Popis", "Popis k položce objednávky", "caLeft eManual ctNormal 100 cdtString -"},
    {"KOMENTAR", "KOMENTAR", "Komentář", "Komentář k položce objednávky", "caLeft eManual ctNormal 100 cdtString -"},
};

class DodObjColumns : public testing::Test {
protected:
    std::vector<RColumn> build() const {
        return melvark::LoadDefaultColumnsSettings(melvark::c_DodObjOpening.Columns, bindings_);
    }

    AnsiString layoutOf(const RColumn& column) const {
        static const char* aligns[] = {"caLeft", "caCenter", "caRight"};
        static const char* editables[] = {"eNone", "eAuto", "eManual"};
        static const char* types[] = {"ctNormal", "ctReadOnly", "ctHidden"};
        static const char* dataTypes[] = {"cdtString", "cdtInt", "cdtFlt", "cdtType", "cdtDate"};
        const char* list = column.Values == &bindings_.Warehouses  ? "warehouses"
                           : column.Values == &bindings_.Suppliers ? "suppliers"
                           : column.Values                         ? "another list"
                                                                   : "-";
        return AnsiString(aligns[column.Align]) + " " + editables[column.Editable] + " " + types[column.ColumnType] +
               " " + std::to_string(column.Width) + " " + dataTypes[column.DataType] + " " + list;
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    melvark::DodObjBindings bindings_;
};

TEST_F(DodObjColumns, AreTheSeventeenOfTheTableInItsOrder) {
    const std::vector<RColumn> columns = build();
    ASSERT_EQ(columns.size(), std::size(c_Expected));
    for (std::size_t place = 0; place < columns.size(); ++place) {
        const ExpectedColumn& expected = c_Expected[place];
        const RColumn& column = columns[place];
        SCOPED_TRACE(expected.key);
        EXPECT_EQ(column.Name, expected.key);
        EXPECT_EQ(column.Caption, expected.caption);
        EXPECT_EQ(column.Hint, expected.hint);
        EXPECT_EQ(column.DataColumn, static_cast<int>(place));
        EXPECT_EQ(layoutOf(column), expected.layout);
        EXPECT_TRUE(column.Visible);
        EXPECT_EQ(column.DisplayFormat, "");
        EXPECT_FALSE(column.Callback) << "nothing is recalculated";
        EXPECT_EQ(column.Editor, nullptr);
        EXPECT_EQ(column.HiddenMenuItem, nullptr);
    }
}

TEST_F(DodObjColumns, TakeCaptionAndHintFromTheirOwnLanguageKeys) {
    for (const ExpectedColumn& expected : c_Expected) {
        const AnsiString suffix = expected.keySuffix;
        host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMN)" + suffix] = "caption of " + suffix;
        host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMNHINT)" + suffix] = "hint of " + suffix;
    }
    const std::vector<RColumn> columns = build();
    for (std::size_t place = 0; place < columns.size(); ++place) {
        const AnsiString suffix = c_Expected[place].keySuffix;
        EXPECT_EQ(columns[place].Caption, suffix == "-" ? c_Expected[place].key : "caption of " + suffix);
        EXPECT_EQ(columns[place].Hint, suffix == "-" ? c_Expected[place].key : "hint of " + suffix);
    }
}

TEST_F(DodObjColumns, AQuantityTakesAValueOnlyWhereTheItemHasItsOwnUnit) {
    const std::vector<RColumn> columns = build();
    const melvark::DocumentColumns lists{columns, columns};
    // Each line has exactly one unit; the others' quantities stay shut.
    const char* const units[] = {"SKPLIDHL", "SKPLIDV1", "SKPLIDV2"};
    const char* const quantities[] = {"MNOZSTVIHL", "MNOZSTVIV1", "MNOZSTVIV2"};
    TDataGrid store;
    store.SetColCount(static_cast<int>(columns.size()));
    store.SetRowCount(3);
    for (int row = 0; row < 3; ++row) {
        store.SetCells(lists.ByKey(units[row]).DataColumn, row, "7");
    }
    for (int row = 0; row < 3; ++row) {
        for (int quantity = 0; quantity < 3; ++quantity) {
            EXPECT_EQ(melvark::HasItsUnit(lists, store, quantities[quantity], row), quantity == row)
                << quantities[quantity] << " in row " << row;
        }
        for (const char* other : {"SKLAD", "DODAVATEL", "POPIS", "KOMENTAR", "SKLADPOL", ""}) {
            EXPECT_TRUE(melvark::HasItsUnit(lists, store, other, row)) << other;
        }
    }
}

TEST_F(DodObjColumns, TheUnitIsFoundByItsKeyWhateverColumnsASettingDropped) {
    const std::vector<RColumn> defaults = build();
    const std::vector<RColumn> active{defaults[12]}; // the second secondary quantity alone is left
    TDataGrid store;
    store.SetColCount(static_cast<int>(defaults.size()));
    store.SetRowCount(1);
    EXPECT_FALSE(melvark::HasItsUnit({active, defaults}, store, "MNOZSTVIV2", 0));
    store.SetCells(14, 0, "103");
    EXPECT_TRUE(melvark::HasItsUnit({active, defaults}, store, "MNOZSTVIV2", 0));
}

// ---- Opening ----

class DodObjOpening : public testing::Test {
protected:
    DodObjOpening() { scriptDodObjEditor(host_.connection); }

    static melvark::DocumentOpening open(const AnsiString& sourceKind) {
        return melvark::OpenDocument<Exception>(melvark::c_DodObjOpening, sourceKind, 7);
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
};

TEST_F(DodObjOpening, AsksForTheUserThenTheWarehousesThenTheSuppliers) {
    const melvark::DocumentOpening opening = open("DODAVKY");
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodObjInit() open", "select NAZEV from SKLAD_V order by NAZEV",
                            "select JMENO from DODAVATEL_V order by JMENO"));
    EXPECT_EQ(opening.UserName, "novak");
    const RColumn& warehouse = melvark::ColumnSettings(opening.Columns, {}, "SKLAD");
    ASSERT_TRUE(warehouse.Values);
    EXPECT_THAT(*warehouse.Values, ElementsAre("Brno", "Praha"));
    const RColumn& supplier = melvark::ColumnSettings(opening.Columns, {}, "DODAVATEL");
    ASSERT_TRUE(supplier.Values);
    EXPECT_THAT(*supplier.Values, ElementsAre("Lípa", "Vrba"));
}

TEST_F(DodObjOpening, TheSourcesNumberIsItsPlaceInTheTable) {
    int expected = 0;
    for (const char* code :
         {"OBJEDNAVKA", "OBJEDNAVKAVZOR", "SABLONA", "DODAK", "SKUPSKLADPOL", "DODAVATEL", "DODAVKY"}) {
        EXPECT_EQ(open(code).SourceNumber, ++expected) << code;
    }
}

TEST_F(DodObjOpening, AnUnknownSourceIsRefusedBeforeTheDatabaseIsAsked) {
    for (const char* code : {"objednavka", "", "DODOBJ", "DODAVKY "}) {
        try {
            open(code);
            ADD_FAILURE() << "no error for " << code;
        } catch (const Exception& error) {
            EXPECT_EQ(error.Message(), "Neplatný typ editace (" + AnsiString(code) + ")");
        }
    }
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

} // namespace
