#pragma once

#include "host/Connection.h"

#include <libpq-fe.h>

namespace refhost {

/// A result of the server as the contract has it: upper-case column names; integers and booleans as integers, floating
/// point as such, everything else as the server's text.
TResultTable resultTable(const PGresult* result);

/// Whether the result is that of a function without a result.
bool isVoid(const PGresult* result);

} // namespace refhost
