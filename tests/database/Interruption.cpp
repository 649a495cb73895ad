#include "tests/database/Interruption.h"

#include "tests/database/CountedWrites.h"
#include "tests/database/KilledAfterMessage.h"
#include "tests/database/VersionOne.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <thread>

namespace refhost {

namespace {

/// The server notices only when it has ended a statement that its client is gone.
void waitUntilAlone(const std::string& url) {
    BareConnection server(url);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    const auto others = [&server] {
        return server.rows("select count(*) from pg_stat_activity where datname = current_database() and "
                           "backend_type = 'client backend' and pid <> pg_backend_pid()");
    };
    while (others() != std::vector<std::string>{"0"}) {
        if (std::chrono::steady_clock::now() > deadline) {
            throw std::runtime_error("the server does not notice that its client is gone");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

} // namespace

Interruption interruptedAt(int point, const std::string& url, const std::function<void(const std::string& url)>& work) {
    if (url.starts_with("sqlite:")) {
        return killedBeforeWrite(point, [&] { work(url); });
    }
    const Interruption result = killedAfterMessage(point, url, work);
    waitUntilAlone(url);
    return result;
}

void atManyPoints(int last, const std::function<bool(int point)>& isDoneAfter) {
    constexpr int c_Spread = 12;
    constexpr int c_Around = 5;
    int before = 1;
    int after = last + 1;
    const auto interrupt = [&](int point) {
        if (isDoneAfter(point)) {
            after = std::min(after, point);
        } else {
            before = std::max(before, point);
        }
    };
    for (int point = 1; point <= last; point += std::max(1, last / c_Spread)) {
        interrupt(point);
    }
    while (after - before > 1) {
        interrupt(before + (after - before) / 2);
    }
    const int end = std::min(last, before + c_Around);
    for (int point = std::max(1, before - c_Around); point <= end; ++point) {
        isDoneAfter(point);
    }
}

} // namespace refhost
