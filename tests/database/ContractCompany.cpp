#include "tests/database/ContractCompany.h"

#include <string>
#include <vector>

namespace refhost {

namespace {

using Row = std::vector<TDbValue>;

TDbValue value(int number) {
    return std::int64_t{number};
}
TDbValue value(const char* text) {
    return AnsiString(text);
}
TDbValue value(std::nullptr_t) {
    return {};
}

template <typename... Values>
Row row(const Values&... values) {
    return {value(values)...};
}

void fill(Database& database, const char* table, const std::vector<std::string>& columns,
          const std::vector<Row>& rows) {
    database.insertRows(table, columns, rows);
}

void addPartners(Database& database) {
    fill(database, "SKLAD", {"ID", "NAZEV"}, {row(1, "Hlavní sklad"), row(2, "Pobočka Čáslav")});
    fill(database, "DODAVATEL", {"ID", "JMENO"}, {row(1, "Mlýn Lípa"), row(2, "Nápoje Švec"), row(3, "Čajovna Říp")});
    fill(database, "DPH", {"ID", "NAZEV", "SAZBA", "PLATIOD", "PLATIDO"},
         {row(1, "21 %", "21", "2013-01-01", nullptr), row(2, "12 %", "12", "2024-01-01", nullptr),
          row(3, "15 %", "15", "2013-01-01", "2023-12-31"), row(4, "0 %", "0", "2000-01-01", nullptr)});
    fill(database, "GLOBALPARAM", {"SEKCE", "NAZEV", "HODNOTA"},
         {row("DPH", "DPHBLIC", "0"), row("DPH", "SAZBADPHB", "2"), row("SKLAD", "POCETMESICUDODAVEK", "3")});
}

/// The groups "Ostatní" and "Směsi" exist twice, under different groups.
void addGroups(Database& database) {
    fill(database, "SKUPSPOL1", {"ID", "NAZEV"}, {row(1, "Potraviny"), row(2, "Nápoje")});
    fill(database, "SKUPSPOL2", {"ID", "SSP1ID", "NAZEV"},
         {row(1, 1, "Mouky"), row(2, 1, "Cukry"), row(3, 1, "Ostatní"), row(4, 2, "Čaje"), row(5, 2, "Ostatní")});
    fill(database, "SKUPSPOL3", {"ID", "SSP2ID", "NAZEV"},
         {row(1, 1, "Hladké"), row(2, 1, "Hrubé"), row(3, 2, "Krystal"), row(4, 4, "Černé"), row(5, 3, "Směsi"),
          row(6, 5, "Směsi")});
}

void addItems(Database& database) {
    fill(database, "SKLADPOL", {"ID", "NAZEV", "SSP3ID", "DPHID", "TRVANLIVOSTDNU", "AKTIVNI"},
         {row(1, "Mouka hladká", 1, 2, 180, 1), row(2, "Mouka hrubá", 2, 2, nullptr, 1),
          row(3, "Cukr krystal", 3, 2, 720, 1), row(4, "Čaj černý", 4, 2, nullptr, 1), row(5, "Chléb", 5, 2, 5, 1),
          row(6, "Hruška sušená", 5, 1, nullptr, 1), row(7, "Sirup", 6, 1, nullptr, 1),
          row(8, "Ovesné vločky", 5, 2, nullptr, 0)});
    // Tea has no first secondary unit, bread no secondary unit at all.
    fill(database, "SKPL", {"ID", "SKLPID", "PORADI", "NAZEV", "FAKTOR"},
         {row(11, 1, 0, "kg", "1"), row(12, 1, 1, "pytel", "25"), row(13, 1, 2, "paleta", "1000"),
          row(21, 2, 0, "kg", "1"), row(22, 2, 1, "pytel", "25"), row(31, 3, 0, "kg", "1"),
          row(32, 3, 1, "karton", "10"), row(41, 4, 0, "ks", "1"), row(43, 4, 2, "krabice", "20"),
          row(51, 5, 0, "ks", "1"), row(61, 6, 0, "kg", "1"), row(71, 7, 0, "l", "1"), row(72, 7, 1, "lahev", "0.7"),
          row(81, 8, 0, "kg", "1")});
    // Flour is not listed in April, sugar not after February, tea on a single day.
    fill(database, "DODCENIK", {"DODVID", "SKLPID", "PLATIOD", "PLATIDO", "CENA", "SLEVA"},
         {row(1, 1, "2026-01-01", "2026-03-31", "10", "0"), row(1, 1, "2026-05-01", nullptr, "12", "10"),
          row(1, 2, "2026-01-01", nullptr, "20.5", "12.5"), row(1, 3, "2020-01-01", "2026-02-28", "30", "0"),
          row(1, 8, "2026-01-01", nullptr, "5", "0"), row(2, 4, "2026-02-10", "2026-02-10", "99.9", "0"),
          row(2, 7, "2025-01-01", "2026-06-30", "40", "5")});
}

void addOrders(Database& database) {
    fill(database, "DODOBJEDNAVKA", {"ID", "VZOR", "CISLO", "NAZEV", "OBJEDNANIDC", "DODVID", "SKLDID", "OTEVRENO"},
         {row(1, 0, "OBJ-1", nullptr, "2026-02-10 08:30:00", 1, 1, 1),
          row(2, 0, "OBJ-2", nullptr, "2026-02-01 09:00:00", 1, 1, 1),
          row(3, 0, "OBJ-3", nullptr, "2026-02-10 23:59:59", 2, 1, 1),
          row(4, 0, "OBJ-4", nullptr, "2026-04-10 10:00:00", 1, 2, 1),
          row(5, 0, "OBJ-5", nullptr, "2026-02-12 10:00:00", nullptr, 1, 1),
          row(6, 0, "OBJ-6", nullptr, "2026-03-01 10:00:00", 1, 1, 0), row(7, 1, "VZ-1", "Týdenní", nullptr, 1, 1, 1),
          row(8, 1, "VZ-2", "Letní", nullptr, 2, 2, 0), row(9, 1, "OBJ-1", "Jmenovec", nullptr, nullptr, 1, 1),
          row(10, 0, "OBJ-10", nullptr, "2026-02-09 10:00:00", 1, 1, 1)});
    fill(database, "DODOBJPOL",
         {"ID", "DDOBID", "PORADI", "SKLPID", "SKPLID", "SKLDID", "DODVID", "MNOZSTVI", "DODANO", "KOMPLETNI", "POPIS",
          "KOMENTAR"},
         {row(101, 1, 1, 1, 12, 1, nullptr, "4", "40", 0, nullptr, nullptr),
          row(102, 1, 2, 2, 21, 1, nullptr, "10", "10", 1, nullptr, nullptr),
          row(103, 1, 3, 3, 31, 2, nullptr, "7.5", "0", 0, "krystal jemný", "spěchá"),
          row(201, 2, 1, 6, 61, 1, nullptr, "1", "1", 1, nullptr, nullptr),
          row(301, 3, 1, 7, 72, 1, nullptr, "10", "0", 0, nullptr, nullptr),
          row(302, 3, 2, 4, 43, 1, nullptr, "2", "0", 0, nullptr, nullptr),
          row(401, 4, 1, 1, 11, 2, nullptr, "3", "0", 0, nullptr, nullptr),
          row(402, 4, 2, 3, 31, 2, nullptr, "2", "0", 0, nullptr, nullptr),
          row(601, 6, 1, 1, 11, 1, nullptr, "5", "0", 0, nullptr, nullptr),
          row(602, 6, 2, 2, 22, 1, nullptr, "2", "0", 0, nullptr, nullptr),
          row(603, 6, 3, 2, 21, 1, nullptr, "3", "0", 0, nullptr, nullptr),
          row(701, 7, 1, 1, 11, 1, nullptr, "50", "0", 0, nullptr, nullptr),
          row(702, 7, 2, 7, 71, 1, 2, "5", "0", 0, nullptr, nullptr),
          row(1001, 10, 1, 4, 43, 1, nullptr, "1", "0", 0, nullptr, nullptr),
          row(1002, 10, 2, 5, 51, 1, nullptr, "6", "0", 0, nullptr, nullptr),
          row(1003, 10, 3, 3, 31, 1, nullptr, "9", "0", 0, nullptr, nullptr)});
}

void addNotes(Database& database) {
    fill(database, "DODAK", {"ID", "CISLO", "DATUM", "DODVID", "SKLDID", "OTEVRENO"},
         {row(1, "DL-1", "2026-02-01", 1, 1, 0), row(2, "DL-2", "2026-02-15", 1, 1, 1),
          row(3, "DL-3", "2026-02-20", 2, 1, 1), row(4, "DL-4", "2026-03-05", 1, 2, 1),
          row(5, "DL-1", "2025-10-01", 2, 1, 0), row(6, "DL-6", "2026-02-15", 1, 1, 1),
          row(7, "DL-7", "2025-12-31", 1, 1, 1), row(8, "DL-8", "2025-11-10", 1, 1, 1),
          row(9, "DL-9", "2025-11-09", 1, 1, 1)});
    fill(database, "DODAKPOL", {"DODKID", "PORADI", "SKLPID", "SKLDID", "DPHID", "MNOZSTVI", "SLEVA"},
         {row(2, 1, 4, 1, 2, "1", nullptr), row(3, 1, 7, 1, 1, "14", nullptr), row(4, 1, 1, 2, 2, "3", "5"),
          row(4, 2, 5, 2, 2, "20", nullptr), row(4, 3, 1, 2, 2, "4", "6"), row(6, 1, 1, 1, 2, "9", nullptr),
          row(6, 2, 3, 1, 2, "6", nullptr), row(7, 1, 6, 1, 1, "8", nullptr), row(8, 1, 5, 1, 2, "1.25", nullptr),
          row(8, 2, 1, 1, 2, "100", nullptr), row(9, 1, 4, 1, 2, "3", nullptr)});
    // The first note's prices are such as a clerk may type: totals a cent off, a rate that is no longer valid, a return
    // of which only one price is known. Whoever carries them over must not correct them.
    fill(database, "DODAKPOL",
         {"DODKID",
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
         {row(1, 1, 1, 1, 2, "2", "0", "10", "1.2", "0", "11.2", "10", "1.2", "0", "11.2", "20.01", "2.4", "0", "22.41",
              "20.01", "2.4", "0", "22.41"),
          row(1, 2, 3, 2, 3, "5", "10", "30", "4.5", "0", "34.5", "27", "4.05", "0", "31.05", "150", "22.5", "0",
              "172.5", "135", "20.25", "0", "155.25"),
          row(1, 3, 2, 1, nullptr, "-1.5", nullptr, "7.000001", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
              nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr)});
}

} // namespace

void addContractCompany(Database& database) {
    addPartners(database);
    addGroups(database);
    addItems(database);
    addOrders(database);
    addNotes(database);
}

} // namespace refhost
