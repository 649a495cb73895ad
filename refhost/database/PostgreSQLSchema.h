#pragma once

#include "refhost/database/PostgreSQLSession.h"

namespace refhost {

/// The company's schema on a server: it lies in the schema "melvark" of the database, which the role melvark_owner
/// owns; roles of the group melvark_clerk run the procedures and read the views.

/// Whether it is there. Throws EDatabaseError when the schema "melvark" is another program's or of another version.
bool hasPostgreSQLSchema(PostgreSQLSession& session);

/// Makes it, and the two roles where they are missing, in one transaction. The connecting role has to be allowed to.
/// Throws EDatabaseError with nothing made.
void createPostgreSQLSchema(PostgreSQLSession& session);

} // namespace refhost
