#include "editwin/CellWriter.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/SettingsCommands.h"

#include <QHeaderView>
#include <QLineEdit>

using testing::ElementsAre;
using testing::IsEmpty;

/// The setting was deleted while a cell was open or is opened afterwards: its picture is still there.
class DeletedPicture : public SettingsCommands {
protected:
    void deleteSetting() {
        manager.boxAnswers = {c_ResultYes};
        choose(form->SmazatNastaveni);
    }
    static constexpr const char* c_BuiltInTitles = "Název|Počet|Cena|Datum|Sklad|Kód|Poznámka|Typ";
};

TEST_F(DeletedPicture, AnOpenValueGoesToTheColumnThatIsPictured) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("77"));
    deleteSetting();
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("77")) << "the editor stays open";
    log.answer = [&] {
        form->Cells().WriteDerived(7, 1, "8"); // a count that follows from the price
        return true;
    };
    ASSERT_TRUE(form->HideEditor());
    EXPECT_EQ(stored(6, 1), "77") << "the price";
    EXPECT_EQ(stored(8, 1), "Matice");
    EXPECT_EQ(rowText(2), "77||Matice|8||vedlejší|B2||y") << "as pictured";
    EXPECT_EQ(log.lines.back(), "1,2=77");
}

TEST_F(DeletedPicture, IsReplacedBeforeAnEditorOpens) {
    start();
    choose(item(3));
    deleteSetting();
    click(4, 2); // POCET
    settle();
    EXPECT_EQ(rowText(0), c_BuiltInTitles);
    EXPECT_EQ(rowText(2), "Matice|6|2||vedlejší|B2||y");
    EXPECT_EQ(openCellText(), "2,2") << "the column that was clicked";
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("6"));
}

TEST_F(DeletedPicture, NoEditorOpensForAClickedColumnThatTheBuiltInLayoutHides) {
    start();
    choose(item(3));
    deleteSetting();
    click(2, 2); // SLEVA
    settle();
    EXPECT_EQ(rowText(0), c_BuiltInTitles);
    EXPECT_EQ(openCellText(), "none");
}

TEST_F(DeletedPicture, IsReplacedBeforeTheNextCellIsSought) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("77"));
    deleteSetting();
    form->GoNextEditable();
    EXPECT_EQ(log.lines.back(), "1,2=77") << "the column pictured";
    EXPECT_EQ(stored(6, 1), "77");
    EXPECT_EQ(rowText(0), c_BuiltInTitles);
    EXPECT_EQ(openCellText(), "4,2") << "after the price, in the built-in order";
}

TEST_F(DeletedPicture, ARefusedValueKeepsIt) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("x"));
    deleteSetting();
    form->GoNextEditable();
    EXPECT_EQ(manager.boxes().back(), "16: Hodnota x není desetinné číslo");
    EXPECT_EQ(rowText(0), "Kč|Sleva|Název|Počet|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(openCellText(), "1,2");
}

TEST_F(DeletedPicture, IsReplacedBeforeTheColumnMenuOpens) {
    start();
    choose(item(3));
    deleteSetting();
    openColumnMenu(1);
    EXPECT_EQ(rowText(0), c_BuiltInTitles);
    pick(form->SkrytSloupec);
    EXPECT_EQ(columnOrder(), "[ID] NAZEV POCET [CENA] DATUM SKLAD KOD POZN TYP [SLEVA]") << "\"Kč\" was clicked";
}

TEST_F(DeletedPicture, TheMenuOfAColumnThatTheBuiltInLayoutHidesIsThatOfNone) {
    start();
    choose(item(3));
    deleteSetting();
    openColumnMenu(2); // SLEVA
    ASSERT_TRUE(form->ColumnsPopupMenu->isVisible());
    EXPECT_FALSE(form->SkrytSloupec->isEnabled());
    EXPECT_FALSE(form->NadpisVlastnostiSloupce->isEnabled());
    EXPECT_TRUE(form->SkryteSloupce->menuAction()->isEnabled());
    form->ColumnsPopupMenu->close();
}

