#pragma once

#include "host/Connection.h"
#include "host/FormatSettings.h"
#include "refhost/database/OpenMode.h"
#include "refhost/database/PostgreSQLHandle.h"
#include "refhost/database/StopSignal.h"

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// On this channel an upgrade tells the sessions of the company's other programs.
inline constexpr std::string_view c_UpgradeChannel = "melvark_upgraded";

/// One session on a server: the link, the session's settings (how its user writes numbers and dates, how long it waits
/// for a lock), the statements that were prepared on it, and the way in which failures become sentences. It knows no
/// procedure.
class PostgreSQLSession {
public:
    /// `address` are words as the client library takes them ("host=… dbname=…"). Throws EDatabaseError.
    PostgreSQLSession(std::string address, const TFormatSettings& settings, OpenMode mode = OpenMode::Existing);

    /// From now on statements are cancelled and fail with EStopped as long as this is requested. It outlives the
    /// session.
    void heed(const StopSignal& signal) { stop_ = &signal; }

    PGconn* handle() const { return handle_.get(); }
    const std::string& database() const { return database_; }
    const std::string& user() const { return user_; }
    /// The server, its port and the database, as the words of the address or their defaults have them.
    std::string place() const;
    /// The server's version, as it said when the session was opened; "?" when the link has been lost for good.
    std::string version() const;

    /// Whether another program has said on the channel of upgrades that it upgraded the database since this session was
    /// opened. Asks nothing of the server.
    bool isUpgraded();

    bool isLost() const { return PQstatus(handle()) != CONNECTION_OK; }
    /// Opens a new session in place of a lost one; what the old one held is gone. Throws EDatabaseError.
    void reconnect();

    /// Runs one statement or several, the result being that of the last one. Throws EDatabaseError.
    PostgreSQLResult execute(const std::string& sql);
    /// Runs one statement with its parameters ($1 …) as texts or null; it is prepared at its first use in the session.
    PostgreSQLResult execute(const std::string& sql, std::span<const TDbValue> parameters);
    /// Whether the statement was prepared in this session.
    bool isPrepared(const std::string& sql) const { return prepared_.contains(sql); }
    /// Prepares the statement unless it was prepared before.
    void prepare(const std::string& sql);
    /// Hands a prepared statement to the client library without waiting for its answer; false when the link is lost.
    bool send(const std::string& sql, std::span<const TDbValue> parameters);
    /// Waits until a result of what was sent is there or the link is lost.
    void awaitResult() const;
    /// Waits for one of the events of the link (POLLIN, POLLOUT); those that have come.
    short awaitLink(short events) const;
    /// The result of a statement, owned. Throws EDatabaseError when it failed or the link is lost.
    PostgreSQLResult checked(PGresult* result, std::string_view statement) const;
    /// Prepares a statement for this one time, so that its columns are known before it runs.
    PostgreSQLResult describe(const std::string& sql);
    /// Runs the statement that was described last.
    PostgreSQLResult executeDescribed(const std::string& sql);
    /// Runs a "copy … from stdin" with rows of values.
    void copy(const std::string& statement, std::span<const std::vector<TDbValue>> rows);

    /// `name` as SQL writes an identifier, whatever characters it has.
    std::string quoted(std::string_view name) const;

private:
    void open();
    void setUp();
    /// The last result of what was sent; null when it could not be sent.
    PGresult* awaited(int isSent) const;
    void sendCopyData(std::string_view text, std::string_view statement) const;

    std::string address_;
    TFormatSettings settings_;
    OpenMode mode_;
    std::string database_;
    std::string user_;
    const StopSignal* stop_ = nullptr;
    PostgreSQLHandle handle_;
    bool isUpgraded_ = false;
    std::map<std::string, std::string, std::less<>> prepared_; ///< Names of prepared statements by their texts.
};

/// Rolls back what was done in its scope unless it was committed.
class PostgreSQLTransaction {
public:
    enum class Kind { Reading, Writing };

    /// Within another transaction it is a part of that one.
    PostgreSQLTransaction(PostgreSQLSession& session, Kind kind);
    PostgreSQLTransaction(const PostgreSQLTransaction&) = delete;
    PostgreSQLTransaction& operator=(const PostgreSQLTransaction&) = delete;
    ~PostgreSQLTransaction();

    void commit();

private:
    PostgreSQLSession& session_;
    bool isOpen_; ///< Begun here and not ended yet.
};

} // namespace refhost
