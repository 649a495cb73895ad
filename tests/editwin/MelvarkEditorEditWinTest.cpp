#include "editwin/AskingCheckBox.h"
#include "host/Exceptions.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"
#include "tests/widgets/ModalDriver.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class EditBox : public EditBoxTest {};

TEST_F(EditBox, ItsConstructionAsksForTheListAndThenForTheDefaultSetting) {
    make();
    EXPECT_THAT(host.connection.calls(), ElementsAre("MELVARKEDITORNASTAVENIGetList(a_TYPEDITACE=32) open",
                                                     "MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=32) open"));
    EXPECT_THAT(manager.localizedSections(), ElementsAre(R"(KORDAN30\MelvarkEditorEditWin)"));
}

TEST_F(EditBox, ItsStoreIsSizedForTheLayoutThatWasInForceBefore) {
    TEditBox plain(nullptr, &manager, 30, "ZKOUSKA", 2, "SABLONA", "novak", testColumns(log));
    EXPECT_EQ(plain.DataGrid().GetColCount(), 1) << "there was no layout before the first";
    plain.InitGrid();
    EXPECT_EQ(plain.DataGrid().GetColCount(), 10);
}

TEST_F(EditBox, ItsValueListsOutliveTheirMaker) {
    std::vector<AnsiString> names{"Brno", "Praha"};
    std::vector<RColumn> columns = testColumns(log);
    columns.at(5).Values = &names;
    form = std::make_unique<TestEditBox>(&manager, columns);
    names = {"freed"};
    EXPECT_THAT(*form->GetColumnSettings("SKLAD").Values, ElementsAre("Brno", "Praha"));
}

TEST_F(EditBox, ShowingItLoadsTheImagesAndThePlacement) {
    open();
    EXPECT_THAT(host.images(), ElementsAre("ENGINE/OK", "ENGINE/OKNEXT", "ENGINE/CANCEL"));
    EXPECT_THAT(host.connection.calls().back(), "MELVARKEDITORNASTAVENINactiNastaveniOkna(a_TYPEDITACE=30) open");
    EXPECT_FALSE(form->OkBtn->icon().isNull());
    EXPECT_FALSE(form->OKDalsiBtn->icon().isNull());
    EXPECT_FALSE(form->CancelBtn->icon().isNull());
}

TEST_F(EditBox, ItsControlsHaveTheirTextsAndStates) {
    open();
    EXPECT_EQ(form->Caption(), "Melvark - editor");
    EXPECT_EQ(form->gbPraceScenami->title(), QStringLiteral(" Způsob práce s cenami  "));
    EXPECT_EQ(form->chbPrepocetCen->text(), QStringLiteral("&po zadání hodnoty se ostatní údaje přepočítají"));
    EXPECT_TRUE(form->GetPrepocetCen());
    EXPECT_FALSE(form->chbPrepocetCen->focusPolicy() & Qt::TabFocus);
    EXPECT_EQ(
        form->lblWarning->text(),
        QStringLiteral(
            "Upozornění: pokud se hodnoty nepřepočítávají automaticky, data nelze uložit, pokud cena za jednotkové "
            "množství vynásobená množstvím není rovna celkové ceně položky!"));
    EXPECT_EQ(form->OkBtn->Caption(), "&OK");
    EXPECT_EQ(form->OKDalsiBtn->Caption(), "OK+Další");
    EXPECT_FALSE(form->OKDalsiBtn->isEnabled());
    EXPECT_EQ(form->CancelBtn->Caption(), "&Zrušit");
    EXPECT_EQ(form->MenuBtn->Caption(), "Žádný vzor");
}

