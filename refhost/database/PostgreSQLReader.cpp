#include "refhost/database/PostgreSQLReader.h"

#include "refhost/database/Database.h"
#include "refhost/database/PostgreSQLRows.h"

namespace refhost {

namespace {

constexpr const char* c_Declare = "declare melvark_rows no scroll cursor for ";
constexpr const char* c_Cursor = " from melvark_rows";

} // namespace

PostgreSQLReader::PostgreSQLReader(PostgreSQLSession& session, const AnsiString& sql) : session_(session) {
    transaction_.emplace(session_, PostgreSQLTransaction::Kind::Reading);
    const PostgreSQLResult description = session_.describe(sql);
    if (PQnfields(description.get()) == 0) {
        refuseQuery(sql);
    }
    columns_ = resultTable(description.get()).Columns;
    session_.describe(c_Declare + sql); // one statement only, whatever stands behind a semicolon
    session_.executeDescribed(c_Declare + sql);
}

RowReader::Rows PostgreSQLReader::fetch(std::size_t most) {
    return resultTable(session_.execute("fetch " + std::to_string(most) + c_Cursor).get()).Rows;
}

} // namespace refhost
