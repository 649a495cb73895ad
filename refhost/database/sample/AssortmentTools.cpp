#include "refhost/database/sample/Assortment.h"

namespace refhost::sample {

namespace {

constexpr std::string_view c_Tools = "Nářadí a železářství";
constexpr std::string_view c_HandTools = "Ruční nářadí";
constexpr std::string_view c_Fasteners = "Spojovací materiál";
constexpr std::string_view c_Electric = "Elektro a příslušenství";
constexpr std::string_view c_Paints = "Barvy a chemie";
constexpr std::string_view c_Protection = "Ochranné pomůcky";
constexpr std::string_view c_Clothes = "Pracovní oděvy a rukavice";

constexpr std::string_view c_Standard = "21 %";

constexpr Packing c_ToolSizes[] = {
    {"malé provedení", 78, "ks", {{{"krt", 12'000}, {}}}},
    {"střední provedení", 100, "ks", {{{"krt", 10'000}, {}}}},
    {"velké provedení", 136, "ks", {{{"krt", 6'000}, {}}}},
};
constexpr Packing c_Wrenches[] = {
    {"10 mm", 80, "ks", {{{"bal", 10'000}, {}}}},
    {"13 mm", 100, "ks", {{{"bal", 10'000}, {}}}},
    {"17 mm", 128, "ks", {{{"bal", 10'000}, {}}}},
    {"sada 8 ks", 640, "sada", {{{"krt", 10'000}, {}}}},
};
constexpr Packing c_Screwdrivers[] = {
    {"75 mm", 88, "ks", {{{"bal", 12'000}, {}}}},
    {"100 mm", 100, "ks", {{{"bal", 12'000}, {}}}},
    {"150 mm", 124, "ks", {{{"bal", 12'000}, {}}}},
};
constexpr Packing c_Bolts[] = {
    {"× 20", 80, "ks", {{{"bal", 100'000}, {"krt", 1'000'000}}}},
    {"× 30", 100, "ks", {{{"bal", 100'000}, {"krt", 1'000'000}}}},
    {"× 40", 122, "ks", {{{"bal", 100'000}, {"krt", 800'000}}}},
    {"× 60", 168, "ks", {{{"bal", 50'000}, {"krt", 500'000}}}},
    {"× 80", 215, "ks", {{{"bal", 50'000}, {"krt", 400'000}}}},
};
constexpr Packing c_Nuts[] = {
    {"M5", 62, "ks", {{{"bal", 200'000}, {"krt", 2'000'000}}}},
    {"M6", 75, "ks", {{{"bal", 200'000}, {"krt", 2'000'000}}}},
    {"M8", 100, "ks", {{{"bal", 100'000}, {"krt", 1'000'000}}}},
    {"M10", 165, "ks", {{{"bal", 100'000}, {"krt", 500'000}}}},
};
constexpr Packing c_Drills[] = {
    {"4 mm", 72, "ks", {{{"bal", 10'000}, {}}}},  {"5 mm", 80, "ks", {{{"bal", 10'000}, {}}}},
    {"6 mm", 100, "ks", {{{"bal", 10'000}, {}}}}, {"8 mm", 132, "ks", {{{"bal", 10'000}, {}}}},
    {"10 mm", 178, "ks", {{{"bal", 5'000}, {}}}},
};
constexpr Packing c_Discs[] = {
    {"115 mm", 92, "ks", {{{"bal", 25'000}, {}}}},
    {"125 mm", 100, "ks", {{{"bal", 25'000}, {"krt", 200'000}}}},
    {"230 mm", 215, "ks", {{{"bal", 10'000}, {"krt", 100'000}}}},
};
constexpr Packing c_Plugs[] = {
    {"6 × 30", 62, "ks", {{{"bal", 100'000}, {"krt", 2'000'000}}}},
    {"8 × 40", 100, "ks", {{{"bal", 100'000}, {"krt", 1'000'000}}}},
    {"10 × 50", 155, "ks", {{{"bal", 50'000}, {"krt", 500'000}}}},
    {"12 × 60", 228, "ks", {{{"bal", 25'000}, {"krt", 250'000}}}},
};
constexpr Packing c_Ties[] = {
    {"100 × 2,5 mm", 60, "ks", {{{"bal", 100'000}, {}}}},
    {"200 × 3,6 mm", 100, "ks", {{{"bal", 100'000}, {}}}},
    {"300 × 4,8 mm", 190, "ks", {{{"bal", 100'000}, {}}}},
};
constexpr Packing c_Nails[] = {
    {"30 mm", 112, "kg", {{{"bal", 2'500}, {"krt", 25'000}}}},
    {"50 mm", 104, "kg", {{{"bal", 5'000}, {"krt", 25'000}}}},
    {"80 mm", 100, "kg", {{{"bal", 5'000}, {"krt", 25'000}}}},
    {"100 mm", 98, "kg", {{{"bal", 5'000}, {"krt", 25'000}}}},
};
constexpr Packing c_Cables[] = {
    {"3 × 1,5 mm²", 100, "m", {{{"kruh", 100'000}, {"cívka", 500'000}}}},
    {"3 × 2,5 mm²", 158, "m", {{{"kruh", 100'000}, {"cívka", 500'000}}}},
    {"5 × 2,5 mm²", 265, "m", {{{"kruh", 100'000}, {}}}},
};
constexpr Packing c_Bulbs[] = {
    {"5 W", 82, "ks", {{{"bal", 10'000}, {"krt", 100'000}}}},
    {"9 W", 100, "ks", {{{"bal", 10'000}, {"krt", 100'000}}}},
    {"13 W", 142, "ks", {{{"bal", 10'000}, {}}}},
};
constexpr Packing c_Batteries[] = {
    {"AA", 100, "ks", {{{"bal", 4'000}, {"krt", 240'000}}}},
    {"AAA", 98, "ks", {{{"bal", 4'000}, {"krt", 240'000}}}},
    {"9 V", 480, "ks", {{{"bal", 10'000}, {}}}},
};
constexpr Packing c_Tins[] = {
    {"0,75 l", 100, "ks", {{{"krt", 6'000}, {}}}},
    {"2,5 l", 300, "ks", {{{"krt", 4'000}, {}}}},
    {"10 l", 1090, "ks", {{{"paleta", 44'000}, {}}}},
};
constexpr Packing c_GloveSizes[] = {
    {"vel. 8", 100, "pár", {{{"bal", 12'000}, {"krt", 144'000}}}},
    {"vel. 9", 100, "pár", {{{"bal", 12'000}, {"krt", 144'000}}}},
    {"vel. 10", 100, "pár", {{{"bal", 12'000}, {"krt", 144'000}}}},
    {"vel. 11", 104, "pár", {{{"bal", 12'000}, {}}}},
};
constexpr Packing c_ClothesSizes[] = {
    {"vel. M", 100, "ks", {{{"krt", 20'000}, {}}}},
    {"vel. L", 100, "ks", {{{"krt", 20'000}, {}}}},
    {"vel. XL", 100, "ks", {{{"krt", 20'000}, {}}}},
    {"vel. XXL", 108, "ks", {{{"krt", 20'000}, {}}}},
};

constexpr GoodsKind c_Kinds[] = {
    {c_Tools, c_HandTools, "Kladiva a kleště", "Kladivo", "zámečnické|tesařské|gumové:70|klempířské", c_ToolSizes,
     18900, c_Standard, 0},
    {c_Tools, c_HandTools, "Kladiva a kleště", "Kleště", "kombinované|štípací|sikovky|půlkulaté|odizolovací",
     c_ToolSizes, 22900, c_Standard, 0},
    {c_Tools, c_HandTools, "Klíče a šroubováky", "Klíč", "očkoplochý|stranový|nástrčný|ráčnový", c_Wrenches, 9900,
     c_Standard, 0},
    {c_Tools, c_HandTools, "Klíče a šroubováky", "Šroubovák",
     "plochý|křížový PH2|křížový PZ2|hvězdicový TX20|hvězdicový TX25", c_Screwdrivers, 7900, c_Standard, 0},
    {c_Tools, c_HandTools, "Vrtáky a kotouče", "Vrták", "do kovu|do betonu:112|do dřeva|do kovu kobaltový:265",
     c_Drills, 4900, c_Standard, 0},
    {c_Tools, c_HandTools, "Vrtáky a kotouče", "Kotouč",
     "řezný na ocel|řezný na nerez|brusný|lamelový P60:170|diamantový:880", c_Discs, 3900, c_Standard, 0},
    {c_Tools, c_Fasteners, "Hmoždinky a stahovací pásky", "Hmoždinka",
     "univerzální|natloukací|do sádrokartonu:185|rámová:340", c_Plugs, 145, c_Standard, 0},
    {c_Tools, c_Fasteners, "Hmoždinky a stahovací pásky", "Páska stahovací", "bílá|černá|černá UV odolná", c_Ties, 48,
     c_Standard, 0},
    {c_Tools, c_Fasteners, "Šrouby a matice", "Šroub se šestihrannou hlavou", "M5|M6:128|M8:205|M10:345|M12:520",
     c_Bolts, 195, c_Standard, 0},
    {c_Tools, c_Fasteners, "Šrouby a matice", "Vrut do dřeva zápustný", "3,5|4|4,5|5|6", c_Bolts, 62, c_Standard, 0},
    {c_Tools, c_Fasteners, "Šrouby a matice", "Matice",
     "šestihranná zinková|samojistná:150|křídlová:260|šestihranná nerezová:340", c_Nuts, 88, c_Standard, 0},
    {c_Tools, c_Fasteners, "Šrouby a matice", "Podložka", "plochá zinková|pérová|vějířová|plochá nerezová:310", c_Nuts,
     32, c_Standard, 0},
    {c_Tools, c_Fasteners, "Hřebíky", "Hřebíky", "stavební|zinkované|kolářské|kalené", c_Nails, 5900, c_Standard, 0},
    {c_Tools, c_Electric, "Kabely", "Kabel", "instalační pevný|ohebný gumový|ohebný bílý|prodlužovací oranžový",
     c_Cables, 1990, c_Standard, 0},
    {c_Tools, c_Electric, "Světelné zdroje a baterie", "LED žárovka E27",
     "teplá bílá|neutrální bílá|studená bílá|stmívatelná", c_Bulbs, 5900, c_Standard, 0},
    {c_Tools, c_Electric, "Světelné zdroje a baterie", "Baterie",
     "alkalická|zinkouhlíková:48|lithiová:540|nabíjecí:470", c_Batteries, 1490, c_Standard, 1800},
    {c_Tools, c_Paints, "Nátěrové hmoty", "Barva",
     "syntetická bílá|syntetická hnědá|syntetická zelená|akrylátová bílá|"
     "základní šedá|na radiátory",
     c_Tins, 18900, c_Standard, 1080},
    {c_Tools, c_Paints, "Ředidla a technická chemie", "Ředidlo",
     "syntetické|nitrocelulózové|technický benzín|líh technický", c_Tins, 7900, c_Standard, 0},
    {c_Protection, c_Clothes, "Rukavice", "Rukavice",
     "kožené|máčené v latexu|máčené v nitrilu|textilní s terčíky:38|zimní:180|protiřezné:215|"
     "svářečské:280",
     c_GloveSizes, 4900, c_Standard, 0},
    {c_Protection, c_Clothes, "Pracovní oděvy", "Kalhoty",
     "montérkové modré|montérkové šedé|s laclem|zateplené|kuchařské", c_ClothesSizes, 49900, c_Standard, 0},
    {c_Protection, c_Clothes, "Pracovní oděvy", "Vesta", "reflexní žlutá|reflexní oranžová|zateplená|montérková",
     c_ClothesSizes, 18900, c_Standard, 0},
    {c_Protection, c_Clothes, "Pracovní oděvy", "Tričko", "bílé|černé|šedé|tmavě modré|reflexní:210", c_ClothesSizes,
     11900, c_Standard, 0},
};

} // namespace

std::span<const GoodsKind> toolKinds() {
    return c_Kinds;
}

} // namespace refhost::sample
