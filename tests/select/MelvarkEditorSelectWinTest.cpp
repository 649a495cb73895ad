#include "select/MelvarkEditorSelectWin.h"

#include "tests/select/AskedScale.h"
#include "tests/support/RecordingHost.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <functional>
#include <gmock/gmock.h>
#include <vector>

namespace {

using std::chrono::local_days;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr TDateTime c_Midnight = local_days{std::chrono::year{2027} / 2 / 1};

/// The dialog of delivery note 7 of supplier 5 on a recording host whose order check answers with id 42.
class SelectBox : public testing::Test {
protected:
    SelectBox() {
        host.connection.procedure("MELVARKEDITORDodakCheckZdrojObjednavka")
            .inputs({"a_DODKIDMASTER", "a_CISLO", "a_DDOBID"})
            .returns({TResultTable{{"ID"}, {{std::int64_t{42}}}}});
        host.connection.procedure("MELVARKEDITORDodakCheckZdrojDodak")
            .inputs({"a_DODKIDMASTER", "a_DODAKCISLO", "a_DODKID"})
            .returns({TResultTable{{"ID"}, {{std::int64_t{43}}}}});
        host.connection.procedure("MELVARKEDITORDodObjCheckZdrojDodavky")
            .inputs({"a_DDOBIDMASTER", "a_JMENO", "a_DODVID"})
            .returns({TResultTable{{"ID"}, {{std::int64_t{44}}}}});
    }

    /// Shows the dialog modally, runs `use` once it has the focus, cancels it if that left it open; the modal result.
    int showAnd(TSelectBox& box, const std::function<void()>& use) {
        QTimer::singleShot(0, &box, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
            use();
            QTimer::singleShot(0, &box, [&] {
                leftOpen = box.isVisible() && box.ModalResult() == 0;
                if (leftOpen) {
                    box.Close();
                }
            });
        });
        return box.ShowModal();
    }

    static QLineEdit* edit(TSelectBox& box) { return box.findChild<QLineEdit*>(QStringLiteral("editSelect")); }
    static QLabel* label(TSelectBox& box, const char* name) {
        return box.findChild<QLabel*>(QString::fromLatin1(name));
    }
    static QCheckBox* option(TSelectBox& box, const char* name) {
        return box.findChild<QCheckBox*>(QString::fromLatin1(name));
    }
    /// The label of the transfer options with those that are shown, each with its state; "none" without them.
    static AnsiString shownOptions(TSelectBox& box) {
        AnsiString shown;
        for (const char* name : {"chbMnozstvi", "chbCeny"}) {
            if (const QCheckBox* const check = option(box, name); check->isVisible()) {
                shown +=
                    (shown.empty() ? " " : ", ") + check->text().toStdString() + (check->isChecked() ? " on" : " off");
            }
        }
        const QLabel* const title = label(box, "lblPrenest");
        return title->isVisible() ? title->text().toStdString() + shown : "none" + shown;
    }
    static void click(TSelectBox& box, const char* button) {
        QTest::mouseClick(box.findChild<QAbstractButton*>(QString::fromLatin1(button)), Qt::LeftButton);
    }

    RecordingHost host;
    TScopedHost scope{host};
    RecordingLibraryManager manager;
    bool leftOpen = false;
};

/// What one set-up shows and asks: its caption and label, the transfer options with their state, the list for document
/// 7 of warehouse 3 and supplier 5, and the check of row 11 picked from it.
struct SetUpCase {
    const char* name;
    std::function<void(TSelectBox&)> setUp;
    const char* texts;
    const char* options;
    const char* lookup;
    const char* procedure;
    std::vector<AnsiString> params;
};

