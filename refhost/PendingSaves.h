#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace refhost {

/// What a save is recognised by when its closing call has no answer.
struct SaveMark {
    std::string Identity; ///< 32 hexadecimal digits, by which the database knows it.
    std::string Place;    ///< Whose save it is and of which document: a digest.
    std::string Content;  ///< All that was sent: a digest.
};

/// The mark of one save and the file that keeps it beyond the end of the program. While this object lives, no other
/// program takes the file for one that was left behind.
class PendingSave {
public:
    explicit PendingSave(SaveMark mark) : mark_(std::move(mark)) {}

    const SaveMark& mark() const { return mark_; }
    /// What became of the save is known: its file goes.
    void settle() noexcept;

private:
    friend class PendingSaves;

    struct Closer {
        void operator()(std::FILE* file) const noexcept { std::fclose(file); }
    };
    using File = std::unique_ptr<std::FILE, Closer>;

    SaveMark mark_;
    std::string path_; ///< Empty without a file.
    File file_;        ///< Locked.
};

/// The saves of this system's user on one database whose outcome no program has heard of yet, a file each in a folder
/// that is his alone. It knows no database.
class PendingSaves {
public:
    /// The folder is made when the first save is kept.
    explicit PendingSaves(std::string folder) : folder_(std::move(folder)) {}

    /// Has the mark on the disk before it returns. Where the system does not take the file, the mark lasts as long as
    /// the object: a save is not refused for that.
    PendingSave keep(SaveMark mark) const;

    /// What programs that have ended left behind for the place. A file that is not whole belongs to a call that was
    /// never sent.
    std::vector<PendingSave> leftBehind(const std::string& place) const;

private:
    bool makeFolder() const;

    std::string folder_;
};

/// The folder for the database of that digest: in the user's directory for the state of programs.
std::string pendingSavesFolder(const std::string& databaseDigest);

} // namespace refhost
