#include "dialogs/MelvarkEditorColumnPropWin.h"
#include "dialogs/MelvarkEditorSettingsWin.h"
#include "editors/MelvarkEditorDodObjEditWin.h"
#include "editors/MelvarkEditorDodakEditWin.h"
#include "editors/UnsavedWork.h"
#include "editwin/model/AutosaveErrors.h"
#include "editwin/model/EditExceptions.h"
#include "host/DecimalDigits.h"
#include "host/Format.h"
#include "host/LiveData.h"
#include "host/XMLTag.h"
#include "host/widgets/MessageBox.h"
#include "main/MelvarkEditorMain.h"
#include "main/SourceMenus.h"
#include "select/MelvarkEditorMultiSelectWin.h"
#include "select/MelvarkEditorSelectWin.h"
#include "tests/languages/CatalogueFile.h"
#include "tests/languages/TranslatingHost.h"
#include "tests/main/LibraryItemFixture.h"
#include "tests/support/DodObjScripts.h"
#include "tests/support/DodakScripts.h"
#include "tests/widgets/ModalDriver.h"

#include <QApplication>
#include <QPushButton>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <limits>
#include <map>
#include <regex>
#include <sstream>

namespace {

using testing::IsEmpty;

void useSelectionDialogs(TranslatingHost& host, TLibraryManager& manager) {
    host.connection.procedure("MELVARKEDITORDodakCheckZdrojObjednavka")
        .inputs({"a_DODKIDMASTER", "a_CISLO", "a_DDOBID"})
        .returns({resultTable({"ID"}, {})});
    TSelectBox box(nullptr, &manager);
    box.DodakSelectFromObjednavka(1, 1);
    box.DodakSelectFromDodak(1, 1);
    box.DodObjSelectFromObjednavkaVzor(1, 1, 1);
    box.DodObjSelectFromObjednavka(1, 1, 1);
    box.DodObjSelectFromDodak(1, 1, 1);
    box.DodObjSelectFromDodCenik(1, {});
    box.DodObjSelectFromDodavky(1, "", {});
    EXPECT_THROW(box.DodakSelectFromObjednavkaCheck(), ESelectBox) << "the check that answers without a row";
    TMultiSelectBox groups(nullptr, &manager);
    groups.DodObjSelectSkupSkladPol(1);
}

void useSourceMenus() {
    for (const melvark::SourceMenu* menu :
         {&melvark::c_DodakMenu, &melvark::c_DodObjMenu, &melvark::c_DodObjVzorMenu}) {
        for (const melvark::SourceMenuEntry& entry : menu->Entries) {
            melvark::MenuCaption(entry);
            melvark::MenuHint(entry);
        }
    }
}

/// Builds the editor with every column, and makes it refuse a value of each kind.
void useEditor(TranslatingHost& host, TLibraryManager& manager) {
    scriptDodakEditor(host.connection);
    host.connection.procedure("MELVARKEDITORNASTAVENINactiDef")
        .returns({{{"ID", "DATA"}, {{std::int64_t{3}, AnsiString("<settings/>")}}}});
    TDodakEditBox editor(qApp, &manager, "SABLONA", 7, 40);
    EXPECT_THROW(editor.CheckInt(nullptr, "x"), EBadValue);
    EXPECT_THROW(editor.CheckFloat(nullptr, "x"), EBadValue);
    EXPECT_THROW(editor.CheckDate(nullptr, "x"), EBadValue);
    EXPECT_FALSE(editor.KontrolaSlevy(1, 1, "101"));
    editor.SmazatNastaveniClick(nullptr);
    editor.ObnovVychoziNastaveniClick(nullptr);
    EXPECT_THROW(TDodakEditBox(qApp, &manager, "NIC", 7, 40), Exception);
}

void useOrderEditor(TranslatingHost& host, TLibraryManager& manager) {
    scriptDodObjEditor(host.connection);
    for (const bool isTemplate : {false, true}) {
        TDodObjEditBox editor(qApp, &manager, isTemplate, "SABLONA", 7, 3, 5, "Praha", "Lípa", {});
    }
}

/// Has the file of unsaved work refused for each of its reasons.
void useAutosave() {
    for (const int error : {ENOSPC, EACCES, ENOENT, EIO}) {
        melvark::AutosaveRefused(error, "x");
        melvark::AutosaveUnread(error, "x");
    }
    melvark::AutosaveOverUnread("x");
    melvark::AutosaveForeign("x");
    melvark::AutosaveTooLarge();
    melvark::UnsavedWorkIsUnreadable();
    melvark::UnsavedWorkIsHeld();
    melvark::UnsavedWorkIsOfAnotherDocument();
}

/// Makes both property dialogs refuse an empty text.
void usePropertyDialogs(TLibraryManager& manager) {
    TSettingsBox settings(nullptr, &manager);
    settings.OkBtnClick(nullptr);
    TColumnPropertyBox column(nullptr, &manager);
    column.OkBtnClick(nullptr);
}

/// Shows both boxes that an editor without a library manager shows by itself.
void useBoxes(TranslatingHost& host) {
    scriptDodakEditor(host.connection);
    TDodakEditBox editor(qApp, nullptr, "SABLONA", 7, 40);
    const auto press = [](const char* button) {
        return [button](QWidget& box) { box.findChild<QPushButton*>(QString::fromLatin1(button))->click(); };
    };
    const ModalDriver first(QStringLiteral("MessageBox"), press("OkBtn"));
    editor.ShowErrorBox("x");
    const ModalDriver second(QStringLiteral("MessageBox"), press("YesBtn"));
    editor.ShowConfirmDialog("x");
}

/// Makes the contract refuse in each of its sentences.
void useContract(TranslatingHost& host) {
    FakeDataSet dataSet;
    dataSet.fields["TEXT"] = AnsiString("abc");
    const TField field = dataSet.FieldByName("TEXT");
    host.connection.procedure("NIC").returns({resultTable({"ID"}, {})});
    TLiveStoredProc procedure("NIC");
    procedure.Exec(true);
    EXPECT_THROW(dataSet.FieldByName("NIC"), EDatabaseError);
    EXPECT_THROW(procedure.FieldByName("NIC"), EDatabaseError);
    EXPECT_THROW(procedure.ParamByName("a_NIC"), EDatabaseError);
    EXPECT_THROW(host.Classes().Create("TNic", nullptr), EHostError);
    EXPECT_THROW(field.AsInteger(), EConvertError);
    EXPECT_THROW(field.AsFloat(), EConvertError);
    EXPECT_THROW(field.AsBoolean(), EConvertError);
    EXPECT_THROW(field.AsDateTime(), EConvertError);
    EXPECT_THROW(OutputXMLStr(TXMLTag("<")), EConvertError);
    EXPECT_THROW(melvark::ToDecimalDigits(std::numeric_limits<double>::infinity()), EConvertError);
    for (const char* format : {"%", "%99999999s", "%q", "%s%s", "%f"}) {
        EXPECT_THROW(Format(format, {"x"}, host.formatSettings), EConvertError) << format;
    }
    EXPECT_THROW(Format("%s", {7}, host.formatSettings), EConvertError);
    EXPECT_THROW(Format("%d", {"x"}, host.formatSettings), EConvertError);
}

void useLibraryItem(TLibraryManager& manager) {
    TMelvarkEditor item(&manager);
    FakeDataSet dataSet;
    EXPECT_FALSE(item.Execute("NIC", &dataSet, nullptr));
}

/// Every text that the module asks for while each of its windows, menus and messages is used once.
const std::set<AskedText>& askedTexts() {
    static const std::set<AskedText> asked = [] {
        TranslatingHost host("cs");
        const TScopedHost scope(host);
        TranslatingLibraryManager manager(host);
        useSelectionDialogs(host, manager);
        useSourceMenus();
        useEditor(host, manager);
        useOrderEditor(host, manager);
        useAutosave();
        usePropertyDialogs(manager);
        useBoxes(host);
        useContract(host);
        useLibraryItem(manager);
        return host.asked();
    }();
    return asked;
}

bool hasMnemonic(const std::string& text) {
    return text.find('&') != std::string::npos;
}

class ModuleCatalogue : public testing::TestWithParam<std::string> {};

TEST_P(ModuleCatalogue, HasEveryTextThatTheModuleAsksForWithTheSamePlaceholders) {
    const refhost::Languages language(GetParam());
    ASSERT_GT(askedTexts().size(), 100u);
    for (const auto& [key, builtIn] : askedTexts()) {
        const auto translation = language.translation(key, builtIn);
        if (!translation) {
            ADD_FAILURE() << "missing: " << key << " = " << builtIn;
            continue;
        }
        EXPECT_EQ(placeholders(*translation), placeholders(builtIn)) << key;
        EXPECT_EQ(hasMnemonic(*translation), hasMnemonic(builtIn)) << key << ": a letter for the keyboard";
    }
}

TEST_P(ModuleCatalogue, HasNoTextThatNobodyAsksForAndGivesTheCzechTextAsItIs) {
    for (const CatalogueEntry& entry : readCatalogue("module", GetParam())) {
        const bool isAsked = std::ranges::any_of(askedTexts(), [&](const AskedText& text) {
            const auto& [key, builtIn] = text;
            return builtIn == entry.source && (entry.id == key || entry.id == key + "|" + builtIn);
        });
        EXPECT_TRUE(isAsked) << entry.id << " = " << entry.source;
    }
}

TEST_P(ModuleCatalogue, TellsEntriesThatShareAKeyApart) {
    const refhost::Languages language(GetParam());
    std::map<std::string, std::map<std::string, std::string>> byKey; // key, translation, built-in text
    std::size_t shared = 0;
    for (const auto& [key, builtIn] : askedTexts()) {
        auto& texts = byKey[key];
        const auto [other, isNew] = texts.emplace(language.translation(key, builtIn).value_or(""), builtIn);
        EXPECT_TRUE(isNew) << key << ": “" << builtIn << "” reads like “" << other->second << "”";
        shared += texts.size() == 2 ? 1 : 0;
    }
    // Three pairs of menu entries, each with caption and hint, and the titles of the templates' and groups' selection.
    EXPECT_EQ(shared, 7u);
}

std::string read(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

void collectLiteralKeys(const std::string& source, std::set<std::string>& keys) {
    static const std::regex literal(R"re(R"\((KORDAN30\\[^)]*)\)")re");
    for (std::sregex_iterator match(source.begin(), source.end(), literal), end; match != end; ++match) {
        keys.insert((*match)[1].str());
    }
}

/// The keys and beginnings of keys that stand literally in the module's sources.
std::set<std::string> literalKeys() {
    std::set<std::string> keys;
    for (const char* name : {"host", "editwin", "editors", "select", "dialogs", "main"}) {
        const std::filesystem::path folder = std::string(MELVARK_SOURCES "/") + name;
        if (!std::filesystem::exists(folder)) { // a folder that has nothing yet
            continue;
        }
        for (const auto& file : std::filesystem::recursive_directory_iterator(folder)) {
            if (file.path().extension() == ".cpp" || file.path().extension() == ".h") {
                collectLiteralKeys(read(file.path()), keys);
            }
        }
    }
    return keys;
}

TEST(ModuleKeys, AreAllKnownThatStandInTheSources) {
    const std::set<std::string> keys = literalKeys();
    ASSERT_GT(keys.size(), 15u) << "the sources were not found";
    std::vector<std::string> unknown;
    std::ranges::copy_if(keys, std::back_inserter(unknown), [](const std::string& key) {
        return std::ranges::none_of(askedTexts(), [&](const AskedText& text) { return text.first.starts_with(key); });
    });
    EXPECT_THAT(unknown, IsEmpty()) << "use them in askedTexts()";
}

INSTANTIATE_TEST_SUITE_P(Languages, ModuleCatalogue, testing::ValuesIn(c_translatedLanguages),
                         [](const auto& row) { return row.param; });

} // namespace
