#include "editors/MelvarkEditorDodObjEditWin.h"

#include "host/LibraryManager.h"
#include "tests/editors/DodObjEditorFixture.h"

#include <QCheckBox>
#include <QFrame>

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

// ---- Opening ----

class DodObjEditorOpening : public DodObjEditorFixture {};

TEST_F(DodObjEditorOpening, AsksTheDatabaseInItsOrder) {
    const auto editor = open();
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodObjInit() open", "select NAZEV from SKLAD_V order by NAZEV",
                            "select JMENO from DODAVATEL_V order by JMENO",
                            "MELVARKEDITORNASTAVENIGetList(a_TYPEDITACE=13) open",
                            "MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=13) open",
                            "MELVARKEDITORDodObjCheckMaster(a_DDOBID=7)",
                            "MELVARKEDITORDodObjGetPolozkyByObjednavka(a_DDOBIDMASTER=7, a_DDOBID=null) open"));
}

TEST_F(DodObjEditorOpening, AnOrderAndATemplateDifferInTitleAndInTheNumbersOfSettingsAndPlacement) {
    struct {
        bool isTemplate;
        const char* title;
        const char* settings;
        const char* placement;
    } const kinds[] = {
        {false, "Vložení položek do objednávky zboží", "(a_TYPEDITACE=13) open", "(a_TYPEDITACE=10) open"},
        {true, "Vložení položek do vzorové objednávky zboží", "(a_TYPEDITACE=23) open", "(a_TYPEDITACE=20) open"},
    };
    for (const auto& kind : kinds) {
        isTemplate_ = kind.isTemplate;
        host_.connection.takeCalls();
        const auto editor = open();
        EXPECT_EQ(editor->Caption(), kind.title);
        EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORNASTAVENINactiDef"), ElementsAre(HasSubstr(kind.settings)));
        showAnd(*editor, [] {});
        EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORNASTAVENIUlozNastaveniOkna"),
                    ElementsAre(HasSubstr(AnsiString(kind.placement).substr(0, 16))));
    }
}

TEST_F(DodObjEditorOpening, ThePricePanelIsNotThereAndNoLayoutCarriesItsSwitch) {
    const auto editor = open();
    EXPECT_FALSE(melvark::Visible(*editor->TopPanel));
    EXPECT_THAT(editor->GetColumnSettingsXML(),
                AllOf(HasSubstr("<name>MNOZSTVIHL</name>"), Not(HasSubstr("prepocet"))));
}

TEST_F(DodObjEditorOpening, ASourceWithoutRowsGivesOneEmptyRowInWhichNoQuantityCanBeTyped) {
    scriptDodObjEditor(host_.connection, {});
    const auto editor = open();
    showAnd(*editor, [&] {
        EXPECT_EQ(editor->StringGrid->RowCount(), 2) << "the header and one row";
        EXPECT_EQ(row(*editor, 1, {"SKLADPOL", "MNOZSTVIHL"}), " | ");
        EXPECT_EQ(openAt(*editor), "closed");
    });
}

TEST_F(DodObjEditorOpening, AnUnknownSourceIsRefused) {
    EXPECT_THROW(open("sablona"), EDodObjEditBox);
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(DodObjEditorOpening, AClosedDocumentIsRefusedBeforeAnythingIsAskedOrFilled) {
    host_.connection.procedure("MELVARKEDITORDodObjCheckMaster").refusesCall(1, "Objednávka 7 je uzavřená.");
    try {
        open("OBJEDNAVKA");
        FAIL() << "no error";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Message(), "Objednávka 7 je uzavřená.");
    }
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObjGet"), IsEmpty());
}

TEST_F(DodObjEditorOpening, ListColumnsOfferWarehousesAndSuppliers) {
    const auto editor = open();
    EXPECT_THAT(choices(*editor, "SKLAD"), ElementsAre("Brno", "Praha"));
    EXPECT_THAT(choices(*editor, "DODAVATEL"), ElementsAre("Lípa", "Vrba"));
}

// ---- Sources ----

/// What one source asks and names: by the keys of its dialog, or by nothing.
struct SourceCase {
    const char* code;
    const char* title; ///< Of its dialog; empty for none.
    std::function<void(QWidget&)> choose;
    std::vector<AnsiString> calls; ///< After the master check.
    const char* sources;           ///< How the closing call names them.
};

