#include "tests/database/RandomLines.h"

#include "tests/database/RecalculationLine.h"

#include <algorithm>
#include <array>

namespace refhost {

namespace {

std::uint64_t powerOfTen(unsigned exponent) {
    std::uint64_t power = 1;
    while (exponent-- > 0) {
        power *= 10;
    }
    return power;
}

} // namespace

/// A number up to `largest` with up to `decimals` decimals; one in ten has two more than it may have, one in sixteen is
/// negative.
std::string RandomLines::number(std::uint64_t largest, unsigned decimals) {
    const auto scale = static_cast<unsigned>(chance(10) ? decimals + 2 : below(decimals + 1));
    const std::uint64_t power = powerOfTen(scale);
    std::string digits = std::to_string(below(largest * power));
    if (digits.size() <= scale) {
        digits.insert(0, scale + 1 - digits.size(), '0');
    }
    if (scale > 0) {
        digits.insert(digits.size() - scale, 1, ',');
    }
    return (chance(6) ? "-" : "") + digits;
}

std::string RandomLines::prices(unsigned density, std::uint64_t largest, unsigned decimals) {
    std::string row;
    for (int i = 0; i < 4; ++i) {
        row += (i == 0 ? "" : " ") + (chance(density) ? number(largest, decimals) : "-");
    }
    return row;
}

std::string RandomLines::rate() {
    constexpr std::array<const char*, 6> c_Rates{"21 %", "21 %", "12 %", "12 %", "0 %", ""};
    return chance(1) ? "19 %" : c_Rates[below(c_Rates.size())];
}

std::string RandomLines::discount() {
    constexpr std::array<const char*, 6> c_Discounts{"", "0", "10", "12,5", "99,99", "100"};
    if (chance(60)) {
        return c_Discounts[below(c_Discounts.size())];
    }
    return number(chance(98) ? 100 : 1000, 2);
}

std::string RandomLines::quantity() {
    constexpr std::array<const char*, 6> c_Quantities{"", "0", "1", "12", "-1", "0,0000001"};
    if (chance(30)) {
        return c_Quantities[below(c_Quantities.size())];
    }
    return number(chance(50) ? 10 : 1000, chance(70) ? 3 : 6);
}

std::string RandomLines::key() {
    constexpr std::array<const char*, 3> c_Others{"DPH", "SLEVA", "MNOZSTVI"};
    const std::uint64_t index = below(19);
    return index < 16 ? c_PriceRows[index / 4].Keys[index % 4] : c_Others[index - 16];
}

RecalculationInput RandomLines::next() {
    constexpr std::array<unsigned, 3> c_Densities{30, 70, 95};
    const unsigned density = c_Densities[below(c_Densities.size())];
    const std::uint64_t largest = powerOfTen(static_cast<unsigned>(1 + below(5)));

    RecalculationInput line;
    line.UnitBefore = prices(density, largest, 6);
    line.UnitAfter = prices(density, largest, 6);
    line.TotalBefore = prices(density, largest * 10, 2);
    line.TotalAfter = prices(density, largest * 10, 2);
    line.Rate = rate();
    line.Discount = discount();
    line.Quantity = quantity();
    line.Focus = key();
    // An emptied price in focus changes nothing, so few of them are enough.
    if (isPriceKey(line.Focus) && priceText(line, line.Focus).empty() && chance(80)) {
        line.Focus = "MNOZSTVI";
    }
    for (std::uint64_t marks = below(5); marks > 0; --marks) {
        line.Changed += key() + ";";
    }
    line.Recalculate = !chance(5);
    return line;
}

} // namespace refhost
