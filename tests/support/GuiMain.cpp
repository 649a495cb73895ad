#include "tests/support/ExpectedWarning.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    // Editors keep unsaved work where the desktop keeps the state of programs, and the host its window's look with the
    // settings: here, and not where the developer's own lie. Programs that a test starts take it over.
    const QTemporaryDir state;
    const QTemporaryDir configuration;
    qputenv("XDG_STATE_HOME", state.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", configuration.path().toUtf8());
    qunsetenv("TMPDIR");

    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleMock(&argc, argv);
    failOnUnexpectedWarnings();
    return RUN_ALL_TESTS();
}
