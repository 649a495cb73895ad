#include "tests/database/ContractCompany.h"
#include "tests/refhost/StandbyPair.h"
#include "tests/session/DeliveryNoteTrace.h"
#include "tests/session/HostSession.h"
#include "tests/session/WindowTitles.h"

#include <gmock/gmock.h>

/// The first of two servers is lost while a clerk types, and the second one takes over: real keys, real servers.
namespace {

using testing::Contains;
using testing::HasSubstr;

constexpr const char* c_Recalculation = "MELVARKEDITORDodakVypocetCen";
constexpr const char* c_NobodyThere = "není dostupný. Zkontrolujte jeho adresu a zda běží.";

void fill(refhost::Database& database) {
    refhost::addContractCompany(database);
    database.runScript("create role novakova login in role melvark_clerk");
}

class FailoverSession : public testing::Test {
protected:
    /// The template's lines, the second one with 2.5, which is being typed over: 7 stands in the open cell.
    void typeOneQuantityAndBeginAnother() {
        session_.startEditor(QStringLiteral("DODAK,SABLONA"), refhost::c_OpenNote);
        session_.waitForWindow(c_NoteTitle);
        session_.press(
            {QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Return"), QStringLiteral("Down")});
        session_.type(QStringLiteral("2,5"));
        session_.press({QStringLiteral("Return")});
        session_.waitForTrace(c_Recalculation);
        session_.press({QStringLiteral("shift+Return")});
        session_.type(QStringLiteral("7"));
    }
    void readError() {
        session_.waitForWindow(c_ErrorTitle);
        session_.press({QStringLiteral("Return")});
        session_.waitForWindow(c_NoteTitle);
    }
    /// How many lines with this quantity the note has where it can be written to.
    std::int64_t linesWith(const std::string& quantity) const {
        const auto table =
            servers_.open()->Query("select count(*) from melvark.DODAKPOL where DODKID = 2 and MNOZSTVI = " + quantity);
        return std::get<std::int64_t>(table.Rows.front().front());
    }

    refhost::StandbyPair servers_{fill};
    HostSession session_{servers_.address("novakova")};
};

TEST_F(FailoverSession, AClerkWhoseServerIsLostIsToldAndSavesOnTheOtherOneWhatHeTyped) {
    typeOneQuantityAndBeginAnother();
    servers_.killFirst();

    session_.press({QStringLiteral("Return")});
    readError();
    session_.press({QStringLiteral("ctrl+Return")});
    readError();
    servers_.promoteSecond();
    session_.press({QStringLiteral("ctrl+Return")});
    EXPECT_EQ(session_.finish(), 0);

    EXPECT_EQ(linesWith("7"), 1);
    EXPECT_EQ(linesWith("2.5"), 0);
    EXPECT_THAT(session_.trace(),
                Contains(testing::AllOf(HasSubstr("{\"error\":"), HasSubstr(c_NobodyThere))).Times(2));
}

} // namespace
