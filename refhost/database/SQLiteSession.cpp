#include "refhost/database/SQLiteSession.h"

#include "refhost/database/PrivateFile.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteErrors.h"

#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

namespace refhost {

namespace {

/// A missing folder or file has a sentence of its own: the engine would only say that it cannot open the file.
void checkPlace(const std::string& file, bool create) {
    std::error_code error;
    const std::filesystem::path path(file);
    const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
    if (!std::filesystem::is_directory(folder, error)) {
        throw refusal("ML915/nofolder", {folder.string()});
    }
    if (std::filesystem::is_directory(path, error)) {
        throw refusal("ML915/folder", {file});
    }
    if (!create && !std::filesystem::exists(path, error)) {
        throw refusal("ML915/nofile", {file});
    }
}

bool isReading(int action) {
    return action == SQLITE_SELECT || action == SQLITE_READ || action == SQLITE_FUNCTION || action == SQLITE_RECURSIVE;
}

bool isWriting(int action) {
    return action == SQLITE_INSERT || action == SQLITE_UPDATE || action == SQLITE_DELETE;
}

} // namespace

SQLiteSession::SQLiteSession(std::string file, std::string user, const TFormatSettings& settings, OpenMode mode,
                             std::chrono::milliseconds patience)
    : file_(std::move(file)), user_(std::move(user)), settings_(settings), patience_(patience) {
    const bool create = mode == OpenMode::Create;
    checkPlace(file_, create);
    if (create && file_ != c_InMemory) {
        makePrivateFile(file_); // one that cannot be made is the engine's to refuse
    }
    sqlite3* opened = nullptr;
    // One thread uses it: nothing has to be locked at every value.
    const int flags = SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX |
                      (mode == OpenMode::ReadingOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) |
                      (create ? SQLITE_OPEN_CREATE : 0);
    const int status = sqlite3_open_v2(file_.c_str(), &opened, flags, nullptr);
    handle_.reset(opened);
    if (status != SQLITE_OK) {
        fail(status, "open");
    }
    sqlite3_busy_timeout(handle(), static_cast<int>(patience.count()));
    sqlite3_db_config(handle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle(), SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_set_authorizer(handle(), authorize, this);
    execute("pragma foreign_keys = on");
    execute("pragma temp_store = memory");
}

void SQLiteSession::execute(const std::string& sql) {
    const int status = sqlite3_exec(handle(), sql.c_str(), nullptr, nullptr, nullptr);
    if (status != SQLITE_OK) {
        fail(status, sql);
    }
}

void SQLiteSession::executeAgain(const std::string& sql) {
    SQLiteStatementHandle& statement = prepared_[sql];
    if (!statement) {
        sqlite3_stmt* prepared = nullptr;
        const int status = sqlite3_prepare_v3(handle(), sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &prepared, nullptr);
        statement.reset(prepared);
        if (status != SQLITE_OK) {
            fail(status, sql);
        }
    }
    sqlite3_step(statement.get());
    if (const int status = sqlite3_reset(statement.get()); status != SQLITE_OK) {
        fail(status, sql);
    }
}

void SQLiteSession::executePatiently(const std::string& sql) {
    constexpr std::chrono::milliseconds c_Pause{10};
    const auto end = std::chrono::steady_clock::now() + patience_;
    int status = sqlite3_exec(handle(), sql.c_str(), nullptr, nullptr, nullptr);
    while ((status & 0xFF) == SQLITE_BUSY && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(c_Pause);
        status = sqlite3_exec(handle(), sql.c_str(), nullptr, nullptr, nullptr);
    }
    if (status != SQLITE_OK) {
        fail(status, sql);
    }
}

void SQLiteSession::heed(StopSignal& signal) {
    constexpr int c_StepsBetweenLooks = 1000; // much less than a millisecond
    sqlite3_progress_handler(
        handle(), c_StepsBetweenLooks,
        [](void* heeded) { return static_cast<const StopSignal*>(heeded)->isRequested() ? 1 : 0; }, &signal);
}

void SQLiteSession::fail(int code, std::string_view statement) {
    if (const auto failure = std::exchange(failure_, std::nullopt)) {
        throw *failure;
    }
    throw sqliteError(code, handle(), file_, statement);
}

bool SQLiteSession::takeWrites() {
    return std::exchange(writes_, false);
}

int SQLiteSession::authorize(void* session, int action, const char* /*first*/, const char* /*second*/,
                             const char* database, const char* /*trigger*/) {
    auto& self = *static_cast<SQLiteSession*>(session);
    if (isWriting(action) && database != nullptr && std::string_view(database) == "main") {
        self.writes_ = true;
    }
    return self.access_ == Access::Everything || isReading(action) ? SQLITE_OK : SQLITE_DENY;
}

SQLiteTransaction::SQLiteTransaction(SQLiteSession& session, Kind kind)
    : session_(session), isOuter_(sqlite3_get_autocommit(session.handle()) != 0) {
    if (isOuter_) {
        session_.executeAgain(kind == Kind::Writing ? "begin immediate" : "begin");
    }
}

SQLiteTransaction::~SQLiteTransaction() {
    // The engine may have rolled back by itself; a rollback that fails leaves nothing that could be done here.
    if (isOuter_ && sqlite3_get_autocommit(session_.handle()) == 0) {
        sqlite3_exec(session_.handle(), "rollback", nullptr, nullptr, nullptr);
    }
}

void SQLiteTransaction::commit() {
    if (isOuter_) {
        session_.executeAgain("commit");
    }
}

} // namespace refhost
