#include "tests/editwin/SettingsCommands.h"

#include "editwin/AskingCheckBox.h"
#include "editwin/CellWriter.h"
#include "host/Exceptions.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/widgets/ModalDriver.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTextDocument>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(SettingsCommands, TheFixedItemsStandBelowTheSavedSettings) {
    start();
    form->MenuBtn->click();
    EXPECT_THAT(items(), ElementsAre("Moje", "Sklad && prodej", "-", "/Přejmenovat", "/Uložit", "Uložit jako nové",
                                     "/Smazat vybrané", "-", "Obnov výchozí"));
    form->SettingsPopupMenu->close();
    choose(item(3));
    form->MenuBtn->click();
    EXPECT_THAT(items(), ElementsAre("(Moje)", "Sklad && prodej", "-", "Přejmenovat", "Uložit", "Uložit jako nové",
                                     "Smazat vybrané", "-", "Obnov výchozí"));
    form->SettingsPopupMenu->close();
}

TEST_F(SettingsCommands, TheItemsOfSavedSettingsBelongToTheForm) {
    start();
    EXPECT_EQ(item(3)->parent(), form.get());
    EXPECT_EQ(item(3)->data().toInt(), 3);
}

TEST_F(SettingsCommands, AChosenSettingIsLaidOutAndNamed) {
    start();
    choose(item(7));
    EXPECT_THAT(host.connection.takeCalls(), ElementsAre("MELVARKEDITORNASTAVENINacti(a_ID=7) open"));
    EXPECT_EQ(form->SettingsId(), 7);
    EXPECT_EQ(form->SettingsItem(), item(7));
    EXPECT_EQ(form->MenuBtn->Caption(), "Sklad & prodej");
    EXPECT_EQ(columnOrder(), c_PriceFirstOrder);
    EXPECT_EQ(rowText(0), "Kč|Sleva|Název|Počet|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(rowText(1), "1234,5|10|Šroub|5|1.2.2027|Hlavní|A1|první|x");
    EXPECT_EQ(grid().ColWidths(1), 66);
    EXPECT_FALSE(form->GetPrepocetCen());
    choose(item(3));
    EXPECT_FALSE(item(7)->isChecked()) << "one of the group at a time";
    EXPECT_EQ(form->MenuBtn->Caption(), "Moje");
}

TEST_F(SettingsCommands, AnotherLayoutLeavesTheClerkInHisRow) {
    start();
    openCell(c_CountCol, 2);
    choose(item(7));
    EXPECT_EQ(grid().Row(), 2);
    openCell(4, 3);
    manager.boxAnswers = {c_ResultYes};
    choose(form->ObnovVychoziNastaveni);
    EXPECT_EQ(grid().Row(), 3);
    form->GoNextEditable();
    EXPECT_EQ(openCellText(), "2,3") << "on in his row";
}

TEST_F(SettingsCommands, ANameThatLooksLikeMarkupIsShownLetterForLetter) {
    const AnsiString name = "<b>Sklad</b> & prodej";
    list({{AnsiString("Moje"), std::int64_t{3}}, {name, std::int64_t{7}}});
    start();
    choose(item(7));
    EXPECT_EQ(form->MenuBtn->Caption(), name);
    EXPECT_EQ(item(7)->text(), QStringLiteral("<b>Sklad</b> && prodej"));
    QTextDocument hint;
    hint.setHtml(form->MenuBtn->toolTip());
    EXPECT_EQ(hint.toPlainText().toStdString(), name);
}

TEST_F(SettingsCommands, ASettingWithoutADocumentIsInForceAndLeavesThePicture) {
    start();
    choose(item(3));
    for (const bool hasField : {true, false}) {
        host.connection.procedure("MELVARKEDITORNASTAVENINacti")
            .returns({resultTable({hasField ? "DATA" : "JINE"}, {{""}})});
        choose(item(7));
        EXPECT_EQ(form->SettingsId(), 7);
        EXPECT_EQ(columnOrder(), c_PriceFirstOrder);
        EXPECT_FALSE(form->GetPrepocetCen());
    }
}

TEST_F(SettingsCommands, AChosenSettingThatCannotBeReadStaysChosen) {
    start();
    host.connection.procedure("MELVARKEDITORNASTAVENINacti").refusesCall(1, "Už tu není");
    choose(item(7));
    EXPECT_THAT(host.errors(), ElementsAre(HasSubstr("Už tu není")));
    EXPECT_EQ(form->SettingsId(), 7);
    EXPECT_EQ(form->MenuBtn->Caption(), "Sklad & prodej");
    EXPECT_EQ(columnOrder(), c_BuiltIn);
}

TEST_F(SettingsCommands, ARefusedValueKeepsTheFormerSetting) {
    start();
    choose(item(3));
    const int count = form->GetColumnByName("POCET");
    openCell(count, 2);
    type(QStringLiteral("x"));
    host.connection.takeCalls();
    choose(item(7));
    EXPECT_THAT(manager.boxes(), ElementsAre("16: Hodnota x není celé číslo"));
    EXPECT_THAT(host.connection.takeCalls(), IsEmpty());
    EXPECT_EQ(form->SettingsId(), 3);
    EXPECT_TRUE(item(3)->isChecked()) << "the mark is taken back";
    EXPECT_FALSE(item(7)->isChecked());
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("x"));
}

