#pragma once

#include <QString>
#include <QStringList>

/// In its scope, Qt warnings that contain the text are expected and pass; any other warning fails the running
/// test.
class ExpectedWarning {
public:
    explicit ExpectedWarning(const QString& part);
    ExpectedWarning(const ExpectedWarning&) = delete;
    ExpectedWarning& operator=(const ExpectedWarning&) = delete;
    ~ExpectedWarning();
};

/// Installs the message handler that fails the running test on an unexpected warning. Called once by main().
void failOnUnexpectedWarnings();
