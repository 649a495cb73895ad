#include "tests/session/HostSession.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/OrderSources.h"
#include "tests/session/OrderTrace.h"

#include <gmock/gmock.h>
#include <ostream>

// Sources of orders and order templates that bring nothing: one empty row, which a save ignores, or a sentence.

namespace {

using ordersources::Choice;
using ordersources::companyOn;
using ordersources::confirmed;
using ordersources::fill;
using ordersources::groups;
using ordersources::typed;
using ordersources::typedCheck;
using refhost::Engine;
using testing::Contains;
using testing::ElementsAreArray;
using testing::HasSubstr;

/// A source without lines: what makes it so, how it is chosen, and what the trace has of it.
struct EmptySource {
    const char* name;
    bool isTemplate;
    int document;
    const char* code;
    int number;
    const char* change;
    Choice choose;
    Lines reading;
    std::string closing;
};

void PrintTo(const EmptySource& source, std::ostream* out) {
    *out << source.name;
}

constexpr const char* c_Nothing = "";
constexpr const char* c_NoteWithoutLines =
    "insert into DODAK (ID, CISLO, DATUM, DODVID, SKLDID, OTEVRENO) values (10, 'DL-10', '2026-02-16', 1, 1, 1)";
constexpr const char* c_GroupWithoutItems = "insert into SKUPSPOL1 (ID, NAZEV) values (9, 'Obaly')";
constexpr const char* c_FreeOrderOfSilentSupplier = "update DODOBJEDNAVKA set DODVID = 3 where ID = 5";
constexpr const char* c_TemplateOfSilentSupplier = "update DODOBJEDNAVKA set DODVID = 3 where ID = 7";

std::vector<EmptySource> emptySources() {
    const auto closing = [](int document, const char* order, const char* pattern, const char* note) {
        return ordertrace::closing(document, order, pattern, note);
    };
    const auto order = typed(&SessionWords::Order, "OBJ-5");
    const auto pattern = typed(&SessionWords::Template, "OBJ-1"); // the template of that number, which has no lines
    const auto note = typed(&SessionWords::DeliveryNote, "DL-10");
    const auto packaging = typed(&SessionWords::Groups, "obaly");
    const char* const packagingIds = R"(["a_SSP1ID",9],["a_SSP2ID",null],["a_SSP3ID",null])";
    const auto orderRead = [](int document) {
        return Lines{typedCheck("Objednavka", document, "a_CISLO", "OBJ-5", "a_DDOBID"),
                     fill("Objednavka", document, R"(["a_DDOBID",5])", 0)};
    };
    const auto patternRead = [](int document) {
        return Lines{typedCheck("ObjednavkaVzor", document, "a_CISLO", "OBJ-1", "a_DDOBID"),
                     fill("Objednavka", document, R"(["a_DDOBID",9])", 0)};
    };
    const auto latestRead = [](int document) { return Lines{fill("Objednavka", document, R"(["a_DDOBID",null])", 0)}; };
    const auto noteRead = [](int document) {
        return Lines{typedCheck("Dodak", document, "a_CISLO", "DL-10", "a_DODKID"),
                     fill("Dodak", document, R"(["a_DODKID",10])", 0)};
    };
    const auto groupsRead = [&](int document) { return groups(document, {"obaly", "", ""}, packagingIds, 0); };
    const auto priceListRead = [](int document) { return Lines{fill("DodCenik", document, R"(["a_DODVID",3])", 0)}; };
    return {
        {"Order", false, 1, "OBJEDNAVKA", 1, c_Nothing, order, orderRead(1), closing(1, "5", "null", "null")},
        {"OrderTemplate", false, 1, "OBJEDNAVKAVZOR", 2, c_Nothing, pattern, patternRead(1),
         closing(1, "null", "9", "null")},
        // The only order of its supplier, and one that has no supplier yet.
        {"LatestOrders", false, 3, "SABLONA", 3, c_Nothing, {}, latestRead(3), closing(3, "null", "null", "null")},
        {"LatestOrdersOfNobody",
         false,
         5,
         "SABLONA",
         3,
         c_Nothing,
         {},
         latestRead(5),
         closing(5, "null", "null", "null")},
        {"DeliveryNote", false, 1, "DODAK", 4, c_NoteWithoutLines, note, noteRead(1), closing(1, "null", "null", "10")},
        {"StockGroup", false, 1, "SKUPSKLADPOL", 5, c_GroupWithoutItems, packaging, groupsRead(1),
         closing(1, "null", "null", "null")},
        {"PriceList",
         false,
         5,
         "DODAVATEL",
         6,
         c_FreeOrderOfSilentSupplier,
         {},
         priceListRead(5),
         closing(5, "null", "null", "null")},
        {"OrderForATemplate", true, 7, "OBJEDNAVKA", 1, c_Nothing, order, orderRead(7),
         closing(7, "5", "null", "null")},
        {"TemplateForATemplate", true, 7, "OBJEDNAVKAVZOR", 2, c_Nothing, pattern, patternRead(7),
         closing(7, "null", "9", "null")},
        {"LatestOrdersForATemplate",
         true,
         9,
         "SABLONA",
         3,
         c_Nothing,
         {},
         latestRead(9),
         closing(9, "null", "null", "null")},
        {"DeliveryNoteForATemplate", true, 7, "DODAK", 4, c_NoteWithoutLines, note, noteRead(7),
         closing(7, "null", "null", "10")},
        {"StockGroupForATemplate", true, 7, "SKUPSKLADPOL", 5, c_GroupWithoutItems, packaging, groupsRead(7),
         closing(7, "null", "null", "null")},
        {"PriceListForATemplate",
         true,
         7,
         "DODAVATEL",
         6,
         c_TemplateOfSilentSupplier,
         {},
         priceListRead(7),
         closing(7, "null", "null", "null")},
    };
}

/// All orders' and templates' lines and what is recorded of their sources.
Lines allStored(const HostSession& session) {
    Lines stored;
    for (const char* const table : {"DODOBJEDNAVKA", "DODOBJPOL", "DODOBJZDROJ"}) {
        const Lines rows = session.ask(
            {QStringLiteral("--query"), QStringLiteral("select * from %1 order by ID").arg(QLatin1String(table))});
        stored.insert(stored.end(), rows.begin(), rows.end());
    }
    return stored;
}

QString params(bool isTemplate, const char* code) {
    return (isTemplate ? QStringLiteral("DODOBJVZOR,%1") : QStringLiteral("DODOBJ,%1")).arg(QLatin1String(code));
}

QString editorOf(bool isTemplate, const SessionWords& words) {
    return QString::fromUtf8(isTemplate ? words.TemplateEditor : words.OrderEditor);
}

class EmptySourceSession : public testing::TestWithParam<std::tuple<Engine, EmptySource>> {};

TEST_P(EmptySourceSession, GivesOneEmptyRowAndSavingItChangesNothing) {
    const auto& [engine, source] = GetParam();
    HostSession session(companyOn(engine, source.change));
    const Lines before = allStored(session);
    session.startEditor(params(source.isTemplate, source.code), source.document);
    if (source.choose) {
        source.choose(session, c_Czech);
    }
    session.waitForWindow(editorOf(source.isTemplate, c_Czech));
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);

