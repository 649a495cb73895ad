#pragma once

#include "host/Connection.h"
#include "host/HostServices.h"
#include "host/LibraryManager.h"

#include <deque>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

/// What a fake procedure declares and answers. Made and changed through RecordingConnection::procedure:
///
///     host.connection.procedure("NAME").inputs({"a_ID"}).returns({resultTable({"NAZEV"}, {{"Praha"}})});
///
/// The n-th call is counted from 1.
class ProcedureScript {
public:
    using Answer = std::function<TCallResult(const TProcedureCall&)>;

    ProcedureScript& inputs(std::vector<AnsiString> names);
    ProcedureScript& outputs(std::vector<AnsiString> names);
    /// The result sets of every call that has no answer of its own.
    ProcedureScript& returns(std::vector<TResultTable> sets);
    /// The output parameters of every call that has no answer of its own.
    ProcedureScript& setsOutputs(std::vector<TDbParam> values);
    /// Computes the answer of every call that has no answer of its own; it may throw.
    ProcedureScript& answers(Answer answer);
    /// Computes the answer of one call; it may throw.
    ProcedureScript& answersCall(int n, Answer answer);
    /// The n-th call is refused by the database with this sentence.
    ProcedureScript& refusesCall(int n, AnsiString message, AnsiString code = "TEST1");
    /// At the n-th call the database itself fails with this sentence.
    ProcedureScript& breaksAtCall(int n, AnsiString message);
    /// The n-th call fails without an error: its Success is false.
    ProcedureScript& failsCall(int n);

private:
    friend class RecordingConnection;
    TProcedureInfo info_;
    TCallResult result_;
    Answer answer_;
    std::map<int, Answer> answersByCall_;
    int calls_ = 0;
};

/// A database connection that answers by script and keeps one short line for each call, in order:
///
///     MELVARKEDITORDodakInit() open
///     X(a_DODKID=7, a_DDOBID=null, a_SKLAD="Praha", a_PRENESCENY=true)
///     select NAZEV from SKLAD_V order by NAZEV
///
/// Texts stand in double quotes, so that the text 7 and the integer 7 differ. A refused call is listed too.
class RecordingConnection : public TConnection {
public:
    RecordingConnection() = default;
    ~RecordingConnection() override;

    /// The script of the procedure; the first mention makes the procedure known to the connection.
    ProcedureScript& procedure(const AnsiString& name);
    /// Forgets the procedure, as in a database that lacks it.
    void dropProcedure(const AnsiString& name);
    void answerQuery(const AnsiString& sql, TResultTable table);
    /// The query is refused with this sentence, until it gets an answer again.
    void refuseQuery(const AnsiString& sql, AnsiString message);

    const std::vector<AnsiString>& calls() const { return calls_; }
    /// The recorded calls whose line starts with `prefix`.
    std::vector<AnsiString> callsOf(std::string_view prefix) const;
    /// The lines so far, which are then forgotten.
    std::vector<AnsiString> takeCalls();

    TProcedureInfo Describe(const AnsiString& procedure) override;
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override;

private:
    ProcedureScript& known(const AnsiString& name);
    static AnsiString folded(std::string_view name);

    std::map<AnsiString, std::unique_ptr<ProcedureScript>> procedures_;
    std::map<AnsiString, TResultTable> queries_;
    std::map<AnsiString, AnsiString> refusedQueries_;
    std::vector<AnsiString> calls_;
};

/// A host whose every service is preset by the test and whose uses are recorded. Install it with `TScopedHost`.
class RecordingHost : public THostServices {
public:
    RecordingHost();
    ~RecordingHost() override;

    RecordingConnection connection;
    TFormatSettings formatSettings = TFormatSettings::Czech();
    /// By language key, or by key + "|" + built-in text for entries that share a key.
    std::map<AnsiString, AnsiString> translations;
    /// 1 February 2027, a quarter to two in the afternoon, unless the test sets the clock.
    TDateTime now;
    /// False makes the host lack all images.
    bool hasImages = true;
    AnsiString databaseDigest = "0123456789abcdef";

    /// Messages of the exceptions that reached the error display, in order.
    const std::vector<AnsiString>& errors() const { return errors_; }
    /// Images asked for as "group/image", in order.
    const std::vector<AnsiString>& images() const { return images_; }

    TConnection& Connection() override { return connection; }
    const TFormatSettings& FormatSettings() const override { return formatSettings; }
    std::optional<AnsiString> Translation(std::string_view key, std::string_view builtIn) const override;
    std::string_view ImageData(std::string_view image, std::string_view group) const override;
    TDateTime Now() const override { return now; }
    void ShowError(std::exception_ptr error) noexcept override;
    AnsiString DatabaseDigest() const override { return databaseDigest; }

private:
    std::vector<AnsiString> errors_;
    mutable std::vector<AnsiString> images_;
};

/// A library manager without a screen: boxes get preset answers, everything is recorded.
class RecordingLibraryManager : public TLibraryManager {
public:
    RecordingLibraryManager() = default;
    ~RecordingLibraryManager() override;

    /// Answers of the next boxes, first in first out. Without one an error box is answered by OK, a question by No.
    std::deque<int> boxAnswers;
    /// Runs while a box is shown, before its answer.
    std::function<void()> whileBoxIsShown;
    /// Answers of the next lookup lists; without one the user cancels.
    std::deque<std::optional<TLookupPick>> lookupAnswers;
    /// Runs while a lookup list is shown, before its answer.
    std::function<void()> whileLookupIsShown;
    /// Texts by section + "\" + control + "\" + property.
    std::map<AnsiString, AnsiString> formTexts;

    /// Boxes as "16: text" and messages as "O#: text".
    const std::vector<AnsiString>& boxes() const { return boxes_; }
    const std::vector<AnsiString>& messages() const { return messages_; }
    /// Lists as "form display key [condition]".
    const std::vector<AnsiString>& lookups() const { return lookups_; }
    /// Sections of the forms that were localised, in order.
    const std::vector<AnsiString>& localizedSections() const { return localizedSections_; }

    int MessageBox(const AnsiString& text, int flags) override;
    void Message(const AnsiString& text, const AnsiString& style) override;
    std::optional<TLookupPick> LookupList(const AnsiString& form, const AnsiString& displayColumn,
                                          const AnsiString& keyColumn, const AnsiString& condition) override;
    void LocalizeForm(TLocalizableForm& form, const AnsiString& section) override;

private:
    std::vector<AnsiString> boxes_;
    std::vector<AnsiString> messages_;
    std::vector<AnsiString> lookups_;
    std::vector<AnsiString> localizedSections_;
};

/// A result set of text columns.
TResultTable resultTable(std::vector<AnsiString> columns, const std::vector<std::vector<AnsiString>>& rows);

/// The value as it stands in the lines of RecordingConnection.
AnsiString shortText(const TDbValue& value);
