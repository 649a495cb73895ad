#include "tests/database/ContractCompany.h"
#include "tests/database/Engines.h"
#include "tests/session/HostSession.h"
#include "tests/session/OrderTrace.h"

#include <functional>
#include <gmock/gmock.h>
#include <vector>

namespace {

using ordertrace::Row;
using refhost::Engine;
using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

const QString c_OrderTitle = QStringLiteral("Vložení položek do objednávky zboží");
const QString c_TemplateTitle = QStringLiteral("Vložení položek do vzorové objednávky zboží");
const QString c_ErrorTitle = QStringLiteral("Chyba");
const std::string c_Null = "null";

/// A company of its own on the engine, as the host's command line names it.
std::string companyOn(Engine engine, const std::string& change = {}) {
    const std::string url = refhost::newDatabaseUrl(engine);
    const auto database = refhost::openAs(url, "novakova");
    refhost::addContractCompany(*database);
    if (!change.empty()) {
        database->runScript(change);
    }
    return engine == Engine::PostgreSQL ? url + " user=novakova" : url;
}

/// What the orders or templates have stored beside the company's own lines.
Lines storedLines(const HostSession& session, const char* view) {
    const std::string sql = "select _DOCID, PORADI, SKLADPOL, MNOZSTVI, JEDNOTKY, DODAVATEL from " + std::string(view) +
                            " where _ID > 1003 order by _DOCID, PORADI";
    return session.ask({QStringLiteral("--query"), QString::fromStdString(sql)});
}

std::string stored(int document, int place, const char* item, const char* quantity, const char* unit,
                   const char* supplier = "Mlýn Lípa") {
    return R"({"_DOCID":")" + std::to_string(document) + R"(","PORADI":")" + std::to_string(place) +
           R"(","SKLADPOL":")" + item + R"(","MNOZSTVI":")" + quantity + R"(","JEDNOTKY":")" + unit +
           R"(","DODAVATEL":")" + supplier + R"("})";
}

/// One source of order OBJ-1 (or of a template), chosen by keys: what its session asks, sends and stores once 2.5 was
/// typed as the first line's quantity.
struct SourceCase {
    const char* name;
    const char* params;
    int document;
    int settingsType;
    std::function<void(HostSession&)> choose; ///< Empty where nothing is asked.
    Lines reading;                            ///< The checks of the source and the reading of its lines.
    std::vector<Row> rows;
    std::string closing;
    Lines storedLines;
};

std::string master(int document) {
    return R"(["a_DDOBIDMASTER",)" + std::to_string(document) + "]";
}

/// The check of a source that was typed, not picked.
std::string typedCheck(const char* kind, int document, const char* textParam, const char* text, const char* idParam) {
    return call("MELVARKEDITORDodObjCheckZdroj" + std::string(kind), true,
                master(document) + R"(,[")" + textParam + R"(",")" + text + R"("],[")" + idParam + R"(",null])", 1);
}

std::string groupCheck(int level, const char* name) {
    const std::string number = std::to_string(level);
    return call("MELVARKEDITORDodObjCheckSkupSkladPol" + number, true,
                master(1) + R"(,["a_NAZEV",")" + name + R"("],["a_SSP)" + number + R"(ID",null])", 1);
}

std::string fill(const char* kind, int document, const char* source, int rows) {
    return call("MELVARKEDITORDodObjGetPolozkyBy" + std::string(kind), true,
                master(document) + "," + std::string(source), rows);
}

std::function<void(HostSession&)> typed(const char* title, const char* text) {
    return [=](HostSession& session) {
        session.waitForWindow(QString::fromUtf8(title));
        session.type(QString::fromUtf8(text));
        session.press({QStringLiteral("Return")});
    };
}