    const int kind = source.isTemplate ? 20 : 10;
    EXPECT_THAT(withoutStoredPlacement(session.trace(), kind),
                ElementsAreArray(joined(ordertrace::opening(source.document, kind + source.number), source.reading,
                                        Lines{ordertrace::placement(kind), saveBegun(),
                                              ordertrace::rowInsert(ordertrace::c_EmptyRow), source.closing})));
    EXPECT_EQ(allStored(session), before);
}

INSTANTIATE_TEST_SUITE_P(Sources, EmptySourceSession,
                         testing::Combine(c_BothEngines, testing::ValuesIn(emptySources())), [](const auto& row) {
                             return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param).name;
                         });

/// A source that the dialog refuses in words, and how the clerk goes on in the same dialog.
struct RefusedSource {
    const char* name;
    bool isTemplate;
    int document;
    const char* code;
    const char* SessionWords::*dialog;
    Choice choose;
    const char* sentence; ///< Or how it begins: the moment of a template is now.
    const char* english;
    const char* instead; ///< Typed over it.
    std::string reading;
};

void PrintTo(const RefusedSource& source, std::ostream* out) {
    *out << source.name;
}

std::vector<RefusedSource> refusedSources() {
    constexpr const char* c_NoPriceList = "Supplier “Čajovna Říp” has no price list that is valid on that day.";
    constexpr const char* c_NoGroup = "Není zadána žádná skupina. Zadejte skupinu aspoň jedné úrovně.";
    constexpr const char* c_NoGroupInEnglish = "No stock group is given. Enter a group of at least one level.";
    constexpr const char* c_NotTogether =
        "Skupina 2. úrovně „Mouky“ neleží pod skupinou „Nápoje“. Vyberte skupiny, které k sobě patří.";
    constexpr const char* c_NotTogetherInEnglish =
        "Stock group “Mouky” does not lie under group “Nápoje”. Choose groups that belong together.";
    constexpr const char* c_FirstDrinks = R"(["a_SSP1ID",2],["a_SSP2ID",null],["a_SSP3ID",null])";
    constexpr const char* c_FlourOfFood = R"(["a_SSP1ID",1],["a_SSP2ID",1],["a_SSP3ID",null])";
    const auto noList = typed(&SessionWords::Supplier, "čajovna říp");
    const auto noGroup = confirmed(&SessionWords::Groups);
    const Choice flourOfDrinks = [](HostSession& session, const SessionWords& words) {
        session.waitForWindow(QString::fromUtf8(words.Groups));
        session.type(QStringLiteral("nápoje"));
        session.press({QStringLiteral("Tab")});
        session.type(QStringLiteral("mouky"));
        session.press({QStringLiteral("Return")}); // after the refusal the cursor is in the first line again
    };
    return {
        {"ASupplierWithoutAPriceList", false, 5, "DODAVATEL", &SessionWords::Supplier, noList,
         "Dodavatel „Čajovna Říp“ nemá k datu 12.2.2026 žádný platný ceník. Vyberte jiného dodavatele.", c_NoPriceList,
         "nápoje švec", fill("DodCenik", 5, R"(["a_DODVID",2])", 1)},
        {"ASupplierWithoutDeliveries", false, 5, "DODAVKY", &SessionWords::Supplier, noList,
         "Dodavatel „Čajovna Říp“ v posledních měsících nic nedodal. Vyberte jiného dodavatele.",
         "Supplier “Čajovna Říp” has delivered nothing in recent months. Choose another supplier.", "mlýn lípa",
         fill("Dodavky", 5, R"(["a_DODVID",1],["a_PRENESMNOZSTVI",false])", 3)},
        {"NoGroupAtAll", false, 1, "SKUPSKLADPOL", &SessionWords::Groups, noGroup, c_NoGroup, c_NoGroupInEnglish,
         "nápoje", fill("SkupSkladPol", 1, c_FirstDrinks, 2)},
        {"GroupsThatDoNotBelongTogether", false, 1, "SKUPSKLADPOL", &SessionWords::Groups, flourOfDrinks, c_NotTogether,
         c_NotTogetherInEnglish, "potraviny", fill("SkupSkladPol", 1, c_FlourOfFood, 2)},
        {"NoOrderAtAll", false, 1, "OBJEDNAVKA", &SessionWords::Order, confirmed(&SessionWords::Order),
         "Zdroj není zadán. Zapište jej, nebo jej vyberte ze seznamu.",
         "No source is given. Type it, or choose it from the list.", "OBJ-10",
         fill("Objednavka", 1, R"(["a_DDOBID",10])", 3)},
        {"ASupplierWithoutAPriceListForATemplate", true, 9, "DODAVATEL", &SessionWords::Supplier, noList,
         "Dodavatel „Čajovna Říp“ nemá k datu ", c_NoPriceList, "mlýn lípa",
         fill("DodCenik", 9, R"(["a_DODVID",1])", 3)},
        {"NoGroupAtAllForATemplate", true, 7, "SKUPSKLADPOL", &SessionWords::Groups, noGroup, c_NoGroup,
         c_NoGroupInEnglish, "nápoje", fill("SkupSkladPol", 7, c_FirstDrinks, 2)},
        {"GroupsThatDoNotBelongTogetherForATemplate", true, 7, "SKUPSKLADPOL", &SessionWords::Groups, flourOfDrinks,
         c_NotTogether, c_NotTogetherInEnglish, "potraviny", fill("SkupSkladPol", 7, c_FlourOfFood, 2)},
    };
}

