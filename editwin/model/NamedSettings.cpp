#include "editwin/model/NamedSettings.h"

#include <utility>

namespace melvark {

std::optional<AnsiString> NamedSettings::LoadDefault() {
    std::optional<DefaultSetting> setting = FStore.LoadDefault();
    if (!setting) {
        return std::nullopt;
    }
    FSettingsId = setting->Id;
    return std::move(setting->Document);
}

void NamedSettings::Delete() {
    FStore.Delete(FSettingsId);
    Leave();
}

void NamedSettings::SaveAsNew(const SettingInfo& info, const AnsiString& document) {
    FSettingsId = FStore.SaveAsNew(info, document);
}

} // namespace melvark
