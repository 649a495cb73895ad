#include "editors/MelvarkEditorDodakEditWin.h"

#include "editwin/model/EditExceptions.h"
#include "host/LibraryManager.h"
#include "select/MelvarkEditorSelectWin.h"
#include "tests/editors/DodakEditorFixture.h"

#include <QAction>
#include <QCheckBox>
#include <QFrame>
#include <QMenu>
#include <QPushButton>

#include <algorithm>

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

// ---- Opening ----

class DodakEditorOpening : public DodakEditorFixture {};

TEST_F(DodakEditorOpening, AsksTheDatabaseInItsOrder) {
    const auto editor = open();
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakInit() open", "select NAZEV from SKLAD_V order by NAZEV",
                            "MELVARKEDITORNASTAVENIGetList(a_TYPEDITACE=3) open",
                            "MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=3) open",
                            "MELVARKEDITORDodakCheckMaster(a_DODKID=7)",
                            "MELVARKEDITORDodakGetPolozkyByDodak(a_DODKIDMASTER=null, a_DODKID=7, "
                            "a_PRENESMNOZSTVI=true, a_PRENESCENY=true) open"));
}

TEST_F(DodakEditorOpening, ShowsItsTitleAndThePricePanelAboveTheGrid) {
    const auto editor = open();
    showAnd(*editor, [&] {
        EXPECT_EQ(editor->windowTitle(), QStringLiteral("Vložení položek dodacího listu"));
        ASSERT_TRUE(editor->TopPanel->isVisible());
        EXPECT_GE(editor->TopPanel->height(), 75);
        EXPECT_LE(editor->TopPanel->geometry().bottom(), editor->StringGrid->geometry().top());
        auto* const box = editor->findChild<QCheckBox*>(QStringLiteral("chbPrepocetCen"));
        EXPECT_EQ(editor->childAt(box->mapTo(editor.get(), QPoint(8, 8))), box) << "within the clerk's reach";
        EXPECT_TRUE(box->isChecked());
    });
}

TEST_F(DodakEditorOpening, ASourceWithoutRowsGivesOneEmptyRow) {
    scriptDodakEditor(host_.connection, {});
    const auto editor = open();
    showAnd(*editor, [&] {
        EXPECT_EQ(editor->StringGrid->RowCount(), 2) << "the header and one row";
        EXPECT_EQ(row(*editor, 1, {"SKLADPOL", "MNOZSTVI"}), " | ");
        EXPECT_EQ(openAt(*editor), "MNOZSTVI in row 1");
    });
}

