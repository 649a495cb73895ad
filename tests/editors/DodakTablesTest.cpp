#include "editors/DodakTables.h"

#include "editwin/model/ColumnList.h"
#include "host/Exceptions.h"
#include "tests/support/DodakScripts.h"
#include "tests/support/RecordingHost.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ExpectedColumn {
    const char* key;
    const char* keySuffix; ///< "-": neither caption nor hint is translated.
    const char* caption;
    const char* hint;
    const char*
        layout; ///< Alignment, visible, editability, type ("local": the local-VAT rule), width, data type, format.
    const char* bound; ///< The list and the callback.
};

// The columns as the users of the delivery-note editor know them, one row each, in grid order.
const std::vector<ExpectedColumn>& expectedColumns() {
    static const std::vector<ExpectedColumn> rows{
        {"DOBSID", "-", "DOBSID", "DOBSID", "caLeft no eNone ctHidden 100 cdtString -", "- -"},
        {"SKUPSPOL1", "SKUPSPOL1", "Skup.sklad.pol.1", "Skupina skladových položek 1",
         "caLeft yes eNone ctReadOnly 100 cdtString -", "- -"},
        {"SKUPSPOL2", "SKUPSPOL2", "Skup.sklad.pol.2", "Skupina skladových položek 2",
         "caLeft yes eNone ctReadOnly 100 cdtString -", "- -"},
        {"SKUPSPOL3", "SKUPSPOL3", "Skup.sklad.pol.3", "Skupina skladových položek 3",
         "caLeft yes eNone ctReadOnly 100 cdtString -", "- -"},
        {"SKLADPOL", "SKLADPOL", "Skladová položka", "Název skladové položky",
         "caLeft yes eNone ctReadOnly 100 cdtString -", "- -"},
        {"SKLAD", "SKLAD", "Sklad", "Sklad", "caLeft yes eNone ctNormal 100 cdtString -", "warehouses -"},
        {"MNOZSTVI", "MNOZSTVI", "Množství", "Množství", "caRight yes eAuto ctNormal 55 cdtFlt -", "- prices"},
        {"DPH", "DPH", "Sazba DPH", "Sazba DPH", "caLeft yes eNone ctNormal 60 cdtString -", "rates -"},
        {"SLEVA", "SLEVA", "Sleva", "Sleva v procentech", "caRight yes eNone ctNormal 55 cdtFlt %f %%", "- discount"},
        {"JEDNCENABSESLEVOU", "JEDNCENABEZDPHSESLEVOU", "Jedn.cena bez DPH se sl.",
         "Cena bez DPH se slevou za jednotku množství", "caRight yes eAuto ctNormal 100 cdtFlt %m", "- prices"},
        {"JEDNDPHASESLEVOU", "JEDNCENADPHASESLEVOU", "Jedn.DPH se sl.", "DPH ceny se slevou za jednotku množství",
         "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"JEDNDPHBSESLEVOU", "JEDNCENADPHBSESLEVOU", "Jedn.místní DPH se sl.",
         "Místní DPH ceny se slevou za jednotku množství", "caRight no eNone local 100 cdtFlt %m", "- prices"},
        {"JEDNCENASSESLEVOU", "JEDNCENASDPHSESLEVOU", "Jedn.cena s DPH se sl.",
         "Cena s DPH se slevou za jednotku množství", "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"JEDNCENABBEZSLEVY", "JEDNCENABEZDPHBEZSLEVY", "Jedn.cena bez DPH bez sl.",
         "Cena bez DPH bez slevy za jednotku množství", "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"JEDNDPHABEZSLEVY", "JEDNCENADPHABEZSLEVY", "Jedn.DPH bez sl.", "DPH ceny bez slevy za jednotku množství",
         "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"JEDNDPHBBEZSLEVY", "JEDNCENADPHBBEZSLEVY", "Jedn.místní DPH bez sl.",
         "Místní DPH ceny bez slevy za jednotku množství", "caRight no eNone local 100 cdtFlt %m", "- prices"},
        {"JEDNCENASBEZSLEVY", "JEDNCENASDPHBEZSLEVY", "Jedn.cena s DPH bez sl.",
         "Cena s DPH bez slevy za jednotku množství", "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"CENABSESLEVOU", "CENABEZDPHSESLEVOU", "Cena bez DPH se sl.", "Cena bez DPH se slevou za celkové množství",
         "caRight yes eAuto ctNormal 100 cdtFlt %m", "- prices"},
        {"DPHASESLEVOU", "CENADPHASESLEVOU", "DPH se sl.", "DPH ceny se slevou za celkové množství",
         "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"DPHBSESLEVOU", "CENADPHBSESLEVOU", "Místní DPH se sl.", "Místní DPH ceny se slevou za celkové množství",
         "caRight no eNone local 100 cdtFlt %m", "- prices"},
        {"CENASSESLEVOU", "CENASDPHSESLEVOU", "Cena s DPH se sl.", "Cena s DPH se slevou za celkové množství",
         "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"CENABBEZSLEVY", "CENABEZDPHBEZSLEVY", "Cena bez DPH bez sl.", "Cena bez DPH bez slevy za celkové množství",
         "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"DPHABEZSLEVY", "CENADPHABEZSLEVY", "DPH bez sl.", "DPH ceny bez slevy za celkové množství",
         "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"DPHBBEZSLEVY", "CENADPHBBEZSLEVY", "Místní DPH bez sl.", "Místní DPH ceny bez slevy za celkové množství",
         "caRight no eNone local 100 cdtFlt %m", "- prices"},
        {"CENASBEZSLEVY", "CENASDPHBEZSLEVY", "Cena s DPH bez sl.", "Cena s DPH bez slevy za celkové množství",
         "caRight yes eNone ctNormal 100 cdtFlt %m", "- prices"},
        {"TRVANLIVOST", "TRVANLIVOST", "Trvanlivost", "Trvanlivost", "caLeft yes eNone ctNormal 80 cdtDate -", "- -"},
    };
    return rows;
}

