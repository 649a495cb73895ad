#include "refhost/database/UpgradeSteps.h"

#include "refhost/database/SchemaVersion.h"

namespace refhost {

std::string upgradeSteps(std::span<const SqlFile> files, std::int64_t version) {
    std::string steps;
    while (version < c_SchemaVersion) {
        steps += folderText(files, "upgrades/" + std::to_string(++version) + ".sql");
    }
    return steps;
}

} // namespace refhost
