#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace refhost {

/// What an upgrade did, for the one who asked for it.
struct UpgradeReport {
    std::int64_t From = 0; ///< The version before; c_SchemaVersion when there was nothing to do.
    std::string Copy;      ///< The file with the database as it was; empty on a server.
    /// The procedures and functions that somebody had replaced by his own: they stay as he wrote them.
    std::vector<std::string> Kept;
};

} // namespace refhost
