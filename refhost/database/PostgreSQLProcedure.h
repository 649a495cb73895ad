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

    /// Runs the call as a transaction of its own and fetches what it brings; result sets are dropped unless the call is
    /// to open them. Only the parameters of the call are passed. Throws EDatabaseError.
    TCallResult run(PostgreSQLSession& session, const TProcedureCall& call) const;

private:
    struct Parameter {
        std::string SqlName;
        AnsiString Name;
        ParameterKind Kind = ParameterKind::Text;
    };

    /// What a call passes, in named notation: the parameters that it names, each once.
    struct Arguments {
        std::string Sql;
        std::vector<TDbValue> Values;
    };

    const Parameter& input(const TProcedureCall& call, std::string_view name) const;
    /// Of a parameter that the call names twice the last value counts.
    Arguments arguments(const TProcedureCall& call) const;
    TCallResult runForCursors(PostgreSQLSession& session, const std::string& sql, std::span<const TDbValue> values,
                              bool open) const;

    std::string sqlName_;
    std::vector<Parameter> inputs_;
    std::vector<AnsiString> outputs_;
    bool bringsCursors_ = false;
    bool bringsNothing_ = false;
};

} // namespace refhost
