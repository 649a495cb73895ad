#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>

/// Ends the program when its scope takes longer than it may: what hangs shall be named, not waited for.
class Watchdog {
public:
    Watchdog(std::string subject, std::chrono::seconds limit)
        : subject_(std::move(subject)), thread_([this, limit] {
              std::unique_lock lock(mutex_);
              if (!ended_.wait_for(lock, limit, [this] { return isEnded_; })) {
                  std::fprintf(stderr, "%s: not done in time\n", subject_.c_str());
                  std::abort();
              }
          }) {}
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog() {
        {
            const std::lock_guard lock(mutex_);
            isEnded_ = true;
        }
        ended_.notify_one();
        thread_.join();
    }

private:
    std::string subject_;
    std::mutex mutex_;
    std::condition_variable ended_;
    bool isEnded_ = false;
    std::thread thread_; ///< Last: it uses the others.
};
