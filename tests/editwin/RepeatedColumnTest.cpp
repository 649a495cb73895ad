#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A setting, chosen from the menu, whose document names the column placed first once more: the price stands in grid
/// columns 1 and 3, and the last of the rest, SLEVA, has no room. What is repeated further is skipped.
class RepeatedColumn : public EditBoxTest {
protected:
    void choose() {
        host.connection.procedure("MELVARKEDITORNASTAVENIGetList")
            .returns({{{"NAZEV", "ID"}, {{AnsiString("Dvakrát"), std::int64_t{7}}}}});
        host.connection.procedure("MELVARKEDITORNASTAVENINacti")
            .inputs({"a_ID"})
            .returns({resultTable({"DATA"}, {{"<settings><columns><column><name>CENA</name></column>"
                                              "<column><name>POCET</name></column>"
                                              "<column><name>CENA</name><caption>Znovu</caption><width>66</width>"
                                              "</column><column><name>POCET</name><caption>Ne</caption></column>"
                                              "<column><name>CENA</name><caption>Ne</caption></column></columns>"
                                              "</settings>"}})});
        open();
        form->SettingsPopupMenu->actions().front()->trigger();
        settle();
        ASSERT_EQ(rowText(0), "Cena|Počet|Znovu|Název|Datum|Sklad|Kód|Poznámka|Typ");
    }

    void hide(int col) {
        openColumnMenu(col);
        pick(form->SkrytSloupec);
    }

    QAction* hiddenItem(int place) { return form->SkryteSloupce->actions().value(place); }

    static constexpr const char* c_SecondLine = "2|6|2|Matice||vedlejší|B2||y";
};

TEST_F(RepeatedColumn, ShowsTheSameValuesTwice) {
    choose();
    EXPECT_EQ(rowText(2), c_SecondLine);
    EXPECT_EQ(grid().ColWidths(3), 66);
    EXPECT_EQ(form->GetColumnByName("CENA"), 1) << "the first of the two";
}

TEST_F(RepeatedColumn, AValueTypedInEitherIsShownInBothAndStoredOnce) {
    choose();
    openCell(3, 2);
    type(QStringLiteral("77"));
    ASSERT_TRUE(form->HideEditor());
    EXPECT_EQ(rowText(2), "77|6|77|Matice||vedlejší|B2||y");
    EXPECT_EQ(stored(6, 1), "77");
    EXPECT_EQ(log.lines.back(), "3,2=77");
    openCell(1, 2);
    type(QStringLiteral("78"));
    ASSERT_TRUE(form->HideEditor());
    EXPECT_EQ(rowText(2), "78|6|78|Matice||vedlejší|B2||y");
    EXPECT_TRUE(form->StringGridDrawCell(3, 2).Bold);
}

TEST_F(RepeatedColumn, EitherIsHiddenAndShownByItself) {
    choose();
    hide(1);
    EXPECT_EQ(rowText(0), "Počet|Znovu|Název|Datum|Sklad|Kód|Poznámka|Typ");
    hide(2);
    EXPECT_EQ(rowText(0), "Počet|Název|Datum|Sklad|Kód|Poznámka|Typ");
    ASSERT_EQ(form->SkryteSloupce->actions().size(), 2);
    pick(hiddenItem(0)); // the second one: the first active column does not count for the place of an item
    EXPECT_EQ(rowText(0), "Počet|Znovu|Název|Datum|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(rowText(2), "6|2|Matice||vedlejší|B2||y");
    pick(hiddenItem(0));
    EXPECT_EQ(rowText(2), c_SecondLine);
}

TEST_F(RepeatedColumn, EitherIsMovedByItself) {
    choose();
    grid().horizontalHeader()->moveSection(2, 4);
    settle();
    EXPECT_EQ(rowText(0), "Cena|Počet|Název|Datum|Znovu|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(rowText(2), "2|6|Matice||2|vedlejší|B2||y");
}

TEST_F(RepeatedColumn, IsSavedTwiceAndReadBackTheSame) {
    choose();
    const AnsiString document = form->GetColumnSettingsXML();
    const std::size_t first = document.find("<name>CENA</name><caption>Cena</caption>");
    ASSERT_NE(first, AnsiString::npos);
    EXPECT_NE(document.find("<name>CENA</name><caption>Znovu</caption>", first), AnsiString::npos);
    form->LoadColumnsSettingsFromXml(document);
    EXPECT_EQ(columnOrder(), "CENA POCET CENA [ID] NAZEV DATUM SKLAD KOD POZN TYP");
}

TEST_F(RepeatedColumn, TheColumnThatHadNoRoomKeepsItsValuesForSaving) {
    choose();
    EXPECT_THAT(columnOrder(), Not(HasSubstr("SLEVA")));
    EXPECT_EQ(stored(form->GetColumnSettings("SLEVA").DataColumn, 0), "10");
}

TEST_F(RepeatedColumn, ADeletedLayoutWithItGivesTheBuiltInOneBack) {
    host.connection.procedure("MELVARKEDITORNASTAVENISmaz").inputs({"a_ID"});
    choose();
    manager.boxAnswers = {c_ResultYes};
    form->SmazatNastaveniClick(form->SmazatNastaveni);
    settle();
    grid().horizontalHeader()->moveSection(2, 4); // the second price, behind the date
    settle();
    EXPECT_EQ(rowText(0), "Název|Počet|Datum|Cena|Sklad|Kód|Poznámka|Typ");
    EXPECT_EQ(rowText(2), "Matice|6||2|vedlejší|B2||y");
    EXPECT_EQ(stored(form->GetColumnSettings("SLEVA").DataColumn, 0), "10");
    EXPECT_THAT(host.errors(), IsEmpty());
}
