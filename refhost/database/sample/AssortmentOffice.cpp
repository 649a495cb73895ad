#include "refhost/database/sample/Assortment.h"

namespace refhost::sample {

namespace {

constexpr std::string_view c_Office = "Kancelářské potřeby";
constexpr std::string_view c_PaperGoods = "Papír a tiskopisy";
constexpr std::string_view c_Writing = "Psací potřeby";
constexpr std::string_view c_Filing = "Archivace a drobnosti";
constexpr std::string_view c_Books = "Knihy a tisk";
constexpr std::string_view c_Publications = "Knihy a časopisy";

constexpr std::string_view c_Standard = "21 %";
constexpr std::string_view c_Reduced = "12 %";
constexpr std::string_view c_Zero = "0 %";

constexpr Packing c_Reams[] = {
    {"A5 500 listů", 58, "bal", {{{"krt", 10'000}, {}}}},
    {"A4 500 listů", 100, "bal", {{{"krt", 5'000}, {"paleta", 200'000}}}},
    {"A3 500 listů", 205, "bal", {{{"krt", 5'000}, {"paleta", 100'000}}}},
};
constexpr Packing c_Pads[] = {
    {"A6 50 listů", 60, "ks", {{{"bal", 10'000}, {}}}},
    {"A5 50 listů", 100, "ks", {{{"bal", 10'000}, {"krt", 100'000}}}},
    {"A4 50 listů", 165, "ks", {{{"bal", 10'000}, {"krt", 50'000}}}},
};
constexpr Packing c_Envelopes[] = {
    {"C6", 60, "ks", {{{"bal", 50'000}, {"krt", 1'000'000}}}},
    {"DL", 80, "ks", {{{"bal", 50'000}, {"krt", 1'000'000}}}},
    {"C5", 100, "ks", {{{"bal", 50'000}, {"krt", 500'000}}}},
    {"C4", 175, "ks", {{{"bal", 50'000}, {"krt", 250'000}}}},
};
constexpr Packing c_Pens[] = {
    {"modrá", 100, "ks", {{{"bal", 12'000}, {"krt", 144'000}}}},
    {"černá", 100, "ks", {{{"bal", 12'000}, {"krt", 144'000}}}},
    {"červená", 102, "ks", {{{"bal", 12'000}, {"krt", 144'000}}}},
    {"zelená", 102, "ks", {{{"bal", 12'000}, {}}}},
};
constexpr Packing c_Markers[] = {
    {"černý", 100, "ks", {{{"bal", 10'000}, {}}}},
    {"červený", 100, "ks", {{{"bal", 10'000}, {}}}},
    {"modrý", 100, "ks", {{{"bal", 10'000}, {}}}},
    {"sada 4 barev", 380, "sada", {{{"bal", 6'000}, {}}}},
};
constexpr Packing c_Binders[] = {
    {"5 cm modrý", 97, "ks", {{{"krt", 25'000}, {}}}},
    {"7 cm modrý", 100, "ks", {{{"krt", 20'000}, {"paleta", 960'000}}}},
    {"7 cm černý", 100, "ks", {{{"krt", 20'000}, {"paleta", 960'000}}}},
    {"7 cm červený", 100, "ks", {{{"krt", 20'000}, {}}}},
};
constexpr Packing c_Folders[] = {
    {"A5", 70, "ks", {{{"bal", 10'000}, {}}}},
    {"A4", 100, "ks", {{{"bal", 10'000}, {"krt", 100'000}}}},
    {"A4 po 100 ks", 870, "bal", {{{"krt", 10'000}, {}}}},
};
constexpr Packing c_Clips[] = {
    {"100 ks", 100, "bal", {{{"krt", 100'000}, {}}}},
    {"1 000 ks", 780, "bal", {{{"krt", 20'000}, {}}}},
};
constexpr Packing c_Bindings[] = {
    {"brožované vydání", 70, "ks", {{{"bal", 20'000}, {}}}},
    {"vázané vydání", 100, "ks", {{{"bal", 10'000}, {}}}},
    {"kapesní vydání", 48, "ks", {{{"bal", 30'000}, {}}}},
};
constexpr Packing c_Issues[] = {
    {"běžné číslo", 100, "ks", {{{"bal", 20'000}, {}}}},
    {"zvláštní číslo", 155, "ks", {{{"bal", 20'000}, {}}}},
};

constexpr GoodsKind c_Kinds[] = {
    {c_Office, c_PaperGoods, "Kancelářský papír", "Papír kopírovací",
     "80 g bílý|80 g recyklovaný|90 g bílý|100 g bílý|"
     "160 g bílý|80 g žlutý|80 g zelený|80 g růžový",
     c_Reams, 9900, c_Standard, 0},
    {c_Office, c_PaperGoods, "Bloky a sešity", "Blok",
     "linkovaný|čtverečkovaný|čistý|kroužkový linkovaný|kroužkový čistý", c_Pads, 2190, c_Standard, 0},
    {c_Office, c_PaperGoods, "Bloky a sešity", "Sešit", "linkovaný|čtverečkovaný|nelinkovaný|notový", c_Pads, 1690,
     c_Standard, 0},
    {c_Office, c_PaperGoods, "Obálky", "Obálka",
     "samolepicí bílá|s krycí páskou|bublinková:310|s okénkem|hnědá s křížovým dnem:380", c_Envelopes, 148, c_Standard,
     0},
    {c_Office, c_Writing, "Pera a propisky", "Propiska", "kuličková|gelová:145|čtyřhranná|se stylusem:250|s víčkem",
     c_Pens, 690, c_Standard, 0},
    {c_Office, c_Writing, "Pera a propisky", "Náplň", "kuličková 0,5 mm|kuličková 0,8 mm|gelová 0,5 mm", c_Pens, 390,
     c_Standard, 0},
    {c_Office, c_Writing, "Popisovače a zvýrazňovače", "Popisovač",
     "lihový 1 mm|lihový 2,5 mm|na bílé tabule|na flipchart|"
     "na textil",
     c_Markers, 1890, c_Standard, 0},
    {c_Office, c_Filing, "Pořadače a desky", "Pořadač", "pákový|pákový s kapsou|kroužkový|archivní", c_Binders, 5290,
     c_Standard, 0},
    {c_Office, c_Filing, "Pořadače a desky", "Desky",
     "s chlopněmi|s gumičkou|závěsné|s rychlovazačem|s klipem|prospektové", c_Folders, 1290, c_Standard, 0},
    {c_Office, c_Filing, "Drobné potřeby", "Spony",
     "dopisní 28 mm|dopisní 50 mm|do sešívačky 24/6|do sešívačky 26/6|"
     "dopisní barevné",
     c_Clips, 990, c_Standard, 0},
    {c_Office, c_Filing, "Drobné potřeby", "Etikety", "cenové bílé|cenové oranžové|adresní|skladové s čárou", c_Clips,
     2490, c_Standard, 0},
    {c_Books, c_Publications, "Kuchařky a příručky", "Kuchařka",
     "česká domácí kuchyně|moravská kuchyně|polévky a omáčky|"
     "vánoční pečení|zavařování|bezmasá jídla",
     c_Bindings, 34900, c_Zero, 0},
    {c_Books, c_Publications, "Kuchařky a příručky", "Příručka",
     "skladníka|prodavače|hygieny provozu|první pomoci|"
     "domácího kutila",
     c_Bindings, 29900, c_Zero, 0},
    {c_Books, c_Publications, "Dětské knihy", "Pohádky", "o zvířátkách|na dobrou noc|z mlýna|o Vánocích|z lesa",
     c_Bindings, 24900, c_Zero, 0},
    {c_Books, c_Publications, "Časopisy", "Časopis", "zahrádkářský|křížovkářský|kuchařský|dětský|chovatelský", c_Issues,
     3490, c_Reduced, 0},
};

} // namespace

std::span<const GoodsKind> officeKinds() {
    return c_Kinds;
}

} // namespace refhost::sample
