#include "refhost/database/ThreadedConnection.h"

#include "refhost/database/Database.h"
#include "refhost/database/StopSignal.h"

namespace refhost {

namespace {

/// Sets a flag in its scope.
class Flagged {
public:
    explicit Flagged(bool& flag) : flag_(flag) { flag_ = true; }
    Flagged(const Flagged&) = delete;
    Flagged& operator=(const Flagged&) = delete;
    ~Flagged() { flag_ = false; }

private:
    bool& flag_;
};

/// Forgets the wish at the end of the call that it was meant for.
class HeardSignal {
public:
    explicit HeardSignal(StopSignal& signal) : signal_(signal) {}
    HeardSignal(const HeardSignal&) = delete;
    HeardSignal& operator=(const HeardSignal&) = delete;
    ~HeardSignal() { signal_.clear(); }

private:
    StopSignal& signal_;
};

} // namespace

WorkWatcher::~WorkWatcher() = default;

ThreadedConnection::ThreadedConnection(TConnection& connection, Database& database, WorkWatcher& watcher)
    : connection_(connection), database_(database), watcher_(watcher) {}

TProcedureInfo ThreadedConnection::Describe(const AnsiString& procedure) {
    // Each row of a save asks anew.
    if (save_ == Save::Open && procedure == described_) {
        return description_;
    }
    TProcedureInfo info;
    run(SaveStep::Other, [&] { info = connection_.Describe(procedure); });
    if (save_ == Save::Open) {
        described_ = procedure;
        description_ = info;
    }
    return info;
}

TCallResult ThreadedConnection::Execute(const TProcedureCall& call) {
    TCallResult result;
    run(saveCallOf(call.Name).Is, [&] { result = connection_.Execute(call); });
    return result;
}

TResultTable ThreadedConnection::Query(const AnsiString& sql) {
    TResultTable table;
    run(SaveStep::Other, [&] { table = connection_.Query(sql); });
    return table;
}

void ThreadedConnection::run(SaveStep step, const std::function<void()>& call) {
    if (isRunning_) {
        CallThread::Call(thread_, call).finish();
        return;
    }
    const Flagged running(isRunning_);
    try {
        enter(step);
        runStoppable(call);
    } catch (const EStopped&) {
        breakOff(Save::Stopped);
        throw;
    } catch (...) {
        breakOff(Save::None);
        throw;
    }
    leave(step);
}

void ThreadedConnection::breakOff(Save save) {
    if (save_ == Save::Open) {
        save_ = save;
    }
    watcher_.ends();
}

void ThreadedConnection::enter(SaveStep step) {
    const bool goesOnWithSave = step == SaveStep::Row || step == SaveStep::Closing;
    if (save_ == Save::Stopped && goesOnWithSave) {
        throw EStopped();
    }
    if (step == SaveStep::Begin || save_ != Save::Open) {
        work_ = {};
        isStopWanted_ = false;
    }
    if (step == SaveStep::Begin) {
        save_ = Save::Open;
        work_.RowsSent = 0;
        described_.clear();
    }
    watcher_.goesOn();
    if (CallThread::Clock::now() >= watcher_.nextLook()) { // rows are quick: none of them would wait so long
        look();
    }
    if (step == SaveStep::Closing && save_ == Save::Open) {
        runStoppable([this] { database_.awaitAnswers(); }); // while there still is a stop
    }
    if (isStopWanted_ && goesOnWithSave) {
        settleRows();
        throw EStopped();
    }
    if (step == SaveStep::Row && work_.RowsSent) {
        ++*work_.RowsSent;
    }
    work_.MayStop = step != SaveStep::Closing;
}

void ThreadedConnection::leave(SaveStep step) {
    if (step == SaveStep::Closing) {
        save_ = Save::None;
    }
    if (save_ != Save::Open) {
        watcher_.ends();
    }
}

void ThreadedConnection::runWatched(const std::function<void()>& call) {
    const HeardSignal heard(database_.stopSignal());
    CallThread::Call running(thread_, call);
    while (!running.hasEndedBy(watcher_.nextLook())) {
        look();
        if (isStopWanted_ && work_.MayStop) {
            database_.stopSignal().request();
        }
    }
    running.finish();
}

void ThreadedConnection::runStoppable(const std::function<void()>& call) {
    try {
        runWatched(call);
    } catch (const EDatabaseError& error) {
        if (isStopWanted_ && work_.MayStop) { // whatever the database makes of it
            throw EStopped(error.Message() + '\n' + error.Details());
        }
        throw;
    }
}

void ThreadedConnection::look() {
    isStopWanted_ = watcher_.look(work_);
}

void ThreadedConnection::settleRows() {
    runWatched([this] {
        try {
            database_.awaitAnswers();
        } catch (const EDatabaseError&) {
            return; // a row that was refused, too, is given up with the others
        }
    });
}

} // namespace refhost
