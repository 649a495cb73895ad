#include "refhost/OwnFolder.h"

#include <sys/stat.h>
#include <system_error>

namespace refhost {

void makeOwnFolder(const std::filesystem::path& folder) {
    std::error_code refused;
    std::filesystem::create_directories(folder.parent_path(), refused);
    mkdir(folder.c_str(), S_IRWXU);
}

} // namespace refhost
