#pragma once

#include "host/Exceptions.h"

#include <libpq-fe.h>
#include <string>
#include <string_view>

namespace refhost {

/// A failure that the server reported: what the user reads, and the server's own code by which the connection decides
/// what to do about it.
class EPostgreSQLError : public EDatabaseError {
public:
    /// Where the server says that it failed; empty when it does not, or was not the one that did.
    struct Place {
        std::string Function; ///< Of the server, which reported it.
        std::string Table;    ///< Whose rule a row broke.
    };

    EPostgreSQLError(const EDatabaseError& error, std::string sqlState, Place place = {})
        : EDatabaseError(error), sqlState_(std::move(sqlState)), place_(std::move(place)) {}
    EPostgreSQLError(const EPostgreSQLError&) = default;
    EPostgreSQLError& operator=(const EPostgreSQLError&) = default;
    ~EPostgreSQLError() override;

    /// Whether the server gave the call up for another user's: nothing was done, and it may work the next time.
    bool isConflict() const;
    /// Whether a text that was to be one reading statement writes or is several.
    bool isNoReadingStatement() const;
    /// Whether a statement names a table that is not there.
    bool isMissingTable() const;
    /// Whether a row breaks a rule of its table.
    bool isBrokenRule() const;
    /// The table whose rule was broken, as the server spells it.
    const std::string& table() const { return place_.Table; }

private:
    std::string sqlState_;
    Place place_;
};

/// The error for a failed statement: a refusal of ours as it stands, else a sentence for the user about the database,
/// with the server's own words and the statement in the details.
EPostgreSQLError statementError(const PGresult* result, std::string_view database, std::string_view statement);

/// The error for a session that could not be opened. `words` are the server's or the client library's, with the
/// server's code in them.
EPostgreSQLError openingError(std::string_view words, std::string_view database, std::string_view host);

/// The error for a session that the server wants a password for, when the address has none.
EPostgreSQLError missingPasswordError(std::string_view database);

/// The error for a session whose link is gone.
EPostgreSQLError lostLinkError(std::string_view database, std::string_view words, std::string_view statement);

} // namespace refhost
