#pragma once

#include "editwin/model/SettingsStore.h"
#include "host/Identifier.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace melvark {

/// The named column settings of one editor without their menu: which ones are listed, which one is in force, and what
/// can be done with it. It knows documents as texts only; columns and menu items are its user's.
///
/// When the database refuses a step, what was changed before it stays changed: a chosen setting is in force before it
/// is read, a renamed, saved or deleted one changes only after the database agreed.
class NamedSettings {
public:
    explicit NamedSettings(SettingsStore store) : FStore(store) {}

    /// c_NullValue: none, the built-in layout.
    std::int32_t InForce() const { return FInForce; }
    bool HasInForce() const { return FInForce != c_NullValue; }
    void PutInForce(std::int32_t id) { FInForce = id; }
    /// No setting is in force; the store is not told.
    void Leave() { FInForce = c_NullValue; }

    /// In the order of the store at the last LoadList.
    const std::vector<SavedSetting>& Listed() const { return FListed; }
    /// The listed setting of that identifier, or null.
    const SavedSetting* Find(std::int32_t id) const;

    void LoadList() { FListed = FStore.List(); }
    /// The one in force is shown under this name, if it is listed; the list keeps its order.
    void ShowAs(const AnsiString& name);
    /// Puts the store's default in force, if there is one, and gives its document.
    std::optional<AnsiString> LoadDefault();

    // The rest needs a setting in force.
    AnsiString Load() const { return FStore.Load(FInForce); }
    void Save(const AnsiString& document) const { FStore.Save(FInForce, document); }
    SettingInfo Info() const { return FStore.Info(FInForce); }
    /// The list keeps its order.
    void Rename(const SettingInfo& info);
    /// Afterwards none is in force.
    void Delete();

    // These do not.
    /// The new setting is in force; the list does not have it until it is loaded again.
    void SaveAsNew(const SettingInfo& info, const AnsiString& document);
    void ForgetDefault() const { FStore.ForgetDefault(); }

private:
    SettingsStore FStore;
    std::int32_t FInForce = c_NullValue;
    std::vector<SavedSetting> FListed;
};

} // namespace melvark
