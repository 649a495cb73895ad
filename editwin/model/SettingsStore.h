#pragma once

#include "host/Types.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace melvark {

/// A named column setting as the menu lists it.
struct SavedSetting {
    std::int32_t Id = 0;
    AnsiString Name;
};

/// The setting that editors of a type start with, with its document.
struct DefaultSetting {
    std::int32_t Id = 0;
    AnsiString Document;
};

/// What the user says of a setting.
struct SettingInfo {
    AnsiString Name;
    AnsiString Description;
    bool IsShared = false;
};

/// The database's store of named column settings, seen by one type of editor: one function for each procedure. Errors
/// of the database pass through.
class SettingsStore {
public:
    /// `settingsType` is the edit-type number plus the edit-type offset.
    explicit SettingsStore(std::int32_t settingsType) : FSettingsType(settingsType) {}

    /// The user's own settings and the shared ones, in the order in which the database returns them.
    std::vector<SavedSetting> List() const;
    /// Nothing when the user starts with the built-in layout.
    std::optional<DefaultSetting> LoadDefault() const;
    /// The document of a setting, which becomes the user's default; empty when there is none.
    AnsiString Load(std::int32_t id) const;
    void Save(std::int32_t id, const AnsiString& document) const;
    /// Returns the new setting's identifier.
    std::int32_t SaveAsNew(const SettingInfo& info, const AnsiString& document) const;
    SettingInfo Info(std::int32_t id) const;
    void Rename(std::int32_t id, const SettingInfo& info) const;
    void Delete(std::int32_t id) const;
    /// The user's next editor of the type starts with the built-in layout.
    void ForgetDefault() const;

private:
    std::int32_t FSettingsType;
};

} // namespace melvark
