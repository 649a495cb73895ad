#include "select/MelvarkEditorMultiSelectWin.h"

#include "tests/select/AskedScale.h"
#include "tests/support/DodObjScripts.h"

#include <QFrame>
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

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* c_AllLevels = "MELVARKEDITORDodObjCheckSkupSkladPol(";

/// The dialog of order 7 on a recording host, whose groups are 1, 12 and 123.
class MultiSelectBox : public testing::Test {
protected:
    MultiSelectBox() {
        scriptDodObjEditor(host.connection);
        box.DodObjSelectSkupSkladPol(7);
    }
    void TearDown() override { EXPECT_EQ(host.errors(), expectedErrors); }

    /// Shows the dialog modally, runs `use` once it has the focus, cancels it if that left it open; the modal result.
    int showAnd(const std::function<void()>& use) {
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

    template <class Control>
    Control* control(const char* name, int level) {
        return box.findChild<Control*>(QString::fromLatin1(name) + QString::number(level));
    }
    QLineEdit* edit(int level) { return control<QLineEdit>("editSelect", level); }
    void clickOk() { QTest::mouseClick(box.findChild<QPushButton*>(QStringLiteral("OkBtn")), Qt::LeftButton); }
    /// The line that has the focus, from 1; 0 for none.
    int focusedLine() {
        for (int level = 1; level <= 3; ++level) {
            if (edit(level)->hasFocus()) {
                return level;
            }
        }
        return 0;
    }
    std::vector<int> ids() { return {box.GetID1(), box.GetID2(), box.GetID3()}; }

    RecordingHost host;
    TScopedHost scope{host};
    RecordingLibraryManager manager;
    TMultiSelectBox box{nullptr, &manager};
    std::vector<AnsiString> expectedErrors;
    bool leftOpen = false;
};

TEST_F(MultiSelectBox, SetUpItShowsThreeEmptyLinesWithTheirNames) {
    EXPECT_EQ(box.Caption(), "Výběr skupin skladových položek");
    for (int level = 1; level <= 3; ++level) {
        EXPECT_EQ(edit(level)->text(), QString());
        const auto* label = control<QLabel>("lblSelect", level);
        EXPECT_EQ(label->text(), QStringLiteral("Skupina skladových položek %1:").arg(level));
        EXPECT_EQ(label->buddy(), edit(level));
        EXPECT_EQ(edit(level)->accessibleName(), label->text());
    }
    EXPECT_THAT(ids(), ElementsAre(-1, -1, -1));
}

TEST_F(MultiSelectBox, ItsTitleHasTheKeyOfTheOrderTemplatesSelection) {
    host.translations[R"(KORDAN30\MELVARKEDITOR\ORDERPATTERNSELECTION|Výběr skupin skladových položek)"] = "Groups";
    box.DodObjSelectSkupSkladPol(7);
    EXPECT_EQ(box.Caption(), "Groups");
}

TEST_F(MultiSelectBox, OkAtOnceChecksEachEmptyLevelAndThenTheWhole) {
    EXPECT_EQ(showAnd([&] { clickOk(); }), c_ResultOk);
    EXPECT_THAT(host.connection.calls(),
                ElementsAre("MELVARKEDITORDodObjCheckSkupSkladPol1(a_DDOBIDMASTER=7, a_NAZEV=\"\", a_SSP1ID=null) open",
                            "MELVARKEDITORDodObjCheckSkupSkladPol2(a_DDOBIDMASTER=7, a_NAZEV=\"\", a_SSP2ID=null) open",
                            "MELVARKEDITORDodObjCheckSkupSkladPol3(a_DDOBIDMASTER=7, a_NAZEV=\"\", a_SSP3ID=null) open",
                            "MELVARKEDITORDodObjCheckSkupSkladPol(a_DDOBIDMASTER=7, a_SSP1ID=null, a_SSP2ID=null, "
                            "a_SSP3ID=null)"));
    EXPECT_THAT(ids(), ElementsAre(-1, -1, -1));
}

TEST_F(MultiSelectBox, OnlyTheSecondLevelPickedGoesAsNullIdNull) {
    manager.lookupAnswers = {TLookupPick{"Sypké", "12"}};
    EXPECT_EQ(showAnd([&] {
                  QTest::keyClick(edit(2), Qt::Key_F5);
                  EXPECT_EQ(edit(2)->text(), QStringLiteral("Sypké"));
                  QTest::keyClick(edit(2), Qt::Key_Return);
              }),
              c_ResultOk);
    EXPECT_THAT(manager.lookups(), ElementsAre("Kordan3:SKUPSPOL.SKUPSPOL2 NAZEV _ID []"));
    EXPECT_THAT(host.connection.calls(),
                ElementsAre("MELVARKEDITORDodObjCheckSkupSkladPol1(a_DDOBIDMASTER=7, a_NAZEV=\"\", a_SSP1ID=null) open",
                            "MELVARKEDITORDodObjCheckSkupSkladPol2(a_DDOBIDMASTER=7, a_NAZEV=\"Sypké\", a_SSP2ID=12) "
                            "open",
                            "MELVARKEDITORDodObjCheckSkupSkladPol3(a_DDOBIDMASTER=7, a_NAZEV=\"\", a_SSP3ID=null) open",
                            "MELVARKEDITORDodObjCheckSkupSkladPol(a_DDOBIDMASTER=7, a_SSP1ID=null, a_SSP2ID=12, "
                            "a_SSP3ID=null)"));
    EXPECT_THAT(ids(), ElementsAre(-1, 12, -1));
}

TEST_F(MultiSelectBox, TypedNamesGetTheirIdsFromTheDatabase) {
    EXPECT_EQ(showAnd([&] {
                  QTest::keyClicks(edit(1), QStringLiteral("potraviny"));
                  QTest::keyClicks(edit(3), QStringLiteral("zakladni"));
                  clickOk();
              }),
              c_ResultOk);
    EXPECT_THAT(ids(), ElementsAre(1, -1, 123));
    EXPECT_THAT(host.connection.callsOf(c_AllLevels),
                ElementsAre("MELVARKEDITORDodObjCheckSkupSkladPol(a_DDOBIDMASTER=7, a_SSP1ID=1, a_SSP2ID=null, "
                            "a_SSP3ID=123)"));
}

TEST_F(MultiSelectBox, EachLevelOpensItsOwnListByButtonAndByF5) {
    for (int level = 1; level <= 3; ++level) {
        manager.lookupAnswers.push_back(TLookupPick{"Skupina", std::to_string(level)});
        manager.lookupAnswers.push_back(std::nullopt);
    }
    showAnd([&] {
        for (int level = 1; level <= 3; ++level) {
            QTest::mouseClick(control<QToolButton>("SelectSpeedButton", level), Qt::LeftButton);
            EXPECT_EQ(edit(level)->text(), QStringLiteral("Skupina"));
            QTest::keyClick(edit(level), Qt::Key_F5); // a cancelled list changes nothing
        }
    });
    EXPECT_THAT(manager.lookups(),
                ElementsAre("Kordan3:SKUPSPOL.SKUPSPOL1 NAZEV _ID []", "Kordan3:SKUPSPOL.SKUPSPOL1 NAZEV _ID []",
                            "Kordan3:SKUPSPOL.SKUPSPOL2 NAZEV _ID []", "Kordan3:SKUPSPOL.SKUPSPOL2 NAZEV _ID []",
                            "Kordan3:SKUPSPOL.SKUPSPOL3 NAZEV _ID []", "Kordan3:SKUPSPOL.SKUPSPOL3 NAZEV _ID []"));
    EXPECT_THAT(ids(), ElementsAre(1, 2, 3));
}

TEST_F(MultiSelectBox, AChangedTextForgetsThePickOfItsLevelAlone) {
    manager.lookupAnswers = {TLookupPick{"Potraviny", "1"}, TLookupPick{"Sypké", "12"}, TLookupPick{"Základní", "123"}};
    showAnd([&] {
        for (int level = 1; level <= 3; ++level) {
            QTest::keyClick(edit(level), Qt::Key_F5);
        }
        QTest::keyClick(edit(2), Qt::Key_Backspace);
        EXPECT_THAT(ids(), ElementsAre(1, -1, 123));
    });
}

TEST_F(MultiSelectBox, APickedKeyThatIsNoNumberLeavesNoId) {
    manager.lookupAnswers = {TLookupPick{"Základní", "x"}};
    showAnd([&] {
        QTest::keyClick(edit(3), Qt::Key_F5);
        EXPECT_EQ(edit(3)->text(), QStringLiteral("Základní"));
        EXPECT_THAT(ids(), ElementsAre(-1, -1, -1));
    });
}

TEST_F(MultiSelectBox, APickedGroupThatTheDatabaseAnswersWithANullStaysPicked) {
    host.connection.procedure("MELVARKEDITORDodObjCheckSkupSkladPol2").answers([](const TProcedureCall&) {
        return TCallResult{true, {TResultTable{{"ID"}, {{TDbValue()}}}}, {}};
    });
    manager.lookupAnswers = {TLookupPick{"Sypké", "12"}};
    EXPECT_EQ(showAnd([&] {
                  QTest::keyClick(edit(2), Qt::Key_F5);
                  clickOk();
              }),
              c_ResultOk);
    EXPECT_THAT(ids(), ElementsAre(-1, 12, -1));
    EXPECT_THAT(host.connection.callsOf(c_AllLevels),
                ElementsAre("MELVARKEDITORDodObjCheckSkupSkladPol(a_DDOBIDMASTER=7, a_SSP1ID=null, a_SSP2ID=12, "
                            "a_SSP3ID=null)"));
}

TEST_F(MultiSelectBox, TheFocusStaysOnTheLineWhoseCheckFailed) {
    for (int level = 1; level <= 3; ++level) {
        SCOPED_TRACE(level);
        host.connection.takeCalls();
        const AnsiString procedure = "MELVARKEDITORDodObjCheckSkupSkladPol" + std::to_string(level);
        host.connection.dropProcedure(procedure);
        host.connection.procedure(procedure)
            .inputs({"a_DDOBIDMASTER", "a_NAZEV", "a_SSP" + std::to_string(level) + "ID"})
            .refusesCall(1, "Skupina neexistuje.");
        expectedErrors.emplace_back("Skupina neexistuje.");
        showAnd([&] {
            box.findChild<QPushButton*>(QStringLiteral("CancelBtn"))->setFocus();
            QTest::keyClicks(edit(level), QStringLiteral("nic"));
            clickOk();
            EXPECT_EQ(focusedLine(), level);
            EXPECT_EQ(edit(level)->text(), QStringLiteral("nic"));
        });
        EXPECT_TRUE(leftOpen);
        EXPECT_EQ(host.connection.calls().size(), static_cast<std::size_t>(level)) << "the sequence stops there";
        scriptDodObjEditor(host.connection);
    }
}

TEST_F(MultiSelectBox, ARefusedCombinationPutsTheFocusOnTheFirstLineAndCanBeCorrected) {
    host.connection.procedure("MELVARKEDITORDodObjCheckSkupSkladPol").refusesCall(1, "Skupiny k sobě nepatří.");
    expectedErrors = {"Skupiny k sobě nepatří."};
    const int result = showAnd([&] {
        QTest::keyClicks(edit(3), QStringLiteral("zakladni"));
        QTest::keyClick(edit(3), Qt::Key_Return);
        EXPECT_EQ(focusedLine(), 1);
        EXPECT_EQ(edit(3)->text(), QStringLiteral("zakladni"));
        EXPECT_EQ(box.ModalResult(), 0);
        QTest::keyClick(edit(1), Qt::Key_Return);
    });
    EXPECT_EQ(result, c_ResultOk);
    EXPECT_THAT(ids(), ElementsAre(-1, -1, 123));
}

TEST_F(MultiSelectBox, ACheckThatReportsFailureIsNoConsent) {
    const std::pair<const char*, int> checks[] = {{"MELVARKEDITORDodObjCheckSkupSkladPol2", 2},
                                                  {"MELVARKEDITORDodObjCheckSkupSkladPol", 1}};
    for (const auto& [check, line] : checks) {
        host.connection.procedure(check).failsCall(1);
        expectedErrors.emplace_back("Databáze zdroj nepotvrdila. Zadejte jiný zdroj.");
        showAnd([&, focused = line] {
            QTest::keyClick(edit(1), Qt::Key_Return);
            EXPECT_EQ(focusedLine(), focused);
        });
        EXPECT_TRUE(leftOpen) << check;
    }
}

TEST_F(MultiSelectBox, EachLineHasTheFocusWhileItIsChecked) {
    std::vector<int> focused;
    for (int level = 1; level <= 3; ++level) {
        host.connection.procedure("MELVARKEDITORDodObjCheckSkupSkladPol" + std::to_string(level))
            .answers([&](const TProcedureCall&) {
                focused.push_back(focusedLine());
                return TCallResult{true, {TResultTable{{"ID"}, {{TDbValue()}}}}, {}};
            });
    }
    host.connection.procedure("MELVARKEDITORDodObjCheckSkupSkladPol").answers([&](const TProcedureCall&) {
        focused.push_back(focusedLine());
        return TCallResult{true, {}, {}};
    });
    showAnd([&] { clickOk(); });
    EXPECT_THAT(focused, ElementsAre(1, 2, 3, 1));
}

TEST_F(MultiSelectBox, EscapeInAnyLineCancelsWithoutACheck) {
    for (int level = 1; level <= 3; ++level) {
        EXPECT_EQ(showAnd([&] { QTest::keyClick(edit(level), Qt::Key_Escape); }), c_ResultCancel);
        EXPECT_FALSE(leftOpen) << level;
    }
    EXPECT_THAT(host.connection.calls(), IsEmpty());
}

TEST_F(MultiSelectBox, TheCancelButtonCancelsWithoutACheck) {
    EXPECT_EQ(
        showAnd([&] { QTest::mouseClick(box.findChild<QPushButton*>(QStringLiteral("CancelBtn")), Qt::LeftButton); }),
        c_ResultCancel);
    EXPECT_THAT(host.connection.calls(), IsEmpty());
}

TEST_F(MultiSelectBox, TabGoesFromLineToLineAndThenToTheButtons) {
    showAnd([&] {
        EXPECT_EQ(focusedLine(), 1);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(focusedLine(), 2);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(focusedLine(), 3);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("OkBtn"));
    });
}

