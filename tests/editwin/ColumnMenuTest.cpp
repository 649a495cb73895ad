#include "dialogs/MelvarkEditorColumnPropWin.h"
#include "host/Exceptions.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"
#include "tests/widgets/ModalDriver.h"

#include <QAction>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>

using testing::ElementsAre;

class ColumnMenu : public EditBoxTest {
protected:
    /// Captions of the submenu's items, in order.
    std::vector<AnsiString> hiddenItems() {
        std::vector<AnsiString> captions;
        for (const QAction* const item : form->SkryteSloupce->actions()) {
            captions.push_back(item->text().toStdString());
        }
        return captions;
    }

    QAction* hiddenItem(const QString& name) {
        auto* const item = form->findChild<QAction*>(QStringLiteral("HiddenColumn") + name);
        EXPECT_NE(item, nullptr);
        return item;
    }

    void hide(int col) {
        openColumnMenu(col);
        pick(form->SkrytSloupec);
    }

    /// Enabled and checked states of the three editability items: "A" automatic, "M" manual, "N" none; small when
    /// disabled, in brackets when checked.
    AnsiString editabilityItems() {
        const auto state = [](const QAction* item, const char* enabled, const char* disabled) {
            const AnsiString letter = item->isEnabled() ? enabled : disabled;
            return item->isChecked() ? "(" + letter + ")" : letter;
        };
        return state(form->EditovatelnySloupecAutomaticky, "A", "a") +
               state(form->EditovatelnySloupecVyberem, "M", "m") + state(form->NeeditovatelnySloupec, "N", "n");
    }
};

TEST_F(ColumnMenu, ItsItemsStandInOrder) {
    make();
    std::vector<AnsiString> captions;
    for (const QAction* const item : form->ColumnsPopupMenu->actions()) {
        captions.push_back(item->isSeparator() ? "-" : item->text().toStdString());
    }
    EXPECT_THAT(captions, ElementsAre("Nadpis a vlastnosti sloupce", "Skrýt sloupec", "-", "Editovatelný - automaticky",
                                      "Editovatelný - výběrem", "Needitovatelný", "-", "Skryté sloupce"));
}

TEST_F(ColumnMenu, ARightClickOnADataCellOpensNoMenu) {
    open();
    const QPoint place = cellCentre(c_NoteCol, 2);
    QContextMenuEvent event(QContextMenuEvent::Mouse, grid().viewport()->mapFrom(&grid(), place),
                            grid().mapToGlobal(place));
    QCoreApplication::sendEvent(grid().viewport(), &event);
    settle();
    EXPECT_FALSE(form->ColumnsPopupMenu->isVisible());
}

TEST_F(ColumnMenu, ARightClickOnTheIndicatorHeaderEnablesOnlyTheHiddenColumns) {
    open();
    openColumnMenu(0);
    ASSERT_TRUE(form->ColumnsPopupMenu->isVisible());
    EXPECT_FALSE(form->SkrytSloupec->isEnabled());
    EXPECT_FALSE(form->NadpisVlastnostiSloupce->isEnabled());
    EXPECT_EQ(editabilityItems(), "amn");
    EXPECT_TRUE(form->SkryteSloupce->menuAction()->isEnabled());
    form->ColumnsPopupMenu->close();
}

TEST_F(ColumnMenu, ARightClickRightOfTheLastHeaderOpensTheMenuOfNoColumn) {
    open();
    openColumnMenu(c_PriceCol); // another column was meant before
    form->ColumnsPopupMenu->close();
    QWidget* const header = grid().horizontalHeader()->viewport();
    const QPoint place(header->width() - 10, 8);
    ASSERT_EQ(grid().horizontalHeader()->logicalIndexAt(place), -1);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, header->mapToGlobal(place));
    QCoreApplication::sendEvent(header, &event);
    ASSERT_TRUE(form->ColumnsPopupMenu->isVisible());
    EXPECT_FALSE(form->SkrytSloupec->isEnabled());
    EXPECT_EQ(editabilityItems(), "amn");
    EXPECT_TRUE(form->SkryteSloupce->menuAction()->isEnabled());
    form->ColumnsPopupMenu->close();
}

