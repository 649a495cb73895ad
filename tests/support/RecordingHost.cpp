#include "tests/support/RecordingHost.h"

#include "host/AsciiCase.h"
#include "host/Exceptions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <utility>

using namespace std::chrono_literals;

ProcedureScript& ProcedureScript::inputs(std::vector<AnsiString> names) {
    info_.Inputs = std::move(names);
    return *this;
}

ProcedureScript& ProcedureScript::outputs(std::vector<AnsiString> names) {
    info_.Outputs = std::move(names);
    return *this;
}

ProcedureScript& ProcedureScript::returns(std::vector<TResultTable> sets) {
    result_.Sets = std::move(sets);
    return *this;
}

ProcedureScript& ProcedureScript::setsOutputs(std::vector<TDbParam> values) {
    result_.Outputs = std::move(values);
    return *this;
}

ProcedureScript& ProcedureScript::answers(Answer answer) {
    answer_ = std::move(answer);
    return *this;
}

ProcedureScript& ProcedureScript::answersCall(int n, Answer answer) {
    answersByCall_[n] = std::move(answer);
    return *this;
}

ProcedureScript& ProcedureScript::refusesCall(int n, AnsiString message, AnsiString code) {
    return answersCall(n, [message = std::move(message), code = std::move(code)](const TProcedureCall&) -> TCallResult {
        throw EDatabaseError(message, code);
    });
}

ProcedureScript& ProcedureScript::breaksAtCall(int n, AnsiString message) {
    return answersCall(n, [message = std::move(message)](const TProcedureCall&) -> TCallResult {
        throw EDatabaseError(message, "TEST9", {}, TDatabaseCause::Failure);
    });
}

ProcedureScript& ProcedureScript::failsCall(int n) {
    return answersCall(n, [](const TProcedureCall&) {
        TCallResult result;
        result.Success = false;
        return result;
    });
}

RecordingConnection::~RecordingConnection() = default;

AnsiString RecordingConnection::folded(std::string_view name) {
    return melvark::LowerAscii(name);
}

ProcedureScript& RecordingConnection::procedure(const AnsiString& name) {
    auto& script = procedures_[folded(name)];
    if (!script) {
        script = std::make_unique<ProcedureScript>();
    }
    return *script;
}

void RecordingConnection::dropProcedure(const AnsiString& name) {
    procedures_.erase(folded(name));
}

void RecordingConnection::answerQuery(const AnsiString& sql, TResultTable table) {
    queries_[sql] = std::move(table);
    refusedQueries_.erase(sql);
}

void RecordingConnection::refuseQuery(const AnsiString& sql, AnsiString message) {
    refusedQueries_[sql] = std::move(message);
}

std::vector<AnsiString> RecordingConnection::callsOf(std::string_view prefix) const {
    std::vector<AnsiString> found;
    std::copy_if(calls_.begin(), calls_.end(), std::back_inserter(found),
                 [&](const AnsiString& line) { return line.starts_with(prefix); });
    return found;
}

std::vector<AnsiString> RecordingConnection::takeCalls() {
    return std::exchange(calls_, {});
}

ProcedureScript& RecordingConnection::known(const AnsiString& name) {
    const auto found = procedures_.find(folded(name));
    if (found == procedures_.end()) {
        throw EDatabaseError("The database has no procedure " + name);
    }
    return *found->second;
}

TProcedureInfo RecordingConnection::Describe(const AnsiString& procedure) {
    return known(procedure).info_;
}

TCallResult RecordingConnection::Execute(const TProcedureCall& call) {
    AnsiString line = call.Name + "(";
    for (const TDbParam& parameter : call.Params) {
        if (&parameter != &call.Params.front()) {
            line += ", ";
        }
        line += parameter.Name + "=" + shortText(parameter.Value);
    }
    calls_.push_back(line + (call.Open ? ") open" : ")"));

    ProcedureScript& script = known(call.Name);
    const auto declares = [](const std::vector<AnsiString>& names, const AnsiString& wanted) {
        return std::any_of(names.begin(), names.end(),
                           [&](const AnsiString& name) { return SameDbName(name, wanted); });
    };
    for (const TDbParam& parameter : call.Params) {
        if (!declares(script.info_.Inputs, parameter.Name) && !declares(script.info_.Outputs, parameter.Name)) {
            throw EDatabaseError("The procedure " + call.Name + " has no parameter " + parameter.Name);
        }
    }
    ++script.calls_;
    if (const auto found = script.answersByCall_.find(script.calls_); found != script.answersByCall_.end()) {
        return found->second(call);
    }
    return script.answer_ ? script.answer_(call) : script.result_;
}

