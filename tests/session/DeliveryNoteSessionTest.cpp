#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/HostSession.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/TinyCompany.h"
#include "tests/session/WindowTitles.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using tinycompany::c_OpenNote;

const QString c_FromTemplate = QStringLiteral("DODAK,SABLONA");

using DeliveryNoteSession = OnBothEngines;

TEST_P(DeliveryNoteSession, FromTheTemplateAsksAndStoresJustThis) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(c_FromTemplate, c_OpenNote);
    session.waitForWindow(c_NoteTitle);
    session.type(QStringLiteral("7,5"));
    session.press({QStringLiteral("Return")});
    session.waitForTrace("MELVARKEDITORDodakVypocetCen");
    session.type(QStringLiteral("9"));
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);

    // Both typed cells are listed, in the order of the keys and not of the typing; the totals are those of 7.5 × 10.00:
    // 75.00 and VAT of 15.75.
    const std::string priceTyped = call(
        "MELVARKEDITORDodakVypocetCen", true,
        R"(["a_ZMENENEBUNKY","JEDNCENABSESLEVOU;MNOZSTVI;"],["a_PREPOCETCEN",true],["a_FOCUS","JEDNCENABSESLEVOU"],)"
        R"(["a_JEDNCENABBEZSLEVY",10],["a_JEDNDPHABEZSLEVY",2.1],["a_JEDNDPHBBEZSLEVY",0],)"
        R"(["a_JEDNCENASBEZSLEVY",12.1],["a_JEDNCENABSESLEVOU",9],["a_JEDNDPHASESLEVOU",2.1],)"
        R"(["a_JEDNDPHBSESLEVOU",0],["a_JEDNCENASSESLEVOU",12.1],["a_CENABSESLEVOU",75],["a_DPHASESLEVOU",15.75],)"
        R"(["a_DPHBSESLEVOU",0],["a_CENASSESLEVOU",90.75],["a_CENABBEZSLEVY",75],["a_DPHABEZSLEVY",15.75],)"
        R"(["a_DPHBBEZSLEVY",0],["a_CENASBEZSLEVY",90.75],["a_DPH","21 %"],["a_SLEVA",0],["a_MNOZSTVI",7.5])",
        1);
    // 7.5 × 9.00 = 67.50; its VAT of 14.175 rounds to 14.18.
    const std::string moukaRow =
        call("MELVARKEDITORDodakInsertToTemp", false,
             R"(["a_DOBSID",null],["a_SKLADPOL","Mouka"],["a_SKLAD","Hlavní sklad"],["a_MNOZSTVI","7.5"],)"
             R"(["a_DPH","21 %"],["a_SLEVA","0"],["a_JEDNCENABSL","9"],["a_JEDNDPHASL","1.89"],["a_JEDNDPHBSL","0"],)"
             R"(["a_JEDNCENASSL","10.89"],["a_JEDNCENAB","9"],["a_JEDNDPHA","1.89"],["a_JEDNDPHB","0"],)"
             R"(["a_JEDNCENAS","10.89"],["a_CENABSL","67.50"],["a_DPHASL","14.18"],["a_DPHBSL","0.00"],)"
             R"(["a_CENASSL","81.68"],["a_CENAB","67.50"],["a_DPHA","14.18"],["a_DPHB","0.00"],["a_CENAS","81.68"],)"
             R"(["a_TRVANLIVOST",null])",
             0);
    EXPECT_THAT(
        withoutStoredPlacement(session.trace()),
        ElementsAreArray(joined(openingCalls(3), Lines{templateRead(), placement(), sevenAndAHalfTyped(), priceTyped,
                                                       saveBegun(), moukaRow, cukrRow(), closing("null", "null")})));
    EXPECT_THAT(
        storedLines(session),
        ElementsAreArray({
            R"({"PORADI":"1","SKLPID":"1","MNOZSTVI":"7,5","JEDNCENABSESLEVOU":"9","CENASSESLEVOU":"81,68","DOBSID":null})",
            R"({"PORADI":"2","SKLPID":"2","MNOZSTVI":"5","JEDNCENABSESLEVOU":"18","CENASSESLEVOU":"108,9","DOBSID":null})",
        }));
}