class DodakColumns : public testing::Test {
protected:
    std::vector<RColumn> build(bool localVat) {
        bindings_.LocalVat = localVat;
        return melvark::LoadDefaultColumnsSettings(melvark::c_DodakOpening.Columns, bindings_);
    }

    AnsiString layoutOf(const RColumn& column, const AnsiString& type) const {
        static const char* aligns[] = {"caLeft", "caCenter", "caRight"};
        static const char* editables[] = {"eNone", "eAuto", "eManual"};
        static const char* dataTypes[] = {"cdtString", "cdtInt", "cdtFlt", "cdtType", "cdtDate"};
        return AnsiString(aligns[column.Align]) + (column.Visible ? " yes " : " no ") + editables[column.Editable] +
               " " + type + " " + std::to_string(column.Width) + " " + dataTypes[column.DataType] + " " +
               (column.DisplayFormat.empty() ? "-" : column.DisplayFormat);
    }

    AnsiString boundTo(const RColumn& column) {
        AnsiString list = column.Values == &bindings_.Warehouses ? "warehouses"
                          : column.Values == &bindings_.VatRates ? "rates"
                          : column.Values                        ? "another list"
                                                                 : "-";
        called_ = "-";
        if (column.Callback) {
            column.Callback(1, 1, "");
        }
        return list + " " + called_;
    }

    bool note(const char* callback) {
        called_ = callback;
        return true;
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    melvark::DodakBindings bindings_{.Recalculate = [this](int, int, const AnsiString&) { return note("prices"); },
                                     .CheckDiscount = [this](int, int, const AnsiString&) { return note("discount"); }};
    AnsiString called_;
};

const char* typeName(TColumnType type) {
    static const char* names[] = {"ctNormal", "ctReadOnly", "ctHidden"};
    return names[type];
}

TEST_F(DodakColumns, AreTheTwentySixOfTheTableInItsOrder) {
    for (const bool localVat : {false, true}) {
        const std::vector<RColumn> columns = build(localVat);
        ASSERT_EQ(columns.size(), expectedColumns().size());
        for (std::size_t place = 0; place < columns.size(); ++place) {
            const ExpectedColumn& expected = expectedColumns()[place];
            const RColumn& column = columns[place];
            SCOPED_TRACE(expected.key);
            EXPECT_EQ(column.Name, expected.key);
            EXPECT_EQ(column.Caption, expected.caption);
            EXPECT_EQ(column.Hint, expected.hint);
            EXPECT_EQ(column.DataColumn, static_cast<int>(place));
            EXPECT_EQ(column.Editor, nullptr);
            EXPECT_EQ(column.HiddenMenuItem, nullptr);
            EXPECT_EQ(boundTo(column), expected.bound);
            const bool isLocal = AnsiString(expected.layout).find(" local ") != AnsiString::npos;
            EXPECT_EQ(layoutOf(column, isLocal ? "local" : typeName(column.ColumnType)), expected.layout);
            if (isLocal) {
                EXPECT_EQ(column.ColumnType, localVat ? ctNormal : ctHidden);
            }
        }
    }
}

TEST_F(DodakColumns, TakeCaptionAndHintFromTheirOwnLanguageKeys) {
    for (const ExpectedColumn& expected : expectedColumns()) {
        const AnsiString suffix = expected.keySuffix;
        host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMN)" + suffix] = "caption of " + suffix;
        host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMNHINT)" + suffix] = "hint of " + suffix;
    }
    // A key column has no language key; a translation of its plain name must not reach it.
    host_.translations[R"(KORDAN30\MELVARKEDITOR\COLUMNDOBSID)"] = "translated";
    const std::vector<RColumn> columns = build(false);
    for (std::size_t place = 0; place < columns.size(); ++place) {
        const AnsiString suffix = expectedColumns()[place].keySuffix;
        EXPECT_EQ(columns[place].Caption, suffix == "-" ? "DOBSID" : "caption of " + suffix);
        EXPECT_EQ(columns[place].Hint, suffix == "-" ? "DOBSID" : "hint of " + suffix);
    }
}

