#include "main/SourceMenus.h"

#include "editors/EditTypes.h"
#include "host/LangStr.h"

#include <array>

namespace melvark {

namespace {

constexpr std::array c_DodakEntries{
    SourceMenuEntry{1, "VLOZPOLOZKYDODAKUNAZAKLADEOBJEDNAVKY", "Vložit položky na základě objednávky",
                    "Zobrazí editor položek dodacího listu a seznam předvyplní položkami z objednávky, kterou si "
                    "uživatel zvolí v editoru"},
    SourceMenuEntry{2, "VLOZPOLOZKYDODAKUNAZAKLADEDODAKU", "Vložit položky na základě dodacího listu",
                    "Zobrazí editor položek dodacího listu a seznam předvyplní položkami z dodacího listu, který si "
                    "uživatel zvolí v editoru"},
    SourceMenuEntry{3, "VLOZPOLOZKYDODAKUNAZAKLADEMELVARK", "Vložit položky pomocí šablony dodacího listu",
                    "Zobrazí editor položek dodacího listu a seznam předvyplní položkami z posledních dodacích listů"},
};

constexpr std::array c_DodObjEntries{
    SourceMenuEntry{1, "VLOZPOLOZKYOBJNAZAKLADEOBJEDNAVKY", "Vložit položky z objednávky",
                    "Zobrazí editor položek objednávky a seznam předvyplní položkami z objednávky, kterou si uživatel "
                    "zvolí v editoru"},
    SourceMenuEntry{2, "VLOZPOLOZKYOBJNAZAKLADEVZORUOBJEDNAVKY", "Vložit položky ze vzoru objednávky",
                    "Zobrazí editor položek objednávky a seznam předvyplní položkami ze vzoru objednávky, který si "
                    "uživatel zvolí v editoru"},
    SourceMenuEntry{4, "VLOZPOLOZKYOBJNAZAKLADEDODAKU", "Vložit položky z dodacího listu",
                    "Zobrazí editor položek objednávky a seznam předvyplní položkami z dodacího listu, který si "
                    "uživatel zvolí v editoru"},
    SourceMenuEntry{3, "VLOZPOLOZKYOBJNAZAKLADEMELVARK", "Vložit položky pomocí šablony objednávky",
                    "Zobrazí editor položek objednávky a seznam předvyplní položkami z posledních objednávek"},
    SourceMenuEntry{5, "VLOZPOLOZKYOBJDLESKUPSKLADPOL", "Vložit položky dle skupin skladových položek",
                    "Zobrazí editor položek objednávky a seznam předvyplní položkami zadaných skupin skladových "
                    "položek, které si uživatel zvolí v editoru"},
    SourceMenuEntry{6, "VLOZPOLOZKYOBJDLEDLESKUPSKLADPOL", "Vložit položky dle ceníku dodavatele",
                    "Zobrazí editor položek objednávky a seznam předvyplní skladovými položkami na které má vazbu "
                    "zvolený dodavatel dle data a času objednání"},
    SourceMenuEntry{7, "VLOZPOLOZKYOBJDLEDLESKUPSKLADPOL", "Vložit položky dle dodávek dodavatele",
                    "Zobrazí editor položek objednávky a seznam předvyplní skladovými položkami z dodacích listů "
                    "zvoleného dodavatele za období nastavené v globálním parametru"},
};

constexpr std::array c_DodObjVzorEntries{
    SourceMenuEntry{1, "VLOZPOLOZKYVZORUNAZAKLADEOBJEDNAVKY", "Vložit položky z objednávky",
                    "Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami z objednávky, kterou si "
                    "uživatel zvolí v editoru"},
    SourceMenuEntry{2, "VLOZPOLOZKYVZORUNAZAKLADEOBJEDNAVKY", "Vložit položky ze vzoru objednávky",
                    "Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami ze vzoru objednávky, který "
                    "si uživatel zvolí v editoru"},
    SourceMenuEntry{4, "VLOZPOLOZKYVZORUNAZAKLADEDODAKU", "Vložit položky z dodacího listu",
                    "Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami z dodacího listu, který si "
                    "uživatel zvolí v editoru"},
    SourceMenuEntry{5, "VLOZPOLOZKYVZORUDLESKUPSKLADPOL", "Vložit položky dle skupin skladových položek",
                    "Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami zadaných skupin skladových "
                    "položek, které si uživatel zvolí v editoru"},
    SourceMenuEntry{6, "VLOZPOLOZKYVZORUDLESKUPSKLADPOL", "Vložit položky dle ceníku dodavatele",
                    "Zobrazí editor položek vzoru objednávky a seznam předvyplní skladovými položkami na které má "
                    "vazbu zvolený dodavatel v aktuálni datum a čas"},
    SourceMenuEntry{7, "VLOZPOLOZKYVZORUDLESKUPSKLADPOL", "Vložit položky dle dodávek dodavatele",
                    "Zobrazí editor položek vzoru objednávky a seznam předvyplní skladovými položkami z dodacích listů "
                    "zvoleného dodavatele za období nastavené v globálním parametru"},
};

AnsiString MenuText(const SourceMenuEntry& entry, std::string_view keySuffix, std::string_view builtIn) {
    return LangStr(AnsiString(c_ModuleKeyPrefix) + AnsiString(entry.Key) + AnsiString(keySuffix), {}, builtIn);
}

} // namespace

const SourceMenu c_DodakMenu{c_DodakEntries, c_DodakEditType};
const SourceMenu c_DodObjMenu{c_DodObjEntries, c_DodObjEditType};
const SourceMenu c_DodObjVzorMenu{c_DodObjVzorEntries, c_DodObjEditType};

AnsiString MenuCaption(const SourceMenuEntry& entry) {
    return MenuText(entry, "", entry.Caption);
}

AnsiString MenuHint(const SourceMenuEntry& entry) {
    return MenuText(entry, "HINT", entry.Hint);
}

AnsiString SourceCode(std::span<const std::string_view> codes, int tag) {
    if (tag < 1 || tag > static_cast<int>(codes.size())) {
        return {};
    }
    return AnsiString(codes[static_cast<std::size_t>(tag) - 1]);
}

} // namespace melvark
