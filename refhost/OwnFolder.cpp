#include "refhost/OwnFolder.h"

#include <QDir>

#include <sys/stat.h>
#include <system_error>

namespace refhost {

void makeOwnFolder(const std::filesystem::path& folder) {
    std::error_code refused;
    std::filesystem::create_directories(folder.parent_path(), refused);
    mkdir(folder.c_str(), S_IRWXU);
}

std::string stateFolder() {
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base = QDir::isAbsolutePath(state) ? state : QDir::homePath() + QStringLiteral("/.local/state");
    return (base + QStringLiteral("/melvark")).toStdString();
}

} // namespace refhost
