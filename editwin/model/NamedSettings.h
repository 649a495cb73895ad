#pragma once

#include "editwin/model/SettingsStore.h"
#include "host/Identifier.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace melvark {

/// The named column settings of one editor without their menu: which one is in force, and what can be done with it. It
/// knows documents as texts only; columns and menu items, with the names of what was listed, are its user's.
///
/// When the database refuses a step, what was changed before it stays changed: a chosen setting is in force before it
/// is read, a renamed, saved or deleted one changes only after the database agreed.
class NamedSettings {
public:
    explicit NamedSettings(SettingsStore store) : FStore(store) {}

    /// c_NullValue: none, the built-in layout.
    std::int32_t SettingsId() const { return FSettingsId; }
    bool HasInForce() const { return FSettingsId != c_NullValue; }
    void PutInForce(std::int32_t id) { FSettingsId = id; }
    /// No setting is in force; the store is not told.
    void Leave() { FSettingsId = c_NullValue; }

    /// In the order of the store.
    std::vector<SavedSetting> List() const { return FStore.List(); }
    /// Puts the store's default in force, if there is one, and gives its document.
    std::optional<AnsiString> LoadDefault();

    // The rest needs a setting in force.
    AnsiString Load() const { return FStore.Load(FSettingsId); }
    void Save(const AnsiString& document) const { FStore.Save(FSettingsId, document); }
    SettingInfo Info() const { return FStore.Info(FSettingsId); }
    void Rename(const SettingInfo& info) const { FStore.Rename(FSettingsId, info); }
    /// Afterwards none is in force.
    void Delete();

    // These do not.
    /// The new setting is in force.
    void SaveAsNew(const SettingInfo& info, const AnsiString& document);
    void ForgetDefault() const { FStore.ForgetDefault(); }

private:
    SettingsStore FStore;
    std::int32_t FSettingsId = c_NullValue;
};

} // namespace melvark
