#include "refhost/dbcheck/SavingExercise.h"

#include <algorithm>
#include <array>

namespace refhost {

namespace {

constexpr const char* c_UnknownItem = "melvark-dbcheck: není";

/// The cells of a row by its parameters.
using Row = std::vector<TDbParam>;

/// The item of the fill's first row that has one in a main unit, as a row to send; empty when there is none.
Row itemOf(const TResultTable& fill) {
    constexpr std::array<std::pair<const char*, const char*>, 3> c_Cells{
        {{"SKLADPOL", "a_SKLADPOL"}, {"SKPLIDHL", "a_SKPLID"}, {"JEDNOTKYHL", "a_JEDNOTKY"}}};
    for (const auto& values : fill.Rows) {
        Row row;
        bool isWhole = true;
        for (std::size_t column = 0; column < fill.Columns.size(); ++column) {
            for (const auto& [name, parameter] : c_Cells) {
                if (SameDbName(fill.Columns[column], name)) {
                    isWhole = isWhole && !std::holds_alternative<std::monostate>(values[column]);
                    row.push_back({parameter, AnsiString(exercisedText(values[column]))});
                }
            }
        }
        if (isWhole && !row.empty()) {
            return row;
        }
    }
    return {};
}

class SavingExercise {
public:
    explicit SavingExercise(const ExerciseContext& context)
        : context_(context), prefix_(context.Kind.Prefix), item_(findItem()), lines_(lines()) {}

    void run() {
        saveNotBegun();
        saveNothing();
        saveRows();
        closeTwice();
        beginTwice();
        saveUnknownItem();
        saveIntoNothing();
        saveInTwoSessions();
    }

private:
    using Answer = ExercisedSession::Answer;

    /// What the document itself or its template would be filled with.
    Row findItem() const {
        const ExerciseKind& kind = context_.Kind;
        const TDbValue document = exercisedId(context_.Document);
        for (const TDbValue& source : {document, TDbValue()}) {
            const Answer filled = context_.First.call(
                prefix_ + kind.Fill, {{kind.FillDocumentParam, document}, {kind.FillSourceParam, source}});
            if (filled.accepted() && !filled.Result.Sets.empty()) {
                if (Row item = itemOf(filled.Result.Sets.front()); !item.empty()) {
                    return item;
                }
            }
        }
        throw NothingToSave();
    }

    /// The quantities of the document's lines in their order.
    std::vector<std::string> lines() const {
        return context_.First.column("select MNOZSTVI from " + std::string(context_.Kind.LinesView) +
                                     " where _DOCID = " + std::to_string(context_.Document) + " order by PORADI, _ID");
    }

    Answer begin(ExercisedSession& session) const { return session.call("ResetTemp"); }

    Answer send(ExercisedSession& session, const Row& row) const { return session.call(prefix_ + "InsertToTemp", row); }

    /// A row of the item with a quantity.
    Row quantity(const char* text) const {
        Row row = item_;
        row.push_back({"a_MNOZSTVI", AnsiString(text)});
        return row;
    }

    Answer close(ExercisedSession& session, std::int64_t document) const {
        return session.call(prefix_ + "TempUloz", {{context_.Kind.DocumentParam, exercisedId(document)}});
    }

    Answer close(ExercisedSession& session) const { return close(session, context_.Document); }

    /// Notes the finding unless the document has just these lines beside those that it had; from here on they are its
    /// own.
    void expectAdded(FindingKind kind, const std::vector<std::string>& added) {
        std::vector<std::string> now = lines();
        const auto kept = std::min(lines_.size(), now.size());
        const auto differ = std::ranges::mismatch(lines_, now).in2;
        const auto start = std::min(differ, now.begin() + static_cast<std::ptrdiff_t>(kept));
        context_.expect(kind, prefix_ + "TempUloz", {}, joinedTexts(added),
                        joinedTexts(std::vector<std::string>(start, now.end())));
        if (now.size() > lines_.size()) {
            addWritten(static_cast<int>(now.size() - lines_.size()));
        }
        lines_ = std::move(now);
    }