TEST_F(ColumnMenu, ShowsTheEditabilityOfTheColumnUnderTheMouse) {
    open();
    const std::pair<int, const char*> cases[] = {{c_CountCol, "(A)MN"},
                                                 {c_NoteCol, "A(M)N"},
                                                 {c_KindCol, "AM(N)"},
                                                 {c_CodeCol, "amn"}}; // read-only: cannot be changed
    for (const auto& [col, expected] : cases) {
        openColumnMenu(col);
        EXPECT_EQ(editabilityItems(), expected) << col;
        EXPECT_TRUE(form->SkrytSloupec->isEnabled());
        EXPECT_TRUE(form->NadpisVlastnostiSloupce->isEnabled());
        form->ColumnsPopupMenu->close();
    }
}

TEST_F(ColumnMenu, OpensThePropertiesOfTheColumnUnderTheMouse) {
    open();
    openColumnMenu(c_DateCol);
    const ModalDriver driver(QStringLiteral("ColumnPropertyBox"), [](QWidget& window) {
        auto& box = dynamic_cast<TColumnPropertyBox&>(window);
        EXPECT_EQ(box.GetColumnCaption(), "Datum");
        EXPECT_EQ(box.GetColumnHint(), "Den dodání");
        EXPECT_EQ(box.GetColumnAlign(), caLeft);
        box.SetColumnCaption("Kdy & jak");
        box.SetColumnHint("Nová");
        box.SetColumnAlign(caCenter);
        box.SetModalResult(c_ResultOk);
    });
    pick(form->NadpisVlastnostiSloupce);
    EXPECT_EQ(rowText(0), "Název|Počet|Cena|Kdy & jak|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(columnAt(c_DateCol).Caption, "Kdy & jak");
    EXPECT_EQ(columnAt(c_DateCol).Hint, "Nová");
    EXPECT_EQ(columnAt(c_DateCol).Align, caCenter);
    EXPECT_EQ(form->StringGridDrawCell(c_DateCol, 1).Align, Qt::AlignHCenter);
    EXPECT_EQ(columnAt(c_PriceCol).Caption, "Cena");
}

TEST_F(ColumnMenu, CanceledPropertiesChangeNothing) {
    open();
    openColumnMenu(c_DateCol);
    const ModalDriver driver(QStringLiteral("ColumnPropertyBox"), [](QWidget& window) {
        auto& box = dynamic_cast<TColumnPropertyBox&>(window);
        box.SetColumnCaption("x");
        box.SetColumnAlign(caRight);
        box.Close();
    });
    pick(form->NadpisVlastnostiSloupce);
    EXPECT_EQ(rowText(0), "Název|Počet|Cena|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(columnAt(c_DateCol).Align, caLeft);
}

TEST_F(ColumnMenu, ThePropertiesLeaveAnOpenEditorWithItsText) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("abc"));
    openColumnMenu(c_CountCol);
    const ModalDriver driver(QStringLiteral("ColumnPropertyBox"), [](QWidget& window) {
        auto& box = dynamic_cast<TColumnPropertyBox&>(window);
        box.SetColumnCaption("Kusů");
        box.SetModalResult(c_ResultOk);
    });
    pick(form->NadpisVlastnostiSloupce);
    EXPECT_EQ(columnAt(c_CountCol).Caption, "Kusů");
    EXPECT_EQ(openCellText(), "2,2");
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("abc"));
    EXPECT_THAT(manager.boxes(), testing::IsEmpty()) << "nothing was left";
}

TEST_F(ColumnMenu, AHiddenColumnKeepsTheCaptionThatItGot) {
    open();
    openColumnMenu(c_DateCol);
    {
        const ModalDriver driver(QStringLiteral("ColumnPropertyBox"), [](QWidget& window) {
            auto& box = dynamic_cast<TColumnPropertyBox&>(window);
            box.SetColumnCaption("Kdy");
            box.SetModalResult(c_ResultOk);
        });
        pick(form->NadpisVlastnostiSloupce);
    }
    hide(c_DateCol);
    EXPECT_THAT(hiddenItems(), ElementsAre("Kdy", "Sleva"));
    pick(hiddenItem(QStringLiteral("DATUM")));
    EXPECT_EQ(rowText(0), "Název|Počet|Cena|Kdy|Sklad|Kód|Poznámka|Typ");
}

