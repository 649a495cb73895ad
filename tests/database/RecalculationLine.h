#pragma once

#include "host/Connection.h"
#include "tests/database/PriceColumns.h"
#include "tests/database/RecalculationCases.h"

#include <string>
#include <string_view>

namespace refhost {

bool isPriceKey(std::string_view key);

/// The text of a price cell of the row, empty for an empty cell. Throws std::out_of_range for a key that is none.
std::string priceText(const RecalculationInput& input, std::string_view key);

/// The call that an editor makes for the row, with all its parameters; an empty cell is null.
TProcedureCall recalculationCall(const RecalculationInput& input);

/// The returned line as one text, a row of prices a line, so that two lines are compared at a glance:
///     unit before: 100 21 0 121
///     …
///     21 % | 12,5 | 3
/// A null is "-". Says so when the call did not bring one result set of one row with just the columns of the row.
std::string lineText(const TCallResult& result);
std::string expectedText(const RecalculationCase& row);

} // namespace refhost