const char* const c_NoSource = "a_DDOBID_ZDROJ=null, a_DDOBIDVZOR_ZDROJ=null, a_DODKID_ZDROJ=null)";

const std::vector<SourceCase>& sourceCases() {
    static const std::vector<SourceCase> cases{
        {"OBJEDNAVKA",
         "Výběr objednávky",
         [](QWidget& box) { typeInto(box, "editSelect", "OV1"), press(box, "OkBtn"); },
         {"MELVARKEDITORDodObjCheckZdrojObjednavka(a_DDOBIDMASTER=7, a_CISLO=\"OV1\", a_DDOBID=null) open",
          "MELVARKEDITORDodObjGetPolozkyByObjednavka(a_DDOBIDMASTER=7, a_DDOBID=31) open"},
         "a_DDOBID_ZDROJ=31, a_DDOBIDVZOR_ZDROJ=null, a_DODKID_ZDROJ=null)"},
        {"OBJEDNAVKAVZOR",
         "Výběr vzoru objednávky",
         [](QWidget& box) { typeInto(box, "editSelect", "V1"), press(box, "OkBtn"); },
         {"MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(a_DDOBIDMASTER=7, a_CISLO=\"V1\", a_DDOBID=null) open",
          "MELVARKEDITORDodObjGetPolozkyByObjednavka(a_DDOBIDMASTER=7, a_DDOBID=31) open"},
         "a_DDOBID_ZDROJ=null, a_DDOBIDVZOR_ZDROJ=31, a_DODKID_ZDROJ=null)"},
        {"SABLONA",
         "",
         {},
         {"MELVARKEDITORDodObjGetPolozkyByObjednavka(a_DDOBIDMASTER=7, a_DDOBID=null) open"},
         c_NoSource},
        {"DODAK",
         "Výběr dodacího listu",
         [](QWidget& box) { typeInto(box, "editSelect", "DL1"), press(box, "OkBtn"); },
         {"MELVARKEDITORDodObjCheckZdrojDodak(a_DDOBIDMASTER=7, a_CISLO=\"DL1\", a_DODKID=null) open",
          "MELVARKEDITORDodObjGetPolozkyByDodak(a_DDOBIDMASTER=7, a_DODKID=31) open"},
         "a_DDOBID_ZDROJ=null, a_DDOBIDVZOR_ZDROJ=null, a_DODKID_ZDROJ=31)"},
        {"SKUPSKLADPOL",
         "Výběr skupin skladových položek",
         [](QWidget& box) { typeInto(box, "editSelect2", "Sypke"), press(box, "OkBtn"); },
         {"MELVARKEDITORDodObjCheckSkupSkladPol1(a_DDOBIDMASTER=7, a_NAZEV=\"\", a_SSP1ID=null) open",
          "MELVARKEDITORDodObjCheckSkupSkladPol2(a_DDOBIDMASTER=7, a_NAZEV=\"Sypke\", a_SSP2ID=null) open",
          "MELVARKEDITORDodObjCheckSkupSkladPol3(a_DDOBIDMASTER=7, a_NAZEV=\"\", a_SSP3ID=null) open",
          "MELVARKEDITORDodObjCheckSkupSkladPol(a_DDOBIDMASTER=7, a_SSP1ID=null, a_SSP2ID=12, a_SSP3ID=null)",
          "MELVARKEDITORDodObjGetPolozkyBySkupSkladPol(a_DDOBIDMASTER=7, a_SSP1ID=null, a_SSP2ID=12, a_SSP3ID=null) "
          "open"},
         c_NoSource},
        {"DODAVATEL",
         "",
         {},
         {"MELVARKEDITORDodObjGetPolozkyByDodCenik(a_DDOBIDMASTER=7, a_DODVID=5) open"},
         c_NoSource},
        {"DODAVKY",
         "Výběr dodavatele",
         [](QWidget& box) {
             box.findChild<QCheckBox*>(QStringLiteral("chbMnozstvi"))->click();
             press(box, "OkBtn");
         },
         {"MELVARKEDITORDodObjCheckZdrojDodavky(a_DDOBIDMASTER=7, a_JMENO=\"Lípa\", a_DODVID=null) open",
          "MELVARKEDITORDodObjGetPolozkyByDodavky(a_DDOBIDMASTER=7, a_DODVID=31, a_PRENESMNOZSTVI=true) open"},
         c_NoSource},
    };
    return cases;
}

