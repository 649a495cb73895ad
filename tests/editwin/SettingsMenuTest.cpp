#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class SettingsMenu : public EditBoxTest {
protected:
    void listReturns(std::vector<std::vector<TDbValue>> rows) {
        host.connection.procedure("MELVARKEDITORNASTAVENIGetList").returns({{{"NAZEV", "ID"}, std::move(rows)}});
    }

    void defaultIs(std::int64_t id, const AnsiString& document) {
        host.connection.procedure("MELVARKEDITORNASTAVENINactiDef").returns({{{"ID", "DATA"}, {{id, document}}}});
    }

    /// Captions of the items of saved settings, the checked one in brackets.
    std::vector<AnsiString> items() {
        std::vector<AnsiString> texts;
        for (const QAction* const item : form->SettingsPopupMenu->actions()) {
            if (item->data().toInt() == 0) {
                continue;
            }
            texts.push_back(item->isChecked() ? "(" + item->text().toStdString() + ")" : item->text().toStdString());
        }
        return texts;
    }
};

TEST_F(SettingsMenu, WithoutADefaultSettingTheBuiltInLayoutIsInForce) {
    make();
    EXPECT_EQ(form->SettingsId(), -1);
    EXPECT_EQ(form->MenuBtn->Caption(), "Žádný vzor");
    EXPECT_EQ(columnOrder(), "[ID] NAZEV POCET CENA DATUM SKLAD KOD POZN TYP [SLEVA]");
    EXPECT_THAT(items(), IsEmpty());
}

TEST_F(SettingsMenu, SavedSettingsStandInTheOrderReturned) {
    listReturns({{AnsiString("Sklad & prodej"), std::int64_t{7}}, {AnsiString("Moje"), std::int64_t{3}}});
    make();
    EXPECT_THAT(items(), ElementsAre("Sklad && prodej", "Moje"));
    form->LoadColumnsSettingsList();
    EXPECT_THAT(items(), ElementsAre("Sklad && prodej", "Moje")) << "a second loading replaces them";
}

TEST_F(SettingsMenu, TheDefaultSettingIsLaidOverTheColumnsAndNamedOnTheButton) {
    listReturns({{AnsiString("A"), std::int64_t{3}}, {AnsiString("Sklad & prodej"), std::int64_t{7}}});
    defaultIs(7, "<settings><prepocet>0</prepocet><columns>"
                 "<column><name>SLEVA</name><visible>1</visible><width>66</width></column>"
                 "<column><name>CENA</name><caption>Kč</caption><editable>MAN</editable></column>"
                 "</columns></settings>");
    open();
    EXPECT_EQ(form->SettingsId(), 7);
    EXPECT_EQ(form->MenuBtn->Caption(), "Sklad & prodej");
    EXPECT_THAT(items(), ElementsAre("A", "(Sklad && prodej)"));
    EXPECT_EQ(columnOrder(), "SLEVA CENA [ID] NAZEV POCET DATUM SKLAD KOD POZN TYP");
    EXPECT_EQ(rowText(0), "Sleva|Kč|Název|Počet|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(rowText(1), "10|1234,5|Šroub|5|1.2.2027|Hlavní|A1|první|x");
    EXPECT_EQ(grid().ColWidths(1), 66);
    EXPECT_FALSE(form->GetPrepocetCen());
}

TEST_F(SettingsMenu, ADefaultSettingThatIsNotListedIsInForceWithoutAName) {
    defaultIs(7, "<settings><columns/></settings>");
    make();
    EXPECT_EQ(form->SettingsId(), 7);
    EXPECT_EQ(form->MenuBtn->Caption(), "Žádný vzor");
}

TEST_F(SettingsMenu, AResultWithoutAnIdIsNoSetting) {
    host.connection.procedure("MELVARKEDITORNASTAVENINactiDef").returns({{{"DATA"}, {{AnsiString("<settings/>")}}}});
    make();
    EXPECT_EQ(form->SettingsId(), -1);
    host.connection.procedure("MELVARKEDITORNASTAVENINactiDef").returns({{{"ID", "DATA"}, {}}});
    make();
    EXPECT_EQ(form->SettingsId(), -1);
}

TEST_F(SettingsMenu, ADamagedDocumentLeavesTheBuiltInLayout) {
    defaultIs(7, "<settings><columns>");
    make();
    EXPECT_EQ(columnOrder(), "[ID] NAZEV POCET CENA DATUM SKLAD KOD POZN TYP [SLEVA]");
}

TEST_F(SettingsMenu, AColumnThatASettingDroppedKeepsItsNameAndItsData) {
    // The repeat of the column placed first takes the last one's place.
    defaultIs(7, "<settings><columns><column><name>NAZEV</name></column><column><name>NAZEV</name></column>"
                 "</columns></settings>");
    make();
    EXPECT_EQ(columnOrder(), "NAZEV NAZEV [ID] POCET CENA DATUM SKLAD KOD POZN TYP");
    EXPECT_TRUE(form->IsValidColumnName("SLEVA"));
    EXPECT_EQ(form->GetColumnByName("SLEVA"), 0);
    EXPECT_EQ(form->GetColumnSettings("SLEVA").Caption, "Sleva");
    EXPECT_EQ(stored(form->GetColumnSettings("SLEVA").DataColumn, 2), "5");
    EXPECT_EQ(form->GetDataColumn(0).Name, "") << "no active column shows these data";
}

TEST_F(SettingsMenu, TheSwitchIsLeftAloneWhileItsPanelIsHidden) {
    make();
    form->SetTopButtonPanelVisibility(false);
    form->LoadColumnsSettingsFromXml("<settings><prepocet>0</prepocet></settings>");
    EXPECT_TRUE(form->GetPrepocetCen());
    form->SetTopButtonPanelVisibility(true);
    form->LoadColumnsSettingsFromXml("<settings><prepocet>0</prepocet></settings>");
    EXPECT_FALSE(form->GetPrepocetCen());
}

TEST_F(SettingsMenu, AListEditorSurvivesASetting) {
    defaultIs(7, "<settings><columns><column><name>SKLAD</name><visible>1</visible></column></columns></settings>");
    open();
    EXPECT_EQ(openCellText(), "1,1");
    EXPECT_EQ(form->ActiveEditor(), &combo());
}
