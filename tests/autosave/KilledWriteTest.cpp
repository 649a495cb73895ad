#include "editwin/model/AutosaveFile.h"
#include "tests/autosave/KilledWriter.h"
#include "tests/autosave/WrittenFile.h"

#include <sstream>

namespace {

using namespace melvark;

constexpr int c_Columns = 26;

/// The file of a document with so many lines; every cell tells the document, so that two contents never mix unseen.
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
    /// Kills a write of so many lines at each of its system calls, from this state; the number of points.
    int killEverywhere(const Before& before, int rows) {
        const AnsiString oldText = before.hasContent ? content(1, rows) : "nothing";
        const AnsiString newText = content(2, rows);
        for (int stop = 1;; ++stop) {
            std::filesystem::remove_all(directory());
            for (const std::string_view suffix : before.left) {
                leave(suffix, suffix == ".new" ? newText.substr(0, newText.size() / 2) : oldText);
            }
            const bool isDone = runAndKillAt(stop, [&] {
                KeptFile file(path());
                write(file, newText);
            });
            const AnsiString found = restoredNext();
            EXPECT_TRUE(found == newText || (!isDone && found == oldText))
                << before.name << ", " << rows << " rows, stop " << stop << ": torn, or " << found.substr(0, 40);
            if (isDone || HasFailure()) {
                return stop;
            }
        }
    }
};

TEST_F(KilledWrite, LeavesTheOldContentOrTheNewOneAtEachSystemCall) {
    int points = 0;
    for (const int rows : {0, 1, 50, 1000}) {
        for (const Before& before : c_States) {
            points += killEverywhere(before, rows);
        }
    }
    std::printf("killed at %d points\n", points);
    EXPECT_GE(points, 500);
}

TEST_F(KilledWrite, IsFollowedByAWholeOne) {
    bool isDone = false;
    for (int stop = 1; !isDone; ++stop) {
        std::filesystem::remove_all(directory());
        isDone = runAndKillAt(stop, [&] {
            KeptFile file(path());
            write(file, "one");
        });
        KeptFile next(path());
        write(next, "two");
        EXPECT_EQ(restored(next), "two") << "stop " << stop;
        EXPECT_EQ(listing(), "x.dat x.dat.lock") << "stop " << stop;
    }
}

TEST_F(KilledWrite, SetAsideLeavesTheContentUnderOneOfItsNames) {
    bool isDone = false;
    for (int stop = 1; !isDone; ++stop) {
        std::filesystem::remove_all(directory());
        leave("", "newer");
        leave(".kept", "older");
        isDone = runAndKillAt(stop, [&] {
            KeptFile file(path());
            file.HasContent();
            file.SetAside();
        });
        EXPECT_EQ(restoredNext(), "newer") << "stop " << stop;
    }
}

TEST_F(KilledWrite, RemovedNeverLeavesTheOlderCopyAlone) {
    bool isDone = false;
    for (int stop = 1; !isDone; ++stop) {
        std::filesystem::remove_all(directory());
        leave("", "newer");
        leave(".kept", "older");
        isDone = runAndKillAt(stop, [&] {
            KeptFile file(path());
            file.HasContent();
            file.Remove();
        });
        const AnsiString found = restoredNext();
        EXPECT_TRUE(found == "nothing" || (!isDone && found == "newer")) << "stop " << stop << ": " << found;
    }
}

} // namespace
