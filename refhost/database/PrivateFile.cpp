#include "refhost/database/PrivateFile.h"

#include <fcntl.h>
#include <unistd.h>

namespace refhost {

bool makePrivateFile(const std::string& path) noexcept {
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return descriptor >= 0 && close(descriptor) == 0;
}

} // namespace refhost
