#pragma once

#include "host/Types.h"

#include <cstddef>
#include <cstdint>

namespace melvark {

/// A number as a person writes it: sign and decimal digits before and behind the separator. It is what numbers as text
/// are made of; it does not know locales (see ValueText.h and Format.h).
///
/// `Whole` has at least one digit and no needless zero in front; `Fraction` may be empty. Zero is never negative.
struct DecimalDigits {
    bool Negative = false;
    AnsiString Whole = "0";
    AnsiString Fraction;
};

/// The shortest decimal number that reads back as `value`. Throws EConvertError for a value that is not finite.
DecimalDigits ToDecimalDigits(double value);
DecimalDigits ToDecimalDigits(std::int64_t value);

/// The number with exactly `decimals` digits behind the separator: rounded half away from zero, or filled with zeros.
DecimalDigits Rounded(DecimalDigits number, std::size_t decimals);

} // namespace melvark
