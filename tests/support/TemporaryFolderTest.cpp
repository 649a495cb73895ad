#include "tests/support/TemporaryFolder.h"

#include <csignal>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

bool isThere(const fs::path& folder) {
    return fs::exists(folder);
}

/// The folder that a program of the kind "trial" left behind when it was killed, with a file in it.
fs::path leftByKilledProgram() {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t program = fork();
    if (program == 0) {
        const TemporaryFolder folder("trial");
        std::ofstream(folder.path() / "file") << "left";
        const std::string name = folder.path();
        static_cast<void>(write(ends[1], name.data(), name.size()) + kill(getpid(), SIGKILL));
    }
    waitpid(program, nullptr, 0);
    std::string name(4096, '\0');
    const ssize_t size = read(ends[0], name.data(), name.size());
    name.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    close(ends[0]);
    close(ends[1]);
    return name;
}

void noteServer(const fs::path& folder, pid_t server) {
    fs::create_directory(folder / "data");
    std::ofstream(folder / "data" / "postmaster.pid") << server << "\n/somewhere\n";
}

TEST(TemporaryFolder, IsThereAsLongAsItsOwnerAndTheOwnersAlone) {
    fs::path path;
    {
        const TemporaryFolder folder("trial");
        path = folder.path();
        std::ofstream(path / "file") << "text";
        EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
        const TemporaryFolder second("trial");
        EXPECT_NE(second.path(), path);
        EXPECT_TRUE(isThere(path)) << "a living program's folder is no leftover";
    }
    EXPECT_FALSE(isThere(path));
}

TEST(TemporaryFolder, WhatAKilledProgramLeftIsRemovedByTheNextOfItsKind) {
    const fs::path left = leftByKilledProgram();
    ASSERT_TRUE(isThere(left / "file"));
    { const TemporaryFolder other("other"); }
    EXPECT_TRUE(isThere(left)) << "another kind's";
    { const TemporaryFolder next("trial"); }
    EXPECT_FALSE(isThere(left));
}

TEST(TemporaryFolder, TheFolderOfAServerThatStillRunsStays) {
    const fs::path left = leftByKilledProgram();
    noteServer(left, getpid());
    { const TemporaryFolder next("trial"); }
    EXPECT_TRUE(isThere(left));
    noteServer(left, 0x3fffffff); // no process has so high a number
    { const TemporaryFolder next("trial"); }
    EXPECT_FALSE(isThere(left));
}

} // namespace