class DodObjEditorSource : public DodObjEditorFixture {
protected:
    /// Opens the editor where the source asks nothing.
    std::unique_ptr<TDodObjEditBox> openUnasked(const char* code) {
        const NoModal guard;
        return open(code);
    }
    /// Opens the editor and chooses in the source's dialog, where it has one.
    std::unique_ptr<TDodObjEditBox> openAndChoose(const SourceCase& source) {
        if (!source.choose) {
            return openUnasked(source.code);
        }
        const ModalDriver dialog({}, [&](QWidget& box) {
            EXPECT_EQ(box.windowTitle(), QString::fromUtf8(source.title));
            source.choose(box);
        });
        return open(source.code);
    }
    /// The calls after the master check.
    std::vector<AnsiString> fillCalls() {
        const auto& calls = host_.connection.calls();
        const auto check = std::ranges::find_if(
            calls, [](const AnsiString& call) { return call.starts_with("MELVARKEDITORDodObjCheckMaster"); });
        return check == calls.end() ? std::vector<AnsiString>{"no master check"}
                                    : std::vector<AnsiString>(check + 1, calls.end());
    }
};

TEST_F(DodObjEditorSource, EachAsksFillsAndIsNamedInTheSaveAsItsOwn) {
    for (const bool isTemplate : {false, true}) {
        for (const SourceCase& source : sourceCases()) {
            SCOPED_TRACE(source.code);
            isTemplate_ = isTemplate;
            host_.connection.takeCalls();
            const auto editor = openAndChoose(source);
            EXPECT_EQ(fillCalls(), source.calls);
            EXPECT_EQ(editor->DataGrid().GetRowCount(), 3);
            EXPECT_EQ(showAnd(*editor, [&] { type(*editor, "", Qt::Key_Return, Qt::ControlModifier); }), c_ResultOk);
            EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObjTempUloz"),
                        ElementsAre("MELVARKEDITORDodObjTempUloz(a_DDOBID=7, " + AnsiString(source.sources)));
        }
    }
}

TEST_F(DodObjEditorSource, TheTemplateOfTheLatestOrdersOpensNoDialogAndLoadsThroughTheOrdersProcedure) {
    openUnasked("SABLONA");
    EXPECT_THAT(fillCalls(),
                ElementsAre("MELVARKEDITORDodObjGetPolozkyByObjednavka(a_DDOBIDMASTER=7, a_DDOBID=null) open"));
}

TEST_F(DodObjEditorSource, ThePriceListOfTheDocumentsOwnSupplierOpensNoDialog) {
    for (const int supplier : {1, 5, 2147483647}) {
        supplier_ = supplier;
        host_.connection.takeCalls();
        openUnasked("DODAVATEL");
        EXPECT_THAT(fillCalls(), ElementsAre("MELVARKEDITORDodObjGetPolozkyByDodCenik(a_DDOBIDMASTER=7, a_DODVID=" +
                                             std::to_string(supplier) + ") open"));
    }
}

TEST_F(DodObjEditorSource, ASaveThatCameOfNoDocumentNamesNoneByNullsAndNeverByMinusOne) {
    for (const SourceCase& source : sourceCases()) {
        if (AnsiString(source.sources) != c_NoSource) {
            continue;
        }
        SCOPED_TRACE(source.code);
        const auto editor = openAndChoose(source);
        host_.connection.takeCalls();
        EXPECT_TRUE(editor->SaveData());
        const auto closing = host_.connection.callsOf("MELVARKEDITORDodObjTempUloz");
        EXPECT_THAT(closing, ElementsAre("MELVARKEDITORDodObjTempUloz(a_DDOBID=7, a_DDOBID_ZDROJ=null, "
                                         "a_DDOBIDVZOR_ZDROJ=null, a_DODKID_ZDROJ=null)"));
    }
}

