#include "benchmarks/database/Company.h"

#include "refhost/database/SampleCompany.h"

#include <stdexcept>
#include <utility>

namespace benchmark {

namespace {

/// The first supplier lists what he did not list yet, so that every line of a fill has a price.
constexpr const char* c_ListEveryItem =
    "insert into DODCENIK (DODVID, SKLPID, PLATIOD, CENA, SLEVA) "
    "select 1, i.ID, '2015-01-01', '12.35', '5' from SKLADPOL i "
    "where not exists (select 1 from DODCENIK c where c.DODVID = 1 and c.SKLPID = i.ID)";

/// What has been listed for a while is listed still.
constexpr const char* c_ListForEver =
    "update DODCENIK set PLATIDO = null where DODVID = 1 and PLATIDO is not null and not exists "
    "(select 1 from DODCENIK c where c.DODVID = 1 and c.SKLPID = DODCENIK.SKLPID and c.PLATIOD > DODCENIK.PLATIOD)";

/// Documents of the lists are older than those that the fills take.
constexpr const char* c_LongAgo = "2020-05-04 09:30:00";
/// The supplier and the warehouse that all of them have.
constexpr std::int64_t c_First = 1;

std::string listNumber(std::int64_t i) {
    return "LIST-" + std::to_string(i);
}

} // namespace

TResultTable call(refhost::Database& database, const char* procedure, std::vector<TDbParam> params) {
    TCallResult result = database.Execute({procedure, std::move(params), true});
    return result.Sets.empty() ? TResultTable{} : std::move(result.Sets.front());
}

Company::Company(refhost::Engine engine, int lines, CostClock::Kind clock)
    : clock_(clock), lines_(lines), engineName_(refhost::engineName(engine)), url_(refhost::newDatabaseUrl(engine)) {
    measured_ = refhost::openAs(url_, c_User);
    refhost::createSampleCompany(*measured_, lines);
    bare_ = openBare(url_, c_User);
    longOrder_ = number("select max(ID) - 1 from DODOBJEDNAVKA");
    longTemplate_ = longOrder_ + 1;
    longNote_ = number("select max(ID) from DODAK");
    bare_->script(c_ListForEver);
    bare_->script(c_ListEveryItem);
    addOrders();
    bare_->refreshStatistics();
    if (engine == refhost::Engine::PostgreSQL) {
        const std::string process = "select pg_backend_pid()";
        clock_.addProcess(std::get<std::int64_t>(measured_->Query(process).Rows.at(0).at(0)));
        clock_.addProcess(number(process));
    }
}

std::int64_t Company::number(const std::string& sql) {
    return std::get<std::int64_t>(bare_->run(sql).Rows.at(0).at(0));
}

void Company::addOrders() {
    const std::int64_t first = longTemplate_ + 1;
    const std::int64_t firstLine = number("select max(ID) + 1 from DODOBJPOL");
    const std::int64_t item = number("select min(SKLPID) from DODOBJPOL");
    const std::int64_t unit = number("select min(ID) from SKPL where SKLPID = (select min(SKLPID) from DODOBJPOL)");
    std::vector<std::vector<TDbValue>> orders;
    std::vector<std::vector<TDbValue>> lines;
    for (std::int64_t i = 0; i < lines_; ++i) {
        orders.push_back({first + i, std::int64_t{0}, listNumber(i), c_LongAgo, c_First, c_First, std::int64_t{1}});
        lines.push_back({firstLine + i, first + i, std::int64_t{1}, item, unit, c_First, "3"});
    }
    insert("DODOBJEDNAVKA", {"ID", "VZOR", "CISLO", "OBJEDNANIDC", "DODVID", "SKLDID", "OTEVRENO"}, orders);
    insert("DODOBJPOL", {"ID", "DDOBID", "PORADI", "SKLPID", "SKPLID", "SKLDID", "MNOZSTVI"}, lines);
}

void Company::addListedDocuments() {
    const std::int64_t firstTemplate = number("select max(ID) + 1 from DODOBJEDNAVKA");
    const std::int64_t firstNote = number("select max(ID) + 1 from DODAK");
    std::vector<std::vector<TDbValue>> templates;
    std::vector<std::vector<TDbValue>> notes;
    for (std::int64_t i = 0; i < lines_; ++i) {
        templates.push_back({firstTemplate + i, std::int64_t{1}, listNumber(i), listNumber(i), c_First, c_First});
        notes.push_back({firstNote + i, listNumber(i), "2020-05-04", c_First, c_First});
    }
    insert("DODOBJEDNAVKA", {"ID", "VZOR", "CISLO", "NAZEV", "DODVID", "SKLDID"}, templates);
    insert("DODAK", {"ID", "CISLO", "DATUM", "DODVID", "SKLDID"}, notes);
    bare_->refreshStatistics();
}

void Company::addListedItems() {
    const std::int64_t first = number("select max(ID) + 1 from SKLADPOL");
    const std::int64_t firstUnit = number("select max(ID) + 1 from SKPL");
    const std::int64_t group =
        number("select min(g3.ID) from SKUPSPOL3 g3 join SKUPSPOL2 g2 on g2.ID = g3.SSP2ID where g2.SSP1ID = "
               "(select min(ID) from SKUPSPOL1)");
    const std::int64_t rate = number("select min(DPHID) from SKLADPOL");
    std::vector<std::vector<TDbValue>> items;
    std::vector<std::vector<TDbValue>> units;
    for (std::int64_t i = 0; i < lines_; ++i) {
        items.push_back({first + i, listNumber(i), group, rate});
        units.push_back({firstUnit + i, first + i, std::int64_t{0}, "ks", "1"});
    }
    insert("SKLADPOL", {"ID", "NAZEV", "SSP3ID", "DPHID"}, items);
    insert("SKPL", {"ID", "SKLPID", "PORADI", "NAZEV", "FAKTOR"}, units);
    bare_->script(c_ListEveryItem);
    bare_->refreshStatistics();
}

void Company::insert(const char* table, const std::vector<std::string>& columns,
                     const std::vector<std::vector<TDbValue>>& rows) {
    measured_->insertRows(table, columns, rows);
}

std::int64_t Company::newNote() {
    const std::int64_t id = number("select max(ID) + 1 from DODAK");
    bare_->run(
        "insert into DODAK (ID, CISLO, DATUM, DODVID, SKLDID) select $1, $2, DATUM, 1, 1 from DODAK where ID = $3",
        {id, "BENCH-" + std::to_string(++newDocuments_), longNote_});
    return id;
}

std::int64_t Company::newOrder() {
    const std::int64_t id = number("select max(ID) + 1 from DODOBJEDNAVKA");
    bare_->run("insert into DODOBJEDNAVKA (ID, VZOR, CISLO, OBJEDNANIDC, DODVID, SKLDID) "
               "select $1, 0, $2, OBJEDNANIDC, 1, 1 from DODOBJEDNAVKA where ID = $3",
               {id, "BENCH-" + std::to_string(++newDocuments_), longOrder_});
    return id;
}

void Company::forgetDeliveries() {
    bare_->run("update DODOBJPOL set DODANO = '0', KOMPLETNI = 0 where DDOBID = $1", {longOrder_});
}

} // namespace benchmark
