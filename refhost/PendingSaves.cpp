#include "refhost/PendingSaves.h"

#include "host/StateFolder.h"
#include "refhost/OwnFolder.h"
#include "refhost/database/SaveIdentity.h"

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace refhost {

namespace {

constexpr const char* c_Ending = ".save";
constexpr const char* c_Heading = "melvark save 1\n";
/// A name under which a pipe or a link waits is neither followed nor waited for.
constexpr int c_Guarded = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

bool isOwn(const struct stat& entry, mode_t type) {
    return (entry.st_mode & S_IFMT) == type && entry.st_uid == geteuid();
}

/// The line without its end; empty when there is none that is whole.
std::string readLine(std::FILE* file) {
    std::array<char, 256> line{};
    if (std::fgets(line.data(), line.size(), file) == nullptr) {
        return {};
    }
    std::string text = line.data();
    if (!text.ends_with('\n')) {
        return {};
    }
    text.pop_back();
    return text;
}

/// Whether the mark is in the file and on the disk.
bool writeWhole(std::FILE* file, const SaveMark& mark) {
    const std::string text = c_Heading + mark.Place + "\n" + mark.Content + "\n";
    return std::fputs(text.c_str(), file) >= 0 && std::fflush(file) == 0 && fsync(fileno(file)) == 0;
}

void syncNames(const std::string& folder) {
    const int directory = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (directory >= 0) {
        fsync(directory); // some file systems have no need of it and refuse
        close(directory);
    }
}

} // namespace

void PendingSave::settle() noexcept {
    if (file_) {
        unlink(path_.c_str()); // one that comes back after a power failure is asked about once more
        file_.reset();
    }
}

bool PendingSaves::makeFolder() const {
    makeOwnFolder(folder_);
    struct stat found {};
    return lstat(folder_.c_str(), &found) == 0 && isOwn(found, S_IFDIR);
}

PendingSave PendingSaves::keep(SaveMark mark) const {
    PendingSave pending(std::move(mark));
    if (!makeFolder()) {
        return pending;
    }
    const std::string path = folder_ + "/" + pending.mark_.Identity + c_Ending;
    const int descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | c_Guarded, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        return pending;
    }
    pending.file_.reset(fdopen(descriptor, "r+"));
    pending.path_ = path;
    flock(descriptor, LOCK_EX); // whoever has it looks whether it was left behind, and sees that it is not whole
    if (writeWhole(pending.file_.get(), pending.mark_)) {
        syncNames(folder_);
    } else {
        pending.settle();
    }
    return pending;
}

std::vector<PendingSave> PendingSaves::leftBehind(const std::string& place) const {
    std::vector<PendingSave> found;
    std::error_code refused; // what a folder does not tell is not there
    for (std::filesystem::directory_iterator entry(folder_, refused), end; !refused && entry != end;
         entry.increment(refused)) {
        const std::filesystem::path& path = entry->path();
        if (path.extension() != c_Ending || !isSaveIdentity(path.stem().native())) {
            continue; // somebody's copy, perhaps
        }
        const int descriptor = open(path.c_str(), O_RDWR | c_Guarded);
        if (descriptor < 0) {
            continue;
        }
        PendingSave pending({.Identity = path.stem(), .Place = {}, .Content = {}});
        pending.path_ = path;
        pending.file_.reset(fdopen(descriptor, "r+"));
        struct stat status {};
        // One that was settled between its opening and its lock has no name any more.
        const bool isLeft = pending.file_ && flock(descriptor, LOCK_EX | LOCK_NB) == 0 &&
                            fstat(descriptor, &status) == 0 && isOwn(status, S_IFREG) && status.st_nlink == 1;
        if (!isLeft || readLine(pending.file_.get()) + "\n" != c_Heading) {
            continue;
        }
        pending.mark_.Place = readLine(pending.file_.get());
        pending.mark_.Content = readLine(pending.file_.get());
        if (pending.mark_.Place == place && !pending.mark_.Content.empty()) {
            found.push_back(std::move(pending));
        }
    }
    return found;
}

std::string pendingSavesFolder(const std::string& databaseDigest) {
    return melvark::StateFolder() + "/saves-" + databaseDigest;
}

} // namespace refhost