TEST_P(DeliveryNoteSession, FromATypedOrderNumberCarriesTheOrderLinesToTheDocument) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(QStringLiteral("DODAK,DODOBJ"), c_OpenNote);
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.type(QString::fromLatin1(tinycompany::c_OrderNumber));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_NoteTitle);
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);

    const Lines reading = {
        call("MELVARKEDITORDodakCheckZdrojObjednavka", true,
             R"(["a_DODKIDMASTER",2],["a_CISLO","OV2027-000001"],["a_DDOBID",null])", 1),
        call("MELVARKEDITORDodakGetPolozkyByObjednavka", true, R"(["a_DODKID",2],["a_DDOBID",1])", 2),
        placement(),
    };
    // 4 × 10.00 and 3 × 20.00 less 10 % by the price list, with 21 % VAT: 40 and 8.40; 60 and 12.60; 54 and 11.34.
    const Lines saving = {
        saveBegun(),
        call("MELVARKEDITORDodakInsertToTemp", false,
             R"(["a_DOBSID","1"],["a_SKLADPOL","Mouka"],["a_SKLAD","Hlavní sklad"],["a_MNOZSTVI","4"],)"
             R"(["a_DPH","21 %"],["a_SLEVA","0"],["a_JEDNCENABSL","10"],["a_JEDNDPHASL","2.1"],)"
             R"(["a_JEDNDPHBSL","0"],["a_JEDNCENASSL","12.1"],["a_JEDNCENAB","10"],["a_JEDNDPHA","2.1"],)"
             R"(["a_JEDNDPHB","0"],["a_JEDNCENAS","12.1"],["a_CENABSL","40.00"],["a_DPHASL","8.40"],)"
             R"(["a_DPHBSL","0.00"],["a_CENASSL","48.40"],["a_CENAB","40.00"],["a_DPHA","8.40"],)"
             R"(["a_DPHB","0.00"],["a_CENAS","48.40"],["a_TRVANLIVOST",null])",
             0),
        call("MELVARKEDITORDodakInsertToTemp", false,
             R"(["a_DOBSID","2"],["a_SKLADPOL","Cukr"],["a_SKLAD","Hlavní sklad"],["a_MNOZSTVI","3"],)"
             R"(["a_DPH","21 %"],["a_SLEVA","10"],["a_JEDNCENABSL","18"],["a_JEDNDPHASL","3.78"],)"
             R"(["a_JEDNDPHBSL","0"],["a_JEDNCENASSL","21.78"],["a_JEDNCENAB","20"],["a_JEDNDPHA","4.2"],)"
             R"(["a_JEDNDPHB","0"],["a_JEDNCENAS","24.2"],["a_CENABSL","54.00"],["a_DPHASL","11.34"],)"
             R"(["a_DPHBSL","0.00"],["a_CENASSL","65.34"],["a_CENAB","60.00"],["a_DPHA","12.60"],)"
             R"(["a_DPHB","0.00"],["a_CENAS","72.60"],["a_TRVANLIVOST",null])",
             0),
        closing("null", "1"),
    };
    EXPECT_THAT(withoutStoredPlacement(session.trace()), ElementsAreArray(joined(openingCalls(1), reading, saving)));
    EXPECT_THAT(
        session.ask(
            {QStringLiteral("--query"),
             QStringLiteral(
                 "select ID, number_text(DODANO) as DODANO, KOMPLETNI from DODOBJPOL where DDOBID = 1 order by ID")}),
        ElementsAreArray({R"({"ID":"1","DODANO":"4","KOMPLETNI":"1"})", R"({"ID":"2","DODANO":"3","KOMPLETNI":"1"})"}));
}

TEST_P(DeliveryNoteSession, FromAPickedDeliveryNoteTravelsByItsIdAndLeavesOutWhatIsUnchecked) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(QStringLiteral("DODAK,DODAK"), c_OpenNote);
    session.waitForWindow(QStringLiteral("Výběr dodacího listu"));
    session.press({QStringLiteral("F5")});
    session.pickFirstRow();
    session.waitForTrace(R"("lookup":)");
    // From the edit past the list button (which takes no focus) to "množství".
    session.press({QStringLiteral("Tab"), QStringLiteral("space"), QStringLiteral("Return")});
    session.waitForWindow(c_NoteTitle);
    session.press({QStringLiteral("Escape"), QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);

    const Lines reading = {
        R"({"lookup":"Kordan3:DODAK.Normal","display":"CISLO","key":"_ID",)"
        R"("condition":"V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, 2, 1)=1","picked":"1"})",
        call("MELVARKEDITORDodakCheckZdrojDodak", true, R"(["a_DODKIDMASTER",2],["a_DODAKCISLO","DL1"],["a_DODKID",1])",
             1),
        call("MELVARKEDITORDodakGetPolozkyByDodak", true,
             R"(["a_DODKIDMASTER",1],["a_DODKID",2],["a_PRENESMNOZSTVI",false],["a_PRENESCENY",true])", 2),
        placement(),
    };
    EXPECT_THAT(withoutStoredPlacement(session.trace()), ElementsAreArray(joined(openingCalls(2), reading)));
    EXPECT_THAT(storedLines(session), IsEmpty());
}

