#pragma once

#include "host/Exceptions.h"

#include <string>
#include <string_view>

struct sqlite3;

namespace refhost {

/// A failure that the engine reported: what the user reads, and whether it is the rows' own fault.
class ESQLiteError : public EDatabaseError {
public:
    ESQLiteError(const EDatabaseError& error, int code) : EDatabaseError(error), code_(code) {}
    ESQLiteError(const ESQLiteError&) = default;
    ESQLiteError& operator=(const ESQLiteError&) = default;
    ~ESQLiteError() override;

    /// Whether a row breaks a rule of its table; not so a full disk or a damaged page, which the same statement may
    /// meet.
    bool isBrokenRule() const;

private:
    int code_;
};

/// The error for a failure that the engine reported (a result code other than OK, ROW and DONE): a sentence for the
/// user about the file, the engine's own words and the statement in the details.
ESQLiteError sqliteError(int code, sqlite3* database, std::string_view file, std::string_view statement);

} // namespace refhost