const SetUpCase c_SetUps[] = {
    {"NoteFromOrder",
     [](TSelectBox& box) { box.DodakSelectFromObjednavka(7, 5); },
     "Výběr objednávky | Číslo objednávky:",
     "none",
     "Kordan3:DODOBJEDNAVKA.Normal CISLO _ID "
     "[V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, _SKLDID, _DODVID, 7, 5, _DODANO)=1]",
     "MELVARKEDITORDodakCheckZdrojObjednavka",
     {"a_DODKIDMASTER", "a_CISLO", "a_DDOBID"}},
    {"NoteFromNote",
     [](TSelectBox& box) { box.DodakSelectFromDodak(7, 5); },
     "Výběr dodacího listu | Číslo dodacího listu:",
     "Přenést: množství on, ceny on",
     "Kordan3:DODAK.Normal CISLO _ID [V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, 7, 5)=1]",
     "MELVARKEDITORDodakCheckZdrojDodak",
     {"a_DODKIDMASTER", "a_DODAKCISLO", "a_DODKID"}},
    {"OrderFromTemplate",
     [](TSelectBox& box) { box.DodObjSelectFromObjednavkaVzor(7, 3, 5); },
     "Výběr vzoru objednávky | Číslo vzoru objednávky:",
     "none",
     "Kordan3:DODOBJEDNAVKAVZOR.Normal CISLO _ID "
     "[V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, 7, 3, 5)=1]",
     "MELVARKEDITORDodObjCheckZdrojObjednavkaVzor",
     {"a_DDOBIDMASTER", "a_CISLO", "a_DDOBID"}},
    // The list asks the templates' function, the check the orders' procedure: on purpose.
    {"OrderFromOrder",
     [](TSelectBox& box) { box.DodObjSelectFromObjednavka(7, 3, 5); },
     "Výběr objednávky | Číslo objednávky:",
     "none",
     "Kordan3:DODOBJEDNAVKA.Normal CISLO _ID "
     "[V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, 7, 3, 5)=1]",
     "MELVARKEDITORDodObjCheckZdrojObjednavka",
     {"a_DDOBIDMASTER", "a_CISLO", "a_DDOBID"}},
    {"OrderFromNote",
     [](TSelectBox& box) { box.DodObjSelectFromDodak(7, 3, 5); },
     "Výběr dodacího listu | Číslo dodacího listu:",
     "none",
     "Kordan3:DODAK.Normal CISLO _ID [V_MELVARKEDITORDodObjCheckZdrojDodak(_ID, _DODVID, 7, 3, 5)=1]",
     "MELVARKEDITORDodObjCheckZdrojDodak",
     {"a_DDOBIDMASTER", "a_CISLO", "a_DODKID"}},
    {"OrderFromPriceList",
     [](TSelectBox& box) { box.DodObjSelectFromDodCenik(7, c_Midnight); },
     "Výběr dodavatele | Jméno dodavatele:",
     "none",
     "Kordan3:DODAVATEL.Normal JMENO _ID "
     "[V_MELVARKEDITORDodObjCheckZdrojDodCenik(_ID, 7, -1, -1, '1.2.2027 00:00:00')=1]",
     "MELVARKEDITORDodObjCheckZdrojDodCenik",
     {"a_DDOBIDMASTER", "a_JMENO", "a_DODVID"}},
    {"OrderFromDeliveries",
     [](TSelectBox& box) { box.DodObjSelectFromDodavky(7, "", c_Midnight); },
     "Výběr dodavatele | Jméno dodavatele:",
     "Přenést: množství off",
     "Kordan3:DODAVATEL.Normal JMENO _ID "
     "[V_MELVARKEDITORDodObjCheckZdrojDodavky(_ID, 7, -1, -1, '1.2.2027 00:00:00', "
     "V_GetGlobalParam('SKLAD','POCETMESICUDODAVEK'))=1]",
     "MELVARKEDITORDodObjCheckZdrojDodavky",
     {"a_DDOBIDMASTER", "a_JMENO", "a_DODVID"}},
};

TEST_F(SelectBox, EachSetUpShowsItsOwnTextsAndAsksItsOwnListAndItsOwnCheck) {
    // Each check answers with an id of its own, another than that of the picked row.
    std::int64_t checkedId = 100;
    for (const SetUpCase& row : c_SetUps) {
        SCOPED_TRACE(row.name);
        ++checkedId;
        RecordingLibraryManager lists;
        lists.lookupAnswers = {TLookupPick{"Vybraný", "11"}};
        host.connection.procedure(row.procedure).inputs(row.params).returns({TResultTable{{"ID"}, {{checkedId}}}});
        host.connection.takeCalls();
        TSelectBox box(nullptr, &lists);
        row.setUp(box);
        const int result = showAnd(box, [&] {
            EXPECT_EQ(box.Caption() + " | " + label(box, "lblSelect")->text().toStdString(), row.texts);
            EXPECT_EQ(shownOptions(box), row.options);
            QTest::keyClick(edit(box), Qt::Key_F5);
            EXPECT_EQ(box.GetID(), 11);
            QTest::keyClick(edit(box), Qt::Key_Return);
        });
        EXPECT_EQ(result, c_ResultOk);
        EXPECT_EQ(box.GetID(), checkedId);
        EXPECT_THAT(lists.lookups(), ElementsAre(row.lookup));
        EXPECT_THAT(host.connection.takeCalls(),
                    ElementsAre(AnsiString(row.procedure) + "(" + row.params[0] + "=7, " + row.params[1] +
                                "=\"Vybraný\", " + row.params[2] + "=11) open"));
    }
}

