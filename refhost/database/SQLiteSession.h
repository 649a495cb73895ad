#pragma once

#include "host/Exceptions.h"
#include "host/FormatSettings.h"
#include "refhost/database/OpenMode.h"
#include "refhost/database/SQLiteHandle.h"
#include "refhost/database/StopSignal.h"

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace refhost {

/// One open database file: the engine's handle, whose session it is and how its user writes numbers and dates, and the
/// way in which failures become sentences. It knows no procedure; statements, functions and transactions stand on it.
class SQLiteSession {
public:
    /// The name of a database of the session's own, without a file.
    static constexpr const char* c_InMemory = ":memory:";

    /// What a statement may do when it is prepared.
    enum class Access { Everything, ReadingOnly };

    /// Opens the file; a new one is its owner's alone. `patience` is how long a statement waits for another user's save
    /// before it gives up. Throws EDatabaseError.
    SQLiteSession(std::string file, std::string user, const TFormatSettings& settings, OpenMode mode,
                  std::chrono::milliseconds patience);
    SQLiteSession(const SQLiteSession&) = delete;
    SQLiteSession& operator=(const SQLiteSession&) = delete;
    ~SQLiteSession() = default;

    sqlite3* handle() const { return handle_.get(); }
    const std::string& file() const { return file_; }
    const std::string& user() const { return user_; }
    const TFormatSettings& settings() const { return settings_; }

    /// Runs statements that bring no rows. Throws EDatabaseError.
    void execute(const std::string& sql);
    /// As execute for one statement that is run again and again: it is prepared once.
    void executeAgain(const std::string& sql);
    /// As execute for what the engine refuses at once while another connection is writing: tries again for as long as a
    /// statement waits; the last try may wait as long itself.
    void executePatiently(const std::string& sql);

    /// Throws the failure that the engine reported with `code`: the refusal of a function of ours when one stands
    /// behind it, else a sentence about the file.
    [[noreturn]] void fail(int code, std::string_view statement);
    /// Keeps what a function of ours threw until the engine has left its own code and `fail` is called.
    void keepFailure(const EDatabaseError& error) { failure_ = error; }

    /// From now on statements fail as long as this is requested. It outlives the session.
    void heed(StopSignal& signal);

    /// What the statements that are prepared from now on may do; one that may not fails to prepare.
    void setAccess(Access access) { access_ = access; }
    /// Whether a statement that was prepared since the last question writes to a table of the company (temporary
    /// tables do not count).
    bool takeWrites();

private:
    static int authorize(void* session, int action, const char* first, const char* second, const char* database,
                         const char* trigger);

    std::string file_;
    std::string user_;
    TFormatSettings settings_;
    std::chrono::milliseconds patience_;
    Access access_ = Access::Everything;
    bool writes_ = false;
    std::optional<EDatabaseError> failure_;
    SQLiteHandle handle_; // Behind what the functions above use: closing it may still call them.
    std::map<std::string, SQLiteStatementHandle> prepared_; ///< By their texts.
};

/// Rolls back what was done in its scope unless it was committed.
class SQLiteTransaction {
public:
    /// A writing one waits for other writers at once, so that it can never lose its place to one of them later.
    enum class Kind { Reading, Writing };

    /// Within another transaction it is a part of that one.
    SQLiteTransaction(SQLiteSession& session, Kind kind);
    SQLiteTransaction(const SQLiteTransaction&) = delete;
    SQLiteTransaction& operator=(const SQLiteTransaction&) = delete;
    ~SQLiteTransaction();

    void commit();

private:
    SQLiteSession& session_;
    bool isOuter_;
};

} // namespace refhost