TEST_F(SettingsCommands, ARefusedValueLeavesNoMarkWhenNoSettingWasInForce) {
    start();
    openCell(c_CountCol, 2);
    type(QStringLiteral("x"));
    choose(item(7));
    EXPECT_EQ(form->SettingsId(), -1);
    EXPECT_FALSE(item(7)->isChecked());
}

TEST_F(SettingsCommands, AValueWhoseCallbackFailsKeepsTheFormerSettingAndItsMark) {
    start();
    choose(item(3));
    openCell(form->GetColumnByName("POCET"), 2);
    type(QStringLiteral("42"));
    log.answer = []() -> bool { throw EDatabaseError("spojení ztraceno"); };
    choose(item(7));
    EXPECT_THAT(host.errors(), ElementsAre("spojení ztraceno"));
    EXPECT_EQ(form->SettingsId(), 3);
    EXPECT_TRUE(item(3)->isChecked()) << "the mark is taken back";
    EXPECT_FALSE(item(7)->isChecked());
    EXPECT_EQ(form->MenuBtn->Caption(), "Moje");
    EXPECT_EQ(columnOrder(), c_PriceFirstOrder);
}

TEST_F(SettingsCommands, OnlyAMenuItemChoosesASetting) {
    start();
    openCell(c_CountCol, 2);
    type(QStringLiteral("42"));
    for (QObject* const sender : std::initializer_list<QObject*>{nullptr, form.get(), form->MenuBtn}) {
        form->LoadColumnsSettings(sender);
        EXPECT_EQ(openCellText(), "2,2") << "nothing is left";
        EXPECT_EQ(form->SettingsId(), -1);
    }
    EXPECT_THAT(host.connection.takeCalls(), IsEmpty());
    form->LoadColumnsSettings(item(7));
    EXPECT_EQ(stored(7, 1), "42");
    EXPECT_EQ(form->SettingsId(), 7);
}

TEST_F(SettingsCommands, AnOpenValueIsKeptBeforeTheColumnsChange) {
    start();
    openCell(c_CountCol, 2);
    type(QStringLiteral("42"));
    choose(item(7));
    EXPECT_EQ(stored(7, 1), "42");
    EXPECT_EQ(rowText(2), "2||Matice|42||vedlejší|B2||y");
}