TEST_P(DeliveryNoteSession, ACancelledSourceEndsQuietly) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(QStringLiteral("DODAK,DODOBJ"), c_OpenNote);
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.press({QStringLiteral("Escape")});
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(session.trace(), ElementsAreArray(openingCalls(1)));
    EXPECT_EQ(session.standardError(), "");
}

TEST_P(DeliveryNoteSession, ALineThatTheDatabaseRefusesKeepsTheEditorOpenWithWhatWasTyped) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(c_FromTemplate, c_OpenNote);
    session.waitForWindow(c_NoteTitle);
    // Without recalculation the total of 20.00 no longer belongs to 3 pieces at 10.00.
    session.press({QStringLiteral("alt+c")});
    session.type(QStringLiteral("3"));
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForTrace(R"({"error":)");
    EXPECT_TRUE(session.isRunning());
    EXPECT_THAT(storedLines(session), IsEmpty());
    session.press({QStringLiteral("Return")}); // the message is read
    session.waitForWindow(c_NoteTitle);
    // With recalculation on again the same quantity is typed once more and the line agrees.
    session.press({QStringLiteral("alt+p")});
    session.press({QStringLiteral("shift+Return"), QStringLiteral("Return")});
    session.type(QStringLiteral("3"));
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_EQ(storedLines(session).size(), 2u);
}

TEST_P(DeliveryNoteSession, ANoteClosedMeanwhileIsRefusedAndTheWorkIsStillThere) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(c_FromTemplate, c_OpenNote);
    session.waitForWindow(c_NoteTitle);
    session.changeDatabase("update DODAK set OTEVRENO = 0 where ID = 2");
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForTrace(R"({"error":)");
    EXPECT_TRUE(session.isRunning());
    EXPECT_THAT(storedLines(session), IsEmpty());
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_NoteTitle);
    session.changeDatabase("update DODAK set OTEVRENO = 1 where ID = 2");
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_EQ(storedLines(session).size(), 2u);
}

TEST_P(DeliveryNoteSession, ALineThatOnlyTheClosingCallRefusesIsNamedAndBecomesTheCurrentOne) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(QStringLiteral("DODAK,DODOBJ"), c_OpenNote);
    session.waitForWindow(QStringLiteral("Výběr objednávky"));
    session.type(QString::fromLatin1(tinycompany::c_OrderNumber));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_NoteTitle);
    session.changeDatabase("update DODOBJPOL set KOMPLETNI = 1 where ID = 2");
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForTrace(R"({"error":)");
    EXPECT_EQ(session.trace().back(),
              shownError("Řádek 2: Položka „Cukr“ objednávky „OV2027-000001“ už je dodaná celá. Načtěte položky z "
                         "objednávky znovu."));
    EXPECT_THAT(storedLines(session), IsEmpty());
    session.press({QStringLiteral("Return")}); // the message is read
    session.waitForWindow(c_NoteTitle);
    session.changeDatabase("update DODOBJPOL set KOMPLETNI = 0 where ID = 2");
    session.type(QStringLiteral("1")); // into the quantity of the line where the cursor stands
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    // 4 × 10.00 and 1 × 18.00, with 21 % VAT.
    EXPECT_THAT(
        storedLines(session),
        ElementsAreArray({
            R"({"PORADI":"1","SKLPID":"1","MNOZSTVI":"4","JEDNCENABSESLEVOU":"10","CENASSESLEVOU":"48,4","DOBSID":"1"})",
            R"({"PORADI":"2","SKLPID":"2","MNOZSTVI":"1","JEDNCENABSESLEVOU":"18","CENASSESLEVOU":"21,78","DOBSID":"2"})",
        }));
}

TEST_P(DeliveryNoteSession, AClosedNoteOpensNoEditorAndSaysWhy) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(c_FromTemplate, tinycompany::c_ClosedNote);
    EXPECT_EQ(session.finish(), 2);
    EXPECT_THAT(session.standardError(), HasSubstr("DL1"));
    EXPECT_THAT(session.trace(), Not(testing::Contains(HasSubstr("GetPolozky"))));
}

TEST_P(DeliveryNoteSession, AnUnknownEditTypeIsAnErrorInWords) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(QStringLiteral("DODAK,sablona"), c_OpenNote);
    EXPECT_EQ(session.finish(), 2);
    EXPECT_THAT(session.standardError(), HasSubstr("Neplatný typ editace (sablona)"));
    EXPECT_THAT(session.trace(), IsEmpty());
}

TEST_P(DeliveryNoteSession, ADocumentThatTheScreenLacksIsAnEmptyDataset) {
    HostSession session(tinycompany::on(GetParam()));
    session.startEditor(c_FromTemplate, 4711);
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(session.trace(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Engines, DeliveryNoteSession, c_BothEngines, engineOf);

} // namespace
