#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/HostSession.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/TinyCompany.h"
#include "tests/session/WindowTitles.h"

#include <gmock/gmock.h>

namespace {

using refhost::Engine;
using testing::ElementsAreArray;
using testing::IsEmpty;
using tinycompany::c_OpenNote;

/// One way to name a source: what the session asks when it is checked and read.
struct SourceKind {
    const char* params;
    int settingsType;
    const char* title;
    const char* checkProcedure;
    const char* textParam;
    const char* idParam;
    const char* readProcedure;
    const char* readParams; ///< For the source whose number ends in 1.
};

constexpr SourceKind c_Order{.params = "DODAK,DODOBJ",
                             .settingsType = 1,
                             .title = "Výběr objednávky",
                             .checkProcedure = "MELVARKEDITORDodakCheckZdrojObjednavka",
                             .textParam = "a_CISLO",
                             .idParam = "a_DDOBID",
                             .readProcedure = "MELVARKEDITORDodakGetPolozkyByObjednavka",
                             .readParams = R"(["a_DODKID",2],["a_DDOBID",1])"};
constexpr SourceKind c_Note{.params = "DODAK,DODAK",
                            .settingsType = 2,
                            .title = "Výběr dodacího listu",
                            .checkProcedure = "MELVARKEDITORDodakCheckZdrojDodak",
                            .textParam = "a_DODAKCISLO",
                            .idParam = "a_DODKID",
                            .readProcedure = "MELVARKEDITORDodakGetPolozkyByDodak",
                            .readParams = R"(["a_DODKIDMASTER",1],["a_DODKID",2],)"
                                          R"(["a_PRENESMNOZSTVI",true],["a_PRENESCENY",true])"};

std::string checkParams(const SourceKind& kind, const std::string& typed) {
    return R"(["a_DODKIDMASTER",2],[")" + std::string(kind.textParam) + R"(",")" + typed + R"("],[")" + kind.idParam +
           R"(",null])";
}

/// Both sources have two lines.
std::string sourceRead(const SourceKind& kind) {
    return call(kind.readProcedure, true, kind.readParams, 2);
}

struct RefusalCase {
    const char* name;
    const SourceKind& kind;
    const char* typed;   ///< Refused; its last letter made "1" is the source that is admitted.
    const char* refusal; ///< The sentence in the trace, quotes as they stand there.
};

void PrintTo(const RefusalCase& row, std::ostream* out) {
    *out << row.name;
}

const RefusalCase c_Refusals[] = {
    {"OrderNotFound", c_Order, "OV2027-000009",
     "Objednávka „OV2027-000009“ neexistuje. Opravte zápis, nebo vyberte ze seznamu."},
    {"OrderOfAnotherSupplier", c_Order, "OV2027-000002",
     "Objednávka „OV2027-000002“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného "
     "dodavatele."},
    {"OrderForAnotherWarehouse", c_Order, "OV2027-000003",
     "Objednávka „OV2027-000003“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného skladu."},
    {"OrderFullyDelivered", c_Order, "OV2027-000004",
     "Objednávka „OV2027-000004“ má už všechny položky dodané. Vyberte objednávku, na které něco zbývá."},
    {"NoteNotFound", c_Note, "DL9", "Dodací list „DL9“ neexistuje. Opravte zápis, nebo vyberte ze seznamu."},
    {"NoteOfAnotherSupplier", c_Note, "DL3",
     "Dodací list „DL3“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele."},
    {"TheNoteItself", c_Note, "DL2", "Dodací list „DL2“ je právě upravovaný doklad. Vyberte jako zdroj jiný."},
};

class SourceSession : public testing::TestWithParam<std::tuple<Engine, RefusalCase>> {};

TEST_P(SourceSession, ARefusedSourceIsToldAndItsTextCorrectedInTheOpenDialog) {
    const auto& [engine, refused] = GetParam();
    const auto& [name, kind, typed, refusal] = refused;
    HostSession session(tinycompany::on(engine));
    session.startEditor(QString::fromUtf8(kind.params), c_OpenNote);
    session.waitForWindow(QString::fromUtf8(kind.title));
    session.type(QString::fromUtf8(typed));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")}); // the message is read
    // The text is still there: its last letter alone is typed anew.
    session.waitForWindow(QString::fromUtf8(kind.title));
    session.press({QStringLiteral("End"), QStringLiteral("BackSpace"), QStringLiteral("1"), QStringLiteral("Return")});
    session.waitForWindow(c_NoteTitle);
    session.press({QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);

    std::string corrected = typed;
    corrected.back() = '1';
    const Lines checks = {refusedCall(kind.checkProcedure, true, checkParams(kind, typed), refusal),
                          shownError(refusal), call(kind.checkProcedure, true, checkParams(kind, corrected), 1),
                          sourceRead(kind), placement()};
    EXPECT_THAT(withoutStoredPlacement(session.trace()),
                ElementsAreArray(joined(openingCalls(kind.settingsType), checks)));
    EXPECT_THAT(storedLines(session), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Refusals, SourceSession, testing::Combine(c_BothEngines, testing::ValuesIn(c_Refusals)),
                         [](const auto& row) {
                             return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param).name;
                         });

using SourceSessionOfNothing = OnBothEngines;

TEST_P(SourceSessionOfNothing, NeitherTextNorPickIsRefusedAndAPickFromTheListThenHelps) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(QStringLiteral("DODAK,DODOBJ"), c_OpenNote);
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.press({QStringLiteral("F5")});
    session.waitForWindow(QStringLiteral("Výběr ze seznamu"));
    session.type(QStringLiteral("mlyn")); // finds "Mlýn Lípa"
    session.press({QStringLiteral("Return")});
    session.waitForTrace(R"("lookup":)");
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_NoteTitle);
    session.press({QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);

    const std::string nothing = "Zdroj není zadán. Zapište jej, nebo jej vyberte ze seznamu.";
    const Lines checks = {
        refusedCall(c_Order.checkProcedure, true, checkParams(c_Order, ""), nothing),
        shownError(nothing),
        R"({"lookup":"Kordan3:DODOBJEDNAVKA.Normal","display":"CISLO","key":"_ID",)"
        R"("condition":"V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, _SKLDID, _DODVID, 2, 1, _DODANO)=1",)"
        R"("picked":"1"})",
        call(c_Order.checkProcedure, true, R"(["a_DODKIDMASTER",2],["a_CISLO","OV2027-000001"],["a_DDOBID",1])", 1),
        sourceRead(c_Order),
        placement(),
    };
    EXPECT_THAT(withoutStoredPlacement(session.trace()), ElementsAreArray(joined(openingCalls(1), checks)));
}

INSTANTIATE_TEST_SUITE_P(Engines, SourceSessionOfNothing, c_BothEngines, engineOf);

} // namespace
