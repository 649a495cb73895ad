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

constexpr int c_Errors[] = {ENOSPC, EIO, EACCES, EROFS};
/// More than one block of the writer's, so that a write can fail behind the first.
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
    const int failures = failEverywhere([&](KeptFile& file) { isWritten = tryToWrite(file); },
                                        [&](KeptFile& file) {
                                            const AnsiString found = restored(file);
                                            EXPECT_TRUE(found == c_New || (!isWritten && found == c_Old))
                                                << found.size() << " bytes";
                                            write(file, "next");
                                            EXPECT_EQ(restored(file), "next");
                                            EXPECT_EQ(listing(), "x.dat x.dat.lock");
                                        });
    std::printf("failed at %d points\n", failures);
    EXPECT_GE(failures, 4 * 2 * 15);
}

TEST_F(FailingWrite, OverACopyLeavesOneOfTheTwo) {
    prepare = [this] { leave(".kept", c_Old); };
    failEverywhere([&](KeptFile& file) { tryToWrite(file); },
                   [&](KeptFile& file) { EXPECT_THAT(restored(file), AnyOf(c_Old, c_New)); });
}

TEST_F(FailingWrite, LeavesNoHalfBehind) {
    prepare = [this] { leave("", c_Old); };
    failEverywhere(
        [&](KeptFile& file) {
            file.HasContent();
            tryToWrite(file);
        },
        [&](KeptFile&) {
            // Only a system that also refuses to remove anything leaves the new file, for the next write to remove.
            EXPECT_THAT(listing(), AnyOf("x.dat", "x.dat x.dat.lock", "x.dat x.dat.lock x.dat.new"));
        });
    KeptFile file(path());
    ASSERT_TRUE(file.HasContent());
    failAt(5, ENOSPC, Lasting::Once);
    EXPECT_FALSE(tryToWrite(file));
    ASSERT_TRUE(stopFailing());
    EXPECT_EQ(listing(), "x.dat x.dat.lock");
}

TEST_F(FailingWrite, ReadingEndsWithAWholeContentOrNone) {
    prepare = [this] { leave("", c_Old); };
    AnsiString found;
    failEverywhere([&](KeptFile& file) { found = restored(file); },
                   [&](KeptFile& file) {
                       EXPECT_THAT(found, AnyOf("nothing", "unreadable", c_Old));
                       EXPECT_EQ(restored(file), c_Old);
                   });
}

TEST_F(FailingWrite, SettingAsideLosesNothing) {
    prepare = [this] { leave("", c_Old); };
    failEverywhere(
        [&](KeptFile& file) {
            file.HasContent();
            file.SetAside();
        },
        [&](KeptFile& file) { EXPECT_EQ(restored(file), c_Old); });
}

TEST_F(FailingWrite, RemovingEndsWithoutAnError) {
    prepare = [this] { leave("", c_Old); };
    failEverywhere(
        [&](KeptFile& file) {
            file.HasContent();
            file.Remove();
        },
        [&](KeptFile& file) {
            EXPECT_THAT(restored(file), AnyOf("nothing", c_Old));
            file.Remove();
            EXPECT_EQ(restored(file), "nothing");
        });
}

} // namespace
