#include "refhost/database/SchemaVersion.h"

#include "refhost/database/RefusalTable.h"

namespace refhost {

EDatabaseError otherVersionError(const std::string& database, std::int64_t version) {
    return refusal(version > c_SchemaVersion ? "ML914/newer" : "ML914", {database},
                   "database version " + std::to_string(version) + ", program version " +
                       std::to_string(c_SchemaVersion));
}

EDatabaseError upgradedMeanwhileError(const std::string& database) {
    return refusal("ML914/meanwhile", {database});
}

} // namespace refhost