TEST_F(MultiSelectBox, WithoutALibraryManagerTheListsStayShut) {
    TMultiSelectBox alone(nullptr, nullptr);
    alone.DodObjSelectSkupSkladPol(7);
    alone.SelectSpeedButtonClick(alone.findChild<QToolButton*>(QStringLiteral("SelectSpeedButton2")));
    EXPECT_EQ(alone.GetID2(), -1);
}

TEST_F(MultiSelectBox, BeforeASetUpListsAndOkAskNobody) {
    TMultiSelectBox fresh(nullptr, &manager);
    EXPECT_EQ(fresh.Caption(), "Multi výběr");
    fresh.SelectSpeedButtonClick(fresh.findChild<QToolButton*>(QStringLiteral("SelectSpeedButton1")));
    fresh.OkBtnClick(nullptr);
    EXPECT_EQ(fresh.ModalResult(), c_ResultOk);
    EXPECT_THAT(manager.lookups(), IsEmpty());
    EXPECT_THAT(host.connection.calls(), IsEmpty());
    EXPECT_EQ(manager.localizedSections().back(), R"(KORDAN30\MelvarkEditorMultiSelectWin)");
}

TEST_F(MultiSelectBox, AnotherSenderThanALineOfItsOwnChangesNothing) {
    manager.lookupAnswers = {TLookupPick{"Potraviny", "1"}};
    box.SelectSpeedButtonClick(edit(1));
    box.editSelectChange(control<QToolButton>("SelectSpeedButton", 1));
    box.editSelectChange(&box);
    box.editSelectChange(nullptr);
    box.SelectSpeedButtonClick(nullptr);
    QLineEdit stranger;
    for (const int tag : {-1, 0, 4}) { // no line's
        stranger.setProperty("Tag", tag);
        box.editSelectChange(&stranger);
        box.SelectSpeedButtonClick(&stranger);
    }
    EXPECT_THAT(ids(), ElementsAre(1, -1, -1));
    EXPECT_THAT(manager.lookups(), SizeIs(1));
}

