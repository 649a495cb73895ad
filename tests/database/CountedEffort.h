#pragma once

#include "tests/database/Engines.h"

#include <functional>
#include <memory>
#include <string>

namespace refhost {

/// What an engine did for a piece of work, as the engine itself counts it: the same in any hour and on any machine,
/// where times are not.
struct Effort {
    /// The embedded engine's steps of its virtual machine; the server's rows and index entries that were read.
    std::int64_t Steps = 0;
    /// The embedded engine's statements; the server's calls of the company's functions, those that it plans into their
    /// callers apart.
    std::int64_t Calls = 0;
};

/// A database whose engine counts.
class CountedDatabase {
public:
    explicit CountedDatabase(Engine engine);
    CountedDatabase(const CountedDatabase&) = delete;
    CountedDatabase& operator=(const CountedDatabase&) = delete;
    ~CountedDatabase();

    Database& database();
    /// Lets the server know how many rows its tables have, as it finds out by itself within a minute.
    void refreshStatistics();
    Effort of(const std::function<void()>& work);
    /// How often the work calls a function of the server.
    std::int64_t callsOf(const std::string& function, const std::function<void()>& work);
    /// How many statements the server plans for the work.
    std::int64_t plansOf(const std::function<void()>& work);

private:
    struct Counter;
    std::unique_ptr<Counter> counter_;
};

} // namespace refhost