const std::vector<SourceCase>& sourceCases() {
    static const std::vector<SourceCase> cases{
        {"Order",
         "DODOBJ,OBJEDNAVKA",
         1,
         11,
         typed("Výběr objednávky", "OBJ-10"),
         {typedCheck("Objednavka", 1, "a_CISLO", "OBJ-10", "a_DDOBID"), fill("Objednavka", 1, R"(["a_DDOBID",10])", 3)},
         // The tea's own quantity is a box; the typed pieces stand beside it.
         {{.item = "Čaj černý", .main = "2.5", .second = "1"},
          {.item = "Chléb", .main = "6"},
          {.item = "Cukr krystal", .main = "9"}},
         ordertrace::closing(1, "10", c_Null, c_Null),
         {stored(1, 4, "Čaj černý", "2,5", "ks"), stored(1, 5, "Čaj černý", "1", "krabice"),
          stored(1, 6, "Chléb", "6", "ks"), stored(1, 7, "Cukr krystal", "9", "kg")}},
        {"OrderTemplate",
         "DODOBJ,OBJEDNAVKAVZOR",
         1,
         12,
         typed("Výběr vzoru objednávky", "VZ-1"),
         {typedCheck("ObjednavkaVzor", 1, "a_CISLO", "VZ-1", "a_DDOBID"),
          fill("Objednavka", 1, R"(["a_DDOBID",7])", 2)},
         {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Sirup", .main = "5", .supplier = "Nápoje Švec"}},
         ordertrace::closing(1, c_Null, "7", c_Null),
         {stored(1, 4, "Mouka hladká", "2,5", "kg"), stored(11, 1, "Sirup", "5", "l", "Nápoje Švec")}},
        {"LatestOrders",
         "DODOBJ,SABLONA",
         1,
         13,
         {},
         {fill("Objednavka", 1, R"(["a_DDOBID",null])", 5)},
         // OBJ-4 of the branch, then OBJ-6 and OBJ-10 of the main warehouse.
         {{.item = "Mouka hladká", .main = "2.5", .warehouse = "Pobočka Čáslav"},
          {.item = "Cukr krystal", .main = "2", .warehouse = "Pobočka Čáslav"},
          {.item = "Mouka hrubá", .main = "3"},
          {.item = "Čaj černý", .second = "1"},
          {.item = "Chléb", .main = "6"}},
         ordertrace::closing(1, c_Null, c_Null, c_Null),
         {stored(1, 4, "Mouka hladká", "2,5", "kg"), stored(1, 5, "Cukr krystal", "2", "kg"),
          stored(1, 6, "Mouka hrubá", "3", "kg"), stored(1, 7, "Čaj černý", "1", "krabice"),
          stored(1, 8, "Chléb", "6", "ks")}},
        {"DeliveryNote",
         "DODOBJ,DODAK",
         1,
         14,
         typed("Výběr dodacího listu", "DL-6"),
         {typedCheck("Dodak", 1, "a_CISLO", "DL-6", "a_DODKID"), fill("Dodak", 1, R"(["a_DODKID",6])", 2)},
         {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Cukr krystal", .main = "6"}},
         ordertrace::closing(1, c_Null, c_Null, "6"),
         {stored(1, 4, "Mouka hladká", "2,5", "kg"), stored(1, 5, "Cukr krystal", "6", "kg")}},
        {"StockGroups",
         "DODOBJ,SKUPSKLADPOL",
         1,
         15,
         [](HostSession& session) {
             session.waitForWindow(QStringLiteral("Výběr skupin skladových položek"));
             session.press({QStringLiteral("Tab")}); // to the second level
             session.type(QStringLiteral("mouky"));
             session.press({QStringLiteral("Return")});
         },
         {groupCheck(1, ""), groupCheck(2, "mouky"), groupCheck(3, ""),
          call("MELVARKEDITORDodObjCheckSkupSkladPol", false,
               master(1) + R"(,["a_SSP1ID",null],["a_SSP2ID",1],["a_SSP3ID",null])", 0),
          fill("SkupSkladPol", 1, R"(["a_SSP1ID",null],["a_SSP2ID",1],["a_SSP3ID",null])", 2)},
         {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Mouka hrubá"}},
         ordertrace::closing(1, c_Null, c_Null, c_Null),
         {stored(1, 4, "Mouka hladká", "2,5", "kg")}},
        {"PriceListOfItsSupplier",
         "DODOBJ,DODAVATEL",
         1,
         16,
         {},
         {fill("DodCenik", 1, R"(["a_DODVID",1])", 4)},
         {{.item = "Cukr krystal", .main = "2.5"},
          {.item = "Mouka hladká"},
          {.item = "Mouka hrubá"},
          {.item = "Ovesné vločky"}},
         ordertrace::closing(1, c_Null, c_Null, c_Null),
         {stored(1, 4, "Cukr krystal", "2,5", "kg")}},
        {"DeliveriesOfItsSupplier",
         "DODOBJ,DODAVKY",
         1,
         17,
         [](HostSession& session) {
             session.waitForWindow(QStringLiteral("Výběr dodavatele"));
             session.press({QStringLiteral("space"), QStringLiteral("Return")}); // with quantities
         },
         {typedCheck("Dodavky", 1, "a_JMENO", "Mlýn Lípa", "a_DODVID"),
          fill("Dodavky", 1, R"(["a_DODVID",1],["a_PRENESMNOZSTVI",true])", 4)},
         {{.item = "Cukr krystal", .main = "2.5"},
          {.item = "Mouka hladká", .main = "2"},
          {.item = "Hruška sušená", .main = "8"},
          {.item = "Chléb", .main = "1.25"}},
         ordertrace::closing(1, c_Null, c_Null, c_Null),
         {stored(1, 4, "Cukr krystal", "2,5", "kg"), stored(1, 5, "Mouka hladká", "2", "kg"),
          stored(1, 6, "Hruška sušená", "8", "kg"), stored(1, 7, "Chléb", "1,25", "ks")}},
        // On the template screen: the source that its menu does not offer, and a price list that has to be asked for.
        {"TemplateFromLatestOrders",
         "DODOBJVZOR,SABLONA",
         7,
         23,
         {},
         {fill("Objednavka", 7, R"(["a_DDOBID",null])", 3)},
         {{.item = "Mouka hladká", .main = "2.5", .warehouse = "Pobočka Čáslav"},
          {.item = "Cukr krystal", .main = "2", .warehouse = "Pobočka Čáslav"},
          {.item = "Mouka hrubá", .main = "3"}},
         ordertrace::closing(7, c_Null, c_Null, c_Null),
         {stored(7, 3, "Mouka hladká", "2,5", "kg"), stored(7, 4, "Cukr krystal", "2", "kg"),
          stored(7, 5, "Mouka hrubá", "3", "kg")}},
        // Its moment is now: the flour's list of May 2026 has no end, that of sugar is over.
        {"TemplateWithoutASupplierFromAPriceList",
         "DODOBJVZOR,DODAVATEL",
         9,
         26,
         typed("Výběr dodavatele", "mlýn lípa"),
         {typedCheck("DodCenik", 9, "a_JMENO", "mlýn lípa", "a_DODVID"), fill("DodCenik", 9, R"(["a_DODVID",1])", 3)},
         {{.item = "Mouka hladká", .main = "2.5"}, {.item = "Mouka hrubá"}, {.item = "Ovesné vločky"}},
         ordertrace::closing(9, c_Null, c_Null, c_Null),
         {stored(9, 1, "Mouka hladká", "2,5", "kg")}},
    };
    return cases;
}

void PrintTo(const SourceCase& source, std::ostream* out) {
    *out << source.name;
}

class OrderSession : public testing::TestWithParam<std::tuple<Engine, SourceCase>> {};

TEST_P(OrderSession, FromEachSourceAsksAndStoresJustThis) {
    const auto& [engine, source] = GetParam();
    const bool isTemplate = std::string_view(source.params).starts_with("DODOBJVZOR");
    HostSession session(companyOn(engine));
    session.startEditor(QString::fromUtf8(source.params), source.document);
    if (source.choose) {
        source.choose(session);
    }
    session.waitForWindow(isTemplate ? c_TemplateTitle : c_OrderTitle);
    session.type(QStringLiteral("2,5"));
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);

    const int placementType = isTemplate ? 20 : 10;
    Lines expected = joined(ordertrace::opening(source.document, source.settingsType), source.reading,
                            Lines{ordertrace::placement(placementType), saveBegun()});
    for (const Row& row : source.rows) {
        expected.push_back(ordertrace::rowInsert(row));
    }
    expected.push_back(source.closing);
    EXPECT_THAT(withoutStoredPlacement(session.trace(), placementType), ElementsAreArray(expected));
    EXPECT_THAT(storedLines(session, isTemplate ? "SCREEN_DODOBJVZOR_LINES_V" : "SCREEN_DODOBJ_LINES_V"),
                ElementsAreArray(source.storedLines));
}

INSTANTIATE_TEST_SUITE_P(Sources, OrderSession,
                         testing::Combine(testing::Values(Engine::SQLite, Engine::PostgreSQL),
                                          testing::ValuesIn(sourceCases())),
                         [](const auto& row) {
                             return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param).name;
                         });

class OrderSessionOn : public testing::TestWithParam<Engine> {};

TEST_P(OrderSessionOn, RowsOfThreeSuppliersAreSavedFromOneOrderIntoThree) {
    // The template's third line is of a third supplier.
    HostSession session(
        companyOn(GetParam(), "insert into DODOBJPOL (ID, DDOBID, PORADI, SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI) "
                              "values (703, 7, 3, 4, 41, 1, 3, '2')"));
    session.startEditor(QStringLiteral("DODOBJ,OBJEDNAVKAVZOR"), 1);
    typed("Výběr vzoru objednávky", "VZ-1")(session);
    session.waitForWindow(c_OrderTitle);
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedLines(session, "SCREEN_DODOBJ_LINES_V"),
                ElementsAre(stored(1, 4, "Mouka hladká", "50", "kg"), stored(11, 1, "Sirup", "5", "l", "Nápoje Švec"),
                            stored(12, 1, "Čaj černý", "2", "ks", "Čajovna Říp")));
    EXPECT_THAT(session.ask({QStringLiteral("--documents"), QStringLiteral("DODOBJ")}),
                AllOf(Contains(HasSubstr(R"("id":11,"number":"OV2026-000011","supplier":"Nápoje Švec")")),
                      Contains(HasSubstr(R"("id":12,"number":"OV2026-000012","supplier":"Čajovna Říp")"))));
}

