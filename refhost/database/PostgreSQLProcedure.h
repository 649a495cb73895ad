#pragma once

#include "refhost/database/ParameterValues.h"
#include "refhost/database/PostgreSQLSession.h"

#include <optional>
#include <string>
#include <vector>

namespace refhost {

/// A procedure as the server declares it: a function of the schema "melvark" whose parameters have names and default to
/// null. What it brings follows from its declaration: output parameters, the rows of a set, several sets as cursors, or
/// nothing.
class PostgreSQLProcedure {
public:
    /// Asks the server. Nothing when it has no procedure of that name.
    static std::optional<PostgreSQLProcedure> find(PostgreSQLSession& session, std::string_view name);

    TProcedureInfo info() const;

    /// One SQL statement with its parameters.
    struct Statement {
        std::string Sql;
        std::vector<TDbValue> Values;
    };

    /// What the call comes to, only the parameters that it names being passed. Throws EDatabaseError for a parameter
    /// that there is not or a value that does not fit.
    Statement statement(const TProcedureCall& call) const;

    bool bringsNothing() const { return bringsNothing_; }

    /// Runs the call as a transaction of its own and fetches what it brings; result sets are dropped unless the call is
    /// to open them. Throws EDatabaseError.
    TCallResult run(PostgreSQLSession& session, const TProcedureCall& call) const;

private:
    struct Parameter {
        std::string SqlName;
        AnsiString Name;
        ParameterKind Kind = ParameterKind::Text;
    };

    /// `guess`, the place at which callers mostly name it, is tried first.
    const Parameter& input(const TProcedureCall& call, std::string_view name, std::size_t guess) const;
    TCallResult runForCursors(PostgreSQLSession& session, const Statement& statement, bool open) const;

    std::string sqlName_;
    std::vector<Parameter> inputs_;
    std::vector<AnsiString> outputs_;
    bool bringsCursors_ = false;
    bool bringsNothing_ = false;
};

} // namespace refhost