TEST_F(EditBox, ItsControlsStandInTheirPlacesWhileNoCaptionNeedsMoreRoom) {
    open();
    form->MenuBtn->SetCaption("---");
    settle();
    EXPECT_EQ(form->size(), QSize(790, 400));
    EXPECT_EQ(form->ButtonPanel->geometry(), QRect(790 - 106, 0, 106, 400));
    EXPECT_EQ(form->OkBtn->geometry(), QRect(8, 6, 90, 25));
    EXPECT_EQ(form->OKDalsiBtn->geometry(), QRect(8, 38, 90, 25));
    EXPECT_EQ(form->CancelBtn->geometry(), QRect(8, 70, 90, 25));
    EXPECT_EQ(form->MenuBtn->geometry(), QRect(8, 102, 90, 25));
    EXPECT_EQ(form->TopPanel->pos(), QPoint(6, 6)) << "the border of the panel around it";
    EXPECT_GE(form->TopPanel->height(), 75);
    EXPECT_EQ(form->TopPanel->height() - form->gbPraceScenami->height(), 75 - 69);
    EXPECT_EQ(grid().geometry(),
              QRect(6, 6 + form->TopPanel->height(), 790 - 106 - 12, 400 - 12 - form->TopPanel->height()));
    EXPECT_EQ(grid().RowHeight(), 20);
}

TEST_F(EditBox, NothingIsClippedAtTheLeastSize) {
    open();
    EXPECT_GE(form->minimumWidth(), 790);
    EXPECT_GE(form->minimumHeight(), 400);
    form->resize(1, 1);
    settle();
    EXPECT_GE(form->width(), 790);
    const QLabel& label = *form->lblWarning;
    EXPECT_GE(label.height(), label.heightForWidth(label.width())) << "the whole warning shows";
    for (const QWidget* const button :
         std::initializer_list<const QWidget*>{form->OkBtn, form->OKDalsiBtn, form->CancelBtn, form->MenuBtn}) {
        EXPECT_GE(button->width(), button->sizeHint().width()) << qPrintable(button->objectName());
        EXPECT_GE(button->height(), 25);
    }
}

TEST_F(EditBox, EveryControlIsFoundByItsName) {
    make();
    for (const char* const name :
         {"MainPanel", "TopPanel", "gbPraceScenami", "chbPrepocetCen", "lblWarning", "StringGrid", "ButtonPanel",
          "OkBtn", "OKDalsiBtn", "CancelBtn", "MenuBtn", "ColumnsPopupMenu", "SettingsPopupMenu", "SkryteSloupce"}) {
        EXPECT_NE(form->findChild<QWidget*>(QString::fromLatin1(name)), nullptr) << name;
    }
}

TEST_F(EditBox, TheUsersLanguageReplacesItsTexts) {
    host.translations[R"(KORDAN30\MELVARKEDITOR\NONE)"] = "No template";
    manager.formTexts[R"(KORDAN30\MelvarkEditorEditWin\CancelBtn\Caption)"] = "&Cancel";
    manager.formTexts[R"(KORDAN30\MelvarkEditorEditWin\SkrytSloupec\Caption)"] = "Hide column";
    manager.formTexts[R"(KORDAN30\MelvarkEditorEditWin\Form\Caption)"] = "Melvark - items";
    make();
    EXPECT_EQ(form->CancelBtn->Caption(), "&Cancel");
    EXPECT_EQ(form->SkrytSloupec->text(), QStringLiteral("Hide column"));
    EXPECT_EQ(form->Caption(), "Melvark - items");
    EXPECT_EQ(form->MenuBtn->Caption(), "No template");
}

TEST_F(EditBox, TheTitleAndTheTopPanelAreTheDocumentEditors) {
    make();
    form->SetTitle("Vložení položek");
    EXPECT_EQ(form->Caption(), "Vložení položek");
    form->SetTopButtonPanelVisibility(false);
    EXPECT_FALSE(melvark::Visible(*form->TopPanel));
}

TEST_F(EditBox, SavingWithoutAHookIsRefused) {
    TestEditBox plain(&manager, testColumns(log));
    EXPECT_FALSE(plain.SaveData());
    plain.SaveDataToTempFile();
    EXPECT_TRUE(plain.IsEditable(1, 1));
}