TEST_F(DodakEditorOpening, AnUnknownEditTypeIsRefused) {
    EXPECT_THROW(open("dodak"), EDodakEditBox);
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(DodakEditorOpening, AMissingProcedureIsTheDatabasesError) {
    for (const char* procedure : {"MELVARKEDITORDodakInit", "MELVARKEDITORNASTAVENINactiDef",
                                  "MELVARKEDITORDodakCheckMaster", "MELVARKEDITORDodakGetPolozkyByDodak"}) {
        scriptDodakEditor(host_.connection);
        host_.connection.dropProcedure(procedure);
        EXPECT_THROW(open(), EDatabaseError) << procedure;
    }
}

TEST_F(DodakEditorOpening, ListColumnsOfferWarehousesAndRates) {
    const auto editor = open();
    EXPECT_THAT(choices(*editor, "SKLAD"), ElementsAre("Brno", "Praha"));
    EXPECT_THAT(choices(*editor, "DPH"), ElementsAre("21 %", "12 %", "0 %"));
}

TEST_F(DodakEditorOpening, LocalVatColumnsAreHiddenOnesThatTheClerkMayShowOnlyWithLocalVat) {
    const auto hiddenColumns = [](const TDodakEditBox& editor) {
        std::vector<AnsiString> captions;
        for (const QAction* item : editor.SkryteSloupce->actions()) {
            captions.push_back(item->text().toStdString());
        }
        return captions;
    };
    const auto without = open();
    showAnd(*without, [&] { EXPECT_THAT(hiddenColumns(*without), IsEmpty()); });
    scriptInit(host_.connection, "1");
    const auto with = open();
    showAnd(*with, [&] {
        EXPECT_THAT(hiddenColumns(*with), ElementsAre("Jedn.místní DPH se sl.", "Jedn.místní DPH bez sl.",
                                                      "Místní DPH se sl.", "Místní DPH bez sl."));
    });
}

// ---- The source dialogs ----

class DodakEditorSource : public DodakEditorFixture {
protected:
    DodakEditorSource() {
        host_.connection.procedure("MELVARKEDITORDodakCheckZdrojObjednavka")
            .inputs({"a_DODKIDMASTER", "a_CISLO", "a_DDOBID"})
            .returns({TResultTable{{"ID"}, {{std::int64_t{31}}}}});
        host_.connection.procedure("MELVARKEDITORDodakCheckZdrojDodak")
            .inputs({"a_DODKIDMASTER", "a_DODAKCISLO", "a_DODKID"})
            .returns({TResultTable{{"ID"}, {{std::int64_t{12}}}}});
    }

    static void uncheck(QWidget& dialog, const char* option) {
        dialog.findChild<QCheckBox*>(QString::fromUtf8(option))->click();
    }
};

TEST_F(DodakEditorSource, AnOrdersLinesAreFilledAndTheOrderIsNamedInTheSave) {
    ModalDriver dialog({}, [](QWidget& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Výběr objednávky"));
        typeInto(box, "editSelect", "OV17");
        press(box, "OkBtn");
    });
    const auto editor = open("DODOBJ");
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakInit() open", "select NAZEV from SKLAD_V order by NAZEV",
                            "MELVARKEDITORNASTAVENIGetList(a_TYPEDITACE=1) open",
                            "MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=1) open",
                            "MELVARKEDITORDodakCheckMaster(a_DODKID=7)",
                            "MELVARKEDITORDodakCheckZdrojObjednavka(a_DODKIDMASTER=7, a_CISLO=\"OV17\", "
                            "a_DDOBID=null) open",
                            "MELVARKEDITORDodakGetPolozkyByObjednavka(a_DODKID=7, a_DDOBID=31) open"));
    EXPECT_EQ(stored(*editor, 2, "DOBSID"), "502");

    EXPECT_EQ(showAnd(*editor, [&] { type(*editor, "", Qt::Key_Return, Qt::ControlModifier); }), c_ResultOk);
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakTempUloz"),
                ElementsAre("MELVARKEDITORDodakTempUloz(a_DODKID=7, a_DODKID_ZDROJ=null, a_DDOBID_ZDROJ=31)"));
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakInsertToTemp").front(), HasSubstr("a_DOBSID=\"501\""));
}

TEST_F(DodakEditorSource, AnotherDeliveryNotesLinesAreFilledAsTheOptionsSay) {
    ModalDriver dialog({}, [](QWidget& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Výběr dodacího listu"));
        typeInto(box, "editSelect", "DL3");
        uncheck(box, "chbCeny");
        press(box, "OkBtn");
    });
    const auto editor = open("DODAK");
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakGet"),
                ElementsAre("MELVARKEDITORDodakGetPolozkyByDodak(a_DODKIDMASTER=12, a_DODKID=7, "
                            "a_PRENESMNOZSTVI=true, a_PRENESCENY=false) open"));
    EXPECT_EQ(stored(*editor, 1, "DOBSID"), "");

    EXPECT_EQ(showAnd(*editor, [&] { type(*editor, "", Qt::Key_Return, Qt::ControlModifier); }), c_ResultOk);
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakTempUloz"),
                ElementsAre("MELVARKEDITORDodakTempUloz(a_DODKID=7, a_DODKID_ZDROJ=12, a_DDOBID_ZDROJ=null)"));
}

TEST_F(DodakEditorSource, TheDialogIsGoneWhenTheLinesAreAskedFor) {
    bool wasThere = true;
    host_.connection.procedure("MELVARKEDITORDodakGetPolozkyByObjednavka").answers([&](const TProcedureCall&) {
        wasThere = std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget* window) {
            return window->objectName() == QStringLiteral("SelectBox");
        });
        return TCallResult{true, {dodakLines(sampleLines())}, {}};
    });
    ModalDriver dialog(QStringLiteral("SelectBox"), [](QWidget& box) { press(box, "OkBtn"); });
    open("DODOBJ");
    EXPECT_FALSE(wasThere);
}

