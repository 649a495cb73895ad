#include "tests/database/ContractCompany.h"
#include "tests/database/CutLink.h"
#include "tests/database/Engines.h"
#include "tests/database/PrivateServer.h"
#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/HostSession.h"
#include "tests/session/WindowTitles.h"

#include <algorithm>
#include <gmock/gmock.h>

/// A link that is lost in the middle of a clerk's work: real keys, a real server, and a link that is cut at one call.
namespace {

using refhost::CutLink;
using refhost::Engine;
using testing::Contains;
using testing::HasSubstr;

constexpr const char* c_Fill = "melvarkeditordodakgetpolozkybydodak(";
constexpr const char* c_Recalculate = "melvarkeditordodakvypocetcen(";
constexpr const char* c_Row = "melvarkeditordodakinserttotemp(";
constexpr const char* c_Closing = "melvarkeditordodaktempuloz(";
constexpr const char* c_Close = "\"call\":\"MELVARKEDITORDodakTempUloz\"";
constexpr const char* c_Lost = "Spojení s databází „";
constexpr const char* c_Unknown =
    "Databáze neodpověděla, zda je doklad uložený. Uložte jej znovu, nic se nezapíše dvakrát.";
constexpr const char* c_OtherLines = "Doklad se už uložil s jinými řádky, než má editor. Zavřete editor a doplňte do "
                                     "dokladu jen to, co v něm chybí.";

class LostLinkSession : public testing::Test {
protected:
    LostLinkSession() { refhost::addContractCompany(*refhost::openAs(url_, "novakova")); }

    /// The company behind the link that will be cut.
    std::string addressOfLink() const {
        std::string address = url_ + " user=novakova";
        const std::string server = refhost::PrivateServer::instance().folder();
        return address.replace(address.find(server), server.size(), link_.folder());
    }
    void start() { session_.startEditor(QStringLiteral("DODAK,SABLONA"), refhost::c_OpenNote); }
    /// The template's lines with a quantity in the second one's cell, three editable cells behind the one that is open.
    void type(const QString& quantity) {
        start();
        session_.waitForWindow(c_NoteTitle);
        session_.press(
            {QStringLiteral("Down"), QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Return")});
        session_.type(quantity);
        session_.press({QStringLiteral("Return")});
    }
    void work(const QString& quantity) {
        type(quantity);
        session_.waitForTrace("MELVARKEDITORDodakVypocetCen");
    }
    void saveAndReadError() {
        session_.press({QStringLiteral("ctrl+Return")});
        readError();
    }
    void readError() {
        session_.waitForWindow(c_ErrorTitle);
        session_.press({QStringLiteral("Return")});
        session_.waitForWindow(c_NoteTitle);
    }
    void save() {
        session_.press({QStringLiteral("ctrl+Return")});
        EXPECT_EQ(session_.finish(), 0);
    }
    /// How many lines with this quantity the note has.
    std::string linesWith(const std::string& quantity) const {
        const auto table = refhost::openAs(url_, "svoboda")
                               ->Query("select count(*) from DODAKPOL where DODKID = 2 and MNOZSTVI = " + quantity);
        return std::to_string(std::get<std::int64_t>(table.Rows.front().front()));
    }
    long closings() const {
        const Lines trace = session_.trace();
        return std::ranges::count_if(trace, [](const auto& line) { return line.find(c_Close) != line.npos; });
    }

    const std::string url_ = refhost::newDatabaseUrl(Engine::PostgreSQL);
    CutLink link_{refhost::PrivateServer::instance().folder()};
    HostSession session_{addressOfLink()};
};

TEST_F(LostLinkSession, ALinkThatIsLostWhileLinesAreLoadedIsToldAndTheEditorOpensTheNextTime) {
    link_.cut(CutLink::At::Answer, c_Fill);
    start();
    EXPECT_EQ(session_.finish(), 2);
    EXPECT_THAT(session_.standardError(), HasSubstr(c_Lost));
    work(QStringLiteral("2,5"));
    save();
    EXPECT_EQ(linesWith("2.5"), "1");
}

TEST_F(LostLinkSession, ALinkThatIsLostWhileAValueIsCheckedIsToldAndTheValueStaysToBeCheckedAgain) {
    link_.cut(CutLink::At::Answer, c_Recalculate);
    type(QStringLiteral("2,5"));
    readError();
    session_.press({QStringLiteral("Return")});
    session_.waitForTrace("MELVARKEDITORDodakVypocetCen", 2);
    save();
    EXPECT_EQ(linesWith("2.5"), "1");
    EXPECT_THAT(session_.trace(), Contains(HasSubstr(c_Lost)).Times(2)) << "the call and what the clerk was shown";
}

TEST_F(LostLinkSession, ALinkThatIsLostAmongTheRowsIsToldAndNothingIsSavedUntilTheNextSave) {
    work(QStringLiteral("2,5"));
    link_.cut(CutLink::At::Request, c_Row);
    saveAndReadError();
    EXPECT_EQ(linesWith("2.5"), "0");
    save();
    EXPECT_EQ(linesWith("2.5"), "1");
    EXPECT_THAT(session_.trace(), Contains(testing::AllOf(HasSubstr("{\"error\":"), HasSubstr(c_Lost))));
}

TEST_F(LostLinkSession, ASaveWhoseAnswerIsLostIsToldAndTheNextOneFindsItDone) {
    work(QStringLiteral("2,5"));
    link_.cut(CutLink::At::Answer, c_Closing);
    saveAndReadError();
    EXPECT_TRUE(link_.isCut());
    EXPECT_EQ(linesWith("2.5"), "1") << "the server has done it";
    save();
    EXPECT_EQ(linesWith("2.5"), "1");
    EXPECT_EQ(closings(), 2);
    EXPECT_THAT(session_.trace(), Contains(shownError(c_Unknown)));
}

TEST_F(LostLinkSession, LinesThatWereChangedAfterALostAnswerAreRefusedAndTheEarlierOnesStand) {
    work(QStringLiteral("2,5"));
    link_.cut(CutLink::At::Answer, c_Closing);
    saveAndReadError();
    session_.press({QStringLiteral("shift+Return")});
    session_.type(QStringLiteral("7"));
    session_.press({QStringLiteral("Return")});
    session_.waitForTrace("MELVARKEDITORDodakVypocetCen", 2);
    saveAndReadError();
    saveAndReadError();
    session_.press({QStringLiteral("Escape"), QStringLiteral("alt+F4")});
    EXPECT_EQ(session_.finish(), 1);
    EXPECT_EQ(linesWith("2.5"), "1");
    EXPECT_EQ(linesWith("7"), "0");
    EXPECT_THAT(session_.trace(), Contains(shownError(c_OtherLines)).Times(2));
}

TEST_F(LostLinkSession, ASaveWhoseRequestIsLostIsToldAndTheNextOneSavesOnce) {
    work(QStringLiteral("2,5"));
    link_.cut(CutLink::At::Request, c_Closing);
    saveAndReadError();
    EXPECT_EQ(linesWith("2.5"), "0");
    save();
    EXPECT_EQ(linesWith("2.5"), "1");
    EXPECT_THAT(session_.trace(), Contains(shownError(c_Unknown)));
}

} // namespace
