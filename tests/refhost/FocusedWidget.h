#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <stdexcept>

/// The widget that gets the keys. After a window became active the window manager may still be busy handing it the
/// focus, so that it is waited for.
inline QWidget* focusedWidget() {
    if (!QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; })) {
        throw std::runtime_error("no widget of the program has the focus");
    }
    return QApplication::focusWidget();
}