TEST_F(SettingsCommands, SavingWritesThePictureWithTheClerksChanges) {
    start();
    choose(item(3));
    host.connection.takeCalls();
    grid().horizontalHeader()->moveSection(0, 1);
    grid().horizontalHeader()->resizeSection(0, 71);
    Q_EMIT grid().MouseUp(1, 0);
    openColumnMenu(3);
    pick(form->SkrytSloupec);
    choose(form->UlozitNastaveni);
    const auto calls = host.connection.takeCalls();
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_THAT(calls[0], testing::StartsWith("MELVARKEDITORNASTAVENIUloz(a_ID=3, a_DATA=\"<?xml"));
    EXPECT_THAT(calls[0],
                HasSubstr("<settings><prepocet>0</prepocet><columns><column><name>SLEVA</name><caption>Sleva</caption>"
                          "<hint>Sleva v procentech</hint><align>R</align><visible>1</visible><editable>AUTO</editable>"
                          "<width>70</width></column><column><name>CENA</name><caption>Kč</caption>"
                          "<hint>Cena za kus</hint><align>R</align><visible>1</visible><editable>AUTO</editable>"
                          "<width>66</width></column>"));
    EXPECT_THAT(calls[0], HasSubstr("<name>NAZEV</name><caption>Název</caption><hint>Název položky</hint>"
                                    "<align>L</align><visible>0</visible>"));
    EXPECT_THAT(manager.boxes(), IsEmpty()) << "no question";
}

TEST_F(SettingsCommands, AWidthThatCannotBeShownIsSavedAsItIsUntilItIsDragged) {
    host.connection.procedure("MELVARKEDITORNASTAVENINacti")
        .returns({resultTable({"DATA"}, {{"<settings><columns><column><name>CENA</name><width>-5</width></column>"
                                          "<column><name>POCET</name><width>99999</width></column></columns>"
                                          "</settings>"}})});
    start();
    choose(item(3));
    EXPECT_EQ(grid().ColWidths(1), 4);
    EXPECT_EQ(grid().ColWidths(2), 10000);
    Q_EMIT grid().MouseUp(1, 0);
    EXPECT_THAT(form->GetColumnSettingsXML(), HasSubstr("<width>-5</width>"));
    grid().horizontalHeader()->resizeSection(0, 31);
    Q_EMIT grid().MouseUp(1, 0);
    EXPECT_THAT(form->GetColumnSettingsXML(), HasSubstr("<width>30</width>"));
    EXPECT_THAT(form->GetColumnSettingsXML(), HasSubstr("<width>99999</width>"));
}

TEST_F(SettingsCommands, TheSwitchIsSavedOnlyWhileItsPanelShows) {
    start();
    EXPECT_THAT(form->GetColumnSettingsXML(), HasSubstr("<prepocet>1</prepocet>"));
    form->SetTopButtonPanelVisibility(false);
    EXPECT_THAT(form->GetColumnSettingsXML(), testing::Not(HasSubstr("prepocet")));
}

TEST_F(SettingsCommands, ANewSettingIsStoredListedAndInForce) {
    start();
    const ModalDriver driver(QStringLiteral("SettingsBox"), [&](QWidget& window) {
        const auto& box = dynamic_cast<TSettingsBox&>(window);
        EXPECT_EQ(box.GetNazev() + box.GetPopis(), "");
        EXPECT_FALSE(box.GetSdilene());
        list({{AnsiString("Moje"), std::int64_t{3}}, {AnsiString("Příjem"), std::int64_t{12}}});
        name(" Příjem", true)(window);
    });
    choose(form->UlozitJakoNoveNastaveni);
    const auto calls = host.connection.takeCalls();
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_THAT(calls[0], testing::StartsWith("MELVARKEDITORNASTAVENIUlozNove(a_NAZEV=\" Příjem\", a_TYPEDITACE=32, "
                                              "a_SDILENE=true, a_KOMENTAR=\"k čemu je\", a_DATA=\"<?xml"));
    EXPECT_EQ(calls[1], "MELVARKEDITORNASTAVENIGetList(a_TYPEDITACE=32) open");
    EXPECT_EQ(form->SettingsId(), 12);
    EXPECT_TRUE(item(12)->isChecked());
    EXPECT_EQ(item(12)->text(), QStringLiteral(" Příjem")) << "as typed";
    EXPECT_EQ(form->MenuBtn->Caption(), "Příjem") << "as listed";
    choose(item(3));
    choose(item(12));
    EXPECT_EQ(form->MenuBtn->Caption(), " Příjem") << "the item's caption";
}

