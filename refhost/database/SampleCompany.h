#pragma once

#include "refhost/database/Database.h"

#include <chrono>

namespace refhost {

/// Fills a database that has a schema and no rows with the sample company: a wholesaler with warehouses, suppliers,
/// stock items, price lists and a year and a half of orders and delivery notes that end today. The newest documents are
/// open, so that a clerk can try the editors at once; one open delivery note has no lines yet.
///
/// Everything comes from one fixed seed: on the same day every database gets the same rows with the same identifiers,
/// on either engine. `extraLines` above 0 adds one open order, one open delivery note and one open template of so many
/// lines each, for trials of speed. Throws EDatabaseError.
void createSampleCompany(Database& database, int extraLines);

/// The same as of another day than today. VAT rates are those that hold since 2024: the day should lie at least a year
/// and a half later.
void createSampleCompany(Database& database, int extraLines, std::chrono::sys_days today);

} // namespace refhost
