#include "refhost/database/EmbeddedSql.h"

namespace refhost {

std::string_view sqlObjectName(const SqlFile& file) {
    constexpr std::string_view c_Extension = ".sql";
    const std::string_view name = file.Path.substr(file.Path.rfind('/') + 1);
    return name.substr(0, name.size() - c_Extension.size());
}

std::string folderText(std::span<const SqlFile> files, std::string_view folder) {
    std::string text;
    for (const SqlFile& file : files) {
        if (file.Path.starts_with(folder)) {
            text.append(file.Text).append("\n");
        }
    }
    return text;
}

} // namespace refhost
