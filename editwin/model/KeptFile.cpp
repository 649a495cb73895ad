#include "editwin/model/KeptFile.h"

#include "editwin/model/AutosaveErrors.h"

#include <cerrno>
#include <filesystem>
#include <istream>
#include <ostream>
#include <system_error>

namespace melvark {

namespace {

/// Writes, and waits until what was written is on the disk.
void WriteWhole(Descriptor& file, const std::function<void(std::ostream&)>& write) {
    DescriptorOutput buffer(file);
    std::ostream stream(&buffer);
    stream.exceptions(std::ios::badbit); // the buffer's own error comes out, not the stream's
    write(stream);
    SyncFile(file);
    if (!file.Close()) {
        throw std::system_error(errno, std::generic_category());
    }
}

} // namespace

KeptFile::KeptFile(AnsiString path)
    : FPath(std::move(path)),
      FName(std::filesystem::path(FPath).filename()),
      FNewName(FName + ".new"),
      FCopyName(FName + ".kept"),
      FLockName(FName + ".lock") {}

// The lock's file goes while the lock is still held: nobody else can have taken it. What else stands there by now
// stays.
KeptFile::~KeptFile() {
    try {
        if (IsHeld() && FDirectory->IsNamed(FLockName, FLock)) {
            FDirectory->Remove(FLockName);
        }
    } catch (const std::system_error&) {
        return; // It stays, and hinders nobody.
    }
}

bool KeptFile::HasContent() {
    if (!TryToHold()) {
        return false;
    }
    try {
        return !ContentName().empty();
    } catch (const std::system_error& refusal) {
        throw AutosaveUnread(refusal.code().value(), FPath);
    }
}

void KeptFile::Read(const std::function<void(std::istream&)>& read) {
    if (!IsHeld()) {
        return;
    }
    try {
        const Descriptor file = FDirectory->OpenToRead(ContentName());
        if (!file.IsOpen()) {
            throw AutosaveForeign(FPath);
        }
        DescriptorInput buffer(file);
        std::istream stream(&buffer);
        read(stream);
        FIsKnown = true;
    } catch (const std::system_error& refusal) {
        throw AutosaveUnread(refusal.code().value(), FPath);
    }
}

void KeptFile::Write(const std::function<void(std::ostream&)>& write) {
    try {
        if (!Hold()) {
            return;
        }
        if (FDirectory->Look(FName) == Entry::Foreign) {
            throw AutosaveForeign(FPath);
        }
        if (!MayReplace()) {
            throw AutosaveOverUnread(FPath);
        }
        PutInPlace(write);
        FIsKnown = true;
        FDirectory->Sync();
        RemoveOwn(FCopyName);
    } catch (const std::system_error& refusal) {
        throw AutosaveRefused(refusal.code().value(), FPath);
    }
}

void KeptFile::SetAside() noexcept {
    try {
        if (IsHeld() && FIsKnown && FDirectory->Look(FName) == Entry::Own &&
            FDirectory->Look(FCopyName) != Entry::Foreign) {
            FDirectory->Rename(FName, FCopyName);
        }
    } catch (const std::system_error&) {
        return; // Then it stays under its own name, and the next write tells what is wrong.
    }
}

void KeptFile::Remove() noexcept {
    try {
        if (!IsHeld() || !MayReplace()) {
            return;
        }
        // The copy goes first: alone, it would be offered in place of the newer content.
        for (const AnsiString* name : {&FCopyName, &FName, &FNewName}) {
            RemoveOwn(*name);
        }
        // Work that was saved must not come back after a power failure.
        FDirectory->Sync();
    } catch (const std::system_error&) {
        return; // What cannot be removed is offered once more, and the database decides.
    }
}

bool KeptFile::Hold() {
    if (IsHeld() && FDirectory->IsGone()) {
        FState = State::Untouched; // A directory that was removed took the lock with it.
        FIsKnown = false;
    }
    if (FState == State::Untouched) {
        auto directory = PrivateDirectory::Open(std::filesystem::path(FPath).parent_path());
        if (!directory || directory->Look(FLockName) == Entry::Foreign) {
            throw AutosaveForeign(FPath);
        }
        FLock = directory->Lock(FLockName);
        FDirectory = std::move(directory);
        FState = FLock.IsOpen() ? State::Held : State::Elsewhere;
    }
    return IsHeld();
}

bool KeptFile::TryToHold() {
    try {
        return Hold();
    } catch (const std::system_error&) {
        return false;
    } catch (const EInOutError&) {
        return false;
    }
}

void KeptFile::PutInPlace(const std::function<void(std::ostream&)>& write) {
    RemoveOwn(FNewName); // what an interrupted write left
    if (FDirectory->Look(FNewName) == Entry::Foreign) {
        throw AutosaveForeign(FPath);
    }
    Descriptor file = FDirectory->Make(FNewName);
    try {
        WriteWhole(file, write);
        FDirectory->Rename(FNewName, FName);
    } catch (...) {
        FDirectory->Remove(FNewName);
        throw;
    }
}

void KeptFile::RemoveOwn(const AnsiString& name) {
    if (FDirectory->Look(name) == Entry::Own) {
        FDirectory->Remove(name);
    }
}

AnsiString KeptFile::ContentName() const {
    for (const AnsiString* name : {&FName, &FCopyName}) {
        if (FDirectory->Look(*name) == Entry::Own) {
            return *name;
        }
    }
    return {};
}

} // namespace melvark
