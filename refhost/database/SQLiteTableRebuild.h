#pragma once

#include "refhost/database/SQLiteSession.h"

#include <string>

namespace refhost {

/// Makes the company's tables and views anew from the shipped SQL; the tables take over the rows of the old ones, after
/// `steps` have run on these. What is not ours stays, also on our tables. The caller has the transaction, foreign keys
/// off and the engine's old way of renaming on.
///
/// Throws EDatabaseError when a row does not keep the new tables' rules or an old table has a column that the new one
/// lacks.
void rebuildSQLiteTables(SQLiteSession& session, const std::string& steps);

} // namespace refhost
