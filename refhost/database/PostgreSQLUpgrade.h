#pragma once

#include "refhost/database/PostgreSQLSession.h"
#include "refhost/database/UpgradeReport.h"

namespace refhost {

/// Brings an older company schema on a server to this program's version, in one transaction that waits for the calls
/// under way and keeps new ones waiting. The programs that are connected hear of it and then have to start again.
///
/// The steps of refhost/database/postgresql/upgrades change the tables; functions, views, types and rights are made
/// anew from the shipped SQL. A procedure or function that somebody replaced stays as he wrote it, and is named. The
/// connecting role has to be a member of melvark_owner. Throws EDatabaseError with nothing changed.
UpgradeReport upgradePostgreSQLSchema(PostgreSQLSession& session);

} // namespace refhost
