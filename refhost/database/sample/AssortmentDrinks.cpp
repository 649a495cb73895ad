#include "refhost/database/sample/Assortment.h"

namespace refhost::sample {

namespace {

constexpr std::string_view c_Drinks = "Nápoje";
constexpr std::string_view c_Soft = "Nealkoholické nápoje";
constexpr std::string_view c_Hot = "Káva a čaj";
constexpr std::string_view c_Alcohol = "Alkoholické nápoje";

constexpr std::string_view c_Standard = "21 %";
constexpr std::string_view c_Reduced = "12 %";

constexpr Packing c_Bottles[] = {
    {"0,5 l", 70, "ks", {{{"bal", 12'000}, {"paleta", 1'440'000}}}},
    {"1,5 l", 100, "ks", {{{"bal", 6'000}, {"paleta", 504'000}}}},
    {"0,33 l sklo", 95, "ks", {{{"přepravka", 24'000}, {"paleta", 960'000}}}},
};
constexpr Packing c_Cartons[] = {
    {"0,2 l", 34, "ks", {{{"bal", 27'000}, {}}}},
    {"1 l", 100, "ks", {{{"krt", 12'000}, {"paleta", 720'000}}}},
    {"2 l", 188, "ks", {{{"krt", 6'000}, {"paleta", 384'000}}}},
};
constexpr Packing c_Syrups[] = {
    {"0,7 l", 100, "ks", {{{"bal", 6'000}, {}}}},
    {"5 l", 640, "ks", {{{"paleta", 120'000}, {}}}},
};
constexpr Packing c_Coffee[] = {
    {"250 g", 100, "ks", {{{"krt", 12'000}, {}}}},
    {"1 kg", 370, "ks", {{{"krt", 8'000}, {"paleta", 480'000}}}},
};
constexpr Packing c_Tea[] = {
    {"20 sáčků", 100, "ks", {{{"krt", 12'000}, {}}}},
    {"100 sáčků", 420, "ks", {{{"krt", 6'000}, {}}}},
    {"sypaný", 1450, "kg", {{{"bal", 500}, {"krt", 5'000}}}},
};
constexpr Packing c_Beer[] = {
    {"0,5 l láhev", 100, "ks", {{{"přepravka", 20'000}, {"paleta", 800'000}}}},
    {"0,5 l plechovka", 132, "ks", {{{"bal", 24'000}, {"paleta", 2'016'000}}}},
    {"sud 30 l", 7300, "ks", {{{"paleta", 24'000}, {}}}},
    {"sud 50 l", 11900, "ks", {{{"paleta", 18'000}, {}}}},
};
constexpr Packing c_Wine[] = {
    {"0,75 l", 100, "ks", {{{"krt", 6'000}, {"paleta", 600'000}}}},
    {"5 l bag-in-box", 480, "ks", {{{"paleta", 120'000}, {}}}},
    {"sudové", 95, "l", {{{"sud", 50'000}, {}}}},
};
constexpr Packing c_Spirits[] = {
    {"0,5 l", 100, "ks", {{{"krt", 12'000}, {}}}},
    {"1 l", 188, "ks", {{{"krt", 6'000}, {}}}},
};

constexpr GoodsKind c_Kinds[] = {
    {c_Drinks, c_Soft, "Vody a limonády", "Voda",
     "pramenitá neperlivá|pramenitá jemně perlivá|minerální perlivá|"
     "s příchutí citronu|s příchutí maliny",
     c_Bottles, 1190, c_Standard, 365},
    {c_Drinks, c_Soft, "Vody a limonády", "Limonáda",
     "citronová|pomerančová|malinová|hroznová|kolová|bylinková|"
     "zázvorová",
     c_Bottles, 1790, c_Standard, 270},
    {c_Drinks, c_Soft, "Džusy a sirupy", "Džus",
     "pomerančový 100 %|jablečný 100 %|multivitamin|rajčatový|ananasový 100 %|"
     "hruškový nektar",
     c_Cartons, 3190, c_Standard, 365},
    {c_Drinks, c_Soft, "Džusy a sirupy", "Sirup", "malinový|citronový|pomerančový|bezový|jahodový|višňový", c_Syrups,
     4290, c_Standard, 365},
    {c_Drinks, c_Hot, "Káva", "Káva", "zrnková arabika|zrnková směs|mletá jemná|mletá směs|bez kofeinu mletá|instantní",
     c_Coffee, 9900, c_Reduced, 540},
    {c_Drinks, c_Hot, "Čaj", "Čaj", "černý|zelený|ovocný lesní směs|mátový|heřmánkový|šípkový|rooibos", c_Tea, 2490,
     c_Reduced, 720},
    {c_Drinks, c_Alcohol, "Pivo", "Pivo",
     "světlé výčepní 10°|světlý ležák 11°|světlý ležák 12°|tmavé výčepní|"
     "polotmavý speciál 13°|nealkoholické",
     c_Beer, 1290, c_Standard, 150},
    {c_Drinks, c_Alcohol, "Víno", "Víno",
     "bílé Veltlínské zelené|bílé Ryzlink vlašský|bílé Müller Thurgau|"
     "červené Frankovka|červené Modrý Portugal|růžové Zweigeltrebe",
     c_Wine, 8900, c_Standard, 0},
    {c_Drinks, c_Alcohol, "Lihoviny", "Pálenka", "slivovice 45 %|meruňkovice 45 %|hruškovice 42 %:110|třešňovice 45 %",
     c_Spirits, 19900, c_Standard, 0},
};

} // namespace

std::span<const GoodsKind> drinkKinds() {
    return c_Kinds;
}

} // namespace refhost::sample
