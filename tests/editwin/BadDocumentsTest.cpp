#include "tests/support/BadDocuments.h"

#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"
#include "tests/support/Watchdog.h"

#include <QAction>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::chrono::seconds c_Patience{10};

class BadDocuments : public EditBoxTest {
protected:
    static constexpr const char* c_Layout = "<settings><columns><column><name>CENA</name><caption>Kč</caption></column>"
                                            "</columns></settings>";
    static constexpr const char* c_Placement = "<window><left>31</left><top>52</top><width>801</width>"
                                               "<height>423</height><note>č</note></window>";
    static constexpr const char* c_BuiltIn = "[ID] NAZEV POCET CENA DATUM SKLAD KOD POZN TYP [SLEVA]";
    static constexpr const char* c_PriceFirst = "CENA [ID] NAZEV POCET DATUM SKLAD KOD POZN TYP [SLEVA]";

    void defaultIs(const AnsiString& document) {
        host.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
            .returns({{{"ID", "DATA"}, {{std::int64_t{7}, document}}}});
    }

    void placementIs(const AnsiString& document) {
        host.connection.procedure("MELVARKEDITORNASTAVENINactiNastaveniOkna").returns({{{"DATA"}, {{document}}}});
    }

    /// Types a value into the second row, as a clerk who has noticed nothing.
    void workAsUsual() {
        form->ShowEditor(form->GetColumnByName("POCET"), 2, true); // a wide column may hide it
        type(QStringLiteral("42"));
        key(Qt::Key_Return);
        settle();
        EXPECT_EQ(stored(7, 1), "42");
        EXPECT_THAT(host.errors(), IsEmpty());
        EXPECT_THAT(manager.boxes(), IsEmpty());
    }
};

TEST_F(BadDocuments, AsTheDefaultLayoutTheyOpenWithWhatCanBeRead) {
    for (const BadDocument& bad : badDocuments("settings", c_Layout)) {
        SCOPED_TRACE(bad.Name);
        const Watchdog watchdog(bad.Name, c_Patience);
        defaultIs(bad.Text);
        open();
        EXPECT_EQ(columnOrder(), bad.IsRead ? c_PriceFirst : c_BuiltIn);
        EXPECT_EQ(grid().ColCount(), 9);
        EXPECT_EQ(form->SettingsId(), 7) << "the setting is in force all the same";
        workAsUsual();
    }
}

TEST_F(BadDocuments, ChosenFromTheMenuTheyReplaceTheLayoutByWhatCanBeRead) {
    host.connection.procedure("MELVARKEDITORNASTAVENIGetList")
        .returns({{{"NAZEV", "ID"}, {{AnsiString("Špatné"), std::int64_t{7}}}}});
    host.connection.procedure("MELVARKEDITORNASTAVENINacti").inputs({"a_ID"});
    for (const BadDocument& bad : badDocuments("settings", c_Layout)) {
        if (bad.Text.empty()) {
            continue; // one without a document leaves the layout
        }
        SCOPED_TRACE(bad.Name);
        const Watchdog watchdog(bad.Name, c_Patience);
        host.connection.procedure("MELVARKEDITORNASTAVENINacti").returns({resultTable({"DATA"}, {{bad.Text}})});
        defaultIs("<settings><columns><column><name>POCET</name></column></columns></settings>");
        open();
        form->SettingsPopupMenu->actions().front()->trigger();
        settle();
        EXPECT_EQ(columnOrder(), bad.IsRead ? c_PriceFirst : c_BuiltIn);
        workAsUsual();
    }
}

TEST_F(BadDocuments, AsThePlacementTheyPlaceTheWindowAsFarAsTheyCanBeRead) {
    make().show();
    const QRect centred = form->geometry();
    for (const BadDocument& bad : badDocuments("window", c_Placement)) {
        SCOPED_TRACE(bad.Name);
        const Watchdog watchdog(bad.Name, c_Patience);
        placementIs(bad.Text);
        open();
        EXPECT_EQ(form->geometry().topLeft(), bad.IsRead ? QPoint(31, 52) : centred.topLeft());
        EXPECT_EQ(form->height(), bad.IsRead ? std::max(423, form->minimumHeight()) : centred.height());
        workAsUsual();
    }
}

TEST_F(BadDocuments, NumbersThatAreNoneGiveAWidthThatCanBeShown) {
    struct Row {
        const char* text;
        int width; ///< Of the column.
        int shown;
    };
    const Row rows[] = {
        {"12px", 100, 100},        {"", 100, 100}, {"0x10", 100, 100}, {"1e3", 100, 100},
        {"99999999999", 100, 100}, {"-5", -5, 4},  {"0", 0, 4},        {"2147483647", 2147483647, 10000}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        defaultIs("<settings><columns><column><name>CENA</name><width>" + AnsiString(row.text) +
                  "</width></column></columns></settings>");
        open();
        EXPECT_EQ(columnAt(1).Width, row.width);
        EXPECT_EQ(grid().ColWidths(1), row.shown);
        EXPECT_THAT(form->GetColumnSettingsXML(), HasSubstr("<width>" + std::to_string(row.width) + "</width>"));
        workAsUsual();
    }
}

TEST_F(BadDocuments, ALayoutWithEverythingHiddenOpensWithAnEmptyPicture) {
    AnsiString columns;
    for (const RColumn& column : testColumns(log)) {
        columns += "<column><name>" + column.Name + "</name><visible>ne</visible></column>";
    }
    defaultIs("<settings><columns>" + columns + "</columns></settings>");
    open();
    EXPECT_EQ(grid().ColCount(), 1);
    EXPECT_EQ(openCellText(), "none");
    EXPECT_THAT(host.errors(), IsEmpty());
}

} // namespace