TEST_F(SelectBox, ATypedNumberIsResolvedByTheDatabase) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    const int result = showAnd(box, [&] {
        QTest::keyClicks(edit(box), QStringLiteral("OV1"));
        QTest::keyClick(edit(box), Qt::Key_Return);
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_EQ(box.GetID(), 42);
    EXPECT_THAT(host.connection.calls(),
                ElementsAre("MELVARKEDITORDodakCheckZdrojObjednavka(a_DODKIDMASTER=7, a_CISLO=\"OV1\", "
                            "a_DDOBID=null) open"));
}

TEST_F(SelectBox, APickedRowTravelsByItsId) {
    manager.lookupAnswers = {TLookupPick{"OV1", "11"}};
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    const int result = showAnd(box, [&] {
        QTest::keyClick(edit(box), Qt::Key_F5);
        EXPECT_EQ(edit(box)->text(), QStringLiteral("OV1"));
        EXPECT_EQ(box.GetID(), 11);
        click(box, "OkBtn");
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_THAT(manager.lookups(),
                ElementsAre("Kordan3:DODOBJEDNAVKA.Normal CISLO _ID "
                            "[V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, _SKLDID, _DODVID, 7, 5, _DODANO)=1]"));
    EXPECT_THAT(host.connection.calls(), ElementsAre("MELVARKEDITORDodakCheckZdrojObjednavka(a_DODKIDMASTER=7, "
                                                     "a_CISLO=\"OV1\", a_DDOBID=11) open"));
    EXPECT_EQ(box.GetID(), 42);
}

TEST_F(SelectBox, OneMoreCharacterAfterAPickLetsTheTextDecideAlone) {
    manager.lookupAnswers = {TLookupPick{"OV1", "11"}};
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    showAnd(box, [&] {
        click(box, "SelectSpeedButton");
        QTest::keyClicks(edit(box), QStringLiteral("2"));
        EXPECT_EQ(box.GetID(), -1);
        click(box, "OkBtn");
    });
    EXPECT_THAT(host.connection.calls(),
                ElementsAre("MELVARKEDITORDodakCheckZdrojObjednavka(a_DODKIDMASTER=7, a_CISLO=\"OV12\", "
                            "a_DDOBID=null) open"));
}

TEST_F(SelectBox, EscapeInTheEditCancelsWithoutACheck) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    const int result = showAnd(box, [&] { QTest::keyClick(edit(box), Qt::Key_Escape); });
    EXPECT_EQ(result, c_ResultCancel);
    EXPECT_FALSE(leftOpen);
    EXPECT_THAT(host.connection.calls(), IsEmpty());
    EXPECT_EQ(box.GetID(), -1);
}

TEST_F(SelectBox, AnEmptyEditIsCheckedAsAnEmptyTextAndNoId) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    showAnd(box, [&] { click(box, "OkBtn"); });
    EXPECT_THAT(
        host.connection.calls(),
        ElementsAre("MELVARKEDITORDodakCheckZdrojObjednavka(a_DODKIDMASTER=7, a_CISLO=\"\", a_DDOBID=null) open"));
}

TEST_F(SelectBox, ARefusedSourceKeepsTheDialogOpenWithItsTextAndTheFocusInTheEdit) {
    host.connection.procedure("MELVARKEDITORDodakCheckZdrojObjednavka").refusesCall(1, "Objednávka neexistuje.");
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    const int result = showAnd(box, [&] {
        QTest::keyClicks(edit(box), QStringLiteral("OV9"));
        click(box, "OkBtn");
        EXPECT_TRUE(edit(box)->hasFocus());
        EXPECT_EQ(edit(box)->text(), QStringLiteral("OV9"));
    });
    EXPECT_TRUE(leftOpen);
    EXPECT_EQ(result, c_ResultCancel);
    EXPECT_THAT(host.errors(), ElementsAre("Objednávka neexistuje."));
    EXPECT_EQ(box.GetID(), -1);
}

TEST_F(SelectBox, TheFocusIsInTheEditWhileTheSourceIsChecked) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromDodak(7, 5);
    bool hadFocus = false;
    host.connection.procedure("MELVARKEDITORDodakCheckZdrojDodak").answers([&](const TProcedureCall&) {
        hadFocus = edit(box)->hasFocus();
        return TCallResult{true, {TResultTable{{"ID"}, {{std::int64_t{43}}}}}, {}};
    });
    showAnd(box, [&] {
        option(box, "chbCeny")->setFocus();
        QTest::keyClick(option(box, "chbCeny"), Qt::Key_Return); // the default button, wherever the focus is
    });
    EXPECT_TRUE(hadFocus);
    EXPECT_EQ(box.GetID(), 43);
}