TEST_F(EditBox, OkClosesOnlyAfterASuccessfulSave) {
    open();
    saveSucceeds = false;
    QTest::mouseClick(form->OkBtn, Qt::LeftButton);
    settle();
    EXPECT_EQ(saves, 1);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->ModalResult(), 0);
    saveSucceeds = true;
    QTest::mouseClick(form->OkBtn, Qt::LeftButton);
    settle();
    EXPECT_EQ(saves, 2);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->ModalResult(), c_ResultOk);
}

TEST_F(EditBox, EveryWayOfClosingStoresThePlacementOnce) {
    for (const bool confirms : {true, false}) {
        open();
        QTest::mouseClick(confirms ? form->OkBtn : form->CancelBtn, Qt::LeftButton);
        settle();
        EXPECT_EQ(host.connection.callsOf("MELVARKEDITORNASTAVENIUlozNastaveniOkna").size(), 1U);
        host.connection.takeCalls();
        open();
        form->close();
        settle();
        EXPECT_EQ(host.connection.callsOf("MELVARKEDITORNASTAVENIUlozNastaveniOkna").size(), 1U);
        host.connection.takeCalls();
    }
}

TEST_F(EditBox, AnErrorWhileThePlacementIsStoredIsShownAndTheFormClosesWithItsResult) {
    open();
    host.connection.procedure("MELVARKEDITORNASTAVENIUlozNastaveniOkna").refusesCall(1, "spojení ztraceno");
    QTest::mouseClick(form->OkBtn, Qt::LeftButton);
    settle();
    EXPECT_THAT(host.errors(), ElementsAre("spojení ztraceno"));
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->ModalResult(), c_ResultOk);
    EXPECT_EQ(saves, 1);
}

TEST_F(EditBox, EscapeDoesNotCloseIt) {
    open();
    key(Qt::Key_Escape);
    settle();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(openCellText(), "1,1");
}

TEST_F(EditBox, BoxesGoThroughTheLibraryManager) {
    make();
    manager.boxAnswers = {c_ResultOk, c_ResultYes};
    EXPECT_EQ(form->ShowErrorBox("Chybný údaj"), c_ResultOk);
    EXPECT_EQ(form->ShowConfirmDialog("Opravdu?"), c_ResultYes);
    EXPECT_THAT(manager.boxes(), ElementsAre("16: Chybný údaj", "36: Opravdu?"));
}

TEST_F(EditBox, WithoutALibraryManagerTheApplicationsOwnBoxIsShown) {
    TestEditBox plain(nullptr, testColumns(log));
    plain.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&plain));
    struct Seen {
        QString text, title;
    };
    std::vector<Seen> seen;
    const auto answer = [&](const QString& button) {
        QTimer::singleShot(0, &plain, [&seen, button] {
            QWidget* const box = QApplication::activeModalWidget();
            ASSERT_NE(box, nullptr);
            const auto* const messageBox = qobject_cast<QMessageBox*>(box);
            seen.push_back({messageBox ? messageBox->text() : QString(), box->windowTitle()});
            box->findChild<QPushButton*>(button)->click();
        });
    };
    answer(QStringLiteral("OkBtn"));
    EXPECT_EQ(plain.ShowErrorBox("Chybný údaj"), c_ResultOk);
    answer(QStringLiteral("NoBtn"));
    EXPECT_EQ(plain.ShowConfirmDialog("Opravdu?"), c_ResultNo);
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[0].title, QStringLiteral("Chyba"));
    EXPECT_EQ(seen[1].title, QStringLiteral("Potvrzení"));
}

