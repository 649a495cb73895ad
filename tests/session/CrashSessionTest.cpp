#include "tests/database/ContractCompany.h"
#include "tests/database/Engines.h"
#include "tests/session/CrashableSession.h"
#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/TinyCompany.h"

#include <QPoint>

#include <gmock/gmock.h>

/// Unsaved work through crashes, as clerks have it: real keys, a clock that is moved instead of waited for, and a host
/// that is killed.
namespace {

using refhost::Engine;
using testing::Contains;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const QString c_NoteTitle = QStringLiteral("Vložení položek dodacího listu");
const QString c_NoteTitleOfHost = QStringLiteral("Upozornění");
const QString c_FromTemplate = QStringLiteral("DODAK,SABLONA");
/// Of the settings menu, in a window of its design size.
constexpr QPoint c_MenuButton(737, 114);
constexpr const char* c_NoteFile = "melvarkeditor_novakova_DODAK_SABLONA.dat";

// ------------------------------------------------------------------ every kind of document on every engine

/// An editor that fills itself without a question, on a document of the contract company.
struct Editor {
    const char* name;
    const char* params;
    const char* screen;
    int document;
    const char* title;
    const char* file;
    const char* question;
    const char* fill; ///< What a restored editor does not call.
};
constexpr Editor c_Editors[] = {
    {"Note", "DODAK,SABLONA", "DODAK", 2, "Vložení položek dodacího listu", "melvarkeditor_novakova_DODAK_SABLONA.dat",
     "MELVARKEDITORDodakObnovData", "MELVARKEDITORDodakGetPolozky"},
    {"Order", "DODOBJ,SABLONA", "DODOBJ", 1, "Vložení položek do objednávky zboží",
     "melvarkeditor_novakova_DODOBJ_SABLONA.dat", "MELVARKEDITORDodObjObnovData", "MELVARKEDITORDodObjGetPolozky"},
    {"Template", "DODOBJVZOR,SABLONA", "DODOBJVZOR", 7, "Vložení položek do vzorové objednávky zboží",
     "melvarkeditor_novakova_DODOBJVZOR_SABLONA.dat", "MELVARKEDITORDodObjObnovData", "MELVARKEDITORDodObjGetPolozky"},
};

std::string companyOn(Engine engine) {
    const std::string url = refhost::newDatabaseUrl(engine);
    refhost::addContractCompany(*refhost::openAs(url, "novakova"));
    return engine == Engine::PostgreSQL ? url + " user=novakova" : url;
}

class CrashSession : public testing::TestWithParam<std::tuple<Engine, Editor>> {
protected:
    static const Editor& editor() { return std::get<1>(GetParam()); }

