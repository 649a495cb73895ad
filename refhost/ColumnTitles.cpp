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
    bool isAmount = false;
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
    TitleRow{"CENACELKEM", {"MELVARKHOST\\COLUMN\\CENACELKEM", "Cena celkem"}, true},
    TitleRow{"NADRIZENA", {"MELVARKHOST\\COLUMN\\NADRIZENA", "Nadřízená skupina"}},
    TitleRow{"PORADI", {"MELVARKHOST\\COLUMN\\PORADI", "Pořadí"}},
    TitleRow{"SKUPSPOL1", {"MELVARKHOST\\COLUMN\\SKUPSPOL1", "Skupina 1"}},
    TitleRow{"SKUPSPOL2", {"MELVARKHOST\\COLUMN\\SKUPSPOL2", "Skupina 2"}},
    TitleRow{"SKUPSPOL3", {"MELVARKHOST\\COLUMN\\SKUPSPOL3", "Skupina 3"}},
    TitleRow{"SKLADPOL", {"MELVARKHOST\\COLUMN\\SKLADPOL", "Skladová položka"}},
    TitleRow{"MNOZSTVI", {"MELVARKHOST\\COLUMN\\MNOZSTVI", "Množství"}, true},
    TitleRow{"JEDNOTKY", {"MELVARKHOST\\COLUMN\\JEDNOTKY", "Jednotky"}},
    TitleRow{"DODANO", {"MELVARKHOST\\COLUMN\\DODANO", "Dodáno"}, true},
    TitleRow{"DPH", {"MELVARKHOST\\COLUMN\\DPH", "Sazba DPH"}},
    TitleRow{"SLEVA", {"MELVARKHOST\\COLUMN\\SLEVA", "Sleva %"}},
    TitleRow{"JEDNCENABSESLEVOU", {"MELVARKHOST\\COLUMN\\JEDNCENABSESLEVOU", "Jedn. cena bez DPH se sl."}, true},
    TitleRow{"JEDNDPHASESLEVOU", {"MELVARKHOST\\COLUMN\\JEDNDPHASESLEVOU", "Jedn. DPH se sl."}, true},
    TitleRow{"JEDNDPHBSESLEVOU", {"MELVARKHOST\\COLUMN\\JEDNDPHBSESLEVOU", "Jedn. místní DPH se sl."}, true},
    TitleRow{"JEDNCENASSESLEVOU", {"MELVARKHOST\\COLUMN\\JEDNCENASSESLEVOU", "Jedn. cena s DPH se sl."}, true},
    TitleRow{"JEDNCENABBEZSLEVY", {"MELVARKHOST\\COLUMN\\JEDNCENABBEZSLEVY", "Jedn. cena bez DPH bez sl."}, true},
    TitleRow{"JEDNDPHABEZSLEVY", {"MELVARKHOST\\COLUMN\\JEDNDPHABEZSLEVY", "Jedn. DPH bez sl."}, true},
    TitleRow{"JEDNDPHBBEZSLEVY", {"MELVARKHOST\\COLUMN\\JEDNDPHBBEZSLEVY", "Jedn. místní DPH bez sl."}, true},
    TitleRow{"JEDNCENASBEZSLEVY", {"MELVARKHOST\\COLUMN\\JEDNCENASBEZSLEVY", "Jedn. cena s DPH bez sl."}, true},
    TitleRow{"CENABSESLEVOU", {"MELVARKHOST\\COLUMN\\CENABSESLEVOU", "Cena bez DPH se sl."}, true},
    TitleRow{"DPHASESLEVOU", {"MELVARKHOST\\COLUMN\\DPHASESLEVOU", "DPH se sl."}, true},
    TitleRow{"DPHBSESLEVOU", {"MELVARKHOST\\COLUMN\\DPHBSESLEVOU", "Místní DPH se sl."}, true},
    TitleRow{"CENASSESLEVOU", {"MELVARKHOST\\COLUMN\\CENASSESLEVOU", "Cena s DPH se sl."}, true},
    TitleRow{"CENABBEZSLEVY", {"MELVARKHOST\\COLUMN\\CENABBEZSLEVY", "Cena bez DPH bez sl."}, true},
    TitleRow{"DPHABEZSLEVY", {"MELVARKHOST\\COLUMN\\DPHABEZSLEVY", "DPH bez sl."}, true},
    TitleRow{"DPHBBEZSLEVY", {"MELVARKHOST\\COLUMN\\DPHBBEZSLEVY", "Místní DPH bez sl."}, true},
    TitleRow{"CENASBEZSLEVY", {"MELVARKHOST\\COLUMN\\CENASBEZSLEVY", "Cena s DPH bez sl."}, true},
    TitleRow{"TRVANLIVOST", {"MELVARKHOST\\COLUMN\\TRVANLIVOST", "Trvanlivost"}},
    TitleRow{"DOBSID", {"MELVARKHOST\\COLUMN\\DOBSID", "Řádek objednávky"}},
    TitleRow{"POPIS", {"MELVARKHOST\\COLUMN\\POPIS", "Popis"}},
    TitleRow{"KOMENTAR", {"MELVARKHOST\\COLUMN\\KOMENTAR", "Komentář"}},
};

constexpr std::array c_states{
    HostText{"MELVARKHOST\\STATE", "otevřený"},
    HostText{"MELVARKHOST\\STATE", "uzavřený"},
};

const TitleRow* findTitle(std::string_view column) {
    const auto row = std::find_if(c_titles.begin(), c_titles.end(),
                                  [&](const TitleRow& each) { return SameDbName(each.column, column); });
    return row == c_titles.end() ? nullptr : &*row;
}

} // namespace

QString columnTitle(std::string_view column, const Languages& languages) {
    if (const TitleRow* row = findTitle(column)) {
        return languages.label(row->title);
    }
    return QString::fromUtf8(column.data(), static_cast<qsizetype>(column.size()));
}

bool isShownColumn(std::string_view column) {
    return !column.starts_with('_');
}

bool isAmountColumn(std::string_view column) {
    const TitleRow* row = findTitle(column);
    return row && row->isAmount;
}

QString shownValue(std::string_view column, const QString& value, const Languages& languages) {
    if (!SameDbName(column, "STAV")) {
        return value;
    }
    const std::string state = value.toStdString();
    const auto known =
        std::find_if(c_states.begin(), c_states.end(), [&](const HostText& each) { return each.builtIn == state; });
    return known == c_states.end() ? value : languages.label(*known);
}

} // namespace refhost
