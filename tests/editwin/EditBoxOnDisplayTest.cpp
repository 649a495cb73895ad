#include "host/LangStr.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

/// What only a display with a window manager shows: real focus, popups, grabs, drags and maximised windows. Events go
/// in at the window, as the platform delivers them.
class EditBoxOnDisplay : public EditBoxTest {
protected:
    QPoint inWindow(QWidget& control, const QPoint& place) { return control.mapTo(form.get(), place); }

    void press(const QPoint& place) { QTest::mousePress(form->windowHandle(), Qt::LeftButton, {}, place); }
    void release(const QPoint& place) { QTest::mouseRelease(form->windowHandle(), Qt::LeftButton, {}, place); }
    void moveTo(const QPoint& place) { QTest::mouseMove(form->windowHandle(), place); }

    void clickAt(const QPoint& place) {
        press(place);
        settle();
        release(place);
        settle();
    }

    void clickCell(int col, int row) { clickAt(inWindow(grid(), cellCentre(col, row))); }
    void clickButton(QWidget& button) { clickAt(inWindow(button, button.rect().center())); }

    void drag(const QPoint& from, const QPoint& to) {
        press(from);
        settle();
        const int steps = 8;
        for (int step = 1; step <= steps; ++step) {
            moveTo(from + (to - from) * step / steps);
            settle();
        }
        release(to);
        settle();
    }

    void typeText(const char* letters) {
        for (; *letters; ++letters) {
            QTest::keyClick(form->windowHandle(), *letters);
        }
    }

    bool becomesOpen(const AnsiString& cell) {
        return QTest::qWaitFor([&] { return openCellText() == cell; });
    }
};

TEST_F(EditBoxOnDisplay, AClickOpensTheEditorWithTheFocusInIt) {
    open();
    clickCell(c_NoteCol, 2);
    ASSERT_TRUE(becomesOpen("7,2"));
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
    typeText("x");
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("x"));
}

TEST_F(EditBoxOnDisplay, TheBoxOfARefusedValueComesAfterTheMouseButtonIsUp) {
    open();
    clickCell(c_CountCol, 1);
    ASSERT_TRUE(becomesOpen("2,1"));
    typeText("abc");
    const QPoint other = inWindow(grid(), cellCentre(c_NoteCol, 2));
    press(other);
    settle();
    EXPECT_THAT(manager.boxes(), IsEmpty()) << "a box now would swallow the release";
    release(other);
    settle();
    EXPECT_THAT(manager.boxes(), ElementsAre("16: Hodnota abc není celé číslo"));
    EXPECT_EQ(openCellText(), "2,1");
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
    EXPECT_EQ(grid().Col(), c_CountCol);
}

TEST_F(EditBoxOnDisplay, ARealMessageBoxGivesTheFocusBackToTheRefusedEditor) {
    form = std::make_unique<TestEditBox>(nullptr, testColumns(log));
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    settle();
    clickCell(c_CountCol, 1);
    ASSERT_TRUE(becomesOpen("2,1"));
    typeText("abc");
    int boxes = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            box && box->isActiveWindow()) {
            ++boxes;
            box->findChild<QPushButton*>(QStringLiteral("OkBtn"))->click();
        }
    });
    closer.start(20);
    QTest::keyClick(form->windowHandle(), Qt::Key_Tab);
    ASSERT_TRUE(QTest::qWaitFor([&] { return boxes == 1 && QApplication::focusWidget() == &sharedEdit(); }));
    QTest::qWait(0);
    settle();
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(openCellText(), "2,1");
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("abc"));
}

TEST_F(EditBoxOnDisplay, ClickingOkOnARefusedValueReportsOnceAndSavesNothing) {
    open();
    clickCell(c_CountCol, 1);
    ASSERT_TRUE(becomesOpen("2,1"));
    typeText("abc");
    clickButton(*form->OkBtn);
    EXPECT_EQ(manager.boxes().size(), 1U);
    EXPECT_EQ(saves, 0);
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(form->OkBtn->isDown());
}

