#include "refhost/PendingSaves.h"

#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace refhost {
namespace {

using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;

SaveMark mark(const std::string& place, char digit = 'a') {
    return {.Identity = std::string(32, digit), .Place = place, .Content = "content"};
}

class PendingSavesFolder : public testing::Test {
protected:
    /// What a program that has ended leaves behind.
    void leave(const SaveMark& left) const { PendingSaves(folder()).keep(left); }
    std::string folder() const { return temporary_.path() / "state" / "saves"; }
    std::string fileOf(const SaveMark& left) const { return folder() + "/" + left.Identity + ".save"; }

    const TemporaryFolder temporary_{"pending-saves"};
};

TEST_F(PendingSavesFolder, ASaveThatWasLeftBehindIsFoundAtItsPlaceWithAllThatItIsKnownBy) {
    leave(mark("here"));
    leave(mark("there", 'b'));
    const std::vector<PendingSave> found = PendingSaves(folder()).leftBehind("here");
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found.front().mark().Identity, std::string(32, 'a'));
    EXPECT_EQ(found.front().mark().Content, "content");
}

TEST_F(PendingSavesFolder, ASaveOfAProgramThatStillRunsIsNotTaken) {
    const PendingSaves saves(folder());
    const PendingSave running = saves.keep(mark("here"));
    EXPECT_THAT(PendingSaves(folder()).leftBehind("here"), IsEmpty());
}

TEST_F(PendingSavesFolder, OneThatIsTakenIsNotTakenAgain) {
    leave(mark("here"));
    const std::vector<PendingSave> first = PendingSaves(folder()).leftBehind("here");
    EXPECT_THAT(PendingSaves(folder()).leftBehind("here"), IsEmpty());
    EXPECT_THAT(first, SizeIs(1));
}

TEST_F(PendingSavesFolder, ASettledOneIsGone) {
    PendingSave kept = PendingSaves(folder()).keep(mark("here"));
    EXPECT_TRUE(std::ifstream(fileOf(mark("here"))).good());
    kept.settle();
    EXPECT_FALSE(std::ifstream(fileOf(mark("here"))).good());
    EXPECT_THAT(PendingSaves(folder()).leftBehind("here"), IsEmpty());
}

TEST_F(PendingSavesFolder, OneThatIsNotWholeBelongsToACallThatWasNeverSent) {
    leave(mark("here"));
    std::ofstream(fileOf(mark("here"))) << "melvark save 1\nhere\ncont";
    EXPECT_THAT(PendingSaves(folder()).leftBehind("here"), IsEmpty());
    std::ofstream(fileOf(mark("here"))) << "melvark save 2\nhere\ncontent\n";
    EXPECT_THAT(PendingSaves(folder()).leftBehind("here"), IsEmpty());
}

TEST_F(PendingSavesFolder, ACopyUnderAnotherNameIsNoSave) {
    leave(mark("here"));
    std::filesystem::rename(fileOf(mark("here")), folder() + "/" + std::string(32, 'a') + " (copy).save");
    EXPECT_THAT(PendingSaves(folder()).leftBehind("here"), IsEmpty());
}

TEST_F(PendingSavesFolder, ALinkIsNotFollowed) {
    leave(mark("here"));
    const std::string elsewhere = temporary_.path() / "elsewhere";
    std::filesystem::rename(fileOf(mark("here")), elsewhere);
    std::filesystem::create_symlink(elsewhere, fileOf(mark("here")));
    EXPECT_THAT(PendingSaves(folder()).leftBehind("here"), IsEmpty());
}

TEST_F(PendingSavesFolder, TheFolderAndItsFilesAreTheirOwnersAlone) {
    leave(mark("here"));
    struct stat status {};
    ASSERT_EQ(stat(folder().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
    ASSERT_EQ(stat(fileOf(mark("here")).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(PendingSavesFolder, WhereThereCanBeNoFolderTheMarkLastsAsLongAsItsObject) {
    std::ofstream(temporary_.path() / "state") << "a file is in the way";
    PendingSave kept = PendingSaves(folder()).keep(mark("here"));
    EXPECT_EQ(kept.mark().Place, "here");
    kept.settle();
}

TEST(PendingSavesFolderName, LiesInTheDirectoryForTheStateOfPrograms) {
    const char* const before = std::getenv("XDG_STATE_HOME");
    const std::string kept = before ? before : "";
    setenv("XDG_STATE_HOME", "/state", 1);
    EXPECT_EQ(pendingSavesFolder("d1"), "/state/melvark/saves-d1");
    setenv("XDG_STATE_HOME", "state", 1); // no absolute path: the desktop's rule is to pass over it
    EXPECT_THAT(pendingSavesFolder("d1"), EndsWith("/.local/state/melvark/saves-d1"));
    before ? setenv("XDG_STATE_HOME", kept.c_str(), 1) : unsetenv("XDG_STATE_HOME");
}

} // namespace
} // namespace refhost
