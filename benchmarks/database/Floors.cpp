#include "benchmarks/database/Floors.h"

#include "tests/database/PriceColumns.h"

namespace benchmark::floors {

namespace {

/// The price columns as a list, each behind the name of its table.
std::string prices(const std::string& table = {}) {
    std::string list;
    for (const char* column : refhost::c_PriceColumns) {
        list += (list.empty() ? "" : ", ") + table + column;
    }
    return list;
}

/// The lines of notes that meet a condition, as they are stored, for the note $1: 26 columns.
std::string noteLines(const std::string& condition) {
    return "select p.DOBSID, g1.NAZEV, g2.NAZEV, g3.NAZEV, i.NAZEV, s.NAZEV, p.MNOZSTVI, r.NAZEV, p.SLEVA, " +
           prices("p.") +
           ", d.DATUM "
           "from DODAKPOL p join DODAK d on d.ID = $1 join SKLADPOL i on i.ID = p.SKLPID "
           "join SKUPSPOL3 g3 on g3.ID = i.SSP3ID join SKUPSPOL2 g2 on g2.ID = g3.SSP2ID "
           "join SKUPSPOL1 g1 on g1.ID = g2.SSP1ID join SKLAD s on s.ID = p.SKLDID "
           "left join DPH r on r.ID = p.DPHID where " +
           condition;
}

/// The joins of what an order's line names beside its item.
std::string supplierAndUnits(const std::string& supplier) {
    return "left join DODAVATEL v on v.ID = " + supplier +
           ".DODVID "
           "left join SKPL hl on hl.SKLPID = i.ID and hl.PORADI = 0 "
           "left join SKPL v1 on v1.SKLPID = i.ID and v1.PORADI = 1 "
           "left join SKPL v2 on v2.SKLPID = i.ID and v2.PORADI = 2 ";
}

/// Lines as they are stored, for the order $1: 16 columns. `supplier` is what their supplier comes from.
std::string orderLines(const std::string& lines, const std::string& supplier, const std::string& remarks) {
    return "select g1.NAZEV, g2.NAZEV, g3.NAZEV, i.NAZEV, s.NAZEV, v.JMENO, p.MNOZSTVI, hl.NAZEV, hl.ID, v1.NAZEV, "
           "v1.ID, v2.NAZEV, v2.ID, " +
           remarks + ", p.PORADI from " + lines +
           " join DODOBJEDNAVKA o on o.ID = $1 join SKLADPOL i on i.ID = p.SKLPID "
           "join SKUPSPOL3 g3 on g3.ID = i.SSP3ID join SKUPSPOL2 g2 on g2.ID = g3.SSP2ID "
           "join SKUPSPOL1 g1 on g1.ID = g2.SSP1ID join SKLAD s on s.ID = p.SKLDID " +
           supplierAndUnits(supplier);
}

/// Items as the order $1 takes them, likewise.
std::string orderItems(const std::string& items, const std::string& supplier) {
    return "select g1.NAZEV as G1, g2.NAZEV as G2, g3.NAZEV as G3, i.NAZEV, s.NAZEV, v.JMENO, null, hl.NAZEV, hl.ID, "
           "v1.NAZEV, v1.ID, v2.NAZEV, v2.ID, null, null, i.ID from " +
           items +
           " join DODOBJEDNAVKA o on o.ID = $1 "
           "join SKUPSPOL3 g3 on g3.ID = i.SSP3ID join SKUPSPOL2 g2 on g2.ID = g3.SSP2ID "
           "join SKUPSPOL1 g1 on g1.ID = g2.SSP1ID join SKLAD s on s.ID = o.SKLDID " +
           supplierAndUnits(supplier);
}

/// Of the lines p, one for each item of the three documents that come first.
std::string latestOfEachItem(const std::string& lines, const std::string& document, const std::string& documents) {
    return "p.ID in (select max(q.ID) from " + lines + " q where q." + document +
           " in (select l.ID from (select ID from " + documents + ", ID desc limit 3) l) group by q.SKLPID)";
}

} // namespace

const std::string c_NoteFromOrder =
    "select p.ID, g1.NAZEV, g2.NAZEV, g3.NAZEV, i.NAZEV, s.NAZEV, p.MNOZSTVI, r.NAZEV, c.SLEVA, c.CENA, c.CENA, "
    "c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, c.CENA, "
    "d.DATUM "
    "from DODOBJPOL p join DODAK d on d.ID = $1 join SKLADPOL i on i.ID = p.SKLPID "
    "join SKUPSPOL3 g3 on g3.ID = i.SSP3ID join SKUPSPOL2 g2 on g2.ID = g3.SSP2ID "
    "join SKUPSPOL1 g1 on g1.ID = g2.SSP1ID join SKLAD s on s.ID = p.SKLDID left join DPH r on r.ID = i.DPHID "
    "left join DODCENIK c on c.DODVID = d.DODVID and c.SKLPID = p.SKLPID and d.DATUM >= c.PLATIOD "
    "and (c.PLATIDO is null or d.DATUM <= c.PLATIDO) "
    "where p.DDOBID = $2 order by p.PORADI";

const std::string c_NoteFromNote = noteLines("p.DODKID = $2") + " order by p.PORADI";
const std::string c_NoteFromLatest =
    noteLines(latestOfEachItem("DODAKPOL", "DODKID", "DODAK where DODVID = $2 and ID <> $1 order by DATUM desc")) +
    " order by p.ID";

const std::string c_OrderFromOrder =
    orderLines("DODOBJPOL p", "o", "p.POPIS, p.KOMENTAR") + "where p.DDOBID = $2 order by p.PORADI";
const std::string c_OrderFromLatest =
    orderLines("DODOBJPOL p", "o", "p.POPIS, p.KOMENTAR") + "where " +
    latestOfEachItem("DODOBJPOL", "DDOBID",
                     "DODOBJEDNAVKA where DODVID = $2 and ID <> $1 and VZOR = 0 order by OBJEDNANIDC desc") +
    " order by p.ID";
const std::string c_OrderFromNote =
    orderLines("DODAKPOL p join DODAK d on d.ID = p.DODKID", "d", "null, null") + "where d.ID = $2 order by p.PORADI";
const std::string c_OrderFromDeliveries =
    orderLines("DODAKPOL p join DODAK d on d.ID = p.DODKID", "d", "null, null") +
    "where d.DODVID = $2 and p.ID in (select max(q.ID) from DODAKPOL q join DODAK n on n.ID = q.DODKID "
    "where n.DODVID = $2 group by q.SKLPID) order by p.ID";

const std::string c_OrderFromPriceList = orderItems("DODCENIK c join SKLADPOL i on i.ID = c.SKLPID", "c") +
                                         "where c.DODVID = $2 and c.PLATIDO is null order by 1, 2, 3, i.NAZEV, i.ID";
const std::string c_OrderFromGroup =
    orderItems("SKLADPOL i", "o") + "where g1.ID = $2 and i.AKTIVNI = 1 order by 1, 2, 3, i.NAZEV, i.ID";

const std::string c_Echo = "select $1 as A, $2 as B, $3 as C, $4 as D";

std::string noteStaging(const BareSession& session) {
    const std::string decimal = " " + session.decimalType() + ", ";
    std::string table = "create temp table NOTE_FLOOR (PLACE " + session.countingKey() +
                        ", DOBSID integer, SKLPID integer, SKLDID integer, DPHID integer, ";
    table += "MNOZSTVI" + decimal + "SLEVA" + decimal;
    for (const char* column : refhost::c_PriceColumns) {
        table += column + decimal;
    }
    return table + "TRVANLIVOST text)";
}

std::string orderStaging(const BareSession& session) {
    return "create temp table ORDER_FLOOR (PLACE " + session.countingKey() +
           ", SKLPID integer, SKLDID integer, DODVID integer, SKPLID integer, MNOZSTVI " + session.decimalType() +
           ", POPIS text, KOMENTAR text)";
}

const std::string c_StageNoteRow =
    "insert into NOTE_FLOOR (DOBSID, SKLPID, SKLDID, MNOZSTVI, DPHID, SLEVA, " + prices() +
    ", TRVANLIVOST) "
    "values ($1, (select ID from SKLADPOL where NAZEV = $2), (select ID from SKLAD where NAZEV = $3), $4, "
    "(select ID from DPH where NAZEV = $5), $6, $7, $8, $9, $10, $11, $12, $13, $14, $15, $16, $17, $18, $19, $20, "
    "$21, $22, $23)";

const std::string c_StageOrderRow =
    "insert into ORDER_FLOOR (SKLPID, SKLDID, DODVID, SKPLID, MNOZSTVI, POPIS, KOMENTAR) "
    "values ((select ID from SKLADPOL where NAZEV = $1), (select ID from SKLAD where NAZEV = $2), "
    "(select ID from DODAVATEL where JMENO = $3), $4, $5, $6, $7)";

const std::string c_CloseNote =
    "insert into DODAKPOL (DODKID, PORADI, SKLPID, SKLDID, DPHID, MNOZSTVI, SLEVA, " + prices() +
    ", DOBSID) "
    "select $1, row_number() over (order by PLACE), SKLPID, SKLDID, DPHID, MNOZSTVI, SLEVA, " +
    prices() + ", DOBSID from NOTE_FLOOR order by PLACE";

const std::string c_CloseOrder =
    "insert into DODOBJPOL (DDOBID, PORADI, SKLPID, SKPLID, SKLDID, MNOZSTVI, POPIS, KOMENTAR) "
    "select $1, row_number() over (order by PLACE), SKLPID, SKPLID, SKLDID, MNOZSTVI, POPIS, KOMENTAR "
    "from ORDER_FLOOR order by PLACE";

const std::string c_CloseOrderLines =
    "update DODOBJPOL set DODANO = f.MNOZSTVI, KOMPLETNI = 1 from NOTE_FLOOR f where f.DOBSID = DODOBJPOL.ID";

const std::string c_OrderByNumber = "select ID, DODVID, SKLDID from DODOBJEDNAVKA where VZOR = 0 and CISLO = $1";

const std::string c_OrderList =
    "select o.CISLO, o.OBJEDNANIDC, v.JMENO, s.NAZEV, o.ID, o.SKLDID, o.DODVID "
    "from DODOBJEDNAVKA o join DODAVATEL v on v.ID = o.DODVID join SKLAD s on s.ID = o.SKLDID "
    "where o.VZOR = 0 and o.SKLDID = $1 and o.DODVID = $2 "
    "and exists (select 1 from DODOBJPOL p where p.DDOBID = o.ID and p.KOMPLETNI = 0)";
const std::string c_TemplateList =
    "select o.CISLO, o.NAZEV, v.JMENO, s.NAZEV, o.ID, o.SKLDID, o.DODVID "
    "from DODOBJEDNAVKA o join DODAVATEL v on v.ID = o.DODVID join SKLAD s on s.ID = o.SKLDID "
    "where o.VZOR = 1 and o.SKLDID = $1 and o.DODVID = $2";
const std::string c_NoteList = "select d.CISLO, d.DATUM, v.JMENO, s.NAZEV, d.ID, d.SKLDID, d.DODVID "
                               "from DODAK d join DODAVATEL v on v.ID = d.DODVID join SKLAD s on s.ID = d.SKLDID "
                               "where d.SKLDID = $1 and d.DODVID = $2";
const std::string c_ListedSuppliers = "select v.JMENO, v.MESTO, v.ID from DODAVATEL v "
                                      "where exists (select 1 from DODCENIK c where c.DODVID = v.ID)";
const std::string c_DeliveringSuppliers =
    "select v.JMENO, v.MESTO, v.ID from DODAVATEL v where exists "
    "(select 1 from DODAK d join DODAKPOL p on p.DODKID = d.ID where d.DODVID = v.ID and p.SKLDID = $1)";

} // namespace benchmark::floors
