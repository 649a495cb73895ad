#include "tests/database/ContractCompany.h"
#include "tests/database/Engines.h"
#include "tests/session/CrashableSession.h"
#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/OnBothEngines.h"
#include "tests/session/TinyCompany.h"
#include "tests/session/WindowTitles.h"

#include <QPoint>

#include <gmock/gmock.h>
#include <map>
#include <memory>

/// Unsaved work through crashes, as clerks have it: real keys, a clock that is moved instead of waited for, and a host
/// that is killed.
namespace {

using refhost::Engine;
using testing::Contains;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

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
    const char* table;
    int otherDocument;
};
constexpr Editor c_Editors[] = {
    {"Note", "DODAK,SABLONA", "DODAK", 2, "Vložení položek dodacího listu", "melvarkeditor_novakova_DODAK_SABLONA.dat",
     "MELVARKEDITORDodakObnovData", "MELVARKEDITORDodakGetPolozky", "DODAK", 3},
    {"Order", "DODOBJ,SABLONA", "DODOBJ", 1, "Vložení položek do objednávky zboží",
     "melvarkeditor_novakova_DODOBJ_SABLONA.dat", "MELVARKEDITORDodObjObnovData", "MELVARKEDITORDodObjGetPolozky",
     "DODOBJEDNAVKA", 2},
    {"Template", "DODOBJVZOR,SABLONA", "DODOBJVZOR", 7, "Vložení položek do vzorové objednávky zboží",
     "melvarkeditor_novakova_DODOBJVZOR_SABLONA.dat", "MELVARKEDITORDodObjObnovData", "MELVARKEDITORDodObjGetPolozky",
     "DODOBJEDNAVKA", 9},
};

/// The contract company in a database of its own.
struct Company {
    explicit Company(Engine engine) : url(refhost::newDatabaseUrl(engine)) { refhost::addContractCompany(*open()); }

    std::unique_ptr<refhost::Database> open() const { return refhost::openAs(url, "novakova"); }
    /// As the host's command line names it.
    std::string address() const { return refhost::addressAs(url, "novakova"); }

    std::string url;
};

class CrashSession : public testing::TestWithParam<std::tuple<Engine, Editor>> {
protected:
    static Engine engine() { return std::get<0>(GetParam()); }
    static const Editor& editor() { return std::get<1>(GetParam()); }

