#pragma once

#include "refhost/database/Database.h"

#include <string>
#include <vector>

namespace refhost {

using Parameters = std::vector<TDbParam>;
using Columns = std::vector<std::string>;

/// What a call brought as one text, the same on every engine that keeps the contract: a line a row with its values
/// parted by " | " and "-" for null, an empty line between two result sets, a line "a_X = 1" an output. A refusal is
/// its code and its sentence. With `columns` only those of the first set are shown.
std::string answer(Database& database, const std::string& procedure, const Parameters& parameters = {},
                   const Columns& columns = {});

/// The rows of a reading statement in the same form.
std::string rows(Database& database, const std::string& sql);

/// What stands in such a text for one value, for the rows of one table, and for all that a call brought.
std::string valueText(const TDbValue& value);
std::string tableText(const TResultTable& table, const Columns& columns = {});
std::string answerText(const TCallResult& result, const Columns& columns = {});

} // namespace refhost