TEST_F(EditBoxOnDisplay, CancelLeavesARefusedValueWithoutABox) {
    open();
    clickCell(c_CountCol, 1);
    ASSERT_TRUE(becomesOpen("2,1"));
    typeText("abc");
    clickButton(*form->CancelBtn);
    EXPECT_THAT(manager.boxes(), IsEmpty());
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->ModalResult(), c_ResultCancel);
}

TEST_F(EditBoxOnDisplay, APressOnCancelThatIsTakenBackIsLeavingTheCell) {
    open();
    clickCell(c_CountCol, 1);
    ASSERT_TRUE(becomesOpen("2,1"));
    typeText("abc");
    press(inWindow(*form->CancelBtn, form->CancelBtn->rect().center()));
    settle();
    moveTo(QPoint(form->width() - 10, form->height() - 10));
    release(QPoint(form->width() - 10, form->height() - 10));
    settle();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(manager.boxes().size(), 1U);
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
}

TEST_F(EditBoxOnDisplay, TheDropDownOfAListIsNotLeavingTheCell) {
    open();
    clickCell(c_WarehouseCol, 1);
    ASSERT_TRUE(becomesOpen("5,1"));
    clickAt(inWindow(combo(), combo().rect().center()));
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    settle();
    EXPECT_EQ(openCellText(), "5,1");
    EXPECT_THAT(log.lines, IsEmpty());
    for (const Qt::Key each : {Qt::Key_Down, Qt::Key_Return}) {
        QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), each);
    }
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
    settle();
    EXPECT_EQ(openCellText(), "5,1") << "choosing does not leave the cell yet";
    EXPECT_EQ(combo().currentText(), QStringLiteral("Vedlejší"));
    EXPECT_THAT(log.lines, IsEmpty());
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_THAT(log.lines, ElementsAre("5,1=Vedlejší"));
}

TEST_F(EditBoxOnDisplay, AltPSetsTheSwitchInTheEditAndNeverTogglesIt) {
    open();
    for (int press = 0; press < 2; ++press) {
        QTest::keyClick(form->windowHandle(), Qt::Key_P, Qt::AltModifier);
        settle();
        EXPECT_TRUE(form->GetPrepocetCen());
    }
    QTest::keyClick(form->windowHandle(), Qt::Key_C, Qt::AltModifier);
    settle();
    EXPECT_FALSE(form->GetPrepocetCen());
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("Šroub"));
}

TEST_F(EditBoxOnDisplay, TheMnemonicOfCancelWorksFromTheEdit) {
    open();
    typeText("x");
    QTest::keyClick(form->windowHandle(), Qt::Key_Z, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !form->isVisible(); }));
    EXPECT_EQ(stored(8, 0), "Šroub");
}

TEST_F(EditBoxOnDisplay, ARightClickOnAHeaderOpensTheMenuAndKeepsTheEditorOpen) {
    open();
    clickCell(c_CountCol, 1);
    ASSERT_TRUE(becomesOpen("2,1"));
    typeText("7");
    QTest::mouseClick(form->windowHandle(), Qt::RightButton, {}, inWindow(grid(), cellCentre(c_PriceCol, 0)));
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->ColumnsPopupMenu->isVisible(); }));
    settle();
    EXPECT_EQ(openCellText(), "2,1");
    EXPECT_THAT(log.lines, IsEmpty());
    const QRect item = form->ColumnsPopupMenu->actionGeometry(form->SkrytSloupec);
    QTest::mouseClick(form->ColumnsPopupMenu, Qt::LeftButton, {}, item.center());
    settle();
    EXPECT_EQ(stored(7, 0), "7");
    EXPECT_EQ(form->GetColumnByName("CENA"), 0);
    EXPECT_EQ(rowText(0), "Název|Počet|Datum|Sklad|Kód|Poznámka|Typ");
}