    static void start(HostSession& session, int document = editor().document) {
        session.startEditor(QString::fromLatin1(editor().params), document);
    }
    static void open(HostSession& session, int document = editor().document) {
        start(session, document);
        session.waitForWindow(QString::fromUtf8(editor().title));
    }
    /// A quantity, three editable cells behind the one that is open.
    static void typeAQuantity(CrashableSession& session) {
        session.press({QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Return")});
        session.type(QStringLiteral("2,5"));
        session.press({QStringLiteral("Return")});
    }
    static void workAndTick(CrashableSession& session) {
        open(session);
        typeAQuantity(session);
        session.passAMinute(editor().file);
    }
    static void save(CrashableSession& session) {
        session.press({QStringLiteral("ctrl+Return")});
        EXPECT_EQ(session.finish(), 0);
    }
    /// The last start of a story, by which nothing was lost.
    static void openAndSave(CrashableSession& session) {
        open(session);
        save(session);
        EXPECT_EQ(stored(session), storedWithoutACrash());
        EXPECT_THAT(session.unsavedWork(), IsEmpty());
    }
    static Lines stored(const HostSession& session) {
        return session.ask({QStringLiteral("--show"), QString::fromLatin1(editor().screen),
                            QStringLiteral("--document"), QString::number(editor().document)});
    }
    /// What the same keys store when nothing happens on the way, in a company of its own.
    static const Lines& storedWithoutACrash() {
        static std::map<std::pair<Engine, std::string>, Lines> known;
        Lines& lines = known[{engine(), editor().name}];
        if (lines.empty()) {
            CrashableSession session(Company(engine()).address());
            open(session);
            typeAQuantity(session);
            save(session);
            lines = stored(session);
            EXPECT_THAT(lines, Contains(HasSubstr(R"(:"2,5")")));
        }
        return lines;
    }

    const Company company_{engine()};
};

TEST_P(CrashSession, WhatWasTypedBeforeTheLastTickIsSavedByTheNextStart) {
    storedWithoutACrash();
    CrashableSession session(company_.address());
    const Lines before = stored(session);
    workAndTick(session);
    session.crash();
    EXPECT_EQ(stored(session), before);
    openAndSave(session);
    EXPECT_THAT(session.traceSinceCrash(), Contains(HasSubstr(editor().question)));
    EXPECT_THAT(session.traceSinceCrash(), Not(Contains(HasSubstr(editor().fill))));
}

TEST_P(CrashSession, WorkThatWasSavedAtTheMomentOfTheCrashIsNotOfferedAgain) {
    storedWithoutACrash();
    CrashableSession session(company_.address());
    CrashableSession::dieAtAnswers();
    workAndTick(session);
    session.press({QStringLiteral("ctrl+Return")});
    session.waitForDeath();
    EXPECT_EQ(stored(session), storedWithoutACrash());
    EXPECT_THAT(session.unsavedWork(), Contains(editor().file));

    open(session);
    EXPECT_THAT(session.traceSinceCrash(), Contains(HasSubstr(editor().question)));
    EXPECT_THAT(session.traceSinceCrash(), Contains(HasSubstr(editor().fill)));
    EXPECT_THAT(session.unsavedWork(), IsEmpty());
    session.press({QStringLiteral("Escape"), QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);
    EXPECT_EQ(stored(session), storedWithoutACrash());
}

const auto nameOf = [](const auto& row) {
    return refhost::engineName(std::get<0>(row.param)) + std::get<1>(row.param).name;
};

INSTANTIATE_TEST_SUITE_P(EnginesAndEditors, CrashSession, testing::Combine(c_BothEngines, testing::ValuesIn(c_Editors)),
                         nameOf);

using CrashStory = CrashSession;

TEST_P(CrashStory, TwoCrashesInARowLoseNothing) {
    storedWithoutACrash();
    CrashableSession session(company_.address());
    workAndTick(session);
    session.crash();
    open(session);
    session.crash();
    EXPECT_THAT(session.unsavedWork(), Contains(std::string(editor().file) + ".kept"));
    openAndSave(session);
}

TEST_P(CrashStory, ACrashRightAfterALayoutChangeLosesNothing) {
    storedWithoutACrash();
    CrashableSession session(company_.address());
    workAndTick(session);
    // The last item brings the built-in layout back, once it is confirmed.
    session.pickFromMenu(c_MenuButton, 1, {QStringLiteral("Up"), QStringLiteral("Return")});
    session.waitForWindow(c_QuestionTitle);
    session.press({QStringLiteral("Return")});
    session.waitForUnsavedWork({std::string(editor().file) + ".kept"});
    session.crash();
    openAndSave(session);
}

TEST_P(CrashStory, WorkThatTheDatabaseDeclinesIsGoneAndTheOpenedDocumentIsFilled) {
    CrashableSession session(company_.address());
    const Lines before = stored(session);
    workAndTick(session);
    session.crash();
    company_.open()->runScript("update " + std::string(editor().table) +
                               " set OTEVRENO = 0 where ID = " + std::to_string(editor().document));
    open(session, editor().otherDocument);
    EXPECT_THAT(session.traceSinceCrash(), Contains(HasSubstr(editor().question)));
    EXPECT_THAT(session.traceSinceCrash(), Contains(HasSubstr(editor().fill)));
    EXPECT_THAT(session.unsavedWork(), IsEmpty());
    save(session);
    EXPECT_EQ(stored(session), before) << "nothing went into the document of the work";
}

TEST_P(CrashStory, ASecondEditorIsToldAndTheFirstOnesWorkIsKept) {
    storedWithoutACrash();
    CrashableSession first(company_.address());
    workAndTick(first);
    {
        HostSession second(company_.address());
        start(second);
        second.waitForWindow(c_NoteTitleOfHost);
        second.press({QStringLiteral("Return"), QStringLiteral("Escape"), QStringLiteral("alt+F4")});
        EXPECT_EQ(second.finish(), 1);
        EXPECT_THAT(second.trace(), Contains(HasSubstr(editor().fill)));
    }
    EXPECT_THAT(first.unsavedWork(), Contains(editor().file));
    first.crash();
    openAndSave(first);
}

// A template is kept and taken up by the order's own code.
INSTANTIATE_TEST_SUITE_P(EnginesAndEditors, CrashStory,
                         testing::Combine(c_BothEngines, testing::Values(c_Editors[0], c_Editors[1])), nameOf);

// ------------------------------------------------------------------ the delivery note of the tiny company

/// The template's lines with 7.5 as the first quantity: 7.5 × 10.00, and 5 × 20.00 less 10 %, with 21 % VAT.
const Lines c_SevenAndAHalf = {
    R"({"PORADI":"1","SKLPID":"1","MNOZSTVI":"7,5","JEDNCENABSESLEVOU":"10","CENASSESLEVOU":"90,75","DOBSID":null})",
    R"({"PORADI":"2","SKLPID":"2","MNOZSTVI":"5","JEDNCENABSESLEVOU":"18","CENASSESLEVOU":"108,9","DOBSID":null})",
};

void startNote(CrashableSession& session, int document = tinycompany::c_OpenNote) {
    session.startEditor(c_FromTemplate, document);
    session.waitForWindow(c_NoteTitle);
}

/// Types 7.5 as the first quantity and lets a minute pass.
void workAndTick(CrashableSession& session) {
    startNote(session);
    session.type(QStringLiteral("7,5"));
    session.press({QStringLiteral("Return")});
    session.waitForTrace("MELVARKEDITORDodakVypocetCen");
    session.passAMinute(c_NoteFile);
}

using NoteCrashSession = OnBothEngines;

TEST_P(NoteCrashSession, WhatWasTypedAfterTheLastTickIsLostAndNothingElse) {
    CrashableSession session(tinycompany::on(GetParam()));
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

TEST_P(NoteCrashSession, WorkOfAnotherNoteIsToldAndSavedIntoThatNote) {
    CrashableSession session(tinycompany::on(GetParam()));
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

TEST_P(NoteCrashSession, CancelledWorkIsNotOfferedAgain) {
    CrashableSession session(tinycompany::on(GetParam()));
    workAndTick(session);
    session.press({QStringLiteral("Escape"), QStringLiteral("alt+F4")});
    EXPECT_EQ(session.finish(), 1);
    EXPECT_THAT(session.unsavedWork(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Engines, NoteCrashSession, c_BothEngines, engineOf);

} // namespace