TEST_F(DodakEditorSource, TheListOffersThisSuppliersDocumentsOnly) {
    manager_.lookupAnswers.push_back(TLookupPick{"OV17", "33"});
    ModalDriver dialog({}, [](QWidget& box) {
        QTest::keyClick(box.findChild<QLineEdit*>(QStringLiteral("editSelect")), Qt::Key_F5);
        press(box, "OkBtn");
    });
    open("DODOBJ");
    EXPECT_THAT(manager_.lookups(),
                ElementsAre("Kordan3:DODOBJEDNAVKA.Normal CISLO _ID "
                            "[V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, _SKLDID, _DODVID, 7, 40, _DODANO)=1]"));
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakCheckZdroj"), ElementsAre(HasSubstr("a_DDOBID=33)")));
}

TEST_F(DodakEditorSource, ACancelledSelectionCancelsTheEditor) {
    for (const char* editType : {"DODOBJ", "DODAK"}) {
        ModalDriver dialog({}, [](QWidget& box) { press(box, "CancelBtn"); });
        EXPECT_THROW(open(editType), EEditBoxCanceled) << editType;
    }
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakGet"), IsEmpty());
}

TEST_F(DodakEditorSource, AnOkThatNamesNoDocumentCancelsTheEditor) {
    for (const std::int64_t id : {-1, -2}) {
        for (const char* check : {"MELVARKEDITORDodakCheckZdrojObjednavka", "MELVARKEDITORDodakCheckZdrojDodak"}) {
            host_.connection.procedure(check).returns({TResultTable{{"ID"}, {{id}}}});
        }
        for (const char* editType : {"DODOBJ", "DODAK"}) {
            ModalDriver dialog({}, [](QWidget& box) { press(box, "OkBtn"); });
            EXPECT_THROW(open(editType), EEditBoxCanceled) << editType << " " << id;
        }
    }
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakCheckZdroj"), SizeIs(4)) << "OK was pressed each time";
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakGet"), IsEmpty());
}

TEST_F(DodakEditorSource, APickedRowDoesNotCountOnceTheSelectionIsCancelled) {
    for (const char* editType : {"DODOBJ", "DODAK"}) {
        manager_.lookupAnswers.push_back(TLookupPick{"17", "33"});
        ModalDriver dialog({}, [](QWidget& box) {
            QTest::keyClick(box.findChild<QLineEdit*>(QStringLiteral("editSelect")), Qt::Key_F5);
            press(box, "CancelBtn");
        });
        EXPECT_THROW(open(editType), EEditBoxCanceled) << editType;
    }
    EXPECT_THAT(manager_.lookups(), SizeIs(2));
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodakGet"), IsEmpty());
}

TEST_F(DodakEditorSource, ARefusedSourceStaysInTheDialogUntilItIsCancelled) {
    host_.connection.procedure("MELVARKEDITORDodakCheckZdrojObjednavka").refusesCall(1, "Objednávka X neexistuje.");
    expectedErrors_ = {"Objednávka X neexistuje."};
    ModalDriver dialog({}, [](QWidget& box) {
        typeInto(box, "editSelect", "X");
        press(box, "OkBtn");
        EXPECT_TRUE(box.isVisible());
        press(box, "CancelBtn");
    });
    EXPECT_THROW(open("DODOBJ"), EEditBoxCanceled);
}

TEST_F(DodakEditorSource, AClosedDocumentIsRefusedBeforeTheDialogIsShown) {
    host_.connection.procedure("MELVARKEDITORDodakCheckMaster").refusesCall(1, "Dodací list 7 je uzavřen.");
    EXPECT_THROW(open("DODOBJ"), EDatabaseError);
}

// ---- Recalculation ----

class DodakEditorPrices : public DodakEditorFixture {
protected:
    void databaseReturns(std::vector<AnsiString> keys, std::vector<AnsiString> texts) {
        host_.connection.procedure("MELVARKEDITORDodakVypocetCen").returns({resultTable(keys, {texts})});
    }
};

