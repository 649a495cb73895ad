#include "editwin/model/KeptFile.h"

#include "host/Exceptions.h"
#include "tests/autosave/WrittenFile.h"

#include <csignal>
#include <fstream>
#include <functional>
#include <istream>
#include <new>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using melvark::KeptFile;
using std::filesystem::perms;
using testing::HasSubstr;

class KeptFiles : public WrittenFileTest {
protected:
    static perms rightsOf(const std::filesystem::path& entry) { return std::filesystem::status(entry).permissions(); }
};

TEST_F(KeptFiles, ComeBackAsTheyWereWrittenLast) {
    {
        KeptFile file(path());
        EXPECT_EQ(restored(file), "nothing");
        write(file, "one\n");
        write(file, AnsiString(200'000, 'x'));
    }
    EXPECT_EQ(listing(), "x.dat");
    EXPECT_EQ(restoredNext(), AnsiString(200'000, 'x'));
}

TEST_F(KeptFiles, AreTheirOwnersAlone) {
    KeptFile file(path());
    write(file, "one");
    EXPECT_EQ(rightsOf(directory()), perms::owner_all);
    EXPECT_EQ(rightsOf(path()), perms::owner_read | perms::owner_write);
    EXPECT_EQ(rightsOf(path(".lock")), perms::owner_read | perms::owner_write);
}

TEST_F(KeptFiles, NarrowADirectoryThatOthersMayEnter) {
    leave("", "one");
    std::filesystem::permissions(directory(), perms(0755));
    EXPECT_EQ(restoredNext(), "one");
    EXPECT_EQ(rightsOf(directory()), perms::owner_all);
}

TEST_F(KeptFiles, MakeTheDirectoriesOnTheWay) {
    KeptFile file(folder_ / "a" / "b" / "x.dat");
    write(file, "one");
    EXPECT_EQ(textOf(folder_ / "a" / "b" / "x.dat"), "one");
    EXPECT_EQ(rightsOf(folder_ / "a"), perms::owner_all);
}

TEST_F(KeptFiles, AreOwnersAloneFromTheFirstByte) {
    KeptFile file(path());
    std::optional<perms> rights;
    file.Write([&](std::ostream& out) {
        rights = rightsOf(path(".new"));
        out << "one";
    });
    EXPECT_EQ(rights, perms::owner_read | perms::owner_write);
}

TEST_F(KeptFiles, ThatFailMidwayLeaveTheContentBefore) {
    KeptFile file(path());
    write(file, "one");
    EXPECT_THROW(file.Write([](std::ostream& out) {
        out << "tw" << std::flush;
        throw EInOutError("the lines are gone");
    }),
                 EInOutError);
    EXPECT_EQ(listing(), "x.dat x.dat.lock");
    EXPECT_EQ(restored(file), "one");
}

TEST_F(KeptFiles, SetAsideAreTakenWhenThereIsNothingElse) {
    {
        KeptFile file(path());
        write(file, "one");
        file.SetAside();
        EXPECT_EQ(listing(), "x.dat.kept x.dat.lock");
    }
    EXPECT_EQ(restoredNext(), "one");
}

TEST_F(KeptFiles, GoWithTheNextWrittenContent) {
    KeptFile file(path());
    write(file, "one");
    file.SetAside();
    EXPECT_THROW(file.Write([](std::ostream&) { throw EInOutError("not yet"); }), EInOutError);
    EXPECT_EQ(restored(file), "one");
    write(file, "two");
    EXPECT_EQ(listing(), "x.dat x.dat.lock");
    EXPECT_EQ(restored(file), "two");
}

TEST_F(KeptFiles, OfAnInterruptedRunCountBeforeTheCopy) {
    leave("", "newer");
    leave(".kept", "older");
    leave(".new", "half of the new");
    EXPECT_EQ(restoredNext(), "newer");

    KeptFile file(path());
    EXPECT_EQ(restored(file), "newer");
    file.SetAside();
    EXPECT_EQ(textOf(path(".kept")), "newer");
    write(file, "newest");
    EXPECT_EQ(listing(), "x.dat x.dat.lock");
}

TEST_F(KeptFiles, SetAsideTwiceStay) {
    KeptFile file(path());
    write(file, "one");
    file.SetAside();
    file.SetAside();
    EXPECT_EQ(restored(file), "one");
}

TEST_F(KeptFiles, AreRemovedWithTheirCopyAndWhatAnInterruptedWriteLeft) {
    leave("", "newer");
    leave(".kept", "older");
    leave(".new", "half of the new");
    {
        KeptFile file(path());
        EXPECT_EQ(restored(file), "newer");
        file.Remove();
        EXPECT_EQ(listing(), "x.dat.lock");
        EXPECT_EQ(restored(file), "nothing");
    }
    EXPECT_EQ(listing(), "");
}

TEST_F(KeptFiles, ThatWereNeverTakenAreLeftAsTheyAre) {
    leave("", "one");
    {
        KeptFile file(path());
        file.SetAside();
        file.Remove();
    }
    EXPECT_EQ(listing(), "x.dat");
}

void expectShutOut(KeptFile& second, const std::function<AnsiString()>& listing) {
    const AnsiString before = listing();
    EXPECT_FALSE(second.HasContent());
    EXPECT_TRUE(second.IsHeldElsewhere());
    second.Write([](std::ostream& out) { out << "of the second"; });
    second.SetAside();
    second.Remove();
    EXPECT_EQ(listing(), before);
}

TEST_F(KeptFiles, OfASecondEditorInTheProcessNeitherReadNorWriteNorRemove) {
    auto first = std::make_unique<KeptFile>(path());
    write(*first, "one");
    {
        KeptFile second(path());
        expectShutOut(second, [this] { return listing() + " " + textOf(path()); });
        first.reset();
        EXPECT_FALSE(second.HasContent()) << "what it was told once holds for its life";
    }
    EXPECT_EQ(restoredNext(), "one");
}

/// Another process that holds the file until it is killed.
class OtherProcess {
public:
    explicit OtherProcess(const std::function<void()>& work) {
        int ready[2];
        EXPECT_EQ(pipe(ready), 0);
        process_ = fork();
        if (process_ == 0) {
            work();
            EXPECT_EQ(::write(ready[1], "", 1), 1);
            pause();
        }
        char byte = 0;
        EXPECT_EQ(::read(ready[0], &byte, 1), 1);
        close(ready[0]);
        close(ready[1]);
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    ~OtherProcess() { kill(); }

    void kill() {
        if (process_ > 0) {
            EXPECT_EQ(::kill(process_, SIGKILL), 0);
            EXPECT_EQ(waitpid(process_, nullptr, 0), process_);
            process_ = 0;
        }
    }

private:
    pid_t process_ = 0;
};

TEST_F(KeptFiles, OfAnotherProcessAreFreeOnlyWhenItHasEnded) {
    std::optional<KeptFile> others;
    OtherProcess other([&] {
        others.emplace(path());
        write(*others, "one");
    });
    {
        KeptFile second(path());
        expectShutOut(second, [this] { return listing() + " " + textOf(path()); });
    }
    other.kill();
    EXPECT_EQ(restoredNext(), "one");
}

TEST_F(KeptFiles, ComeBackWhenTheirDirectoryWasRemoved) {
    KeptFile file(path());
    write(file, "one");
    std::filesystem::remove_all(directory());
    EXPECT_EQ(restored(file), "nothing");
    std::filesystem::remove_all(directory());
    write(file, "two");
    EXPECT_EQ(restoredNext(), "nothing") << "held";
    EXPECT_EQ(restored(file), "two");
}

TEST_F(KeptFiles, WhoseLockIsAnotherFileByNowLeaveThatFile) {
    {
        KeptFile file(path());
        write(file, "one");
        std::filesystem::remove(path(".lock"));
        leave(".lock", "of another editor");
    }
    EXPECT_EQ(textOf(path(".lock")), "of another editor");
}

TEST_F(KeptFiles, ThatAreNotHeldGiveNothingToARead) {
    leave("", "one");
    KeptFile untouched(path());
    bool isRead = false;
    const auto note = [&](std::istream&) { isRead = true; };
    untouched.Read(note);
    KeptFile first(path());
    EXPECT_EQ(restored(first), "one");
    KeptFile second(path());
    EXPECT_FALSE(second.HasContent());
    second.Read(note);
    EXPECT_FALSE(isRead);
}

TEST_F(KeptFiles, OfADirectoryThatWasPutBackAreReadFirst) {
    KeptFile file(path());
    write(file, "one");
    std::filesystem::remove_all(directory());
    leave("", "of a backup");
    EXPECT_THROW(write(file, "two"), EInOutError);
    EXPECT_EQ(restored(file), "of a backup");
    write(file, "two");
    EXPECT_EQ(restored(file), "two");
}

TEST_F(KeptFiles, AreNotWrittenWhereAFileIsInTheWay) {
    { std::ofstream(directory()) << "no directory"; }
    KeptFile file(path());
    const AnsiString foreign =
        "Rozepsaná práce se průběžně neukládá (místo souboru je tam odkaz, složka nebo něco cizího): „" +
        path().string() + "“. Uložte ji raději hned.";
    EXPECT_FALSE(file.HasContent());
    EXPECT_EQ(messageOf<EInOutError>([&] { write(file, "one"); }), foreign);
    KeptFile below(path() / "y.dat");
    EXPECT_THAT(messageOf<EInOutError>([&] { write(below, "one"); }), HasSubstr("(složka neexistuje)"));
}

TEST_F(KeptFiles, ThatWereNotReadAreNeitherReplacedNorSetAsideNorRemoved) {
    leave("", "newer");
    leave(".kept", "older");
    KeptFile file(path());
    ASSERT_TRUE(file.HasContent());
    EXPECT_EQ(messageOf<EInOutError>([&] { write(file, "of today"); }),
              "Rozepsaná práce se průběžně neukládá (je tam starší rozepsaná práce, kterou nebylo možné přečíst): „" +
                  path().string() + "“. Uložte ji raději hned.");
    file.SetAside();
    file.Remove();
    EXPECT_EQ(textOf(path()) + ", " + textOf(path(".kept")), "newer, older");
    EXPECT_EQ(restored(file), "newer");
    write(file, "of today");
    EXPECT_EQ(listing(), "x.dat x.dat.lock");
}

TEST_F(KeptFiles, WhoseReadingWasBrokenOffStay) {
    leave(".kept", "one");
    {
        KeptFile file(path());
        ASSERT_TRUE(file.HasContent());
        EXPECT_THROW(file.Read([](std::istream&) { throw std::bad_alloc(); }), std::bad_alloc);
        file.Remove();
    }
    EXPECT_EQ(restoredNext(), "one");
}

TEST_F(KeptFiles, ThatTheSystemDoesNotGiveAreToldAndStay) {
    const OrdinaryUser user;
    leave("", "one");
    std::filesystem::permissions(path(), perms::none);
    KeptFile file(path());
    ASSERT_TRUE(file.HasContent());
    EXPECT_EQ(messageOf<EInOutError>([&] { file.Read([](std::istream&) {}); }),
              "Nelze přečíst, co tu zbylo z rozepsané práce (chybí práva nebo je disk jen ke čtení): „" +
                  path().string() + "“. Co tam je, zůstane, a práce v tomto okně se zatím průběžně neukládá.");
    EXPECT_THROW(write(file, "two"), EInOutError);
    file.Remove();
    std::filesystem::permissions(path(), perms(0600));
    EXPECT_EQ(restored(file), "one");
}

TEST_F(KeptFiles, StayInADirectoryThatBecameReadOnly) {
    const OrdinaryUser user;
    KeptFile file(path());
    write(file, "one");
    std::filesystem::permissions(directory(), perms(0500));
    EXPECT_THAT(messageOf<EInOutError>([&] { write(file, "two"); }),
                HasSubstr("(chybí práva nebo je disk jen ke čtení)"));
    EXPECT_EQ(restored(file), "one");
    file.SetAside();
    file.Remove();
    EXPECT_EQ(restored(file), "one");
    std::filesystem::permissions(directory(), perms(0700));
    write(file, "three");
    EXPECT_EQ(restored(file), "three");
}

} // namespace
