#include "refhost/dbcheck/SettingsExercise.h"

#include <algorithm>
#include <chrono>

namespace refhost {

namespace {

/// The editors' kinds are below 100.
constexpr std::int64_t c_EditorKind = 9999;
/// Letters and signs that are lost first where a text is not kept as it is.
constexpr const char* c_Data = "<a b=\"Příliš žluťoučký\">'„kůň“ &amp;\n\tpěl</a>";
constexpr const char* c_OtherData = "<a/>";

TDbParam editorKind() {
    return {"a_TYPEDITACE", c_EditorKind};
}

/// A name that no earlier exercise has left.
std::string newName() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return "melvark-dbcheck " + std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

class SettingsExercise {
public:
    explicit SettingsExercise(const ExerciseContext& context) : context_(context), name_(newName()) {}

    void run() {
        const auto saved = saveAsNew();
        if (!saved.accepted()) {
            context_.Outcome.Found.push_back(
                {FindingKind::SaveRefused, procedureName("NASTAVENIUlozNove"), {}, {}, {}, saved.Refusal});
            return;
        }
        id_ = saved.value("ID");
        context_.Outcome.Left.push_back({Written::What::Setting, name_});
        useKept();
        rename();
        forget();
    }

    void runPlacement() const {
        context_.First.call("NASTAVENIUlozNastaveniOkna", {editorKind(), {"a_DATA", AnsiString(c_Data)}});
        expect("NASTAVENINactiNastaveniOkna", "DATA", c_Data,
               context_.First.call("NASTAVENINactiNastaveniOkna", {editorKind()}));
        context_.Outcome.Left.push_back({Written::What::Placement, std::to_string(c_EditorKind)});
    }

private:
    using Answer = ExercisedSession::Answer;

    Answer saveAsNew() const {
        return context_.First.call("NASTAVENIUlozNove", {{"a_NAZEV", AnsiString(name_)},
                                                         editorKind(),
                                                         {"a_SDILENE", false},
                                                         {"a_KOMENTAR", AnsiString("")},
                                                         {"a_DATA", AnsiString(c_Data)}});
    }

    TDbParam kept() const { return {"a_ID", AnsiString(id_)}; }

    void expect(const char* procedure, const char* column, const std::string& expected, const Answer& answer) const {
        context_.expect(FindingKind::AnswerWrong, procedure, column, expected, answer.value(column));
    }

    void useKept() const {
        expect("NASTAVENIGetList", "NAZEV", name_, context_.First.call("NASTAVENIGetList", {editorKind()}));
        expect("NASTAVENINacti", "DATA", c_Data, context_.First.call("NASTAVENINacti", {kept()}));
        expect("NASTAVENINactiDef", "ID", id_, context_.First.call("NASTAVENINactiDef", {editorKind()}));
        expect("NASTAVENINactiDef", "DATA", c_Data, context_.First.call("NASTAVENINactiDef", {editorKind()}));
        if (saveAsNew().accepted()) {
            context_.note(FindingKind::TakenNameAccepted, "NASTAVENIUlozNove");
        }
        context_.First.call("NASTAVENIUloz", {kept(), {"a_DATA", AnsiString(c_OtherData)}});
        expect("NASTAVENIUloz", "DATA", c_OtherData, context_.First.call("NASTAVENINacti", {kept()}));
    }

    void rename() const {
        const std::string other = name_ + " č. 2";
        context_.First.call(
            "NASTAVENIPremenuj",
            {kept(), {"a_NAZEV", AnsiString(other)}, {"a_KOMENTAR", AnsiString("Poznámka")}, {"a_SDILENE", true}});
        const Answer told = context_.First.call("NASTAVENIGetInfo", {kept()});
        expect("NASTAVENIGetInfo", "NAZEV", other, told);
        expect("NASTAVENIGetInfo", "KOMENTAR", "Poznámka", told);
        expect("NASTAVENIGetInfo", "SDILENE", "1", told);
    }

    void forget() const {
        context_.First.call("NASTAVENISmazDef", {editorKind()});
        expect("NASTAVENINactiDef", "ID", "-", context_.First.call("NASTAVENINactiDef", {editorKind()}));
        context_.First.call("NASTAVENISmaz", {kept()});
        const Answer list = context_.First.call("NASTAVENIGetList", {editorKind()});
        const bool isListed =
            !list.Result.Sets.empty() && std::ranges::any_of(list.Result.Sets.front().Rows, [&](const auto& row) {
                return std::ranges::any_of(row, [&](const TDbValue& value) { return exercisedText(value) == id_; });
            });
        if (isListed) {
            context_.note(FindingKind::SettingNotDeleted, "NASTAVENISmaz");
        }
    }

    const ExerciseContext& context_;
    std::string name_;
    std::string id_;
};

} // namespace

void exerciseSettings(const ExerciseContext& context) {
    SettingsExercise exercise(context);
    exercise.run();
    exercise.runPlacement();
}

} // namespace refhost
