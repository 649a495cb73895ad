#include "tests/database/ContractCompany.h"
#include "tests/database/Engines.h"
#include "tests/database/PrivateServer.h"
#include "tests/database/ServerCompany.h"
#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/HostSession.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/SecondDisplay.h"
#include "tests/session/WindowTitles.h"

#include <QTest>

#include <algorithm>
#include <functional>
#include <gmock/gmock.h>
#include <regex>

/// Column layouts by name, and the window's place, as clerks use them: real pointer and keys, one or two processes on
/// one database, on one display or on two. Places in the window are those of its design size of 790 × 400, whose
/// columns begin so:
///
///   indicator 10, SKUPSPOL1 to SKUPSPOL3, SKLADPOL, SKLAD 100 each, MNOZSTVI 55, DPH 60, SLEVA 55
namespace {

using refhost::Engine;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

const QString c_LayoutTitle = QStringLiteral("Uložení nastavení");
const QString c_ColumnTitle = QStringLiteral("Vlastnosti sloupce");

constexpr int c_Width = 790;
constexpr int c_SettingsType = 3; ///< Delivery notes from the template.

constexpr int c_Left = 1;
constexpr int c_Right = 3;

/// A place in the header row.
QPoint header(int x) {
    return {x, 97};
}

QPoint menuButton(int windowWidth = c_Width) {
    return {windowWidth - 53, 114};
}

/// The items of the settings menu from its lower end; those that are disabled are passed by. From the upper end the
/// saved settings come first.
const QStringList c_SaveAsNew = {QStringLiteral("Up"), QStringLiteral("Up"), QStringLiteral("Return")};
const QStringList c_Delete = {QStringLiteral("Up"), QStringLiteral("Up"), QStringLiteral("Return")};
const QStringList c_SaveAsNewInForce = {QStringLiteral("Up"), QStringLiteral("Up"), QStringLiteral("Up"),
                                        QStringLiteral("Return")};
const QStringList c_Save = {QStringLiteral("Up"), QStringLiteral("Up"), QStringLiteral("Up"), QStringLiteral("Up"),
                            QStringLiteral("Return")};
const QStringList c_Rename = {QStringLiteral("Up"), QStringLiteral("Up"), QStringLiteral("Up"),
                              QStringLiteral("Up"), QStringLiteral("Up"), QStringLiteral("Return")};
const QStringList c_Restore = {QStringLiteral("Up"), QStringLiteral("Return")};
/// In the dialog of the name, from its name on.
const QStringList c_TurnSharing = {QStringLiteral("Tab"), QStringLiteral("Tab"), QStringLiteral("space"),
                                   QStringLiteral("Return")};
const QStringList c_FirstSaved = {QStringLiteral("Down"), QStringLiteral("Return")};

/// The document in a traced call.
std::string documentIn(const std::string& line) {
    const std::string before = R"(["a_DATA",")";
    const std::size_t from = line.find(before);
    if (from == line.npos) {
        return {};
    }
    const std::size_t begin = from + before.size();
    const std::string quoted = line.substr(begin, line.find(R"("]])", begin) - begin);
    return std::regex_replace(quoted, std::regex(R"(\\")"), "\"");
}

/// The columns of a layout by name, the first of them.
std::vector<std::string> columnsIn(const std::string& layout, std::size_t count) {
    static const std::regex name("<name>([^<]*)</name>");
    std::vector<std::string> names;
    for (std::sregex_iterator each(layout.begin(), layout.end(), name), end; each != end && names.size() < count;
         ++each) {
        names.push_back((*each)[1]);
    }
    return names;
}

/// What a layout says of a column behind its name.
std::string columnIn(const std::string& layout, const std::string& name) {
    const std::string before = "<name>" + name + "</name>";
    const std::size_t from = layout.find(before);
    return from == layout.npos
               ? ""
               : layout.substr(from + before.size(), layout.find("</column>", from) - from - before.size());
}

int widthIn(const std::string& layout, const std::string& name) {
    const std::string column = columnIn(layout, name);
    std::smatch width;
    return std::regex_search(column, width, std::regex("<width>([0-9]+)</width>")) ? std::stoi(width[1]) : -1;
}