TEST_F(EditBoxOnDisplay, ARefusedValueIsReportedWhenTheMenusItemIsPickedAndNotWhenItIsClosed) {
    open();
    clickCell(c_CountCol, 1);
    ASSERT_TRUE(becomesOpen("2,1"));
    typeText("abc");
    for (const bool picks : {false, true}) {
        QTest::mouseClick(form->windowHandle(), Qt::RightButton, {}, inWindow(grid(), cellCentre(c_CountCol, 0)));
        ASSERT_TRUE(QTest::qWaitFor([&] { return form->ColumnsPopupMenu->isVisible(); }));
        settle();
        EXPECT_THAT(manager.boxes(), IsEmpty()) << "no box over an open menu";
        if (picks) {
            QTest::mouseClick(form->ColumnsPopupMenu, Qt::LeftButton, {},
                              form->ColumnsPopupMenu->actionGeometry(form->SkrytSloupec).center());
        } else {
            QTest::keyClick(form->ColumnsPopupMenu, Qt::Key_Escape);
        }
        settle();
        EXPECT_EQ(manager.boxes().size(), picks ? 1U : 0U);
        EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
        EXPECT_EQ(openCellText(), "2,1");
        EXPECT_EQ(form->GetColumnByName("POCET"), c_CountCol);
    }
}

TEST_F(EditBoxOnDisplay, ARightClickOnADataCellOpensNoMenu) {
    open();
    QTest::mouseClick(form->windowHandle(), Qt::RightButton, {}, inWindow(grid(), cellCentre(c_NoteCol, 2)));
    settle();
    EXPECT_FALSE(form->ColumnsPopupMenu->isVisible());
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(EditBoxOnDisplay, AHeaderIsDraggedToAnotherPlace) {
    open();
    clickCell(c_DateCol, 1);
    ASSERT_TRUE(becomesOpen("4,1"));
    drag(inWindow(grid(), cellCentre(c_DateCol, 0)), inWindow(grid(), cellCentre(c_NameCol, 0)) - QPoint(20, 0));
    EXPECT_EQ(columnOrder(), "[ID] DATUM NAZEV POCET CENA SKLAD KOD POZN TYP [SLEVA]");
    EXPECT_EQ(openCellText(), "1,1");
    EXPECT_EQ(sharedEdit().geometry().topLeft(), inWindow(grid(), grid().CellRect(1, 1).topLeft() + QPoint(2, 2)));
    EXPECT_EQ(rowText(1), "1.2.2027|Šroub|5|1234,5|Hlavní|A1|první|x");
}

TEST_F(EditBoxOnDisplay, AWidthDraggedAndReleasedBelowTheHeaderIsRemembered) {
    open();
    const QRect header = grid().CellRect(c_CountCol, 0);
    const QPoint edge = inWindow(grid(), QPoint(header.right() + 3, header.center().y() + 2));
    drag(edge, edge + QPoint(40, 90));
    EXPECT_NEAR(columnAt(c_CountCol).Width, 100, 1);
    EXPECT_EQ(columnAt(c_CountCol).Width, grid().ColWidths(c_CountCol));
}

TEST_F(EditBoxOnDisplay, AnotherWindowInFrontChecksNothing) {
    open();
    clickCell(c_CountCol, 1);
    ASSERT_TRUE(becomesOpen("2,1"));
    typeText("abc");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    settle();
    EXPECT_THAT(manager.boxes(), IsEmpty());
    EXPECT_EQ(openCellText(), "2,1");
    other.close();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    settle();
    EXPECT_EQ(QApplication::focusWidget(), &sharedEdit());
    EXPECT_THAT(manager.boxes(), IsEmpty());
}

TEST_F(EditBoxOnDisplay, ShownModallyItReturnsItsResult) {
    make();
    QTimer::singleShot(0, form.get(), [this] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        QTest::keyClick(form->windowHandle(), Qt::Key_Return, Qt::ControlModifier);
    });
    EXPECT_EQ(form->ShowModal(), c_ResultOk);
    EXPECT_EQ(saves, 1);
}

