#include "tests/session/OrderSources.h"

#include "tests/database/ContractCompany.h"

#include <ostream>

namespace ordersources {

namespace {

const std::string c_None = "null";

std::string master(int document) {
    return R"(["a_DDOBIDMASTER",)" + std::to_string(document) + "]";
}

/// Confirms the supplier that the dialog shows, with the quantities of his deliveries.
void confirmWithQuantities(HostSession& session, const SessionWords& words) {
    session.waitForWindow(QString::fromUtf8(words.Supplier));
    session.press({QStringLiteral("space"), QStringLiteral("Return")});
}

std::string groupCheck(int level, int document, const char* name) {
    const std::string number = std::to_string(level);
    return call("MELVARKEDITORDodObjCheckSkupSkladPol" + number, true,
                master(document) + R"(,["a_NAZEV",")" + name + R"("],["a_SSP)" + number + R"(ID",null])", 1);
}

} // namespace

std::string companyOn(refhost::Engine engine, const std::string& change) {
    const std::string url = refhost::newDatabaseUrl(engine);
    const auto database = refhost::openAs(url, "novakova");
    refhost::addContractCompany(*database);
    if (!change.empty()) {
        database->runScript(change);
    }
    return refhost::addressAs(url, "novakova");
}

Lines groups(int document, const std::vector<const char*>& names, const std::string& ids, int rows) {
    Lines lines;
    for (int level = 1; level <= 3; ++level) {
        lines.push_back(groupCheck(level, document, names[static_cast<std::size_t>(level) - 1]));
    }
    lines.push_back(call("MELVARKEDITORDodObjCheckSkupSkladPol", false, master(document) + "," + ids, 0));
    lines.push_back(fill("SkupSkladPol", document, ids.c_str(), rows));
    return lines;
}

Choice typed(const char* SessionWords::*title, const char* text) {
    return [=](HostSession& session, const SessionWords& words) {
        session.waitForWindow(QString::fromUtf8(words.*title));
        session.type(QString::fromUtf8(text));
        session.press({QStringLiteral("Return")});
    };
}

Choice confirmed(const char* SessionWords::*title) {
    return [=](HostSession& session, const SessionWords& words) {
        session.waitForWindow(QString::fromUtf8(words.*title));
        session.press({QStringLiteral("Return")});
    };
}

std::string typedCheck(const char* kind, int document, const char* textParam, const char* text, const char* idParam) {
    return call("MELVARKEDITORDodObjCheckZdroj" + std::string(kind), true,
                master(document) + R"(,[")" + textParam + R"(",")" + text + R"("],[")" + idParam + R"(",null])", 1);
}

std::string fill(const char* kind, int document, const char* source, int rows) {
    return call("MELVARKEDITORDodObjGetPolozkyBy" + std::string(kind), true,
                master(document) + "," + std::string(source), rows);
}

std::string stored(int document, int place, const char* item, const char* quantity, const char* unit,
                   const char* supplier) {
    return R"({"_DOCID":")" + std::to_string(document) + R"(","PORADI":")" + std::to_string(place) +
           R"(","SKLADPOL":")" + item + R"(","MNOZSTVI":")" + quantity + R"(","JEDNOTKY":")" + unit +
           R"(","DODAVATEL":")" + supplier + R"("})";
}

Lines storedOrderLines(const HostSession& session, bool ofTemplates) {
    const QString view =
        ofTemplates ? QStringLiteral("SCREEN_DODOBJVZOR_LINES_V") : QStringLiteral("SCREEN_DODOBJ_LINES_V");
    return session.ask({QStringLiteral("--query"),
                        QStringLiteral("select _DOCID, PORADI, SKLADPOL, MNOZSTVI, JEDNOTKY, DODAVATEL from %1 "
                                       "where _ID > 1003 order by _DOCID, PORADI")
                            .arg(view)});
}

void PrintTo(const SourceCase& source, std::ostream* out) {
    *out << source.name;
}

