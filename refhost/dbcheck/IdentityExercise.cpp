#include "refhost/dbcheck/IdentityExercise.h"

#include "refhost/database/SaveIdentity.h"

namespace refhost {

namespace {

constexpr const char* c_Mark = "UlozeniOznac";
constexpr const char* c_Ask = "UlozeniOver";

class IdentityExercise {
public:
    explicit IdentityExercise(const ExerciseContext& context) : context_(context), prefix_(context.Kind.Prefix) {}

    void run() {
        if (!call(c_Mark, {}).accepted()) {
            return; // told already
        }
        const std::string come = newSaveIdentity();
        if (const Answer closed = closeUnder(come); !closed.accepted()) {
            context_.Outcome.Found.push_back(
                {FindingKind::SaveRefused, procedureName(prefix_ + "TempUloz"), {}, {}, {}, closed.Refusal});
        }
        expectCome(come, "1");
        expectWork("0");
        call(c_Mark, {});
        expectWork("1");

        const std::string givenUp = newSaveIdentity();
        expectCome(givenUp, "0");
        if (closeUnder(givenUp).accepted()) {
            context_.note(FindingKind::GivenUpAccepted, prefix_ + "TempUloz");
        }
        call(c_Mark, {});
        context_.Outcome.Left.push_back({Written::What::Identities, context_.document(), 2});
    }

private:
    using Answer = ExercisedSession::Answer;

    Answer call(const char* procedure, TDbValue identity) const {
        return context_.First.call(procedure, callAboutSave(procedure, std::move(identity)).Params);
    }

    Answer closeUnder(const std::string& identity) const {
        context_.First.call("ResetTemp");
        call(c_Mark, identity);
        return context_.First.call(prefix_ + "TempUloz",
                                   {{context_.Kind.DocumentParam, exercisedId(context_.Document)}});
    }

    void expectCome(const std::string& identity, const char* expected) const {
        context_.expect(FindingKind::AnswerWrong, c_Ask, "a_ULOZENO", expected,
                        call(c_Ask, identity).value("a_ULOZENO"));
    }

    /// Whether unsaved work may be taken up while the session is about the save that was asked about last.
    void expectWork(const char* expected) const {
        const Answer answer =
            context_.First.call(prefix_ + "ObnovData", {{context_.Kind.DocumentParam, exercisedId(context_.Document)}});
        context_.expect(FindingKind::AnswerWrong, prefix_ + "ObnovData", "a_OBNOVDATA", expected,
                        answer.value("a_OBNOVDATA"));
    }

    const ExerciseContext& context_;
    std::string prefix_;
};

} // namespace

void exerciseIdentity(const ExerciseContext& context) {
    IdentityExercise(context).run();
}

} // namespace refhost
