#pragma once

#include "host/Connection.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace benchmark {

/// The floor of the editors' work: the same procedures with the same parameters, prepared once, each call in a
/// transaction of its own but for the rows of a save, by the bare database library, which hands out each text that
/// comes and keeps none.
class BareCalls {
public:
    virtual ~BareCalls() = default;

    /// How many bytes of text came.
    virtual std::size_t run(const TProcedureCall& call) = 0;
    /// All calls of a save: its beginning, its rows, its closing call. Where rows need not be waited for, they travel
    /// together in one transaction, in goes of two hundred.
    virtual void save(std::span<const TProcedureCall> calls) = 0;
    /// The server's process that runs the calls; 0 when there is no server.
    virtual std::int64_t process() const = 0;
};

/// A further connection to the database at `url` (Databases.h). So many goes of rows are on their way before the first
/// one's answers are waited for. Throws EDatabaseError.
std::unique_ptr<BareCalls> openBareCalls(const std::string& url, const std::string& user, int goesAhead = 1);

} // namespace benchmark