TEST_F(MultiSelectBox, ItStandsInTheMiddleOfTheScreenInBoldLetters) {
    box.move(3, 4);
    showAnd([&] {
        const QRect screen = box.screen()->geometry();
        EXPECT_EQ(box.geometry().topLeft(),
                  screen.topLeft() + QPoint((screen.width() - box.width()) / 2, (screen.height() - 170) / 2));
        for (const QWidget* const one : box.findChildren<QWidget*>()) {
            EXPECT_TRUE(one->font().bold()) << one->objectName().toStdString();
        }
    });
}

TEST_F(MultiSelectBox, ImagesAreLoadedWhenItIsShown) {
    EXPECT_THAT(host.images(), IsEmpty());
    showAnd([&] {
        EXPECT_THAT(host.images(),
                    ElementsAre("ENGINE/RUKA", "ENGINE/RUKA", "ENGINE/RUKA", "ENGINE/OK", "ENGINE/CANCEL"));
        for (int level = 1; level <= 3; ++level) {
            EXPECT_FALSE(control<QToolButton>("SelectSpeedButton", level)->icon().isNull());
        }
    });
}

TEST_F(MultiSelectBox, ItsLinesStandBelowOneAnotherInAFixedHeightAndGrowInWidth) {
    showAnd([&] {
        ASSERT_EQ(box.devicePixelRatioF(), askedScale());
        EXPECT_EQ(box.minimumWidth(), 400);
        EXPECT_EQ(box.minimumHeight(), 170);
        EXPECT_EQ(box.maximumHeight(), 170);
        EXPECT_NE(box.findChild<QFrame*>(QStringLiteral("MainPanel")), nullptr);
        EXPECT_NE(box.findChild<QFrame*>(QStringLiteral("ButtonPanel")), nullptr);
        const auto bottom = [&](const QWidget* of) { return of->mapTo(&box, of->rect().bottomLeft()).y(); };
        const auto top = [&](const QWidget* of) { return of->mapTo(&box, QPoint()).y(); };
        int above = -1;
        for (int level = 1; level <= 3; ++level) {
            EXPECT_GT(top(control<QLabel>("lblSelect", level)), above) << level;
            EXPECT_GT(top(edit(level)), bottom(control<QLabel>("lblSelect", level))) << level;
            above = bottom(edit(level));
        }
        EXPECT_LT(above, box.height());
        const int room = box.width() - edit(3)->width();
        box.resize(box.width() + 200, box.height());
        EXPECT_TRUE(QTest::qWaitFor([&] { return box.width() - edit(3)->width() == room; }));
    });
}

