#include "refhost/database/SQLiteCollation.h"

#include "refhost/database/SQLiteFunctions.h"
#include "refhost/database/SQLiteStatement.h"

namespace refhost {

namespace {

bool isOutdated(SQLiteSession& session) {
    std::string_view sql = "select VERZE from RAZENI where NAZEV = 'CZECH'";
    SQLiteStatement statement(session, sql);
    return !statement.step() || std::get<AnsiString>(statement.value(0)) != czechVersion();
}

} // namespace

void stampCollation(SQLiteSession& session) {
    session.execute("insert or replace into RAZENI (NAZEV, VERZE) values ('CZECH', '" + czechVersion() + "')");
}

void refreshCollation(SQLiteSession& session) {
    if (!isOutdated(session)) {
        return;
    }
    SQLiteTransaction transaction(session, SQLiteTransaction::Kind::Writing);
    // Asked again now that nobody else can write: another program may have been first.
    if (isOutdated(session)) {
        session.execute("reindex CZECH");
        stampCollation(session);
    }
    transaction.commit();
}

} // namespace refhost
