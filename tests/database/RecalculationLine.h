#pragma once

#include "host/Connection.h"
#include "tests/database/RecalculationCases.h"

#include <array>
#include <string>

namespace refhost {

/// The sixteen price cells of the editor's row by row of prices, each B, A, L, S, in the order of the call.
struct PriceRow {
    const char* Title;
    std::array<const char*, 4> Keys;
};

inline constexpr std::array<PriceRow, 4> c_PriceRows{{
    {"unit before", {"JEDNCENABBEZSLEVY", "JEDNDPHABEZSLEVY", "JEDNDPHBBEZSLEVY", "JEDNCENASBEZSLEVY"}},
    {"unit after", {"JEDNCENABSESLEVOU", "JEDNDPHASESLEVOU", "JEDNDPHBSESLEVOU", "JEDNCENASSESLEVOU"}},
    {"total after", {"CENABSESLEVOU", "DPHASESLEVOU", "DPHBSESLEVOU", "CENASSESLEVOU"}},
    {"total before", {"CENABBEZSLEVY", "DPHABEZSLEVY", "DPHBBEZSLEVY", "CENASBEZSLEVY"}},
}};

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
