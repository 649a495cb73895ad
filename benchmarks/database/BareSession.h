#pragma once

#include "host/Connection.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace benchmark {

/// A second connection to a measured database, on which the floors run: statements that are prepared once, without any
/// procedure, check or text for people. Parameters are $1, $2 … in the order in which they first appear.
class BareSession {
public:
    virtual ~BareSession() = default;

    /// Runs one prepared statement and fetches all that it brings.
    virtual TResultTable run(const std::string& sql, std::span<const TDbValue> parameters) = 0;
    TResultTable run(const std::string& sql, std::initializer_list<TDbValue> parameters = {}) {
        return run(sql, std::vector<TDbValue>(parameters));
    }
    /// Runs statements that bring nothing.
    virtual void script(const std::string& sql) = 0;

    /// What the engine calls an exact decimal column, and a key that counts by itself.
    virtual std::string decimalType() const = 0;
    virtual std::string countingKey() const = 0;
    /// Refreshes what the planner knows, where the engine does so by itself within a minute.
    virtual void refreshStatistics() = 0;
};

/// On the same database as `url` (Databases.h). Throws EDatabaseError.
std::unique_ptr<BareSession> openBare(const std::string& url, const std::string& user);

} // namespace benchmark
