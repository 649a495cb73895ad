#include "refhost/database/CallThread.h"

namespace refhost {

namespace {

/// Longer than a row of a save takes, and than what an editor does between two of them.
constexpr std::chrono::microseconds c_LookOut{100};

/// Waits a moment for what another thread is about to do, without sleeping; others who want the processor get it.
template <typename Condition>
void lookOutFor(Condition hasHappened) {
    const auto end = CallThread::Clock::now() + c_LookOut;
    while (!hasHappened() && CallThread::Clock::now() < end) {
        std::this_thread::yield();
    }
}

} // namespace

CallThread::Call::Call(CallThread& thread, const std::function<void()>& work) : thread_(thread), work_(work) {
    std::unique_lock lock(thread_.mutex_);
    thread_.ends_.wait(lock, [this] { return thread_.call_.load() == nullptr; });
    thread_.call_ = this;
    thread_.begins_.notify_one();
}

CallThread::Call::~Call() {
    std::unique_lock lock(thread_.mutex_);
    thread_.ends_.wait(lock, [this] { return hasEnded_.load(); });
}

bool CallThread::Call::hasEndedBy(Clock::time_point moment) {
    lookOutFor([this] { return hasEnded_.load(); });
    std::unique_lock lock(thread_.mutex_);
    return thread_.ends_.wait_until(lock, moment, [this] { return hasEnded_.load(); });
}

void CallThread::Call::finish() {
    lookOutFor([this] { return hasEnded_.load(); });
    std::unique_lock lock(thread_.mutex_);
    thread_.ends_.wait(lock, [this] { return hasEnded_.load(); });
    if (error_) {
        std::rethrow_exception(error_);
    }
}

CallThread::CallThread() : thread_([this] { run(); }) {}

CallThread::~CallThread() {
    {
        const std::lock_guard lock(mutex_);
        isClosing_ = true;
    }
    begins_.notify_one();
    thread_.join();
}

void CallThread::run() {
    while (true) {
        lookOutFor([this] { return call_.load() != nullptr; });
        std::unique_lock lock(mutex_);
        begins_.wait(lock, [this] { return call_.load() != nullptr || isClosing_; });
        if (call_.load() == nullptr) {
            return;
        }
        Call& call = *call_;
        lock.unlock();
        std::exception_ptr error;
        try {
            call.work_();
        } catch (...) {
            error = std::current_exception();
        }
        lock.lock();
        call.error_ = std::move(error);
        call.hasEnded_ = true;
        call_ = nullptr;
        ends_.notify_all();
    }
}

} // namespace refhost