    static void start(CrashableSession& session) {
        session.startEditor(QString::fromLatin1(editor().params), editor().document);
        session.waitForWindow(QString::fromUtf8(editor().title));
    }
    /// A quantity, three editable cells behind the one that is open.
    static void typeAQuantity(CrashableSession& session) {
        session.press({QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Return")});
        session.type(QStringLiteral("2,5"));
        session.press({QStringLiteral("Return")});
    }
    static void save(CrashableSession& session) {
        session.press({QStringLiteral("ctrl+Return")});
        EXPECT_EQ(session.finish(), 0);
    }
    static Lines stored(const HostSession& session) {
        return session.ask({QStringLiteral("--show"), QString::fromLatin1(editor().screen),
                            QStringLiteral("--document"), QString::number(editor().document)});
    }
    /// What the same keys store when nothing happens on the way, in a company of its own.
    static Lines storedWithoutACrash() {
        CrashableSession session(companyOn(std::get<0>(GetParam())));
        start(session);
        typeAQuantity(session);
        save(session);
        return stored(session);
    }
};

TEST_P(CrashSession, WhatWasTypedBeforeTheLastTickIsSavedByTheNextStart) {
    const Lines wanted = storedWithoutACrash();
    EXPECT_THAT(wanted, Contains(HasSubstr(R"(:"2,5")")));

    CrashableSession session(companyOn(std::get<0>(GetParam())));
    const Lines before = stored(session);
    start(session);
    typeAQuantity(session);
    session.passAMinute(editor().file);
    session.crash();
    EXPECT_EQ(stored(session), before);

    start(session);
    save(session);
    EXPECT_EQ(stored(session), wanted);
    EXPECT_THAT(session.traceSinceCrash(), Contains(HasSubstr(editor().question)));
    EXPECT_THAT(session.traceSinceCrash(), Not(Contains(HasSubstr(editor().fill))));
    EXPECT_THAT(session.unsavedWork(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EnginesAndEditors, CrashSession,
                         testing::Combine(testing::Values(Engine::SQLite, Engine::PostgreSQL),
                                          testing::ValuesIn(c_Editors)),
                         [](const auto& row) {
                             return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param).name;
                         });

// ------------------------------------------------------------------ the delivery note of the tiny company

/// The template's lines with 7.5 as the first quantity: 7.5 × 10.00, and 5 × 20.00 less 10 %, with 21 % VAT.
const Lines c_SevenAndAHalf = {
    R"({"PORADI":"1","SKLPID":"1","MNOZSTVI":"7.5","JEDNCENABSESLEVOU":"10","CENASSESLEVOU":"90.75","DOBSID":null})",
    R"({"PORADI":"2","SKLPID":"2","MNOZSTVI":"5","JEDNCENABSESLEVOU":"18","CENASSESLEVOU":"108.9","DOBSID":null})",
};

void startNote(CrashableSession& session, int document = tinycompany::c_OpenNote) {
    session.startEditor(c_FromTemplate, document);
    session.waitForWindow(c_NoteTitle);
}

/// A company of its own, as the host's command line names it.
std::string tinyCompany() {
    const std::string url = refhost::newSQLiteUrl();
    tinycompany::create(url.substr(std::string_view("sqlite:").size()));
    return url;
}

/// Types 7.5 as the first quantity and lets a minute pass.
void workAndTick(CrashableSession& session) {
    startNote(session);
    session.type(QStringLiteral("7,5"));
    session.press({QStringLiteral("Return")});
    session.waitForTrace("MELVARKEDITORDodakVypocetCen");
    session.passAMinute(c_NoteFile);
}

TEST(NoteCrashSession, WhatWasTypedAfterTheLastTickIsLostAndNothingElse) {
    CrashableSession session(tinyCompany());
    workAndTick(session);
    session.type(QStringLiteral("9"));
    session.press({QStringLiteral("Return")});
    session.waitForTrace("MELVARKEDITORDodakVypocetCen", 2);
    session.crash();
    startNote(session);
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedLines(session), ElementsAreArray(c_SevenAndAHalf));
}

TEST(NoteCrashSession, TwoCrashesInARowLoseNothing) {
    CrashableSession session(tinyCompany());
    workAndTick(session);
    session.crash();
    startNote(session);
    session.crash();
    EXPECT_THAT(session.unsavedWork(), Contains(HasSubstr(c_NoteFile)));
    startNote(session);
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedLines(session), ElementsAreArray(c_SevenAndAHalf));
    EXPECT_THAT(session.unsavedWork(), IsEmpty());
}

TEST(NoteCrashSession, ACrashRightAfterALayoutChangeLosesNothing) {
    CrashableSession session(tinyCompany());
    workAndTick(session);
    // The last item brings the built-in layout back, once it is confirmed.
    session.pickFromMenu(c_MenuButton, 1, {QStringLiteral("Up"), QStringLiteral("Return")});
    session.waitForWindow(QStringLiteral("Potvrzení"));
    session.press({QStringLiteral("Return")});
    session.waitForUnsavedWork({std::string(c_NoteFile) + ".kept"});
    session.crash();
    startNote(session);
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedLines(session), ElementsAreArray(c_SevenAndAHalf));
}

TEST(NoteCrashSession, WorkThatTheDatabaseDeclinesIsGoneAndTheOpenedNoteIsFilled) {
    CrashableSession session(tinyCompany());
    workAndTick(session);
    session.crash();
    session.changeDatabase("update DODAK set OTEVRENO = case ID when 3 then 1 else 0 end where ID in (2, 3)");
    startNote(session, 3);
    EXPECT_THAT(session.traceSinceCrash(), Contains(HasSubstr(R"("call":"MELVARKEDITORDodakObnovData")")));
    EXPECT_THAT(session.traceSinceCrash(), Contains(HasSubstr("MELVARKEDITORDodakGetPolozkyByDodak")));
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedLines(session), IsEmpty()) << "nothing went into note 2";
    EXPECT_THAT(session.unsavedWork(), IsEmpty());
}

TEST(NoteCrashSession, WorkOfAnotherNoteIsToldAndSavedIntoThatNote) {
    CrashableSession session(tinyCompany());
    workAndTick(session);
    session.crash();
    session.changeDatabase("update DODAK set OTEVRENO = 1 where ID = 3");
    session.startEditor(c_FromTemplate, 3);
    session.waitForWindow(c_NoteTitleOfHost);
    session.press({QStringLiteral("Return")});
    session.waitForWindow(c_NoteTitle);
    session.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session.finish(), 0);
    EXPECT_THAT(storedLines(session), ElementsAreArray(c_SevenAndAHalf));
}

TEST(NoteCrashSession, CancelledWorkIsNotOfferedAgain) {
    CrashableSession session(tinyCompany());
    workAndTick(session);
    session.press({QStringLiteral("Escape"), QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(session.unsavedWork(), IsEmpty());
}

TEST(NoteCrashSession, ASecondEditorIsToldAndTheFirstOnesWorkIsKept) {
    const std::string company = tinyCompany();
    CrashableSession first(company);
    workAndTick(first);
    {
        HostSession second(company);
        second.startEditor(c_FromTemplate, tinycompany::c_OpenNote);
        second.waitForWindow(c_NoteTitleOfHost);
        second.press({QStringLiteral("Return"), QStringLiteral("Escape"), QStringLiteral("alt+F4")});
        EXPECT_EQ(second.finish(), 1);
        EXPECT_THAT(second.trace(), Contains(HasSubstr("MELVARKEDITORDodakGetPolozkyByDodak")));
    }
    EXPECT_THAT(first.unsavedWork(), Contains(HasSubstr(c_NoteFile)));
    first.crash();
    startNote(first);
    first.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(first.finish(), 0);
    EXPECT_THAT(storedLines(first), ElementsAreArray(c_SevenAndAHalf));
}

} // namespace
