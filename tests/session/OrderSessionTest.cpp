#include "tests/database/ContractCompany.h"
#include "tests/database/Engines.h"
#include "tests/session/HostSession.h"
#include "tests/session/OrderSources.h"
#include "tests/session/OrderTrace.h"

#include <functional>
#include <gmock/gmock.h>
#include <vector>

namespace {

using ordersources::fill;
using ordersources::SourceCase;
using ordersources::stored;
using ordersources::storedOrderLines;
using ordersources::typed;
using refhost::Engine;
using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const QString c_MainTitle = QStringLiteral("Melvark – nákup a sklad");
const QString c_OrderTitle = QStringLiteral("Vložení položek do objednávky zboží");
const QString c_TemplateTitle = QStringLiteral("Vložení položek do vzorové objednávky zboží");
const QString c_ErrorTitle = QStringLiteral("Chyba");

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

void openFromTheMenu(HostSession& session, const SourceCase& source) {
    session.start({});
    session.waitForWindow(c_MainTitle);
    session.press({source.isTemplate ? QStringLiteral("ctrl+3") : QStringLiteral("ctrl+2")});
    session.type(QString::fromUtf8(source.search));
    session.press({QStringLiteral("Return"), QStringLiteral("Escape")}); // the found document is the current one
    session.openMenu(QStringLiteral("F8"));
    session.press(QStringList(source.menuEntry, QStringLiteral("Down")) + QStringList{QStringLiteral("Return")});
}

void openWithoutTheMenu(HostSession& session, const SourceCase& source) {
    session.startEditor((source.isTemplate ? QStringLiteral("DODOBJVZOR,%1") : QStringLiteral("DODOBJ,%1"))
                            .arg(QLatin1String(source.code)),
                        source.document);
}

void leaveTheMainWindow(HostSession& session) {
    session.waitForTrace("MELVARKEDITORNASTAVENIUlozNastaveniOkna");
    session.waitForWindow(c_MainTitle);
    session.press({QStringLiteral("ctrl+q")});
}

class OrderSession : public testing::TestWithParam<std::tuple<Engine, SourceCase>> {};

TEST_P(OrderSession, FromEachSourceAsksAndStoresJustThis) {
    const auto& [engine, source] = GetParam();
    HostSession session(companyOn(engine, source.change));
    const bool isOffered = source.menuEntry > 0;
    isOffered ? openFromTheMenu(session, source) : openWithoutTheMenu(session, source);
    if (source.choose) {
        source.choose(session);
    }
    session.waitForWindow(source.isTemplate ? c_TemplateTitle : c_OrderTitle);
    session.type(QStringLiteral("2,5"));
    session.press({QStringLiteral("ctrl+Return")});
    if (isOffered) {
        leaveTheMainWindow(session);
    }
    EXPECT_EQ(session.finish(), 0);

    const int kind = source.isTemplate ? 20 : 10;
    Lines expected = joined(ordertrace::opening(source.document, kind + source.number), source.reading,
                            Lines{ordertrace::placement(kind), saveBegun()});
    for (const ordertrace::Row& row : source.rows) {
        expected.push_back(ordertrace::rowInsert(row));
    }
    expected.push_back(source.closing);
    EXPECT_THAT(withoutStoredPlacement(session.trace(), kind), ElementsAreArray(expected));
    EXPECT_THAT(storedOrderLines(session, source.isTemplate), ElementsAreArray(source.storedLines));
}

INSTANTIATE_TEST_SUITE_P(Sources, OrderSession,
                         testing::Combine(testing::Values(Engine::SQLite, Engine::PostgreSQL),
                                          testing::ValuesIn(ordersources::sourceCases())),
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
    EXPECT_THAT(storedOrderLines(session),
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
    EXPECT_THAT(storedOrderLines(session),
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
    EXPECT_THAT(storedOrderLines(session), IsEmpty());
    session.changeDatabase("update DODOBJEDNAVKA set OTEVRENO = 1 where ID = 1");
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedOrderLines(session), ElementsAre(stored(1, 4, "Cukr krystal", "8", "kg")));
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
    EXPECT_THAT(storedOrderLines(session), IsEmpty());
}

TEST_P(OrderSessionOn, AUnitDeletedMeanwhileIsRefusedInWordsAtItsLineAndTheWorkIsStillThere) {
    HostSession session(companyOn(GetParam()));
    session.startEditor(QStringLiteral("DODOBJ,DODAVATEL"), 1);
    session.waitForWindow(c_OrderTitle);
    session.press({QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Return"),
                   QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Return"),
                   QStringLiteral("Return")}); // to the flakes in the last row
    session.type(QStringLiteral("3"));
    session.press({QStringLiteral("shift+Return"), QStringLiteral("shift+Return")}); // to a line above
    session.changeDatabase("delete from SKPL where ID = 81");
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_OrderTitle);
    EXPECT_THAT(session.trace(),
                Contains(HasSubstr("Jednotka „kg“ nepatří k položce „Ovesné vločky“. Načtěte řádek znovu.")));
    EXPECT_THAT(storedOrderLines(session), IsEmpty());
    session.changeDatabase("insert into SKPL (ID, SKLPID, PORADI, NAZEV, FAKTOR) values (81, 8, 0, 'kg', '1')");
    session.press({QStringLiteral("End")});
    session.type(QStringLiteral("5")); // behind the 3 that is still there, in the line that was refused
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedOrderLines(session), ElementsAre(stored(1, 4, "Ovesné vločky", "35", "kg")));
}

