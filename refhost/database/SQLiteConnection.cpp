#include "refhost/database/SQLiteConnection.h"

#include "host/AsciiCase.h"
#include "refhost/database/DecimalFunctions.h"
#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteCollation.h"
#include "refhost/database/SQLiteFunctions.h"
#include "refhost/database/SQLiteReader.h"
#include "refhost/database/SQLiteSchema.h"
#include "refhost/database/SchemaVersion.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace refhost {

namespace {

/// A save that was not begun stays so.
constexpr const char* c_RefuseStaging = "update temp.STAGING set STATE = 'refused' where STATE = 'open'";

const SqlFile* findProcedure(std::span<const SqlFile> files, std::string_view name) {
    for (const SqlFile& file : files) {
        if (file.Path.starts_with("procedures/") && SameDbName(sqlObjectName(file), name)) {
            return &file;
        }
    }
    return nullptr;
}

std::string insertStatement(std::string_view table, std::span<const std::string> columns) {
    std::string names;
    std::string places;
    for (const std::string& column : columns) {
        names += (names.empty() ? "" : ", ") + column;
        places += places.empty() ? "?" : ", ?";
    }
    return "insert into " + std::string(table) + " (" + names + ") values (" + places + ")";
}

/// Leaves reading only as the access of what is prepared in its scope.
class ReadingOnly {
public:
    explicit ReadingOnly(SQLiteSession& session) : session_(session) {
        session_.setAccess(SQLiteSession::Access::ReadingOnly);
    }
    ReadingOnly(const ReadingOnly&) = delete;
    ReadingOnly& operator=(const ReadingOnly&) = delete;
    ~ReadingOnly() { session_.setAccess(SQLiteSession::Access::Everything); }

private:
    SQLiteSession& session_;
};

} // namespace

SQLiteConnection::SQLiteConnection(const std::string& file, const std::string& user, const TFormatSettings& settings,
                                   OpenMode mode, std::chrono::milliseconds patience)
    : session_(file, user, settings, mode, patience) {
    session_.heed(stopSignal());
    checkOwner(mode);
    registerFunctions();
    createSessionTables();
    if (mode != OpenMode::ReadingOnly && hasSchema()) {
        useWriteAheadLog();
        refreshCollation(session_);
    }
}

SQLiteConnection::~SQLiteConnection() = default;

void SQLiteConnection::checkOwner(OpenMode mode) {
    const std::int64_t version = sqliteSchemaVersion(session_);
    if (mode != OpenMode::ReadingOnly && sqlite3_db_readonly(session_.handle(), "main") == 1) {
        session_.fail(SQLITE_READONLY, "open");
    }
    if (version != 0 && version != c_SchemaVersion) {
        throw otherVersionError(session_.file(), version);
    }
}

void SQLiteConnection::registerFunctions() {
    registerValueFunctions(session_);
    registerCzech(session_);
    registerDecimalFunctions(session_.handle());
    for (const SqlFile& file : sqliteFiles()) {
        if (file.Path.starts_with("functions/")) {
            functions_.push_back(std::make_unique<SQLiteScriptFunction>(session_, readSqlScript(file, sqliteFiles())));
        }
    }
}

void SQLiteConnection::createSessionTables() {
    session_.execute(folderText(sqliteFiles(), "session/"));
}

void SQLiteConnection::useWriteAheadLog() {
    // The engine turns a file with all others shut out, and does not wait for one who is writing in it.
    session_.executePatiently("pragma journal_mode = wal");
}

bool SQLiteConnection::hasSchema() {
    return sqliteSchemaVersion(session_) != 0;
}

void SQLiteConnection::createSchema() {
    inOneTransaction([this] { createSQLiteSchema(session_); });
}

void SQLiteConnection::inOneTransaction(const std::function<void()>& work) {
    const bool isOuter = sqlite3_get_autocommit(session_.handle()) != 0;
    SQLiteTransaction transaction(session_, SQLiteTransaction::Kind::Writing);
    work();
    transaction.commit();
    // Not before the company is complete: the log's mark would make an empty file look like somebody's.
    if (isOuter && hasSchema()) {
        useWriteAheadLog();
    }
}

void SQLiteConnection::useProcedures(const std::string& folder) {
    ownProcedures_.emplace(folder);
    procedures_.clear();
}

void SQLiteConnection::refuseAfterUpgrade() {
    if (!version_) {
        std::string_view sql = "pragma user_version";
        version_.emplace(session_, sql);
    }
    const SQLiteStatementUse use(*version_);
    version_->step();
    if (std::get<std::int64_t>(version_->value(0)) != c_SchemaVersion) {
        throw upgradedMeanwhileError(session_.file());
    }
}

