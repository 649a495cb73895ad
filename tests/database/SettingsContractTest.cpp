#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"

namespace refhost {

namespace {

constexpr std::int64_t c_Notes = 1;
constexpr std::int64_t c_Orders = 11;

/// Two clerks at one company.
class SettingsContract : public Contract {
protected:
    void SetUp() override {
        const std::string url = ownCompanyUrl();
        first_ = openAs(url, "novakova");
        second_ = openAs(url, "dvorak");
    }

    Database& novakova() { return *first_; }
    Database& dvorak() { return *second_; }

private:
    std::unique_ptr<Database> first_;
    std::unique_ptr<Database> second_;
};

std::string keepNew(Database& database, const std::string& name, bool shared = false, const std::string& data = "<a/>",
                    std::int64_t type = c_Notes) {
    return answer(database, "MELVARKEDITORNASTAVENIUlozNove",
                  {{"a_NAZEV", name},
                   {"a_TYPEDITACE", type},
                   {"a_SDILENE", shared},
                   {"a_KOMENTAR", std::string("popis")},
                   {"a_DATA", data}});
}

std::string list(Database& database, std::int64_t type = c_Notes) {
    return answer(database, "MELVARKEDITORNASTAVENIGetList", {{"a_TYPEDITACE", type}});
}

std::string defaultOf(Database& database, std::int64_t type = c_Notes) {
    return answer(database, "MELVARKEDITORNASTAVENINactiDef", {{"a_TYPEDITACE", type}});
}

std::string load(Database& database, std::int64_t setting) {
    return answer(database, "MELVARKEDITORNASTAVENINacti", {{"a_ID", setting}});
}

std::string keep(Database& database, std::int64_t setting, const TDbValue& data) {
    return answer(database, "MELVARKEDITORNASTAVENIUloz", {{"a_ID", setting}, {"a_DATA", data}});
}

std::string info(Database& database, std::int64_t setting) {
    return answer(database, "MELVARKEDITORNASTAVENIGetInfo", {{"a_ID", setting}});
}

std::string rename(Database& database, std::int64_t setting, const std::string& name, bool shared) {
    return answer(database, "MELVARKEDITORNASTAVENIPremenuj",
                  {{"a_ID", setting}, {"a_NAZEV", name}, {"a_KOMENTAR", {}}, {"a_SDILENE", shared}});
}

std::string forget(Database& database, std::int64_t setting) {
    return answer(database, "MELVARKEDITORNASTAVENISmaz", {{"a_ID", setting}});
}

std::string forgetDefault(Database& database, std::int64_t type = c_Notes) {
    return answer(database, "MELVARKEDITORNASTAVENISmazDef", {{"a_TYPEDITACE", type}});
}

const char* const c_NoDefault = "- | -";

TEST_P(SettingsContract, OwnSettingsComeFirstThenSharedOnesEachByName) {
    EXPECT_EQ(list(novakova()), "");
    EXPECT_EQ(keepNew(dvorak(), "Cenová", true), "1");
    EXPECT_EQ(keepNew(dvorak(), "Alfa", true), "2");
    EXPECT_EQ(keepNew(dvorak(), "Soukromá"), "3");
    EXPECT_EQ(keepNew(novakova(), "Šířky"), "4");
    EXPECT_EQ(keepNew(novakova(), "Čísla", true), "5");
    EXPECT_EQ(keepNew(novakova(), "Cizí druh", true, "<a/>", c_Orders), "6");

    EXPECT_EQ(list(novakova()), "Čísla | 5\nŠířky | 4\nAlfa | 2\nCenová | 1");
    EXPECT_EQ(list(dvorak()), "Alfa | 2\nCenová | 1\nSoukromá | 3\nČísla | 5");
    EXPECT_EQ(list(dvorak(), c_Orders), "Cizí druh | 6");
    EXPECT_EQ(list(dvorak(), 99), "");
}

TEST_P(SettingsContract, TheDefaultIsTheSettingLastLoadedSavedOrSavedAsNew) {
    EXPECT_EQ(defaultOf(novakova()), c_NoDefault);
    EXPECT_EQ(keepNew(novakova(), "První", false, "<prvni/>"), "1");
    EXPECT_EQ(defaultOf(novakova()), "1 | <prvni/>");
    EXPECT_EQ(keepNew(novakova(), "Druhé", false, "<druhe/>"), "2");
    EXPECT_EQ(defaultOf(novakova()), "2 | <druhe/>");
    EXPECT_EQ(load(novakova(), 1), "<prvni/>");
    EXPECT_EQ(defaultOf(novakova()), "1 | <prvni/>");
    EXPECT_EQ(keep(novakova(), 2, AnsiString("<jine/>")), "");
    EXPECT_EQ(defaultOf(novakova()), "2 | <jine/>");
}

TEST_P(SettingsContract, TheDefaultIsOfOneUserAndOneKindOfEditor) {
    EXPECT_EQ(keepNew(novakova(), "Společné", true, "<s/>"), "1");
    EXPECT_EQ(keepNew(novakova(), "Objednávky", false, "<o/>", c_Orders), "2");
    EXPECT_EQ(defaultOf(novakova()), "1 | <s/>");
    EXPECT_EQ(defaultOf(novakova(), c_Orders), "2 | <o/>");
    EXPECT_EQ(defaultOf(dvorak()), c_NoDefault);
    EXPECT_EQ(load(dvorak(), 1), "<s/>"); // a shared one may be anybody's default
    EXPECT_EQ(defaultOf(dvorak()), "1 | <s/>");
    EXPECT_EQ(forgetDefault(dvorak()), "");
    EXPECT_EQ(defaultOf(dvorak()), c_NoDefault);
    EXPECT_EQ(defaultOf(novakova()), "1 | <s/>");
    EXPECT_EQ(list(dvorak()), "Společné | 1"); // the setting itself stays
}

TEST_P(SettingsContract, ADeletedDefaultIsNone) {
    EXPECT_EQ(keepNew(novakova(), "Společné", true), "1");
    EXPECT_EQ(load(dvorak(), 1), "<a/>");
    EXPECT_EQ(forget(novakova(), 1), "");
    EXPECT_EQ(defaultOf(novakova()), c_NoDefault);
    EXPECT_EQ(defaultOf(dvorak()), c_NoDefault);
    EXPECT_EQ(list(dvorak()), "");
}

TEST_P(SettingsContract, ADefaultThatIsNotSharedAnyMoreIsNoneForOthers) {
    EXPECT_EQ(keepNew(novakova(), "Společné", true), "1");
    EXPECT_EQ(load(dvorak(), 1), "<a/>");
    EXPECT_EQ(rename(novakova(), 1, "Moje", false), "");
    EXPECT_EQ(defaultOf(dvorak()), c_NoDefault);
    EXPECT_EQ(defaultOf(novakova()), "1 | <a/>");
    EXPECT_EQ(list(dvorak()), "");
}

TEST_P(SettingsContract, ForgettingADefaultTwiceOrOfNobodyIsNoError) {
    EXPECT_EQ(forgetDefault(novakova()), "");
    EXPECT_EQ(keepNew(novakova(), "První"), "1");
    EXPECT_EQ(forgetDefault(novakova(), c_Orders), ""); // of another editor
    EXPECT_EQ(defaultOf(novakova()), "1 | <a/>");
    EXPECT_EQ(forgetDefault(novakova()), "");
    EXPECT_EQ(forgetDefault(novakova()), "");
    EXPECT_EQ(defaultOf(novakova()), c_NoDefault);
}

TEST_P(SettingsContract, OnlyTheOwnerChangesASharedSetting) {
    EXPECT_EQ(keepNew(novakova(), "Společné", true), "1");
    EXPECT_EQ(info(dvorak(), 1), "Společné | popis | 1");
    const std::string foreign = "ML061 Nastavení „Společné“ patří jinému uživateli. Uložte si je jako nové.";
    EXPECT_EQ(keep(dvorak(), 1, AnsiString("<b/>")), foreign);
    EXPECT_EQ(rename(dvorak(), 1, "Cizí", true), foreign);
    EXPECT_EQ(forget(dvorak(), 1), foreign);
    EXPECT_EQ(defaultOf(dvorak()), c_NoDefault); // a refused saving makes no default

    EXPECT_EQ(rename(novakova(), 1, " Jinak ", true), "");
    EXPECT_EQ(info(dvorak(), 1), "Jinak | - | 1");
    EXPECT_EQ(load(dvorak(), 1), "<a/>");
}

TEST_P(SettingsContract, AnothersPrivateSettingIsAsGoodAsNone) {
    EXPECT_EQ(keepNew(novakova(), "Soukromé"), "1");
    const std::string none = "ML060 Nastavení s identifikátorem 1 neexistuje nebo není sdílené. Vyberte jiné.";
    EXPECT_EQ(info(dvorak(), 1), none);
    EXPECT_EQ(load(dvorak(), 1), none);
    EXPECT_EQ(keep(dvorak(), 1, {}), none);
    EXPECT_EQ(rename(dvorak(), 1, "Moje", false), none);
    EXPECT_EQ(forget(dvorak(), 1), none);
    EXPECT_EQ(load(novakova(), 999),
              "ML060 Nastavení s identifikátorem 999 neexistuje nebo není sdílené. Vyberte jiné.");
    EXPECT_EQ(answer(novakova(), "MELVARKEDITORNASTAVENINacti"),
              "ML060 Nastavení s identifikátorem NULL neexistuje nebo není sdílené. Vyberte jiné.");
}

TEST_P(SettingsContract, ANameIsUniqueForAUserAndAKindOfEditor) {
    EXPECT_EQ(keepNew(novakova(), "Moje"), "1");
    EXPECT_EQ(keepNew(novakova(), " Moje "), "ML063 Nastavení s názvem „Moje“ už máte. Zvolte jiný název.");
    EXPECT_EQ(keepNew(novakova(), "moje"), "2"); // other letters
    EXPECT_EQ(keepNew(novakova(), "Moje", false, "<a/>", c_Orders), "3");
    EXPECT_EQ(keepNew(dvorak(), "Moje", true), "4");
    EXPECT_EQ(rename(novakova(), 2, "Moje", false), "ML063 Nastavení s názvem „Moje“ už máte. Zvolte jiný název.");
    EXPECT_EQ(rename(novakova(), 1, "Moje", true), ""); // its own name
    EXPECT_EQ(info(novakova(), 2), "moje | popis | 0");
}

TEST_P(SettingsContract, ANameIsNeitherEmptyNorTooLong) {
    std::string hundred;
    for (int i = 0; i < 100; ++i) {
        hundred += "ř";
    }
    std::string shown;
    for (int i = 0; i < 60; ++i) {
        shown += "ř";
    }
    EXPECT_EQ(keepNew(novakova(), ""), "ML062 Nastavení nemá název. Zapište jej.");
    EXPECT_EQ(keepNew(novakova(), "  "), "ML062 Nastavení nemá název. Zapište jej.");
    EXPECT_EQ(keepNew(novakova(), hundred + "a"), "ML064 Název „" + shown + "…“ je delší než 100 znaků. Zkraťte jej.");
    EXPECT_EQ(keepNew(novakova(), hundred), "1");
    EXPECT_EQ(rename(novakova(), 1, "", false), "ML062 Nastavení nemá název. Zapište jej.");
    EXPECT_EQ(info(novakova(), 1), hundred + " | popis | 0");
}

TEST_P(SettingsContract, AKindOfEditorIsNeededToKeepSomething) {
    EXPECT_EQ(answer(novakova(), "MELVARKEDITORNASTAVENIUlozNove", {{"a_NAZEV", AnsiString("Moje")}}),
              "ML065 Druh editoru není zadán. Zadejte jej.");
    EXPECT_EQ(answer(novakova(), "MELVARKEDITORNASTAVENIUlozNastaveniOkna"),
              "ML065 Druh editoru není zadán. Zadejte jej.");
}

TEST_P(SettingsContract, ADocumentComesBackToTheLetter) {
    const std::string data = "<?xml version=\"1.0\"?>\n<nastaveni název='příliš \"žluťoučký\" kůň; %d 日本 😀'/>\t \n";
    EXPECT_EQ(keepNew(novakova(), "Moje", false, data), "1");
    EXPECT_EQ(load(novakova(), 1), data);
    EXPECT_EQ(keep(novakova(), 1, {}), "");
    EXPECT_EQ(defaultOf(novakova()), "1 | -"); // an empty document is the default all the same
}

TEST_P(SettingsContract, PlacementsAreOfOneUserAndOneKindOfEditor) {
    const auto placement = [](Database& database, std::int64_t type) {
        return answer(database, "MELVARKEDITORNASTAVENINactiNastaveniOkna", {{"a_TYPEDITACE", type}});
    };
    const auto keepPlacement = [](Database& database, std::int64_t type, const TDbValue& data) {
        return answer(database, "MELVARKEDITORNASTAVENIUlozNastaveniOkna", {{"a_TYPEDITACE", type}, {"a_DATA", data}});
    };
    EXPECT_EQ(placement(novakova(), 0), "-"); // one row, with nothing in it
    EXPECT_EQ(keepPlacement(novakova(), 0, AnsiString("<okno x=\"1\"/>")), "");
    EXPECT_EQ(keepPlacement(novakova(), 10, AnsiString("<okno x=\"2\"/>")), "");
    EXPECT_EQ(keepPlacement(dvorak(), 0, AnsiString("<okno x=\"3\"/>")), "");
    EXPECT_EQ(placement(novakova(), 0), "<okno x=\"1\"/>");
    EXPECT_EQ(placement(novakova(), 10), "<okno x=\"2\"/>");
    EXPECT_EQ(placement(dvorak(), 0), "<okno x=\"3\"/>");
    EXPECT_EQ(placement(dvorak(), 10), "-");
    EXPECT_EQ(keepPlacement(novakova(), 0, AnsiString("<okno x=\"4\"/>")), "");
    EXPECT_EQ(placement(novakova(), 0), "<okno x=\"4\"/>");
}

INSTANTIATE_TEST_SUITE_P(Engines, SettingsContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