TEST_F(DeletedPicture, ARefusedValueKeepsTheColumnMenuShut) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("x"));
    deleteSetting();
    openColumnMenu(4);
    settle();
    EXPECT_FALSE(form->ColumnsPopupMenu->isVisible());
    EXPECT_EQ(rowText(0), "Kč|Sleva|Název|Počet|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(openCellText(), "1,2");
}

TEST_F(DeletedPicture, ADragMovesTheColumnThatWasDragged) {
    start();
    choose(item(3));
    deleteSetting();
    grid().horizontalHeader()->moveSection(3, 2); // POCET before NAZEV
    settle();
    EXPECT_EQ(columnOrder(), "[ID] POCET NAZEV CENA DATUM SKLAD KOD POZN TYP [SLEVA]");
    EXPECT_EQ(rowText(0), "Počet|Název|Cena|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(rowText(1), "5|Šroub|1234,5|1.2.2027|Hlavní|A1|první|x");
}

TEST_F(DeletedPicture, ADraggedWidthIsTheOnlyOneThatIsKept) {
    start();
    choose(item(3));
    deleteSetting();
    grid().horizontalHeader()->resizeSection(3, 131); // POCET
    Q_EMIT grid().MouseUp(4, 0);
    EXPECT_EQ(rowText(0), c_BuiltInTitles);
    EXPECT_EQ(grid().ColWidths(c_CountCol), 130);
    EXPECT_EQ(grid().ColWidths(c_PriceCol), 80) << "66 was the deleted layout's";
}

TEST_F(DeletedPicture, AnOpenValueGoesToItsPicturedColumnBeforeADraggedWidthIsKept) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("77"));
    deleteSetting();
    grid().horizontalHeader()->resizeSection(3, 131); // POCET
    Q_EMIT grid().MouseUp(4, 0);
    settle();
    EXPECT_EQ(stored(6, 1), "77") << "the price";
    EXPECT_EQ(rowText(0), c_BuiltInTitles);
    EXPECT_EQ(grid().ColWidths(c_CountCol), 130);
}

TEST_F(DeletedPicture, ADraggedWidthOverARefusedValueIsReportedOnceAndThePictureStays) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("x"));
    deleteSetting();
    grid().horizontalHeader()->resizeSection(3, 131);
    Q_EMIT grid().MouseUp(4, 0);
    settle();
    EXPECT_THAT(manager.boxes(), ElementsAre("36: Smazat zvolené nastavení?", "16: Hodnota x není desetinné číslo"));
    EXPECT_EQ(rowText(0), "Kč|Sleva|Název|Počet|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("x"));
}

TEST_F(DeletedPicture, ADragOverARefusedValueIsReportedOnce) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("x"));
    deleteSetting();
    grid().horizontalHeader()->moveSection(3, 2);
    Q_EMIT grid().MouseUp(3, 0); // the button's release follows the drag
    settle();
    EXPECT_THAT(manager.boxes(), ElementsAre("36: Smazat zvolené nastavení?", "16: Hodnota x není desetinné číslo"));
    EXPECT_EQ(rowText(0), "Kč|Sleva|Počet|Název|Datum|Sklad|Kód|Poznámka|Typ") << "the picture stays";
    EXPECT_EQ(sharedEdit().text(), QStringLiteral("x"));
}

TEST_F(DeletedPicture, AMereClickOnTheHeaderOrBesideTheCellsIsNoLeaving) {
    start();
    choose(item(3));
    openCell(1, 2);
    type(QStringLiteral("77"));
    deleteSetting();
    for (const int row : {0, -1}) {
        Q_EMIT grid().MouseUp(4, row);
        settle();
        EXPECT_EQ(openCellText(), "1,2");
        EXPECT_EQ(sharedEdit().text(), QStringLiteral("77"));
        EXPECT_EQ(rowText(0), "Kč|Sleva|Název|Počet|Datum|Sklad|Kód|Poznámka|Typ");
        EXPECT_THAT(log.lines, IsEmpty());
    }
}

TEST_F(DeletedPicture, AnotherChoiceReplacesIt) {
    start();
    choose(item(3));
    deleteSetting();
    choose(item(7));
    EXPECT_EQ(columnOrder(), c_PriceFirstOrder);
    form->ApplyColumnsSettingsToGrid();
    EXPECT_EQ(columnOrder(), c_PriceFirstOrder) << "nothing is awaited any more";
}
