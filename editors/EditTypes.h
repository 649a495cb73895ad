#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

/// The edit-type codes: texts that name where the lines of an editor come from. A code's place in its table, counted
/// from 1, is its number; menu tags, fill modes and the filing of column settings use it.

/// Sources of a delivery note: a supplier order, another delivery note, the template of the latest ones.
inline constexpr std::array<std::string_view, 3> c_DodakEditType{"DODOBJ", "DODAK", "SABLONA"};

/// Sources of a supplier order or order template: an order, an order template, the template of the latest orders, a
/// delivery note, stock-item groups, the supplier's price list, the supplier's deliveries.
inline constexpr std::array<std::string_view, 7> c_DodObjEditType{"OBJEDNAVKA",   "OBJEDNAVKAVZOR", "SABLONA", "DODAK",
                                                                  "SKUPSKLADPOL", "DODAVATEL",      "DODAVKY"};

namespace melvark {

/// The number of `code` in its table (compared exactly), 0 when the table lacks it.
constexpr int EditTypeNumber(std::span<const std::string_view> table, std::string_view code) {
    const auto found = std::ranges::find(table, code);
    return found == table.end() ? 0 : static_cast<int>(found - table.begin()) + 1;
}

} // namespace melvark
