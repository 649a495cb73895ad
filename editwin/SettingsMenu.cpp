#include "editwin/SettingsMenu.h"

#include "editwin/model/ColumnSettingsDocument.h"
#include "host/LangStr.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Form.h"
#include "host/widgets/Text.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>

#include <algorithm>

namespace melvark {

namespace {

/// The tag of an item: the identifier of its setting. The fixed items of the menu have none and count as 0.
int Tag(const QAction* item) {
    return item->data().toInt();
}

} // namespace

SettingsMenu::SettingsMenu(GridEditing& editing, SettingsStore store, const Controls& controls)
    : FEditing(editing), FStore(store), FControls(controls) {}

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
    FListed = FStore.List();
    const QList<QAction*> fixed = FControls.Menu.actions();
    for (const SavedSetting& setting : FListed) {
        auto* const item = new QAction(PlainCaption(setting.Name), this);
        item->setData(setting.Id);
        item->setCheckable(true);
        FControls.Menu.insertAction(fixed.value(0), item);
    }
    if (FSettingsId != -1) {
        ShowInForce();
    }
}

void SettingsMenu::LoadLast() {
    FEditing.Active = FEditing.Defaults;
    const std::optional<DefaultSetting> setting = FStore.LoadDefault();
    if (!setting) {
        return;
    }
    FSettingsId = setting->Id;
    ApplyDocument(setting->Document);
    ShowInForce();
}

void SettingsMenu::ShowInForce() {
    const QList<QAction*> items = FControls.Menu.actions();
    const auto item =
        std::find_if(items.cbegin(), items.cend(), [this](const QAction* each) { return Tag(each) == FSettingsId; });
    const auto listed = std::find_if(FListed.cbegin(), FListed.cend(),
                                     [this](const SavedSetting& each) { return each.Id == FSettingsId; });
    if (item == items.cend() || listed == FListed.cend()) {
        return;
    }
    (*item)->setChecked(true);
    FControls.Button.SetCaption(listed->Name);
}

void SettingsMenu::ApplyDocument(std::string_view document) {
    AppliedColumnSettings applied = ReadColumnSettings(document, FEditing.Active, FEditing.Defaults);
    FEditing.Active = std::move(applied.Columns);
    if (applied.Recalculation && Visible(FControls.RecalculationPanel)) {
        FControls.Recalculation.setChecked(*applied.Recalculation);
    }
}

} // namespace melvark
