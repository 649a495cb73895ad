#include "refhost/database/SchemaVersion.h"

namespace refhost {

EDatabaseError otherVersionError(std::string_view database, std::int64_t version) {
    const std::string start = "Databáze „" + std::string(database);
    const std::string details =
        "database version " + std::to_string(version) + ", program version " + std::to_string(c_SchemaVersion);
    if (version > c_SchemaVersion) {
        return EDatabaseError(start + "“ je novější než tento program. Nainstalujte program její verze.", "ML914",
                              details);
    }
    return EDatabaseError(start + "“ je starší než tento program. Převeďte ji příkazem melvark-host "
                                  "--upgrade-database.",
                          "ML914", details);
}

EDatabaseError upgradedMeanwhileError(std::string_view database) {
    return EDatabaseError("Databáze „" + std::string(database) +
                              "“ byla mezitím převedena na jinou verzi. Ukončete program a spusťte jej znovu.",
                          "ML914");
}

} // namespace refhost