TEST_F(SettingsCommands, ACanceledNameStoresNothing) {
    start();
    const ModalDriver driver(QStringLiteral("SettingsBox"), [](QWidget& window) { window.close(); });
    choose(form->UlozitJakoNoveNastaveni);
    EXPECT_THAT(host.connection.takeCalls(), IsEmpty());
    EXPECT_EQ(form->SettingsId(), -1);
}

TEST_F(SettingsCommands, ARefusedNameIsToldAndAskedForAgainWithItsTexts) {
    start();
    choose(item(3));
    host.connection.takeCalls();
    host.connection.procedure("MELVARKEDITORNASTAVENIPremenuj").refusesCall(1, "Název je obsazen");
    std::unique_ptr<ModalDriver> second;
    const ModalDriver first(QStringLiteral("SettingsBox"), [&](QWidget& window) {
        name("Obsazený", true)(window);
        QTimer::singleShot(0, form.get(), [&] {
            second = std::make_unique<ModalDriver>(QStringLiteral("SettingsBox"), [&](QWidget& again) {
                const auto& box = dynamic_cast<TSettingsBox&>(again);
                EXPECT_THAT(host.errors(), ElementsAre(HasSubstr("Název je obsazen")));
                EXPECT_EQ(box.GetNazev(), "Obsazený");
                EXPECT_EQ(box.GetPopis(), "k čemu je");
                EXPECT_TRUE(box.GetSdilene());
                name("Volný")(again);
            });
        });
    });
    choose(form->PrejmenovatNastaveni);
    EXPECT_THAT(host.connection.takeCalls(),
                ElementsAre("MELVARKEDITORNASTAVENIGetInfo(a_ID=3) open",
                            "MELVARKEDITORNASTAVENIPremenuj(a_ID=3, a_NAZEV=\"Obsazený\", a_KOMENTAR=\"k čemu je\", "
                            "a_SDILENE=true)",
                            "MELVARKEDITORNASTAVENIPremenuj(a_ID=3, a_NAZEV=\"Volný\", a_KOMENTAR=\"k čemu je\", "
                            "a_SDILENE=false)"));
    EXPECT_EQ(form->MenuBtn->Caption(), "Volný");
}

TEST_F(SettingsCommands, RenamingShowsWhatIsStoredAndKeepsThePlaceInTheMenu) {
    start();
    choose(item(3));
    const ModalDriver driver(QStringLiteral("SettingsBox"), [&](QWidget& window) {
        const auto& box = dynamic_cast<TSettingsBox&>(window);
        EXPECT_EQ(box.GetNazev(), "Moje");
        EXPECT_EQ(box.GetPopis(), "popis");
        EXPECT_TRUE(box.GetSdilene());
        name("Ž & ž")(window);
    });
    choose(form->PrejmenovatNastaveni);
    EXPECT_EQ(item(3)->text(), QStringLiteral("Ž && ž"));
    EXPECT_EQ(form->SettingsPopupMenu->actions().front(), item(3));
    EXPECT_EQ(form->MenuBtn->Caption(), "Ž & ž");
    EXPECT_EQ(form->SettingsId(), 3);
    choose(item(3));
    EXPECT_EQ(form->MenuBtn->Caption(), "Ž & ž") << "also when it is chosen again";
}

TEST_F(SettingsCommands, ADeletionThatIsNotConfirmedDoesNothing) {
    start();
    choose(item(3));
    host.connection.takeCalls();
    choose(form->SmazatNastaveni);
    EXPECT_THAT(manager.boxes(), ElementsAre("36: Smazat zvolené nastavení?"));
    EXPECT_THAT(host.connection.takeCalls(), IsEmpty());
    EXPECT_EQ(form->SettingsId(), 3);
}