/// The traced calls of a procedure of the settings.
Lines callsOf(const HostSession& session, const std::string& name) {
    Lines calls;
    for (const std::string& line : session.trace()) {
        if (line.starts_with(R"({"call":"MELVARKEDITORNASTAVENI)" + name + '"')) {
            calls.push_back(line);
        }
    }
    return calls;
}

/// The last document that was sent with a procedure.
std::string sentWith(const HostSession& session, const std::string& name) {
    const Lines calls = callsOf(session, name);
    return calls.empty() ? "" : documentIn(calls.back());
}

std::string idParam(int id) {
    return R"(["a_ID",)" + std::to_string(id) + "]";
}

class LayoutSession : public testing::TestWithParam<Engine> {
protected:
    LayoutSession() : url_(refhost::newDatabaseUrl(GetParam())) {
        refhost::addContractCompany(*refhost::openAs(url_, "novakova"));
    }

    /// The database's address for a user.
    std::string addressFor(const char* user) const { return refhost::addressAs(url_, user); }

    static void openEditor(HostSession& session) {
        session.startEditor(QStringLiteral("DODAK,SABLONA"), 2);
        session.waitForWindow(c_NoteTitle);
        session.waitForTrace("NactiNastaveniOkna");
    }

    static void closeEditor(HostSession& session) {
        session.waitForWindow(c_NoteTitle);
        session.press({QStringLiteral("alt+F4")});
        EXPECT_EQ(session.finish(), 1);
    }

    /// Stores a shared layout beforehand, by the command line.
    static void keepLayout(const HostSession& session, const QString& name,
                           const QString& document = QStringLiteral("<settings/>")) {
        session.ask({QStringLiteral("--call"), QStringLiteral("MELVARKEDITORNASTAVENIUlozNove"),
                     QStringLiteral("a_NAZEV=") + name, QStringLiteral("a_TYPEDITACE=3"), QStringLiteral("a_SDILENE=1"),
                     QStringLiteral("a_DATA=") + document});
    }

    /// Fills the dialog of the name, replacing what stands there, and confirms it.
    static void nameIt(HostSession& session, const QString& name) {
        session.waitForWindow(c_LayoutTitle);
        session.press({QStringLiteral("ctrl+a")});
        session.type(name);
        session.press({QStringLiteral("Return")});
    }

    static void readError(HostSession& session) {
        session.waitForWindow(c_ErrorTitle);
        session.press({QStringLiteral("Return")});
    }

private:
    std::string url_;
};

