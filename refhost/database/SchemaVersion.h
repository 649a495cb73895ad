#pragma once

#include "host/Exceptions.h"

#include <cstdint>
#include <string>

namespace refhost {

/// The version of the tables, views, functions and procedures that this program brings, the same on both engines. A
/// database remembers the version that it was made or upgraded by. It rises with every release that changes the SQL;
/// tests/schema-digest holds it against the files.
inline constexpr std::int64_t c_SchemaVersion = 5;

/// The refusal of a database of another version, which says what to do: an older one is to be upgraded, a newer one
/// needs a newer program.
EDatabaseError otherVersionError(const std::string& database, std::int64_t version);

/// The refusal of every call after another program has upgraded the database under a running one.
EDatabaseError upgradedMeanwhileError(const std::string& database);

} // namespace refhost
