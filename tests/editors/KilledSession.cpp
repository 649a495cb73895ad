#include "tests/editors/KilledSession.h"

#include "editors/MelvarkEditorDodakEditWin.h"
#include "editwin/CellWriter.h"
#include "editwin/model/DataGrid.h"
#include "tests/support/DodakScripts.h"

#include <QApplication>

#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <new>
#include <optional>
#include <random>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int c_Rows = 50;
/// Layouts are applied again so often, which sets the file aside.
constexpr int c_StatesForALayout = 3;
/// A session that is to be killed while it closes keeps at most so many states before.
constexpr int c_MostStatesToClose = 4;

/// How far the session is, seen from both processes.
struct Progress {
    std::atomic<bool> isOpen{false};
    std::atomic<bool> isClosing{false};
    std::atomic<bool> isClosed{false};
    std::atomic<int> begun{0}; ///< The state that is being kept.
    std::atomic<int> kept{0};  ///< The last one whose keeping has ended.
};

struct SharedProgress {
    /// Of a session that begins with the state that one before it has left, or with none.
    explicit SharedProgress(int state)
        : memory(mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
          progress(new(memory) Progress) {
        progress->begun = state;
        progress->kept = state;
    }
    SharedProgress(const SharedProgress&) = delete;
    SharedProgress& operator=(const SharedProgress&) = delete;
    ~SharedProgress() { munmap(memory, sizeof(Progress)); }

    void* memory;
    Progress* progress;
};

/// From when on the moment is counted, and the latest moment.
struct Stretch {
    std::atomic<bool> Progress::*from;
    std::chrono::microseconds longest;
};
constexpr Stretch c_FromTheStart{nullptr, std::chrono::microseconds(12'000)};
constexpr Stretch c_FromTheFirstCell{&Progress::isOpen, std::chrono::microseconds(120'000)};
constexpr Stretch c_FromTheClosing{&Progress::isClosing, std::chrono::microseconds(800)};

/// An editor on a host of its own.
class Session {
public:
    Session() : scope_(host_) {
        scriptDodakEditor(host_.connection, std::vector<LineCells>(c_Rows, {{"MNOZSTVI", "0"}}));
        editor_.emplace(qApp, &manager_, "SABLONA", 7, 40);
    }

    std::filesystem::path directory() const { return std::filesystem::path(editor_->TempFileName()).parent_path(); }

    /// Goes on until the process is killed, or keeps so many states and closes: every cell of the quantity tells the
    /// state.
    void work(Progress& progress, std::optional<int> states) {
        const int column = editor_->GetColumnSettings("MNOZSTVI").DataColumn;
        const int first = progress.begun + 1;
        progress.isOpen = true;
        for (int state = first; !states || state < first + *states; ++state) {
            for (int row = 0; row < c_Rows; ++row) {
                editor_->Cells().WriteTyped(column, row, std::to_string(state));
            }
            progress.begun = state;
            editor_->AutoSave(nullptr);
            progress.kept = state;
            if (state % c_StatesForALayout == 0) {
                editor_->ApplyColumnsSettingsToGrid();
            }
        }
        progress.isClosing = true;
        editor_.reset();
        progress.isClosed = true;
    }

    /// The state that the editor shows; -1 when its lines are of several, or not all there.
    int state() const {
        const int column = editor_->GetColumnSettings("MNOZSTVI").DataColumn;
        const TDataGrid& lines = editor_->DataGrid();
        for (int row = 0; row < c_Rows; ++row) {
            if (lines.GetRowCount() != c_Rows || lines.GetCells(column, row) != lines.GetCells(column, 0)) {
                return -1;
            }
        }
        return std::stoi(lines.GetCells(column, 0));
    }

private:
    RecordingHost host_;
    TScopedHost scope_;
    RecordingLibraryManager manager_;
    std::optional<TDodakEditBox> editor_;
};

/// Kills a session at the moment of the stretch.
void killSession(Progress& progress, const Stretch& stretch, std::chrono::microseconds moment,
                 std::optional<int> states) {
    const pid_t process = fork();
    if (process == 0) {
        try {
            Session().work(progress, states);
            pause();
        } catch (...) {
            _exit(1);
        }
    }
    while (stretch.from && !(progress.*stretch.from)) {
        if (waitpid(process, nullptr, WNOHANG) == process) {
            throw std::runtime_error("the session ended by itself");
        }
        std::this_thread::yield();
    }
    std::this_thread::sleep_for(moment);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

/// What the next start finds in the directory, which stays as it is: an editor that is closed removes its file.
int stateIn(const std::filesystem::path& directory) {
    const std::filesystem::path copy = directory.string() + ".copy";
    if (!std::filesystem::exists(directory)) {
        return 0;
    }
    std::filesystem::copy(directory, copy, std::filesystem::copy_options::recursive);
    const int state = Session().state();
    std::filesystem::remove_all(directory);
    std::filesystem::rename(copy, directory);
    return state;
}

/// Whether a start may find this state.
bool isPossible(const Progress& progress, int found) {
    if (progress.isClosed) {
        return found == 0;
    }
    return (found >= progress.kept && found <= progress.begun) || (progress.isClosing && found == 0);
}

} // namespace

KilledSessions killSessions(int moments, unsigned seed) {
    std::mt19937 random(seed);
    const auto atMost = [&](auto most) {
        return static_cast<int>(std::uniform_int_distribution<long>(0, static_cast<long>(most))(random));
    };
    const Stretch stretches[] = {c_FromTheStart, c_FromTheFirstCell, c_FromTheClosing};
    const std::filesystem::path directory = Session().directory();
    std::filesystem::remove_all(directory);
    KilledSessions sessions;
    for (int left = 0; sessions.Moments < moments && sessions.Failure.empty(); ++sessions.Moments) {
        const SharedProgress shared(left);
        const Progress& progress = *shared.progress;
        const Stretch& stretch = stretches[atMost(std::size(stretches) - 1)];
        const std::chrono::microseconds moment(atMost(stretch.longest.count()));
        const bool isClosed = stretch.from == &Progress::isClosing;
        const std::optional<int> states = isClosed ? std::optional(atMost(c_MostStatesToClose)) : std::nullopt;
        killSession(*shared.progress, stretch, moment, states);
        const int found = stateIn(directory);
        if (!isPossible(progress, found)) {
            sessions.Failure = "killed " + std::to_string(moment.count()) + " us after " +
                               (isClosed       ? "it began to close"
                                : stretch.from ? "it was open"
                                               : "its start") +
                               ": found state " + std::to_string(found) + ", kept was " +
                               std::to_string(progress.kept) + ", begun " + std::to_string(progress.begun);
        }
        sessions.OnLeftWork += left > 0 ? 1 : 0;
        sessions.WhileOpening += progress.isOpen ? 0 : 1;
        sessions.WhileRestoring += left > 0 && !progress.isOpen ? 1 : 0;
        sessions.WhileClosing += progress.isClosing && !progress.isClosed ? 1 : 0;
        sessions.WithWork += found > 0 ? 1 : 0;
        left = found;
    }
    return sessions;
}