TEST_P(OrderSessionOn, SecondaryQuantitiesAreTypedOnlyWhereTheItemHasThem) {
    HostSession session(companyOn(GetParam()));
    session.startEditor(QStringLiteral("DODOBJ,OBJEDNAVKA"), 1);
    typed("Výběr objednávky", "OBJ-10")(session);
    session.waitForWindow(c_OrderTitle);
    // Tea in pieces; its missing first unit is passed by: the next stop is the box.
    session.type(QStringLiteral("4"));
    session.press({QStringLiteral("Return")});
    session.type(QStringLiteral("3"));
    session.press({QStringLiteral("Return"), QStringLiteral("Return")}); // over the bread, which has no other unit
    session.press({QStringLiteral("Return")});                           // over the sugar's kilograms
    session.type(QStringLiteral("1.5"));                                 // cartons, with a point
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedLines(session, "SCREEN_DODOBJ_LINES_V"),
                ElementsAre(stored(1, 4, "Čaj černý", "4", "ks"), stored(1, 5, "Čaj černý", "3", "krabice"),
                            stored(1, 6, "Chléb", "6", "ks"), stored(1, 7, "Cukr krystal", "9", "kg"),
                            stored(1, 8, "Cukr krystal", "1,5", "karton")));
}

TEST_P(OrderSessionOn, AnOrderClosedMeanwhileIsRefusedAndTheWorkIsStillThere) {
    HostSession session(companyOn(GetParam()));
    session.startEditor(QStringLiteral("DODOBJ,DODAVATEL"), 1);
    session.waitForWindow(c_OrderTitle);
    session.type(QStringLiteral("8"));
    session.changeDatabase("update DODOBJEDNAVKA set OTEVRENO = 0 where ID = 1");
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")}); // the message is read
    session.waitForWindow(c_OrderTitle);
    EXPECT_THAT(storedLines(session, "SCREEN_DODOBJ_LINES_V"), IsEmpty());
    session.changeDatabase("update DODOBJEDNAVKA set OTEVRENO = 1 where ID = 1");
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedLines(session, "SCREEN_DODOBJ_LINES_V"), ElementsAre(stored(1, 4, "Cukr krystal", "8", "kg")));
}