TEST_F(EditBox, ItWorksWithoutALibraryManager) {
    form = std::make_unique<TestEditBox>(nullptr, testColumns(log));
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    settle();
    EXPECT_EQ(form->Caption(), "Melvark - editor") << "the built-in texts stay";
    EXPECT_EQ(openCellText(), "1,1");
    openCell(c_CountCol, 2);
    type(QStringLiteral("x"));
    {
        ModalDriver box(QStringLiteral("MessageBox"), [](QWidget& shown) {
            const auto* const messageBox = qobject_cast<QMessageBox*>(&shown);
            EXPECT_EQ(messageBox ? messageBox->text() : QString(), QStringLiteral("Hodnota x není celé číslo"));
            QTest::keyClick(&shown, Qt::Key_Return);
        });
        key(Qt::Key_Return);
    }
    EXPECT_EQ(openCellText(), std::to_string(c_CountCol) + ",2");
    sharedEdit().clear();
    type(QStringLiteral("7"));
    key(Qt::Key_Return);
    EXPECT_EQ(stored(7, 1), "7");
    EXPECT_EQ(openCellText(), std::to_string(c_PriceCol) + ",2");
    form->close();
    EXPECT_THAT(host.connection.calls().back(), testing::StartsWith("MELVARKEDITORNASTAVENIUlozNastaveniOkna("));
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(EditBox, ResettingTheTableIsOneCall) {
    make();
    host.connection.takeCalls();
    form->ResetTable();
    EXPECT_THAT(host.connection.calls(), ElementsAre("MELVARKEDITORResetTemp()"));
}

TEST_F(EditBox, ADatabaseErrorOfItsConstructionReachesTheCaller) {
    host.connection.procedure("MELVARKEDITORNASTAVENIGetList").refusesCall(1, "nedostupné");
    EXPECT_THROW(TestEditBox(&manager, testColumns(log)), EDatabaseError);
    EXPECT_THAT(host.errors(), IsEmpty());
}

TEST_F(EditBox, ADatabaseErrorWhileItAppearsIsShownAndItStaysUsable) {
    host.connection.dropProcedure("MELVARKEDITORNASTAVENINactiNastaveniOkna");
    open();
    EXPECT_THAT(host.errors(), ElementsAre("The database has no procedure MELVARKEDITORNASTAVENINactiNastaveniOkna"));
    EXPECT_EQ(openCellText(), "1,1");
}

TEST_F(EditBox, LooksColumnsUpByPlaceNameAndData) {
    make();
    EXPECT_EQ(form->GetVisibleColumnIndex(0), -1);
    EXPECT_EQ(form->GetVisibleColumnIndex(c_NameCol), 1) << "the key column before it is not shown";
    EXPECT_EQ(form->GetVisibleColumnIndex(9), -1);
    EXPECT_EQ(form->GetVisibleColumn(c_DateCol).Name, "DATUM");
    EXPECT_EQ(form->GetVisibleColumn(0).DataColumn, -1);
    EXPECT_EQ(form->GetColumnByName("CENA"), c_PriceCol);
    EXPECT_EQ(form->GetColumnByName("SLEVA"), 0);
    EXPECT_EQ(form->GetColumnByName("cena"), 0);
    EXPECT_TRUE(form->IsValidColumnName("SLEVA"));
    EXPECT_FALSE(form->IsValidColumnName("sleva"));
    EXPECT_EQ(form->GetColumnSettings("SLEVA").Caption, "Sleva");
    EXPECT_EQ(form->GetColumnSettings("NENI").DataColumn, -1);
    EXPECT_EQ(form->GetDataColumn(6).Name, "CENA");
    EXPECT_EQ(form->GetDataColumn(60).Name, "");
    EXPECT_EQ(form->RowToDataGridRow(1), 0);
    EXPECT_EQ(form->DataGrid().GetColCount(), 10);
}

TEST_F(EditBox, OnlyColumnsWithAValueListHaveAnEditorOfTheirOwn) {
    make();
    for (const RColumn& column : form->DefaultColumns()) {
        EXPECT_EQ(column.Editor != nullptr, column.Name == "SKLAD") << column.Name;
    }
    EXPECT_EQ(combo().count(), 3);
    EXPECT_EQ(combo().itemText(2), QStringLiteral("Výdejna"));
    EXPECT_TRUE(combo().isHidden());
}

TEST_F(EditBox, TheEditabilityRuleGetsGridCoordinates) {
    open();
    std::vector<std::pair<int, int>> asked;
    form->SetOnIsEditable([&](int col, int row) {
        asked.emplace_back(col, row);
        return false;
    });
    EXPECT_FALSE(form->IsEditable(4, 2));
    EXPECT_EQ(asked, (std::vector<std::pair<int, int>>{{4, 2}}));
}
