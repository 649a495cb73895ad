#include "editwin/model/PrivateDirectory.h"

#include "tests/autosave/WrittenFile.h"

#include <cerrno>
#include <fstream>
#include <functional>
#include <system_error>

namespace {

using namespace melvark;

class PrivateDirectories : public WrittenFileTest {
protected:
    PrivateDirectory open() const { return PrivateDirectory::Open(directory()).value(); }
};

int errorOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::system_error& error) {
        return error.code().value();
    }
    return 0;
}

TEST_F(PrivateDirectories, TellWhatStandsUnderAName) {
    const PrivateDirectory directory = open();
    std::ofstream(path()) << "own";
    std::filesystem::create_symlink("x.dat", path(".link"));
    std::filesystem::create_directory(path(".folder"));
    EXPECT_EQ(directory.Look("x.dat"), Entry::Own);
    EXPECT_EQ(directory.Look("x.dat.link"), Entry::Foreign);
    EXPECT_EQ(directory.Look("x.dat.folder"), Entry::Foreign);
    EXPECT_EQ(directory.Look("y.dat"), Entry::None);
    EXPECT_EQ(errorOf([&] { directory.Look(AnsiString(300, 'x')); }), ENAMETOOLONG);
}

TEST_F(PrivateDirectories, MakeAFileOnlyWhereThereIsNone) {
    const PrivateDirectory directory = open();
    EXPECT_TRUE(directory.Make("x.dat").IsOpen());
    EXPECT_EQ(errorOf([&] { directory.Make("x.dat"); }), EEXIST);
    std::filesystem::create_symlink("y.dat", path(".link"));
    EXPECT_EQ(errorOf([&] { directory.Make("x.dat.link"); }), EEXIST);
    EXPECT_EQ(textOf(folder_ / "melvark" / "y.dat"), "none");
}

TEST_F(PrivateDirectories, StayTheSameWhenTheirNameIsTaken) {
    const PrivateDirectory directory = open();
    std::filesystem::rename(folder_ / "melvark", folder_ / "renamed");
    std::filesystem::create_directory(folder_ / "melvark");
    directory.Make("x.dat");
    EXPECT_TRUE(std::filesystem::exists(folder_ / "renamed" / "x.dat"));
    EXPECT_FALSE(directory.IsGone());
    std::filesystem::remove_all(folder_ / "renamed");
    EXPECT_TRUE(directory.IsGone());
}

TEST_F(PrivateDirectories, GiveALockToOneAtATime) {
    const PrivateDirectory directory = open();
    Descriptor first = directory.Lock("x.lock");
    EXPECT_TRUE(first.IsOpen());
    EXPECT_FALSE(directory.Lock("x.lock").IsOpen());
    EXPECT_TRUE(first.Close());
    EXPECT_TRUE(directory.Lock("x.lock").IsOpen());
}

TEST_F(PrivateDirectories, GiveNoLockOfAFileThatIsGone) {
    const PrivateDirectory directory = open();
    const Descriptor first = directory.Lock("x.lock");
    EXPECT_TRUE(directory.Remove("x.lock"));
    EXPECT_TRUE(directory.Lock("x.lock").IsOpen()) << "a file of that name is another one now";
}

TEST_F(PrivateDirectories, RemoveWhatIsThereAndMissNothingElse) {
    const PrivateDirectory directory = open();
    std::filesystem::create_directory(path(".folder"));
    EXPECT_TRUE(directory.Remove("x.dat"));
    EXPECT_FALSE(directory.Remove("x.dat.folder"));
}

TEST_F(PrivateDirectories, AreNotOpenedThroughALink) {
    std::filesystem::create_directory(folder_ / "real");
    std::filesystem::create_directory_symlink(folder_ / "real", directory());
    EXPECT_FALSE(PrivateDirectory::Open(directory()));
}

} // namespace
