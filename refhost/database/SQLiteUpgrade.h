#pragma once

#include "refhost/database/UpgradeReport.h"

#include <string>

namespace refhost {

/// Brings an older company file to this program's version: in one transaction, after a copy of the file beside it
/// ("FILE.version-1"). Other programs wait meanwhile and then have to start again.
///
/// First run the steps of refhost/database/sqlite/upgrades on the old tables: they put right what the new ones would
/// refuse, and drop or rename what has gone. Then every table is made anew from the shipped SQL and takes over its
/// rows, so that constraints, indices and triggers need no step of their own. Tables, views, indices and triggers that
/// are not ours stay. Throws EDatabaseError with nothing changed.
UpgradeReport upgradeSQLiteFile(const std::string& file);

} // namespace refhost