TEST_F(SelectBox, ARefusedPickStaysPickedUntilTheTextChanges) {
    host.connection.procedure("MELVARKEDITORDodakCheckZdrojObjednavka").refusesCall(1, "Objednávka je dodaná.");
    manager.lookupAnswers = {TLookupPick{"OV1", "11"}};
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    showAnd(box, [&] {
        QTest::keyClick(edit(box), Qt::Key_F5);
        click(box, "OkBtn");
        EXPECT_EQ(box.GetID(), 11);
        EXPECT_EQ(edit(box)->text(), QStringLiteral("OV1"));
        QTest::keyClick(edit(box), Qt::Key_Backspace);
        EXPECT_EQ(box.GetID(), -1);
    });
}

TEST_F(SelectBox, AnAnswerWithoutARowOrAnIdIsAnErrorInOneSentenceAndNeverDocumentZero) {
    const std::vector<TResultTable> answers{{{"ID"}, {}}, {{"ID"}, {{TDbValue()}}}};
    for (const TResultTable& answer : answers) {
        host.connection.procedure("MELVARKEDITORDodakCheckZdrojObjednavka").returns({answer});
        manager.lookupAnswers = {TLookupPick{"OV1", "11"}};
        TSelectBox box(nullptr, &manager);
        box.DodakSelectFromObjednavka(7, 5);
        EXPECT_EQ(showAnd(box,
                          [&] {
                              QTest::keyClick(edit(box), Qt::Key_F5);
                              click(box, "OkBtn");
                          }),
                  c_ResultCancel);
        EXPECT_TRUE(leftOpen);
        EXPECT_EQ(box.GetID(), 11) << "what was picked stays";
    }
    const AnsiString sentence = "Databáze zdroj nepotvrdila. Zadejte jiný zdroj.";
    EXPECT_THAT(host.errors(), ElementsAre(sentence, sentence));
}

TEST_F(SelectBox, ItHasItsPanelsByName) {
    TSelectBox box(nullptr, &manager);
    EXPECT_EQ(edit(box)->parentWidget()->objectName(), QStringLiteral("MainPanel"));
    EXPECT_EQ(box.findChild<QPushButton*>(QStringLiteral("OkBtn"))->parentWidget()->objectName(),
              QStringLiteral("ButtonPanel"));
}

TEST_F(SelectBox, TheCancelButtonCancelsWithoutACheck) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    EXPECT_EQ(showAnd(box, [&] { click(box, "CancelBtn"); }), c_ResultCancel);
    EXPECT_THAT(host.connection.calls(), IsEmpty());
}

