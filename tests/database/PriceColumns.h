#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace refhost {

/// The sixteen prices of a note's line in the order in which a save sends them: unit prices and totals, after and
/// before the discount, each without VAT, VAT, local VAT, with VAT.
inline constexpr std::array<const char*, 16> c_PriceColumns{
    "JEDNCENABSESLEVOU", "JEDNDPHASESLEVOU", "JEDNDPHBSESLEVOU", "JEDNCENASSESLEVOU",
    "JEDNCENABBEZSLEVY", "JEDNDPHABEZSLEVY", "JEDNDPHBBEZSLEVY", "JEDNCENASBEZSLEVY",
    "CENABSESLEVOU",     "DPHASESLEVOU",     "DPHBSESLEVOU",     "CENASSESLEVOU",
    "CENABBEZSLEVY",     "DPHABEZSLEVY",     "DPHBBEZSLEVY",     "CENASBEZSLEVY",
};

/// Four of them, which obey the VAT.
struct PriceRow {
    const char* Title;
    std::array<const char*, 4> Keys;
};

constexpr PriceRow priceRow(const char* title, std::size_t first) {
    PriceRow row{title, {}};
    std::copy_n(c_PriceColumns.begin() + first, row.Keys.size(), row.Keys.begin());
    return row;
}

inline constexpr std::array<PriceRow, 4> c_PriceRows{
    priceRow("unit before", 4),
    priceRow("unit after", 0),
    priceRow("total after", 8),
    priceRow("total before", 12),
};

/// The columns that a recalculation takes and gives.
inline constexpr auto c_RecalculatedColumns = [] {
    std::array<const char*, c_PriceColumns.size() + 3> columns{};
    auto* next = columns.begin();
    for (const PriceRow& row : c_PriceRows) {
        next = std::ranges::copy(row.Keys, next).out;
    }
    std::ranges::copy(std::array{"DPH", "SLEVA", "MNOZSTVI"}, next);
    return columns;
}();

/// The parameter of a saved row that takes a column: "JEDNCENABSESLEVOU" is sent as "a_JEDNCENABSL", "CENABBEZSLEVY" as
/// "a_CENAB", any other by its own name.
inline std::string savedParameter(std::string column) {
    constexpr std::string_view c_After = "SESLEVOU";
    constexpr std::string_view c_Before = "BEZSLEVY";
    if (column.ends_with(c_After)) {
        column.replace(column.size() - c_After.size(), c_After.size(), "SL");
    } else if (column.ends_with(c_Before)) {
        column.erase(column.size() - c_Before.size());
    }
    return "a_" + column;
}

} // namespace refhost
