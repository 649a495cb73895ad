#pragma once

#include "tests/session/HostSession.h"

#include <QTemporaryDir>

#include <string>
#include <vector>

/// A session whose clock the test moves, and whose file of unsaved work it watches. The clock and the directory of
/// unsaved work are those of all sessions of the test.
class CrashableSession : public HostSession {
public:
    /// On a company that the test has made.
    explicit CrashableSession(std::string database);
    ~CrashableSession();

    /// Moves the clock by more than a minute and waits until this file of unsaved work is there.
    void passAMinute(const std::string& file);
    /// The files of unsaved work, without locks and without saves that wait for their answer.
    static std::vector<std::string> unsavedWork();
    static void waitForUnsavedWork(const std::vector<std::string>& files);

    /// Hosts that are started from now on end at the moment in which a save is answered.
    static void dieAtAnswers();
    /// Waits until the host has ended in that way; the trace begins anew, and the next host lives.
    void waitForDeath();

    /// Kills the host; the trace begins anew.
    void crash();
    std::vector<std::string> traceSinceCrash() const;

private:
    QTemporaryDir clockFolder_;
    std::size_t tracedBefore_ = 0;
};
