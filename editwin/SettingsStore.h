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

/// The database's store of named column settings, seen by one type of editor. Errors of the database pass through.
class SettingsStore {
public:
    /// `settingsType` is the edit-type number plus the edit-type offset.
    explicit SettingsStore(std::int32_t settingsType) : FSettingsType(settingsType) {}

    /// The user's own settings and the shared ones, in the order in which the database returns them.
    std::vector<SavedSetting> List() const;
    /// Nothing when the user starts with the built-in layout.
    std::optional<DefaultSetting> LoadDefault() const;

private:
    std::int32_t FSettingsType;
};

} // namespace melvark
