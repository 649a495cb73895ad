#include "tests/database/Engines.h"
#include "tests/session/HostSession.h"
#include "tests/session/OrderSources.h"
#include "tests/session/OrderTrace.h"

#include <gmock/gmock.h>
#include <vector>

namespace {

using ordersources::companyOn;
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

const QString c_OrderTitle = QString::fromUtf8(c_Czech.OrderEditor);
const QString c_ErrorTitle = QString::fromUtf8(c_Czech.Error);

void openFromTheMenu(HostSession& session, const SourceCase& source, const SessionWords& words) {
    session.start(words.arguments());
    session.waitForWindow(QString::fromUtf8(words.Main));
    session.press({source.isTemplate ? QStringLiteral("ctrl+3") : QStringLiteral("ctrl+2")});
    session.type(QString::fromUtf8(source.search));
    session.press({QStringLiteral("Return"), QStringLiteral("Escape")}); // the found document is the current one
    session.openMenu(QStringLiteral("F8"));
    session.press(QStringList(source.menuEntry, QStringLiteral("Down")) + QStringList{QStringLiteral("Return")});
}

void openWithoutTheMenu(HostSession& session, const SourceCase& source, const SessionWords& words) {
    session.startEditor((source.isTemplate ? QStringLiteral("DODOBJVZOR,%1") : QStringLiteral("DODOBJ,%1"))
                            .arg(QLatin1String(source.code)),
                        source.document, words.arguments());
}

void leaveTheMainWindow(HostSession& session, const SessionWords& words) {
    session.waitForTrace("MELVARKEDITORNASTAVENIUlozNastaveniOkna");
    session.waitForWindow(QString::fromUtf8(words.Main));
    session.press({QStringLiteral("ctrl+q")});
}

class OrderSession : public testing::TestWithParam<std::tuple<Engine, const SessionWords*, SourceCase>> {};

TEST_P(OrderSession, FromEachSourceAsksAndStoresJustThis) {
    const auto& [engine, language, source] = GetParam();
    const SessionWords& words = *language;
    HostSession session(companyOn(engine, source.change));
    const bool isOffered = source.menuEntry > 0;
    isOffered ? openFromTheMenu(session, source, words) : openWithoutTheMenu(session, source, words);
    if (source.choose) {
        source.choose(session, words);
    }
    session.waitForWindow(QString::fromUtf8(source.isTemplate ? words.TemplateEditor : words.OrderEditor));
    session.type(QString::fromLatin1(words.TwoAndAHalf));
    session.press({QStringLiteral("ctrl+Return")});
    if (isOffered) {
        leaveTheMainWindow(session, words);
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

// What is asked and stored is the same in both languages.
INSTANTIATE_TEST_SUITE_P(Sources, OrderSession,
                         testing::Combine(testing::Values(Engine::SQLite, Engine::PostgreSQL),
                                          testing::Values(&c_Czech, &c_English),
                                          testing::ValuesIn(ordersources::sourceCases())),
                         [](const auto& row) {
                             return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param)->Language +
                                    std::get<2>(row.param).name;
                         });

class OrderSessionOn : public testing::TestWithParam<Engine> {};

TEST_P(OrderSessionOn, RowsOfThreeSuppliersAreSavedFromOneOrderIntoThree) {
    // The template's third line is of a third supplier.
    HostSession session(
        companyOn(GetParam(), "insert into DODOBJPOL (ID, DDOBID, PORADI, SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI) "
                              "values (703, 7, 3, 4, 41, 1, 3, '2')"));
    session.startEditor(QStringLiteral("DODOBJ,OBJEDNAVKAVZOR"), 1);
    typed(&SessionWords::Template, "VZ-1")(session, c_Czech);
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
    typed(&SessionWords::Order, "OBJ-10")(session, c_Czech);
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
    const QString title = QString::fromUtf8(c_Czech.Groups);
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

TEST_P(OrderSessionOn, AnOrderThatIsClosedIsRefusedInWordsBeforeAnythingIsAsked) {
    HostSession session(companyOn(GetParam()));
    session.startEditor(QStringLiteral("DODOBJ,OBJEDNAVKA"), 6);
    EXPECT_EQ(session.finish(), 2);
    EXPECT_THAT(session.standardError(), HasSubstr("Objednávka „OBJ-6“ je uzavřená. Otevřete ji, nebo vyberte jinou."));
    EXPECT_THAT(session.trace(), Not(Contains(HasSubstr("CheckZdroj"))));
}

TEST_P(OrderSessionOn, ALoadedDecimalIsShownAndTypedOnAsTheLanguageWritesIt) {
    for (const SessionWords* const words : {&c_Czech, &c_English}) {
        SCOPED_TRACE(words->Language);
        HostSession session(companyOn(GetParam()));
        session.startEditor(QStringLiteral("DODOBJ,OBJEDNAVKA"), 10, words->arguments());
        typed(&SessionWords::Order, "OBJ-1")(session, *words);
        session.waitForWindow(QString::fromUtf8(words->OrderEditor));
        // Over three units of the flour and two of the coarse one to 7.5 kg of sugar; behind them a 5.
        session.press(QStringList(5, QStringLiteral("Return")) + QStringList{QStringLiteral("End")});
        session.type(QStringLiteral("5"));
        session.press({QStringLiteral("ctrl+Return")});
        EXPECT_EQ(session.finish(), 0);
        EXPECT_THAT(session.trace(), Contains(ordertrace::rowInsert({.item = "Cukr krystal",
                                                                     .main = "7.55",
                                                                     .warehouse = "Pobočka Čáslav",
                                                                     .description = "krystal jemný",
                                                                     .comment = "spěchá"})));
        EXPECT_THAT(storedOrderLines(session),
                    ElementsAre(stored(10, 4, "Mouka hladká", "4", "pytel"), stored(10, 5, "Mouka hrubá", "10", "kg"),
                                stored(10, 6, "Cukr krystal", "7,55", "kg")));
    }
}

INSTANTIATE_TEST_SUITE_P(Engines, OrderSessionOn, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& row) { return refhost::engineName(row.param); });

} // namespace