TEST_F(DodObjEditorSource, SettingsAreFiledBySourceAndKindOfDocument) {
    supplier_ = 5;
    const std::pair<bool, int> kinds[] = {{false, 10}, {true, 20}};
    for (const auto& [isTemplate, number] : kinds) {
        isTemplate_ = isTemplate;
        for (std::size_t at = 0; at < sourceCases().size(); ++at) {
            const SourceCase& source = sourceCases()[at];
            host_.connection.takeCalls();
            openAndChoose(source);
            const int type = number + static_cast<int>(at) + 1;
            EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORNASTAVENINactiDef"),
                        ElementsAre("MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE=" + std::to_string(type) + ") open"));
        }
    }
}

TEST_F(DodObjEditorSource, ACancelledDialogCancelsTheEditorQuietly) {
    for (const SourceCase& source : sourceCases()) {
        if (!source.choose) {
            continue;
        }
        ModalDriver dialog({}, [](QWidget& box) { press(box, "CancelBtn"); });
        EXPECT_THROW(open(source.code), EEditBoxCanceled) << source.code;
    }
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObjGet"), IsEmpty());
    EXPECT_THAT(manager_.boxes(), IsEmpty());
}

TEST_F(DodObjEditorSource, AnOkThatNamesNoDocumentCancelsTheEditor) {
    const std::pair<const char*, const char*> sources[] = {{"OBJEDNAVKA", "Objednavka"},
                                                           {"OBJEDNAVKAVZOR", "ObjednavkaVzor"},
                                                           {"DODAK", "Dodak"},
                                                           {"DODAVATEL", "DodCenik"},
                                                           {"DODAVKY", "Dodavky"}};
    supplier_ = 0; // so that the price list asks, too
    for (const auto& [code, check] : sources) {
        for (const std::int64_t id : {-1, -2}) {
            host_.connection.procedure("MELVARKEDITORDodObjCheckZdroj" + AnsiString(check))
                .returns({TResultTable{{"ID"}, {{id}}}});
            ModalDriver dialog({}, [](QWidget& box) { press(box, "OkBtn"); });
            EXPECT_THROW(open(code), EEditBoxCanceled) << code << ' ' << id;
        }
    }
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObjCheckZdroj"), SizeIs(10)) << "OK was pressed each time";
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObjGet"), IsEmpty());
}

TEST_F(DodObjEditorSource, GroupsWithoutAnyLevelAreNoCancelButTheDatabasesDecision) {
    ModalDriver dialog({}, [](QWidget& box) { press(box, "OkBtn"); });
    const auto editor = open("SKUPSKLADPOL");
    EXPECT_EQ(fillCalls().back(), "MELVARKEDITORDodObjGetPolozkyBySkupSkladPol(a_DDOBIDMASTER=7, a_SSP1ID=null, "
                                  "a_SSP2ID=null, a_SSP3ID=null) open");
    EXPECT_EQ(editor->DataGrid().GetRowCount(), 3);
}

TEST_F(DodObjEditorSource, TheDialogIsGoneWhenTheLinesAreAskedFor) {
    const auto dialogs = [] {
        return std::ranges::count_if(QApplication::topLevelWidgets(), [](const QWidget* window) {
            return window->objectName().endsWith(QStringLiteral("SelectBox"));
        });
    };
    for (const char* fill : {"Objednavka", "SkupSkladPol"}) {
        qsizetype there = -1;
        host_.connection.procedure(AnsiString("MELVARKEDITORDodObjGetPolozkyBy") + fill)
            .answers([&](const TProcedureCall&) {
                there = dialogs();
                return TCallResult{true, {dodObjLines(sampleOrderLines())}, {}};
            });
        ModalDriver dialog({}, [](QWidget& box) { press(box, "OkBtn"); });
        open(AnsiString(fill) == "Objednavka" ? "OBJEDNAVKA" : "SKUPSKLADPOL");
        EXPECT_EQ(there, 0) << fill;
    }
}

