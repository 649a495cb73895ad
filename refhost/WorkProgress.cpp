#include "refhost/WorkProgress.h"

#include "host/widgets/Later.h"
#include "refhost/ProgressWindow.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QTimerEvent>

#include <algorithm>
#include <thread>
#include <utility>

namespace refhost {

namespace {

using Clock = CallThread::Clock;

/// Often enough that a window is painted and a click heard at once, as people see it.
constexpr std::chrono::milliseconds c_BetweenLooks{50};
/// How long the window manager may take to give the focus back.
constexpr std::chrono::milliseconds c_FocusTime{300};
constexpr std::chrono::milliseconds c_FocusLook{2};
} // namespace

WorkProgress::WorkProgress(const Languages& languages, std::chrono::milliseconds patience)
    : languages_(languages), patience_(patience) {}

WorkProgress::~WorkProgress() = default;

void WorkProgress::goesOn() {
    if (!std::exchange(isUnderWay_, true)) {
        nextLook_ = Clock::now() + patience_;
    }
}

bool WorkProgress::look(const LongWork& work) {
    if (!window_) {
        open();
    }
    window_->showWork(work);
    deliverEvents(QEventLoop::AllEvents);
    if (wasIdle_) {
        endWhenIdle();
    }
    nextLook_ = Clock::now() + c_BetweenLooks;
    return window_->isStopWanted();
}

void WorkProgress::open() {
    before_ = QApplication::activeWindow();
    window_ = std::make_unique<ProgressWindow>(languages_, before_);
    window_->show();
    endWhenIdle();
}

/// A save that nobody goes on with, because something else failed, must not leave a window that blocks all others.
void WorkProgress::endWhenIdle() {
    wasIdle_ = false;
    QMetaObject::invokeMethod(
        this,
        [this] {
            wasIdle_ = true;
            if (!isLooking_) {
                ends();
            }
        },
        Qt::QueuedConnection);
}

void WorkProgress::deliverEvents(QEventLoop::ProcessEventsFlags flags) {
    const QScopedValueRollback looking(isLooking_, true);
    qApp->installEventFilter(this);
    QEventLoop loop; // a loop of its own: no form closes under a handler that still runs
    QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    loop.exec(flags);
    qApp->removeEventFilter(this);
}

bool WorkProgress::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Timer && hangsInOtherWindow(watched)) {
        hold({watched, QEvent::Timer, static_cast<QTimerEvent*>(event)->timerId()});
        return true;
    }
    if (event->type() == melvark::LaterCallEvent()) {
        hold({watched, event->type(), 0});
        return true;
    }
    return false;
}

/// A timer that ticks again and again is made up for once.
void WorkProgress::hold(const HeldEvent& event) {
    const bool isHeld = std::ranges::any_of(held_, [&](const HeldEvent& held) {
        return held.Receiver == event.Receiver && held.Type == event.Type && held.TimerId == event.TimerId;
    });
    if (!isHeld) {
        held_.push_back(event);
    }
}

/// Qt's own timers hang in none, and move the bar.
bool WorkProgress::hangsInOtherWindow(const QObject* receiver) const {
    bool hangsInWindow = false;
    for (const QObject* object = receiver; object != nullptr; object = object->parent()) {
        if (object == window_.get()) {
            return false;
        }
        hangsInWindow = hangsInWindow || object->isWidgetType();
    }
    return hangsInWindow;
}

void WorkProgress::ends() {
    isUnderWay_ = false;
    if (!window_) {
        return;
    }
    const bool wasActive = window_->isActiveWindow();
    window_.reset();
    if (wasActive) {
        giveFocusBack();
    }
    for (const HeldEvent& event : std::exchange(held_, {})) {
        if (event.Receiver) {
            QCoreApplication::postEvent(event.Receiver, event.Type == QEvent::Timer ? new QTimerEvent(event.TimerId)
                                                                                    : new QEvent(event.Type));
        }
    }
}

/// The caller may be about to show a box, which belongs over the window that was active. Keys and clicks stay queued.
void WorkProgress::giveFocusBack() {
    const Clock::time_point end = Clock::now() + c_FocusTime;
    if (before_) {
        before_->activateWindow();
    }
    while (before_ && QApplication::activeWindow() != before_ && Clock::now() < end) {
        deliverEvents(QEventLoop::ExcludeUserInputEvents);
        std::this_thread::sleep_for(c_FocusLook);
    }
}

} // namespace refhost
