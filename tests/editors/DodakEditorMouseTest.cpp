#include "tests/editors/DodakEditorFixture.h"
#include "tests/support/ExpectedWarning.h"

#include <QAction>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QMenu>

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

/// What the clerk does with the mouse between typing and recalculation.
class DodakEditorMouse : public DodakEditorFixture {
protected:
    DodakEditorMouse() {
        host_.connection.procedure("MELVARKEDITORDodakVypocetCen")
            .returns({resultTable({"CENABSESLEVOU"}, {{"57,00"}})});
    }

    /// A right click on the column's header, and the menu's item that hides it.
    static void hideByMenu(TDodakEditBox& editor, const AnsiString& key) {
        TStringGrid& grid = *editor.StringGrid;
        const QPoint place = grid.CellRect(editor.GetColumnByName(key), 0).center();
        QWidget* const header = grid.childAt(place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, header->mapFrom(&grid, place), grid.mapToGlobal(place));
        QCoreApplication::sendEvent(header, &event);
        editor.SkrytSloupec->trigger();
        editor.ColumnsPopupMenu->close();
    }

    // The off-screen platform has no window manager for popup menus.
    ExpectedWarning raising_{QStringLiteral("This plugin does not support raise()")};
    ExpectedWarning grabbing_{QStringLiteral("This plugin does not support grabbing the keyboard")};
};

TEST_F(DodakEditorMouse, AClickOnTheSwitchSendsTheTypedValueWithTheSwitchAsItWas) {
    const auto editor = open();
    showAnd(*editor, [&] {
        QTest::keyClicks(editor->ActiveEditor(), QStringLiteral("3"));
        auto* const box = editor->findChild<QCheckBox*>(QStringLiteral("chbPrepocetCen"));
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, 8));
        EXPECT_THAT(host_.connection.calls(), ElementsAre(HasSubstr("a_PREPOCETCEN=true, a_FOCUS=\"MNOZSTVI\"")));
        EXPECT_FALSE(editor->GetPrepocetCen());
        EXPECT_EQ(row(*editor, 1, {"MNOZSTVI", "CENABSESLEVOU"}), "3 | 57,00");
    });
}

TEST_F(DodakEditorMouse, ATotalBehindAColumnThatTheClerkHidesIsRecalculatedInItsPlace) {
    const auto editor = open();
    showAnd(*editor, [&] {
        const int before = editor->GetColumnByName("CENABSESLEVOU");
        hideByMenu(*editor, "SKLADPOL");
        const int now = editor->GetColumnByName("CENABSESLEVOU");
        ASSERT_EQ(now, before - 1);
        editor->ShowEditor(now, 2, true);
        ASSERT_EQ(openAt(*editor), "CENABSESLEVOU in row 2");
        type(*editor, "60");
        EXPECT_THAT(host_.connection.calls(),
                    ElementsAre(AllOf(HasSubstr("a_ZMENENEBUNKY=\"CENABSESLEVOU;\""),
                                      HasSubstr("a_FOCUS=\"CENABSESLEVOU\""), HasSubstr("a_CENABSESLEVOU=60, "))));
        EXPECT_EQ(editor->StringGrid->Cells(now, 2), "57,00");
        EXPECT_EQ(editor->StringGrid->Cells(before, 2), "") << "the column that stands in its old place";
    });
}

} // namespace