TEST_F(DodakEditorPrices, ATypedQuantityIsRecalculatedInStoreAndGrid) {
    databaseReturns({"CENABSESLEVOU", "MNOZSTVI"}, {"228,00", "12"});
    const auto editor = open();
    showAnd(*editor, [&] {
        ASSERT_EQ(openAt(*editor), "MNOZSTVI in row 1");
        type(*editor, "12");
        EXPECT_THAT(host_.connection.calls(),
                    ElementsAre(AllOf(StartsWith("MELVARKEDITORDodakVypocetCen(a_ZMENENEBUNKY=\"MNOZSTVI;\", "
                                                 "a_PREPOCETCEN=true, a_FOCUS=\"MNOZSTVI\", "),
                                      HasSubstr("a_JEDNCENABSESLEVOU=19, "), HasSubstr("a_CENABSESLEVOU=190, "),
                                      HasSubstr("a_DPH=\"12 %\", a_SLEVA=5, a_MNOZSTVI=12) open"))));
        EXPECT_EQ(row(*editor, 1, {"MNOZSTVI", "CENABSESLEVOU"}), "12 | 228,00");
        EXPECT_EQ(stored(*editor, 1, "CENABSESLEVOU"), "228,00");
        EXPECT_TRUE(isModified(*editor, 1, "MNOZSTVI"));
        EXPECT_FALSE(isModified(*editor, 1, "CENABSESLEVOU")) << "the database worked it out";
        EXPECT_EQ(row(*editor, 2, {"CENABSESLEVOU"}), "") << "the next row is untouched";
        EXPECT_EQ(openAt(*editor), "JEDNCENABSESLEVOU in row 1");
    });
}

TEST_F(DodakEditorPrices, WhatWasRecalculatedIsNotSentAsChanged) {
    databaseReturns({"CENABSESLEVOU", "JEDNCENABSESLEVOU", "MNOZSTVI"}, {"228,00", "19", "12"});
    const auto editor = open();
    showAnd(*editor, [&] {
        type(*editor, "12");
        type(*editor, "20");
        EXPECT_THAT(host_.connection.calls(),
                    ElementsAre(HasSubstr("a_ZMENENEBUNKY=\"MNOZSTVI;\""),
                                AllOf(HasSubstr("a_ZMENENEBUNKY=\"JEDNCENABSESLEVOU;MNOZSTVI;\""),
                                      HasSubstr("a_FOCUS=\"JEDNCENABSESLEVOU\""))));
    });
}

TEST_F(DodakEditorPrices, AHiddenColumnIsRecalculatedInTheStoreOnly) {
    host_.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
        .returns({resultTable({"ID", "DATA"}, {{"5", "<settings><columns><column><name>CENABSESLEVOU</name>"
                                                     "<visible>0</visible></column></columns></settings>"}})});
    databaseReturns({"CENABSESLEVOU"}, {"228,00"});
    const auto editor = open();
    showAnd(*editor, [&] {
        ASSERT_EQ(editor->GetColumnByName("CENABSESLEVOU"), 0);
        type(*editor, "12");
        EXPECT_EQ(stored(*editor, 1, "CENABSESLEVOU"), "228,00");
        EXPECT_EQ(editor->StringGrid->Cells(0, 1), "") << "the indicator column stays empty";
    });
}

