#pragma once

#include "host/FormatSettings.h"
#include "refhost/database/Database.h"
#include "refhost/database/ProcedureFolder.h"
#include "refhost/database/SQLiteProcedure.h"

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace refhost {

/// The company's database in one file. Its procedures are the scripts of refhost/database/sqlite, which are part of the
/// program; the file holds tables and views only.
///
/// Each procedure is prepared at its first call and kept. A call runs in one transaction of its own, a writing one in
/// an immediate transaction, so that two users' saves follow one another; one waits for the other for some seconds and
/// then gives up with a sentence.
class SQLiteConnection : public Database {
public:
    /// Opens the file and checks whose it is. `patience` is how long a call waits for another user's save. Throws
    /// EDatabaseError.
    SQLiteConnection(const std::string& file, const std::string& user, const TFormatSettings& settings, OpenMode mode,
                     std::chrono::milliseconds patience = std::chrono::seconds(5));
    ~SQLiteConnection() override;

    TProcedureInfo Describe(const AnsiString& procedure) override;
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override;

    bool hasSchema() override;
    void createSchema() override;
    void inOneTransaction(const std::function<void()>& work) override;
    void awaitAnswers() override {} // this engine answers at once
    std::shared_ptr<RowReader> openRows(const AnsiString& sql) override;
    void useProcedures(const std::string& folder) override;
    void insertRows(std::string_view table, std::span<const std::string> columns,
                    std::span<const std::vector<TDbValue>> rows) override;
    void runScript(std::string_view sql) override;
    void runBuiltInScript(std::string_view path) override;
    const std::string& user() const override { return session_.user(); }
    std::string address() const override;
    std::string engine() const override;

    /// The script of a procedure, prepared on this file. Throws EDatabaseError like Describe.
    const SqlScript& script(const AnsiString& name) { return procedure(name).script(); }
    /// The names of the columns that a reading statement brings, which is not run. Throws EDatabaseError like Query.
    std::vector<AnsiString> columns(const AnsiString& sql);

private:
    void checkOwner(OpenMode mode);
    /// Within a transaction: refuses to go on with a file that was upgraded since it was opened.
    void refuseAfterUpgrade();
    void registerFunctions();
    void createSessionTables();
    void useWriteAheadLog();
    SQLiteProcedure& procedure(const AnsiString& name);
    SQLiteStatement readingStatement(const AnsiString& sql);

    std::optional<ProcedureFolder> ownProcedures_;
    SQLiteSession session_; // First: statements of functions and procedures are gone before it closes.
    std::vector<std::unique_ptr<SQLiteScriptFunction>> functions_;
    std::map<std::string, std::unique_ptr<SQLiteProcedure>> procedures_; ///< By lower-case name.
    std::optional<SQLiteStatement> version_; ///< Asks for the version; prepared when there is one.
    ReadingUnderWay reading_;
};

} // namespace refhost
