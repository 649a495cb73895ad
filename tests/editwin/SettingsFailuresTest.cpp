#include "dialogs/MelvarkEditorSettingsWin.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/StringGrid.h"
#include "tests/editwin/TestEditBox.h"
#include "tests/widgets/ModalDriver.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTimer>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The settings menu on a database that fails: what was changed before the failing call stays changed, the clerk is
/// told once, and the form goes on.
class SettingsFailures : public EditBoxTest {
protected:
    /// Opens the form with "Moje" (3) in force, which makes the price the first column.
    void start() {
        listed({{AnsiString("Moje"), std::int64_t{3}}});
        host.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
            .returns({{{"ID", "DATA"},
                       {{std::int64_t{3}, AnsiString("<settings><columns><column><name>CENA</name></column></columns>"
                                                     "</settings>")}}}});
        open();
        ASSERT_EQ(columnOrder(), c_PriceFirst);
    }

    ProcedureScript& script(const AnsiString& name, std::vector<AnsiString> inputs) {
        return host.connection.procedure("MELVARKEDITORNASTAVENI" + name).inputs(std::move(inputs));
    }

    void listed(std::vector<std::vector<TDbValue>> rows) {
        script("GetList", {"a_TYPEDITACE"}).returns({{{"NAZEV", "ID"}, std::move(rows)}});
    }

    void fails(const AnsiString& name, std::vector<AnsiString> inputs, int call = 1) {
        script(name, std::move(inputs)).refusesCall(call, "Spojení ztraceno");
    }

    void choose(QAction* item) {
        form->SettingsPopupMenuPopup(form->SettingsPopupMenu);
        ASSERT_TRUE(item->isEnabled());
        item->trigger();
        settle();
        EXPECT_THAT(host.errors(), ElementsAre(HasSubstr("Spojení ztraceno")));
    }

    static constexpr const char* c_PriceFirst = "CENA [ID] NAZEV POCET DATUM SKLAD KOD POZN TYP [SLEVA]";
    static constexpr const char* c_BuiltIn = "[ID] NAZEV POCET CENA DATUM SKLAD KOD POZN TYP [SLEVA]";
};

TEST_F(SettingsFailures, ALayoutIsRestoredThoughTheDefaultCannotBeForgotten) {
    start();
    fails("SmazDef", {"a_TYPEDITACE"});
    manager.boxAnswers = {c_ResultYes};
    choose(form->ObnovVychoziNastaveni);
    EXPECT_EQ(columnOrder(), c_BuiltIn);
    EXPECT_EQ(rowText(2), "Matice|6|2||vedlejší|B2||y");
    EXPECT_EQ(form->SettingsId(), -1);
    EXPECT_EQ(form->MenuBtn->Caption(), "Žádný vzor");
}

TEST_F(SettingsFailures, ALayoutThatCannotBeSavedStaysAsItIs) {
    start();
    fails("Uloz", {"a_ID", "a_DATA"});
    choose(form->UlozitNastaveni);
    EXPECT_EQ(form->SettingsId(), 3);
    EXPECT_EQ(columnOrder(), c_PriceFirst);
}

TEST_F(SettingsFailures, WithoutItsTextsNoDialogAsksForANewName) {
    start();
    fails("GetInfo", {"a_ID"});
    bool wasAsked = false;
    QTimer::singleShot(0, form.get(), [&] {
        if (QWidget* const box = QApplication::activeModalWidget()) {
            wasAsked = true;
            box->close();
        }
    });
    choose(form->PrejmenovatNastaveni);
    EXPECT_FALSE(wasAsked);
    EXPECT_EQ(form->MenuBtn->Caption(), "Moje");
}

TEST_F(SettingsFailures, AnEditorWhoseLayoutsCannotBeListedIsNotMade) {
    fails("GetList", {"a_TYPEDITACE"});
    EXPECT_ANY_THROW(make());
    EXPECT_THAT(host.errors(), IsEmpty()) << "whoever makes it is told";
}

TEST_F(SettingsFailures, AnEditorWhoseDefaultLayoutCannotBeReadIsNotMade) {
    fails("NactiDef", {"a_TYPEDITACE"});
    EXPECT_ANY_THROW(make());
    EXPECT_THAT(host.errors(), IsEmpty()) << "whoever makes it is told";
}

TEST_F(SettingsFailures, ANewLayoutIsStoredOnceAndInForceThoughTheListCannotBeReadAgain) {
    start();
    script("UlozNove", {"a_NAZEV", "a_TYPEDITACE", "a_SDILENE", "a_KOMENTAR", "a_DATA"})
        .returns({{{"ID"}, {{std::int64_t{12}}}}});
    fails("GetList", {"a_TYPEDITACE"}, 2);
    {
        const ModalDriver driver(QStringLiteral("SettingsBox"), [](QWidget& window) {
            auto& box = dynamic_cast<TSettingsBox&>(window);
            box.SetNazev("Nové");
            box.SetModalResult(c_ResultOk);
        });
        choose(form->UlozitJakoNoveNastaveni);
    }
    EXPECT_EQ(host.connection.callsOf("MELVARKEDITORNASTAVENIUlozNove").size(), 1u);
    EXPECT_EQ(form->SettingsId(), 12);
    EXPECT_EQ(form->SettingsItem(), nullptr);
    EXPECT_TRUE(form->SettingsPopupMenu->actions().front()->isSeparator()) << "the items went before the list was read";
    EXPECT_EQ(columnOrder(), c_PriceFirst);
    // The layout is worked with, and the next reading mends the menu.
    script("Uloz", {"a_ID", "a_DATA"});
    form->UlozitNastaveni->trigger();
    EXPECT_THAT(host.connection.callsOf("MELVARKEDITORNASTAVENIUloz("), ElementsAre(HasSubstr("a_ID=12")));
    listed({{AnsiString("Moje"), std::int64_t{3}}, {AnsiString("Nové"), std::int64_t{12}}});
    form->LoadColumnsSettingsList();
    EXPECT_EQ(form->MenuBtn->Caption(), "Nové");
    EXPECT_TRUE(form->SettingsItem()->isChecked());
}
