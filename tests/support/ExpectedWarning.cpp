#include "tests/support/ExpectedWarning.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

QStringList& expectedParts() {
    static QStringList parts;
    return parts;
}

/// What the off-screen platform says about every window with a fixed or minimum size.
bool isPlatformChatter(const QString& message) {
    return message == QStringLiteral("This plugin does not support propagateSizeHints()");
}

void handleMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    const bool isExpected = std::any_of(expectedParts().cbegin(), expectedParts().cend(),
                                        [&](const QString& part) { return message.contains(part); });
    if (isPlatformChatter(message)) {
        return;
    }
    if (isWarning && !isExpected) {
        ADD_FAILURE() << "unexpected warning of Qt: " << message.toStdString();
    } else {
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    }
    if (type == QtFatalMsg) {
        std::abort();
    }
}

} // namespace

ExpectedWarning::ExpectedWarning(const QString& part) {
    expectedParts().append(part);
}

ExpectedWarning::~ExpectedWarning() {
    expectedParts().removeLast();
}

void failOnUnexpectedWarnings() {
    qInstallMessageHandler(handleMessage);
}