TEST_F(DodObjEditorSource, TheListsOfferWhatFitsTheDocumentsWarehouseAndSupplier) {
    manager_.lookupAnswers.push_back(TLookupPick{"OV1", "33"});
    ModalDriver dialog({}, [](QWidget& box) {
        QTest::keyClick(box.findChild<QLineEdit*>(QStringLiteral("editSelect")), Qt::Key_F5);
        press(box, "OkBtn");
    });
    open("OBJEDNAVKAVZOR");
    EXPECT_THAT(manager_.lookups(),
                ElementsAre("Kordan3:DODOBJEDNAVKAVZOR.Normal CISLO _ID "
                            "[V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, 7, 3, 5)=1]"));
}

TEST_F(DodObjEditorSource, ThePriceListOfADocumentWithoutASupplierIsAskedForAtTheDocumentsMoment) {
    supplierName_ = "";
    for (const int none : {0, -1, -7}) {
        supplier_ = none;
        host_.connection.takeCalls();
        manager_.lookupAnswers.push_back(TLookupPick{"Vrba", "44"});
        ModalDriver dialog({}, [](QWidget& box) {
            EXPECT_EQ(box.windowTitle(), QStringLiteral("Výběr dodavatele"));
            QTest::keyClick(box.findChild<QLineEdit*>(QStringLiteral("editSelect")), Qt::Key_F5);
            press(box, "OkBtn");
        });
        open("DODAVATEL");
        EXPECT_TRUE(dialog.hasActed()) << none;
        EXPECT_EQ(manager_.lookups().back(),
                  "Kordan3:DODAVATEL.Normal JMENO _ID [V_MELVARKEDITORDodObjCheckZdrojDodCenik(_ID, 7, -1, -1, "
                  "'1.2.2027 00:00:00')=1]");
        EXPECT_THAT(
            fillCalls(),
            ElementsAre("MELVARKEDITORDodObjCheckZdrojDodCenik(a_DDOBIDMASTER=7, a_JMENO=\"Vrba\", a_DODVID=44) "
                        "open",
                        "MELVARKEDITORDodObjGetPolozkyByDodCenik(a_DDOBIDMASTER=7, a_DODVID=31) open"));
    }
}

TEST_F(DodObjEditorSource, DeliveriesOfADocumentWithASupplierAskForTheQuantitiesOnly) {
    ModalDriver dialog({}, [](QWidget& box) {
        EXPECT_FALSE(box.findChild<QLineEdit*>(QStringLiteral("editSelect"))->isEnabled());
        EXPECT_EQ(box.findChild<QLineEdit*>(QStringLiteral("editSelect"))->text(), QStringLiteral("Lípa"));
        EXPECT_FALSE(box.findChild<QCheckBox*>(QStringLiteral("chbMnozstvi"))->isChecked());
        press(box, "OkBtn");
    });
    open("DODAVKY");
    EXPECT_THAT(fillCalls().back(), HasSubstr("a_DODVID=31, a_PRENESMNOZSTVI=false)"));
}

TEST_F(DodObjEditorSource, RefusedGroupsStayInTheDialogUntilTheyAreCorrected) {
    host_.connection.procedure("MELVARKEDITORDodObjCheckSkupSkladPol").refusesCall(1, "Skupiny k sobě nepatří.");
    expectedErrors_ = {"Skupiny k sobě nepatří."};
    ModalDriver dialog({}, [](QWidget& box) {
        typeInto(box, "editSelect1", "Potraviny");
        typeInto(box, "editSelect3", "Srouby");
        press(box, "OkBtn");
        EXPECT_TRUE(box.isVisible());
        box.findChild<QLineEdit*>(QStringLiteral("editSelect3"))->clear();
        press(box, "OkBtn");
    });
    open("SKUPSKLADPOL");
    EXPECT_EQ(fillCalls().back(), "MELVARKEDITORDodObjGetPolozkyBySkupSkladPol(a_DDOBIDMASTER=7, a_SSP1ID=1, "
                                  "a_SSP2ID=null, a_SSP3ID=null) open");
}

TEST_F(DodObjEditorSource, ARefusedFillIsTheDatabasesErrorAndNoEditorIsLeft) {
    host_.connection.procedure("MELVARKEDITORDodObjGetPolozkyByDodCenik")
        .refusesCall(1, "Dodavatel nemá v tu dobu ceník.");
    try {
        open("DODAVATEL");
        ADD_FAILURE() << "the fill was refused";
    } catch (const EDatabaseError& error) {
        EXPECT_EQ(error.Message(), "Dodavatel nemá v tu dobu ceník.");
    }
    EXPECT_THAT(QApplication::topLevelWidgets(), IsEmpty());
}

