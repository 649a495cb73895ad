#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/HostSession.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/TinyCompany.h"
#include "tests/session/WindowTitles.h"

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// F8, and the last entry of the menu: the template of the latest delivery notes.
void insertFromTemplate(HostSession& session) {
    session.openMenu(QStringLiteral("F8"));
    session.press({QStringLiteral("Up"), QStringLiteral("Return")});
}

std::vector<std::string> checkedNotes(const HostSession& session) {
    std::vector<std::string> calls;
    for (const std::string& line : session.trace()) {
        if (line.starts_with(R"({"call":"MELVARKEDITORDodakCheckMaster")")) {
            calls.push_back(line);
        }
    }
    return calls;
}

using MainWindowSession = OnBothEngines;

TEST_P(MainWindowSession, ANoteIsFoundByTypingFilledByKeysAndStillCurrentAfterwards) {
    HostSession session(tinycompany::on(GetParam()));
    session.start({});
    session.waitForWindow(c_MainTitle); // on the latest note, DL3
    session.type(QStringLiteral("dl2"));
    session.press({QStringLiteral("Return"), QStringLiteral("Escape")}); // all notes again, the found one current
    insertFromTemplate(session);
    session.waitForWindow(c_NoteTitle);
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForTrace("MELVARKEDITORNASTAVENIUlozNastaveniOkna");
    session.waitForWindow(c_MainTitle);
    EXPECT_EQ(storedLines(session).size(), 2u);

    session.press({QStringLiteral("F5")});
    insertFromTemplate(session);
    session.waitForTrace("MELVARKEDITORNASTAVENINactiNastaveniOkna", 2);
    session.waitForWindow(c_NoteTitle);
    session.press({QStringLiteral("alt+F4")});
    session.waitForTrace("MELVARKEDITORNASTAVENIUlozNastaveniOkna", 2);
    session.waitForWindow(c_MainTitle);
    session.press({QStringLiteral("ctrl+q")});
    EXPECT_EQ(session.finish(), 0);

    const std::string openNote = call("MELVARKEDITORDodakCheckMaster", false, R"(["a_DODKID",2])", 0);
    EXPECT_THAT(checkedNotes(session), ElementsAre(openNote, openNote));
}

TEST_P(MainWindowSession, AClosedNoteIsRefusedInWordsAndTheWindowGoesOn) {
    HostSession session(tinycompany::on(GetParam()));
    session.start({});
    session.waitForWindow(c_MainTitle);
    session.type(QStringLiteral("dl1"));
    insertFromTemplate(session);
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_MainTitle);
    session.press({QStringLiteral("Escape"), QStringLiteral("ctrl+q")});
    EXPECT_EQ(session.finish(), 0);

    const std::string refusal = "Dodací list „DL1“ je uzavřený. Otevřete jej, nebo vyberte jiný.";
    EXPECT_THAT(checkedNotes(session),
                ElementsAre(refusedCall("MELVARKEDITORDodakCheckMaster", false, R"(["a_DODKID",1])", refusal)));
    EXPECT_THAT(session.trace(), Contains(shownError(refusal)));
    EXPECT_THAT(session.ask({QStringLiteral("--documents"), QStringLiteral("DODAK")}),
                Contains(R"({"id":1,"number":"DL1","supplier":"Mlýn Lípa","open":false,"lines":2})"));
}

/// Opens the host's window and leaves it at once, by the close box's key.
void lookAround(HostSession& session) {
    session.start({});
    session.waitForWindow(c_MainTitle);
    session.press({QStringLiteral("ctrl+q")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_EQ(session.standardError(), "");
}

TEST_P(MainWindowSession, TheWindowOpensInTheWayInWhichItWasLeft) {
    HostSession session(tinycompany::on(GetParam()));
    session.start({});
    session.waitForWindow(c_MainTitle);
    session.placeWindow({120, 80, 900, 640});
    session.press({QStringLiteral("ctrl+2"), QStringLiteral("alt+1"), QStringLiteral("ctrl+q")});
    EXPECT_EQ(session.finish(), 0);
    const std::string left = session.configuration("melvark/window.conf");
    EXPECT_THAT(left, HasSubstr("width=900\n"));
    EXPECT_THAT(left, HasSubstr("screen=DODOBJ\n"));
    EXPECT_THAT(left, HasSubstr("[DODOBJ]\ndocuments\\order=ascending\ndocuments\\sort=CISLO\n"));

    // What is written again is where the second window stood, and how it looked.
    lookAround(session);
    EXPECT_EQ(session.configuration("melvark/window.conf"), left);
    lookAround(session);
    EXPECT_EQ(session.configuration("melvark/window.conf"), left);
}

TEST_P(MainWindowSession, ADamagedFileOfTheWindowsLookIsNoHindrance) {
    HostSession session(tinycompany::on(GetParam()));
    session.configure("melvark/window.conf", "[window\n\x01=\nscreen=7\nleft=99999999999\n");
    lookAround(session);
    EXPECT_THAT(session.configuration("melvark/window.conf"), HasSubstr("screen=DODAK\n"));
}

TEST_P(MainWindowSession, ADismissedMenuAsksNothing) {
    HostSession session(tinycompany::on(GetParam()));
    session.start({});
    session.waitForWindow(c_MainTitle);
    session.openMenu(QStringLiteral("F8"));
    session.press({QStringLiteral("Escape"), QStringLiteral("ctrl+q")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(session.trace(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Engines, MainWindowSession, c_BothEngines, engineOf);

} // namespace
