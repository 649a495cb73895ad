#pragma once

#include "dialogs/MelvarkEditorSettingsWin.h"
#include "tests/editwin/TestEditBox.h"

#include <QAction>
#include <QMenu>

#include <cstdint>
#include <functional>
#include <gmock/gmock.h>
#include <utility>
#include <vector>

/// The commands of the settings menu on a form whose store holds "Moje" (3) and "Sklad & prodej" (7).
class SettingsCommands : public EditBoxTest {
protected:
    SettingsCommands() {
        const auto script = [this](const AnsiString& name, std::vector<AnsiString> inputs) -> ProcedureScript& {
            return host.connection.procedure("MELVARKEDITORNASTAVENI" + name).inputs(std::move(inputs));
        };
        list({{AnsiString("Moje"), std::int64_t{3}}, {AnsiString("Sklad & prodej"), std::int64_t{7}}});
        script("Nacti", {"a_ID"}).returns({resultTable({"DATA"}, {{c_PriceFirst}})});
        script("Uloz", {"a_ID", "a_DATA"});
        script("UlozNove", {"a_NAZEV", "a_TYPEDITACE", "a_SDILENE", "a_KOMENTAR", "a_DATA"})
            .returns({{{"ID"}, {{std::int64_t{12}}}}});
        script("GetInfo", {"a_ID"})
            .returns({{{"NAZEV", "KOMENTAR", "SDILENE"}, {{AnsiString("Moje"), AnsiString("popis"), true}}}});
        script("Premenuj", {"a_ID", "a_NAZEV", "a_KOMENTAR", "a_SDILENE"});
        script("Smaz", {"a_ID"});
        script("SmazDef", {"a_TYPEDITACE"});
    }

    void list(std::vector<std::vector<TDbValue>> rows) {
        host.connection.procedure("MELVARKEDITORNASTAVENIGetList").returns({{{"NAZEV", "ID"}, std::move(rows)}});
    }

    /// Opens the form; what was called until then is forgotten.
    void start() {
        open();
        host.connection.takeCalls();
    }

    QAction* item(int id) {
        auto* const found = form->findChild<QAction*>(QStringLiteral("SavedSetting") + QString::number(id));
        EXPECT_NE(found, nullptr) << id;
        return found;
    }

    /// Picks an item of the menu as it stands when it opens. Off the screen a popup would keep the focus.
    void choose(QAction* picked) {
        form->SettingsPopupMenuPopup(form->SettingsPopupMenu);
        ASSERT_TRUE(picked->isEnabled()) << "the item is disabled";
        picked->trigger();
        settle();
    }

    /// Fills the dialog of the name when it comes and confirms it.
    static std::function<void(QWidget&)> name(const AnsiString& text, bool isShared = false) {
        return [text, isShared](QWidget& window) {
            auto& box = dynamic_cast<TSettingsBox&>(window);
            box.SetNazev(text);
            box.SetPopis("k čemu je");
            box.SetSdilene(isShared);
            box.SetModalResult(c_ResultOk);
        };
    }

    /// The menu as captions: the checked item in brackets, disabled ones in small brackets.
    std::vector<AnsiString> items() {
        std::vector<AnsiString> texts;
        for (const QAction* const each : form->SettingsPopupMenu->actions()) {
            AnsiString text = each->isSeparator() ? "-" : each->text().toStdString();
            text = each->isChecked() ? "(" + text + ")" : text;
            texts.push_back(each->isEnabled() ? text : "/" + text);
        }
        return texts;
    }

    static constexpr const char* c_PriceFirst =
        "<settings><prepocet>0</prepocet><columns><column><name>CENA</name><caption>Kč</caption><width>66</width>"
        "</column><column><name>SLEVA</name><visible>1</visible></column></columns></settings>";
    static constexpr const char* c_BuiltIn = "[ID] NAZEV POCET CENA DATUM SKLAD KOD POZN TYP [SLEVA]";
    static constexpr const char* c_PriceFirstOrder = "CENA SLEVA [ID] NAZEV POCET DATUM SKLAD KOD POZN TYP";
};
