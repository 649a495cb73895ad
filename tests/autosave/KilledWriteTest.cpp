#include "editwin/model/AutosaveFile.h"
#include "tests/autosave/KilledWriter.h"
#include "tests/autosave/WrittenFile.h"

#include <functional>
#include <sstream>

namespace {

using namespace melvark;

constexpr int c_Columns = 26;

/// The file of a document with so many lines; every cell tells the document, so that two contents never mix unseen.
/// 1,000 lines are written in several pieces.
AnsiString content(int documentId, int rows) {
    std::vector<AnsiString> keys;
    TDataGrid lines;
    for (int column = 0; column < c_Columns; ++column) {
        keys.push_back("KEY" + std::to_string(column));
        for (int row = 0; row < rows; ++row) {
            lines.SetCells(column, row, std::to_string(documentId * 1000000 + row));
        }
    }
    lines.SetColCount(c_Columns);
    if (rows > 0) {
        lines.SetRowCount(rows);
    }
    std::ostringstream out;
    WriteAutosave(out, documentId, keys, lines);
    return out.str();
}

/// What the run before left, and what of it an editor would find.
struct Before {
    const char* name;
    std::vector<std::string_view> left; ///< Suffixes of the files.
    bool hasContent;
};
const Before c_States[] = {
    {"nothing", {}, false},
    {"a file", {""}, true},
    {"only a copy", {".kept"}, true},
    {"a file and a copy", {"", ".kept"}, true},
    {"a file and half of a new one", {"", ".new"}, true},
};

class KilledWrite : public WrittenFileTest {
protected:
    /// Kills `work` at each stop at a system call, each time on a directory that `prepare` laid out, and has `check`
    /// look at what the run left; `isDone` is true once it ended by itself. The number of points.
    int killEverywhere(const std::function<void()>& prepare, const std::function<void(KeptFile&)>& work,
                       const std::function<void(bool isDone)>& check) {
        for (int stop = 1;; ++stop) {
            SCOPED_TRACE("stop " + std::to_string(stop));
            std::filesystem::remove_all(directory());
            prepare();
            const bool isDone = runAndKillAt(stop, [&] {
                KeptFile file(path());
                restored(file); // an editor looks for unsaved work first
                work(file);
            });
            check(isDone);
            if (isDone || HasFailure()) {
                return stop;
            }
        }
    }

    /// Kills a write of so many lines, from this state.
    int killWrites(const Before& before, int rows) {
        const AnsiString oldText = before.hasContent ? content(1, rows) : "nothing";
        const AnsiString newText = content(2, rows);
        SCOPED_TRACE(before.name + (", " + std::to_string(rows)) + " rows");
        return killEverywhere(
            [&] {
                for (const std::string_view suffix : before.left) {
                    leave(suffix, suffix == ".new" ? newText.substr(0, newText.size() / 2) : oldText);
                }
            },
            [&](KeptFile& file) { write(file, newText); },
            [&](bool isDone) {
                const AnsiString found = restoredNext();
                EXPECT_TRUE(found == newText || (!isDone && found == oldText)) << "torn, or " << found.substr(0, 40);
                // The next start goes on writing.
                KeptFile next(path());
                restored(next);
                write(next, "next");
                EXPECT_EQ(restored(next), "next");
                EXPECT_EQ(listing(), "x.dat x.dat.lock");
            });
    }

    const std::function<void()> fileAndOlderCopy = [this] {
        leave("", "newer");
        leave(".kept", "older");
    };
};

TEST_F(KilledWrite, LeavesOneWholeContentAndAFileThatCanBeWrittenAgain) {
    int points = 0;
    for (const int rows : {0, 1, 50, 1000}) {
        for (const Before& before : c_States) {
            points += killWrites(before, rows);
        }
    }
    std::printf("killed at %d points\n", points);
    EXPECT_GE(points, 500);
}

TEST_F(KilledWrite, OfAThousandLinesIsKilledBetweenItsPiecesToo) {
    const int few = killWrites(c_States[0], 50);
    const int many = killWrites(c_States[0], 1000);
    EXPECT_GE(many - few, 3 * 2) << "at least three more writes, each with a stop before and one after it";
}

TEST_F(KilledWrite, SetAsideLeavesTheContentUnderOneOfItsNames) {
    killEverywhere(
        fileAndOlderCopy, [](KeptFile& file) { file.SetAside(); },
        [this](bool) { EXPECT_EQ(restoredNext(), "newer"); });
}

TEST_F(KilledWrite, RemovedNeverLeavesTheOlderCopyAlone) {
    killEverywhere(
        fileAndOlderCopy, [](KeptFile& file) { file.Remove(); },
        [this](bool isDone) {
            const AnsiString found = restoredNext();
            EXPECT_TRUE(found == "nothing" || (!isDone && found == "newer")) << found;
        });
}

} // namespace
