#pragma once

#include "editwin/GridEditing.h"
#include "editwin/SettingsStore.h"

#include <QObject>

#include <string_view>
#include <vector>

class QCheckBox;
class QMenu;
class QWidget;
class TMenuButton;

namespace melvark {

/// The named column settings of one editor: the items of the settings menu, the setting in force, and the laying of a
/// setting's document over the active columns. The grid is not touched: whoever applies a setting lays the columns out
/// afterwards.
class SettingsMenu : public QObject {
    Q_OBJECT

public:
    struct Controls {
        TMenuButton& Button; ///< Shows the name of the setting in force.
        QMenu& Menu;
        QWidget& RecalculationPanel; ///< While it is hidden, a setting says nothing of the switch.
        QCheckBox& Recalculation;
    };

    SettingsMenu(GridEditing& editing, SettingsStore store, const Controls& controls);

    /// Shows that no setting is in force.
    void ShowNoSetting();
    /// Fills the menu anew with one item for each saved setting, above the fixed items.
    void LoadList();
    /// Puts the built-in layout in force, and then the store's default setting over it, if there is one.
    void LoadLast();
    /// Lays a document over the active columns; a damaged one gives the built-in layout.
    void ApplyDocument(std::string_view document);

    /// The setting in force; -1 for none.
    std::int32_t SettingsId() const { return FSettingsId; }

private:
    /// Checks the item of the setting in force and shows its name, when it is listed.
    void ShowInForce();

    GridEditing& FEditing;
    SettingsStore FStore;
    Controls FControls;
    std::int32_t FSettingsId = -1;
    std::vector<SavedSetting> FListed;
};

} // namespace melvark
