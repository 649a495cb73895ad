#pragma once

#include "host/Connection.h"
#include "refhost/database/RowReader.h"
#include "refhost/database/StopSignal.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// A connection to the company's database on one of the engines, with what creating and filling a database needs
/// beyond the contract. It holds no rule of the business: the rules are in the SQL of each engine.
///
/// Made by openDatabase (Databases.h).
class Database : public TConnection {
public:
    ~Database() override;

    /// Whether the company's tables are there.
    virtual bool hasSchema() = 0;

    /// Creates the tables, views, functions and procedures in one transaction. Throws EDatabaseError, with nothing
    /// created, when the database has tables already.
    virtual void createSchema() = 0;

    /// Runs `work`, whose calls of the functions of this class (not of the contract) are then one transaction: they
    /// all last, or none when it throws.
    virtual void inOneTransaction(const std::function<void()>& work) = 0;

    /// Waits for the answers to rows of a save that were sent without waiting (TCallResult::Answered). Throws
    /// EDatabaseError as a later row would.
    virtual void awaitAnswers() = 0;

    /// Begins to read the rows of a query like TConnection::Query, a portion at a time; one reading after the other. A
    /// call of the contract meanwhile has it read its rest first. Throws EDatabaseError.
    virtual std::shared_ptr<RowReader> openRows(const AnsiString& sql) = 0;

    /// Replaces procedures by scripts of a folder, "NAME.sql" each, for this connection. Throws EDatabaseError when a
    /// script is no procedure's, has a mistake in its header, or the engine keeps its procedures itself.
    virtual void useProcedures(const std::string& folder) = 0;

    /// Appends rows to a table, all in one transaction. Each row has one value a column: integers, booleans as 0 or 1,
    /// decimals as canonical decimal text ("12.5"), dates as "2027-02-01", moments as "2027-02-01 13:45:00".
    /// Identifiers may be given; those that the database makes afterwards are higher. Throws EDatabaseError.
    virtual void insertRows(std::string_view table, std::span<const std::string> columns,
                            std::span<const std::vector<TDbValue>> rows) = 0;

    /// Runs statements that bring no rows, in the engine's own SQL, in one transaction. Throws EDatabaseError.
    virtual void runScript(std::string_view sql) = 0;

    /// Runs a script of the engine's folder that was built into the program ("sample/NAME.sql"), likewise. Both engines
    /// have it under the same name. Throws EDatabaseError; std::logic_error when there is none.
    virtual void runBuiltInScript(std::string_view path) = 0;

    /// The name of the user whose settings and placements the procedures use.
    virtual const std::string& user() const = 0;

    /// Which database this is, in one spelling: the same for every way in which a command line may name it, without
    /// user and password. A server's is that of the words, so that a company that moves between servers of one list
    /// keeps it.
    virtual std::string address() const = 0;

    /// The engine and its version ("SQLite 3.40.1"), as whoever looks for the cause of a problem wants to know it.
    virtual std::string engine() const = 0;

    /// While it is requested, calls fail instead of taking their time, as they would for a failure of the database. The
    /// one thing here that another thread may use, also during a call.
    StopSignal& stopSignal() { return stopSignal_; }

private:
    StopSignal stopSignal_;
};

/// Refuses a query that is not one reading statement.
[[noreturn]] void refuseQuery(std::string_view sql);

} // namespace refhost
