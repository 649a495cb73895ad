#pragma once

#include "editwin/model/PrivateDirectory.h"
#include "host/Types.h"

#include <functional>
#include <iosfwd>
#include <optional>

namespace melvark {

/// The file in which one editor keeps its unsaved work. Under its name there is always a whole content, the last or the
/// one before, whenever the process or the machine ends.
///
/// Content that is no longer to be offered as the current one, but is not saved either, is set aside under a second
/// name. It goes with the next content that is written. An editor that finds only that copy takes it as its file.
///
/// Whoever holds the file has it alone, in this process and in others, until the object or the process ends. HasContent
/// and Write take hold of it; where another one holds it, nothing is read, written or removed. A link, a pipe, a
/// directory or another user's file under one of the names is left as it is.
///
/// Content that the object finds is replaced, set aside and removed only after the system has given it to a reader:
/// what cannot be had now may be all that is left of a day's work. A copy that stands beside it is older and goes with
/// it unread.
class KeptFile {
public:
    /// `path` is absolute. Nothing is touched yet.
    explicit KeptFile(AnsiString path);
    KeptFile(const KeptFile&) = delete;
    KeptFile& operator=(const KeptFile&) = delete;
    /// Lets go of the file and leaves it as it is.
    ~KeptFile();

    const AnsiString& Path() const { return FPath; }
    /// Another editor has it, as HasContent or Write found out; so it stays.
    bool IsHeldElsewhere() const { return FState == State::Elsewhere; }

    /// Whether there is content to be read: the file's, or else that of the copy. False also when the file is held
    /// elsewhere, and when it cannot be taken hold of, which the next Write tells. Throws EInOutError when it cannot be
    /// looked at.
    bool HasContent();
    /// Hands the content to `read`, which HasContent said is there; nothing when the file is not held here. Throws
    /// EInOutError when the system does not give it; other errors of `read` pass through.
    void Read(const std::function<void(std::istream&)>& read);

    /// Puts what `write` writes in the place of the content and waits until it is on the disk. Throws EInOutError when
    /// that cannot be done, or when there is content that was not read; the content is then the one before or the
    /// new one. Does nothing when the file is held elsewhere.
    void Write(const std::function<void(std::ostream&)>& write);
    /// Keeps the content under the second name.
    void SetAside() noexcept;
    /// Removes the content and the copy.
    void Remove() noexcept;

private:
    enum class State { Untouched, Held, Elsewhere };

    /// False when another editor holds the file; throws what Write throws.
    bool Hold();
    /// False also when Hold throws.
    bool TryToHold();
    bool IsHeld() const { return FState == State::Held; }
    /// Whether what stands there, if anything, is this object's to replace.
    bool MayReplace() const { return FIsKnown || ContentName().empty(); }
    void PutInPlace(const std::function<void(std::ostream&)>& write);
    void RemoveOwn(const AnsiString& name);
    /// The name of what is to be read, empty when there is nothing.
    AnsiString ContentName() const;

    AnsiString FPath;
    AnsiString FName;
    AnsiString FNewName;
    AnsiString FCopyName;
    AnsiString FLockName;
    State FState = State::Untouched;
    bool FIsKnown = false; ///< The content was read, or written here.
    std::optional<PrivateDirectory> FDirectory;
    Descriptor FLock;
};

} // namespace melvark
