#include "refhost/Languages.h"
#include "refhost/ProgressWindow.h"
#include "refhost/database/ThreadedConnection.h"
#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/SlowCalls.h"
#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/HostSession.h"
#include "tests/session/WindowTitles.h"
#include "tests/support/TemporaryFolder.h"

#include <QLayout>
#include <QPushButton>

#include <gmock/gmock.h>

/// Work that takes long, as clerks have it: real keys and clicks, and procedures that take their time.
namespace {

using refhost::Engine;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

const QString c_Progress = QStringLiteral("Prosím čekejte");
const QString c_FromTemplate = QStringLiteral("DODAK,SABLONA");
constexpr std::string_view c_Fill = "MELVARKEDITORDodakGetPolozkyByDodak";
constexpr std::string_view c_Recalculation = "MELVARKEDITORDodakVypocetCen";
constexpr std::string_view c_Row = "MELVARKEDITORDodakInsertToTemp";
constexpr std::string_view c_Closing = "MELVARKEDITORDodakTempUloz";
constexpr const char* c_Stopped = "\"error\":\"Práce byla zastavena.\"";
/// Some seconds, on either engine.
constexpr long c_Long = 8'000'000;

class LongWorkSession : public testing::TestWithParam<Engine> {
protected:
    LongWorkSession() { refhost::addContractCompany(*refhost::openAs(url_, "novakova")); }