/// Renames the quantity, moves it before the item, narrows the item, hides the first group and lets the discount be
/// edited; hides and shows another column on the way.
void shape(HostSession& session) {
    session.pickFromMenu(header(550), c_Right, {QStringLiteral("Down"), QStringLiteral("Return")});
    session.waitForWindow(c_ColumnTitle);
    session.press({QStringLiteral("ctrl+a")});
    session.type(QStringLiteral("Kusů"));
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_NoteTitle);
    session.drag(header(550), header(345));
    session.drag(header(479), header(439)); // the right edge of the item, which begins at 378 now
    const QStringList hide = {QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Return")};
    // Each at another place of the same header: a second click at once would be taken for a double one.
    session.pickFromMenu(header(40), c_Right, hide);
    session.pickFromMenu(header(70), c_Right, hide); // the second group has come to its place
    session.pickFromMenu(header(100), c_Right,
                         {QStringLiteral("Up"), QStringLiteral("Right"), QStringLiteral("Down"),
                          QStringLiteral("Return")}); // and is shown again
    session.pickFromMenu(
        header(525), c_Right,
        {QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Return")});
}

TEST_P(LayoutSession, AShapedLayoutIsFoundTheNextDayAndPickedByAColleague) {
    HostSession first(addressFor("novakova"));
    openEditor(first);
    shape(first);
    first.pickFromMenu(menuButton(), c_Left, c_SaveAsNew);
    first.waitForWindow(c_LayoutTitle);
    first.type(QStringLiteral("Příjem zeleniny"));
    first.press({QStringLiteral("Tab")});
    first.type(QStringLiteral("kusy vlevo"));
    first.press({QStringLiteral("Tab"), QStringLiteral("space"), QStringLiteral("Return")});
    first.waitForTrace("NASTAVENIGetList", 2);
    first.waitForWindow(c_NoteTitle);
    first.placeWindow(QRect(150, 120, 900, 500));
    closeEditor(first);

    const std::string layout = sentWith(first, "UlozNove");
    EXPECT_THAT(
        callsOf(first, "UlozNove"),
        ElementsAre(HasSubstr(R"("params":[["a_NAZEV","Příjem zeleniny"],["a_TYPEDITACE",3],["a_SDILENE",true],)"
                              R"(["a_KOMENTAR","kusy vlevo"],["a_DATA",")")));
    EXPECT_THAT(layout, HasSubstr("<settings><prepocet>1</prepocet><columns>"));
    EXPECT_THAT(columnsIn(layout, 9), ElementsAre("DOBSID", "SKUPSPOL1", "SKUPSPOL2", "SKUPSPOL3", "MNOZSTVI",
                                                  "SKLADPOL", "SKLAD", "DPH", "SLEVA"));
    EXPECT_THAT(columnIn(layout, "MNOZSTVI"), HasSubstr("<caption>Kusů</caption><hint>Množství</hint>"));
    EXPECT_NEAR(widthIn(layout, "SKLADPOL"), 60, 2);
    EXPECT_EQ(widthIn(layout, "SKLAD"), 100);
    EXPECT_THAT(columnIn(layout, "SKUPSPOL1"), HasSubstr("<visible>0</visible>"));
    EXPECT_THAT(columnIn(layout, "SKUPSPOL2"), HasSubstr("<visible>1</visible>"));
    EXPECT_THAT(columnIn(layout, "SLEVA"), HasSubstr("<editable>AUTO</editable>"));
    const std::string place = sentWith(first, "UlozNastaveniOkna");
    EXPECT_THAT(place, HasSubstr("<width>900</width><height>500</height><maximized>0</maximized>"));

    // Another process finds both; what it would save is what was saved.
    HostSession next(addressFor("novakova"));
    openEditor(next);
    next.pickFromMenu(menuButton(900), c_Left, c_Save);
    next.waitForTrace(R"("MELVARKEDITORNASTAVENIUloz")");
    closeEditor(next);
    EXPECT_EQ(sentWith(next, "Uloz"), layout);
    EXPECT_EQ(sentWith(next, "UlozNastaveniOkna"), place);

    // A colleague picks it, cannot overwrite it, and keeps it as his own.
    HostSession colleague(addressFor("dvorak"), QStringLiteral("dvorak"));
    openEditor(colleague);
    colleague.pickFromMenu(menuButton(), c_Left, c_FirstSaved);
    colleague.waitForTrace(R"("MELVARKEDITORNASTAVENINacti")");
    colleague.pickFromMenu(menuButton(), c_Left, c_Save);
    readError(colleague);
    colleague.waitForWindow(c_NoteTitle);
    colleague.pickFromMenu(menuButton(), c_Left, c_SaveAsNewInForce);
    nameIt(colleague, QStringLiteral("Moje zelenina"));
    colleague.waitForTrace("NASTAVENIGetList", 2);
    closeEditor(colleague);
    EXPECT_THAT(callsOf(colleague, "Nacti"), ElementsAre(HasSubstr(idParam(1))));
    EXPECT_THAT(colleague.trace(),
                Contains(shownError("Nastavení „Příjem zeleniny“ patří jinému uživateli. Uložte si je jako nové.")));
    EXPECT_EQ(sentWith(colleague, "UlozNove"), layout);
    EXPECT_THAT(sentWith(colleague, "UlozNastaveniOkna"), HasSubstr("<width>790</width><height>400</height>"))
        << "the place is each clerk's own";
}

/// The colleague's menu is open while the owner works at another machine.
TEST_P(LayoutSession, WhatTheOwnerDoesWhileAColleagueHasTheMenuOpenIsMetWhenHePicks) {
    const SecondDisplay elsewhere;
    HostSession owner(addressFor("novakova"));
    keepLayout(owner, QStringLiteral("Druhý"));
    keepLayout(owner, QStringLiteral("První"));
    HostSession colleague(addressFor("dvorak"), QStringLiteral("dvorak"));
    colleague.useDisplay(elsewhere.name());
    openEditor(colleague); // lists both, the one that was kept first above
    openEditor(owner);     // with the one that was kept last in force
    owner.pickFromMenu(menuButton(), c_Left, c_FirstSaved);
    owner.waitForTrace(R"("MELVARKEDITORNASTAVENINacti")");
    owner.waitForWindow(c_NoteTitle);
    const auto pickFirst = [&](const std::function<void()>& meanwhile) {
        colleague.waitForWindow(c_NoteTitle);
        colleague.openMenuAt(menuButton(), c_Left);
        meanwhile();
        colleague.press(c_FirstSaved);
    };

    // Overwritten: the colleague gets what is stored now, as he would save it.
    pickFirst([&] {
        owner.pickFromMenu(header(40), c_Right,
                           {QStringLiteral("Down"), QStringLiteral("Down"), QStringLiteral("Return")});
        owner.pickFromMenu(menuButton(), c_Left, c_Save);
        owner.waitForTrace(R"("MELVARKEDITORNASTAVENIUloz")");
    });
    colleague.waitForTrace(R"("MELVARKEDITORNASTAVENINacti")");
    colleague.waitForWindow(c_NoteTitle);
    colleague.pickFromMenu(menuButton(), c_Left, c_Save);
    readError(colleague); // it is not his, nor his to rename
    colleague.waitForWindow(c_NoteTitle);
    colleague.pickFromMenu(menuButton(), c_Left, c_Rename);
    nameIt(colleague, QStringLiteral("Moje"));
    readError(colleague);
    colleague.waitForWindow(c_LayoutTitle);
    colleague.press({QStringLiteral("Escape")});
    EXPECT_THAT(columnIn(sentWith(owner, "Uloz"), "SKUPSPOL1"), HasSubstr("<visible>0</visible>"));
    EXPECT_EQ(sentWith(colleague, "Uloz"), sentWith(owner, "Uloz"));

    // Renamed: he picks it under its old name.
    pickFirst([&] {
        owner.pickFromMenu(menuButton(), c_Left, c_Rename);
        nameIt(owner, QStringLiteral("Jinak"));
        owner.waitForTrace("NASTAVENIPremenuj");
        owner.waitForWindow(c_NoteTitle);
    });
    colleague.waitForTrace(R"("MELVARKEDITORNASTAVENINacti")", 2);

    // No longer shared: he is told so. Shared again: he gets it.
    for (const int count : {2, 3}) {
        pickFirst([&] {
            owner.pickFromMenu(menuButton(), c_Left, c_Rename);
            owner.waitForWindow(c_LayoutTitle);
            owner.press(c_TurnSharing);
            owner.waitForTrace("NASTAVENIPremenuj", count);
            owner.waitForWindow(c_NoteTitle);
        });
        if (count == 2) {
            readError(colleague);
        }
        colleague.waitForTrace(R"("MELVARKEDITORNASTAVENINacti")", count + 1);
    }

    // Deleted: he is told so. A new one is shared: he finds it when he next opens an editor.
    pickFirst([&] {
        owner.pickFromMenu(menuButton(), c_Left, c_Delete);
        owner.waitForWindow(c_QuestionTitle);
        owner.press({QStringLiteral("alt+a")});
        owner.waitForTrace(R"("MELVARKEDITORNASTAVENISmaz")");
    });
    readError(colleague);
    colleague.waitForWindow(c_NoteTitle);
    colleague.openMenuAt(menuButton(), c_Left);
    owner.waitForWindow(c_NoteTitle);
    owner.pickFromMenu(menuButton(), c_Left, c_SaveAsNew);
    owner.waitForWindow(c_LayoutTitle);
    owner.type(QStringLiteral("Akce"));
    owner.press(c_TurnSharing);
    owner.waitForTrace("NASTAVENIGetList", 2);
    colleague.press({QStringLiteral("Escape")});
    closeEditor(colleague);
    closeEditor(owner);
    HostSession later(addressFor("dvorak"), QStringLiteral("dvorak"));
    later.useDisplay(elsewhere.name());
    openEditor(later);
    later.pickFromMenu(menuButton(), c_Left, c_FirstSaved);
    later.waitForTrace(R"("MELVARKEDITORNASTAVENINacti")");
    closeEditor(later);
    EXPECT_THAT(callsOf(later, "Nacti"), ElementsAre(HasSubstr(idParam(3))));

    const auto renamed = [](const char* shared) {
        return HasSubstr(R"("params":[["a_ID",1],["a_NAZEV","Jinak"],["a_KOMENTAR",""],["a_SDILENE",)" +
                         std::string(shared) + "]]");
    };
    EXPECT_THAT(callsOf(owner, "Premenuj"), ElementsAre(renamed("true"), renamed("false"), renamed("true")));
    EXPECT_THAT(callsOf(owner, "UlozNove"), ElementsAre(HasSubstr(R"(["a_NAZEV","Akce"],["a_TYPEDITACE",3],)"
                                                                  R"(["a_SDILENE",true])")));
    EXPECT_THAT(callsOf(colleague, "Premenuj"), ElementsAre(HasSubstr(R"(["a_NAZEV","Moje"])")));
    EXPECT_THAT(colleague.trace(),
                Contains(shownError("Nastavení „Druhý“ patří jinému uživateli. Uložte si je jako nové.")).Times(2));
    EXPECT_THAT(callsOf(owner, "Smaz"), ElementsAre(HasSubstr(idParam(1))));
    EXPECT_THAT(owner.trace(), Contains(HasSubstr(R"({"box":"Smazat zvolené nastavení?","flags":36,"result":6})")));
    EXPECT_THAT(callsOf(colleague, "Nacti"), testing::AllOf(testing::SizeIs(5), testing::Each(HasSubstr(idParam(1)))));
    EXPECT_THAT(
        colleague.trace(),
        Contains(shownError("Nastavení s identifikátorem 1 neexistuje nebo není sdílené. Vyberte jiné.")).Times(2));
}

TEST_P(LayoutSession, TheBuiltInLayoutIsRestoredAndFoundTheNextDay) {
    HostSession first(addressFor("novakova"));
    keepLayout(first, QStringLiteral("Moje"),
               QStringLiteral("<settings><prepocet>0</prepocet><columns><column><name>MNOZSTVI</name>"
                              "<caption>Kusů</caption></column></columns></settings>"));
    openEditor(first);
    first.pickFromMenu(menuButton(), c_Left, c_Restore);
    first.waitForWindow(c_QuestionTitle);
    first.press({QStringLiteral("alt+n")}); // not yet
    first.waitForWindow(c_NoteTitle);
    first.pickFromMenu(menuButton(), c_Left, c_Restore);
    first.waitForWindow(c_QuestionTitle);
    first.press({QStringLiteral("alt+a")});
    first.waitForTrace("NASTAVENISmazDef");
    closeEditor(first);
    EXPECT_THAT(callsOf(first, "SmazDef"), ElementsAre(HasSubstr(R"("params":[["a_TYPEDITACE",3]])")));
    for (const char* const answer : {"7", "6"}) {
        EXPECT_THAT(first.trace(), Contains(HasSubstr(R"({"box":"Obnovit původní nastavení?","flags":36,"result":)" +
                                                      std::string(answer))));
    }

    // What the next one would save is the built-in layout; the restored setting itself is still listed.
    HostSession next(addressFor("novakova"));
    openEditor(next);
    next.pickFromMenu(menuButton(), c_Left, c_SaveAsNew);
    nameIt(next, QStringLiteral("Vestavěné"));
    next.waitForTrace("NASTAVENIGetList", 2);
    closeEditor(next);
    const std::string layout = sentWith(next, "UlozNove");
    EXPECT_THAT(columnsIn(layout, 7),
                ElementsAre("DOBSID", "SKUPSPOL1", "SKUPSPOL2", "SKUPSPOL3", "SKLADPOL", "SKLAD", "MNOZSTVI"));
    EXPECT_THAT(columnIn(layout, "MNOZSTVI"), HasSubstr("<caption>Množství</caption>"));
    EXPECT_THAT(layout, HasSubstr("<prepocet>1</prepocet>"));
    EXPECT_THAT(callsOf(next, "GetList"), ElementsAre(HasSubstr(R"("rows":1)"), HasSubstr(R"("rows":2)")));
}

TEST_P(LayoutSession, ATakenNameIsToldAndAskedForAgainWithItsTexts) {
    HostSession session(addressFor("novakova"));
    keepLayout(session, QStringLiteral("Můj"));
    session.ask(
        {QStringLiteral("--call"), QStringLiteral("MELVARKEDITORNASTAVENISmazDef"), QStringLiteral("a_TYPEDITACE=3")});
    openEditor(session);
    session.pickFromMenu(menuButton(), c_Left, c_SaveAsNew);
    session.waitForWindow(c_LayoutTitle);
    session.press({QStringLiteral("Return")}); // no name at all
    readError(session);
    nameIt(session, QStringLiteral("Můj"));
    readError(session);
    session.waitForWindow(c_LayoutTitle);
    session.press({QStringLiteral("End")});
    session.type(QStringLiteral(" 2"));
    session.press({QStringLiteral("Return")});
    session.waitForTrace("NASTAVENIGetList", 2);
    session.waitForWindow(c_NoteTitle);
    session.pickFromMenu(menuButton(), c_Left, c_Rename);
    nameIt(session, QStringLiteral("Můj"));
    readError(session);
    session.waitForWindow(c_LayoutTitle);
    session.press({QStringLiteral("Escape")});
    closeEditor(session);

    EXPECT_THAT(callsOf(session, "UlozNove"),
                ElementsAre(HasSubstr(R"(["a_NAZEV","Můj"])"), HasSubstr(R"(["a_NAZEV","Můj 2"])")));
    EXPECT_EQ(callsOf(session, "GetInfo").size(), 1u);
    EXPECT_EQ(callsOf(session, "Premenuj").size(), 1u);
    EXPECT_THAT(session.trace(), Contains(shownError("Nastavení s názvem „Můj“ už máte. Zvolte jiný název.")).Times(2));
    EXPECT_THAT(session.trace(), Contains(HasSubstr(R"({"box":"Název musí být vyplněn","flags":16)")));
}

TEST_P(LayoutSession, AMaximisedWindowComesBackMaximisedOverItsNormalPlace) {
    const QPoint titleBar(300, -12);
    const std::string normal = "<left>405</left><top>300</top><width>790</width><height>400</height>";
    HostSession first(addressFor("novakova"));
    openEditor(first); // centred on 1600 × 1000
    first.doubleClick(titleBar);
    first.waitForWindowWidth(1600);
    closeEditor(first);
    EXPECT_THAT(sentWith(first, "UlozNastaveniOkna"), HasSubstr(normal + "<maximized>1</maximized>"));

    HostSession second(addressFor("novakova"));
    openEditor(second);
    second.waitForWindowWidth(1600);
    second.doubleClick(titleBar);
    second.waitForWindowWidth(c_Width);
    closeEditor(second);
    EXPECT_THAT(sentWith(second, "UlozNastaveniOkna"), HasSubstr(normal + "<maximized>0</maximized>"));
}

INSTANTIATE_TEST_SUITE_P(Engines, LayoutSession, c_BothEngines, engineOf);

TEST(LayoutSessionLink, ALinkLostWhileThePlaceIsStoredIsToldAndTheWindowCloses) {
    const refhost::ServerCompany company;
    company.open();
    HostSession session("postgresql:" + refhost::PrivateServer::instance().address(company.name(), "novakova"));
    session.startEditor(QStringLiteral("DODAK,SABLONA"), 1);
    session.waitForWindow(c_NoteTitle);
    session.waitForTrace("NactiNastaveniOkna");
    company.cutLinks();
    session.press({QStringLiteral("alt+F4")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(session.trace(), Contains(HasSubstr(R"({"error":"Spojení s databází)")));
}

TEST(LayoutSessionLink, ALinkLostAfterOkIsToldAndTheWindowClosesWithItsResult) {
    const std::string url = refhost::newDatabaseUrl(Engine::PostgreSQL);
    const auto owner = refhost::openAs(url, "novakova");
    refhost::addContractCompany(*owner);
    owner->runScript("create or replace function MELVARKEDITORNASTAVENIUlozNastaveniOkna("
                     "a_TYPEDITACE integer default null, a_DATA text default null) returns void language sql as $$ "
                     "select pg_terminate_backend(pg_backend_pid()) $$");
    HostSession session(url + " user=novakova");
    session.startEditor(QStringLiteral("DODAK,SABLONA"), 2);
    session.waitForWindow(c_NoteTitle);
    session.waitForTrace("NactiNastaveniOkna");
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForWindow(c_ErrorTitle);
    session.press({QStringLiteral("Return")});
    EXPECT_EQ(session.finish(), 0) << "the note was saved";
    const Lines trace = session.trace();
    EXPECT_EQ(std::ranges::count_if(trace, [](const auto& line) { return line.find("TempUloz") != line.npos; }), 1);
    EXPECT_THAT(trace, Contains(HasSubstr(R"({"error":"Spojení s databází)")));
    EXPECT_FALSE(storedLines(session).empty());
}

} // namespace
