#include "tests/database/Engines.h"
#include "tests/session/HostSession.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/OrderSources.h"
#include "tests/session/OrderTrace.h"

#include <gmock/gmock.h>
#include <ostream>

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
using testing::StartsWith;

/// What the database tells the clerk, as he reads it.
struct Sentence {
    const char* czech;
    const char* english;

    const char* in(const SessionWords& words) const { return &words == &c_Czech ? czech : english; }
};

constexpr Sentence c_OrderIsClosed{"Objednávka „OBJ-1“ je uzavřená. Otevřete ji, nebo vyberte jinou.",
                                   "Order “OBJ-1” is closed. Open it, or choose another one."};
constexpr Sentence c_TemplateIsClosed{"Vzor objednávky „VZ-1“ je uzavřený. Otevřete jej, nebo vyberte jiný.",
                                      "Order template “VZ-1” is closed. Open it, or choose another one."};
constexpr Sentence c_UnitIsGone{"Jednotka „kg“ nepatří k položce „Ovesné vločky“. Načtěte řádek znovu.",
                                "Unit “kg” is not a unit of item “Ovesné vločky”. Load the line again."};

const QString c_OrderTitle = QString::fromUtf8(c_Czech.OrderEditor);

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
                         testing::Combine(c_BothEngines, testing::Values(&c_Czech, &c_English),
                                          testing::ValuesIn(ordersources::sourceCases())),
                         [](const auto& row) {
                             return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param)->Language +
                                    std::get<2>(row.param).name;
                         });

class OrderSessionIn : public testing::TestWithParam<std::tuple<Engine, const SessionWords*>> {};

TEST_P(OrderSessionIn, RowsOfThreeSuppliersAreSavedFromOneOrderIntoThree) {
    const auto& [engine, words] = GetParam();
    // The template's third line is of a third supplier.
    HostSession session(companyOn(engine, "insert into DODOBJPOL (ID, DDOBID, PORADI, SKLPID, SKPLID, SKLDID, DODVID, "
                                          "MNOZSTVI) values (703, 7, 3, 4, 41, 1, 3, '2')"));
    session.startEditor(QStringLiteral("DODOBJ,OBJEDNAVKAVZOR"), 1, words->arguments());
    typed(&SessionWords::Template, "VZ-1")(session, *words);
    session.waitForWindow(QString::fromUtf8(words->OrderEditor));
    session.type(QString::fromLatin1(words->TwoAndAHalf)); // over the first line's 50
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(withoutStoredPlacement(session.trace(), 10),
                ElementsAreArray(
                    joined(ordertrace::opening(1, 12),
                           Lines{ordersources::typedCheck("ObjednavkaVzor", 1, "a_CISLO", "VZ-1", "a_DDOBID"),
                                 fill("Objednavka", 1, R"(["a_DDOBID",7])", 3), ordertrace::placement(10), saveBegun(),
                                 ordertrace::rowInsert({.item = "Mouka hladká", .main = "2.5"}),
                                 ordertrace::rowInsert({.item = "Sirup", .main = "5", .supplier = "Nápoje Švec"}),
                                 ordertrace::rowInsert({.item = "Čaj černý", .main = "2", .supplier = "Čajovna Říp"}),
                                 ordertrace::closing(1, "null", "7", "null")})));
    EXPECT_THAT(storedOrderLines(session),
                ElementsAre(stored(1, 4, "Mouka hladká", "2,5", "kg"), stored(11, 1, "Sirup", "5", "l", "Nápoje Švec"),
                            stored(12, 1, "Čaj černý", "2", "ks", "Čajovna Říp")));
    EXPECT_THAT(session.ask({QStringLiteral("--documents"), QStringLiteral("DODOBJ")}),
                AllOf(Contains(HasSubstr(R"("id":11,"number":"OV2026-000011","supplier":"Nápoje Švec")")),
                      Contains(HasSubstr(R"("id":12,"number":"OV2026-000012","supplier":"Čajovna Říp")"))));
}

TEST_P(OrderSessionIn, AClosedDocumentIsRefusedInWordsBeforeAnythingIsAsked) {
    const auto& [engine, words] = GetParam();
    const struct {
        const char* params;
        int document;
        Sentence sentence;
    } cases[] = {
        {"DODOBJ,OBJEDNAVKA",
         6,
         {"Objednávka „OBJ-6“ je uzavřená. Otevřete ji, nebo vyberte jinou.",
          "Order “OBJ-6” is closed. Open it, or choose another one."}},
        {"DODOBJVZOR,OBJEDNAVKA",
         8,
         {"Vzor objednávky „VZ-2“ je uzavřený. Otevřete jej, nebo vyberte jiný.",
          "Order template “VZ-2” is closed. Open it, or choose another one."}},
    };
    const std::string company = companyOn(engine);
    for (const auto& [params, document, sentence] : cases) {
        HostSession session(company);
        session.startEditor(QString::fromLatin1(params), document, words->arguments());
        EXPECT_EQ(session.finish(), 2);
        EXPECT_THAT(session.standardError(), HasSubstr(sentence.in(*words)));
        EXPECT_THAT(session.trace(), Not(Contains(HasSubstr("CheckZdroj"))));
    }
}

