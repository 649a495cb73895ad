#include "benchmarks/AutosaveFrames.h"

#include "editors/MelvarkEditorDodakEditWin.h"
#include "host/widgets/StringGrid.h"
#include "tests/support/DodakScripts.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int c_Document = 7;
constexpr int c_Supplier = 1;
/// A write begins so often, so that frames without one come between.
constexpr std::chrono::milliseconds c_Between{200};

/// What passed in the synchronising calls below.
Milliseconds waited{};
int writesBegun = 0;

} // namespace

// Stands before the C library's, so that the waiting for the disk can be told apart.
extern "C" int fsync(int file) {
    const Clock::time_point start = Clock::now();
    const long result = syscall(SYS_fsync, file);
    waited += Clock::now() - start;
    return static_cast<int>(result);
}

namespace benchmark {

namespace {

struct Frame {
    Milliseconds Length;
    Milliseconds Waited;
    bool HasWrite;
};

/// Has a widget painted without end and notes the frames.
class FrameWatch : public QObject {
public:
    explicit FrameWatch(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            const Clock::time_point now = Clock::now();
            if (start_ != Clock::time_point()) {
                frames_.push_back({now - start_, waited - waitedBefore_, writesBegun != writesBefore_});
            }
            start_ = now;
            waitedBefore_ = waited;
            writesBefore_ = writesBegun;
            // Asked for within a painting it would be lost.
            QTimer::singleShot(0, &widget_, qOverload<>(&QWidget::update));
        }
        return false;
    }

    /// The longest frame, the waiting taken off, of those with a write or of those without.
    Milliseconds longest(bool hasWrite) const {
        Milliseconds most{};
        for (const Frame& frame : frames_) {
            most = frame.HasWrite == hasWrite ? std::max(most, frame.Length - frame.Waited) : most;
        }
        return most;
    }
    Milliseconds longestWait() const {
        return frames_.empty() ? Milliseconds() : std::ranges::max_element(frames_, {}, &Frame::Waited)->Waited;
    }
    Milliseconds medianWithWrite() const {
        std::vector<Milliseconds> lengths;
        for (const Frame& frame : frames_) {
            if (frame.HasWrite) {
                lengths.push_back(frame.Length - frame.Waited);
            }
        }
        std::ranges::nth_element(lengths, lengths.begin() + std::ssize(lengths) / 2);
        return lengths.at(lengths.size() / 2);
    }

private:
    QWidget& widget_;
    Clock::time_point start_;
    Milliseconds waitedBefore_{};
    int writesBefore_ = 0;
    std::vector<Frame> frames_;
};

/// Lines as a clerk has them: a name, numbers, a date.
std::vector<LineCells> noteLines(int rows) {
    LineCells line;
    for (const AnsiString& key : dodakKeys()) {
        line[key] = "1890,25";
    }
    line["SKLADPOL"] = "Žitný chléb konzumní";
    line["TRVANLIVOST"] = "1.3.2027";
    line["DOBSID"] = "";
    return {static_cast<std::size_t>(rows), line};
}

} // namespace

void measureFrames(const std::filesystem::path& state, int rows, int writes) {
    qputenv("XDG_STATE_HOME", state.c_str());
    qunsetenv("TMPDIR");
    RecordingHost host;
    const TScopedHost scope(host);
    scriptDodakEditor(host.connection, noteLines(rows));
    TDodakEditBox editor(qApp, nullptr, "SABLONA", c_Document, c_Supplier);
    editor.resize(1600, 1000);
    editor.show();

    writesBegun = 0;
    FrameWatch watch(*editor.StringGrid->viewport());
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, &editor, [&] {
        if (writesBegun == writes) {
            QCoreApplication::quit();
            return;
        }
        ++writesBegun;
        editor.AutoSave(nullptr);
    });
    clock.start(c_Between);
    editor.StringGrid->viewport()->update();
    QApplication::exec();
    if (!host.errors().empty() || !std::filesystem::exists(editor.TempFileName())) {
        throw std::runtime_error("the lines were not written");
    }
    std::printf("frames of a form of %d lines, %d writes, ms: with a write %.1f (the longest %.1f, besides waiting for "
                "the disk, %.1f at most), the longest without one %.1f\n",
                rows, writes, watch.medianWithWrite().count(), watch.longest(true).count(), watch.longestWait().count(),
                watch.longest(false).count());
}

} // namespace benchmark
