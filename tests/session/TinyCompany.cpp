#include "tests/session/TinyCompany.h"

#include <vector>

namespace tinycompany {

namespace {

using Row = std::vector<TDbValue>;

TDbValue id(std::int64_t value) {
    return value;
}
TDbValue text(const char* value) {
    return AnsiString(value);
}
const TDbValue none;

void fill(refhost::Database& database, const char* table, const std::vector<std::string>& columns,
          const std::vector<Row>& rows) {
    database.insertRows(table, columns, rows);
}

void addGoods(refhost::Database& database) {
    fill(database, "SKLAD", {"ID", "NAZEV"}, {{id(1), text("Hlavní sklad")}, {id(2), text("Pobočka")}});
    fill(database, "DODAVATEL", {"ID", "JMENO"}, {{id(1), text("Mlýn Lípa")}, {id(2), text("Statek Vrba")}});
    fill(database, "DPH", {"ID", "NAZEV", "SAZBA", "PLATIOD"}, {{id(1), text("21 %"), text("21"), text("2013-01-01")}});
    fill(database, "GLOBALPARAM", {"SEKCE", "NAZEV", "HODNOTA"},
         {{text("DPH"), text("DPHBLIC"), text("0")}, {text("DPH"), text("SAZBADPHB"), text("5")}});
    fill(database, "SKUPSPOL1", {"ID", "NAZEV"}, {{id(1), text("Potraviny")}});
    fill(database, "SKUPSPOL2", {"ID", "SSP1ID", "NAZEV"}, {{id(1), id(1), text("Sypké")}});
    fill(database, "SKUPSPOL3", {"ID", "SSP2ID", "NAZEV"}, {{id(1), id(1), text("Základní")}});
    fill(database, "SKLADPOL", {"ID", "NAZEV", "SSP3ID", "DPHID"},
         {{id(1), text("Mouka"), id(1), id(1)}, {id(2), text("Cukr"), id(1), id(1)}});
    fill(database, "SKPL", {"ID", "SKLPID", "PORADI", "NAZEV", "FAKTOR"},
         {{id(1), id(1), id(0), text("ks"), text("1")}, {id(2), id(2), id(0), text("ks"), text("1")}});
    fill(database, "DODCENIK", {"ID", "DODVID", "SKLPID", "PLATIOD", "CENA", "SLEVA"},
         {{id(1), id(1), id(1), text("2020-01-01"), text("10"), text("0")},
          {id(2), id(1), id(2), text("2020-01-01"), text("20"), text("10")}});
}

void addNotes(refhost::Database& database) {
    fill(database, "DODAK", {"ID", "CISLO", "DATUM", "DODVID", "SKLDID", "OTEVRENO"},
         {{id(c_ClosedNote), text(c_ClosedNoteNumber), text("2026-01-10"), id(1), id(1), id(0)},
          {id(c_OpenNote), text("DL2"), text("2026-02-01"), id(1), id(1), id(1)},
          {id(3), text("DL3"), text("2026-03-01"), id(2), id(1), id(0)}});
    // VAT of 21 %: 10 gives 2.10, 20 gives 4.20, and 18 (20 less 10 %) gives 3.78; no local VAT.
    fill(
        database, "DODAKPOL",
        {"ID",
         "DODKID",
         "PORADI",
         "SKLPID",
         "SKLDID",
         "DPHID",
         "MNOZSTVI",
         "SLEVA",
         "JEDNCENABBEZSLEVY",
         "JEDNDPHABEZSLEVY",
         "JEDNDPHBBEZSLEVY",
         "JEDNCENASBEZSLEVY",
         "JEDNCENABSESLEVOU",
         "JEDNDPHASESLEVOU",
         "JEDNDPHBSESLEVOU",
         "JEDNCENASSESLEVOU",
         "CENABBEZSLEVY",
         "DPHABEZSLEVY",
         "DPHBBEZSLEVY",
         "CENASBEZSLEVY",
         "CENABSESLEVOU",
         "DPHASESLEVOU",
         "DPHBSESLEVOU",
         "CENASSESLEVOU"},
        {{id(1),      id(c_ClosedNote), id(1),     id(1),        id(1),      id(1),       text("2"), text("0"),
          text("10"), text("2.1"),      text("0"), text("12.1"), text("10"), text("2.1"), text("0"), text("12.1"),
          text("20"), text("4.2"),      text("0"), text("24.2"), text("20"), text("4.2"), text("0"), text("24.2")},
         {id(2),       id(c_ClosedNote), id(2),     id(2),        id(1),      id(1),        text("5"), text("10"),
          text("20"),  text("4.2"),      text("0"), text("24.2"), text("18"), text("3.78"), text("0"), text("21.78"),
          text("100"), text("21"),       text("0"), text("121"),  text("90"), text("18.9"), text("0"), text("108.9")}});
}

void addOrders(refhost::Database& database) {
    const auto order = [](int number, const char* label, int supplier, int warehouse) -> Row {
        return {id(number), id(0), text(label), none, text("2026-01-20 08:00:00"), id(supplier), id(warehouse), id(1)};
    };
    fill(database, "DODOBJEDNAVKA", {"ID", "VZOR", "CISLO", "NAZEV", "OBJEDNANIDC", "DODVID", "SKLDID", "OTEVRENO"},
         {order(c_Order, c_OrderNumber, 1, 1), order(2, "OV2027-000002", 2, 1), order(3, "OV2027-000003", 1, 2),
          order(4, "OV2027-000004", 1, 1)});
    const std::vector<std::string> columns = {"ID",     "DDOBID",   "PORADI", "SKLPID",   "SKPLID",
                                              "SKLDID", "MNOZSTVI", "DODANO", "KOMPLETNI"};
    fill(database, "DODOBJPOL", columns,
         {{id(1), id(c_Order), id(1), id(1), id(1), id(1), text("4"), text("0"), id(0)},
          {id(2), id(c_Order), id(2), id(2), id(2), id(1), text("3"), text("0"), id(0)},
          {id(3), id(2), id(1), id(1), id(1), id(1), text("1"), text("0"), id(0)},
          {id(4), id(3), id(1), id(1), id(1), id(2), text("1"), text("0"), id(0)},
          {id(5), id(4), id(1), id(1), id(1), id(1), text("1"), text("1"), id(1)}});
}

} // namespace

std::string on(refhost::Engine engine) {
    const std::string url = refhost::newDatabaseUrl(engine);
    const auto database = refhost::openAs(url, "novakova");
    addGoods(*database);
    addNotes(*database);
    addOrders(*database);
    return refhost::addressAs(url, "novakova");
}

} // namespace tinycompany
