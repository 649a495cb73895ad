#include "editwin/EditorEvents.h"

#include "editwin/EditorKeys.h"
#include "host/widgets/Guard.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QWheelEvent>
#include <QWidget>

namespace melvark {

namespace {

bool LeavesForAnotherControl(const QFocusEvent& event) {
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason &&
           event.reason() != Qt::ActiveWindowFocusReason;
}

} // namespace

EditorEvents::EditorEvents(Handlers handlers) : FHandlers(std::move(handlers)) {}

void EditorEvents::Watch(QWidget& control) {
    control.installEventFilter(this);
}

bool EditorEvents::eventFilter(QObject* watched, QEvent* event) {
    auto* const control = qobject_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::FocusIn:
        if (FHandlers.Enter) {
            Guarded([&] { FHandlers.Enter(control); });
        }
        return false;
    case QEvent::FocusOut:
        if (FHandlers.Exit && LeavesForAnotherControl(*static_cast<QFocusEvent*>(event))) {
            Guarded([&] { FHandlers.Exit(control); });
        }
        return false;
    case QEvent::ShortcutOverride:
        if (!FHandlers.KeyDown || KeyDownCommand(*static_cast<QKeyEvent*>(event)) == EditorCommand::None) {
            return false;
        }
        event->accept();
        return true;
    case QEvent::Wheel:
        if (!FHandlers.Wheel) {
            return false;
        }
        Guarded([&] { FHandlers.Wheel(*static_cast<QWheelEvent*>(event)); });
        event->accept();
        return true;
    case QEvent::KeyPress:
        return HandleKey(control, *static_cast<QKeyEvent*>(event));
    default:
        return false;
    }
}

bool EditorEvents::HandleKey(QWidget* control, const QKeyEvent& event) const {
    // A handler that throws has had its key.
    bool consumed = true;
    Guarded([&] {
        consumed = (FHandlers.KeyDown && FHandlers.KeyDown(control, event)) ||
                   (FHandlers.KeyPress && FHandlers.KeyPress(control, event));
    });
    return consumed;
}

} // namespace melvark
