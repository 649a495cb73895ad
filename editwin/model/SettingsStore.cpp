#include "editwin/model/SettingsStore.h"

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

AnsiString SettingsStore::Load(std::int32_t id) const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENINacti");
    proc.ParamByName("a_ID").SetAsInteger(id);
    proc.Exec(true);
    return proc.HasField("DATA") ? proc.FieldByName("DATA").AsString() : AnsiString();
}

void SettingsStore::Save(std::int32_t id, const AnsiString& document) const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENIUloz");
    proc.ParamByName("a_ID").SetAsInteger(id);
    proc.ParamByName("a_DATA").SetAsString(document);
    proc.Exec(false);
}

std::int32_t SettingsStore::SaveAsNew(const SettingInfo& info, const AnsiString& document) const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENIUlozNove");
    proc.ParamByName("a_NAZEV").SetAsString(info.Name);
    proc.ParamByName("a_TYPEDITACE").SetAsInteger(FSettingsType);
    proc.ParamByName("a_SDILENE").SetAsBoolean(info.IsShared);
    proc.ParamByName("a_KOMENTAR").SetAsString(info.Description);
    proc.ParamByName("a_DATA").SetAsString(document);
    proc.Exec(true);
    return proc.FieldByName("ID").AsInteger();
}

SettingInfo SettingsStore::Info(std::int32_t id) const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENIGetInfo");
    proc.ParamByName("a_ID").SetAsInteger(id);
    proc.Exec(true);
    return {proc.FieldByName("NAZEV").AsString(), proc.FieldByName("KOMENTAR").AsString(),
            proc.FieldByName("SDILENE").AsBoolean()};
}

void SettingsStore::Rename(std::int32_t id, const SettingInfo& info) const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENIPremenuj");
    proc.ParamByName("a_ID").SetAsInteger(id);
    proc.ParamByName("a_NAZEV").SetAsString(info.Name);
    proc.ParamByName("a_KOMENTAR").SetAsString(info.Description);
    proc.ParamByName("a_SDILENE").SetAsBoolean(info.IsShared);
    proc.Exec(false);
}

void SettingsStore::Delete(std::int32_t id) const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENISmaz");
    proc.ParamByName("a_ID").SetAsInteger(id);
    proc.Exec(false);
}

void SettingsStore::ForgetDefault() const {
    TLiveStoredProc proc("MELVARKEDITORNASTAVENISmazDef");
    proc.ParamByName("a_TYPEDITACE").SetAsInteger(FSettingsType);
    proc.Exec(false);
}

} // namespace melvark
