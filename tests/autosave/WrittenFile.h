#pragma once

#include "editwin/model/KeptFile.h"
#include "host/Types.h"
#include "tests/host/FakeHost.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <string_view>

/// A test of the file of unsaved work in a folder of its own that disappears with the test.
class WrittenFileTest : public testing::Test {
protected:
    WrittenFileTest();

    /// The file's directory, which is not there yet.
    std::filesystem::path directory() const { return folder_ / "melvark"; }
    std::filesystem::path path(std::string_view suffix = "") const;
    /// Makes the directory, and a file in it as another program run would have left it.
    void leave(std::string_view suffix, const AnsiString& text) const;
    /// What stands in the directory, sorted: "x.dat x.dat.kept".
    AnsiString listing() const;
    /// The text of a file, by whichever way; "none" when there is no file.
    static AnsiString textOf(const std::filesystem::path& file);

    static void write(melvark::KeptFile& file, const AnsiString& text);
    /// What an editor would restore; "nothing" when there is none, "unread" when the system does not give it.
    static AnsiString restored(melvark::KeptFile& file);
    AnsiString restoredNext() const;

    TemporaryFolder temporary_{"autosave"};
    std::filesystem::path folder_ = temporary_.path();
    FakeHost host_;
    TScopedHost scope_{host_};
};

/// Gives up the rights of the administrator, who may do everything, for its scope. Nothing for somebody else.
class OrdinaryUser {
public:
    static constexpr unsigned c_Id = 61234;

    OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser();
};