void SQLiteConnection::insertRows(std::string_view table, std::span<const std::string> columns,
                                  std::span<const std::vector<TDbValue>> rows) {
    SQLiteTransaction transaction(session_, SQLiteTransaction::Kind::Writing);
    const std::string insert = insertStatement(table, columns);
    std::string_view sql = insert;
    SQLiteStatement statement(session_, sql);
    for (const std::vector<TDbValue>& row : rows) {
        const SQLiteStatementUse use(statement);
        for (std::size_t i = 0; i < row.size(); ++i) {
            statement.bind(static_cast<int>(i) + 1, row[i]);
        }
        statement.step();
    }
    transaction.commit();
}

void SQLiteConnection::runScript(std::string_view sql) {
    SQLiteTransaction transaction(session_, SQLiteTransaction::Kind::Writing);
    session_.execute(std::string(sql));
    transaction.commit();
}

void SQLiteConnection::runBuiltInScript(std::string_view path) {
    runScript(builtInScript(path, sqliteFiles()).Text);
}

std::string SQLiteConnection::address() const {
    std::error_code unresolved; // then the path as it was given
    const std::filesystem::path file = std::filesystem::weakly_canonical(session_.file(), unresolved);
    return "sqlite:" + (unresolved ? session_.file() : file.string());
}

std::string SQLiteConnection::engine() const {
    return std::string("SQLite ") + sqlite3_libversion();
}

SQLiteProcedure& SQLiteConnection::procedure(const AnsiString& name) {
    const std::string key = melvark::LowerAscii(name);
    if (const auto prepared = procedures_.find(key); prepared != procedures_.end()) {
        return *prepared->second;
    }
    const std::span<const SqlFile> files = ownProcedures_ ? ownProcedures_->files() : sqliteFiles();
    const SqlFile* file = findProcedure(files, name);
    if (file == nullptr) {
        throw refusal("ML918", {shownText(name)});
    }
    if (!hasSchema()) {
        throw refusal("ML922", {session_.file()});
    }
    refuseAfterUpgrade();
    try {
        auto prepared = std::make_unique<SQLiteProcedure>(session_, readProcedure(*file, files));
        return *procedures_.emplace(key, std::move(prepared)).first->second;
    } catch (const std::logic_error& error) { // what it brings is not what its header says
        throw scriptError(name, error.what());
    }
}

TProcedureInfo SQLiteConnection::Describe(const AnsiString& name) {
    return procedure(name).info();
}

TCallResult SQLiteConnection::Execute(const TProcedureCall& call) {
    reading_.end();
    SQLiteProcedure& called = procedure(call.Name);
    try {
        SQLiteTransaction transaction(session_, called.isWriting() ? SQLiteTransaction::Kind::Writing
                                                                   : SQLiteTransaction::Kind::Reading);
        refuseAfterUpgrade();
        TCallResult result = called.run(call);
        transaction.commit();
        return result;
    } catch (const EDatabaseError&) {
        // The rollback took back what the call itself could have noted.
        if (called.script().Save.FailureRefusesStaging) {
            session_.execute(c_RefuseStaging);
        }
        throw;
    }
}

SQLiteStatement SQLiteConnection::readingStatement(const AnsiString& sql) {
    reading_.end();
    parameterValue(ParameterKind::Text, "sql", sql);
    std::string_view text = sql;
    const bool isCompany = hasSchema();
    if (isCompany) {
        refuseAfterUpgrade();
    }
    const ReadingOnly access(session_);
    try {
        std::vector<SQLiteStatement> statements = prepareStatements(session_, text);
        if (statements.size() != 1 || statements.front().columnCount() == 0) {
            refuseQuery(sql);
        }
        return std::move(statements.front());
    } catch (const EDatabaseError& error) {
        if (error.Details().starts_with("SQLite " + std::to_string(SQLITE_AUTH))) {
            refuseQuery(sql);
        }
        if (!isCompany && error.Cause() == TDatabaseCause::Failure) {
            throw refusal("ML922", {session_.file()}, error.Details());
        }
        throw;
    }
}

TResultTable SQLiteConnection::Query(const AnsiString& sql) {
    SQLiteStatement statement = readingStatement(sql);
    TResultTable table{statement.columns(), {}};
    while (statement.step()) {
        table.Rows.push_back(statement.row());
    }
    return table;
}

std::shared_ptr<RowReader> SQLiteConnection::openRows(const AnsiString& sql) {
    auto reader = std::make_shared<SQLiteReader>(readingStatement(sql));
    reading_.begin(reader);
    return reader;
}

std::vector<AnsiString> SQLiteConnection::columns(const AnsiString& sql) {
    return readingStatement(sql).columns();
}

} // namespace refhost