TEST_F(ColumnMenu, ChangesEditability) {
    open();
    openColumnMenu(c_KindCol);
    pick(form->EditovatelnySloupecAutomaticky);
    EXPECT_EQ(columnAt(c_KindCol).Editable, eAuto);
    openColumnMenu(c_KindCol);
    EXPECT_EQ(editabilityItems(), "(A)MN");
    pick(form->EditovatelnySloupecVyberem);
    EXPECT_EQ(columnAt(c_KindCol).Editable, eManual);
    openColumnMenu(c_KindCol);
    pick(form->NeeditovatelnySloupec);
    EXPECT_EQ(columnAt(c_KindCol).Editable, eNone);
}

TEST_F(ColumnMenu, ANotEditableColumnKeepsTheCursorOnTheEditedCell) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("3"));
    openColumnMenu(c_CountCol);
    pick(form->NeeditovatelnySloupec);
    EXPECT_EQ(openCellText(), "none");
    EXPECT_EQ(stored(7, 1), "3");
    EXPECT_EQ(grid().Col(), c_CountCol);
    EXPECT_EQ(grid().Row(), 2);
    EXPECT_EQ(columnAt(c_CountCol).Editable, eNone);
}

TEST_F(ColumnMenu, ANotEditableColumnIsThatOfTheListWhichTheCommitLeft) {
    open();
    log.answer = [&] {
        form->LoadColumnsSettingsFromXml("<settings><columns/></settings>"); // a list anew
        return true;
    };
    openCell(c_CountCol, 2);
    type(QStringLiteral("3"));
    openColumnMenu(c_CountCol);
    pick(form->NeeditovatelnySloupec);
    EXPECT_THAT(log.lines, ElementsAre("2,2=3"));
    EXPECT_EQ(columnAt(c_CountCol).Editable, eNone);
}

TEST_F(ColumnMenu, ARefusedValueLeavesItsColumnEditable) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("x"));
    openColumnMenu(c_CountCol);
    pick(form->NeeditovatelnySloupec);
    EXPECT_THAT(manager.boxes(), ElementsAre("16: Hodnota x není celé číslo"));
    EXPECT_EQ(openCellText(), "2,2");
    EXPECT_EQ(columnAt(c_CountCol).Editable, eAuto);
    EXPECT_EQ(editabilityItems(), "(A)MN") << "the mark is taken back, too";
}

TEST_F(ColumnMenu, AValueWhoseCallbackFailsLeavesItsColumnEditableAndTheMarkWhereItWas) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("42"));
    log.answer = []() -> bool { throw EDatabaseError("spojení ztraceno"); };
    openColumnMenu(c_CountCol);
    pick(form->NeeditovatelnySloupec);
    EXPECT_THAT(host.errors(), ElementsAre("spojení ztraceno"));
    EXPECT_EQ(columnAt(c_CountCol).Editable, eAuto);
    EXPECT_EQ(editabilityItems(), "(A)MN");
}

TEST_F(ColumnMenu, AnEditedColumnThatStaysEditableKeepsItsOpenEditor) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("abc"));
    const std::pair<QAction*, TEditable> items[] = {{form->EditovatelnySloupecVyberem, eManual},
                                                    {form->EditovatelnySloupecAutomaticky, eAuto}};
    for (const auto& [item, editable] : items) {
        openColumnMenu(c_CountCol);
        pick(item);
        EXPECT_EQ(columnAt(c_CountCol).Editable, editable);
        EXPECT_EQ(openCellText(), "2,2");
        EXPECT_EQ(sharedEdit().text(), QStringLiteral("abc"));
        EXPECT_THAT(manager.boxes(), testing::IsEmpty());
    }
    EXPECT_EQ(stored(7, 1), "6");
}