TEST_F(SelectBox, ARefusedSourceCanBeCorrectedAndConfirmed) {
    host.connection.procedure("MELVARKEDITORDodakCheckZdrojObjednavka").refusesCall(1, "Objednávka neexistuje.");
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    const int result = showAnd(box, [&] {
        QTest::keyClicks(edit(box), QStringLiteral("OV"));
        QTest::keyClick(edit(box), Qt::Key_Return);
        QTest::keyClicks(edit(box), QStringLiteral("1"));
        QTest::keyClick(edit(box), Qt::Key_Return);
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_EQ(box.GetID(), 42);
}

TEST_F(SelectBox, ACancelledListChangesNothing) {
    manager.lookupAnswers = {TLookupPick{"OV1", "11"}, std::nullopt};
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    showAnd(box, [&] {
        QTest::keyClick(edit(box), Qt::Key_F5);
        QTest::keyClick(edit(box), Qt::Key_F5);
        EXPECT_EQ(box.GetID(), 11);
        EXPECT_EQ(edit(box)->text(), QStringLiteral("OV1"));
    });
}

TEST_F(SelectBox, APickedKeyThatIsNoNumberLeavesNoId) {
    manager.lookupAnswers = {TLookupPick{"OV1", "x"}};
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    showAnd(box, [&] {
        QTest::keyClick(edit(box), Qt::Key_F5);
        EXPECT_EQ(box.GetID(), -1);
        EXPECT_EQ(edit(box)->text(), QStringLiteral("OV1"));
    });
}

TEST_F(SelectBox, WithoutALibraryManagerTheListStaysShutAndTypingWorks) {
    TSelectBox box(nullptr, nullptr);
    box.DodakSelectFromObjednavka(7, 5);
    const int result = showAnd(box, [&] {
        QTest::keyClick(edit(box), Qt::Key_F5);
        click(box, "SelectSpeedButton");
        QTest::keyClicks(edit(box), QStringLiteral("OV1"));
        QTest::keyClick(edit(box), Qt::Key_Return);
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_EQ(box.GetID(), 42);
}

TEST_F(SelectBox, BeforeASetUpListAndOkAskNobody) {
    TSelectBox box(nullptr, &manager);
    const int result = showAnd(box, [&] {
        EXPECT_EQ(box.Caption(), "Výběr");
        EXPECT_EQ(edit(box)->text(), QString());
        QTest::keyClick(edit(box), Qt::Key_F5);
        click(box, "OkBtn");
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_THAT(manager.lookups(), IsEmpty());
    EXPECT_THAT(host.connection.calls(), IsEmpty());
    EXPECT_THAT(manager.localizedSections(), ElementsAre(R"(KORDAN30\MelvarkEditorSelectWin)"));
}

TEST_F(SelectBox, AnOrderAsSourceOffersNoTransferOptions) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    showAnd(box, [&] {
        EXPECT_EQ(box.Caption(), "Výběr objednávky");
        EXPECT_EQ(label(box, "lblSelect")->text(), QStringLiteral("Číslo objednávky:"));
        EXPECT_FALSE(label(box, "lblPrenest")->isVisible());
        EXPECT_FALSE(option(box, "chbMnozstvi")->isVisible());
        EXPECT_FALSE(option(box, "chbCeny")->isVisible());
    });
}

TEST_F(SelectBox, ADeliveryNoteAsSourceOffersBothOptionsChecked) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromDodak(7, 5);
    const int result = showAnd(box, [&] {
        EXPECT_TRUE(label(box, "lblPrenest")->isVisible());
        EXPECT_TRUE(option(box, "chbMnozstvi")->isVisible() && option(box, "chbMnozstvi")->isChecked());
        EXPECT_TRUE(option(box, "chbCeny")->isVisible() && option(box, "chbCeny")->isChecked());
        QTest::keyClick(option(box, "chbCeny"), Qt::Key_Space);
        click(box, "OkBtn");
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_EQ(box.GetID(), 43);
    EXPECT_TRUE(box.GetPrenesMnozstvi());
    EXPECT_FALSE(box.GetPrenesCeny());
}

TEST_F(SelectBox, DeliveriesOfADocumentWithASupplierOfferOnlyThatOne) {
    TSelectBox box(nullptr, &manager);
    box.DodObjSelectFromDodavky(7, "Mlékárna Olšany", c_Midnight);
    showAnd(box, [&] {
        EXPECT_EQ(edit(box)->text(), QStringLiteral("Mlékárna Olšany"));
        EXPECT_FALSE(edit(box)->isEnabled());
        EXPECT_FALSE(box.findChild<QToolButton*>(QStringLiteral("SelectSpeedButton"))->isEnabled());
        EXPECT_TRUE(option(box, "chbMnozstvi")->isVisible());
        EXPECT_FALSE(option(box, "chbMnozstvi")->isChecked());
        EXPECT_FALSE(option(box, "chbCeny")->isVisible());
        click(box, "OkBtn");
    });
    EXPECT_THAT(host.connection.calls(), ElementsAre("MELVARKEDITORDodObjCheckZdrojDodavky(a_DDOBIDMASTER=7, "
                                                     "a_JMENO=\"Mlékárna Olšany\", a_DODVID=null) open"));
}

TEST_F(SelectBox, WhereTheSupplierIsGivenTheFocusIsInTheOptionAndEnterConfirms) {
    TSelectBox box(nullptr, &manager);
    box.DodObjSelectFromDodavky(7, "Mlékárna Olšany", c_Midnight);
    const int result = showAnd(box, [&] {
        ASSERT_TRUE(option(box, "chbMnozstvi")->hasFocus());
        QTest::keyClick(option(box, "chbMnozstvi"), Qt::Key_Space);
        QTest::keyClick(option(box, "chbMnozstvi"), Qt::Key_Return);
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_EQ(box.GetID(), 44);
    EXPECT_TRUE(box.GetPrenesMnozstvi());
}

TEST_F(SelectBox, ItsHeightIsFixedAndItsWidthGrows) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromDodak(7, 5);
    showAnd(box, [&] {
        ASSERT_EQ(box.devicePixelRatioF(), askedScale());
        ASSERT_EQ(box.size(), QSize(400, 150));
        const int room = box.width() - edit(box)->width();
        box.resize(600, 300);
        EXPECT_TRUE(QTest::qWaitFor([&] { return box.size() == QSize(600, 150); }))
            << box.width() << "x" << box.height();
        EXPECT_TRUE(QTest::qWaitFor([&] { return edit(box)->width() == 600 - room; })) << edit(box)->width();
        box.resize(300, 100);
        EXPECT_TRUE(QTest::qWaitFor([&] { return box.size() == QSize(400, 150); }))
            << box.width() << "x" << box.height();
    });
}

TEST_F(SelectBox, ItStandsInTheMiddleOfTheScreenInBoldLetters) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromDodak(7, 5);
    box.move(3, 4);
    showAnd(box, [&] {
        const QRect screen = box.screen()->geometry();
        EXPECT_EQ(box.geometry().topLeft(),
                  screen.topLeft() + QPoint((screen.width() - 400) / 2, (screen.height() - 150) / 2));
        for (const QWidget* const one : box.findChildren<QWidget*>()) {
            EXPECT_TRUE(one->font().bold()) << one->objectName().toStdString();
        }
    });
}

TEST_F(SelectBox, ASenderWithTheTagOfNoLineOpensNoList) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(7, 5);
    QLineEdit stranger;
    stranger.setProperty("Tag", 2);
    box.editSelectChange(&stranger);
    box.SelectSpeedButtonClick(&stranger);
    EXPECT_THAT(manager.lookups(), IsEmpty());
}

TEST_F(SelectBox, TheListButtonSaysWhatItDoes) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromDodak(7, 5);
    const auto* button = box.findChild<QToolButton*>(QStringLiteral("SelectSpeedButton"));
    EXPECT_EQ(button->toolTip(), QStringLiteral("Vybrat ze seznamu (F5)"));
    EXPECT_EQ(button->accessibleName(), button->toolTip());
}

TEST_F(SelectBox, DeliveriesOfADocumentWithoutASupplierLetTheClerkPickOne) {
    manager.lookupAnswers = {TLookupPick{"Mlékárna Olšany", "3"}};
    TSelectBox box(nullptr, &manager);
    box.DodObjSelectFromDodavky(7, "", c_Midnight);
    showAnd(box, [&] {
        EXPECT_TRUE(edit(box)->isEnabled());
        QTest::keyClick(edit(box), Qt::Key_F5);
    });
    EXPECT_EQ(box.GetID(), 3);
    EXPECT_THAT(manager.lookups(), ElementsAre("Kordan3:DODAVATEL.Normal JMENO _ID "
                                               "[V_MELVARKEDITORDodObjCheckZdrojDodavky(_ID, 7, -1, -1, "
                                               "'1.2.2027 00:00:00', "
                                               "V_GetGlobalParam('SKLAD','POCETMESICUDODAVEK'))=1]"));
}

TEST_F(SelectBox, ImagesAreLoadedWhenItIsShown) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromDodak(7, 5);
    EXPECT_THAT(host.images(), IsEmpty());
    showAnd(box, [&] { EXPECT_THAT(host.images(), ElementsAre("ENGINE/RUKA", "ENGINE/OK", "ENGINE/CANCEL")); });
}

TEST_F(SelectBox, TheFocusIsInTheEditWhenItOpens) {
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromDodak(7, 5);
    showAnd(box, [&] { EXPECT_TRUE(edit(box)->hasFocus()); });
}

} // namespace
