#pragma once

#include "refhost/database/EmbeddedSql.h"

#include <cstdint>
#include <span>
#include <string>

namespace refhost {

/// The upgrade steps of an engine, "upgrades/N.sql" for the step from version N-1 to N, from `version` to this
/// program's, one after the other in one text. A version without a file needs no step.
std::string upgradeSteps(std::span<const SqlFile> files, std::int64_t version);

} // namespace refhost
