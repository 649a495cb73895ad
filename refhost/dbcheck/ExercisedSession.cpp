#include "refhost/dbcheck/ExercisedSession.h"

#include "refhost/dbcheck/StructureCheck.h"

#include <algorithm>
#include <iterator>

namespace refhost {

namespace {

/// The type of the first value that is not null.
std::string typeOf(const TResultTable& table, std::size_t column) {
    for (const auto& row : table.Rows) {
        if (!std::holds_alternative<std::monostate>(row[column])) {
            return std::holds_alternative<std::int64_t>(row[column]) ? "integer"
                   : std::holds_alternative<AnsiString>(row[column]) ? "text"
                                                                     : "double";
        }
    }
    return {};
}

DeclaredNames columnsOf(const TResultTable& table) {
    DeclaredNames columns;
    for (std::size_t column = 0; column < table.Columns.size(); ++column) {
        columns.push_back({table.Columns[column], typeOf(table, column)});
    }
    return columns;
}

DeclaredNames outputsOf(const TCallResult& result) {
    DeclaredNames outputs;
    std::ranges::transform(result.Outputs, std::back_inserter(outputs), [](const TDbParam& output) {
        return DeclaredName{output.Name, {}};
    });
    return outputs;
}

} // namespace

std::string exercisedText(const TDbValue& value) {
    if (const auto* text = std::get_if<AnsiString>(&value)) {
        return *text;
    }
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*number);
    }
    return "-";
}

std::string joinedTexts(const std::vector<std::string>& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? "" : "; ") + text;
    }
    return joined;
}

TDbValue exercisedId(std::int64_t id) {
    return id;
}

std::string procedureName(const std::string& name) {
    return "MELVARKEDITOR" + name;
}

std::string ExercisedSession::Answer::value(std::string_view name) const {
    for (const TDbParam& output : Result.Outputs) {
        if (SameDbName(output.Name, name)) {
            return exercisedText(output.Value);
        }
    }
    if (Result.Sets.empty() || Result.Sets.front().Rows.empty()) {
        return {};
    }
    const TResultTable& table = Result.Sets.front();
    const auto found =
        std::ranges::find_if(table.Columns, [&](const AnsiString& column) { return SameDbName(column, name); });
    return found == table.Columns.end()
               ? std::string()
               : exercisedText(table.Rows.front()[static_cast<std::size_t>(found - table.Columns.begin())]);
}

ExercisedSession::Answer ExercisedSession::call(const std::string& procedure, const std::vector<TDbParam>& parameters) {
    const std::string name = procedureName(procedure);
    const ProcedureDeclaration& declaration = contract_.Procedures.at(name);
    TProcedureCall call{.Name = name, .Params = {}, .Open = !declaration.Sets->empty()};
    for (const DeclaredName& input : declaration.Inputs) {
        const auto given = std::ranges::find_if(
            parameters, [&](const TDbParam& parameter) { return SameDbName(parameter.Name, input.Name); });
        call.Params.push_back({input.Name, given == parameters.end() ? TDbValue() : given->Value});
    }
    Answer answer;
    try {
        answer.Result = database_.Execute(call);
        database_.awaitAnswers();
        checkAnswer(name, declaration, answer.Result);
    } catch (const EDatabaseError& error) {
        if (isOutOfReach(error)) {
            throw;
        }
        answer.Refusal = error;
    }
    return answer;
}

void ExercisedSession::checkAnswer(const std::string& name, const ProcedureDeclaration& expected,
                                   const TCallResult& result) {
    Findings wrong;
    compareMembers(name, expected.Outputs, outputsOf(result), FindingKind::OutputMissing, FindingKind::OutputType,
                   wrong);
    if (result.Sets.size() < expected.Sets->size()) {
        wrong.push_back({FindingKind::SetMissing,
                         name,
                         {},
                         std::to_string(expected.Sets->size()),
                         std::to_string(result.Sets.size())});
    } else {
        for (std::size_t set = 0; set < expected.Sets->size(); ++set) {
            compareMembers(name, (*expected.Sets)[set], columnsOf(result.Sets[set]), FindingKind::ColumnMissing,
                           FindingKind::ColumnType, wrong);
        }
    }
    for (Finding& finding : wrong) {
        const bool isKnown = std::ranges::any_of(findings_, [&](const Finding& known) {
            return known.Kind == finding.Kind && known.Object == finding.Object && known.Member == finding.Member;
        });
        if (!isKnown) {
            findings_.push_back(std::move(finding));
        }
    }
}

std::vector<std::string> ExercisedSession::column(const std::string& sql) {
    std::vector<std::string> texts;
    for (const auto& row : database_.Query(sql).Rows) {
        texts.push_back(exercisedText(row.front()));
    }
    return texts;
}

} // namespace refhost