    /// From now on the procedure takes as long as `take` says.
    void slowDown(std::string_view procedure) {
        slow_.emplace(url_, std::initializer_list<std::string_view>{procedure}, folder_.path());
    }
    QStringList procedures() const {
        return slow_->isServer()
                   ? QStringList()
                   : QStringList{QStringLiteral("--procedures"), QString::fromStdString(folder_.path().string())};
    }
    void open() { session_.startEditor(c_FromTemplate, refhost::c_OpenNote, procedures()); }
    /// The template's lines with a quantity in the second one, three editable cells behind the one that is open.
    void openAndType(const QString& quantity) {
        open();
        session_.waitForWindow(c_NoteTitle);
        session_.press(
            {QStringLiteral("Down"), QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Return")});
        session_.type(quantity);
        session_.press({QStringLiteral("Return")});
    }
    void leaveUnsaved() {
        session_.press({QStringLiteral("Escape"), QStringLiteral("alt+F4")});
        EXPECT_EQ(session_.finish(), 1);
    }
    void save() { session_.press({QStringLiteral("ctrl+Return")}); }
    std::string count(const std::string& condition) const {
        return refhost::rows(*refhost::openAs(url_, "svoboda"),
                             "select count(*) from DODAKPOL where DODKID = 2 and " + condition);
    }
    std::string linesWith(const std::string& quantity) const { return count("MNOZSTVI = '" + quantity + "'"); }
    long calls(std::string_view procedure) const {
        const Lines trace = session_.trace();
        return std::ranges::count_if(trace, [procedure](const std::string& line) {
            return line.starts_with("{\"call\":\"" + std::string(procedure) + "\"");
        });
    }
    static auto stoppedCall(std::string_view procedure) {
        return AllOf(HasSubstr("\"" + std::string(procedure) + "\""), HasSubstr(c_Stopped));
    }
    static auto boxOrError() {
        return testing::AnyOf(HasSubstr("{\"error\""), HasSubstr("{\"box\""), HasSubstr("{\"message\""));
    }

    const TemporaryFolder folder_{"long-work"};
    const std::string url_ = refhost::newDatabaseUrl(GetParam());
    std::optional<refhost::SlowCalls> slow_;
    HostSession session_{GetParam() == Engine::PostgreSQL ? url_ + " user=novakova" : url_};
};

INSTANTIATE_TEST_SUITE_P(Engines, LongWorkSession, testing::ValuesIn(refhost::c_BothEngines), refhost::engineOf);

TEST_P(LongWorkSession, AFillThatTakesLongIsShownAndGoesOn) {
    slowDown(c_Fill);
    slow_->take(c_Long);
    open();
    session_.waitForWindow(c_Progress);
    session_.waitForWindow(c_NoteTitle);
    leaveUnsaved();
    EXPECT_THAT(session_.trace(), Not(Contains(boxOrError())));
}

TEST_P(LongWorkSession, AFillIsStoppedByEscapeAndNoEditorOpensUntilTheNextTime) {
    slowDown(c_Fill);
    slow_->takeForever();
    open();
    session_.waitForWindow(c_Progress);
    session_.press({QStringLiteral("Escape")});
    EXPECT_EQ(session_.finish(), 2);
    EXPECT_THAT(session_.standardError(), HasSubstr("Práce byla zastavena."));
    EXPECT_THAT(session_.trace(), Contains(stoppedCall(c_Fill)));
    EXPECT_THAT(session_.trace(), Not(Contains(boxOrError())));

    slow_->take(1);
    openAndType(QStringLiteral("2,5"));
    save();
    EXPECT_EQ(session_.finish(), 0);
    EXPECT_EQ(linesWith("2.5"), "1");
}

TEST_P(LongWorkSession, AFillFromTheMainWindowIsStoppedByAClickAndTheWindowGoesOnWithoutAWord) {
    slowDown(c_Fill);
    slow_->takeForever();
    session_.start(procedures());
    session_.waitForWindow(c_MainTitle);
    session_.openMenu(QStringLiteral("F8"));
    session_.press({QStringLiteral("Up"), QStringLiteral("Return")});
    session_.waitForWindow(c_Progress);

    refhost::Languages czech("cs");
    refhost::ProgressWindow likeTheHosts(czech, nullptr);
    likeTheHosts.showWork({});
    likeTheHosts.adjustSize();
    session_.click(likeTheHosts.findChild<QPushButton*>(QStringLiteral("stopButton"))->geometry().center());
    session_.waitForTrace(c_Stopped);
    session_.waitForWindow(c_MainTitle);
    EXPECT_THAT(session_.trace(), Not(Contains(boxOrError())));

    slow_->take(1);
    session_.openMenu(QStringLiteral("F8"));
    session_.press({QStringLiteral("Up"), QStringLiteral("Return")});
    session_.waitForWindow(c_NoteTitle);
    session_.press({QStringLiteral("Escape"), QStringLiteral("alt+F4")});
    session_.waitForTrace("MELVARKEDITORNASTAVENIUlozNastaveniOkna");
    session_.waitForWindow(c_MainTitle);
    session_.press({QStringLiteral("ctrl+q")});
    EXPECT_EQ(session_.finish(), 0);
}

TEST_P(LongWorkSession, KeysThatAreTypedMeanwhileDoNothing) {
    slowDown(c_Recalculation);
    slow_->take(c_Long);
    openAndType(QStringLiteral("2,5"));
    session_.waitForWindow(c_Progress);
    session_.type(QStringLiteral("77"));
    session_.press({QStringLiteral("Down"), QStringLiteral("Down")});
    session_.waitForTrace(std::string(c_Recalculation));
    session_.waitForWindow(c_NoteTitle);
    slow_->take(1);
    save();
    EXPECT_EQ(session_.finish(), 0);
    EXPECT_EQ(linesWith("2.5"), "1");
    EXPECT_EQ(calls(c_Recalculation), 1);
    EXPECT_THAT(session_.trace(), Not(Contains(HasSubstr("77"))));
}

TEST_P(LongWorkSession, AStoppedRecalculationLeavesTheValueInItsCellToBeCheckedAgain) {
    slowDown(c_Recalculation);
    slow_->takeForever();
    openAndType(QStringLiteral("2,5"));
    session_.waitForWindow(c_Progress);
    session_.press({QStringLiteral("Escape")});
    session_.waitForTrace(c_Stopped);
    session_.waitForWindow(c_NoteTitle);
    slow_->take(1);
    session_.press({QStringLiteral("Return")});
    session_.waitForTrace(std::string(c_Recalculation), 2);
    save();
    EXPECT_EQ(session_.finish(), 0);
    EXPECT_EQ(linesWith("2.5"), "1");
    EXPECT_THAT(session_.trace(), Not(Contains(boxOrError())));
}

TEST_P(LongWorkSession, ASaveIsStoppedBeforeItsClosingCallAndTheNextOneSavesOnce) {
    slowDown(c_Row);
    const std::string before = count("1 = 1");
    slow_->takeForever();
    openAndType(QStringLiteral("2,5"));
    session_.waitForTrace(std::string(c_Recalculation));
    save();
    session_.waitForWindow(c_Progress);
    session_.press({QStringLiteral("Escape")});
    session_.waitForTrace(c_Stopped);
    session_.waitForWindow(c_NoteTitle);
    EXPECT_EQ(count("1 = 1"), before);
    EXPECT_THAT(session_.trace(), Not(Contains(boxOrError())));
    EXPECT_EQ(calls("MELVARKEDITORResetTemp"), 1);

    slow_->take(1);
    save();
    EXPECT_EQ(session_.finish(), 0);
    EXPECT_EQ(linesWith("2.5"), "1");
    EXPECT_EQ(calls("MELVARKEDITORResetTemp"), 2);
}

TEST_P(LongWorkSession, NothingStopsTheClosingCall) {
    slowDown(c_Closing);
    slow_->take(c_Long);
    openAndType(QStringLiteral("2,5"));
    session_.waitForTrace(std::string(c_Recalculation));
    save();
    session_.waitForWindow(c_Progress);
    session_.press({QStringLiteral("Escape"), QStringLiteral("Return"), QStringLiteral("space")});
    EXPECT_EQ(session_.finish(), 0);
    EXPECT_EQ(linesWith("2.5"), "1");
    EXPECT_EQ(calls(c_Closing), 1);
}

TEST_P(LongWorkSession, ARefusalAfterALongWaitIsShownAsEver) {
    slowDown(c_Closing);
    slow_->take(c_Long);
    openAndType(QStringLiteral("2,5"));
    session_.waitForTrace(std::string(c_Recalculation));
    session_.changeDatabase("update DODAK set OTEVRENO = 0 where ID = 2");
    save();
    session_.waitForWindow(c_Progress);
    session_.waitForWindow(c_ErrorTitle);
    session_.press({QStringLiteral("Return")});
    session_.waitForWindow(c_NoteTitle);
    leaveUnsaved();
    EXPECT_EQ(linesWith("2.5"), "0");
    EXPECT_THAT(session_.trace(),
                Contains(shownError("Dodací list „DL-2“ je uzavřený. Otevřete jej, nebo vyberte jiný.")));
}

/// Only one of the engines has a link.
class LongWorkOnServerSession : public LongWorkSession {};

INSTANTIATE_TEST_SUITE_P(Server, LongWorkOnServerSession, testing::Values(Engine::PostgreSQL), refhost::engineOf);

TEST_P(LongWorkOnServerSession, ALinkThatIsLostMeanwhileIsToldAndTheValueIsCheckedAgain) {
    slowDown(c_Recalculation);
    slow_->takeForever();
    openAndType(QStringLiteral("2,5"));
    session_.waitForWindow(c_Progress);
    session_.changeDatabase("select pg_terminate_backend(pid) from pg_stat_activity "
                            "where usename = 'novakova' and datname = current_database() and pid <> pg_backend_pid()");
    session_.waitForWindow(c_ErrorTitle);
    slow_->take(1);
    session_.press({QStringLiteral("Return")});
    session_.waitForWindow(c_NoteTitle);
    session_.press({QStringLiteral("Return")});
    session_.waitForTrace(std::string(c_Recalculation), 2);
    save();
    EXPECT_EQ(session_.finish(), 0);
    EXPECT_EQ(linesWith("2.5"), "1");
}

} // namespace