TEST_F(DodObjEditorSource, AFillThatReportsFailureCancelsTheEditorQuietly) {
    host_.connection.procedure("MELVARKEDITORDodObjGetPolozkyByDodCenik").failsCall(1);
    EXPECT_THROW(open("DODAVATEL"), EEditBoxCanceled);
    EXPECT_THAT(QApplication::topLevelWidgets(), IsEmpty());
    EXPECT_THAT(manager_.boxes(), IsEmpty());
}

// ---- Editing ----

class DodObjEditorCells : public DodObjEditorFixture {};

TEST_F(DodObjEditorCells, TraversalStopsAtQuantitiesWithAUnitAndNowhereElse) {
    const auto editor = open();
    showAnd(*editor, [&] {
        std::vector<AnsiString> stops{openAt(*editor)};
        for (int step = 0; step < 5; ++step) {
            QTest::keyClick(editor->ActiveEditor(), Qt::Key_Return);
            stops.push_back(openAt(*editor));
        }
        EXPECT_THAT(stops, ElementsAre("MNOZSTVIHL in row 1", "MNOZSTVIV1 in row 1", "MNOZSTVIV2 in row 1",
                                       "MNOZSTVIHL in row 2", "MNOZSTVIV1 in row 2", "MNOZSTVIV1 in row 2"))
            << "the last row has no unit at all, and neither its cells nor the row after it are searched further";
    });
}

TEST_F(DodObjEditorCells, AClickOnAQuantityWithoutAUnitOpensNothing) {
    const auto editor = open();
    showAnd(*editor, [&] {
        editor->resize(1700, 400); // every column in view
        const auto opens = [&](const char* key, int gridRow, const AnsiString& expected) {
            const QRect cell = editor->StringGrid->CellRect(editor->GetColumnByName(key), gridRow);
            QWidget* const viewport = editor->StringGrid->viewport();
            QTest::mouseClick(viewport, Qt::LeftButton, {}, viewport->mapFrom(editor->StringGrid, cell.center()));
            return QTest::qWaitFor([&] { return openAt(*editor) == expected; });
        };
        ASSERT_TRUE(QTest::qWaitFor([&] { return editor->StringGrid->viewport()->width() > 1400; }));
        EXPECT_TRUE(opens("MNOZSTVIV1", 2, "MNOZSTVIV1 in row 2"));
        EXPECT_TRUE(opens("MNOZSTVIV2", 2, "closed"));
        EXPECT_TRUE(opens("MNOZSTVIHL", 2, "MNOZSTVIHL in row 2"));
        EXPECT_TRUE(opens("MNOZSTVIHL", 3, "closed"));
        EXPECT_TRUE(opens("POPIS", 3, "POPIS in row 3")) << "a remark needs no unit";
    });
}

