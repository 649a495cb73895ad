#include "editwin/EditorEvents.h"

#include "host/Exceptions.h"
#include "tests/support/RecordingHost.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include <gmock/gmock.h>

using melvark::EditorEvents;
using testing::ElementsAre;

namespace {

/// Sends the event to the control; whether it was accepted.
bool send(QWidget& control, QEvent&& event) {
    QCoreApplication::sendEvent(&control, &event);
    return event.isAccepted();
}

bool ignore(QWidget*, const QKeyEvent&) {
    return false;
}

} // namespace

TEST(EditorEvents, OnlyAnotherControlOfTheWindowMakesItLeave) {
    const struct {
        Qt::FocusReason reason;
        bool leaves;
        const char* remark;
    } cases[] = {
        {Qt::MouseFocusReason, true, "a click on another control"},
        {Qt::TabFocusReason, true, "Tab"},
        {Qt::BacktabFocusReason, true, "Shift+Tab"},
        {Qt::ShortcutFocusReason, true, "a label's shortcut"},
        {Qt::OtherFocusReason, true, "the program"},
        {Qt::PopupFocusReason, false, "a drop-down list or context menu"},
        {Qt::MenuBarFocusReason, false, "a menu bar"},
        {Qt::ActiveWindowFocusReason, false, "another window in front"},
    };
    for (const auto& each : cases) {
        QLineEdit edit;
        int exits = 0;
        EditorEvents events(
            {.Enter = {}, .Exit = [&](QWidget*) { ++exits; }, .KeyDown = {}, .KeyPress = {}, .Wheel = {}});
        events.Watch(edit);
        send(edit, QFocusEvent(QEvent::FocusOut, each.reason));
        EXPECT_EQ(exits, each.leaves ? 1 : 0) << each.remark;
    }
}

TEST(EditorEvents, KeyPressComesAfterAKeyDownThatLeftTheKey) {
    QLineEdit edit;
    std::vector<std::string> handlers;
    bool takesDown = false;
    EditorEvents events({.Enter = {},
                         .Exit = {},
                         .KeyDown =
                             [&](QWidget*, const QKeyEvent&) {
                                 handlers.emplace_back("down");
                                 return takesDown;
                             },
                         .KeyPress =
                             [&](QWidget*, const QKeyEvent&) {
                                 handlers.emplace_back("press");
                                 return true;
                             },
                         .Wheel = {}});
    events.Watch(edit);
    send(edit, QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, QStringLiteral("a")));
    takesDown = true;
    send(edit, QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, QStringLiteral("a")));
    EXPECT_THAT(handlers, ElementsAre("down", "press", "down"));
    EXPECT_EQ(edit.text(), QString()) << "consumed keys type nothing";
}

TEST(EditorEvents, AKeyThatNobodyTakesIsTheControls) {
    QLineEdit edit;
    EditorEvents events({.Enter = {}, .Exit = {}, .KeyDown = ignore, .KeyPress = ignore, .Wheel = {}});
    events.Watch(edit);
    send(edit, QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, QStringLiteral("a")));
    EXPECT_EQ(edit.text(), QStringLiteral("a"));
}

TEST(EditorEvents, ItsKeysTakePrecedenceOverShortcutsOnlyWithAKeyDownHandler) {
    for (const bool handles : {true, false}) {
        QWidget control;
        EditorEvents events({.Enter = {},
                             .Exit = {},
                             .KeyDown = handles ? EditorEvents::KeyHandler(ignore) : EditorEvents::KeyHandler(),
                             .KeyPress = {},
                             .Wheel = {}});
        events.Watch(control);
        QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_P, Qt::AltModifier);
        event.ignore();
        QCoreApplication::sendEvent(&control, &event);
        EXPECT_EQ(event.isAccepted(), handles);
    }
}

TEST(EditorEvents, AnErrorOfAHandlerIsShownAndTheKeyIsGone) {
    RecordingHost host;
    const TScopedHost installed(host);
    QLineEdit edit;
    EditorEvents events({.Enter = [](QWidget*) { throw EHostError("enter"); },
                         .Exit = [](QWidget*) { throw EHostError("exit"); },
                         .KeyDown = [](QWidget*, const QKeyEvent&) -> bool { throw EHostError("key"); },
                         .KeyPress = {},
                         .Wheel = {}});
    events.Watch(edit);
    send(edit, QFocusEvent(QEvent::FocusIn, Qt::TabFocusReason));
    send(edit, QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, QStringLiteral("a")));
    send(edit, QFocusEvent(QEvent::FocusOut, Qt::TabFocusReason));
    EXPECT_THAT(host.errors(), ElementsAre("enter", "key", "exit"));
    EXPECT_EQ(edit.text(), QString());
}

TEST(EditorEvents, TheWheelGoesToItsHandlerAndNotToTheControl) {
    QComboBox list;
    list.addItems({QStringLiteral("a"), QStringLiteral("b")});
    int turns = 0;
    EditorEvents events({.Enter = {}, .Exit = {}, .KeyDown = {}, .KeyPress = {}, .Wheel = [&](QWheelEvent& event) {
                             turns += event.angleDelta().y() < 0 ? 1 : 0;
                         }});
    events.Watch(list);
    EXPECT_TRUE(send(list, QWheelEvent(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton,
                                       Qt::NoModifier, Qt::NoScrollPhase, false)));
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(list.currentIndex(), 0);
}
