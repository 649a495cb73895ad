#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/HostSession.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/TinyCompany.h"

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using testing::ElementsAreArray;
using tinycompany::c_OpenNote;

void startInEnglish(HostSession& session, const char* params) {
    session.start({QStringLiteral("--language"), QStringLiteral("en"), QStringLiteral("--locale"),
                   QStringLiteral("en_GB"), QStringLiteral("--execute"), QString::fromUtf8(params),
                   QStringLiteral("--document"), QString::number(c_OpenNote)});
}

using EnglishSession = OnBothEngines;

TEST_P(EnglishSession, ADecimalPointIsTypedAndTheDatabaseIsAskedAsInCzech) {
    HostSession session(tinycompany::on(GetParam()));
    startInEnglish(session, "DODAK,SABLONA");
    session.waitForWindow(QStringLiteral("Insert delivery note lines"));
    session.type(QStringLiteral("7.5"));
    session.press({QStringLiteral("Return")});
    session.waitForTrace("MELVARKEDITORDodakVypocetCen");
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);

    // 7.5 × 10.00 = 75.00, its VAT of 21 % is 15.75.
    const std::string moukaRow =
        call("MELVARKEDITORDodakInsertToTemp", false,
             R"(["a_DOBSID",null],["a_SKLADPOL","Mouka"],["a_SKLAD","Hlavní sklad"],["a_MNOZSTVI","7.5"],)"
             R"(["a_DPH","21 %"],["a_SLEVA","0"],["a_JEDNCENABSL","10"],["a_JEDNDPHASL","2.1"],["a_JEDNDPHBSL","0"],)"
             R"(["a_JEDNCENASSL","12.1"],["a_JEDNCENAB","10"],["a_JEDNDPHA","2.1"],["a_JEDNDPHB","0"],)"
             R"(["a_JEDNCENAS","12.1"],["a_CENABSL","75.00"],["a_DPHASL","15.75"],["a_DPHBSL","0.00"],)"
             R"(["a_CENASSL","90.75"],["a_CENAB","75.00"],["a_DPHA","15.75"],["a_DPHB","0.00"],["a_CENAS","90.75"],)"
             R"(["a_TRVANLIVOST",null])",
             0);
    EXPECT_THAT(
        withoutStoredPlacement(session.trace()),
        ElementsAreArray(joined(openingCalls(3), Lines{templateRead(), placement(), sevenAndAHalfTyped(), saveBegun(),
                                                       moukaRow, cukrRow(), closing("null", "null")})));
    EXPECT_THAT(
        storedLines(session),
        ElementsAreArray({
            R"({"PORADI":"1","SKLPID":"1","MNOZSTVI":"7,5","JEDNCENABSESLEVOU":"10","CENASSESLEVOU":"90,75","DOBSID":null})",
            R"({"PORADI":"2","SKLPID":"2","MNOZSTVI":"5","JEDNCENABSESLEVOU":"18","CENASSESLEVOU":"108,9","DOBSID":null})",
        }));
}

TEST_P(EnglishSession, ARefusalOfTheDatabaseIsShownInEnglishWithTheThingThatItNames) {
    HostSession session(tinycompany::on(GetParam()));
    startInEnglish(session, "DODAK,DODOBJ");
    session.waitForWindow(QStringLiteral("Select an order"));
    session.type(QStringLiteral("OV2027-000004"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QStringLiteral("Error"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QStringLiteral("Select an order"));
    session.press({QStringLiteral("Escape")});
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(session.trace(), Contains(shownError("Order “OV2027-000004” has been delivered in full. Choose an "
                                                     "order with something left to deliver.")));
}

TEST_P(EnglishSession, AValueThatIsNoNumberIsToldInEnglish) {
    HostSession session(tinycompany::on(GetParam()));
    startInEnglish(session, "DODAK,SABLONA");
    session.waitForWindow(QStringLiteral("Insert delivery note lines"));
    session.type(QStringLiteral("x"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QStringLiteral("Error"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(QStringLiteral("Insert delivery note lines"));
    session.press({QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(session.trace(), Contains(R"({"box":"The value x is not a decimal number","flags":16,"result":1})"));
}

INSTANTIATE_TEST_SUITE_P(Engines, EnglishSession, c_BothEngines, engineOf);

} // namespace
