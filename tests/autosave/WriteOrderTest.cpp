#include "tests/autosave/WrittenFile.h"

#include <cstdlib>
#include <fstream>
#include <regex>

namespace {

using testing::ElementsAre;

/// The steps of one write in the words of the table below, as the kernel saw them.
std::vector<std::string> stepsIn(const std::filesystem::path& trace) {
    const std::pair<std::regex, const char*> steps[] = {
        {std::regex(R"(mkdir\(".*/state", 0700\) += 0)"), "make the directory above"},
        {std::regex(R"(mkdir\(".*/melvark", 0700\) += 0)"), "make the directory"},
        {std::regex(R"(fsync\(\d+<[^>]*/melvark-autosave-[-\w]+>\) += 0)"), "sync the base"},
        {std::regex(R"(fsync\(\d+<[^>]*/state>\) += 0)"), "sync the directory above"},
        {std::regex(R"(openat\(\d+<[^>]*>, "x\.dat\.new", [^)]*O_EXCL[^)]*, 0600\) = \d.*)"), "make the new file"},
        {std::regex(R"(write\(\d+<[^>]*/x\.dat\.new>.*\) = 12)"), "write it"},
        {std::regex(R"((fsync|fdatasync)\(\d+<[^>]*/x\.dat\.new>\) += 0)"), "sync it"},
        {std::regex(R"(renameat2?\(\d+<[^>]*>, "x\.dat\.new", \d+<[^>]*>, "x\.dat".*\) = 0)"), "rename it"},
        {std::regex(R"(fsync\(\d+<[^>]*/melvark>\) += 0)"), "sync the directory"},
        {std::regex(R"(unlinkat\(\d+<[^>]*>, "x\.dat\.kept", 0\) = 0)"), "remove the copy"},
        // Any other writing, renaming or removing of the content's names.
        {std::regex(R"re((write|rename|unlink).*x\.dat(\.new|\.kept)?[">].*)re"), "something else"},
    };
    std::vector<std::string> found;
    std::ifstream in(trace);
    for (std::string line; std::getline(in, line);) {
        for (const auto& [pattern, step] : steps) {
            if (std::regex_match(line, pattern)) {
                found.emplace_back(step);
                break;
            }
        }
    }
    return found;
}

class WriteOrder : public WrittenFileTest {
protected:
    /// A traced program cannot look for its leaks, and the sanitizer takes that for a failure.
    std::vector<std::string> stepsOfAWriteTo(const std::filesystem::path& file) const {
        const std::filesystem::path trace = folder_ / "trace";
        const AnsiString command = "ASAN_OPTIONS=\"$ASAN_OPTIONS:detect_leaks=0\" strace -qq -y -o '" + trace.string() +
                                   "' " ONE_WRITE_PROGRAM " '" + file.string() + "'";
        EXPECT_EQ(std::system(command.c_str()), 0);
        return stepsIn(trace);
    }
};

// A machine that loses its power keeps what was synced. The new content is on the disk before it gets the name, and the
// name before the copy goes.
TEST_F(WriteOrder, IsWriteSyncRenameSyncOfTheDirectory) {
    leave("", "old content\n");
    leave(".kept", "older content\n");
    EXPECT_THAT(stepsOfAWriteTo(path()), ElementsAre("make the new file", "write it", "sync it", "rename it",
                                                     "sync the directory", "remove the copy"));
    EXPECT_EQ(textOf(path()), "new content\n");
}

TEST_F(WriteOrder, SyncsEachDirectoryThatGotANewOneBeforeTheFileIsMade) {
    const std::filesystem::path file = folder_ / "state" / "melvark" / "x.dat";
    EXPECT_THAT(stepsOfAWriteTo(file), ElementsAre("make the directory above", "sync the base", "make the directory",
                                                   "sync the directory above", "make the new file", "write it",
                                                   "sync it", "rename it", "sync the directory"));
    EXPECT_EQ(textOf(file), "new content\n");
}

} // namespace
