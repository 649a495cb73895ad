#include "refhost/OwnFolder.h"

#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>

namespace refhost {

namespace {

using std::filesystem::perms;

perms permissionsOf(const std::filesystem::path& path) {
    return std::filesystem::status(path).permissions();
}

TEST(OwnFolder, IsItsOwnersAloneWhenItIsNew) {
    const TemporaryFolder place("own-folder");
    const auto folder = place.path() / "above" / "own";

    makeOwnFolder(folder);

    EXPECT_EQ(permissionsOf(folder), perms::owner_all);
    EXPECT_TRUE(std::filesystem::is_directory(place.path() / "above"));
}

TEST(OwnFolder, ThatIsThereStaysAsItIs) {
    const TemporaryFolder place("own-folder");
    const auto folder = place.path() / "own";
    std::filesystem::create_directory(folder);
    const perms shared = perms::owner_all | perms::group_read | perms::group_exec;
    std::filesystem::permissions(folder, shared);

    makeOwnFolder(folder);

    EXPECT_EQ(permissionsOf(folder), shared);
}

TEST(OwnFolder, ThatCannotBeMadeIsNoError) {
    const TemporaryFolder place("own-folder");
    std::ofstream(place.path() / "file") << "x";
    EXPECT_NO_THROW(makeOwnFolder(place.path() / "file" / "own"));
}

} // namespace

} // namespace refhost
