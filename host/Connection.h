#pragma once

/// \file
/// What a host implements for its database: the connection, its calls and what they bring.

#include "host/Types.h"

#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

/// A value on its way to or from the database; std::monostate is null.
///
/// Results bring numbers of documents (quantities, prices, discounts) and dates as text in the user's locale, ready for
/// a cell; identifiers and counts come as integers. Text parameters that mean numbers are understood with point or
/// comma.
using TDbValue = std::variant<std::monostate, std::int64_t, double, bool, AnsiString>;

/// A parameter of a call, or an output of it.
struct TDbParam {
    AnsiString Name; ///< With its prefix: "a_DODKID".
    TDbValue Value;  ///< Null when it was cleared.
};

/// One call of a stored procedure. `Params` stand in the order in which the caller touched them; a declared parameter
/// that is missing here is null. With `Open` the result sets are wanted, without it they are dropped.
struct TProcedureCall {
    AnsiString Name;              ///< As the caller wrote it: "MELVARKEDITORDodakInit".
    std::vector<TDbParam> Params; ///< Each name once, in the caller's spelling.
    bool Open = false;            ///< Whether the result sets are wanted.
};

/// One result set: upper-case column names and rows of as many values.
struct TResultTable {
    std::vector<AnsiString> Columns;         ///< Each name once; none for a call that brings no set.
    std::vector<std::vector<TDbValue>> Rows; ///< In the order in which they are read.
};

/// What a call brought. `Success` is false for a failure that the host chose to report without an error. `Answered` is
/// false for a row of a save that was only sent: if it fails, a later row or the closing call throws that failure.
struct TCallResult {
    bool Success = true;            ///< What TLiveStoredProc::Exec returns.
    std::vector<TResultTable> Sets; ///< In the procedure's order; empty without Open.
    std::vector<TDbParam> Outputs;  ///< By the declared names.
    bool Answered = true;           ///< Only a trace looks at it.
};

/// The parameters that a procedure declares, in its own spelling ("a_DODKID").
struct TProcedureInfo {
    std::vector<AnsiString> Inputs;  ///< In the order of the declaration, which only speeds look-ups up.
    std::vector<AnsiString> Outputs; ///< Names that are no inputs.
};

/// The host's open database connection. Implemented by the host, once an engine; the module reaches it through
/// TLiveStoredProc and TLiveQuery only. Names of procedures, parameters and columns are matched without regard to case.
/// Used on the user-interface thread only.
///
/// What the procedures take and bring is told in the page about procedures, and held against a database by
/// `melvark-dbcheck`. Give the connection to the module through THostServices::Connection.
class TConnection {
public:
    TConnection() = default;
    TConnection(const TConnection&) = delete;
    TConnection& operator=(const TConnection&) = delete;
    virtual ~TConnection();

    /// The parameters of a procedure. Each TLiveStoredProc asks once, so an answer is worth keeping. Throws
    /// EDatabaseError naming the procedure when the database has none of that name.
    virtual TProcedureInfo Describe(const AnsiString& procedure) = 0;

    /// Runs the call in a transaction of its own and fetches all its result sets before it returns.
    /// Throws EDatabaseError for a refusal (Code() is set), an unknown procedure or parameter, or a lost link. A row of
    /// a save may be sent without waiting for its answer; a refusal that comes later names its row (Row()).
    virtual TCallResult Execute(const TProcedureCall& call) = 0;

    /// Runs one reading statement of SQL, without parameters, and fetches all its rows. Throws EDatabaseError.
    virtual TResultTable Query(const AnsiString& sql) = 0;
};

/// Whether two database names are the same: ASCII letters without regard to case.
bool SameDbName(std::string_view left, std::string_view right);
