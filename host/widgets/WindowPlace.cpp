#include "host/widgets/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <QWindowStateChangeEvent>

#include <algorithm>
#include <vector>

namespace melvark {

namespace {

std::vector<ScreenArea> Screens() {
    std::vector<ScreenArea> screens;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        const QRect area = screen->availableGeometry();
        screens.push_back({area.x(), area.y(), area.width(), area.height()});
    }
    return screens;
}

} // namespace

WindowPlace::WindowPlace(QWidget& window) : FWindow(window) {
    window.installEventFilter(this);
}

WindowPlacement WindowPlace::Current() const {
    const QRect rect = NormalRect();
    const Qt::WindowStates state = FWindow.windowState();
    const bool isMaximized = state.testFlag(Qt::WindowMaximized) && !state.testFlag(Qt::WindowMinimized);
    return {rect.x(), rect.y(), rect.width(), rect.height(), isMaximized};
}

/// Qt's normal geometry is wrong for one state only: a maximised window that was minimised.
QRect WindowPlace::NormalRect() const {
    return FWindow.isMinimized() && FRectBeforeMaximizing.isValid() ? FRectBeforeMaximizing : FWindow.normalGeometry();
}

bool WindowPlace::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::WindowStateChange) {
        return false;
    }
    // On the way into and out of the task bar the state passes through others that mean nothing.
    if (static_cast<QWindowStateChangeEvent*>(event)->oldState().testFlag(Qt::WindowMinimized)) {
        return false;
    }
    if (FWindow.windowState() == Qt::WindowMaximized) {
        FRectBeforeMaximizing = FWindow.normalGeometry();
    } else if (FWindow.windowState() == Qt::WindowNoState) {
        FRectBeforeMaximizing = QRect();
    }
    return false;
}

void MoveWithinReach(QWidget& window, const WindowPlacement& wanted) {
    // What can be reached is the window that will stand there.
    WindowPlacement fitting = wanted;
    fitting.Width = std::clamp(wanted.Width, window.minimumWidth(), window.maximumWidth());
    fitting.Height = std::clamp(wanted.Height, window.minimumHeight(), window.maximumHeight());
    const int titleHeight = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    const WindowPlacement place = ReachablePlace(fitting, Screens(), titleHeight);
    window.setGeometry(place.Left, place.Top, place.Width, place.Height);
}

} // namespace melvark
