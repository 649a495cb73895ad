#include "editwin/SettingsStore.h"

#include "host/LiveData.h"

namespace melvark {

std::vector<SavedSetting> SettingsStore::List() const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENIGetList");
    proc.ParamByName("a_TYPEDITACE").SetAsInteger(FSettingsType);
    proc.Exec(true);
    std::vector<SavedSetting> settings;
    for (; !proc.Eof(); proc.Next()) {
        settings.push_back({proc.FieldByName("ID").AsInteger(), proc.FieldByName("NAZEV").AsString()});
    }
    return settings;
}

std::optional<DefaultSetting> SettingsStore::LoadDefault() const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENINactiDef");
    proc.ParamByName("a_TYPEDITACE").SetAsInteger(FSettingsType);
    proc.Exec(true);
    if (!proc.HasField("ID") || proc.FieldByName("ID").IsNull()) {
        return std::nullopt;
    }
    return DefaultSetting{proc.FieldByName("ID").AsInteger(), proc.FieldByName("DATA").AsString()};
}

} // namespace melvark
