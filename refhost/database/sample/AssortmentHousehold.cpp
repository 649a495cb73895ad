#include "refhost/database/sample/Assortment.h"

namespace refhost::sample {

namespace {

constexpr std::string_view c_Drugstore = "Drogerie";
constexpr std::string_view c_Washing = "Prací a úklidové prostředky";
constexpr std::string_view c_Hygiene = "Osobní hygiena";
constexpr std::string_view c_Paper = "Papírová hygiena";
constexpr std::string_view c_Household = "Domácnost a kuchyně";
constexpr std::string_view c_Kitchen = "Kuchyňské potřeby";
constexpr std::string_view c_Packaging = "Obaly a jednorázové zboží";

constexpr std::string_view c_Standard = "21 %";

constexpr Packing c_Liquids[] = {
    {"500 ml", 60, "ks", {{{"krt", 15'000}, {}}}},
    {"1 l", 100, "ks", {{{"krt", 12'000}, {"paleta", 600'000}}}},
    {"5 l", 430, "ks", {{{"krt", 4'000}, {"paleta", 128'000}}}},
    {"25 l kanystr", 1950, "ks", {{{"paleta", 24'000}, {}}}},
};
constexpr Packing c_Powders[] = {
    {"1,5 kg", 100, "ks", {{{"krt", 6'000}, {}}}},
    {"5 kg", 310, "ks", {{{"paleta", 120'000}, {}}}},
    {"15 kg pytel", 860, "ks", {{{"paleta", 40'000}, {}}}},
};
constexpr Packing c_Cosmetics[] = {
    {"75 ml", 62, "ks", {{{"bal", 12'000}, {}}}},
    {"250 ml", 100, "ks", {{{"bal", 12'000}, {"krt", 48'000}}}},
    {"400 ml", 142, "ks", {{{"bal", 6'000}, {"krt", 24'000}}}},
};
constexpr Packing c_Tubes[] = {
    {"50 ml", 68, "ks", {{{"bal", 12'000}, {}}}},
    {"75 ml", 92, "ks", {{{"bal", 12'000}, {"krt", 144'000}}}},
    {"100 ml", 100, "ks", {{{"bal", 12'000}, {"krt", 96'000}}}},
};
constexpr Packing c_Pieces[] = {
    {"1 ks", 100, "ks", {{{"bal", 12'000}, {"krt", 144'000}}}},
    {"2 ks", 185, "bal", {{{"krt", 72'000}, {}}}},
};
constexpr Packing c_SoapLiquids[] = {
    {"300 ml s pumpičkou", 100, "ks", {{{"krt", 12'000}, {}}}},
    {"1 l", 190, "ks", {{{"krt", 12'000}, {}}}},
    {"5 l", 760, "ks", {{{"krt", 4'000}, {"paleta", 128'000}}}},
};
constexpr Packing c_Rolls[] = {
    {"4 role", 56, "bal", {{{"krt", 14'000}, {"paleta", 336'000}}}},
    {"8 rolí", 100, "bal", {{{"krt", 7'000}, {"paleta", 168'000}}}},
    {"24 rolí", 270, "bal", {{{"paleta", 60'000}, {}}}},
};
constexpr Packing c_Napkins[] = {
    {"50 ks", 100, "bal", {{{"krt", 40'000}, {}}}},
    {"100 ks", 176, "bal", {{{"krt", 24'000}, {}}}},
    {"500 ks", 790, "bal", {{{"krt", 6'000}, {}}}},
};
constexpr Packing c_Dishes[] = {
    {"průměr 16 cm", 70, "ks", {{{"krt", 12'000}, {}}}},
    {"průměr 20 cm", 100, "ks", {{{"krt", 8'000}, {}}}},
    {"průměr 24 cm", 135, "ks", {{{"krt", 6'000}, {}}}},
    {"průměr 28 cm", 168, "ks", {{{"krt", 4'000}, {}}}},
};
constexpr Packing c_Utensils[] = {
    {"20 cm", 90, "ks", {{{"bal", 12'000}, {}}}},
    {"30 cm", 100, "ks", {{{"bal", 12'000}, {"krt", 120'000}}}},
    {"40 cm", 128, "ks", {{{"bal", 6'000}, {}}}},
};
constexpr Packing c_Sacks[] = {
    {"35 l", 62, "role", {{{"krt", 40'000}, {}}}},
    {"60 l", 100, "role", {{{"krt", 30'000}, {}}}},
    {"120 l", 185, "role", {{{"krt", 20'000}, {"paleta", 640'000}}}},
};
constexpr Packing c_Disposables[] = {
    {"0,2 l", 80, "ks", {{{"bal", 50'000}, {"krt", 1'000'000}}}},
    {"0,3 l", 100, "ks", {{{"bal", 50'000}, {"krt", 1'000'000}}}},
    {"0,5 l", 145, "ks", {{{"bal", 50'000}, {"krt", 500'000}}}},
};
constexpr Packing c_Foils[] = {
    {"10 m", 48, "ks", {{{"krt", 30'000}, {}}}},
    {"30 m", 100, "ks", {{{"krt", 24'000}, {}}}},
    {"300 m", 720, "ks", {{{"krt", 4'000}, {}}}},
};

constexpr GoodsKind c_Kinds[] = {
    {c_Drugstore, c_Washing, "Prací prostředky", "Prací gel",
     "na barevné prádlo|na bílé prádlo|na černé prádlo|na vlnu|"
     "pro citlivou pokožku",
     c_Liquids, 8900, c_Standard, 0},
    {c_Drugstore, c_Washing, "Prací prostředky", "Prací prášek",
     "univerzální|na barevné prádlo|na bílé prádlo|profesionální", c_Powders, 11900, c_Standard, 0},
    {c_Drugstore, c_Washing, "Prací prostředky", "Aviváž", "jarní louka|levandule|mořský vánek|sensitive", c_Liquids,
     5900, c_Standard, 0},
    {c_Drugstore, c_Washing, "Čisticí prostředky", "Čistič",
     "na podlahy|na okna|na koupelny|na WC|na trouby|univerzální|"
     "odmašťovací",
     c_Liquids, 5490, c_Standard, 0},
    {c_Drugstore, c_Washing, "Čisticí prostředky", "Prostředek na nádobí", "citron|jablko|aloe vera|sensitive",
     c_Liquids, 4290, c_Standard, 0},
    {c_Drugstore, c_Washing, "Dezinfekce", "Dezinfekce", "na ruce gelová|na plochy|na nástroje|chlorová", c_Liquids,
     9900, c_Standard, 720},
    {c_Drugstore, c_Hygiene, "Mýdla", "Mýdlo tekuté", "krémové|s glycerinem|antibakteriální|medové|pěnové",
     c_SoapLiquids, 2990, c_Standard, 0},
    {c_Drugstore, c_Hygiene, "Vlasová a tělová kosmetika", "Šampon", "kopřivový|březový|proti lupům|dětský|heřmánkový",
     c_Cosmetics, 4490, c_Standard, 900},
    {c_Drugstore, c_Hygiene, "Vlasová a tělová kosmetika", "Sprchový gel",
     "mořské minerály|citrusy|mandle|pro muže|levandule", c_Cosmetics, 3990, c_Standard, 900},
    {c_Drugstore, c_Hygiene, "Vlasová a tělová kosmetika", "Krém",
     "na ruce měsíčkový|na ruce glycerinový|tělový bambucký|"
     "pleťový výživný|ochranný pracovní",
     c_Cosmetics, 5290, c_Standard, 720},
    {c_Drugstore, c_Hygiene, "Ústní hygiena", "Zubní pasta", "bělicí|bylinná|na citlivé zuby|dětská|s fluorem", c_Tubes,
     3490, c_Standard, 900},
    {c_Drugstore, c_Hygiene, "Ústní hygiena", "Kartáček zubní", "měkký|střední|tvrdý|dětský", c_Pieces, 1890,
     c_Standard, 0},
    {c_Drugstore, c_Paper, "Toaletní papír a utěrky", "Toaletní papír",
     "dvouvrstvý bílý|třívrstvý bílý|třívrstvý s potiskem|"
     "recyklovaný",
     c_Rolls, 5990, c_Standard, 0},
    {c_Drugstore, c_Paper, "Toaletní papír a utěrky", "Kuchyňské utěrky", "dvouvrstvé|třívrstvé|s potiskem|extra savé",
     c_Rolls, 8490, c_Standard, 0},
    {c_Drugstore, c_Paper, "Ubrousky a kapesníky", "Ubrousky",
     "bílé 33 × 33 cm|bordó 33 × 33 cm|zelené 33 × 33 cm|"
     "žluté 33 × 33 cm|modré 24 × 24 cm",
     c_Napkins, 2290, c_Standard, 0},
    {c_Household, c_Kitchen, "Nádobí", "Pánev", "s nepřilnavým povrchem|litinová:175|nerezová:135|na palačinky",
     c_Dishes, 39900, c_Standard, 0},
    {c_Household, c_Kitchen, "Nádobí", "Hrnec", "nerezový|smaltovaný|hliníkový|s poklicí skleněnou", c_Dishes, 54900,
     c_Standard, 0},
    {c_Household, c_Kitchen, "Nádobí", "Talíř", "mělký bílý|hluboký bílý|dezertní bílý|mělký s okrajem", c_Dishes, 6900,
     c_Standard, 0},
    {c_Household, c_Kitchen, "Náčiní", "Vařečka", "buková kulatá|buková rohatá|silikonová", c_Utensils, 3900,
     c_Standard, 0},
    {c_Household, c_Kitchen, "Náčiní", "Nůž", "kuchařský|na chléb|filetovací|vykosťovací", c_Utensils, 24900,
     c_Standard, 0},
    {c_Household, c_Packaging, "Sáčky a fólie", "Pytle na odpad",
     "černé silné|modré|zatahovací bílé|žluté na plasty|hnědé na bio", c_Sacks, 4290, c_Standard, 0},
    {c_Household, c_Packaging, "Sáčky a fólie", "Fólie", "potravinářská průtažná|hliníková|hliníková zesílená", c_Foils,
     3990, c_Standard, 0},
    {c_Household, c_Packaging, "Jednorázové nádobí", "Kelímek",
     "papírový bílý|papírový hnědý|plastový průhledný|dvouplášťový", c_Disposables, 165, c_Standard, 0},
    {c_Household, c_Packaging, "Jednorázové nádobí", "Miska", "papírová|z cukrové třtiny|kulatá s víčkem",
     c_Disposables, 285, c_Standard, 0},
};

} // namespace

std::span<const GoodsKind> householdKinds() {
    return c_Kinds;
}

} // namespace refhost::sample
