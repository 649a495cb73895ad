#include "refhost/database/CallThread.h"

namespace refhost {

CallThread::Call::Call(CallThread& thread, const std::function<void()>& work) : thread_(thread), work_(work) {
    std::unique_lock lock(thread_.mutex_);
    thread_.ends_.wait(lock, [this] { return thread_.call_ == nullptr; });
    thread_.call_ = this;
    thread_.begins_.notify_one();
}

CallThread::Call::~Call() {
    std::unique_lock lock(thread_.mutex_);
    thread_.ends_.wait(lock, [this] { return hasEnded_; });
}

bool CallThread::Call::hasEndedBy(Clock::time_point moment) {
    std::unique_lock lock(thread_.mutex_);
    return thread_.ends_.wait_until(lock, moment, [this] { return hasEnded_; });
}

void CallThread::Call::finish() {
    std::unique_lock lock(thread_.mutex_);
    thread_.ends_.wait(lock, [this] { return hasEnded_; });
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
    std::unique_lock lock(mutex_);
    while (true) {
        begins_.wait(lock, [this] { return call_ != nullptr || isClosing_; });
        if (call_ == nullptr) {
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
