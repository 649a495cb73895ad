#pragma once

#include "editwin/model/Descriptor.h"
#include "host/Types.h"

#include <optional>

namespace melvark {

/// What stands under a name, without following a link.
enum class Entry {
    None,
    Own,    ///< A regular file of this user's, under this name only.
    Foreign ///< Anything else.
};

/// A directory that this user alone may enter, and the files in it that he alone may read. Every name is one in the
/// directory, which was opened once: whoever renames or replaces a directory on the way to it changes nothing here.
/// Each function throws std::system_error when the system refuses, save where it says otherwise.
class PrivateDirectory {
public:
    /// Opens the directory and makes it when it is missing, its missing parents, too; its rights become its owner's
    /// alone. Nothing when the name is taken by a link, by what is no directory, or by another user's directory.
    static std::optional<PrivateDirectory> Open(const AnsiString& path);

    /// Whether the directory was removed since it was opened.
    bool IsGone() const;

    Entry Look(const AnsiString& name) const;
    /// Makes the file; it is its owner's alone from the first byte. Fails when the name is taken.
    Descriptor Make(const AnsiString& name) const;
    /// A file of this user's for reading; one that is not open when something else stands there.
    Descriptor OpenToRead(const AnsiString& name) const;
    /// Makes or opens a file and takes its lock, which ends with the descriptor or the process; one that is not open
    /// when somebody else has it.
    Descriptor Lock(const AnsiString& name) const;

    /// Whether the name stands for this very file.
    bool IsNamed(const AnsiString& name, const Descriptor& file) const;

    void Rename(const AnsiString& from, const AnsiString& to) const;
    /// Whether the name is free now.
    bool Remove(const AnsiString& name) const noexcept;
    /// Waits until the names are on the disk.
    void Sync() const;

private:
    explicit PrivateDirectory(Descriptor directory) : FDirectory(std::move(directory)) {}

    Descriptor FDirectory;
};

/// Waits until what was written is on the disk. Throws std::system_error.
void SyncFile(const Descriptor& file);

} // namespace melvark
