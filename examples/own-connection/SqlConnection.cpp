#include "SqlConnection.h"

#include <QRegularExpression>
#include <QSqlError>
#include <QSqlRecord>
#include <QVariant>

#include <algorithm>
#include <host/Exceptions.h>
#include <utility>

namespace {

/// What the database says is for the clerk when a rule of ours said it (raise in a trigger); everything else goes into
/// the details, for whoever looks after the database.
[[noreturn]] void Throw(const QSqlError& error) {
    const AnsiString said = error.databaseText().toStdString();
    if (error.nativeErrorCode() == QStringLiteral("1811")) { // a constraint that a trigger raised
        throw EDatabaseError(said, "OWN01");
    }
    throw EDatabaseError("The database could not do it. Tell its administrator.", {}, said, TDatabaseCause::Failure);
}

struct ToVariant {
    QVariant operator()(std::monostate) const { return {}; }
    QVariant operator()(std::int64_t value) const { return QVariant::fromValue<qlonglong>(value); }
    QVariant operator()(double value) const { return value; }
    QVariant operator()(bool value) const { return value ? 1 : 0; }
    QVariant operator()(const AnsiString& value) const { return QString::fromStdString(value); }
};

TDbValue FromVariant(const QVariant& value) {
    if (value.isNull()) {
        return {};
    }
    switch (value.typeId()) {
    case QMetaType::LongLong:
        return std::int64_t{value.toLongLong()};
    case QMetaType::Double:
        return value.toDouble(); // a cell shows it with the locale's separator
    default:
        return value.toString().toStdString();
    }
}

TResultTable Fetch(QSqlQuery& query) {
    TResultTable table;
    const QSqlRecord columns = query.record();
    for (int column = 0; column < columns.count(); ++column) {
        table.Columns.push_back(columns.fieldName(column).toUpper().toStdString());
    }
    while (query.next()) {
        std::vector<TDbValue>& row = table.Rows.emplace_back();
        for (int column = 0; column < columns.count(); ++column) {
            row.push_back(FromVariant(query.value(column)));
        }
    }
    return table;
}

/// Rolls back unless the work came to its end.
class Transaction {
public:
    explicit Transaction(QSqlDatabase& database) : FDatabase(database) {
        if (!FDatabase.transaction()) {
            Throw(FDatabase.lastError());
        }
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction() {
        if (!FEnded) {
            FDatabase.rollback();
        }
    }
    void Commit() {
        if (!FDatabase.commit()) {
            Throw(FDatabase.lastError());
        }
        FEnded = true;
    }

private:
    QSqlDatabase& FDatabase;
    bool FEnded = false;
};

} // namespace

SqlConnection::SqlConnection(QSqlDatabase database, std::vector<SqlProcedure> procedures)
    : FDatabase(std::move(database)), FProcedures(std::move(procedures)) {}

TProcedureInfo SqlConnection::Describe(const AnsiString& procedure) {
    return {Find(procedure).Inputs, {}};
}

TCallResult SqlConnection::Execute(const TProcedureCall& call) {
    const SqlProcedure& procedure = Find(call.Name);
    TCallResult result;
    Transaction transaction(FDatabase);
    for (const QString& statement : procedure.Statements) {
        QSqlQuery query = Run(statement, call.Params);
        if (query.isSelect() && call.Open) {
            result.Sets.push_back(Fetch(query));
        }
    }
    transaction.Commit();
    return result;
}

TResultTable SqlConnection::Query(const AnsiString& sql) {
    QSqlQuery query = Run(QString::fromStdString(sql), {});
    return Fetch(query);
}

const SqlProcedure& SqlConnection::Find(const AnsiString& name) const {
    const auto found =
        std::ranges::find_if(FProcedures, [&](const SqlProcedure& one) { return SameDbName(one.Name, name); });
    if (found == FProcedures.end()) {
        throw EDatabaseError("This database has no procedure " + name + ".");
    }
    return *found;
}

/// A parameter that the statement names and the caller did not set is null.
QSqlQuery SqlConnection::Run(const QString& statement, const std::vector<TDbParam>& params) const {
    QSqlQuery query(FDatabase);
    if (!query.prepare(statement)) {
        Throw(query.lastError());
    }
    static const QRegularExpression place(QStringLiteral(":(a_\\w+)"));
    for (const QRegularExpressionMatch& match : place.globalMatch(statement)) {
        const AnsiString name = match.captured(1).toStdString();
        const auto given =
            std::ranges::find_if(params, [&](const TDbParam& one) { return SameDbName(one.Name, name); });
        query.bindValue(match.captured(0), given == params.end() ? QVariant() : std::visit(ToVariant(), given->Value));
    }
    if (!query.exec()) {
        Throw(query.lastError());
    }
    return query;
}