TResultTable RecordingConnection::Query(const AnsiString& sql) {
    calls_.push_back(sql);
    if (const auto refused = refusedQueries_.find(sql); refused != refusedQueries_.end()) {
        throw EDatabaseError(refused->second);
    }
    const auto found = queries_.find(sql);
    if (found == queries_.end()) {
        throw EDatabaseError("The test has no answer for the query: " + sql);
    }
    return found->second;
}

RecordingHost::RecordingHost()
    : now(std::chrono::local_days{std::chrono::year{2027} / std::chrono::February / 1} + 13h + 45min) {}

RecordingHost::~RecordingHost() = default;

std::optional<AnsiString> RecordingHost::Translation(std::string_view key, std::string_view builtIn) const {
    const AnsiString plainKey(key);
    auto found = translations.find(plainKey + "|" + AnsiString(builtIn));
    if (found == translations.end()) {
        found = translations.find(plainKey);
    }
    return found == translations.end() ? std::nullopt : std::optional(found->second);
}

std::string_view RecordingHost::ImageData(std::string_view image, std::string_view group) const {
    // One opaque red pixel.
    static constexpr std::array<unsigned char, 69> Png{
        0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44, 0x52, 0x00, 0x00,
        0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x02, 0x00, 0x00, 0x00, 0x90, 0x77, 0x53, 0xde, 0x00, 0x00, 0x00,
        0x0c, 0x49, 0x44, 0x41, 0x54, 0x78, 0xda, 0x63, 0xf8, 0xcf, 0xc0, 0x00, 0x00, 0x03, 0x01, 0x01, 0x00, 0xf7,
        0x03, 0x41, 0x43, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};
    images_.push_back(AnsiString(group) + "/" + AnsiString(image));
    return hasImages ? std::string_view(reinterpret_cast<const char*>(Png.data()), Png.size()) : std::string_view();
}

void RecordingHost::ShowError(std::exception_ptr error) noexcept {
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& exception) {
        errors_.emplace_back(exception.what());
    } catch (...) {
        errors_.emplace_back("an exception that is no std::exception");
    }
}

RecordingLibraryManager::~RecordingLibraryManager() = default;

int RecordingLibraryManager::MessageBox(const AnsiString& text, int flags) {
    boxes_.push_back(std::to_string(flags) + ": " + text);
    if (whileBoxIsShown) {
        whileBoxIsShown();
    }
    if (boxAnswers.empty()) {
        return flags == c_MessageBoxQuestion ? c_ResultNo : c_ResultOk;
    }
    const int answer = boxAnswers.front();
    boxAnswers.pop_front();
    return answer;
}

void RecordingLibraryManager::Message(const AnsiString& text, const AnsiString& style) {
    messages_.push_back(style + ": " + text);
}

std::optional<TLookupPick> RecordingLibraryManager::LookupList(const AnsiString& form, const AnsiString& displayColumn,
                                                               const AnsiString& keyColumn,
                                                               const AnsiString& condition) {
    lookups_.push_back(form + " " + displayColumn + " " + keyColumn + " [" + condition + "]");
    if (whileLookupIsShown) {
        whileLookupIsShown();
    }
    if (lookupAnswers.empty()) {
        return std::nullopt;
    }
    auto answer = lookupAnswers.front();
    lookupAnswers.pop_front();
    return answer;
}

void RecordingLibraryManager::LocalizeForm(TLocalizableForm& form, const AnsiString& section) {
    localizedSections_.push_back(section);
    form.VisitTexts([&](const TLocalizableForm::TText& text) {
        const auto found = formTexts.find(section + "\\" + text.Control + "\\" + text.Property);
        if (found != formTexts.end()) {
            text.Replace(found->second);
        }
    });
}

TResultTable resultTable(std::vector<AnsiString> columns, const std::vector<std::vector<AnsiString>>& rows) {
    TResultTable table{std::move(columns), {}};
    for (const auto& row : rows) {
        table.Rows.emplace_back(row.begin(), row.end());
    }
    return table;
}

AnsiString shortText(const TDbValue& value) {
    struct {
        AnsiString operator()(std::monostate) const { return "null"; }
        AnsiString operator()(std::int64_t number) const { return std::to_string(number); }
        AnsiString operator()(double number) const {
            std::array<char, 32> text{};
            const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
            return error == std::errc{} ? AnsiString(text.data(), end) : "?";
        }
        AnsiString operator()(bool flag) const { return flag ? "true" : "false"; }
        AnsiString operator()(const AnsiString& text) const { return '"' + text + '"'; }
    } render;
    return std::visit(render, value);
}
