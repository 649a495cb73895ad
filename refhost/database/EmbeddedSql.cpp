#include "refhost/database/EmbeddedSql.h"

namespace refhost {

std::string_view sqlObjectName(const SqlFile& file) {
    constexpr std::string_view c_Extension = ".sql";
    const std::string_view name = file.Path.substr(file.Path.rfind('/') + 1);
    return name.substr(0, name.size() - c_Extension.size());
}

} // namespace refhost
