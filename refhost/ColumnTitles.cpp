#include "refhost/ColumnTitles.h"

#include "host/Connection.h"
#include "refhost/Languages.h"

#include <algorithm>
#include <array>

namespace refhost {

namespace {

struct TitleRow {
    std::string_view column;
    HostText title;
};

constexpr std::array c_titles{
    TitleRow{"CISLO", {"MELVARKHOST\\COLUMN\\CISLO", "Číslo"}},
    TitleRow{"NAZEV", {"MELVARKHOST\\COLUMN\\NAZEV", "Název"}},
    TitleRow{"JMENO", {"MELVARKHOST\\COLUMN\\JMENO", "Jméno"}},
    TitleRow{"ICO", {"MELVARKHOST\\COLUMN\\ICO", "IČO"}},
    TitleRow{"MESTO", {"MELVARKHOST\\COLUMN\\MESTO", "Město"}},
    TitleRow{"DATUM", {"MELVARKHOST\\COLUMN\\DATUM", "Datum"}},
    TitleRow{"OBJEDNANIDC", {"MELVARKHOST\\COLUMN\\OBJEDNANIDC", "Objednáno"}},
    TitleRow{"DODAVATEL", {"MELVARKHOST\\COLUMN\\DODAVATEL", "Dodavatel"}},
    TitleRow{"SKLAD", {"MELVARKHOST\\COLUMN\\SKLAD", "Sklad"}},
    TitleRow{"STAV", {"MELVARKHOST\\COLUMN\\STAV", "Stav"}},
    TitleRow{"POCETPOLOZEK", {"MELVARKHOST\\COLUMN\\POCETPOLOZEK", "Položek"}},
    TitleRow{"CENACELKEM", {"MELVARKHOST\\COLUMN\\CENACELKEM", "Cena celkem"}},
    TitleRow{"NADRIZENA", {"MELVARKHOST\\COLUMN\\NADRIZENA", "Nadřízená skupina"}},
    TitleRow{"PORADI", {"MELVARKHOST\\COLUMN\\PORADI", "Pořadí"}},
    TitleRow{"SKUPSPOL1", {"MELVARKHOST\\COLUMN\\SKUPSPOL1", "Skupina 1"}},
    TitleRow{"SKUPSPOL2", {"MELVARKHOST\\COLUMN\\SKUPSPOL2", "Skupina 2"}},
    TitleRow{"SKUPSPOL3", {"MELVARKHOST\\COLUMN\\SKUPSPOL3", "Skupina 3"}},
    TitleRow{"SKLADPOL", {"MELVARKHOST\\COLUMN\\SKLADPOL", "Skladová položka"}},
    TitleRow{"MNOZSTVI", {"MELVARKHOST\\COLUMN\\MNOZSTVI", "Množství"}},
    TitleRow{"JEDNOTKY", {"MELVARKHOST\\COLUMN\\JEDNOTKY", "Jednotky"}},
    TitleRow{"DODANO", {"MELVARKHOST\\COLUMN\\DODANO", "Dodáno"}},
    TitleRow{"DPH", {"MELVARKHOST\\COLUMN\\DPH", "Sazba DPH"}},
    TitleRow{"SLEVA", {"MELVARKHOST\\COLUMN\\SLEVA", "Sleva %"}},
    TitleRow{"JEDNCENABSESLEVOU", {"MELVARKHOST\\COLUMN\\JEDNCENABSESLEVOU", "Jedn. cena bez DPH se sl."}},
    TitleRow{"JEDNDPHASESLEVOU", {"MELVARKHOST\\COLUMN\\JEDNDPHASESLEVOU", "Jedn. DPH se sl."}},
    TitleRow{"JEDNDPHBSESLEVOU", {"MELVARKHOST\\COLUMN\\JEDNDPHBSESLEVOU", "Jedn. místní DPH se sl."}},
    TitleRow{"JEDNCENASSESLEVOU", {"MELVARKHOST\\COLUMN\\JEDNCENASSESLEVOU", "Jedn. cena s DPH se sl."}},
    TitleRow{"JEDNCENABBEZSLEVY", {"MELVARKHOST\\COLUMN\\JEDNCENABBEZSLEVY", "Jedn. cena bez DPH bez sl."}},
    TitleRow{"JEDNDPHABEZSLEVY", {"MELVARKHOST\\COLUMN\\JEDNDPHABEZSLEVY", "Jedn. DPH bez sl."}},
    TitleRow{"JEDNDPHBBEZSLEVY", {"MELVARKHOST\\COLUMN\\JEDNDPHBBEZSLEVY", "Jedn. místní DPH bez sl."}},
    TitleRow{"JEDNCENASBEZSLEVY", {"MELVARKHOST\\COLUMN\\JEDNCENASBEZSLEVY", "Jedn. cena s DPH bez sl."}},
    TitleRow{"CENABSESLEVOU", {"MELVARKHOST\\COLUMN\\CENABSESLEVOU", "Cena bez DPH se sl."}},
    TitleRow{"DPHASESLEVOU", {"MELVARKHOST\\COLUMN\\DPHASESLEVOU", "DPH se sl."}},
    TitleRow{"DPHBSESLEVOU", {"MELVARKHOST\\COLUMN\\DPHBSESLEVOU", "Místní DPH se sl."}},
    TitleRow{"CENASSESLEVOU", {"MELVARKHOST\\COLUMN\\CENASSESLEVOU", "Cena s DPH se sl."}},
    TitleRow{"CENABBEZSLEVY", {"MELVARKHOST\\COLUMN\\CENABBEZSLEVY", "Cena bez DPH bez sl."}},
    TitleRow{"DPHABEZSLEVY", {"MELVARKHOST\\COLUMN\\DPHABEZSLEVY", "DPH bez sl."}},
    TitleRow{"DPHBBEZSLEVY", {"MELVARKHOST\\COLUMN\\DPHBBEZSLEVY", "Místní DPH bez sl."}},
    TitleRow{"CENASBEZSLEVY", {"MELVARKHOST\\COLUMN\\CENASBEZSLEVY", "Cena s DPH bez sl."}},
    TitleRow{"TRVANLIVOST", {"MELVARKHOST\\COLUMN\\TRVANLIVOST", "Trvanlivost"}},
    TitleRow{"DOBSID", {"MELVARKHOST\\COLUMN\\DOBSID", "Řádek objednávky"}},
    TitleRow{"POPIS", {"MELVARKHOST\\COLUMN\\POPIS", "Popis"}},
    TitleRow{"KOMENTAR", {"MELVARKHOST\\COLUMN\\KOMENTAR", "Komentář"}},
};

constexpr std::array c_states{
    HostText{"MELVARKHOST\\STATE", "otevřený"},
    HostText{"MELVARKHOST\\STATE", "uzavřený"},
};

} // namespace

QString columnTitle(std::string_view column, const Languages& languages) {
    const auto row = std::find_if(c_titles.begin(), c_titles.end(),
                                  [&](const TitleRow& each) { return SameDbName(each.column, column); });
    if (row != c_titles.end())
        return languages.label(row->title);
    return QString::fromUtf8(column.data(), static_cast<qsizetype>(column.size()));
}

bool isShownColumn(std::string_view column) {
    return !column.starts_with('_');
}

QString shownValue(std::string_view column, const QString& value, const Languages& languages) {
    if (!SameDbName(column, "STAV"))
        return value;
    const std::string state = value.toStdString();
    const auto known =
        std::find_if(c_states.begin(), c_states.end(), [&](const HostText& each) { return each.builtIn == state; });
    return known == c_states.end() ? value : languages.label(*known);
}

} // namespace refhost
