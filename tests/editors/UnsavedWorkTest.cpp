#include "editors/UnsavedWork.h"

#include "host/Exceptions.h"
#include "tests/support/RecordingHost.h"

#include <gmock/gmock.h>

namespace {

using melvark::AskToRestore;
using testing::ElementsAre;

class UnsavedWork : public testing::Test {
protected:
    UnsavedWork() { question().inputs({"a_DODKID"}).outputs({"a_OBNOVDATA"}); }

    ProcedureScript& question() { return host_.connection.procedure("MELVARKEDITORDodakObnovData"); }
    static std::optional<bool> ask() { return AskToRestore("MELVARKEDITORDodakObnovData", "a_DODKID", 9); }

    RecordingHost host_;
    TScopedHost scope_{host_};
};

TEST_F(UnsavedWork, GoesOnWhenTheDatabaseSaysYes) {
    question().setsOutputs({{"a_OBNOVDATA", true}});
    EXPECT_EQ(ask(), true);
    EXPECT_THAT(host_.connection.calls(), ElementsAre("MELVARKEDITORDodakObnovData(a_DODKID=9)"));
}

TEST_F(UnsavedWork, GoesOnForANumberThatMeansYes) {
    question().setsOutputs({{"a_OBNOVDATA", std::int64_t{1}}});
    EXPECT_EQ(ask(), true);
}

TEST_F(UnsavedWork, IsDeclinedByNoByNullAndByAProcedureThatDoesNotAnswer) {
    question().setsOutputs({{"a_OBNOVDATA", false}});
    EXPECT_EQ(ask(), false);
    question().setsOutputs({{"a_OBNOVDATA", TDbValue()}});
    EXPECT_EQ(ask(), false);
    question().outputs({}).setsOutputs({});
    EXPECT_EQ(ask(), false);
}

TEST_F(UnsavedWork, HasNoAnswerWhenTheCallReportsFailureOrIsRefused) {
    question().failsCall(1).refusesCall(2, "Spojení je přerušeno.");
    EXPECT_EQ(ask(), std::nullopt);
    EXPECT_THROW(ask(), EDatabaseError);
}

} // namespace
