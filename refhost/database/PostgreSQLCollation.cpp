#include "refhost/database/PostgreSQLCollation.h"

namespace refhost {

namespace {

/// A row when the versions differ; none either in a database whose owner made it without our collation. Asks the
/// catalogue, which answers also whoever may do nothing in the schema.
constexpr const char* c_IsOutdated =
    "select 1 from pg_catalog.pg_collation c join pg_catalog.pg_namespace n on n.oid = c.collnamespace "
    "where n.nspname = 'melvark' and c.collname = 'czech' "
    "and c.collversion is distinct from pg_catalog.pg_collation_actual_version(c.oid)";

} // namespace

void refreshCollation(PostgreSQLSession& session) {
    if (PQntuples(session.execute(c_IsOutdated).get()) > 0) {
        session.execute("set lock_timeout = '60s'; select melvark.refresh_collation(); set lock_timeout = '5s'");
    }
}

} // namespace refhost
