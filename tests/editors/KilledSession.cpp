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
constexpr std::chrono::microseconds c_Longest{120'000};

/// How far the session is, seen from both processes.
struct Progress {
    std::atomic<bool> isOpen{false};
    std::atomic<int> begun{0}; ///< The state that is being kept.
    std::atomic<int> kept{0};  ///< The last one whose keeping has ended.
};

struct SharedProgress {
    SharedProgress()
        : memory(mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
          progress(new(memory) Progress) {}
    SharedProgress(const SharedProgress&) = delete;
    SharedProgress& operator=(const SharedProgress&) = delete;
    ~SharedProgress() { munmap(memory, sizeof(Progress)); }

    void* memory;
    Progress* progress;
};

/// An editor on a host of its own.
class Session {
public:
    Session() : scope_(host_) {
        scriptDodakEditor(host_.connection, std::vector<LineCells>(c_Rows, {{"MNOZSTVI", "0"}}));
        editor_.emplace(qApp, &manager_, "SABLONA", 7, 40);
    }

    std::filesystem::path directory() const { return std::filesystem::path(editor_->TempFileName()).parent_path(); }

    /// Goes on until the process is killed: every cell of the quantity tells the state.
    [[noreturn]] void work(Progress& progress) {
        const int column = editor_->GetColumnSettings("MNOZSTVI").DataColumn;
        progress.isOpen = true;
        for (int state = 1;; ++state) {
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

/// Kills a session so long after it was opened.
void killSession(Progress& progress, std::chrono::microseconds moment) {
    const pid_t process = fork();
    if (process == 0) {
        try {
            Session().work(progress);
        } catch (...) {
            _exit(1);
        }
    }
    while (!progress.isOpen) {
        if (waitpid(process, nullptr, WNOHANG) == process) {
            throw std::runtime_error("the session did not open");
        }
        std::this_thread::yield();
    }
    std::this_thread::sleep_for(moment);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

} // namespace

KilledSessions killSessions(int moments, unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> microseconds(0, static_cast<int>(c_Longest.count()));
    KilledSessions sessions;
    while (sessions.Moments < moments && sessions.Failure.empty()) {
        std::filesystem::remove_all(Session().directory());
        const SharedProgress shared;
        const std::chrono::microseconds moment(microseconds(random));
        killSession(*shared.progress, moment);
        const int found = Session().state();
        const int kept = shared.progress->kept;
        const int begun = shared.progress->begun;
        if (found < kept || found > begun) {
            sessions.Failure = "killed after " + std::to_string(moment.count()) + " us: found state " +
                               std::to_string(found) + ", kept was " + std::to_string(kept) + ", begun " +
                               std::to_string(begun);
        }
        ++sessions.Moments;
        sessions.WithWork += found > 0 ? 1 : 0;
    }
    return sessions;
}
