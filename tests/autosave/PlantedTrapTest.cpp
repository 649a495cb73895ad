#include "host/Exceptions.h"
#include "tests/autosave/WrittenFile.h"

#include <fstream>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using melvark::KeptFile;
using testing::EndsWith;
using testing::HasSubstr;

/// Somebody who wants to read, overwrite or block what the first user keeps.
constexpr unsigned c_Stranger = 65534;

/// What may stand where the editor's file is expected. Each kind is laid by the administrator, who can lay it anywhere.
struct Trap {
    const char* name;
    std::function<void(const std::filesystem::path& place, const std::filesystem::path& target)> lay;
};

void own(const std::filesystem::path& entry, unsigned user) {
    ASSERT_EQ(lchown(entry.c_str(), user, user), 0) << entry;
}

const Trap c_Traps[] = {
    {"a link to a file of the user's",
     [](const auto& place, const auto& target) {
         std::filesystem::create_symlink(target, place);
         own(place, OrdinaryUser::c_Id);
     }},
    {"a link to nothing",
     [](const auto& place, const auto&) { std::filesystem::create_symlink("/nonexistent/file", place); }},
    {"a second name of a file of the user's",
     [](const auto& place, const auto& target) { std::filesystem::create_hard_link(target, place); }},
    {"a pipe that nobody reads",
     [](const auto& place, const auto&) {
         ASSERT_EQ(mkfifo(place.c_str(), 0666), 0);
         own(place, OrdinaryUser::c_Id);
     }},
    {"a directory",
     [](const auto& place, const auto&) {
         std::filesystem::create_directory(place);
         own(place, OrdinaryUser::c_Id);
     }},
    {"another user's file that everybody may write",
     [](const auto& place, const auto&) {
         { std::ofstream(place) << "the stranger's"; }
         std::filesystem::permissions(place, std::filesystem::perms(0666));
         own(place, c_Stranger);
     }},
};

/// What an entry is and whose, and what a file holds: unchanged when this is.
AnsiString look(const std::filesystem::path& place) {
    struct stat status {};
    if (lstat(place.c_str(), &status) != 0) {
        return "gone";
    }
    const AnsiString text =
        S_ISREG(status.st_mode)
            ? AnsiString(" ") + AnsiString(std::istreambuf_iterator<char>(std::ifstream(place).rdbuf()), {})
            : AnsiString();
    return std::to_string(status.st_mode) + " of " + std::to_string(status.st_uid) + ", number " +
           std::to_string(status.st_ino) + text;
}

class PlantedTrap : public WrittenFileTest {
protected:
    void SetUp() override {
        if (geteuid() != 0) {
            GTEST_SKIP() << "needs the administrator, who alone can play two users";
        }
        { std::ofstream(target()) << "the user's own"; }
        own(target(), OrdinaryUser::c_Id);
    }

    std::filesystem::path target() const { return folder_ / "target"; }

    /// Lays each trap at `place` after `before`, has the user do `work`, and sees trap and target unchanged.
    void withEachTrap(const std::filesystem::path& place, const std::function<void(KeptFile&)>& before,
                      const std::function<void(KeptFile&)>& work) {
        for (const Trap& trap : c_Traps) {
            SCOPED_TRACE(trap.name);
            std::filesystem::remove_all(directory());
            KeptFile file(path());
            {
                const OrdinaryUser user;
                before(file);
            }
            std::filesystem::remove_all(place);
            trap.lay(place, target());
            const AnsiString laid = look(place);
            {
                const OrdinaryUser user;
                work(file);
            }
            EXPECT_EQ(look(place), laid);
            EXPECT_THAT(look(target()), EndsWith(" the user's own"));
            std::filesystem::remove_all(place);
        }
    }

    static void expectRefusal(KeptFile& file) {
        EXPECT_THAT(messageOf<EInOutError>([&] { write(file, "new"); }),
                    HasSubstr("(místo souboru je tam odkaz, složka nebo něco cizího)"));
    }
    static void writeOld(KeptFile& file) { write(file, "old"); }
    /// Makes the directory and takes the file, without content.
    static void onlyOpen(KeptFile& file) { EXPECT_EQ(restored(file), "nothing"); }
};

TEST_F(PlantedTrap, UnderTheNameBeforeTheFirstWriteIsNeitherOfferedNorTouched) {
    withEachTrap(path(), onlyOpen, [&](KeptFile& file) {
        EXPECT_EQ(restored(file), "nothing");
        expectRefusal(file);
        file.SetAside();
        file.Remove();
    });
}

TEST_F(PlantedTrap, UnderTheNameBetweenWritesIsNeitherOfferedNorTouched) {
    withEachTrap(path(), writeOld, [&](KeptFile& file) {
        expectRefusal(file);
        EXPECT_EQ(restored(file), "nothing");
        file.SetAside();
        file.Remove();
    });
}

