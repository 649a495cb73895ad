#include "refhost/database/sample/Suppliers.h"

#include <algorithm>

namespace refhost::sample {

namespace {

using enum NumberStyle;

constexpr Supplier c_Suppliers[] = {
    {"Zrnokvět velkoobchod s.r.o.", "Pardubice", "Trvanlivé potraviny|Konzervované potraviny", LettersAndYear, 97, 18,
     2},
    {"Mlýn Hloužek a synové s.r.o.", "Náměšť nad Oslavou", "Trvanlivé potraviny", SlashYear, 95, 26, 3},
    {"Podoubravská koloniální a.s.", "Chotěboř", "Trvanlivé potraviny|Cukrovinky|Káva a čaj", TenDigits, 101, 21, 2},
    {"Kořenka Žampach s.r.o.", "Žamberk", "Trvanlivé potraviny", Dashed, 104, 45, 3},
    {"Sklepmistr Konzerva s.r.o.", "Znojmo", "Konzervované potraviny", YearSlash, 96, 30, 3},
    {"Zavařil & Kompotová v.o.s.", "Litoměřice", "Konzervované potraviny|Ovoce a zelenina", Running, 102, 33, 2},
    {"Bělosýr mlékárna Horní Lán a.s.", "Svitavy", "Mléčné výrobky", TenDigits, 98, 14, 1},
    {"Smetánkov družstvo", "Bystřice pod Hostýnem", "Mléčné výrobky", LettersAndYear, 103, 16, 1},
    {"Řeznictví Uzlík s.r.o.", "Humpolec", "Maso a uzeniny", YearSlash, 100, 15, 1},
    {"Masna Trojkopí a.s.", "Planá nad Lužnicí", "Maso a uzeniny|Mražené potraviny", Dashed, 96, 17, 1},
    {"Pekárna U Tří kvasů s.r.o.", "Kuřim", "Pečivo", Running, 102, 14, 1},
    {"Kůrčička pekařství Loučka", "Valašské Meziříčí", "Pečivo", SlashYear, 99, 16, 1},
    {"Hruškoň zelinářské sklady s.r.o.", "Mělník", "Ovoce a zelenina", LettersAndYear, 97, 14, 1},
    {"Ovocnářství Vrbka a Pecka", "Jičín", "Ovoce a zelenina", YearSlash, 104, 20, 1},
    {"Mrazivka Severka s.r.o.", "Děčín", "Mražené potraviny", TenDigits, 98, 21, 2},
    {"Ledník & Rampouch s.r.o.", "Havlíčkův Brod", "Mražené potraviny|Mléčné výrobky", Dashed, 103, 28, 2},
    {"Cukrlátko Polnička s.r.o.", "Žďár nad Sázavou", "Cukrovinky", Running, 100, 24, 2},
    {"Perníkov a.s.", "Chrudim", "Cukrovinky|Pečivo", LettersAndYear, 105, 27, 2},
    {"Pramenka Losí Studánka a.s.", "Šumperk", "Nealkoholické nápoje", TenDigits, 95, 18, 2},
    {"Bublinář nápoje s.r.o.", "Hradec Králové", "Nealkoholické nápoje|Alkoholické nápoje", SlashYear, 101, 22, 2},
    {"Pražírna Zrnko a Kouř s.r.o.", "Olomouc", "Káva a čaj", Dashed, 106, 30, 3},
    {"Pivovarský sklad Chmelovka s.r.o.", "Rakovník", "Alkoholické nápoje", YearSlash, 98, 20, 2},
    {"Vinařský dvůr Kobylnička", "Mikulov", "Alkoholické nápoje", Running, 103, 34, 3},
    {"Pěnivka drogerie velkoobchod s.r.o.", "Kolín", "Prací a úklidové prostředky|Osobní hygiena|Papírová hygiena",
     LettersAndYear, 97, 19, 2},
    {"Čisťoch Morava s.r.o.", "Prostějov", "Prací a úklidové prostředky", TenDigits, 99, 28, 2},
    {"Lesk a Sklo v.o.s.", "Jablonec nad Nisou", "Prací a úklidové prostředky|Kuchyňské potřeby", SlashYear, 104, 38,
     3},
    {"Mydlinka Horka s.r.o.", "Benešov", "Osobní hygiena", Dashed, 101, 35, 3},
    {"Ubrouskárna Papírov a.s.", "Hostinné", "Papírová hygiena|Obaly a jednorázové zboží", YearSlash, 96, 25, 3},
    {"Obalovna Sáček s.r.o.", "Kladno", "Obaly a jednorázové zboží", Running, 100, 31, 2},
    {"Kastrol & Pánvička s.r.o.", "Česká Třebová", "Kuchyňské potřeby", LettersAndYear, 102, 40, 4},
    {"Kancl Pohoda papír s.r.o.", "Plzeň", "Papír a tiskopisy|Psací potřeby|Archivace a drobnosti", TenDigits, 98, 24,
     2},
    {"Sešitek a Pastelka s.r.o.", "Tábor", "Papír a tiskopisy|Psací potřeby", SlashYear, 103, 33, 2},
    {"Archiválie Šanonek s.r.o.", "Zlín", "Archivace a drobnosti|Papír a tiskopisy", Dashed, 101, 42, 3},
    {"Knihovrátek distribuce s.r.o.", "Praha 9", "Knihy a časopisy", YearSlash, 100, 36, 3},
    {"Kladivoun nářadí s.r.o.", "Brno", "Ruční nářadí|Spojovací materiál", LettersAndYear, 97, 23, 2},
    {"Železářství Hřebíček a vnuk", "Kutná Hora", "Spojovací materiál|Ruční nářadí|Barvy a chemie", Running, 104, 29,
     2},
    {"Šroubárna Závitek a.s.", "Turnov", "Spojovací materiál", TenDigits, 94, 32, 3},
    {"Elektrosklad Jiskřička s.r.o.", "Ostrava", "Elektro a příslušenství", Dashed, 99, 27, 2},
    {"Barvičkář Duhová Lhota s.r.o.", "Uherské Hradiště", "Barvy a chemie", SlashYear, 101, 37, 3},
    {"Montérka ochranné pomůcky s.r.o.", "Přerov", "Pracovní oděvy a rukavice", YearSlash, 98, 26, 3},
};

std::string padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

} // namespace

std::span<const Supplier> suppliers() {
    return c_Suppliers;
}

bool sells(const Supplier& supplier, std::string_view group2) {
    std::string_view rest = supplier.Assortment;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('|'), rest.size());
        if (rest.substr(0, end) == group2) {
            return true;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return false;
}

std::string noteNumber(NumberStyle style, int running, Day day) {
    const std::string year = std::to_string(yearOf(day));
    const std::string shortYear = year.substr(2);
    switch (style) {
    case LettersAndYear:
        return "DL" + shortYear + padded(running, 5);
    case YearSlash:
        return year + "/" + padded(running, 4);
    case TenDigits:
        return shortYear + "01" + padded(running, 6);
    case SlashYear:
        return std::to_string(running) + "/" + shortYear;
    case Dashed:
        return "EXP-" + year + "-" + padded(running, 5);
    case Running:
        break;
    }
    return padded(running, 6);
}

} // namespace refhost::sample
