#include "host/DecimalDigits.h"

#include "host/ContractTexts.h"
#include "host/Exceptions.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

namespace melvark {

namespace {

bool IsZero(const DecimalDigits& number) {
    return number.Whole == "0" && number.Fraction.find_first_not_of('0') == AnsiString::npos;
}

/// Adds one to the last digit of the text and carries; the text grows when all its digits were nines.
void Increment(AnsiString& digits) {
    const std::size_t last = digits.find_last_not_of('9');
    digits.replace(last + 1, AnsiString::npos, digits.size() - (last + 1), '0');
    if (last == AnsiString::npos) {
        digits.insert(0, 1, '1');
    } else {
        ++digits[last];
    }
}

} // namespace

DecimalDigits ToDecimalDigits(double value) {
    if (!std::isfinite(value)) {
        throw EConvertError(Sentence(c_NotFinite, {}));
    }

    // The shortest digits come as d[.ddd]e±xx; the fixed notation of the library pads large numbers with binary noise.
    std::array<char, 32> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value), std::chars_format::scientific);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
    const std::size_t mark = text.find('e');
    AnsiString digits(text.substr(0, mark));
    std::erase(digits, '.');
    const int exponent = std::stoi(AnsiString(text.substr(mark + 1)));

    if (exponent < 0) {
        return {value < 0, "0", AnsiString(static_cast<std::size_t>(-exponent - 1), '0') + digits};
    }
    const std::size_t wholeDigits = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() < wholeDigits) {
        digits.append(wholeDigits - digits.size(), '0');
    }
    return {value < 0, digits.substr(0, wholeDigits), digits.substr(wholeDigits)};
}

DecimalDigits ToDecimalDigits(std::int64_t value) {
    AnsiString digits = std::to_string(value);
    if (value < 0) {
        digits.erase(0, 1);
    }
    return {value < 0, digits, {}};
}

DecimalDigits Rounded(DecimalDigits number, std::size_t decimals) {
    const bool roundsUp = number.Fraction.size() > decimals && number.Fraction[decimals] >= '5';
    number.Fraction.resize(decimals, '0');
    if (roundsUp) {
        AnsiString digits = number.Whole + number.Fraction;
        Increment(digits);
        number.Whole = digits.substr(0, digits.size() - decimals);
        number.Fraction = digits.substr(digits.size() - decimals);
    }
    number.Negative = number.Negative && !IsZero(number);
    return number;
}

} // namespace melvark