/// A source that brings nothing: what makes it so, and how it is chosen for OBJ-1.
struct NothingCase {
    const char* code;
    const char* change;
    std::function<void(HostSession&)> choose;
    std::string reading;
};

TEST_P(OrderSessionOn, ASourceThatBringsNothingGivesOneEmptyRowAndSavingItChangesNothing) {
    const NothingCase cases[] = {
        {"OBJEDNAVKA", "", typed("Výběr objednávky", "OBJ-5"), fill("Objednavka", 1, R"(["a_DDOBID",5])", 0)},
        {"SKUPSKLADPOL", "insert into SKUPSPOL1 (ID, NAZEV) values (9, 'Obaly')",
         typed("Výběr skupin skladových položek", "obaly"),
         fill("SkupSkladPol", 1, R"(["a_SSP1ID",9],["a_SSP2ID",null],["a_SSP3ID",null])", 0)},
    };
    for (const NothingCase& source : cases) {
        SCOPED_TRACE(source.code);
        HostSession session(companyOn(GetParam(), source.change));
        session.startEditor(QStringLiteral("DODOBJ,%1").arg(QLatin1String(source.code)), 1);
        source.choose(session);
        session.waitForWindow(c_OrderTitle);
        session.press({QStringLiteral("ctrl+Return")});
        EXPECT_EQ(session.finish(), 0);
        EXPECT_THAT(session.trace(), Contains(source.reading));
        EXPECT_THAT(session.trace(),
                    Contains(HasSubstr(R"(InsertToTemp","open":false,"params":[["a_SKLADPOL",null])")));
        EXPECT_THAT(storedOrderLines(session), IsEmpty());
    }
}

TEST_P(OrderSessionOn, AChosenSupplierWithoutAPriceListIsRefusedInWordsAndCorrected) {
    HostSession session(companyOn(GetParam()));
    session.startEditor(QStringLiteral("DODOBJ,DODAVATEL"), 5);
    typed("Výběr dodavatele", "čajovna říp")(session);
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QStringLiteral("Výběr dodavatele"));
    session.press({QStringLiteral("ctrl+a")});
    typed("Výběr dodavatele", "nápoje švec")(session);
    session.waitForWindow(c_OrderTitle);
    session.press({QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(session.trace(), Contains(HasSubstr("Čajovna Říp")).Times(2)); // refused, and shown
    EXPECT_THAT(session.trace(), Contains(fill("DodCenik", 5, R"(["a_DODVID",2])", 1)));
}

TEST_P(OrderSessionOn, AnOrderThatIsClosedIsRefusedInWordsBeforeAnythingIsAsked) {
    HostSession session(companyOn(GetParam()));
    session.startEditor(QStringLiteral("DODOBJ,OBJEDNAVKA"), 6);
    EXPECT_EQ(session.finish(), 2);
    EXPECT_THAT(session.standardError(), HasSubstr("Objednávka „OBJ-6“ je uzavřená. Otevřete ji, nebo vyberte jinou."));
    EXPECT_THAT(session.trace(), Not(Contains(HasSubstr("CheckZdroj"))));
}

TEST_P(OrderSessionOn, InEnglishAQuantityHasAPointAndTheDatabaseIsAskedAsInCzech) {
    HostSession session(companyOn(GetParam()));
    session.start(
        {QStringLiteral("--language"), QStringLiteral("en"), QStringLiteral("--locale"), QStringLiteral("en_GB")});
    const QString main = QStringLiteral("Melvark – purchasing and stock");
    session.waitForWindow(main);
    session.press({QStringLiteral("ctrl+2")});
    session.type(QStringLiteral("8:30"));
    session.press({QStringLiteral("Return"), QStringLiteral("Escape")});
    session.openMenu(QStringLiteral("F8"));
    session.press({QStringLiteral("Down"), QStringLiteral("Return")});
    typed("Select an order", "OBJ-10")(session);
    session.waitForWindow(QStringLiteral("Insert order lines"));
    session.type(QStringLiteral("2.5"));
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForTrace("MELVARKEDITORNASTAVENIUlozNastaveniOkna");
    session.waitForWindow(main);
    session.press({QStringLiteral("ctrl+q")});
    EXPECT_EQ(session.finish(), 0);

    const SourceCase& order = ordersources::sourceCases().front();
    Lines expected = joined(ordertrace::opening(1, 11), order.reading, Lines{ordertrace::placement(10), saveBegun()});
    for (const ordertrace::Row& row : order.rows) {
        expected.push_back(ordertrace::rowInsert(row));
    }
    expected.push_back(order.closing);
    EXPECT_THAT(withoutStoredPlacement(session.trace(), 10), ElementsAreArray(expected));
    EXPECT_THAT(storedOrderLines(session), ElementsAreArray(order.storedLines));
}

INSTANTIATE_TEST_SUITE_P(Engines, OrderSessionOn, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return refhost::engineName(row.param); });

} // namespace
