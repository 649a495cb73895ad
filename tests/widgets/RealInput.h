#pragma once

#include <QPoint>
#include <QProcess>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

/// Keys and mouse that come through the display server, as a user's do, for tests under tests/run-on-display.
namespace realinput {

/// Runs the input tool while the event loop of the test goes on.
inline void run(const QStringList& arguments) {
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    EXPECT_TRUE(QTest::qWaitFor([&] { return tool.state() == QProcess::NotRunning; }));
    EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
}

inline void moveTo(const QWidget& part, QPoint position) {
    const QPoint global = part.mapToGlobal(position);
    run({QStringLiteral("mousemove"), QString::number(global.x()), QString::number(global.y())});
}

inline void click(const QWidget& part, QPoint position, int button = 1) {
    moveTo(part, position);
    run({QStringLiteral("click"), QString::number(button)});
}

inline void dragTo(const QWidget& part, QPoint from, QPoint to) {
    moveTo(part, from);
    run({QStringLiteral("mousedown"), QStringLiteral("1")});
    moveTo(part, (from + to) / 2);
    moveTo(part, to);
    run({QStringLiteral("mouseup"), QStringLiteral("1")});
}

inline void key(const QString& name) {
    run({QStringLiteral("key"), name});
}

/// Presses the key until it had its effect: a key that comes while the window manager still hands the focus to a new
/// window is lost, as it is for a user who types too early.
template <class Condition>
bool keyUntil(const QString& name, Condition condition) {
    for (int attempt = 0; attempt < 10; ++attempt) {
        key(name);
        if (QTest::qWaitFor(condition, 500)) {
            return true;
        }
    }
    return false;
}

} // namespace realinput
