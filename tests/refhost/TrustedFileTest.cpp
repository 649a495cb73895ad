#include "refhost/TrustedFile.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace refhost {

namespace {

namespace fs = std::filesystem;

constexpr auto c_ownersAlone = fs::perms::owner_all;
constexpr auto c_everybodys = fs::perms::all;
constexpr auto c_readByAll = fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec |
                             fs::perms::others_read | fs::perms::others_exec;

/// The file outer/inner/module, which nobody else can write.
class TrustedFileTest : public testing::Test {
protected:
    TrustedFileTest() {
        fs::create_directories(inner_);
        std::ofstream(file_) << "x";
        for (const fs::path& place : {outer_, inner_, file_}) {
            fs::permissions(place, c_readByAll);
        }
    }

    std::string open() const { return openToOthers(file_.string()); }

    QTemporaryDir folder_;
    fs::path outer_ = fs::canonical(folder_.path().toStdString()) / "outer";
    fs::path inner_ = outer_ / "inner";
    fs::path file_ = inner_ / "module";
};

TEST_F(TrustedFileTest, AFileThatOnlyItsOwnerCanReplaceIsTrustedInTheSharedFolderOfTheSystemToo) {
    EXPECT_EQ(open(), "");
}

TEST_F(TrustedFileTest, AFileThatOthersCanWriteIsNot) {
    fs::permissions(file_, c_everybodys);
    EXPECT_EQ(open(), file_.string());
}

TEST_F(TrustedFileTest, AFolderOnTheWayThatOthersCanWriteIsNamed) {
    fs::permissions(inner_, c_everybodys);
    EXPECT_EQ(open(), inner_.string());
    fs::permissions(inner_, c_ownersAlone);
    fs::permissions(outer_, c_everybodys);
    EXPECT_EQ(open(), outer_.string());
}

TEST_F(TrustedFileTest, AFolderWhereOthersRenameOnlyTheirOwnIsTrustedOnTheWayButNotAsTheFilesOwn) {
    fs::permissions(outer_, c_everybodys | fs::perms::sticky_bit);
    EXPECT_EQ(open(), "");
    fs::permissions(inner_, c_everybodys | fs::perms::sticky_bit);
    EXPECT_EQ(open(), inner_.string());
}

TEST_F(TrustedFileTest, TheWayIsThatOfTheFileThatALinkNames) {
    const fs::path link = fs::path(folder_.path().toStdString()) / "link";
    fs::create_symlink(file_, link);
    EXPECT_EQ(openToOthers(link.string()), "");
    fs::permissions(inner_, c_everybodys);
    EXPECT_EQ(openToOthers(link.string()), inner_.string());
}

TEST_F(TrustedFileTest, AFileThatIsNotThereIsNotTrusted) {
    fs::remove(file_);
    EXPECT_EQ(open(), file_.string());
}

TEST_F(TrustedFileTest, AnotherUsersFileOrFolderIsNot) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can give a file away";
    }
    constexpr uid_t c_nobody = 65534;
    ASSERT_EQ(chown(inner_.c_str(), c_nobody, gid_t(-1)), 0);
    EXPECT_EQ(open(), inner_.string());
}

TEST_F(TrustedFileTest, AGroupThatIsTheUsersOwnMayWriteAndAnotherMayNot) {
    fs::permissions(inner_, c_readByAll | fs::perms::group_write);
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can choose the group";
    }
    EXPECT_EQ(open(), ""); // root's own
    constexpr gid_t c_nogroup = 65534;
    ASSERT_EQ(chown(inner_.c_str(), uid_t(-1), c_nogroup), 0);
    EXPECT_EQ(open(), inner_.string());
}

} // namespace

} // namespace refhost
