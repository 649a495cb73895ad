#pragma once

#include "editwin/GridEditing.h"
#include "editwin/model/NamedSettings.h"
#include "host/Types.h"
#include "host/widgets/Vocabulary.h"

#include <QAction>
#include <QObject>
#include <QPointer>

#include <functional>
#include <string_view>

class QActionGroup;
class QCheckBox;
class QMenu;
class QWidget;
class TLibraryManager;
class TMenuButton;
class TSettingsBox;

namespace melvark {

class InPlaceEditing;

/// The settings menu over the named column settings: the radio items of the saved ones above the fixed items, the
/// caption of the menu button, the dialogs, and the laying of a setting's document over the active columns. Each
/// command that changes the picture first asks the keeper to commit.
///
/// Items of saved settings bear their identifier as a tag. An item whose tag is 0 counts as fixed.
class SettingsMenu : public QObject {
    Q_OBJECT

public:
    struct Controls {
        TMenuButton& Button; ///< Shows the name of the setting in force.
        QMenu& Menu;
        QAction& Rename;
        QAction& Save;
        QAction& Delete;
        QWidget& RecalculationPanel; ///< While it is hidden, a setting says nothing of the switch.
        QCheckBox& Recalculation;
        TNotifyEvent OnChoose; ///< The click of each saved setting's item.
    };

    /// A null manager leaves the dialogs untranslated.
    SettingsMenu(GridEditing& editing, InPlaceEditing& keeper, SettingsStore store, TLibraryManager* manager,
                 const Controls& controls);

    /// Shows that no setting is in force.
    void ShowNoSetting();
    /// Fills the menu anew with one item for each saved setting, above the fixed items.
    void LoadList();
    /// Puts the built-in layout in force, and then the store's default setting over it, if there is one.
    void LoadLast();
    /// Lays a document over the active columns; a damaged one gives the built-in layout. The grid is not touched.
    void ApplyDocument(std::string_view document);
    /// The document of the columns in force, and of the switch when its panel shows.
    AnsiString Document() const;

    /// Enables the items for the setting in force; called each time before the menu shows.
    void PrepareItems();
    /// Puts the setting of an item in force and shows it. One without a document changes nothing of the picture.
    void Choose(QAction* item);
    void Save() const;
    /// Asks for a name; a name that the store refuses is asked for again.
    void SaveAsNew();
    void Rename();
    /// The grid goes on showing the deleted layout until the columns are next laid out.
    void Delete();
    void RestoreBuiltIn();

    /// The setting in force; c_NullValue for none.
    std::int32_t SettingsId() const { return FSettings.SettingsId(); }
    /// Its item; null for none, and for a setting that the list does not hold.
    QAction* SettingsItem() const { return FSettingsItem; }

private:
    QAction* MakeItem(const SavedSetting& setting);
    void ShowInForce(QAction& item);
    void LeaveSetting();
    void NameItemInForce(const AnsiString& name);
    void LayOut();
    bool AskAndStore(TSettingsBox& box, const std::function<void(const SettingInfo&)>& store) const;

    GridEditing& FEditing;
    InPlaceEditing& FKeeper;
    NamedSettings FSettings;
    TLibraryManager* FManager;
    Controls FControls;
    QActionGroup* FGroup;
    QPointer<QAction> FSettingsItem;
};

} // namespace melvark