TEST_F(DodObjEditorCells, QuantitiesInBothUnitsAreTypedAndStoredAsNumbersWithAPoint) {
    const auto editor = open();
    EXPECT_EQ(showAnd(*editor,
                      [&] {
                          type(*editor, "2,5");
                          type(*editor, "3");
                          type(*editor, "");
                          ASSERT_EQ(openAt(*editor), "MNOZSTVIHL in row 2");
                          type(*editor, "1.25", Qt::Key_Return, Qt::ControlModifier);
                          EXPECT_EQ(row(*editor, 2, {"SKLADPOL", "MNOZSTVIHL"}), "Cukr | 1,25");
                          EXPECT_TRUE(isModified(*editor, 2, "MNOZSTVIHL"));
                          EXPECT_FALSE(isModified(*editor, 2, "MNOZSTVIV1"));
                      }),
              c_ResultOk);
    EXPECT_THAT(
        host_.connection.calls(),
        ElementsAre(
            "MELVARKEDITORResetTemp()",
            "MELVARKEDITORDodObjInsertToTemp(a_SKLADPOL=\"Mouka\", a_SKLAD=\"Praha\", a_DODAVATEL=\"Lípa\", "
            "a_SKPLID=\"101\", a_MNOZSTVI=\"2.5\", a_JEDNOTKY=\"kg\", a_SKPLIDV1=\"102\", a_MNOZSTVIV1=\"3\", "
            "a_JEDNOTKYV1=\"pytel\", a_SKPLIDV2=\"103\", a_MNOZSTVIV2=null, a_JEDNOTKYV2=\"paleta\", a_POPIS=null, "
            "a_KOMENTAR=null)",
            AllOf(HasSubstr("a_SKLADPOL=\"Cukr\""), HasSubstr("a_MNOZSTVI=\"1.25\"")),
            "MELVARKEDITORDodObjInsertToTemp(a_SKLADPOL=\"Doprava\", a_SKLAD=null, a_DODAVATEL=null, a_SKPLID=null, "
            "a_MNOZSTVI=null, a_JEDNOTKY=null, a_SKPLIDV1=null, a_MNOZSTVIV1=null, a_JEDNOTKYV1=null, "
            "a_SKPLIDV2=null, a_MNOZSTVIV2=null, a_JEDNOTKYV2=null, a_POPIS=null, a_KOMENTAR=null)",
            AllOf(StartsWith("MELVARKEDITORDodObjTempUloz(a_DDOBID=7, "), HasSubstr(c_NoSource)),
            StartsWith("MELVARKEDITORNASTAVENIUlozNastaveniOkna(a_TYPEDITACE=10, ")));
}

TEST_F(DodObjEditorCells, AValueThatIsNoNumberIsToldAndNothingIsSaved) {
    const auto editor = open();
    EXPECT_EQ(showAnd(*editor, [&] { type(*editor, "abc", Qt::Key_Return, Qt::ControlModifier); }), c_ResultCancel);
    EXPECT_THAT(manager_.boxes(), ElementsAre("16: Hodnota abc není desetinné číslo"));
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObj"), IsEmpty());
}

TEST_F(DodObjEditorCells, TheUnitsDecideWhereverTheUserMovedTheColumns) {
    host_.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
        .returns(
            {resultTable({"ID", "DATA"}, {{"5", "<settings><columns><column><name>MNOZSTVIV2</name></column>"
                                                "<column><name>MNOZSTVIHL</name></column></columns></settings>"}})});
    const auto editor = open();
    showAnd(*editor, [&] {
        ASSERT_EQ(editor->GetColumnByName("MNOZSTVIV2"), 1);
        EXPECT_TRUE(editor->IsEditable(1, 1));
        EXPECT_FALSE(editor->IsEditable(1, 2)) << "sugar has no second secondary unit";
        EXPECT_TRUE(editor->IsEditable(2, 2));
        EXPECT_FALSE(editor->IsEditable(2, 3));
    });
}

// ---- Saving ----

class DodObjEditorSaving : public DodObjEditorFixture {};

TEST_F(DodObjEditorSaving, ARefusedLineIsTheCurrentOneAndTheNextTryEmptiesTheStagedRows) {
    host_.connection.procedure("MELVARKEDITORDodObjInsertToTemp")
        .refusesCall(2, "Jednotka „karton“ nepatří k položce „Cukr“. Načtěte řádek znovu.");
    expectedErrors_ = {"Jednotka „karton“ nepatří k položce „Cukr“. Načtěte řádek znovu."};
    const auto editor = open();
    EXPECT_EQ(showAnd(*editor,
                      [&] {
                          type(*editor, "12", Qt::Key_Return, Qt::ControlModifier);
                          EXPECT_EQ(currentLine(*editor), "MNOZSTVIHL in row 2");
                          EXPECT_EQ(row(*editor, 1, {"SKLADPOL", "MNOZSTVIHL"}), "Mouka | 12");
                          EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObjTempUloz"), IsEmpty());
                          host_.connection.takeCalls();
                          press(*editor, "OkBtn");
                      }),
              c_ResultOk);
    EXPECT_EQ(host_.connection.calls().front(), "MELVARKEDITORResetTemp()");
    EXPECT_THAT(host_.connection.callsOf("MELVARKEDITORDodObjInsertToTemp"), SizeIs(3));
}

} // namespace
