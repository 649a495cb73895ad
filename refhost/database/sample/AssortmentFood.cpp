#include "refhost/database/sample/Assortment.h"

namespace refhost::sample {

namespace {

constexpr std::string_view c_Food = "Potraviny";
constexpr std::string_view c_Dry = "Trvanlivé potraviny";
constexpr std::string_view c_Preserved = "Konzervované potraviny";
constexpr std::string_view c_Dairy = "Mléčné výrobky";
constexpr std::string_view c_Meat = "Maso a uzeniny";
constexpr std::string_view c_Bakery = "Pečivo";
constexpr std::string_view c_Produce = "Ovoce a zelenina";
constexpr std::string_view c_Frozen = "Mražené potraviny";
constexpr std::string_view c_Sweets = "Cukrovinky";

constexpr std::string_view c_Reduced = "12 %";

constexpr Packing c_DryBags[] = {
    {"500 g", 56, "ks", {{{"krt", 20'000}, {"paleta", 1'200'000}}}},
    {"1 kg", 100, "ks", {{{"krt", 10'000}, {"paleta", 800'000}}}},
    {"5 kg", 465, "ks", {{{"bal", 4'000}, {"paleta", 160'000}}}},
    {"volně", 86, "kg", {{{"pytel", 25'000}, {"paleta", 800'000}}}},
};
constexpr Packing c_Boxes[] = {
    {"250 g", 60, "ks", {{{"krt", 16'000}, {}}}},
    {"500 g", 100, "ks", {{{"krt", 12'000}, {"paleta", 864'000}}}},
    {"3 kg", 540, "ks", {{{"krt", 4'000}, {}}}},
};
constexpr Packing c_Cans[] = {
    {"400 g", 100, "ks", {{{"krt", 12'000}, {"paleta", 1'440'000}}}},
    {"800 g", 182, "ks", {{{"krt", 6'000}, {"paleta", 720'000}}}},
    {"2,6 kg", 520, "ks", {{{"krt", 6'000}, {"paleta", 264'000}}}},
};
constexpr Packing c_SmallCans[] = {
    {"80 g", 55, "ks", {{{"bal", 24'000}, {}}}},
    {"170 g", 100, "ks", {{{"krt", 48'000}, {"paleta", 2'880'000}}}},
    {"1,7 kg", 840, "ks", {{{"krt", 6'000}, {}}}},
};
constexpr Packing c_Jars[] = {
    {"330 g", 62, "ks", {{{"bal", 12'000}, {"paleta", 1'440'000}}}},
    {"660 g", 100, "ks", {{{"bal", 8'000}, {"paleta", 960'000}}}},
    {"3,5 kg", 415, "ks", {{{"bal", 4'000}, {"paleta", 160'000}}}},
};
constexpr Packing c_Bottles[] = {
    {"0,5 l", 56, "ks", {{{"krt", 15'000}, {}}}},
    {"1 l", 100, "ks", {{{"krt", 12'000}, {"paleta", 720'000}}}},
    {"5 l", 460, "ks", {{{"krt", 3'000}, {"paleta", 120'000}}}},
    {"10 l", 880, "ks", {{{"paleta", 60'000}, {}}}},
};
constexpr Packing c_Spices[] = {
    {"20 g", 100, "ks", {{{"bal", 30'000}, {}}}},
    {"100 g", 390, "ks", {{{"bal", 10'000}, {}}}},
    {"500 g dóza", 1620, "ks", {{{"krt", 6'000}, {}}}},
};
constexpr Packing c_Milk[] = {
    {"0,5 l", 58, "ks", {{{"bal", 10'000}, {}}}},
    {"1 l", 100, "ks", {{{"krt", 12'000}, {"paleta", 720'000}}}},
    {"10 l vak", 930, "ks", {{{"paleta", 72'000}, {}}}},
};
constexpr Packing c_Cups[] = {
    {"150 g", 100, "ks", {{{"bal", 20'000}, {"paleta", 3'200'000}}}},
    {"400 g", 235, "ks", {{{"bal", 12'000}, {}}}},
    {"5 kg kbelík", 2600, "ks", {{{"paleta", 80'000}, {}}}},
};
constexpr Packing c_Cheese[] = {
    {"100 g plátky", 12, "ks", {{{"krt", 20'000}, {}}}},
    {"1 kg plátky", 108, "ks", {{{"krt", 8'000}, {}}}},
    {"vcelku", 100, "kg", {{{"krt", 12'500}, {}}}},
};
constexpr Packing c_Fats[] = {
    {"250 g", 100, "ks", {{{"krt", 40'000}, {"paleta", 2'400'000}}}},
    {"2,5 kg blok", 960, "ks", {{{"krt", 4'000}, {}}}},
};
constexpr Packing c_FreshMeat[] = {
    {"chlaz.", 100, "kg", {{{"přepravka", 15'000}, {}}}},
    {"chlaz. vakuově balené", 107, "kg", {{{"bal", 2'500}, {"krt", 20'000}}}},
    {"mraž.", 88, "kg", {{{"krt", 20'000}, {"paleta", 640'000}}}},
};
constexpr Packing c_Sausages[] = {
    {"100 g nářez", 14, "ks", {{{"bal", 10'000}, {}}}},
    {"500 g", 54, "ks", {{{"krt", 12'000}, {}}}},
    {"vcelku", 100, "kg", {{{"krt", 7'500}, {}}}},
};
constexpr Packing c_Bread[] = {
    {"500 g", 58, "ks", {{{"přepravka", 14'000}, {}}}},
    {"1 200 g", 100, "ks", {{{"přepravka", 8'000}, {}}}},
    {"500 g krájený", 66, "ks", {{{"přepravka", 12'000}, {}}}},
};
constexpr Packing c_Rolls[] = {
    {"50 g", 100, "ks", {{{"přepravka", 80'000}, {}}}},
    {"80 g", 145, "ks", {{{"přepravka", 60'000}, {}}}},
    {"60 g předpečené", 130, "ks", {{{"krt", 100'000}, {"paleta", 3'200'000}}}},
};
constexpr Packing c_Produced[] = {
    {"I. jakost", 100, "kg", {{{"bedna", 10'000}, {"paleta", 480'000}}}},
    {"II. jakost", 74, "kg", {{{"bedna", 12'500}, {"paleta", 600'000}}}},
    {"1 kg síťka", 112, "ks", {{{"krt", 10'000}, {}}}},
};
constexpr Packing c_FrozenBags[] = {
    {"450 g", 100, "ks", {{{"krt", 20'000}, {"paleta", 1'280'000}}}},
    {"2,5 kg", 495, "ks", {{{"krt", 4'000}, {"paleta", 288'000}}}},
    {"10 kg", 1880, "ks", {{{"paleta", 64'000}, {}}}},
};
constexpr Packing c_IceCream[] = {
    {"120 ml", 20, "ks", {{{"krt", 24'000}, {}}}},
    {"1 l", 100, "ks", {{{"krt", 6'000}, {}}}},
    {"5 l vanička", 440, "ks", {{{"krt", 2'000}, {}}}},
};
constexpr Packing c_Bars[] = {
    {"45 g", 50, "ks", {{{"bal", 24'000}, {"krt", 240'000}}}},
    {"100 g", 100, "ks", {{{"bal", 20'000}, {"krt", 100'000}}}},
    {"200 g", 188, "ks", {{{"bal", 12'000}, {}}}},
};
constexpr Packing c_Sweetmeats[] = {
    {"90 g", 100, "ks", {{{"bal", 20'000}, {}}}},
    {"180 g", 180, "ks", {{{"bal", 12'000}, {}}}},
    {"1 kg", 820, "ks", {{{"krt", 8'000}, {}}}},
};

constexpr GoodsKind c_Kinds[] = {
    {c_Food, c_Dry, "Mouky a krupice", "Mouka",
     "pšeničná hladká|pšeničná polohrubá|pšeničná hrubá|pšeničná celozrnná:125|"
     "žitná chlebová:110|špaldová hladká:260|kukuřičná:190",
     c_DryBags, 1690, c_Reduced, 300},
    {c_Food, c_Dry, "Mouky a krupice", "Krupice", "pšeničná dětská|pšeničná hrubá|kukuřičná", c_DryBags, 2150,
     c_Reduced, 300},
    {c_Food, c_Dry, "Rýže a luštěniny", "Rýže",
     "dlouhozrnná|kulatozrnná|parboiled|jasmínová:150|basmati:175|natural:120", c_DryBags, 3890, c_Reduced, 540},
    {c_Food, c_Dry, "Rýže a luštěniny", "Čočka", "velkozrnná|červená půlená|černá", c_DryBags, 4690, c_Reduced, 540},
    {c_Food, c_Dry, "Rýže a luštěniny", "Fazole", "bílé|červené ledvinové|strakaté", c_DryBags, 5190, c_Reduced, 540},
    {c_Food, c_Dry, "Rýže a luštěniny", "Hrách", "žlutý půlený|zelený půlený|žlutý celý", c_DryBags, 2890, c_Reduced,
     540},
    {c_Food, c_Dry, "Těstoviny", "Těstoviny", "vřetena|kolínka|špagety|široké nudle|vlasové nudle|penne|mušle|flíčky",
     c_Boxes, 1990, c_Reduced, 720},
    {c_Food, c_Dry, "Snídaňové cereálie", "Vločky", "ovesné jemné|ovesné hrubé|ječné|žitné|špaldové", c_Boxes, 1650,
     c_Reduced, 360},
    {c_Food, c_Dry, "Snídaňové cereálie", "Müsli", "ovocné|čokoládové|oříškové|křupavé medové", c_Boxes, 5490,
     c_Reduced, 270},
    {c_Food, c_Dry, "Cukr, sůl a koření", "Cukr", "krystal|krupice|moučka:120|třtinový:240", c_DryBags, 2490, c_Reduced,
     0},
    {c_Food, c_Dry, "Cukr, sůl a koření", "Sůl", "jedlá s jodem|mořská jemná:220|mořská hrubá:210|kamenná:160",
     c_DryBags, 990, c_Reduced, 0},
    {c_Food, c_Dry, "Cukr, sůl a koření", "Koření",
     "pepř černý mletý|pepř černý celý|paprika sladká|paprika pálivá|kmín celý|kmín drcený|majoránka|bobkový list|"
     "nové koření|skořice mletá|zázvor mletý|kari",
     c_Spices, 1090, c_Reduced, 720},
    {c_Food, c_Dry, "Oleje a octy", "Olej", "slunečnicový|řepkový|olivový:380|fritovací:115", c_Bottles, 5290,
     c_Reduced, 365},
    {c_Food, c_Dry, "Oleje a octy", "Ocet", "kvasný lihový|jablečný:160|vinný bílý:180|balzamikový:420", c_Bottles,
     2190, c_Reduced, 720},
    {c_Food, c_Dry, "Ořechy a sušené plody", "Ořechy",
     "vlašské loupané|lískové|kešu natural:125|arašídy pražené solené:45|mandle", c_DryBags, 21900, c_Reduced, 270},
    {c_Food, c_Dry, "Ořechy a sušené plody", "Sušené ovoce", "rozinky|švestky bez pecek|meruňky|brusinky|směs", c_Boxes,
     7900, c_Reduced, 360},
    {c_Food, c_Dry, "Polévky a omáčky", "Polévka instantní", "hovězí s nudlemi|zeleninová|gulášová|česneková|hrachová",
     c_Boxes, 6900, c_Reduced, 540},
    {c_Food, c_Dry, "Polévky a omáčky", "Kečup", "jemný|ostrý|dětský|grilovací", c_Jars, 4490, c_Reduced, 365},
    {c_Food, c_Preserved, "Zeleninové konzervy", "Rajčata", "loupaná celá|krájená|pasírovaná|krájená s bazalkou",
     c_Cans, 2390, c_Reduced, 720},
    {c_Food, c_Preserved, "Zeleninové konzervy", "Kukuřice", "sladká|sladká ve vakuu|s paprikou", c_Cans, 2290,
     c_Reduced, 720},
    {c_Food, c_Preserved, "Zeleninové konzervy", "Okurky",
     "sterilované 5–8 cm|sterilované 7–9 cm|řezané|s chilli|"
     "medové",
     c_Jars, 4290, c_Reduced, 720},
    {c_Food, c_Preserved, "Zeleninové konzervy", "Zelí", "kysané bílé|sterilované červené|sterilované bílé", c_Jars,
     2990, c_Reduced, 360},
    {c_Food, c_Preserved, "Ovocné konzervy", "Kompot", "broskvový|ananasový|hruškový|višňový|meruňkový|směs ovoce",
     c_Cans, 3490, c_Reduced, 720},
    {c_Food, c_Preserved, "Ovocné konzervy", "Džem", "jahodový|meruňkový|malinový|borůvkový|švestkový|rybízový", c_Jars,
     4990, c_Reduced, 540},
    {c_Food, c_Preserved, "Rybí a masové konzervy", "Tuňák", "ve vlastní šťávě|v oleji|drcený|s chilli", c_SmallCans,
     3290, c_Reduced, 1080},
    {c_Food, c_Preserved, "Rybí a masové konzervy", "Sardinky", "v oleji|v tomatě|s citronem", c_SmallCans, 2790,
     c_Reduced, 1080},
    {c_Food, c_Preserved, "Rybí a masové konzervy", "Paštika", "játrová|drůbeží|s brusinkami|krůtí", c_SmallCans, 2490,
     c_Reduced, 720},
    {c_Food, c_Dairy, "Mléko a smetana", "Mléko",
     "čerstvé polotučné|čerstvé plnotučné|trvanlivé polotučné|"
     "trvanlivé plnotučné|bezlaktózové",
     c_Milk, 1890, c_Reduced, 21},
    {c_Food, c_Dairy, "Mléko a smetana", "Smetana", "ke šlehání 31 %|na vaření 12 %|zakysaná 16 %", c_Milk, 8900,
     c_Reduced, 21},
    {c_Food, c_Dairy, "Jogurty a tvarohy", "Jogurt",
     "bílý|bílý řecký|jahodový|borůvkový|meruňkový|vanilkový|"
     "čokoládový",
     c_Cups, 990, c_Reduced, 21},
    {c_Food, c_Dairy, "Jogurty a tvarohy", "Tvaroh", "jemný|polotučný|odtučněný|měkký plnotučný", c_Cups, 1490,
     c_Reduced, 18},
    {c_Food, c_Dairy, "Sýry", "Sýr",
     "eidam 30 %|eidam 45 %|gouda|ementál:118|uzený|s modrou plísní:132|mozzarella:122|pařený jemný:112", c_Cheese,
     15900, c_Reduced, 45},
    {c_Food, c_Dairy, "Máslo a tuky", "Máslo", "čerstvé|stolní|bez laktózy|přepuštěné", c_Fats, 4790, c_Reduced, 60},
    {c_Food, c_Dairy, "Máslo a tuky", "Margarín", "stolní|na pečení|s příchutí másla", c_Fats, 2290, c_Reduced, 120},
    {c_Food, c_Meat, "Hovězí a vepřové", "Vepřová",
     "kýta bez kosti|plec bez kosti|krkovice bez kosti|panenka:165|pečeně s kostí:90|"
     "játra:42",
     c_FreshMeat, 12900, c_Reduced, 8},
    {c_Food, c_Meat, "Hovězí a vepřové", "Hovězí",
     "zadní bez kosti|přední bez kosti:88|svíčková:235|kližka:85|mleté:82|žebro:74", c_FreshMeat, 23900, c_Reduced, 8},
    {c_Food, c_Meat, "Drůbež", "Kuřecí", "prsní řízek:155|stehna|křídla:75|čtvrtky:64|játra:58|srdce:66", c_FreshMeat,
     9900, c_Reduced, 7},
    {c_Food, c_Meat, "Drůbež", "Krůtí", "prsní řízek|stehenní řízek:78|mleté:68|krky:32", c_FreshMeat, 15900, c_Reduced,
     7},
    {c_Food, c_Meat, "Uzeniny", "Šunka", "výběrová:92|nejvyšší jakosti|dušená|pražská:118|krůtí", c_Sausages, 18900,
     c_Reduced, 21},
    {c_Food, c_Meat, "Uzeniny", "Salám",
     "lovecký trvanlivý:165|vysočina:125|paprikový|turistický trvanlivý:130|gothajský:72|šunkový|česnekový", c_Sausages,
     15900, c_Reduced, 30},
    {c_Food, c_Meat, "Uzeniny", "Párky", "vídeňské|jemné|debrecínské|drůbeží|frankfurtské", c_Sausages, 11900,
     c_Reduced, 14},
    {c_Food, c_Bakery, "Chléb", "Chléb", "konzumní kmínový|žitný|slunečnicový|cibulový|vícezrnný|podmáslový", c_Bread,
     4290, c_Reduced, 4},
    {c_Food, c_Bakery, "Běžné pečivo", "Rohlík", "tukový|sypaný mákem|sypaný solí|celozrnný|grahamový", c_Rolls, 310,
     c_Reduced, 2},
    {c_Food, c_Bakery, "Běžné pečivo", "Houska", "bílá|cereální|s dýní|sypaná sezamem|raženka", c_Rolls, 390, c_Reduced,
     2},
    {c_Food, c_Bakery, "Jemné pečivo", "Koláč", "tvarohový|makový|povidlový|ořechový|borůvkový", c_Rolls, 1290,
     c_Reduced, 3},
    {c_Food, c_Bakery, "Jemné pečivo", "Závin", "jablečný|tvarohový|makový|višňový", c_Rolls, 1890, c_Reduced, 4},
    {c_Food, c_Produce, "Zelenina", "Zelenina",
     "mrkev|petržel kořenová:180|celer bulvový:120|cibule žlutá|cibule červená:130|"
     "brambory varný typ A:70|brambory varný typ B:68|paprika červená:260|rajčata keříková:230|okurky "
     "salátové:170|česnek:520|pórek:175",
     c_Produced, 2190, c_Reduced, 14},
    {c_Food, c_Produce, "Ovoce", "Ovoce",
     "jablka Golden:75|jablka Gala:82|hrušky|banány|pomeranče|mandarinky|citrony:140|"
     "hrozny bílé:210|švestky:110|kiwi:180",
     c_Produced, 3190, c_Reduced, 10},
    {c_Food, c_Frozen, "Mražená zelenina", "Mražená směs", "hrášek s mrkví|polévková|čínská|mexická|pod svíčkovou",
     c_FrozenBags, 2690, c_Reduced, 540},
    {c_Food, c_Frozen, "Mražená zelenina", "Mražený", "hrášek|špenát listový|špenát protlak|květák|pórek krájený",
     c_FrozenBags, 2390, c_Reduced, 540},
    {c_Food, c_Frozen, "Mražené ryby a přílohy", "Filé", "aljašská treska|kapr:125|pangasius:72|losos:260|mořská štika",
     c_FrozenBags, 7990, c_Reduced, 365},
    {c_Food, c_Frozen, "Mražené ryby a přílohy", "Hranolky", "rovné 9 mm|vlnité|do trouby|steakové", c_FrozenBags, 2590,
     c_Reduced, 540},
    {c_Food, c_Frozen, "Zmrzliny", "Zmrzlina", "vanilková|čokoládová|jahodová|pistáciová|citronová|stracciatella",
     c_IceCream, 8900, c_Reduced, 540},
    {c_Food, c_Sweets, "Čokolády a tyčinky", "Čokoláda",
     "mléčná|hořká 70 %|bílá|mléčná s lískovými oříšky|na vaření|"
     "mléčná s rozinkami",
     c_Bars, 2290, c_Reduced, 300},
    {c_Food, c_Sweets, "Sušenky a bonbony", "Sušenky",
     "máslové|kakaové|polomáčené|slané|citronové oplatky|"
     "oříškové oplatky|perníčky",
     c_Sweetmeats, 1490, c_Reduced, 240},
    {c_Food, c_Sweets, "Sušenky a bonbony", "Bonbony", "ovocné|mentolové|karamelové|medové|lékořicové|želé",
     c_Sweetmeats, 1390, c_Reduced, 360},
};

} // namespace

std::span<const GoodsKind> foodKinds() {
    return c_Kinds;
}

} // namespace refhost::sample