TEST_F(DodakEditorPrices, InAnotherRowOfMovedAndHiddenColumnsTheTypedCellAndItsLineAreMeant) {
    // The item stands first, the unit price between quantity and total is hidden.
    host_.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
        .returns({resultTable({"ID", "DATA"}, {{"5", "<settings><columns><column><name>SKLADPOL</name></column>"
                                                     "<column><name>MNOZSTVI</name></column>"
                                                     "<column><name>JEDNCENABSESLEVOU</name><visible>0</visible>"
                                                     "</column><column><name>CENABSESLEVOU</name></column>"
                                                     "</columns></settings>"}})});
    databaseReturns({"JEDNCENABSESLEVOU", "CENABSESLEVOU"}, {"12", "48,00"});
    const auto editor = open();
    showAnd(*editor, [&] {
        type(*editor, "");
        type(*editor, "");
        ASSERT_EQ(openAt(*editor), "MNOZSTVI in row 2");
        type(*editor, "4");
        ASSERT_EQ(openAt(*editor), "CENABSESLEVOU in row 2");
        EXPECT_EQ(row(*editor, 1, {"SKLADPOL", "MNOZSTVI", "CENABSESLEVOU"}), "Mléko | 10 | 190,00");
        EXPECT_EQ(row(*editor, 2, {"SKLADPOL", "MNOZSTVI", "CENABSESLEVOU"}), "Žitný chléb | 4 | 48,00");
        EXPECT_EQ(stored(*editor, 1, "JEDNCENABSESLEVOU") + " | " + stored(*editor, 2, "JEDNCENABSESLEVOU"), "19 | 12");
        type(*editor, "50");
        EXPECT_THAT(host_.connection.calls(),
                    ElementsAre(AllOf(HasSubstr("a_ZMENENEBUNKY=\"MNOZSTVI;\""), HasSubstr("a_FOCUS=\"MNOZSTVI\""),
                                      HasSubstr("a_CENABSESLEVOU=null, "), HasSubstr("a_MNOZSTVI=4)")),
                                AllOf(HasSubstr("a_ZMENENEBUNKY=\"CENABSESLEVOU;MNOZSTVI;\""),
                                      HasSubstr("a_FOCUS=\"CENABSESLEVOU\""), HasSubstr("a_JEDNCENABSESLEVOU=12, "),
                                      HasSubstr("a_CENABSESLEVOU=50, "))));
    });
}

TEST_F(DodakEditorPrices, ACellWhoseColumnWasHiddenWhileItWasTypedIsStillTheOneThatWasEdited) {
    databaseReturns({"JEDNCENABSESLEVOU", "CENABSESLEVOU"}, {"7,5", "30,00"});
    const auto editor = open();
    showAnd(*editor, [&] {
        for (int cell = 0; openAt(*editor) != "CENABSESLEVOU in row 2" && cell < 20; ++cell) {
            type(*editor, "");
        }
        ASSERT_EQ(openAt(*editor), "CENABSESLEVOU in row 2");
        QTest::keyClicks(editor->ActiveEditor(), QStringLiteral("30"));
        editor->LoadColumnsSettingsFromXml("<settings><columns><column><name>CENABSESLEVOU</name><visible>0</visible>"
                                           "</column></columns></settings>");
        editor->ApplyColumnsSettingsToGrid();
        ASSERT_EQ(editor->GetColumnByName("CENABSESLEVOU"), 0);
        QTest::keyClick(editor->ActiveEditor(), Qt::Key_Return);
        EXPECT_THAT(host_.connection.calls(),
                    ElementsAre(AllOf(HasSubstr("a_ZMENENEBUNKY=\"CENABSESLEVOU;\""),
                                      HasSubstr("a_FOCUS=\"CENABSESLEVOU\""), HasSubstr("a_CENABSESLEVOU=30, "))));
        EXPECT_EQ(row(*editor, 2, {"SKLADPOL", "JEDNCENABSESLEVOU"}), "Žitný chléb | 7,5");
        EXPECT_EQ(stored(*editor, 1, "CENABSESLEVOU") + " | " + stored(*editor, 2, "CENABSESLEVOU"), "190,00 | 30,00");
        EXPECT_TRUE(isModified(*editor, 2, "CENABSESLEVOU"));
        EXPECT_EQ(editor->StringGrid->Cells(0, 2), "") << "the indicator column stays empty";
    });
}

TEST_F(DodakEditorPrices, TheSwitchTravelsWithEachCall) {
    const auto editor = open();
    showAnd(*editor, [&] {
        QTest::keyClick(editor->ActiveEditor(), Qt::Key_C, Qt::AltModifier);
        EXPECT_FALSE(editor->GetPrepocetCen());
        type(*editor, "12");
        QTest::keyClick(editor->ActiveEditor(), Qt::Key_P, Qt::AltModifier);
        type(*editor, "20");
        EXPECT_THAT(host_.connection.calls(), ElementsAre(HasSubstr("a_PREPOCETCEN=false, a_FOCUS=\"MNOZSTVI\""),
                                                          HasSubstr("a_PREPOCETCEN=true, a_FOCUS=\"JEDNCENAB")));
    });
}

