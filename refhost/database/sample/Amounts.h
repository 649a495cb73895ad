#pragma once

#include <cstdint>
#include <string>

namespace refhost::sample {

/// A quantity in thousandths of its unit.
using Quantity = std::int64_t;
inline constexpr Quantity c_One = 1'000;

/// A unit price without VAT in ten-thousandths of the currency.
using Price = std::int64_t;

/// The canonical decimal text of so many thousandths, ten-thousandths …: 12'500 with 3 decimals is "12.5".
std::string decimalText(std::int64_t value, int decimals);

inline std::string quantityText(Quantity quantity) {
    return decimalText(quantity, 3);
}
inline std::string priceText(Price price) {
    return decimalText(price, 4);
}

/// Quantity times factor to another unit, both in thousandths.
Quantity converted(Quantity quantity, std::int64_t factor);

} // namespace refhost::sample
