#include "refhost/IdentifiedSaves.h"

#include "host/Exceptions.h"
#include "refhost/database/Database.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SaveCalls.h"
#include "refhost/database/SaveIdentity.h"

#include <QByteArray>

#include <algorithm>

namespace refhost {

namespace {

constexpr std::string_view c_MissingProcedure = "ML918";
/// The database could not be heard any more; every other error is its answer.
constexpr std::string_view c_NoAnswer = "ML916";

/// With its length, so that two texts are never taken for one.
void addText(QCryptographicHash& hash, std::string_view text) {
    hash.addData(QByteArray::number(static_cast<qulonglong>(text.size())) + ' ');
    hash.addData(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

struct ValueText {
    std::string operator()(std::monostate) const { return "null"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return QByteArray::number(value, 'g', 17).toStdString(); }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(const AnsiString& value) const { return value; }
};

void addValue(QCryptographicHash& hash, const TDbValue& value) {
    addText(hash, std::to_string(value.index()));
    addText(hash, std::visit(ValueText(), value));
}

std::string digestOf(const QCryptographicHash& hash) {
    return hash.result().toHex().toStdString();
}

EDatabaseError unknownOutcome(const char* key, const EDatabaseError& lost) {
    return refusal(key, {}, lost.Details(), TDatabaseCause::Failure);
}

} // namespace

IdentifiedSaves::IdentifiedSaves(Database& database, std::string folder)
    : database_(database), pending_(std::move(folder)) {}

IdentifiedSaves::~IdentifiedSaves() {
    if (unknown_.empty()) {
        return;
    }
    try {
        database_.hasSchema(); // opens a lost link anew
        giveUpUnknown();
    } catch (...) {
        return; // then the files stay for the next program
    }
}

TProcedureInfo IdentifiedSaves::Describe(const AnsiString& procedure) {
    return database_.Describe(procedure);
}

TResultTable IdentifiedSaves::Query(const AnsiString& sql) {
    return database_.Query(sql);
}

TCallResult IdentifiedSaves::Execute(const TProcedureCall& call) {
    forgetDeclined();
    const SaveCall known = saveCallOf(call.Name);
    switch (known.Is) {
    case SaveStep::Begin:
        database_.Describe(call.Name); // opens a lost link anew, which the next question must not
        areIdentified();               // asked while no save is under way
        sent_.reset();
        break;
    case SaveStep::Row:
        addSent(call);
        break;
    case SaveStep::Closing:
        return close(known.Closing, call);
    case SaveStep::AboutWork:
        return answerAboutWork(known.Closing, call);
    case SaveStep::Opening: {
        TCallResult result = database_.Execute(call);
        giveUpUnknown(); // the editor that they belong to is closed, its clerk was told
        return result;
    }
    case SaveStep::Other:
        break;
    }
    return database_.Execute(call);
}

// By now the module has dropped the work that it was told not to take up.
void IdentifiedSaves::forgetDeclined() {
    if (declined_) {
        declined_->settle();
        declined_.reset();
        database_.Execute(callAboutSave(c_MarkSaveProcedure, {})); // other work on this document may be taken up
    }
}

void IdentifiedSaves::addSent(const TProcedureCall& call) {
    for (const TDbParam& parameter : call.Params) {
        addText(sent_, parameter.Name);
        addValue(sent_, parameter.Value);
    }
    addText(sent_, call.Name);
}

// The document is the first parameter of all these procedures.
std::string IdentifiedSaves::placeOf(std::string_view closing, const TProcedureCall& call) const {
    QCryptographicHash place(QCryptographicHash::Sha256);
    addText(place, database_.user());
    addText(place, closing);
    addValue(place, call.Params.empty() ? TDbValue() : call.Params.front().Value);
    return digestOf(place);
}

TCallResult IdentifiedSaves::close(std::string_view closing, const TProcedureCall& call) {
    addSent(call);
    database_.awaitAnswers(); // what fails among the rows fails before anything was closed
    if (areIdentified_.value_or(false)) {
        return closeIdentified({newSaveIdentity(), placeOf(closing, call), digestOf(sent_)}, call);
    }
    try {
        return database_.Execute(call);
    } catch (const EDatabaseError& error) {
        if (error.Code() == c_NoAnswer) {
            throw unknownOutcome("ML057/look", error);
        }
        throw;
    }
}

TCallResult IdentifiedSaves::closeIdentified(SaveMark mark, const TProcedureCall& call) {
    if (cameBefore(mark)) {
        return {};
    }
    database_.Execute(callAboutSave(c_MarkSaveProcedure, mark.Identity));
    unknown_.push_back({pending_.keep(std::move(mark)), true});
    try {
        TCallResult result = database_.Execute(call);
        settleLast();
        return result;
    } catch (const EDatabaseError& error) {
        if (error.Code() == c_NoAnswer) {
            throw unknownOutcome("ML057", error);
        }
        settleLast();
        throw;
    }
}

void IdentifiedSaves::settleLast() {
    unknown_.back().Save.settle();
    unknown_.pop_back();
}

bool IdentifiedSaves::cameBefore(const SaveMark& mark) {
    try {
        askAbout(mark.Place);
    } catch (const EDatabaseError& error) {
        if (error.Code() == c_NoAnswer) {
            throw unknownOutcome("ML057", error);
        }
        throw;
    }
    const auto first = findUnknown(mark.Place);
    if (first == unknown_.end()) {
        return false;
    }
    // What this program saved last is what the editor's lines are held against. Of several that others left behind,
    // each may be the one that is repeated.
    const auto come = first->IsOwn ? first : findTheSame(mark);
    if (come == unknown_.end() || come->Save.mark().Content != mark.Content) {
        throw refusal("ML058");
    }
    database_.Execute(callAboutSave(c_MarkSaveProcedure, {})); // other work on this document may be taken up
    come->Save.settle();
    leaveBehind(mark.Place);
    return true;
}

TCallResult IdentifiedSaves::answerAboutWork(std::string_view closing, const TProcedureCall& question) {
    const std::string place = placeOf(closing, question);
    askAbout(place);
    const auto come = findUnknown(place);
    if (come == unknown_.end()) {
        return database_.Execute(question);
    }
    hasCome(come->Save.mark()); // once more, for the session is about the last one that was asked about
    TCallResult answer = database_.Execute(question);
    declined_ = std::move(come->Save);
    unknown_.erase(come);
    leaveBehind(place);
    return answer;
}

std::vector<IdentifiedSaves::Unknown>::iterator IdentifiedSaves::findUnknown(const std::string& place) {
    return std::ranges::find(unknown_, place, [](const Unknown& save) { return save.Save.mark().Place; });
}

std::vector<IdentifiedSaves::Unknown>::iterator IdentifiedSaves::findTheSame(const SaveMark& mark) {
    return std::ranges::find_if(unknown_, [&](const Unknown& save) {
        return save.Save.mark().Place == mark.Place && save.Save.mark().Content == mark.Content;
    });
}

void IdentifiedSaves::leaveBehind(const std::string& place) {
    std::erase_if(unknown_, [&](const Unknown& save) { return save.Save.mark().Place == place; });
}

void IdentifiedSaves::askAbout(const std::string& place) {
    if (!areIdentified()) {
        return;
    }
    for (PendingSave& save : pending_.leftBehind(place)) {
        unknown_.push_back({std::move(save), false});
    }
    for (auto save = unknown_.begin(); save != unknown_.end();) {
        if (save->Save.mark().Place != place || hasCome(save->Save.mark())) {
            ++save;
        } else {
            save->Save.settle();
            save = unknown_.erase(save);
        }
    }
}

void IdentifiedSaves::giveUpUnknown() {
    if (unknown_.empty()) {
        return;
    }
    while (!unknown_.empty()) {
        hasCome(unknown_.back().Save.mark());
        settleLast();
    }
    database_.Execute(callAboutSave(c_MarkSaveProcedure, {}));
}

bool IdentifiedSaves::hasCome(const SaveMark& mark) {
    const TCallResult answer = database_.Execute(callAboutSave(c_AskAboutSaveProcedure, mark.Identity));
    const TDbValue* const come = answer.Outputs.empty() ? nullptr : &answer.Outputs.front().Value;
    return come != nullptr && *come == TDbValue(std::int64_t{1});
}

bool IdentifiedSaves::areIdentified() {
    if (!areIdentified_) {
        try {
            database_.Describe(c_MarkSaveProcedure);
            database_.Describe(c_AskAboutSaveProcedure);
            areIdentified_ = true;
        } catch (const EDatabaseError& error) {
            if (error.Code() != c_MissingProcedure) {
                throw;
            }
            areIdentified_ = false;
        }
    }
    return *areIdentified_;
}

} // namespace refhost