TEST_F(PlantedTrap, UnderTheNameOfTheNewFileLeavesTheContentBefore) {
    withEachTrap(path(".new"), writeOld, [&](KeptFile& file) {
        expectRefusal(file);
        EXPECT_EQ(restored(file), "old");
        file.Remove();
    });
}

TEST_F(PlantedTrap, UnderTheNameOfTheCopyKeepsTheContentWhereItIs) {
    withEachTrap(path(".kept"), writeOld, [&](KeptFile& file) {
        file.SetAside();
        EXPECT_EQ(restored(file), "old");
        write(file, "new");
        EXPECT_EQ(restored(file), "new");
        file.Remove();
    });
}

TEST_F(PlantedTrap, UnderTheNameOfTheNewFileBeforeTheFirstWriteStopsIt) {
    withEachTrap(path(".new"), onlyOpen, [&](KeptFile& file) {
        expectRefusal(file);
        EXPECT_EQ(restored(file), "nothing");
        file.Remove();
    });
}

TEST_F(PlantedTrap, UnderTheNameOfTheCopyBeforeTheFirstWriteIsNeitherOfferedNorTouched) {
    withEachTrap(path(".kept"), onlyOpen, [&](KeptFile& file) {
        EXPECT_EQ(restored(file), "nothing");
        write(file, "new");
        EXPECT_EQ(restored(file), "new");
        file.Remove();
    });
}

TEST_F(PlantedTrap, UnderTheNameBesideTheCopyLeavesTheCopyToBeOffered) {
    const auto writeAndSetAside = [](KeptFile& file) {
        write(file, "old");
        file.SetAside();
    };
    withEachTrap(path(), writeAndSetAside, [&](KeptFile& file) {
        EXPECT_EQ(restored(file), "old");
        expectRefusal(file);
        file.SetAside();
        EXPECT_EQ(restored(file), "old");
    });
}

TEST_F(PlantedTrap, UnderTheNameOfTheLockWhileItIsHeldStaysWhenTheEditorCloses) {
    for (const Trap& trap : c_Traps) {
        SCOPED_TRACE(trap.name);
        std::filesystem::remove_all(directory());
        AnsiString laid;
        {
            KeptFile file(path());
            {
                const OrdinaryUser user;
                write(file, "old");
            }
            std::filesystem::remove(path(".lock"));
            trap.lay(path(".lock"), target());
            laid = look(path(".lock"));
            const OrdinaryUser user;
            write(file, "new");
            EXPECT_EQ(restored(file), "new");
        }
        EXPECT_EQ(look(path(".lock")), laid);
        EXPECT_THAT(look(target()), EndsWith(" the user's own"));
    }
}

TEST_F(PlantedTrap, UnderTheNameOfTheLockStopsTheEditorFromWriting) {
    withEachTrap(
        path(".lock"), [this](KeptFile&) { std::filesystem::create_directory(directory()); },
        [&](KeptFile& file) {
            EXPECT_EQ(restored(file), "nothing");
            EXPECT_FALSE(file.IsHeldElsewhere());
            expectRefusal(file);
        });
}

TEST_F(PlantedTrap, InPlaceOfTheDirectoryStopsTheEditorFromWriting) {
    std::filesystem::create_directory(folder_ / "other");
    own(folder_ / "other", OrdinaryUser::c_Id);
    const Trap traps[] = {
        {"a link to a directory of the user's",
         [this](const auto& place, const auto&) { std::filesystem::create_symlink(folder_ / "other", place); }},
        {"another user's directory that everybody may write",
         [](const auto& place, const auto&) {
             std::filesystem::create_directory(place);
             std::filesystem::permissions(place, std::filesystem::perms(0777));
             own(place, c_Stranger);
         }},
        {"a pipe", [](const auto& place, const auto&) { ASSERT_EQ(mkfifo(place.c_str(), 0666), 0); }},
        {"a file", [](const auto& place, const auto&) { std::ofstream(place) << "no directory"; }},
    };
    for (const Trap& trap : traps) {
        SCOPED_TRACE(trap.name);
        trap.lay(directory(), target());
        const AnsiString laid = look(directory());
        {
            const OrdinaryUser user;
            KeptFile file(path());
            EXPECT_EQ(restored(file), "nothing");
            expectRefusal(file);
        }
        EXPECT_EQ(look(directory()), laid);
        EXPECT_TRUE(std::filesystem::is_empty(folder_ / "other"));
        std::filesystem::remove_all(directory());
    }
}

TEST_F(PlantedTrap, OfAReaderIsClosedToHim) {
    {
        const OrdinaryUser user;
        KeptFile file(path());
        write(file, "old");
    }
    ASSERT_EQ(seteuid(c_Stranger), 0);
    EXPECT_EQ(textOf(path()), "none");
    EXPECT_THROW(std::filesystem::directory_iterator{directory()}, std::filesystem::filesystem_error);
    EXPECT_NE(symlink("/", path(".new").c_str()), 0);
    ASSERT_EQ(seteuid(0), 0);
}

} // namespace
