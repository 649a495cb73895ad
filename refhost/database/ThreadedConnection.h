#pragma once

#include "host/Connection.h"
#include "refhost/database/CallThread.h"
#include "refhost/database/SaveCalls.h"

#include <functional>
#include <optional>

namespace refhost {

class Database;

/// How far the work is that somebody waits for.
struct LongWork {
    std::optional<int> RowsSent; ///< Of a save that is under way; nothing for any other work.
    bool MayStop = true;         ///< Not any more from the closing call of a save on.
};

/// Who looks after the user while he waits for the database, on the user's own thread.
class WorkWatcher {
public:
    WorkWatcher() = default;
    WorkWatcher(const WorkWatcher&) = delete;
    WorkWatcher& operator=(const WorkWatcher&) = delete;
    virtual ~WorkWatcher();

    /// A work begins or, when one is under way, goes on: one call, or all calls of a save.
    virtual void goesOn() = 0;
    /// When the watcher wants to look next.
    virtual CallThread::Clock::time_point nextLook() const = 0;
    /// The watcher's turn, while the work goes on. Whether the user wants it to stop.
    virtual bool look(const LongWork& work) = 0;
    /// The work is over, whichever way.
    virtual void ends() = 0;
};

/// The connection of the user-interface thread whose calls run on a thread of their own, one at a time. For the caller
/// nothing changes: a call returns or throws when it has ended. But while he waits, a watcher gets its turns, and the
/// user may stop the work: a call that is under way throws EStopped, and so does the next row of a save. A save that
/// was stopped goes on with its emptying only. From the closing call on there is no stop.
///
/// A call that the watcher's own turn leads to waits for the one under way.
class ThreadedConnection : public TConnection {
public:
    /// `connection` stands before `database`, or is the same one.
    ThreadedConnection(TConnection& connection, Database& database, WorkWatcher& watcher);

    TProcedureInfo Describe(const AnsiString& procedure) override;
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override;

private:
    enum class Save { None, Open, Stopped };

    void run(SaveStep step, const std::function<void()>& call);
    /// Throws EStopped instead of going on with a save that is stopped.
    void enter(SaveStep step);
    void leave(SaveStep step);
    /// After an error: what has become of a save that was under way.
    void breakOff(Save save);
    void runWatched(const std::function<void()>& call);
    /// The same; a call that failed because it was to stop throws EStopped.
    void runStoppable(const std::function<void()>& call);
    void look();
    /// Waits until no row is under way any more: the next save begins on an idle session.
    void settleRows();

    TConnection& connection_;
    Database& database_;
    WorkWatcher& watcher_;
    CallThread thread_;
    LongWork work_;
    Save save_ = Save::None;
    bool isStopWanted_ = false; ///< Of the work under way.
    bool isRunning_ = false;
    AnsiString described_; ///< The procedure of the save that was described last.
    TProcedureInfo description_;
};

} // namespace refhost
