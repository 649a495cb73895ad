#include "editwin/EditorKeys.h"

#include <QKeyEvent>

namespace melvark {

namespace {

bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

EditorCommand EnterCommand(Qt::KeyboardModifiers modifiers) {
    if (modifiers.testFlag(Qt::ControlModifier)) {
        return EditorCommand::Confirm;
    }
    return modifiers.testFlag(Qt::ShiftModifier) ? EditorCommand::GoPrevious : EditorCommand::GoNext;
}

EditorCommand KeyDownCommand(const QKeyEvent& event) {
    if (IsEnter(event) && event.modifiers().testFlag(Qt::ControlModifier)) {
        return EnterCommand(event.modifiers());
    }
    if (!event.modifiers().testFlag(Qt::AltModifier)) {
        return EditorCommand::None;
    }
    switch (event.key()) {
    case Qt::Key_C:
        return EditorCommand::RecalculationOff;
    case Qt::Key_3:
        return event.modifiers().testFlag(Qt::KeypadModifier) ? EditorCommand::RecalculationOff : EditorCommand::None;
    case Qt::Key_P:
    case Qt::Key_F1:
        return EditorCommand::RecalculationOn;
    default:
        return EditorCommand::None;
    }
}

EditorCommand KeyPressCommand(const QKeyEvent& event) {
    if (!IsEnter(event) || event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier)) {
        return EditorCommand::None;
    }
    return EnterCommand(event.modifiers());
}

} // namespace melvark
