#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace refhost {

/// A thread that runs one call at a time, for callers that have something else to do while they wait. It ends with this
/// object, after the call that it runs. Before either side goes to sleep it looks out for the other for a moment: to be
/// woken takes longer than most calls of a save.
class CallThread {
public:
    using Clock = std::chrono::steady_clock;

    /// A call on its way; nobody leaves it behind: the end of this object waits for it.
    class Call {
    public:
        /// Begins the call, once the one before has ended. `work` outlives this object.
        Call(CallThread& thread, const std::function<void()>& work);
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;
        ~Call();

        /// Waits for the end of the call, but hardly longer than until then: whether it has ended.
        bool hasEndedBy(Clock::time_point moment);
        /// Waits for the end of the call and throws the very exception that it threw.
        void finish();

    private:
        friend class CallThread;

        CallThread& thread_;
        const std::function<void()>& work_;
        std::exception_ptr error_;
        std::atomic<bool> hasEnded_ = false;
    };

    CallThread();
    CallThread(const CallThread&) = delete;
    CallThread& operator=(const CallThread&) = delete;
    ~CallThread();

private:
    void run();

    std::mutex mutex_;
    std::condition_variable begins_;
    std::condition_variable ends_;
    std::atomic<Call*> call_ = nullptr; ///< Under way.
    bool isClosing_ = false;
    std::thread thread_; // Last: it uses all of the others.
};

} // namespace refhost