    void addWritten(int count) const {
        const std::string document = context_.document();
        for (Written& written : context_.Outcome.Left) {
            if (written.Object == document) {
                written.Count += count;
                return;
            }
        }
        context_.Outcome.Left.push_back({Written::What::Lines, document, count});
    }

    /// A row that nobody began is taken by nobody.
    void saveNotBegun() {
        const bool isRefused = !send(context_.Second, quantity("1")).accepted() || !close(context_.Second).accepted();
        if (!isRefused) {
            context_.note(FindingKind::SaveNotBegun, prefix_ + "InsertToTemp");
        }
        expectAdded(FindingKind::SaveNotBegunChanges, {});
    }

    void saveNothing() {
        begin(context_.First);
        expectAccepted(close(context_.First), "TempUloz");
        expectAdded(FindingKind::EmptySaveChanges, {});
    }

    void expectAccepted(const Answer& answer, const char* procedure) const {
        if (!answer.accepted()) {
            context_.Outcome.Found.push_back(
                {FindingKind::SaveRefused, procedureName(prefix_ + procedure), {}, {}, {}, answer.Refusal});
        }
    }

    /// In their order, a decimal among them; without the empty row and the one without a quantity.
    void saveRows() {
        begin(context_.First);
        for (const Row& row : {quantity("1"), Row(), quantity("2.5"), item_, quantity("3")}) {
            expectAccepted(send(context_.First, row), "InsertToTemp");
        }
        expectAccepted(close(context_.First), "TempUloz");
        expectAdded(FindingKind::SavedLinesWrong,
                    {"1", std::string("2") + context_.Settings.DecimalSeparator + "5", "3"});
    }

    void closeTwice() {
        close(context_.First); // refused or without an effect, as the database likes
        expectAdded(FindingKind::ClosingTwiceDoubles, {});
    }

    void beginTwice() {
        begin(context_.First);
        send(context_.First, quantity("4"));
        begin(context_.First);
        close(context_.First);
        expectAdded(FindingKind::BeginKeepsRows, {});
    }

    /// Nothing of a save with a refused row is taken over, by whichever call it is refused.
    void saveUnknownItem() {
        begin(context_.First);
        send(context_.First, quantity("4"));
        Row unknown = quantity("4");
        unknown.front().Value = AnsiString(c_UnknownItem);
        const bool isRowRefused = !send(context_.First, unknown).accepted();
        const bool isClosingRefused = !close(context_.First).accepted();
        if (!isRowRefused && !isClosingRefused) {
            context_.note(FindingKind::UnknownItemAccepted, prefix_ + "InsertToTemp");
        } else if (!isClosingRefused) {
            context_.note(FindingKind::ClosedAfterRefusal, prefix_ + "TempUloz");
        }
        expectAdded(FindingKind::SavedInPart, {});
    }

    void saveIntoNothing() {
        begin(context_.First);
        send(context_.First, quantity("4"));
        if (close(context_.First, c_NoDocument).accepted()) {
            context_.note(FindingKind::MissingDocumentAccepted, prefix_ + "TempUloz");
        }
    }

    /// The second session closes a save of its own without a row while the first one's row waits.
    void saveInTwoSessions() {
        begin(context_.First);
        send(context_.First, quantity("4"));
        begin(context_.Second);
        close(context_.Second);
        expectAdded(FindingKind::SessionsMixed, {});
        close(context_.First);
        expectAdded(FindingKind::SessionLost, {"4"});
    }

    const ExerciseContext& context_;
    std::string prefix_;
    Row item_;
    std::vector<std::string> lines_; ///< As they were when they were last looked at.
};

} // namespace

void exerciseSaving(const ExerciseContext& context) {
    SavingExercise(context).run();
}

} // namespace refhost
