#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QAction>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

/// What a stored layout makes of the form that opens with it.
class StoredLayout : public EditBoxTest {
protected:
    /// Opens the form with these columns of a document.
    void openWith(const AnsiString& columns) {
        host.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
            .returns({{{"ID", "DATA"},
                       {{std::int64_t{7}, AnsiString("<settings><columns>" + columns + "</columns></settings>")}}}});
        open();
    }

    static AnsiString column(const AnsiString& name, const AnsiString& rest = "") {
        return "<column><name>" + name + "</name>" + rest + "</column>";
    }
};

TEST_F(StoredLayout, ColumnsThatItDoesNotNameFollowThoseThatItNamesInBuiltInOrder) {
    openWith(column("TYP") + column("POCET"));
    EXPECT_EQ(columnOrder(), "TYP POCET [ID] NAZEV CENA DATUM SKLAD KOD POZN [SLEVA]");
    EXPECT_EQ(rowText(0), "Typ|Počet|Název|Cena|Datum|Sklad|Kód|Poznámka");
    EXPECT_EQ(rowText(1), "x|5|Šroub|1234,5|1.2.2027|Hlavní|A1|první");
}

TEST_F(StoredLayout, ARepeatOfTheFirstColumnStandsTwiceAndThatOfALaterOneIsSkipped) {
    openWith(column("TYP") + column("POCET") + column("POCET", "<caption>Kusů</caption>") +
             column("TYP", "<caption>Druh</caption>"));
    EXPECT_EQ(columnOrder(), "TYP POCET TYP [ID] NAZEV CENA DATUM SKLAD KOD POZN");
    EXPECT_EQ(rowText(0), "Typ|Počet|Druh|Název|Cena|Datum|Sklad|Kód|Poznámka");
    EXPECT_EQ(rowText(2), "y|6|y|Matice|2||vedlejší|B2|");
}

TEST_F(StoredLayout, WhatIsNoColumnOfTheEditorIsSkipped) {
    openWith(column("NEZNAMY") + "<column><caption>beze jména</caption></column><sloupec><name>TYP</name></sloupec>" +
             column("cena") + column("POCET"));
    EXPECT_EQ(columnOrder(), "POCET [ID] NAZEV CENA DATUM SKLAD KOD POZN TYP [SLEVA]");
}

TEST_F(StoredLayout, WhatItDoesNotSayOfAColumnStaysBuiltIn) {
    openWith(column("CENA"));
    EXPECT_EQ(rowText(0), "Cena|Název|Počet|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(columnAt(1).Hint, "Cena za kus");
    EXPECT_EQ(columnAt(1).Align, caRight);
    EXPECT_EQ(columnAt(1).Editable, eAuto);
    EXPECT_EQ(grid().ColWidths(1), 80);
}

TEST_F(StoredLayout, UnknownWordsLeaveAlignmentAndEditabilityBuiltInAndHideTheColumn) {
    openWith(column("CENA", "<align>X</align><editable>ANO</editable>") + column("POZN", "<visible>ano</visible>") +
             column("DATUM", "<align>C</align><editable>NONE</editable>"));
    EXPECT_EQ(columnOrder(), "CENA [POZN] DATUM [ID] NAZEV POCET SKLAD KOD TYP [SLEVA]");
    EXPECT_EQ(form->StringGridDrawCell(1, 1).Align, Qt::AlignRight);
    EXPECT_EQ(columnAt(1).Editable, eAuto);
    EXPECT_EQ(form->StringGridDrawCell(2, 1).Align, Qt::AlignHCenter);
    EXPECT_EQ(columnAt(2).Editable, eNone);
}

TEST_F(StoredLayout, WidthsComeBackAsTheyWereSaved) {
    openWith(column("CENA", "<width>137</width>"));
    EXPECT_EQ(grid().ColWidths(1), 137);
    const AnsiString saved = form->GetColumnSettingsXML();
    EXPECT_THAT(saved, HasSubstr("<width>137</width>"));
    form->LoadColumnsSettingsFromXml(saved);
    EXPECT_EQ(columnAt(1).Width, 137);
    EXPECT_EQ(form->GetColumnSettingsXML(), saved);
}

TEST_F(StoredLayout, AWidthThatIsNoNumberIsAHundred) {
    openWith(column("CENA", "<width>široký</width>"));
    EXPECT_EQ(grid().ColWidths(1), 100);
}

TEST_F(StoredLayout, TheRestOfAColumnIsAlwaysTheBuiltInOne) {
    openWith(column("CENA", "<type>ctHidden</type><dataType>cdtString</dataType><dataColumn>2</dataColumn>"));
    EXPECT_EQ(columnAt(1).ColumnType, ctNormal);
    EXPECT_EQ(columnAt(1).DataType, cdtFlt);
    EXPECT_EQ(columnAt(1).DataColumn, 6);
    openCell(1, 2);
    type(QStringLiteral("3,5"));
    ASSERT_TRUE(form->HideEditor());
    EXPECT_EQ(stored(6, 1), "3,5");
    EXPECT_THAT(log.lines, testing::ElementsAre("1,2=3,5"));
}

TEST_F(StoredLayout, AKeyColumnThatItCallsVisibleIsNeitherShownNorCounted) {
    openWith(column("ID", "<visible>1</visible>") + column("CENA") + column("POCET", "<visible>0</visible>"));
    EXPECT_EQ(rowText(0), "Cena|Název|Datum|Sklad|Kód|Poznámka|Typ");
    form->ShowGridColumn(form->findChild<QAction*>(QStringLiteral("HiddenColumnPOCET")));
    EXPECT_EQ(rowText(0), "Cena|Počet|Název|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(columnAt(2).Name, "POCET") << "header and data do not part";
}

} // namespace
