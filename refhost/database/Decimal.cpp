#include "refhost/database/Decimal.h"

#include <algorithm>
#include <boost/multiprecision/cpp_int.hpp>

namespace refhost {

namespace {

using Integer = boost::multiprecision::cpp_int;

/// The number Unscaled / 10^Scale.
struct Decimal {
    Integer Unscaled;
    unsigned Scale = 0;
};

Integer powerOfTen(unsigned exponent) {
    Integer power = 1;
    while (exponent-- > 0) {
        power *= 10;
    }
    return power;
}

Integer magnitude(const Integer& number) {
    return number < 0 ? Integer(-number) : number;
}

unsigned checkedDecimals(int decimals) {
    if (decimals < 0 || decimals > c_MaximumDecimals) {
        throw DecimalError("number of decimals out of range: " + std::to_string(decimals));
    }
    return static_cast<unsigned>(decimals);
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

Decimal parseDecimal(std::string_view text) {
    if (text.size() > c_MaximumDecimalLength) {
        throw DecimalError("decimal number too long");
    }
    std::string_view body = text;
    const bool negative = body.starts_with('-');
    if (negative || body.starts_with('+')) {
        body.remove_prefix(1);
    }
    const auto point = body.find('.');
    std::string digits(body.substr(0, point));
    unsigned scale = 0;
    if (point != std::string_view::npos) {
        const auto decimals = body.substr(point + 1);
        digits += decimals;
        scale = static_cast<unsigned>(decimals.size());
    }
    if (digits.empty() || !std::ranges::all_of(digits, isDigit)) {
        throw DecimalError("not a decimal number: " + std::string(text));
    }
    // The library would read a leading zero as the mark of an octal number.
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
    Integer unscaled(digits);
    if (negative) {
        unscaled = -unscaled;
    }
    return {unscaled, scale};
}

std::string withPoint(const Integer& unscaled, unsigned scale) {
    std::string digits = magnitude(unscaled).str();
    if (digits.size() <= scale) {
        digits.insert(0, scale + 1 - digits.size(), '0');
    }
    if (scale > 0) {
        digits.insert(digits.size() - scale, 1, '.');
    }
    return unscaled < 0 ? "-" + digits : digits;
}

std::string canonicalText(const Decimal& number) {
    std::string text = withPoint(number.Unscaled, number.Scale);
    if (number.Scale > 0) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.')) {
            text.pop_back();
        }
    }
    return text;
}

struct Aligned {
    Integer Left;
    Integer Right;
    unsigned Scale;
};

/// Both numbers over the same power of ten.
Aligned aligned(std::string_view left, std::string_view right) {
    Decimal a = parseDecimal(left);
    Decimal b = parseDecimal(right);
    const unsigned scale = std::max(a.Scale, b.Scale);
    a.Unscaled *= powerOfTen(scale - a.Scale);
    b.Unscaled *= powerOfTen(scale - b.Scale);
    return {std::move(a.Unscaled), std::move(b.Unscaled), scale};
}

/// The quotient of two integers to the nearest integer, halves away from zero.
Integer nearestQuotient(const Integer& dividend, const Integer& divisor) {
    const Integer parts = magnitude(divisor);
    const Integer quotient = (2 * magnitude(dividend) + parts) / (2 * parts);
    return (dividend < 0) != (divisor < 0) ? -quotient : quotient;
}

Decimal rounded(const Decimal& number, unsigned decimals) {
    if (number.Scale <= decimals) {
        return number;
    }
    return {nearestQuotient(number.Unscaled, powerOfTen(number.Scale - decimals)), decimals};
}

} // namespace

std::string canonicalDecimal(std::string_view text) {
    return canonicalText(parseDecimal(text));
}

std::string decimalSum(std::string_view left, std::string_view right) {
    const Aligned both = aligned(left, right);
    return canonicalText({both.Left + both.Right, both.Scale});
}

std::string decimalDifference(std::string_view left, std::string_view right) {
    const Aligned both = aligned(left, right);
    return canonicalText({both.Left - both.Right, both.Scale});
}

std::string decimalProduct(std::string_view left, std::string_view right) {
    const Decimal a = parseDecimal(left);
    const Decimal b = parseDecimal(right);
    return canonicalText({a.Unscaled * b.Unscaled, a.Scale + b.Scale});
}

std::string decimalQuotient(std::string_view dividend, std::string_view divisor, int decimals) {
    const unsigned scale = checkedDecimals(decimals);
    const Aligned both = aligned(dividend, divisor);
    if (both.Right == 0) {
        throw DecimalError("division by zero");
    }
    return canonicalText({nearestQuotient(both.Left * powerOfTen(scale), both.Right), scale});
}

std::string roundedDecimal(std::string_view text, int decimals) {
    const unsigned scale = checkedDecimals(decimals);
    return canonicalText(rounded(parseDecimal(text), scale));
}

std::string absoluteDecimal(std::string_view text) {
    const Decimal number = parseDecimal(text);
    return canonicalText({magnitude(number.Unscaled), number.Scale});
}

std::string negatedDecimal(std::string_view text) {
    const Decimal number = parseDecimal(text);
    return canonicalText({-number.Unscaled, number.Scale});
}

int compareDecimals(std::string_view left, std::string_view right) {
    const Aligned both = aligned(left, right);
    const int order = both.Left.compare(both.Right);
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

std::string fixedDecimal(std::string_view text, int decimals) {
    const unsigned scale = checkedDecimals(decimals);
    const Decimal number = rounded(parseDecimal(text), scale);
    return withPoint(number.Unscaled * powerOfTen(scale - number.Scale), scale);
}

} // namespace refhost