TEST_P(OrderSessionIn, ALoadedDecimalIsShownAndTypedOnAsTheLanguageWritesIt) {
    const auto& [engine, words] = GetParam();
    HostSession session(companyOn(engine));
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

INSTANTIATE_TEST_SUITE_P(Languages, OrderSessionIn,
                         testing::Combine(c_BothEngines, testing::Values(&c_Czech, &c_English)), [](const auto& row) {
                             return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param)->Language;
                         });

class OrderSessionOn : public testing::TestWithParam<Engine> {};

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

INSTANTIATE_TEST_SUITE_P(Engines, OrderSessionOn, c_BothEngines, engineOf);

/// An order or a template that is filled from the price list of its supplier.
struct PricedDocument {
    const char* name;
    const char* params;
    int document;
    const char* SessionWords::*title;
    const char* firstItem;
    int stopsBeforeFlakes; ///< Quantities in the lines above the flakes, which are last.
    int storedPlace;
    Sentence whenClosed;
};

void PrintTo(const PricedDocument& document, std::ostream* out) {
    *out << document.name;
}

// The sugar's list of the order's day is over today, for which a template is filled.
constexpr PricedDocument c_PricedDocuments[] = {
    {"Order", "DODOBJ,DODAVATEL", 1, &SessionWords::OrderEditor, "Cukr krystal", 7, 4, c_OrderIsClosed},
    {"Template", "DODOBJVZOR,DODAVATEL", 7, &SessionWords::TemplateEditor, "Mouka hladká", 5, 3, c_TemplateIsClosed},
};

class ChangedMeanwhile : public testing::TestWithParam<std::tuple<Engine, const SessionWords*, PricedDocument>> {
protected:
    static const SessionWords& words() { return *std::get<1>(GetParam()); }
    static const PricedDocument& document() { return std::get<2>(GetParam()); }
    static QString title() { return QString::fromUtf8(words().*document().title); }

    void open() {
        session_.startEditor(QString::fromLatin1(document().params), document().document, words().arguments());
        session_.waitForWindow(title());
    }
    /// Saves, which is refused in words that the clerk reads in his language.
    void saveInVain(const Sentence& sentence) {
        session_.press({QStringLiteral("ctrl+Return")});
        session_.waitForWindow(QString::fromUtf8(words().Error));
        session_.press({QStringLiteral("Return")});
        session_.waitForWindow(title());
        EXPECT_THAT(session_.trace(), Contains(AllOf(StartsWith("{\"error\":"), HasSubstr(sentence.in(words())))));
        EXPECT_THAT(lines(), IsEmpty());
    }
    void save() {
        session_.press({QStringLiteral("ctrl+Return")});
        EXPECT_EQ(session_.finish(), 0);
    }
    Lines lines() const { return storedOrderLines(session_, document().document == 7); }

    HostSession session_{companyOn(std::get<0>(GetParam()))};
};

TEST_P(ChangedMeanwhile, AClosedDocumentIsRefusedAndTheWorkIsStillThere) {
    const auto setOpen = [&](const char* value) {
        session_.changeDatabase("update DODOBJEDNAVKA set OTEVRENO = " + std::string(value) +
                                " where ID = " + std::to_string(document().document));
    };
    open();
    session_.type(QStringLiteral("8"));
    setOpen("0");
    saveInVain(document().whenClosed);
    setOpen("1");
    save();
    EXPECT_THAT(lines(),
                ElementsAre(stored(document().document, document().storedPlace, document().firstItem, "8", "kg")));
}

TEST_P(ChangedMeanwhile, ADeletedUnitIsRefusedInWordsAtItsLineAndTheWorkIsStillThere) {
    open();
    session_.press(QStringList(document().stopsBeforeFlakes, QStringLiteral("Return")));
    session_.type(QStringLiteral("3"));
    session_.press({QStringLiteral("shift+Return"), QStringLiteral("shift+Return")}); // to a line above
    session_.changeDatabase("delete from SKPL where ID = 81");
    saveInVain(c_UnitIsGone);
    session_.changeDatabase("insert into SKPL (ID, SKLPID, PORADI, NAZEV, FAKTOR) values (81, 8, 0, 'kg', '1')");
    session_.press({QStringLiteral("End")});
    session_.type(QStringLiteral("5")); // behind the 3 that is still there, in the line that was refused
    save();
    EXPECT_THAT(lines(), ElementsAre(stored(document().document, document().storedPlace, "Ovesné vločky", "35", "kg")));
}

INSTANTIATE_TEST_SUITE_P(Documents, ChangedMeanwhile,
                         testing::Combine(c_BothEngines, testing::Values(&c_Czech, &c_English),
                                          testing::ValuesIn(c_PricedDocuments)),
                         [](const auto& row) {
                             return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param)->Language +
                                    std::get<2>(row.param).name;
                         });

} // namespace
