#include "refhost/database/sample/Amounts.h"

#include "refhost/database/Decimal.h"

namespace refhost::sample {

std::string decimalText(std::int64_t value, int decimals) {
    const bool isNegative = value < 0;
    std::string digits = std::to_string(isNegative ? -value : value);
    const auto places = static_cast<std::size_t>(decimals);
    if (digits.size() <= places) {
        digits.insert(0, places + 1 - digits.size(), '0');
    }
    digits.insert(digits.size() - places, 1, '.');
    return canonicalDecimal((isNegative ? "-" : "") + digits);
}

Quantity converted(Quantity quantity, std::int64_t factor) {
    return quantity * factor / c_One;
}

} // namespace refhost::sample