TEST_F(DodakColumns, OfferTheLocalVatColumnsOnlyWhereTheCompanyHasLocalVat) {
    const auto offered = [](const std::vector<RColumn>& columns) {
        std::vector<AnsiString> names;
        for (const RColumn& column : columns) {
            if (melvark::IsHiddenByUser(column)) {
                names.push_back(column.Name);
            }
        }
        return names;
    };
    EXPECT_THAT(offered(build(false)), ElementsAre());
    EXPECT_THAT(offered(build(true)),
                ElementsAre("JEDNDPHBSESLEVOU", "JEDNDPHBBEZSLEVY", "DPHBSESLEVOU", "DPHBBEZSLEVY"));
}

// ---- Opening ----

class DodakOpening : public testing::Test {
protected:
    DodakOpening() { scriptDodakEditor(host_.connection); }

    static melvark::DocumentOpening open(const AnsiString& editType) {
        return melvark::OpenDocument<Exception>(melvark::c_DodakOpening, editType, 7);
    }
    static const RColumn& column(const melvark::DocumentOpening& opening, std::string_view key) {
        return melvark::ColumnSettings(opening.Columns, {}, key);
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
};

TEST_F(DodakOpening, AsksTheProcedureAndThenTheWarehouses) {
    const melvark::DocumentOpening opening = open("SABLONA");
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakInit() open", "select NAZEV from SKLAD_V order by NAZEV"));
    EXPECT_EQ(opening.UserName, "novak");
    ASSERT_TRUE(column(opening, "DPH").Values);
    EXPECT_THAT(*column(opening, "DPH").Values, ElementsAre("21 %", "12 %", "0 %")) << "as returned, not sorted";
    ASSERT_TRUE(column(opening, "SKLAD").Values);
    EXPECT_THAT(*column(opening, "SKLAD").Values, ElementsAre("Brno", "Praha"));
}

TEST_F(DodakOpening, TheSourcesNumberIsThatOfTheEditType) {
    EXPECT_EQ(open("DODOBJ").SourceNumber, 1);
    EXPECT_EQ(open("DODAK").SourceNumber, 2);
    EXPECT_EQ(open("SABLONA").SourceNumber, 3);
}

TEST_F(DodakOpening, AnUnknownEditTypeIsRefusedBeforeTheDatabaseIsAsked) {
    for (const char* editType : {"dodak", "", "DODAK ", "OBJEDNAVKA"}) {
        try {
            open(editType);
            ADD_FAILURE() << "no error for " << editType;
        } catch (const Exception& error) {
            EXPECT_EQ(error.Message(), "Neplatný typ editace (" + AnsiString(editType) + ")");
        }
    }
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(DodakOpening, LocalVatIsOnForOneAlone) {
    const std::pair<TDbValue, bool> flags[] = {
        {AnsiString("1"), true}, {AnsiString("0"), false}, {std::monostate{}, false}, {AnsiString("2"), false}};
    for (const auto& [flag, isOn] : flags) {
        host_.connection.procedure("MELVARKEDITORDodakInit")
            .returns({TResultTable{{"UZIVATEL", "DPHBLIC"}, {{AnsiString("novak"), flag}}}});
        EXPECT_EQ(column(open("SABLONA"), "DPHBSESLEVOU").ColumnType, isOn ? ctNormal : ctHidden) << flag.index();
    }
}

} // namespace
