#pragma once

#include "SqlProcedures.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <host/Connection.h>

/// The contract's connection over any database that Qt can reach. It knows nothing of the editor: what the procedures
/// do stands in the list that it is given.
class SqlConnection final : public TConnection {
public:
    /// The database is open.
    SqlConnection(QSqlDatabase database, std::vector<SqlProcedure> procedures);

    TProcedureInfo Describe(const AnsiString& procedure) override;
    /// All statements of the procedure in one transaction; a failure of one leaves nothing of the others.
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override;

private:
    const SqlProcedure& Find(const AnsiString& name) const;
    QSqlQuery Run(const QString& statement, const std::vector<TDbParam>& params) const;

    QSqlDatabase FDatabase;
    std::vector<SqlProcedure> FProcedures;
};
