#include "refhost/database/SaveIdentity.h"
#include "tests/database/ServerCompany.h"

#include <future>
#include <gtest/gtest.h>

namespace refhost {
namespace {

const std::string c_Identity(32, 'a');

/// How many calls of clerks wait for a lock that somebody else has.
constexpr const char* c_Waiting = "select count(*) from pg_stat_activity where wait_event_type = 'Lock' "
                                  "and usename = 'novakova' and datname = current_database()";

std::string askAbout(Database& database) {
    const TCallResult answer = database.Execute(callAboutSave(c_AskAboutSaveProcedure, c_Identity));
    return std::to_string(std::get<std::int64_t>(answer.Outputs.front().Value));
}

/// The code of the refusal; empty for a success.
std::string save(Database& database) {
    try {
        database.Execute(serverCall("MELVARKEDITORResetTemp"));
        database.Execute(serverCall("MELVARKEDITORDodakInsertToTemp", {{"a_SKLADPOL", "Mléko"}, {"a_MNOZSTVI", "1"}}));
        database.awaitAnswers();
        database.Execute(callAboutSave(c_MarkSaveProcedure, c_Identity));
        database.Execute(serverCall("MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{1}}}));
        return {};
    } catch (const EDatabaseError& error) {
        return error.Code();
    }
}

/// A closing call waits for the note, which somebody changes by `change`, and a question about it comes meanwhile: how
/// both end.
std::string endsOfBoth(const ServerCompany& company, const std::string& change) {
    const auto blocking = company.openAs("administrator", "melvark_owner");
    const auto saving = company.open();
    const auto asking = company.open();
    std::future<std::string> saved;
    std::future<std::string> answer;
    blocking->inOneTransaction([&] {
        blocking->runScript(change);
        saved = std::async(std::launch::async, [&] { return save(*saving); });
        EXPECT_TRUE(company.waitFor(c_Waiting, "1")) << "the closing call waits for the note";
        answer = std::async(std::launch::async, [&] { return askAbout(*asking); });
        EXPECT_TRUE(company.waitFor(c_Waiting, "2")) << "the question waits for the closing call";
    });
    return saved.get() + " " + answer.get();
}

TEST(PostgreSQLSaveIdentity, AQuestionWaitsForTheClosingCallUnderWayAndHearsThatItHasCome) {
    const ServerCompany company;
    EXPECT_EQ(endsOfBoth(company, "update DODAK set CISLO = 'DL9' where ID = 1"), " 1");
}

TEST(PostgreSQLSaveIdentity, AQuestionWaitsForTheClosingCallUnderWayAndHearsThatItWasRefused) {
    const ServerCompany company;
    EXPECT_EQ(endsOfBoth(company, "update DODAK set OTEVRENO = 0 where ID = 1"), "ML011 0");
}

} // namespace
} // namespace refhost
