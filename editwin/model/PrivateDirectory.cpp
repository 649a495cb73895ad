#include "editwin/model/PrivateDirectory.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace melvark {

namespace {

constexpr mode_t c_OwnersDirectory = S_IRWXU;
constexpr mode_t c_OwnersFile = S_IRUSR | S_IWUSR;
constexpr mode_t c_Rights = S_IRWXU | S_IRWXG | S_IRWXO;
/// A name under which a pipe, a device or a link waits is neither followed nor waited for.
constexpr int c_Guarded = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

[[noreturn]] void Refused() {
    throw std::system_error(errno, std::generic_category());
}

template <class Call>
int Retried(Call call) {
    int result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

template <class Call>
int Checked(Call call) {
    const int result = Retried(call);
    if (result < 0) {
        Refused();
    }
    return result;
}

bool IsOwnFile(const struct stat& entry) {
    return S_ISREG(entry.st_mode) && entry.st_uid == geteuid() && entry.st_nlink == 1;
}

struct stat StatusOf(const Descriptor& file) {
    struct stat status {};
    Checked([&] { return fstat(file.Number(), &status); });
    return status;
}

bool IsSameFile(const struct stat& left, const struct stat& right) {
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

void SyncDirectory(const Descriptor& directory) {
    if (Retried([&] { return fsync(directory.Number()); }) != 0 && errno != EINVAL) { // some file systems have no need
        Refused();
    }
}

/// Has the directory's names on the disk. One that may be written but not listed cannot be synced.
void SyncNames(const std::filesystem::path& path) {
    const Descriptor directory(Retried([&] { return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (directory.IsOpen()) {
        SyncDirectory(directory);
    } else if (errno != EACCES) {
        Refused();
    }
}

bool IsThere(const std::filesystem::path& path) {
    struct stat status {};
    if (Retried([&] { return stat(path.c_str(), &status); }) == 0) {
        return true;
    }
    if (errno != ENOENT && errno != ENOTDIR) {
        Refused();
    }
    return false;
}

void MakeDirectory(const std::filesystem::path& path) {
    const std::filesystem::path parent = path.has_parent_path() ? path.parent_path() : ".";
    if (!IsThere(parent)) {
        MakeDirectory(parent);
    }
    if (Retried([&] { return mkdir(path.c_str(), c_OwnersDirectory); }) == 0) {
        SyncNames(parent); // a file in a directory that a power failure takes away is lost, synced or not
    } else if (errno != EEXIST) {
        Refused();
    }
}

} // namespace

std::optional<PrivateDirectory> PrivateDirectory::Open(const AnsiString& path) {
    MakeDirectory(path);
    Descriptor directory(Retried([&] { return open(path.c_str(), O_RDONLY | O_DIRECTORY | c_Guarded); }));
    if (!directory.IsOpen()) {
        if (errno == ENOTDIR || errno == ELOOP) {
            return std::nullopt;
        }
        Refused();
    }
    const struct stat status = StatusOf(directory);
    if (status.st_uid != geteuid()) {
        return std::nullopt;
    }
    if ((status.st_mode & c_Rights) != c_OwnersDirectory) {
        Checked([&] { return fchmod(directory.Number(), c_OwnersDirectory); });
    }
    return PrivateDirectory(std::move(directory));
}

bool PrivateDirectory::IsGone() const {
    return StatusOf(FDirectory).st_nlink == 0;
}

Entry PrivateDirectory::Look(const AnsiString& name) const {
    struct stat status {};
    if (Retried([&] { return fstatat(FDirectory.Number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW); }) == 0) {
        return IsOwnFile(status) ? Entry::Own : Entry::Foreign;
    }
    if (errno != ENOENT) {
        Refused();
    }
    return Entry::None;
}

Descriptor PrivateDirectory::Make(const AnsiString& name) const {
    return Descriptor(Checked([&] {
        return openat(FDirectory.Number(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | c_Guarded, c_OwnersFile);
    }));
}

Descriptor PrivateDirectory::OpenToRead(const AnsiString& name) const {
    if (Look(name) != Entry::Own) {
        return Descriptor();
    }
    Descriptor file(Checked([&] { return openat(FDirectory.Number(), name.c_str(), O_RDONLY | c_Guarded); }));
    return IsOwnFile(StatusOf(file)) ? std::move(file) : Descriptor();
}

// Whoever had the lock before may have removed the file after this one was opened: then the lock is worth nothing, and
// the file of that name is another one.
Descriptor PrivateDirectory::Lock(const AnsiString& name) const {
    while (true) {
        Descriptor file(Checked(
            [&] { return openat(FDirectory.Number(), name.c_str(), O_RDWR | O_CREAT | c_Guarded, c_OwnersFile); }));
        if (Retried([&] { return flock(file.Number(), LOCK_EX | LOCK_NB); }) != 0) {
            if (errno == EWOULDBLOCK) {
                return Descriptor();
            }
            Refused();
        }
        if (IsNamed(name, file)) {
            return file;
        }
    }
}

bool PrivateDirectory::IsNamed(const AnsiString& name, const Descriptor& file) const {
    struct stat named {};
    if (Retried([&] { return fstatat(FDirectory.Number(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW); }) == 0) {
        return IsSameFile(named, StatusOf(file));
    }
    if (errno != ENOENT) {
        Refused();
    }
    return false;
}

void PrivateDirectory::Rename(const AnsiString& from, const AnsiString& to) const {
    Checked([&] { return renameat(FDirectory.Number(), from.c_str(), FDirectory.Number(), to.c_str()); });
}

bool PrivateDirectory::Remove(const AnsiString& name) const noexcept {
    return Retried([&] { return unlinkat(FDirectory.Number(), name.c_str(), 0); }) == 0 || errno == ENOENT;
}

void PrivateDirectory::Sync() const {
    SyncDirectory(FDirectory);
}

void SyncFile(const Descriptor& file) {
    Checked([&] { return fsync(file.Number()); });
}

} // namespace melvark