// Runs at 100 % and, as a test of its own, at 200 %.
TEST_F(MultiSelectBox, EveryControlHasTheRoomThatItsTextNeedsAndNoneLiesOverAnother) {
    showAnd([&] {
        ASSERT_EQ(box.devicePixelRatioF(), askedScale());
        ASSERT_EQ(box.height(), 170);
        std::vector<QWidget*> controls{box.findChild<QPushButton*>(QStringLiteral("OkBtn")),
                                       box.findChild<QPushButton*>(QStringLiteral("CancelBtn"))};
        for (int level = 1; level <= 3; ++level) {
            controls.insert(controls.end(), {control<QLabel>("lblSelect", level), edit(level),
                                             control<QToolButton>("SelectSpeedButton", level)});
        }
        const auto onForm = [&](const QWidget* of) { return QRect(of->mapTo(&box, QPoint()), of->size()); };
        for (const QWidget* const one : controls) {
            SCOPED_TRACE(one->objectName().toStdString());
            EXPECT_TRUE(one->isVisible());
            EXPECT_TRUE(box.rect().contains(onForm(one)));
            EXPECT_EQ(one->visibleRegion().boundingRect(), one->rect()) << "nothing of it is cut off";
            const QSize needed = one->minimumSizeHint();
            EXPECT_GE(one->width(), needed.width());
            EXPECT_GE(one->height(), needed.height());
            for (const QWidget* const other : controls) {
                EXPECT_TRUE(one == other || !onForm(one).intersects(onForm(other)))
                    << other->objectName().toStdString();
            }
        }
        for (int level = 1; level <= 3; ++level) {
            EXPECT_GE(edit(level)->height(), edit(level)->fontMetrics().height()) << "a letter's whole height";
        }
    });
}

} // namespace
