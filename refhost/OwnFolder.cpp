#include "refhost/OwnFolder.h"

#include <system_error>

namespace refhost {

void makeOwnFolder(const std::filesystem::path& folder) {
    std::error_code refused;
    std::filesystem::create_directories(folder.parent_path(), refused);
    if (std::filesystem::create_directory(folder, refused)) {
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, refused);
    }
}

} // namespace refhost