TEST_F(SettingsCommands, ADeletedSettingLeavesTheMenuButNotThePicture) {
    start();
    choose(item(3));
    host.connection.takeCalls();
    manager.boxAnswers = {c_ResultYes};
    choose(form->SmazatNastaveni);
    EXPECT_THAT(host.connection.takeCalls(), ElementsAre("MELVARKEDITORNASTAVENISmaz(a_ID=3)"));
    EXPECT_EQ(form->SettingsId(), -1);
    EXPECT_EQ(form->SettingsItem(), nullptr);
    EXPECT_EQ(form->MenuBtn->Caption(), "Žádný vzor");
    EXPECT_EQ(items().front(), "Sklad && prodej");
    EXPECT_FALSE(form->GetPrepocetCen()) << "the switch stays";
    EXPECT_EQ(columnOrder(), c_BuiltIn) << "what would be saved now";
    EXPECT_EQ(rowText(0), "Kč|Sleva|Název|Počet|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(form->StringGridDrawCell(1, 1).Align, Qt::AlignRight);
    EXPECT_EQ(columnAt(1).Name, "CENA") << "a grid column is what is pictured";
}

TEST_F(SettingsCommands, ARefusedDeletionKeepsTheSetting) {
    start();
    choose(item(3));
    manager.boxAnswers = {c_ResultYes};
    host.connection.procedure("MELVARKEDITORNASTAVENISmaz").refusesCall(1, "Cizí nastavení");
    choose(form->SmazatNastaveni);
    EXPECT_THAT(host.errors(), ElementsAre(HasSubstr("Cizí nastavení")));
    EXPECT_EQ(form->SettingsId(), 3);
    EXPECT_TRUE(item(3)->isChecked());
}

TEST_F(SettingsCommands, RestoringBringsTheBuiltInLayoutAndForgetsTheDefault) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("77"));
    host.connection.takeCalls();
    manager.boxAnswers = {c_ResultYes};
    choose(form->ObnovVychoziNastaveni);
    EXPECT_THAT(manager.boxes(), ElementsAre("36: Obnovit původní nastavení?"));
    EXPECT_THAT(host.connection.takeCalls(), ElementsAre("MELVARKEDITORNASTAVENISmazDef(a_TYPEDITACE=32)"));
    EXPECT_EQ(stored(6, 1), "77");
    EXPECT_EQ(form->SettingsId(), -1);
    EXPECT_EQ(form->MenuBtn->Caption(), "Žádný vzor");
    EXPECT_FALSE(item(3)->isChecked()) << "the setting itself stays";
    EXPECT_EQ(columnOrder(), c_BuiltIn);
    EXPECT_EQ(rowText(2), "Matice|6|77||vedlejší|B2||y");
    EXPECT_TRUE(form->GetPrepocetCen());
}

TEST_F(SettingsCommands, RestoringStopsAtANoAndAtARefusedValue) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("x"));
    host.connection.takeCalls();
    choose(form->ObnovVychoziNastaveni);
    EXPECT_THAT(manager.boxes(), ElementsAre("36: Obnovit původní nastavení?")) << "No: the value is not looked at";
    manager.boxAnswers = {c_ResultYes};
    choose(form->ObnovVychoziNastaveni);
    EXPECT_THAT(host.connection.takeCalls(), IsEmpty());
    EXPECT_EQ(form->SettingsId(), 3);
    EXPECT_EQ(columnOrder(), c_PriceFirstOrder);
}

TEST_F(SettingsCommands, RestoringLeavesTheSwitchOfAHiddenPanel) {
    make().SetTopButtonPanelVisibility(false);
    form->chbPrepocetCen->setChecked(false);
    manager.boxAnswers = {c_ResultYes};
    form->ObnovVychoziNastaveniClick(nullptr);
    EXPECT_FALSE(form->GetPrepocetCen());
}

