#pragma once

#include "host/Exceptions.h"

#include <string>
#include <string_view>

struct sqlite3;

namespace refhost {

/// The error for a failure that the engine reported (a result code other than OK, ROW and DONE): a sentence for the
/// user about the file, the engine's own words and the statement in the details.
EDatabaseError sqliteError(int code, sqlite3* database, std::string_view file, std::string_view statement);

} // namespace refhost
