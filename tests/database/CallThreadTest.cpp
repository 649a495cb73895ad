#include "refhost/database/CallThread.h"

#include <atomic>
#include <gtest/gtest.h>
#include <stdexcept>

namespace refhost {
namespace {

using namespace std::chrono_literals;
using Clock = CallThread::Clock;

/// A call that lasts until it is let go.
class HeldCall {
public:
    const std::function<void()>& work() const { return work_; }
    void letGo() { isFree_ = true; }
    bool hasEnded() const { return hasEnded_; }

private:
    std::atomic<bool> isFree_ = false;
    std::atomic<bool> hasEnded_ = false;
    std::function<void()> work_ = [this] {
        while (!isFree_) {
            std::this_thread::sleep_for(1ms);
        }
        hasEnded_ = true;
    };
};

TEST(CallThread, RunsACallBesideItsCaller) {
    CallThread thread;
    std::thread::id worker;
    const std::function<void()> work = [&] { worker = std::this_thread::get_id(); };
    CallThread::Call(thread, work).finish();
    EXPECT_NE(worker, std::thread::id());
    EXPECT_NE(worker, std::this_thread::get_id());
}

TEST(CallThread, RunsAllCallsOnTheSameThread) {
    CallThread thread;
    std::vector<std::thread::id> workers;
    const std::function<void()> work = [&] { workers.push_back(std::this_thread::get_id()); };
    for (int i = 0; i < 100; ++i) {
        CallThread::Call(thread, work).finish();
    }
    EXPECT_EQ(workers, std::vector<std::thread::id>(100, workers.front()));
}

TEST(CallThread, ItsCallerNeedNotWaitForTheEnd) {
    CallThread thread;
    HeldCall held;
    CallThread::Call call(thread, held.work());
    EXPECT_FALSE(call.hasEndedBy(Clock::now() + 20ms));
    held.letGo();
    EXPECT_TRUE(call.hasEndedBy(Clock::now() + 10s));
    EXPECT_TRUE(held.hasEnded());
}

TEST(CallThread, NobodyLeavesACallBehind) {
    CallThread thread;
    HeldCall held;
    std::thread helper;
    {
        const CallThread::Call call(thread, held.work());
        helper = std::thread([&] {
            std::this_thread::sleep_for(20ms);
            held.letGo();
        });
    }
    EXPECT_TRUE(held.hasEnded());
    helper.join();
}

TEST(CallThread, TheVeryExceptionReachesTheCallerAndTheThreadGoesOn) {
    CallThread thread;
    const std::exception* thrown = nullptr;
    const std::function<void()> failing = [&] {
        try {
            throw std::out_of_range("row 7");
        } catch (const std::exception& error) {
            thrown = &error;
            throw;
        }
    };
    try {
        CallThread::Call(thread, failing).finish();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::out_of_range& error) {
        EXPECT_EQ(&error, thrown);
        EXPECT_STREQ(error.what(), "row 7");
    }
    bool ran = false;
    const std::function<void()> next = [&] { ran = true; };
    CallThread::Call(thread, next).finish();
    EXPECT_TRUE(ran);
}

TEST(CallThread, ASecondCallWaitsForTheFirst) {
    CallThread thread;
    HeldCall held;
    CallThread::Call first(thread, held.work());
    bool firstHadEnded = false;
    const std::function<void()> second = [&] { firstHadEnded = held.hasEnded(); };
    std::thread helper([&] {
        std::this_thread::sleep_for(20ms);
        held.letGo();
    });
    CallThread::Call(thread, second).finish();
    EXPECT_TRUE(firstHadEnded);
    helper.join();
}

} // namespace
} // namespace refhost
