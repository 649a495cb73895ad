#include "host/Exceptions.h"
#include "tests/autosave/FailingSystem.h"
#include "tests/autosave/WrittenFile.h"

#include <cerrno>
#include <cstring>
#include <functional>
#include <memory>

namespace {

using failingsystem::failAt;
using failingsystem::Lasting;
using failingsystem::stopFailing;
using melvark::KeptFile;
using testing::AnyOf;

constexpr int c_Errors[] = {ENOSPC, EIO, EACCES, EROFS, EDQUOT, ENOMEM};
/// Several pieces, so that a write can fail behind the first.
const AnsiString c_Old(150'000, 'o');
const AnsiString c_New(200'000, 'n');

class FailingWrite : public WrittenFileTest {
protected:
    /// Does `work` again and again, each time with one call more that succeeds before the first failure, until it ran
    /// without one; with every error, once and lasting. `check` looks at what each run left. Returns how many runs
    /// met a failure.
    int failEverywhere(const std::function<void(KeptFile&)>& work, const std::function<void(KeptFile&)>& check) {
        int failures = 0;
        for (const int error : c_Errors) {
            for (const Lasting lasting : {Lasting::Once, Lasting::FromThenOn}) {
                for (int call = 1; failOnce(call, error, lasting, work, check); ++call) {
                    ++failures;
                    if (HasFailure()) {
                        return failures;
                    }
                }
            }
        }
        return failures;
    }

    static bool tryToWrite(KeptFile& file) {
        try {
            write(file, c_New);
            return true;
        } catch (const EInOutError&) {
            return false;
        }
    }

    /// As an editor does that finds unsaved work.
    static bool readAndWrite(KeptFile& file) {
        restored(file);
        return tryToWrite(file);
    }

    std::function<void()> prepare = [] {};

private:
    bool failOnce(int call, int error, Lasting lasting, const std::function<void(KeptFile&)>& work,
                  const std::function<void(KeptFile&)>& check) {
        std::filesystem::remove_all(directory());
        prepare();
        KeptFile file(path());
        failAt(call, error, lasting);
        work(file);
        const bool hasFailed = stopFailing();
        SCOPED_TRACE(std::string(std::strerror(error)) + (lasting == Lasting::Once ? " at call " : " from call ") +
                     std::to_string(call));
        check(file);
        return hasFailed;
    }
};

TEST_F(FailingWrite, LeavesOldOrNewAndTheNextOneSucceeds) {
    prepare = [this] { leave("", c_Old); };
    bool isWritten = false;
    const int failures = failEverywhere([&](KeptFile& file) { isWritten = readAndWrite(file); },
                                        [&](KeptFile& file) {
                                            const AnsiString found = restored(file);
                                            EXPECT_TRUE(found == c_New || (!isWritten && found == c_Old))
                                                << found.size() << " bytes";
                                            write(file, "next");
                                            EXPECT_EQ(restored(file), "next");
                                            EXPECT_EQ(listing(), "x.dat x.dat.lock");
                                        });
    std::printf("failed at %d points\n", failures);
    EXPECT_GE(failures, 6 * 2 * 20);
}

TEST_F(FailingWrite, OverACopyLeavesOneOfTheTwo) {
    prepare = [this] { leave(".kept", c_Old); };
    failEverywhere([&](KeptFile& file) { readAndWrite(file); },
                   [&](KeptFile& file) { EXPECT_THAT(restored(file), AnyOf(c_Old, c_New)); });
}

TEST_F(FailingWrite, LeavesNoHalfBehind) {
    prepare = [this] { leave("", c_Old); };
    failEverywhere([&](KeptFile& file) { readAndWrite(file); },
                   [&](KeptFile&) {
                       // Only a system that also refuses to remove anything leaves the new file, for the next write to
                       // remove.
                       EXPECT_THAT(listing(), AnyOf("x.dat", "x.dat x.dat.lock", "x.dat x.dat.lock x.dat.new"));
                   });
    KeptFile file(path());
    ASSERT_EQ(restored(file), c_New) << "of the last run, which met no failure";
    failAt(7, ENOSPC, Lasting::Once);
    EXPECT_FALSE(tryToWrite(file));
    ASSERT_TRUE(stopFailing());
    EXPECT_EQ(listing(), "x.dat x.dat.lock");
}

// What could not be read may be all that is left: nothing replaces it, sets it aside or removes it.
TEST_F(FailingWrite, WhatCouldNotBeReadStaysAsItIs) {
    for (const char* const name : {"", ".kept"}) {
        prepare = [this, name] { leave(name, c_Old); };
        AnsiString found;
        failEverywhere([&](KeptFile& file) { found = restored(file); },
                       [&](KeptFile& file) {
                           EXPECT_THAT(found, AnyOf("nothing", "unread", c_Old));
                           if (found != c_Old) {
                               EXPECT_FALSE(tryToWrite(file));
                               file.SetAside();
                               file.Remove();
                               EXPECT_EQ(textOf(path(name)), c_Old);
                           }
                           EXPECT_EQ(restored(file), c_Old);
                       });
    }
}

TEST_F(FailingWrite, ACallThatASignalInterruptsIsMadeAgain) {
    bool isInterrupted = true;
    int interruptions = 0;
    for (int call = 1; isInterrupted; ++call) {
        SCOPED_TRACE(call);
        std::filesystem::remove_all(directory());
        leave("", c_Old);
        KeptFile file(path());
        failAt(call, EINTR, Lasting::Once);
        EXPECT_TRUE(readAndWrite(file));
        isInterrupted = stopFailing();
        interruptions += isInterrupted ? 1 : 0;
        EXPECT_EQ(restored(file), c_New);
    }
    EXPECT_GE(interruptions, 20);
}

TEST_F(FailingWrite, ACallThatTakesOnlyAPartIsGoneOnWith) {
    AnsiString numbers;
    for (int number = 0; number < 40'000; ++number) {
        numbers += std::to_string(number) + ' ';
    }
    leave("", c_Old);
    KeptFile file(path());
    const failingsystem::ShortCalls shortCalls;
    EXPECT_EQ(restored(file), c_Old);
    write(file, numbers);
    EXPECT_EQ(restored(file), numbers);
    EXPECT_GE(shortCalls.count(), 20);
}

TEST_F(FailingWrite, SettingAsideLosesNothing) {
    prepare = [this] { leave("", c_Old); };
    failEverywhere(
        [&](KeptFile& file) {
            restored(file);
            file.SetAside();
        },
        [&](KeptFile& file) { EXPECT_EQ(restored(file), c_Old); });
}

TEST_F(FailingWrite, RemovingEndsWithoutAnError) {
    prepare = [this] { leave("", c_Old); };
    failEverywhere(
        [&](KeptFile& file) {
            restored(file);
            file.Remove();
        },
        [&](KeptFile& file) {
            EXPECT_THAT(restored(file), AnyOf("nothing", c_Old));
            file.Remove();
            EXPECT_EQ(restored(file), "nothing");
        });
}

} // namespace
