#include "editwin/SettingsMenu.h"

#include "dialogs/MelvarkEditorSettingsWin.h"
#include "dialogs/ModuleBoxes.h"
#include "editwin/InPlaceEditing.h"
#include "editwin/model/ColumnList.h"
#include "editwin/model/ColumnSettingsDocument.h"
#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Guard.h"
#include "host/widgets/StringGrid.h"
#include "host/widgets/Text.h"

#include <QAction>
#include <QActionGroup>
#include <QCheckBox>
#include <QMenu>
#include <QScopeGuard>

#include <utility>
#include <vector>

namespace melvark {

namespace {

/// The tag of an item: the identifier of its setting. The fixed items of the menu have none and count as 0.
int Tag(const QAction* item) {
    return item->data().toInt();
}

} // namespace

SettingsMenu::SettingsMenu(GridEditing& editing, InPlaceEditing& keeper, SettingsStore store, TLibraryManager* manager,
                           const Controls& controls)
    : FEditing(editing),
      FKeeper(keeper),
      FSettings(store),
      FManager(manager),
      FControls(controls),
      FGroup(new QActionGroup(this)) {}

void SettingsMenu::ShowNoSetting() {
    FControls.Button.SetCaption(LangStr(R"(KORDAN30\MELVARKEDITOR\NONE)", {}, "Žádný vzor"));
}

void SettingsMenu::LoadList() {
    const QList<QAction*> former = FControls.Menu.actions();
    for (QAction* const item : former) {
        if (Tag(item) != 0) {
            delete item;
        }
    }
    const std::vector<SavedSetting> saved = FSettings.List();
    QAction* const firstFixed = FControls.Menu.actions().value(0);
    for (const SavedSetting& setting : saved) {
        QAction* const item = MakeItem(setting);
        FControls.Menu.insertAction(firstFixed, item);
        if (FSettings.HasInForce() && setting.Id == FSettings.SettingsId()) {
            ShowInForce(*item);
        }
    }
}

QAction* SettingsMenu::MakeItem(const SavedSetting& setting) {
    auto* const item = new QAction(PlainCaption(setting.Name), FControls.Menu.parentWidget());
    item->setObjectName(QStringLiteral("SavedSetting") + QString::number(setting.Id));
    item->setData(setting.Id);
    item->setCheckable(true);
    FGroup->addAction(item);
    ConnectGuarded(item, &QAction::triggered, this, [this, item] { FControls.OnChoose(item); });
    return item;
}

void SettingsMenu::LoadLast() {
    FEditing.SetActive(FEditing.Defaults);
    const std::optional<AnsiString> document = FSettings.LoadDefault();
    if (!document) {
        return;
    }
    ApplyDocument(*document);
    for (QAction* const item : FGroup->actions()) {
        if (Tag(item) == FSettings.SettingsId()) {
            ShowInForce(*item);
            return;
        }
    }
}

void SettingsMenu::ShowInForce(QAction& item) {
    FSettingsItem = &item;
    item.setChecked(true);
    FControls.Button.SetCaption(TextOfCaption(item.text()));
}

void SettingsMenu::ApplyDocument(std::string_view document) {
    AppliedColumnSettings applied = ReadColumnSettings(document, FEditing.InForce(), FEditing.Defaults);
    FEditing.SetActive(std::move(applied.Columns));
    if (applied.Recalculation && Visible(FControls.RecalculationPanel)) {
        FControls.Recalculation.setChecked(*applied.Recalculation);
    }
}

AnsiString SettingsMenu::Document() const {
    return WriteColumnSettings(FEditing.InForce(), Visible(FControls.RecalculationPanel)
                                                       ? std::optional(FControls.Recalculation.isChecked())
                                                       : std::nullopt);
}

void SettingsMenu::PrepareItems() {
    for (QAction* const item : {&FControls.Rename, &FControls.Save, &FControls.Delete}) {
        item->setEnabled(FSettings.HasInForce());
    }
}

void SettingsMenu::Choose(QAction* item) {
    if (!item) {
        return;
    }
    // The click has moved the check mark by itself.
    auto giveMarkBack = qScopeGuard([this, item] {
        item->setChecked(false);
        if (FSettingsItem) {
            FSettingsItem->setChecked(true);
        }
    });
    if (!FKeeper.HideEditor()) {
        return;
    }
    giveMarkBack.dismiss();
    FSettings.PutInForce(Tag(item));
    ShowInForce(*item);
    const AnsiString document = FSettings.Load();
    if (!document.empty()) {
        ApplyDocument(document);
        LayOut();
    }
}

/// The clerk stays in his row.
void SettingsMenu::LayOut() {
    TStringGrid& grid = FEditing.Grid;
    const std::optional<int> row = grid.Col() > 0 ? std::optional(grid.Row()) : std::nullopt;
    FEditing.LayOut();
    if (row) {
        grid.SetRow(*row);
    }
}

void SettingsMenu::Save() const {
    if (FSettings.HasInForce()) {
        FSettings.Save(Document());
    }
}

void SettingsMenu::SaveAsNew() {
    TSettingsBox box(FControls.Menu.parentWidget(), FManager);
    if (!AskAndStore(box, [this](const SettingInfo& info) { FSettings.SaveAsNew(info, Document()); })) {
        return;
    }
    FSettingsItem = nullptr; // that of the former setting, which the list may keep
    LoadList();
    NameItemInForce(box.GetNazev());
}

void SettingsMenu::Rename() {
    if (!FSettings.HasInForce()) {
        return;
    }
    TSettingsBox box(FControls.Menu.parentWidget(), FManager);
    const SettingInfo info = FSettings.Info();
    box.SetNazev(info.Name);
    box.SetPopis(info.Description);
    box.SetSdilene(info.IsShared);
    if (!AskAndStore(box, [this](const SettingInfo& changed) { FSettings.Rename(changed); })) {
        return;
    }
    NameItemInForce(box.GetNazev());
    FControls.Button.SetCaption(box.GetNazev());
}

/// Shows the dialog until it is cancelled or what the user says could be stored.
bool SettingsMenu::AskAndStore(TSettingsBox& box, const std::function<void(const SettingInfo&)>& store) const {
    while (box.ShowModal() == c_ResultOk) {
        if (Guarded([&] { store({box.GetNazev(), box.GetPopis(), box.GetSdilene()}); })) {
            return true;
        }
    }
    return false;
}

void SettingsMenu::Delete() {
    if (!FSettings.HasInForce() || ConfirmBox(FManager, LangStr(R"(KORDAN30\MELVARKEDITOR\DELETESELECTEDSETTINGS)", {},
                                                                "Smazat zvolené nastavení?")) != c_ResultYes) {
        return;
    }
    FSettings.Delete();
    delete FSettingsItem.data();
    LeaveSetting();
    FEditing.Awaited = DefaultsWithDataOf(FEditing.InForce(), FEditing.Defaults);
}

void SettingsMenu::RestoreBuiltIn() {
    if (ConfirmBox(FManager, LangStr(R"(KORDAN30\MELVARKEDITOR\RESTORE)", {}, "Obnovit původní nastavení?")) !=
            c_ResultYes ||
        !FKeeper.HideEditor()) {
        return;
    }
    LeaveSetting();
    FEditing.SetActive(DefaultsWithDataOf(FEditing.InForce(), FEditing.Defaults));
    LayOut();
    if (Visible(FControls.RecalculationPanel)) {
        FControls.Recalculation.setChecked(true);
    }
    FSettings.ForgetDefault();
}

void SettingsMenu::NameItemInForce(const AnsiString& name) {
    if (FSettingsItem) {
        FSettingsItem->setText(PlainCaption(name));
    }
}

/// No setting is in force, and none is checked.
void SettingsMenu::LeaveSetting() {
    FSettings.Leave();
    FSettingsItem = nullptr;
    ShowNoSetting();
    for (QAction* const item : FControls.Menu.actions()) {
        if (Tag(item) != 0) {
            item->setChecked(false);
        }
    }
}

} // namespace melvark