TEST_F(SettingsCommands, WithoutASettingInForceItsCommandsDoNothing) {
    start();
    manager.boxAnswers = {c_ResultYes};
    form->UlozitNastaveniClick(nullptr);
    form->PrejmenovatNastaveniClick(nullptr);
    form->SmazatNastaveniClick(nullptr);
    EXPECT_THAT(host.connection.takeCalls(), IsEmpty());
    EXPECT_THAT(manager.boxes(), IsEmpty());
}

TEST_F(SettingsCommands, ASettingThatIsNotListedIsWorkedWithAllTheSame) {
    host.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
        .returns({{{"ID", "DATA"}, {{std::int64_t{99}, AnsiString(c_PriceFirst)}}}});
    start();
    EXPECT_EQ(form->SettingsItem(), nullptr);
    {
        const ModalDriver driver(QStringLiteral("SettingsBox"), name("Nové jméno"));
        choose(form->PrejmenovatNastaveni);
    }
    EXPECT_EQ(form->MenuBtn->Caption(), "Nové jméno");
    manager.boxAnswers = {c_ResultYes};
    choose(form->SmazatNastaveni);
    EXPECT_EQ(form->SettingsId(), -1);
    EXPECT_EQ(items().front(), "Moje");
}

TEST_F(SettingsCommands, ALongNameTakesLittleRoomFromTheGrid) {
    const AnsiString name(100, 'W');
    list({{AnsiString("Moje"), std::int64_t{3}}, {name, std::int64_t{7}}});
    start();
    const int room = grid().width();
    const int button = form->MenuBtn->width();
    choose(item(7));
    EXPECT_EQ(form->MenuBtn->Caption(), name);
    EXPECT_EQ(form->MenuBtn->toolTip().toStdString(), name);
    EXPECT_GE(grid().width(), room - button);
    EXPECT_EQ(form->width(), 790);
}

TEST_F(SettingsCommands, ADefaultWithTheNumberZeroThatIsNotListedHasNoItem) {
    host.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
        .returns({{{"ID", "DATA"}, {{std::int64_t{0}, AnsiString(c_PriceFirst)}}}});
    start();
    EXPECT_EQ(form->SettingsId(), 0);
    EXPECT_EQ(form->SettingsItem(), nullptr) << "no fixed item stands for it";
}

TEST_F(SettingsCommands, ANewSettingThatIsNotListedLeavesTheFormerItemItsName) {
    list({{AnsiString("Nula"), std::int64_t{0}}});
    start();
    choose(item(0));
    const ModalDriver driver(QStringLiteral("SettingsBox"), name("Příjem"));
    choose(form->UlozitJakoNoveNastaveni);
    EXPECT_EQ(form->SettingsId(), 12);
    EXPECT_EQ(form->SettingsItem(), nullptr);
    for (const QAction* const each : form->SettingsPopupMenu->actions()) {
        EXPECT_NE(each->text(), QStringLiteral("Příjem"));
    }
}

TEST_F(SettingsCommands, ARecordWithTheNumberZeroCountsAsFixed) {
    list({{AnsiString("Nula"), std::int64_t{0}}, {AnsiString("Moje"), std::int64_t{3}}});
    start();
    list({{AnsiString("Moje"), std::int64_t{3}}});
    form->LoadColumnsSettingsList();
    EXPECT_THAT(items(),
                ElementsAre("Moje", "Nula", "-", testing::_, testing::_, testing::_, testing::_, "-", testing::_));
    choose(item(0));
    EXPECT_EQ(form->SettingsId(), 0);
    EXPECT_EQ(form->MenuBtn->Caption(), "Nula") << "the caption of an item that the list no longer holds";
    manager.boxAnswers = {c_ResultYes};
    choose(form->ObnovVychoziNastaveni);
    EXPECT_EQ(form->SettingsId(), -1);
    EXPECT_TRUE(item(0)->isChecked()) << "unchecked no more than another fixed item";
}
