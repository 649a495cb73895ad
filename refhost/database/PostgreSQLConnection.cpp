#include "refhost/database/PostgreSQLConnection.h"

#include "host/AsciiCase.h"
#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/PostgreSQLCollation.h"
#include "refhost/database/PostgreSQLErrors.h"
#include "refhost/database/PostgreSQLReader.h"
#include "refhost/database/PostgreSQLRows.h"
#include "refhost/database/PostgreSQLSchema.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SchemaVersion.h"
#include "refhost/database/SqlScript.h"

#include <algorithm>

namespace refhost {

namespace {

/// How often a call is begun before the user hears that the others are in the way.
constexpr int c_MostAttempts = 5;

/// What the procedure is in a save; nothing particular for one that we do not have.
SqlScript::SaveRole saveRole(std::string_view name) {
    // Read once: a save asks for every row.
    static const std::map<std::string, SqlScript::SaveRole> roles = [] {
        std::map<std::string, SqlScript::SaveRole> read;
        for (const SqlFile& file : postgresqlFiles()) {
            if (file.Path.starts_with("procedures/")) {
                read[melvark::LowerAscii(sqlObjectName(file))] = readSqlScript(file, postgresqlFiles()).Save;
            }
        }
        return read;
    }();
    const auto found = roles.find(melvark::LowerAscii(name));
    return found == roles.end() ? SqlScript::SaveRole() : found->second;
}

std::string joined(std::span<const std::string> names) {
    std::string list;
    for (const std::string& name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    return list;
}

/// Identifiers that were given lie below those that the table makes from now on.
void raiseSequence(PostgreSQLSession& session, const std::string& table) {
    session.execute("select setval(pg_get_serial_sequence('melvark." + table + "', 'id'), max(ID)) from melvark." +
                    table);
}

} // namespace

PostgreSQLConnection::PostgreSQLConnection(const std::string& address, const TFormatSettings& settings)
    : session_(address, settings) {
    session_.heed(stopSignal());
    if (hasSchema()) { // another program's is refused at once
        refreshCollation(session_);
    }
}

void PostgreSQLConnection::refuseAfterUpgrade() {
    if (session_.isUpgraded()) {
        throw upgradedMeanwhileError(session_.database());
    }
}

void PostgreSQLConnection::restoreLink() {
    reading_.end();
    endRows();
    refuseAfterUpgrade();
    if (!session_.isLost()) {
        return;
    }
    procedures_.clear();
    session_.reconnect();
    hasPostgreSQLSchema(session_); // one that was upgraded while the link was lost is refused
}

bool PostgreSQLConnection::hasSchema() {
    restoreLink();
    return hasPostgreSQLSchema(session_);
}

void PostgreSQLConnection::createSchema() {
    restoreLink();
    createPostgreSQLSchema(session_);
}

void PostgreSQLConnection::inOneTransaction(const std::function<void()>& work) {
    restoreLink();
    PostgreSQLTransaction transaction(session_, PostgreSQLTransaction::Kind::Writing);
    work();
    transaction.commit();
}

void PostgreSQLConnection::useProcedures(const std::string& /*folder*/) {
    throw refusal("ML931", {session_.database()});
}

void PostgreSQLConnection::insertRows(std::string_view table, std::span<const std::string> columns,
                                      std::span<const std::vector<TDbValue>> rows) {
    restoreLink();
    const std::string name = melvark::LowerAscii(table);
    PostgreSQLTransaction transaction(session_, PostgreSQLTransaction::Kind::Writing);
    session_.copy("copy melvark." + name + " (" + joined(columns) + ") from stdin", rows);
    if (std::ranges::any_of(columns, [](const std::string& column) { return SameDbName(column, "ID"); })) {
        raiseSequence(session_, name);
    }
    transaction.commit();
}

void PostgreSQLConnection::runScript(std::string_view sql) {
    restoreLink();
    PostgreSQLTransaction transaction(session_, PostgreSQLTransaction::Kind::Writing);
    session_.execute(std::string(sql));
    transaction.commit();
}

void PostgreSQLConnection::runBuiltInScript(std::string_view path) {
    runScript(builtInScript(path, postgresqlFiles()).Text);
}

const PostgreSQLProcedure& PostgreSQLConnection::procedure(const AnsiString& name) {
    const std::string key = melvark::LowerAscii(name);
    if (const auto known = procedures_.find(key); known != procedures_.end()) {
        return known->second;
    }
    endRows();
    parameterValue(ParameterKind::Text, "procedure", name);
    auto found = PostgreSQLProcedure::find(session_, name);
    if (!found && !hasSchema()) {
        throw refusal("ML922", {session_.database()});
    }
    if (!found) {
        throw refusal("ML918", {shownText(name)});
    }
    return procedures_.emplace(key, *std::move(found)).first->second;
}

TProcedureInfo PostgreSQLConnection::Describe(const AnsiString& name) {
    if (!saveRole(name).FailureRefusesStaging) { // else the caller is about to go on with a save, which a new link ends
        restoreLink();
    }
    return procedure(name).info();
}

TCallResult PostgreSQLConnection::executeAgainstConflicts(const TProcedureCall& call) {
    for (int attempt = 1;; ++attempt) {
        try {
            return procedure(call.Name).run(session_, call);
        } catch (const EPostgreSQLError& error) {
            if (!error.isConflict() || attempt == c_MostAttempts) {
                throw;
            }
        }
    }
}

TCallResult PostgreSQLConnection::Execute(const TProcedureCall& call) {
    reading_.end();
    const SqlScript::SaveRole role = saveRole(call.Name);
    if (role.AnswerMayComeLater) {
        refuseAfterUpgrade();
        const int row = rowsOfSave_++;
        if (!call.Open && procedure(call.Name).bringsNothing()) {
            return sendRow(call, row);
        }
    }
    endRows();
    if (role.Begins) {
        rows_.forgetFailure(); // of a save that was given up
        rowsOfSave_ = 0;
    }
    if (role.FailureRefusesStaging) {
        throwRowFailure();
        refuseAfterUpgrade();
    } else {
        restoreLink();
    }
    try {
        return executeAgainstConflicts(call);
    } catch (const EDatabaseError&) {
        // The rollback took back what the call itself could have noted.
        if (role.FailureRefusesStaging) {
            refuseStaging();
        }
        throw;
    }
}

TCallResult PostgreSQLConnection::sendRow(const TProcedureCall& call, int row) {
    try {
        if (!rows_.failure()) {
            const PostgreSQLProcedure::Statement statement = procedure(call.Name).statement(call);
            rows_.send(statement.Sql, statement.Values, row);
        }
    } catch (const EDatabaseError&) {
        endRows();
        throwRowFailure(); // that of an earlier row came first
        refuseStaging();
        throw;
    }
    if (rows_.failure()) {
        endRows();
        throwRowFailure();
    }
    TCallResult result;
    result.Answered = false;
    return result;
}

void PostgreSQLConnection::endRows() {
    if (!rows_.isOpen()) {
        return;
    }
    rows_.finish();
    if (rows_.failure()) {
        refuseStaging();
    }
}

void PostgreSQLConnection::awaitAnswers() {
    endRows();
    throwRowFailure();
}

void PostgreSQLConnection::throwRowFailure() {
    if (const std::optional<EDatabaseError> failure = rows_.failure()) {
        rows_.forgetFailure();
        throw EDatabaseError(*failure);
    }
}

void PostgreSQLConnection::refuseStaging() {
    if (!session_.isLost()) {
        stopSignal().clear(); // or it would stop this, too
        session_.execute("select set_config('melvark.staging', 'refused', false) "
                         "where current_setting('melvark.staging', true) = 'open'");
    }
}

template <typename Work>
auto PostgreSQLConnection::reading(const AnsiString& sql, Work work) {
    parameterValue(ParameterKind::Text, "sql", sql);
    restoreLink();
    try {
        return work();
    } catch (const EPostgreSQLError& error) {
        if (error.isNoReadingStatement()) {
            refuseQuery(sql);
        }
        if (error.isMissingTable() && !hasPostgreSQLSchema(session_)) {
            throw refusal("ML922", {session_.database()}, error.Details());
        }
        throw;
    }
}

TResultTable PostgreSQLConnection::Query(const AnsiString& sql) {
    return reading(sql, [&] {
        const PostgreSQLTransaction transaction(session_, PostgreSQLTransaction::Kind::Reading);
        if (PQnfields(session_.describe(sql).get()) == 0) {
            refuseQuery(sql);
        }
        return resultTable(session_.executeDescribed(sql).get());
    });
}

std::shared_ptr<RowReader> PostgreSQLConnection::openRows(const AnsiString& sql) {
    auto reader = reading(sql, [&] { return std::make_shared<PostgreSQLReader>(session_, sql); });
    reading_.begin(reader);
    return reader;
}

} // namespace refhost
