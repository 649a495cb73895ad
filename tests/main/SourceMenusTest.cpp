#include "main/SourceMenus.h"

#include "tests/support/RecordingHost.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;

class SourceMenus : public testing::Test {
protected:
    /// Two lines for each entry: tag, code, key and caption; then the hint.
    static std::vector<AnsiString> lines(const melvark::SourceMenu& menu) {
        std::vector<AnsiString> texts;
        for (const melvark::SourceMenuEntry& entry : menu.Entries) {
            texts.push_back(std::to_string(entry.Tag) + " " + melvark::SourceCode(menu.Codes, entry.Tag) + " " +
                            AnsiString(entry.Key) + " | " + melvark::MenuCaption(entry));
            texts.push_back("    " + melvark::MenuHint(entry));
        }
        return texts;
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
};

TEST_F(SourceMenus, OfADeliveryNote) {
    EXPECT_THAT(
        lines(melvark::c_DodakMenu),
        ElementsAre(
            "1 DODOBJ VLOZPOLOZKYDODAKUNAZAKLADEOBJEDNAVKY | Vložit položky na základě objednávky",
            "    Zobrazí editor položek dodacího listu a seznam předvyplní položkami z objednávky, kterou si uživatel "
            "zvolí v editoru",
            "2 DODAK VLOZPOLOZKYDODAKUNAZAKLADEDODAKU | Vložit položky na základě dodacího listu",
            "    Zobrazí editor položek dodacího listu a seznam předvyplní položkami z dodacího listu, který si "
            "uživatel zvolí v editoru",
            "3 SABLONA VLOZPOLOZKYDODAKUNAZAKLADEMELVARK | Vložit položky pomocí šablony dodacího listu",
            "    Zobrazí editor položek dodacího listu a seznam předvyplní položkami z posledních dodacích listů"));
}

// The delivery note's entry stands before the template's.
TEST_F(SourceMenus, OfASupplierOrder) {
    EXPECT_THAT(
        lines(melvark::c_DodObjMenu),
        ElementsAre("1 OBJEDNAVKA VLOZPOLOZKYOBJNAZAKLADEOBJEDNAVKY | Vložit položky z objednávky",
                    "    Zobrazí editor položek objednávky a seznam předvyplní položkami z objednávky, kterou si "
                    "uživatel zvolí v editoru",
                    "2 OBJEDNAVKAVZOR VLOZPOLOZKYOBJNAZAKLADEVZORUOBJEDNAVKY | Vložit položky ze vzoru objednávky",
                    "    Zobrazí editor položek objednávky a seznam předvyplní položkami ze vzoru objednávky, který si "
                    "uživatel zvolí v editoru",
                    "4 DODAK VLOZPOLOZKYOBJNAZAKLADEDODAKU | Vložit položky z dodacího listu",
                    "    Zobrazí editor položek objednávky a seznam předvyplní položkami z dodacího listu, který si "
                    "uživatel zvolí v editoru",
                    "3 SABLONA VLOZPOLOZKYOBJNAZAKLADEMELVARK | Vložit položky pomocí šablony objednávky",
                    "    Zobrazí editor položek objednávky a seznam předvyplní položkami z posledních objednávek",
                    "5 SKUPSKLADPOL VLOZPOLOZKYOBJDLESKUPSKLADPOL | Vložit položky dle skupin skladových položek",
                    "    Zobrazí editor položek objednávky a seznam předvyplní položkami zadaných skupin skladových "
                    "položek, které si uživatel zvolí v editoru",
                    "6 DODAVATEL VLOZPOLOZKYOBJDLEDLESKUPSKLADPOL | Vložit položky dle ceníku dodavatele",
                    "    Zobrazí editor položek objednávky a seznam předvyplní skladovými položkami na které má vazbu "
                    "zvolený dodavatel dle data a času objednání",
                    "7 DODAVKY VLOZPOLOZKYOBJDLEDLESKUPSKLADPOL | Vložit položky dle dodávek dodavatele",
                    "    Zobrazí editor položek objednávky a seznam předvyplní skladovými položkami z dodacích listů "
                    "zvoleného dodavatele za období nastavené v globálním parametru"));
}

// A template offers no template of the latest orders.
TEST_F(SourceMenus, OfAnOrderTemplate) {
    EXPECT_THAT(
        lines(melvark::c_DodObjVzorMenu),
        ElementsAre("1 OBJEDNAVKA VLOZPOLOZKYVZORUNAZAKLADEOBJEDNAVKY | Vložit položky z objednávky",
                    "    Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami z objednávky, kterou si "
                    "uživatel zvolí v editoru",
                    "2 OBJEDNAVKAVZOR VLOZPOLOZKYVZORUNAZAKLADEOBJEDNAVKY | Vložit položky ze vzoru objednávky",
                    "    Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami ze vzoru objednávky, "
                    "který si uživatel zvolí v editoru",
                    "4 DODAK VLOZPOLOZKYVZORUNAZAKLADEDODAKU | Vložit položky z dodacího listu",
                    "    Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami z dodacího listu, který "
                    "si uživatel zvolí v editoru",
                    "5 SKUPSKLADPOL VLOZPOLOZKYVZORUDLESKUPSKLADPOL | Vložit položky dle skupin skladových položek",
                    "    Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami zadaných skupin "
                    "skladových položek, které si uživatel zvolí v editoru",
                    "6 DODAVATEL VLOZPOLOZKYVZORUDLESKUPSKLADPOL | Vložit položky dle ceníku dodavatele",
                    "    Zobrazí editor položek vzoru objednávky a seznam předvyplní skladovými položkami na které má "
                    "vazbu zvolený dodavatel v aktuálni datum a čas",
                    "7 DODAVKY VLOZPOLOZKYVZORUDLESKUPSKLADPOL | Vložit položky dle dodávek dodavatele",
                    "    Zobrazí editor položek vzoru objednávky a seznam předvyplní skladovými položkami z dodacích "
                    "listů zvoleného dodavatele za období nastavené v globálním parametru"));
}

TEST_F(SourceMenus, CaptionAndHintHaveLanguageKeys) {
    host_.translations[R"(KORDAN30\MELVARKEDITOR\VLOZPOLOZKYDODAKUNAZAKLADEMELVARK)"] = "From the template";
    host_.translations[R"(KORDAN30\MELVARKEDITOR\VLOZPOLOZKYDODAKUNAZAKLADEMELVARKHINT)"] = "The latest lines";
    const melvark::SourceMenuEntry& entry = melvark::c_DodakMenu.Entries[2];
    EXPECT_EQ(melvark::MenuCaption(entry), "From the template");
    EXPECT_EQ(melvark::MenuHint(entry), "The latest lines");
}

TEST_F(SourceMenus, EntriesThatShareAKeyAreToldApartByTheirBuiltInText) {
    const AnsiString key = R"(KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJDLEDLESKUPSKLADPOL)";
    host_.translations[key] = "By the supplier's price list";
    host_.translations[key + "|Vložit položky dle dodávek dodavatele"] = "By the supplier's deliveries";
    EXPECT_EQ(melvark::MenuCaption(melvark::c_DodObjMenu.Entries[5]), "By the supplier's price list");
    EXPECT_EQ(melvark::MenuCaption(melvark::c_DodObjMenu.Entries[6]), "By the supplier's deliveries");
}

TEST_F(SourceMenus, ATagBeyondTheTableHasNoCode) {
    for (const int tag : {-1, 0, 4}) {
        EXPECT_EQ(melvark::SourceCode(melvark::c_DodakMenu.Codes, tag), "") << tag;
    }
    EXPECT_EQ(melvark::SourceCode(melvark::c_DodakMenu.Codes, 1), "DODOBJ");
    EXPECT_EQ(melvark::SourceCode(melvark::c_DodObjVzorMenu.Codes, 3), "SABLONA");
}

} // namespace
