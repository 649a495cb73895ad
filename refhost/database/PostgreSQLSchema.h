#pragma once

#include "refhost/database/PostgreSQLSession.h"

#include <cstdint>

namespace refhost {

/// The company's schema on a server: it lies in the schema "melvark" of the database, which the role melvark_owner
/// owns; roles of the group melvark_clerk run the procedures and read the views.

/// The version of the schema; 0 when there is none yet. Throws EDatabaseError when the schema "melvark" is another
/// program's.
std::int64_t postgresqlSchemaVersion(PostgreSQLSession& session);

/// Whether it is there. Throws EDatabaseError when the schema "melvark" is another program's or of another version.
bool hasPostgreSQLSchema(PostgreSQLSession& session);

/// Makes it, and the two roles where they are missing, in one transaction. The connecting role has to be allowed to.
/// Throws EDatabaseError with nothing made.
void createPostgreSQLSchema(PostgreSQLSession& session);

/// The steps that making and upgrading share; the caller has the transaction.
///
/// Whoever else makes or upgrades one in this database goes first; waits up to a minute.
void waitForOtherMakers(PostgreSQLSession& session);
/// Roles and rights of the database as the connecting role, then on as the owner until the transaction ends.
void beginPostgreSQLSchema(PostgreSQLSession& session);
/// Types, functions, views and procedures, marked as ours.
void createPostgreSQLRoutines(PostgreSQLSession& session);
/// The rights of clerks, and the version.
void finishPostgreSQLSchema(PostgreSQLSession& session);

} // namespace refhost