class RefusedSourceSession : public testing::TestWithParam<std::tuple<Engine, const SessionWords*, RefusedSource>> {};

TEST_P(RefusedSourceSession, IsToldAndCorrectedInTheOpenDialog) {
    const auto& [engine, language, source] = GetParam();
    const SessionWords& words = *language;
    HostSession session(companyOn(engine));
    const Lines before = allStored(session);
    session.startEditor(params(source.isTemplate, source.code), source.document, words.arguments());
    source.choose(session, words);
    session.waitForWindow(QString::fromUtf8(words.Error));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QString::fromUtf8(words.*source.dialog));
    session.press({QStringLiteral("ctrl+a")});
    typed(source.dialog, source.instead)(session, words);
    session.waitForWindow(editorOf(source.isTemplate, words));
    session.press({QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);
    const std::string told = language == &c_Czech ? source.sentence : source.english;
    EXPECT_THAT(session.trace(), Contains(HasSubstr(R"({"error":")" + told)));
    EXPECT_THAT(session.trace(), Contains(source.reading));
    EXPECT_EQ(allStored(session), before);
}

INSTANTIATE_TEST_SUITE_P(Sources, RefusedSourceSession,
                         testing::Combine(c_BothEngines, testing::Values(&c_Czech, &c_English),
                                          testing::ValuesIn(refusedSources())),
                         [](const auto& row) {
                             return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param)->Language +
                                    std::get<2>(row.param).name;
                         });

class NoDeliveriesSession : public testing::TestWithParam<Engine> {};

TEST_P(NoDeliveriesSession, OfTheDocumentsOwnSupplierAreToldAndTheDialogCanOnlyBeLeft) {
    HostSession session(companyOn(GetParam(), c_FreeOrderOfSilentSupplier));
    session.startEditor(QStringLiteral("DODOBJ,DODAVKY"), 5);
    confirmed (&SessionWords::Supplier)(session, c_Czech);
    session.waitForWindow(QString::fromUtf8(c_Czech.Error));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QString::fromUtf8(c_Czech.Supplier));
    session.press({QStringLiteral("alt+z")}); // the supplier, in whose line Escape would do, cannot be typed
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(
        session.trace(),
        Contains(shownError("Dodavatel „Čajovna Říp“ v posledních měsících nic nedodal. Vyberte jiného dodavatele.")));
    EXPECT_THAT(session.trace(), testing::Not(Contains(HasSubstr("GetPolozky"))));
}

INSTANTIATE_TEST_SUITE_P(Engines, NoDeliveriesSession, c_BothEngines, engineOf);

} // namespace
