#pragma once

#include "host/Exceptions.h"
#include "refhost/database/PostgreSQLConnection.h"

#include <memory>
#include <string>

namespace refhost {

/// A database of one test on the private server: one warehouse, one supplier, one item ("Mléko", unit "ks"), the rate
/// "12 %" and two open delivery notes 1 and 2 of 10.3.2026.
class ServerCompany {
public:
    ServerCompany();

    const std::string& name() const { return name_; }

    /// A connection with Czech formats of "novakova", who may also change the tables and the schema.
    std::unique_ptr<PostgreSQLConnection> open() const { return openWith(TFormatSettings::Czech()); }
    /// The same with other formats.
    std::unique_ptr<PostgreSQLConnection> openWith(const TFormatSettings& settings) const;
    /// A connection of a role that is made as a member of the group.
    std::unique_ptr<PostgreSQLConnection> openAs(const std::string& role, const std::string& group) const;
    /// Ends the server's side of all sessions of the role, as a failure of the network would.
    void cutLinks(const std::string& role = "novakova") const;
    /// Waits until the first value of the administrator's query is `wanted`; false when it takes too long.
    bool waitFor(const std::string& query, const std::string& wanted) const;

private:
    std::string name_;
};

/// A call with its parameters that opens its results.
TProcedureCall serverCall(const std::string& procedure, std::vector<TDbParam> params = {});

/// The error with which `action` ends; one without a code when it succeeds.
template <typename Action>
EDatabaseError failure(Action action) {
    try {
        action();
    } catch (const EDatabaseError& error) {
        return error;
    }
    return EDatabaseError("no failure");
}

/// A query's rows, its values parted by commas and its rows by bars; null is "-".
std::string rowsOf(Database& database, const std::string& sql);

} // namespace refhost
