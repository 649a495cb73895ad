#include "host/StateFolder.h"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

namespace melvark {

namespace {

/// The variable's value when it is an absolute path; the desktop's rule is to pass over others.
std::filesystem::path PathFrom(const char* variable) {
    const char* const value = std::getenv(variable);
    std::filesystem::path path = value ? value : "";
    return path.is_absolute() ? path : std::filesystem::path();
}

std::filesystem::path Home() {
    const std::filesystem::path home = PathFrom("HOME");
    if (!home.empty()) {
        return home;
    }
    const passwd* const user = getpwuid(geteuid());
    return user ? user->pw_dir : "/";
}

} // namespace

AnsiString StateFolder() {
    const std::filesystem::path state = PathFrom("XDG_STATE_HOME");
    return (state.empty() ? Home() / ".local" / "state" : state) / "melvark";
}

} // namespace melvark