TEST_F(EditBoxOnDisplay, TheCloseBoxLeavesARefusedValueWithoutABox) {
    make();
    QTimer::singleShot(0, form.get(), [this] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        form->ShowEditor(c_CountCol, 1, true);
        typeText("abc");
        form->windowHandle()->close();
    });
    EXPECT_EQ(form->ShowModal(), c_ResultCancel);
    EXPECT_THAT(manager.boxes(), IsEmpty());
    EXPECT_EQ(stored(7, 0), "5");
}

TEST_F(EditBoxOnDisplay, AMaximisedWindowComesBackMaximisedOverItsNormalRectangle) {
    AnsiString document;
    host.connection.procedure("MELVARKEDITORNASTAVENIUlozNastaveniOkna").answers([&](const TProcedureCall& call) {
        document = std::get<AnsiString>(call.Params.at(1).Value);
        return TCallResult();
    });
    open();
    form->setGeometry(120, 130, 900, 500);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->geometry() == QRect(120, 130, 900, 500); }));
    form->setWindowState(Qt::WindowMaximized);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->isMaximized() && form->width() > 1500; }));
    form->close();
    EXPECT_THAT(document, testing::HasSubstr("<left>120</left><top>130</top><width>900</width><height>500</height>"
                                             "<maximized>1</maximized>"));

    host.connection.procedure("MELVARKEDITORNASTAVENINactiNastaveniOkna").returns({{{"DATA"}, {{document}}}});
    open();
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->isMaximized() && form->width() > 1500; }));
    EXPECT_EQ(form->normalGeometry(), QRect(120, 130, 900, 500));
    form->setWindowState(Qt::WindowNoState);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form->geometry() == QRect(120, 130, 900, 500); }))
        << form->x() << "," << form->y() << " " << form->width() << "x" << form->height();
}

TEST_F(EditBoxOnDisplay, AMaximisedWindowThatIsMinimisedStillStoresItsNormalRectangle) {
    open();
    form->setGeometry(120, 130, 900, 500);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->geometry() == QRect(120, 130, 900, 500); }));
    form->setWindowState(Qt::WindowMaximized);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->isMaximized() && form->width() > 1500; }));
    settle();
    form->showMinimized();
    // The form calls itself minimised at once; what its geometry says then counts once the window is off the screen.
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->isMinimized() && !form->windowHandle()->isExposed(); }));
    settle();
    // The window manager tells the two states one after the other.
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->isMaximized(); }))
        << "it is both: maximised again once it comes back";
    form->close();
    const auto stores = host.connection.callsOf("MELVARKEDITORNASTAVENIUlozNastaveniOkna");
    ASSERT_EQ(stores.size(), 1U);
    EXPECT_THAT(stores.back(), testing::HasSubstr("<left>120</left><top>130</top><width>900</width>"
                                                  "<height>500</height><maximized>0</maximized>"));
}

TEST_F(EditBoxOnDisplay, AWindowDoesNotCreepFromOneUseToTheNext) {
    AnsiString document;
    host.connection.procedure("MELVARKEDITORNASTAVENIUlozNastaveniOkna").answers([&](const TProcedureCall& call) {
        document = std::get<AnsiString>(call.Params.at(1).Value);
        return TCallResult();
    });
    open();
    form->setGeometry(120, 130, 900, 500);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->geometry() == QRect(120, 130, 900, 500); }));
    form->close();
    const AnsiString first = document;
    for (int use = 0; use < 50; ++use) {
        host.connection.procedure("MELVARKEDITORNASTAVENINactiNastaveniOkna").returns({{{"DATA"}, {{document}}}});
        open();
        form->close();
        EXPECT_EQ(document, first);
    }
}

TEST_F(EditBoxOnDisplay, TheEditorFollowsTheGridWhenTheWindowIsResized) {
    open();
    ASSERT_TRUE(becomesOpen("1,1"));
    form->SetTopButtonPanelVisibility(false);
    form->resize(1000, 600);
    settle();
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->width() == 1000; }));
    EXPECT_EQ(sharedEdit().pos(), inWindow(grid(), grid().CellRect(1, 1).topLeft() + QPoint(2, 2)));
}
