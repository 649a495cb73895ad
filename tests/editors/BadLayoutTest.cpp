#include "tests/editors/DodObjEditorFixture.h"
#include "tests/editors/DodakEditorFixture.h"
#include "tests/support/BadDocuments.h"
#include "tests/support/Watchdog.h"

/// Both kinds of document on stored layouts and placements that are damaged: the editor opens with what could be read
/// or as it was built, and works.
namespace {

constexpr std::chrono::seconds c_Patience{10};
constexpr const char* c_Layout = "<settings><columns><column><name>MNOZSTVI</name><caption>Počet</caption></column>"
                                 "</columns></settings>";
constexpr const char* c_Placement = "<window><left>31</left><top>52</top><note>č</note></window>";

template <class Fixture>
class BadLayoutOf : public Fixture {
protected:
    /// Opens the editor on each of them and commits its first cell.
    void openAndWork(const AnsiString& quantity) {
        const std::vector<BadDocument> layouts = badDocuments("settings", replaced(quantity));
        const std::vector<BadDocument> placements = badDocuments("window", c_Placement);
        for (std::size_t index = 0; index < layouts.size(); ++index) {
            const BadDocument& layout = layouts[index];
            SCOPED_TRACE(layout.Name);
            const Watchdog watchdog(layout.Name, c_Patience);
            this->host_.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
                .returns({resultTable({"ID", "DATA"}, {{"5", layout.Text}})});
            this->host_.connection.procedure("MELVARKEDITORNASTAVENINactiNastaveniOkna")
                .returns({resultTable({"DATA"}, {{placements[index].Text}})});
            const auto editor = this->open();
            EXPECT_EQ(editor->ActiveColumns().size(), editor->DefaultColumns().size());
            EXPECT_EQ(editor->GetColumnSettings(quantity).Caption == "Počet", layout.IsRead);
            EXPECT_EQ(this->showAnd(*editor,
                                    [&] {
                                        ASSERT_NE(editor->ActiveEditor(), nullptr);
                                        QTest::keyClick(editor->ActiveEditor(), Qt::Key_Return);
                                        EXPECT_EQ(editor->geometry().left() == 31, layout.IsRead);
                                    }),
                      c_ResultCancel);
        }
    }

private:
    static AnsiString replaced(const AnsiString& quantity) {
        AnsiString layout = c_Layout;
        return layout.replace(layout.find("MNOZSTVI"), 8, quantity);
    }
};

using BadLayoutOfNotes = BadLayoutOf<DodakEditorFixture>;
using BadLayoutOfOrders = BadLayoutOf<DodObjEditorFixture>;

TEST_F(BadLayoutOfNotes, OpensAndWorks) {
    openAndWork("MNOZSTVI");
}

TEST_F(BadLayoutOfOrders, OpensAndWorks) {
    openAndWork("MNOZSTVIHL");
}

} // namespace