TEST_F(ColumnMenu, AnotherColumnsEditabilityLeavesTheOpenEditorAlone) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("3"));
    openColumnMenu(c_PriceCol);
    pick(form->NeeditovatelnySloupec);
    EXPECT_EQ(openCellText(), "2,2");
    EXPECT_EQ(stored(7, 1), "6");
}

TEST_F(ColumnMenu, HidingShiftsTheColumnsToTheRight) {
    open();
    ASSERT_EQ(rowText(0), "Název|Počet|Cena|Datum|Sklad|Kód|Poznámka|Typ");
    hide(c_CountCol);
    EXPECT_EQ(rowText(0), "Název|Cena|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(rowText(1), "Šroub|1234,5|1.2.2027|Hlavní|A1|první|x");
    EXPECT_EQ(grid().ColWidths(2), 80);
    EXPECT_EQ(columnOrder(), "[ID] NAZEV [POCET] CENA DATUM SKLAD KOD POZN TYP [SLEVA]");
    EXPECT_EQ(form->GetColumnByName("POCET"), 0);
    EXPECT_THAT(hiddenItems(), ElementsAre("Počet", "Sleva"));
}

TEST_F(ColumnMenu, HiddenColumnsFollowTheOrderOfTheColumns) {
    open();
    hide(c_KindCol);
    hide(c_PriceCol);
    hide(c_CountCol);
    EXPECT_THAT(hiddenItems(), ElementsAre("Počet", "Cena", "Typ", "Sleva"));
}

TEST_F(ColumnMenu, AHiddenColumnComesBackInItsPlaceWithItsData) {
    open();
    const AnsiString header = rowText(0);
    const AnsiString line = rowText(1);
    hide(c_PriceCol);
    hide(c_CountCol);
    pick(hiddenItem(QStringLiteral("CENA")));
    EXPECT_EQ(rowText(0), "Název|Cena|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(grid().ColWidths(2), 80);
    pick(hiddenItem(QStringLiteral("POCET")));
    EXPECT_EQ(rowText(0), header) << "the key column before them is not counted";
    EXPECT_EQ(rowText(1), line);
    EXPECT_THAT(hiddenItems(), ElementsAre("Sleva"));
}

TEST_F(ColumnMenu, ValuesTypedWhileAColumnWasHiddenAreThereWhenItComesBack) {
    open();
    hide(c_CountCol);
    form->DataGrid().SetCells(7, 1, "99");
    pick(hiddenItem(QStringLiteral("POCET")));
    EXPECT_EQ(grid().Cells(c_CountCol, 2), "99");
}

TEST_F(ColumnMenu, NoHiddenColumnComesBackPastARefusedValue) {
    open();
    openCell(c_CountCol, 2);
    type(QStringLiteral("abc"));
    pick(hiddenItem(QStringLiteral("SLEVA")));
    EXPECT_EQ(form->GetColumnByName("SLEVA"), 0);
    EXPECT_THAT(hiddenItems(), ElementsAre("Sleva"));
    EXPECT_EQ(manager.boxes().size(), 1U);
    EXPECT_EQ(openCellText(), "2,2");
}

TEST_F(ColumnMenu, AnItemThatNoColumnOwnsDoesNothing) {
    open();
    const AnsiString header = rowText(0);
    form->LoadColumnsSettingsFromXml("<settings/>"); // new columns that are not laid out: the items are the old ones'
    pick(hiddenItem(QStringLiteral("SLEVA")));
    EXPECT_EQ(rowText(0), header);
    EXPECT_THAT(hiddenItems(), ElementsAre("Sleva"));
    form->ShowGridColumn(nullptr);
    EXPECT_EQ(rowText(0), header);
}

TEST_F(ColumnMenu, TheSubmenuIsDisabledWhileNothingIsHidden) {
    open();
    pick(hiddenItem(QStringLiteral("SLEVA")));
    EXPECT_FALSE(form->SkryteSloupce->menuAction()->isEnabled());
    EXPECT_EQ(rowText(1), "Šroub|5|1234,5|1.2.2027|Hlavní|A1|první|x|10");
    hide(9);
    EXPECT_TRUE(form->SkryteSloupce->menuAction()->isEnabled());
}

TEST_F(ColumnMenu, HidingEveryColumnLeavesTheIndicatorAlone) {
    open();
    for (int count = grid().ColCount() - 1; count > 0; --count) {
        hide(1);
    }
    ASSERT_EQ(grid().ColCount(), 1);
    EXPECT_EQ(openCellText(), "none");
    EXPECT_THAT(hiddenItems(),
                ElementsAre("Název", "Počet", "Cena", "Datum", "Sklad", "Kód", "Poznámka", "Typ", "Sleva"));
    openColumnMenu(0);
    form->ColumnsPopupMenu->close();
    pick(hiddenItem(QStringLiteral("CENA")));
    EXPECT_EQ(rowText(0), "Cena");
    EXPECT_EQ(rowText(1), "1234,5");
}

TEST_F(ColumnMenu, TheFirstColumnDoesNotCountForThePlaceOfAHiddenItem) {
    std::vector<RColumn> columns = testColumns(log);
    columns.erase(columns.begin()); // without the key column, NAZEV is the first
    form = std::make_unique<TestEditBox>(&manager, columns);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    hide(c_NameCol);
    hide(1); // POCET now stands first in the grid
    EXPECT_THAT(hiddenItems(), ElementsAre("Počet", "Název", "Sleva"));
}

TEST_F(ColumnMenu, AnAmpersandInACaptionIsShownAsItIs) {
    std::vector<RColumn> columns = testColumns(log);
    columns[9].Caption = "A&B";
    form = std::make_unique<TestEditBox>(&manager, columns);
    form->show();
    EXPECT_THAT(hiddenItems(), ElementsAre("A&&B"));
}

TEST_F(ColumnMenu, AMovedColumnTakesItsDataAndItsEditorAlong) {
    open();
    openCell(c_CountCol, 1);
    type(QStringLiteral("42"));
    grid().horizontalHeader()->moveSection(c_CountCol - 1, c_DateCol - 1);
    settle();
    EXPECT_EQ(columnOrder(), "[ID] NAZEV CENA DATUM POCET SKLAD KOD POZN TYP [SLEVA]");
    EXPECT_EQ(rowText(0), "Název|Cena|Datum|Počet|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(openCellText(), "4,1") << "the edited column is the current one, wherever it stands";
    const QPoint corner = grid().mapTo(form.get(), QPoint(2, 2)) + grid().CellRect(4, 1).topLeft();
    EXPECT_EQ(sharedEdit().pos(), corner);
    ASSERT_TRUE(form->HideEditor());
    EXPECT_EQ(stored(7, 0), "42");
    EXPECT_EQ(rowText(1), "Šroub|1234,5|1.2.2027|42|Hlavní|A1|první|x");
}

TEST_F(ColumnMenu, MovingBackwardsIsTheSame) {
    open();
    openCell(c_NoteCol, 2);
    grid().horizontalHeader()->moveSection(c_NoteCol - 1, c_NameCol - 1);
    settle();
    EXPECT_EQ(columnOrder(), "[ID] POZN NAZEV POCET CENA DATUM SKLAD KOD TYP [SLEVA]");
    EXPECT_EQ(openCellText(), "1,2");
}

TEST_F(ColumnMenu, ADraggedWidthIsRememberedWhenTheMouseIsReleased) {
    open();
    grid().horizontalHeader()->resizeSection(c_CountCol - 1, 121); // cell and line
    Q_EMIT grid().MouseUp(c_CountCol, 0);
    EXPECT_EQ(columnAt(c_CountCol).Width, 120);
    EXPECT_EQ(columnAt(c_NameCol).Width, 90);
    hide(c_CountCol);
    pick(hiddenItem(QStringLiteral("POCET")));
    EXPECT_EQ(grid().ColWidths(c_CountCol), 120);
}
