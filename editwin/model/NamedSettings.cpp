#include "editwin/model/NamedSettings.h"

#include <algorithm>

namespace melvark {

const SavedSetting* NamedSettings::Find(std::int32_t id) const {
    const auto found = std::ranges::find(FListed, id, &SavedSetting::Id);
    return found == FListed.end() ? nullptr : &*found;
}

void NamedSettings::ShowAs(const AnsiString& name) {
    const auto shown = std::ranges::find(FListed, FInForce, &SavedSetting::Id);
    if (shown != FListed.end()) {
        shown->Name = name;
    }
}

std::optional<AnsiString> NamedSettings::LoadDefault() {
    std::optional<DefaultSetting> setting = FStore.LoadDefault();
    if (!setting) {
        return std::nullopt;
    }
    FInForce = setting->Id;
    return std::move(setting->Document);
}

void NamedSettings::Rename(const SettingInfo& info) {
    FStore.Rename(FInForce, info);
    ShowAs(info.Name);
}

void NamedSettings::Delete() {
    FStore.Delete(FInForce);
    std::erase_if(FListed, [this](const SavedSetting& setting) { return setting.Id == FInForce; });
    Leave();
}

void NamedSettings::SaveAsNew(const SettingInfo& info, const AnsiString& document) {
    FInForce = FStore.SaveAsNew(info, document);
}

} // namespace melvark
