#pragma once

#include "refhost/database/ThreadedConnection.h"

#include <QEvent>
#include <QEventLoop>
#include <QObject>
#include <QPointer>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace refhost {

class Languages;
class ProgressWindow;

/// Shows the user a work that takes longer than a second, and hears whether he stops it. It gets its turns from whoever
/// waits for the work; in them Qt paints all windows and brings keys and clicks to the progress window alone. What the
/// timers of other windows have to do, and what forms wanted to do later, waits until the work is over.
class WorkProgress : public QObject, public WorkWatcher {
    Q_OBJECT
public:
    explicit WorkProgress(const Languages& languages, std::chrono::milliseconds patience = std::chrono::seconds(1));
    ~WorkProgress() override;

    void goesOn() override;
    CallThread::Clock::time_point nextLook() const override { return nextLook_; }
    bool look(const LongWork& work) override;
    void ends() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A tick of a timer or a queued call of a form.
    struct HeldEvent {
        QPointer<QObject> Receiver;
        QEvent::Type Type;
        int TimerId; ///< 0 for a call.
    };

    void open();
    void deliverEvents(QEventLoop::ProcessEventsFlags flags);
    void endWhenIdle();
    void giveFocusBack();
    void hold(const HeldEvent& event);
    bool hangsInOtherWindow(const QObject* receiver) const;

    const Languages& languages_;
    std::chrono::milliseconds patience_;
    CallThread::Clock::time_point nextLook_;
    bool isUnderWay_ = false;
    bool isLooking_ = false;
    bool wasIdle_ = false; ///< While it looked.
    std::unique_ptr<ProgressWindow> window_;
    QPointer<QWidget> before_; ///< The window that was active before.
    std::vector<HeldEvent> held_;
};

} // namespace refhost