TEST_P(OrderSessionOn, GroupsThatDoNotBelongTogetherAreToldAndCorrectedInTheOpenDialog) {
    HostSession session(companyOn(GetParam()));
    session.startEditor(QStringLiteral("DODOBJ,SKUPSKLADPOL"), 1);
    const QString title = QStringLiteral("Výběr skupin skladových položek");
    session.waitForWindow(title);
    session.type(QStringLiteral("nápoje"));
    session.press({QStringLiteral("Tab")});
    session.type(QStringLiteral("mouky"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    session.waitForWindow(title);
    // The cursor is in the first line again.
    session.press({QStringLiteral("ctrl+a")});
    session.type(QStringLiteral("potraviny"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_OrderTitle);
    session.press({QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);
    const std::string refusal =
        "Skupina 2. úrovně „Mouky“ neleží pod skupinou „Nápoje“. Vyberte skupiny, které k sobě patří.";
    EXPECT_THAT(session.trace(), Contains(shownError(refusal)));
    EXPECT_THAT(session.trace(),
                Contains(fill("SkupSkladPol", 1, R"(["a_SSP1ID",1],["a_SSP2ID",1],["a_SSP3ID",null])", 2)));
}

TEST_P(OrderSessionOn, ASupplierWithoutAPriceListGivesOneEmptyRowAndSavingItChangesNothing) {
    HostSession session(companyOn(GetParam(), "update DODOBJEDNAVKA set DODVID = 3 where ID = 5"));
    session.startEditor(QStringLiteral("DODOBJ,DODAVATEL"), 5);
    session.waitForWindow(c_OrderTitle);
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(session.trace(), Contains(fill("DodCenik", 5, R"(["a_DODVID",3])", 0)));
    EXPECT_THAT(storedLines(session, "SCREEN_DODOBJ_LINES_V"), IsEmpty());
}

TEST_P(OrderSessionOn, AUnitDeletedMeanwhileIsRefusedInWordsAndTheEditorStays) {
    HostSession session(companyOn(GetParam()));
    session.startEditor(QStringLiteral("DODOBJ,DODAVATEL"), 1);
    session.waitForWindow(c_OrderTitle);
    session.press({QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Return"),
                   QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Return"),
                   QStringLiteral("Return")}); // to the flakes in the last row
    session.type(QStringLiteral("3"));
    session.changeDatabase("delete from SKPL where ID = 81");
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_OrderTitle);
    session.press({QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(session.trace(),
                Contains(HasSubstr("Jednotka „kg“ nepatří k položce „Ovesné vločky“. Načtěte řádek znovu.")));
    EXPECT_THAT(storedLines(session, "SCREEN_DODOBJ_LINES_V"), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Engines, OrderSessionOn, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return refhost::engineName(row.param); });

} // namespace
