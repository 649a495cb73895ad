#include "tests/autosave/WrittenFile.h"

#include <cstdlib>
#include <fstream>
#include <regex>

namespace {

using testing::ElementsAre;

/// The steps of one write in the words of the table below, as the kernel saw them.
std::vector<std::string> stepsIn(const std::filesystem::path& trace) {
    const std::pair<std::regex, const char*> steps[] = {
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

class WriteOrder : public WrittenFileTest {};

// A machine that loses its power keeps what was synced. The new content is on the disk before it gets the name, and the
// name before the copy goes.
TEST_F(WriteOrder, IsWriteSyncRenameSyncOfTheDirectory) {
    leave("", "old content\n");
    leave(".kept", "older content\n");
    const std::filesystem::path trace = folder_ / "trace";
    const AnsiString command =
        "strace -qq -y -o '" + trace.string() + "' " ONE_WRITE_PROGRAM " '" + path().string() + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    EXPECT_THAT(stepsIn(trace), ElementsAre("make the new file", "write it", "sync it", "rename it",
                                            "sync the directory", "remove the copy"));
    EXPECT_EQ(textOf(path()), "new content\n");
}

} // namespace
