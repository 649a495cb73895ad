#include "refhost/TrustedFile.h"

#include <cstring>
#include <filesystem>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace refhost {

namespace {

/// Whether the group bears this process's user's name and lists nobody else: the private group that a user gets with
/// his account, in which his files stand on systems whose habit is to let a group write.
bool isOwnGroup(gid_t group) {
    const passwd* user = getpwuid(geteuid());
    const struct group* found = user ? getgrgid(group) : nullptr;
    if (!found || std::strcmp(found->gr_name, user->pw_name) != 0) {
        return false;
    }
    for (char** member = found->gr_mem; *member; ++member) {
        if (std::strcmp(*member, user->pw_name) != 0) {
            return false;
        }
    }
    return true;
}

/// Root can replace everything anyway.
bool isOpen(const std::filesystem::path& place, bool mayBeShared) {
    struct stat seen {};
    if (lstat(place.c_str(), &seen) != 0) {
        return true;
    }
    if (seen.st_uid != 0 && seen.st_uid != geteuid()) {
        return true;
    }
    const bool mayGroup = (seen.st_mode & S_IWGRP) != 0 && !isOwnGroup(seen.st_gid);
    if (!mayGroup && (seen.st_mode & S_IWOTH) == 0) {
        return false;
    }
    return !(mayBeShared && (seen.st_mode & S_ISVTX) != 0);
}

} // namespace

std::string openToOthers(const std::string& file) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(file, error);
    if (error) {
        return file;
    }
    const std::filesystem::path folder = real.parent_path();
    if (isOpen(real, false)) {
        return real.string();
    }
    for (std::filesystem::path place = folder;; place = place.parent_path()) {
        if (isOpen(place, place != folder)) {
            return place.string();
        }
        if (place == place.root_path()) {
            return "";
        }
    }
}

} // namespace refhost
