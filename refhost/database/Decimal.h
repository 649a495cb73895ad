#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/// Exact decimal arithmetic on canonical decimal texts: an optional minus sign, digits, and a point with decimals only
/// where they are needed ("12.5", "-0.07", "1000"). Results are canonical too, so that equal numbers are equal texts.
///
/// It exists because the embedded engine has no decimal type and binary floating point gets the cent of a price wrong.
/// It knows nothing of locales: see number_text and parse_number for what people read and type.
namespace refhost {

/// A text that is no decimal, one longer than c_MaximumDecimalLength, a division by zero, or decimals out of range.
/// A mistake of the calling statement, never of the user.
class DecimalError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

/// The longest text that is read as a decimal. Arithmetic on big integers grows with the square of their length.
inline constexpr std::size_t c_MaximumDecimalLength = 400;
/// The most decimals to which a number can be rounded.
inline constexpr int c_MaximumDecimals = 20;

/// The canonical text of a decimal written with needless zeros or a plus sign ("+01.50" gives "1.5").
std::string canonicalDecimal(std::string_view text);

std::string decimalSum(std::string_view left, std::string_view right);
std::string decimalDifference(std::string_view left, std::string_view right);
std::string decimalProduct(std::string_view left, std::string_view right);
/// The exact quotient, rounded once to `decimals`, half away from zero.
std::string decimalQuotient(std::string_view dividend, std::string_view divisor, int decimals);

/// Half away from zero: 0.125 to two decimals is 0.13, -0.125 is -0.13.
std::string roundedDecimal(std::string_view text, int decimals);
std::string absoluteDecimal(std::string_view text);
std::string negatedDecimal(std::string_view text);
/// -1, 0 or 1 when `left` is less than, equal to or greater than `right`.
int compareDecimals(std::string_view left, std::string_view right);
/// Whether the product of `left` and `right` is no further from `product` than `distance`.
bool isProductWithin(std::string_view left, std::string_view right, std::string_view product,
                     std::string_view distance);

/// The number rounded to `decimals` and written with just so many ("12.5" with 2 gives "12.50"). Not canonical: the
/// last step before a text for people.
std::string fixedDecimal(std::string_view text, int decimals);

} // namespace refhost
