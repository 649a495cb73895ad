#pragma once

#include "refhost/database/Database.h"
#include "refhost/database/PostgreSQLPipeline.h"
#include "refhost/database/PostgreSQLProcedure.h"
#include "refhost/database/PostgreSQLSession.h"

#include <map>
#include <string>

namespace refhost {

/// The company's database on a server. Its procedures are functions of the server's schema "melvark", made by
/// createSchema from the files of refhost/database/postgresql; the user is the role that connects.
///
/// Each procedure is looked up and prepared at its first call in a session. A call is a transaction of its own; one
/// that the server gives up for another user's is tried again a few times. A procedure that says so in its header and
/// brings nothing is only sent: the rows of a save. Their failure is thrown by a later row or by the closing call. A
/// lost session is opened anew by the next call, save by one that belongs to a save under way: its rows went with the
/// session.
class PostgreSQLConnection : public Database {
public:
    /// `address` are words as the server's client library takes them. Throws EDatabaseError.
    PostgreSQLConnection(const std::string& address, const TFormatSettings& settings);

    TProcedureInfo Describe(const AnsiString& procedure) override;
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override;

    bool hasSchema() override;
    void createSchema() override;
    void inOneTransaction(const std::function<void()>& work) override;
    void awaitAnswers() override;
    std::shared_ptr<RowReader> openRows(const AnsiString& sql) override;
    void useProcedures(const std::string& folder) override;
    void insertRows(std::string_view table, std::span<const std::string> columns,
                    std::span<const std::vector<TDbValue>> rows) override;
    void runScript(std::string_view sql) override;
    void runBuiltInScript(std::string_view path) override;
    const std::string& user() const override { return session_.user(); }
    std::string address() const override { return "postgresql:" + session_.place(); }
    std::string engine() const override { return "PostgreSQL " + session_.version(); }

private:
    const PostgreSQLProcedure& procedure(const AnsiString& name);
    TCallResult executeAgainstConflicts(const TProcedureCall& call);
    TCallResult sendRow(const TProcedureCall& call, int row);
    /// Waits for the rows under way, so that the session can be used for something else. Throws nothing about them.
    void endRows();
    void throwRowFailure();
    /// A query's work; what the server says when the statement does not only read, or there is no company, is told so.
    template <typename Work>
    auto reading(const AnsiString& sql, Work work);
    void refuseStaging();
    /// Opens a lost link anew, and refuses to go on with a database that was upgraded meanwhile.
    void restoreLink();
    void refuseAfterUpgrade();

    PostgreSQLSession session_;
    std::map<std::string, PostgreSQLProcedure> procedures_; ///< By lower-case name.
    PostgreSQLPipeline rows_{session_};
    int rowsOfSave_ = 0; ///< Sent since the save began.
    ReadingUnderWay reading_;
};

} // namespace refhost