TEST_F(DodakEditorPrices, AnUntouchedCellIsNotRecalculated) {
    const auto editor = open();
    showAnd(*editor, [&] {
        type(*editor, "");
        EXPECT_THAT(host_.connection.calls(), IsEmpty());
        EXPECT_FALSE(isModified(*editor, 1, "MNOZSTVI"));
    });
}

TEST_F(DodakEditorPrices, ALinkLostInTheRecalculationIsReportedOnceAndTheTypedTextStays) {
    host_.connection.procedure("MELVARKEDITORDodakVypocetCen").refusesCall(1, "Spojení s databází bylo přerušeno.");
    expectedErrors_ = {"Spojení s databází bylo přerušeno."};
    const auto editor = open();
    showAnd(*editor, [&] {
        type(*editor, "12");
        EXPECT_EQ(openAt(*editor), "MNOZSTVI in row 1") << "the editor stays open";
        EXPECT_EQ(row(*editor, 1, {"MNOZSTVI", "CENABSESLEVOU"}), "12 | 190,00");
    });
}

TEST_F(DodakEditorPrices, APriceCellThatIsNoNumberIsReportedWithoutACall) {
    scriptDodakEditor(host_.connection, {{{"SKLADPOL", "Mléko"}, {"CENASBEZSLEVY", "sto"}}});
    expectedErrors_ = {"Hodnota sto není desetinné číslo"};
    const auto editor = open();
    showAnd(*editor, [&] {
        type(*editor, "12");
        EXPECT_THAT(host_.connection.calls(), IsEmpty());
    });
}

// ---- The discount ----

class DodakEditorDiscount : public DodakEditorFixture {
protected:
    DodakEditorDiscount() { makeDiscountEditable(); }
};

TEST_F(DodakEditorDiscount, OutOfRangeIsRefusedAndStaysInItsCell) {
    const auto editor = open();
    showAnd(*editor, [&] {
        ASSERT_EQ(openAt(*editor), "SLEVA in row 1");
        type(*editor, "100,01");
        EXPECT_THAT(manager_.boxes(), ElementsAre("16: Neplatná hodnota slevy"));
        EXPECT_EQ(openAt(*editor), "SLEVA in row 1");
        EXPECT_EQ(row(*editor, 1, {"SLEVA"}), "100,01");
        EXPECT_EQ(stored(*editor, 1, "SLEVA"), "100,01");
        EXPECT_THAT(host_.connection.calls(), IsEmpty());
    });
}

TEST_F(DodakEditorDiscount, WithinRangeIsAcceptedWithoutARecalculation) {
    const auto editor = open();
    showAnd(*editor, [&] {
        type(*editor, "100");
        EXPECT_EQ(openAt(*editor), "MNOZSTVI in row 1");
        EXPECT_THAT(host_.connection.calls(), IsEmpty());
        type(*editor, "3");
        EXPECT_THAT(host_.connection.calls(), ElementsAre(AllOf(HasSubstr("a_ZMENENEBUNKY=\"SLEVA;MNOZSTVI;\""),
                                                                HasSubstr("a_SLEVA=100, a_MNOZSTVI=3"))));
    });
}

TEST_F(DodakEditorDiscount, ARefusedDiscountIsNotSaved) {
    const auto editor = open();
    EXPECT_EQ(showAnd(*editor, [&] { type(*editor, "-5", Qt::Key_Return, Qt::ControlModifier); }), c_ResultCancel);
    EXPECT_TRUE(wasLeftOpen_);
    EXPECT_THAT(manager_.boxes(), SizeIs(1));
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodak"), IsEmpty());
}

TEST_F(DodakEditorDiscount, WithoutALibraryManagerTheApplicationsBoxTells) {
    ModalDriver box(QStringLiteral("MessageBox"), [](QWidget& shown) {
        EXPECT_EQ(shown.windowTitle(), QStringLiteral("Chyba"));
        QTest::keyClick(&shown, Qt::Key_Return);
    });
    TDodakEditBox editor(qApp, nullptr, "SABLONA", 7, 40);
    showAnd(editor, [&] {
        type(editor, "101");
        EXPECT_EQ(openAt(editor), "SLEVA in row 1");
    });
    EXPECT_TRUE(box.hasActed());
}

} // namespace
