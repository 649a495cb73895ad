#include "editwin/model/NamedSettings.h"

#include "host/Exceptions.h"
#include "tests/support/RecordingHost.h"

#include <gmock/gmock.h>

using melvark::SettingInfo;
using melvark::SettingsStore;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The settings of type 32 on a store that answers each procedure.
class NamedSettings : public testing::Test {
protected:
    NamedSettings() {
        script("GetList", {"a_TYPEDITACE"})
            .returns(
                {{{"NAZEV", "ID"}, {{AnsiString("Moje"), std::int64_t{3}}, {AnsiString("Sklad"), std::int64_t{7}}}}});
        script("NactiDef", {"a_TYPEDITACE"})
            .returns({{{"ID", "DATA"}, {{std::int64_t{7}, AnsiString("<settings/>")}}}});
        script("Nacti", {"a_ID"}).returns({resultTable({"DATA"}, {{"<settings/>"}})});
        script("Uloz", {"a_ID", "a_DATA"});
        script("UlozNove", {"a_NAZEV", "a_TYPEDITACE", "a_SDILENE", "a_KOMENTAR", "a_DATA"})
            .returns({{{"ID"}, {{std::int64_t{12}}}}});
        script("Premenuj", {"a_ID", "a_NAZEV", "a_KOMENTAR", "a_SDILENE"});
        script("Smaz", {"a_ID"});
        script("SmazDef", {"a_TYPEDITACE"});
    }

    ProcedureScript& script(const AnsiString& name, std::vector<AnsiString> inputs) {
        return host.connection.procedure("MELVARKEDITORNASTAVENI" + name).inputs(std::move(inputs));
    }

    RecordingHost host;
    TScopedHost installed{host};
    melvark::NamedSettings settings{SettingsStore(32)};
};

TEST_F(NamedSettings, NoneIsInForceAtFirst) {
    EXPECT_FALSE(settings.HasInForce());
    EXPECT_EQ(settings.SettingsId(), -1);
}

TEST_F(NamedSettings, AreListedAsTheStoreReturnsThem) {
    std::vector<AnsiString> names;
    for (const auto& setting : settings.List()) {
        names.push_back(setting.Name);
    }
    EXPECT_THAT(names, ElementsAre("Moje", "Sklad"));
}

TEST_F(NamedSettings, TheDefaultIsInForce) {
    EXPECT_EQ(settings.LoadDefault(), "<settings/>");
    EXPECT_EQ(settings.SettingsId(), 7);
}

TEST_F(NamedSettings, WithoutADefaultNothingChanges) {
    settings.PutInForce(3);
    script("NactiDef", {"a_TYPEDITACE"}).returns({{{"ID", "DATA"}, {{std::monostate(), std::monostate()}}}});
    EXPECT_EQ(settings.LoadDefault(), std::nullopt);
    EXPECT_EQ(settings.SettingsId(), 3);
}

TEST_F(NamedSettings, AStoreThatAnswersNothingHasNoDefaultAndNothingToLoad) {
    settings.PutInForce(3);
    script("NactiDef", {"a_TYPEDITACE"}).returns({});
    script("Nacti", {"a_ID"}).returns({});
    EXPECT_EQ(settings.LoadDefault(), std::nullopt);
    EXPECT_EQ(settings.SettingsId(), 3);
    EXPECT_EQ(settings.Load(), "");
}

TEST_F(NamedSettings, WorksOnTheOneInForce) {
    settings.PutInForce(3);
    EXPECT_EQ(settings.Load(), "<settings/>");
    settings.Save("<x/>");
    settings.Rename({"Jiné", "popis", true});
    EXPECT_THAT(host.connection.takeCalls(),
                ElementsAre("MELVARKEDITORNASTAVENINacti(a_ID=3) open",
                            "MELVARKEDITORNASTAVENIUloz(a_ID=3, a_DATA=\"<x/>\")",
                            "MELVARKEDITORNASTAVENIPremenuj(a_ID=3, a_NAZEV=\"Jiné\", a_KOMENTAR=\"popis\", "
                            "a_SDILENE=true)"));
}

TEST_F(NamedSettings, ANewOneIsInForce) {
    settings.SaveAsNew({"Příjem", "", false}, "<x/>");
    EXPECT_EQ(settings.SettingsId(), 12);
    EXPECT_THAT(host.connection.takeCalls(),
                ElementsAre("MELVARKEDITORNASTAVENIUlozNove(a_NAZEV=\"Příjem\", a_TYPEDITACE=32, a_SDILENE=false, "
                            "a_KOMENTAR=\"\", a_DATA=\"<x/>\") open"));
}

TEST_F(NamedSettings, ADeletedOneIsGone) {
    settings.PutInForce(3);
    settings.Delete();
    EXPECT_FALSE(settings.HasInForce());
}

TEST_F(NamedSettings, WhatTheStoreRefusesChangesNothing) {
    settings.PutInForce(3);
    for (const char* const name : {"Premenuj", "Smaz", "UlozNove"}) {
        host.connection.procedure(AnsiString("MELVARKEDITORNASTAVENI") + name).refusesCall(1, "Ne");
    }
    EXPECT_THROW(settings.Rename({"x", "", false}), EDatabaseError);
    EXPECT_THROW(settings.Delete(), EDatabaseError);
    EXPECT_THROW(settings.SaveAsNew({"x", "", false}, ""), EDatabaseError);
    EXPECT_EQ(settings.SettingsId(), 3);
}

TEST_F(NamedSettings, ForgettingTheDefaultIsToldToTheStoreAlone) {
    settings.PutInForce(3);
    settings.ForgetDefault();
    EXPECT_THAT(host.connection.takeCalls(), ElementsAre("MELVARKEDITORNASTAVENISmazDef(a_TYPEDITACE=32)"));
    EXPECT_EQ(settings.SettingsId(), 3);
    settings.Leave();
    EXPECT_FALSE(settings.HasInForce());
    EXPECT_THAT(host.connection.takeCalls(), IsEmpty());
}

} // namespace