const std::vector<SourceCase>& sourceCases() {
    static const std::vector<SourceCase> cases{
        {.name = "Order",
         .isTemplate = false,
         .document = 1,
         .search = "8:30",
         .menuEntry = 1,
         .code = "OBJEDNAVKA",
         .number = 1,
         .change = "",
         .choose = typed(&SessionWords::Order, "OBJ-10"),
         .reading = {typedCheck("Objednavka", 1, "a_CISLO", "OBJ-10", "a_DDOBID"),
                     fill("Objednavka", 1, R"(["a_DDOBID",10])", 3)},
         // The tea's own quantity is a box; the typed pieces stand beside it.
         .rows = {{.item = "Čaj černý", .main = "2.5", .second = "1"},
                  {.item = "Chléb", .main = "6"},
                  {.item = "Cukr krystal", .main = "9"}},
         .closing = ordertrace::closing(1, "10", c_None, c_None),
         .storedLines = {stored(1, 4, "Čaj černý", "2,5", "ks"), stored(1, 5, "Čaj černý", "1", "krabice"),
                         stored(1, 6, "Chléb", "6", "ks"), stored(1, 7, "Cukr krystal", "9", "kg")}},
        {.name = "OrderTemplate",
         .isTemplate = false,
         .document = 1,
         .search = "8:30",
         .menuEntry = 2,
         .code = "OBJEDNAVKAVZOR",
         .number = 2,
         .change = "",
         .choose = typed(&SessionWords::Template, "VZ-1"),
         .reading = {typedCheck("ObjednavkaVzor", 1, "a_CISLO", "VZ-1", "a_DDOBID"),
                     fill("Objednavka", 1, R"(["a_DDOBID",7])", 2)},
         .rows = {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Sirup", .main = "5", .supplier = "Nápoje Švec"}},
         .closing = ordertrace::closing(1, c_None, "7", c_None),
         .storedLines = {stored(1, 4, "Mouka hladká", "2,5", "kg"), stored(11, 1, "Sirup", "5", "l", "Nápoje Švec")}},
        {.name = "LatestOrders",
         .isTemplate = false,
         .document = 1,
         .search = "8:30",
         .menuEntry = 4,
         .code = "SABLONA",
         .number = 3,
         .change = "",
         .choose = {},
         .reading = {fill("Objednavka", 1, R"(["a_DDOBID",null])", 5)},
         // OBJ-4 of the branch, then OBJ-6 and OBJ-10 of the main warehouse.
         .rows = {{.item = "Mouka hladká", .main = "2.5", .warehouse = "Pobočka Čáslav"},
                  {.item = "Cukr krystal", .main = "2", .warehouse = "Pobočka Čáslav"},
                  {.item = "Mouka hrubá", .main = "3"},
                  {.item = "Čaj černý", .second = "1"},
                  {.item = "Chléb", .main = "6"}},
         .closing = ordertrace::closing(1, c_None, c_None, c_None),
         .storedLines = {stored(1, 4, "Mouka hladká", "2,5", "kg"), stored(1, 5, "Cukr krystal", "2", "kg"),
                         stored(1, 6, "Mouka hrubá", "3", "kg"), stored(1, 7, "Čaj černý", "1", "krabice"),
                         stored(1, 8, "Chléb", "6", "ks")}},
        {.name = "DeliveryNote",
         .isTemplate = false,
         .document = 1,
         .search = "8:30",
         .menuEntry = 3,
         .code = "DODAK",
         .number = 4,
         .change = "",
         .choose = typed(&SessionWords::DeliveryNote, "DL-6"),
         .reading = {typedCheck("Dodak", 1, "a_CISLO", "DL-6", "a_DODKID"), fill("Dodak", 1, R"(["a_DODKID",6])", 2)},
         .rows = {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Cukr krystal", .main = "6"}},
         .closing = ordertrace::closing(1, c_None, c_None, "6"),
         .storedLines = {stored(1, 4, "Mouka hladká", "2,5", "kg"), stored(1, 5, "Cukr krystal", "6", "kg")}},
        {.name = "StockGroups",
         .isTemplate = false,
         .document = 1,
         .search = "8:30",
         .menuEntry = 5,
         .code = "SKUPSKLADPOL",
         .number = 5,
         .change = "",
         .choose =
             [](HostSession& session, const SessionWords& words) {
                 session.waitForWindow(QString::fromUtf8(words.Groups));
                 session.press({QStringLiteral("Tab")}); // to the second level
                 session.type(QStringLiteral("mouky"));
                 session.press({QStringLiteral("Return")});
             },
         .reading = groups(1, {"", "mouky", ""}, R"(["a_SSP1ID",null],["a_SSP2ID",1],["a_SSP3ID",null])", 2),
         .rows = {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Mouka hrubá"}},
         .closing = ordertrace::closing(1, c_None, c_None, c_None),
         .storedLines = {stored(1, 4, "Mouka hladká", "2,5", "kg")}},
        {.name = "PriceListOfItsSupplier",
         .isTemplate = false,
         .document = 1,
         .search = "8:30",
         .menuEntry = 6,
         .code = "DODAVATEL",
         .number = 6,
         .change = "",
         .choose = {},
         .reading = {fill("DodCenik", 1, R"(["a_DODVID",1])", 4)},
         .rows = {{.item = "Cukr krystal", .main = "2.5"},
                  {.item = "Mouka hladká"},
                  {.item = "Mouka hrubá"},
                  {.item = "Ovesné vločky"}},
         .closing = ordertrace::closing(1, c_None, c_None, c_None),
         .storedLines = {stored(1, 4, "Cukr krystal", "2,5", "kg")}},
        {.name = "DeliveriesOfItsSupplier",
         .isTemplate = false,
         .document = 1,
         .search = "8:30",
         .menuEntry = 7,
         .code = "DODAVKY",
         .number = 7,
         .change = "",
         .choose = confirmWithQuantities,
         .reading = {typedCheck("Dodavky", 1, "a_JMENO", "Mlýn Lípa", "a_DODVID"),
                     fill("Dodavky", 1, R"(["a_DODVID",1],["a_PRENESMNOZSTVI",true])", 4)},
         .rows = {{.item = "Cukr krystal", .main = "2.5"},
                  {.item = "Mouka hladká", .main = "2"},
                  {.item = "Hruška sušená", .main = "8"},
                  {.item = "Chléb", .main = "1.25"}},
         .closing = ordertrace::closing(1, c_None, c_None, c_None),
         .storedLines = {stored(1, 4, "Cukr krystal", "2,5", "kg"), stored(1, 5, "Mouka hladká", "2", "kg"),
                         stored(1, 6, "Hruška sušená", "8", "kg"), stored(1, 7, "Chléb", "1,25", "ks")}},
        // An order without a supplier is asked for one, whose order it becomes: OBJ-5 of 12.2.2026.
        {.name = "PriceListOfAChosenSupplier",
         .isTemplate = false,
         .document = 5,
         .search = "obj-5",
         .menuEntry = 6,
         .code = "DODAVATEL",
         .number = 6,
         .change = "",
         .choose = typed(&SessionWords::Supplier, "mlýn lípa"),
         .reading = {typedCheck("DodCenik", 5, "a_JMENO", "mlýn lípa", "a_DODVID"),
                     fill("DodCenik", 5, R"(["a_DODVID",1])", 4)},
         .rows = {{.item = "Cukr krystal", .main = "2.5"},
                  {.item = "Mouka hladká"},
                  {.item = "Mouka hrubá"},
                  {.item = "Ovesné vločky"}},
         .closing = ordertrace::closing(5, c_None, c_None, c_None),
         .storedLines = {stored(5, 1, "Cukr krystal", "2,5", "kg")}},
        // Deliveries from 12.11.2025 on: DL-1 and DL-7; DL-8 of 10.11. is two days too old.
        {.name = "DeliveriesOfAChosenSupplierWithoutQuantities",
         .isTemplate = false,
         .document = 5,
         .search = "obj-5",
         .menuEntry = 7,
         .code = "DODAVKY",
         .number = 7,
         .change = "",
         .choose = typed(&SessionWords::Supplier, "mlýn lípa"),
         .reading = {typedCheck("Dodavky", 5, "a_JMENO", "mlýn lípa", "a_DODVID"),
                     fill("Dodavky", 5, R"(["a_DODVID",1],["a_PRENESMNOZSTVI",false])", 3)},
         .rows = {{.item = "Cukr krystal", .main = "2.5"}, {.item = "Mouka hladká"}, {.item = "Hruška sušená"}},
         .closing = ordertrace::closing(5, c_None, c_None, c_None),
         .storedLines = {stored(5, 1, "Cukr krystal", "2,5", "kg")}},
        {.name = "TemplateFromAnOrder",
         .isTemplate = true,
         .document = 7,
         .search = "vz-1",
         .menuEntry = 1,
         .code = "OBJEDNAVKA",
         .number = 1,
         .change = "",
         .choose = typed(&SessionWords::Order, "OBJ-10"),
         .reading = {typedCheck("Objednavka", 7, "a_CISLO", "OBJ-10", "a_DDOBID"),
                     fill("Objednavka", 7, R"(["a_DDOBID",10])", 3)},
         .rows = {{.item = "Čaj černý", .main = "2.5", .second = "1"},
                  {.item = "Chléb", .main = "6"},
                  {.item = "Cukr krystal", .main = "9"}},
         .closing = ordertrace::closing(7, "10", c_None, c_None),
         .storedLines = {stored(7, 3, "Čaj černý", "2,5", "ks"), stored(7, 4, "Čaj černý", "1", "krabice"),
                         stored(7, 5, "Chléb", "6", "ks"), stored(7, 6, "Cukr krystal", "9", "kg")}},
        // A template keeps the lines of every supplier; this one has no supplier of its own.
        {.name = "TemplateFromATemplate",
         .isTemplate = true,
         .document = 9,
         .search = "jmenovec",
         .menuEntry = 2,
         .code = "OBJEDNAVKAVZOR",
         .number = 2,
         .change = "",
         .choose = typed(&SessionWords::Template, "VZ-1"),
         .reading = {typedCheck("ObjednavkaVzor", 9, "a_CISLO", "VZ-1", "a_DDOBID"),
                     fill("Objednavka", 9, R"(["a_DDOBID",7])", 2)},
         .rows = {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Sirup", .main = "5", .supplier = "Nápoje Švec"}},
         .closing = ordertrace::closing(9, c_None, "7", c_None),
         .storedLines = {stored(9, 1, "Mouka hladká", "2,5", "kg"), stored(9, 2, "Sirup", "5", "l", "Nápoje Švec")}},
        // The source that the templates' menu does not offer.
        {.name = "TemplateFromLatestOrders",
         .isTemplate = true,
         .document = 7,
         .search = "vz-1",
         .menuEntry = 0,
         .code = "SABLONA",
         .number = 3,
         .change = "",
         .choose = {},
         .reading = {fill("Objednavka", 7, R"(["a_DDOBID",null])", 3)},
         .rows = {{.item = "Mouka hladká", .main = "2.5", .warehouse = "Pobočka Čáslav"},
                  {.item = "Cukr krystal", .main = "2", .warehouse = "Pobočka Čáslav"},
                  {.item = "Mouka hrubá", .main = "3"}},
         .closing = ordertrace::closing(7, c_None, c_None, c_None),
         .storedLines = {stored(7, 3, "Mouka hladká", "2,5", "kg"), stored(7, 4, "Cukr krystal", "2", "kg"),
                         stored(7, 5, "Mouka hrubá", "3", "kg")}},
        {.name = "TemplateFromADeliveryNote",
         .isTemplate = true,
         .document = 7,
         .search = "vz-1",
         .menuEntry = 3,
         .code = "DODAK",
         .number = 4,
         .change = "",
         .choose = typed(&SessionWords::DeliveryNote, "DL-6"),
         .reading = {typedCheck("Dodak", 7, "a_CISLO", "DL-6", "a_DODKID"), fill("Dodak", 7, R"(["a_DODKID",6])", 2)},
         .rows = {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Cukr krystal", .main = "6"}},
         .closing = ordertrace::closing(7, c_None, c_None, "6"),
         .storedLines = {stored(7, 3, "Mouka hladká", "2,5", "kg"), stored(7, 4, "Cukr krystal", "6", "kg")}},
        // The first level of the drinks; their items have the template's supplier.
        {.name = "TemplateFromStockGroups",
         .isTemplate = true,
         .document = 7,
         .search = "vz-1",
         .menuEntry = 4,
         .code = "SKUPSKLADPOL",
         .number = 5,
         .change = "",
         .choose = typed(&SessionWords::Groups, "nápoje"),
         .reading = groups(7, {"nápoje", "", ""}, R"(["a_SSP1ID",2],["a_SSP2ID",null],["a_SSP3ID",null])", 2),
         .rows = {{.item = "Čaj černý", .main = "2.5"}, {.item = "Sirup"}},
         .closing = ordertrace::closing(7, c_None, c_None, c_None),
         .storedLines = {stored(7, 3, "Čaj černý", "2,5", "ks")}},
        // Its moment is now: the flour's list of May 2026 has no end, that of sugar is over.
        {.name = "TemplateWithoutASupplierFromAPriceList",
         .isTemplate = true,
         .document = 9,
         .search = "jmenovec",
         .menuEntry = 5,
         .code = "DODAVATEL",
         .number = 6,
         .change = "",
         .choose = typed(&SessionWords::Supplier, "mlýn lípa"),
         .reading = {typedCheck("DodCenik", 9, "a_JMENO", "mlýn lípa", "a_DODVID"),
                     fill("DodCenik", 9, R"(["a_DODVID",1])", 3)},
         .rows = {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Mouka hrubá"}, {.item = "Ovesné vločky"}},
         .closing = ordertrace::closing(9, c_None, c_None, c_None),
         .storedLines = {stored(9, 1, "Mouka hladká", "2,5", "kg")}},
        // Of a hundred years: of tea and sugar the lines of 15.2.2026, of flour and bread those of 5.3.2026, of pears
        // that of 31.12.2025.
        {.name = "TemplateFromDeliveries",
         .isTemplate = true,
         .document = 7,
         .search = "vz-1",
         .menuEntry = 6,
         .code = "DODAVKY",
         .number = 7,
         .change = "update GLOBALPARAM set HODNOTA = '1200' where NAZEV = 'POCETMESICUDODAVEK'",
         .choose = confirmWithQuantities,
         .reading = {typedCheck("Dodavky", 7, "a_JMENO", "Mlýn Lípa", "a_DODVID"),
                     fill("Dodavky", 7, R"(["a_DODVID",1],["a_PRENESMNOZSTVI",true])", 5)},
         .rows = {{.item = "Čaj černý", .main = "2.5"},
                  {.item = "Cukr krystal", .main = "6"},
                  {.item = "Mouka hladká", .main = "4"},
                  {.item = "Hruška sušená", .main = "8"},
                  {.item = "Chléb", .main = "20"}},
         .closing = ordertrace::closing(7, c_None, c_None, c_None),
         .storedLines = {stored(7, 3, "Čaj černý", "2,5", "ks"), stored(7, 4, "Cukr krystal", "6", "kg"),
                         stored(7, 5, "Mouka hladká", "4", "kg"), stored(7, 6, "Hruška sušená", "8", "kg"),
                         stored(7, 7, "Chléb", "20", "ks")}},
    };
    return cases;
}

} // namespace ordersources
