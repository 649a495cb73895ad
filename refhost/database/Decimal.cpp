#include "refhost/database/Decimal.h"

#include <algorithm>
#include <boost/multiprecision/cpp_int.hpp>
#include <string>
#include <utility>

namespace refhost {

namespace {

/// For numbers of any length.
using LongInteger = boost::multiprecision::cpp_int;
/// For all that fits, which is nearly every number of a document: much faster, and it needs no memory.
__extension__ using ShortInteger = __int128;

/// So many digits a ShortInteger can always hold, with one to spare for doubling.
constexpr std::size_t c_ShortDigits = 37;

/// The number Unscaled / 10^Scale.
template <typename Integer>
struct Decimal {
    Integer Unscaled;
    unsigned Scale = 0;
};

template <typename Integer>
Integer powerOfTen(unsigned exponent) {
    Integer power = 1;
    while (exponent-- > 0) {
        power *= 10;
    }
    return power;
}

template <typename Integer>
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

void readDigits(std::string_view digits, ShortInteger& number) {
    for (const char digit : digits) {
        number = number * 10 + (digit - '0');
    }
}

void readDigits(std::string_view digits, LongInteger& number) {
    constexpr std::size_t c_Portion = 18;
    for (; !digits.empty(); digits.remove_prefix(std::min(c_Portion, digits.size()))) {
        const std::string_view portion = digits.substr(0, c_Portion);
        std::uint64_t value = 0;
        for (const char digit : portion) {
            value = value * 10 + static_cast<std::uint64_t>(digit - '0');
        }
        number = number * powerOfTen<LongInteger>(static_cast<unsigned>(portion.size())) + value;
    }
}

/// In portions that the processor divides by itself.
std::string digitsOf(ShortInteger number) {
    constexpr std::size_t c_Portion = 18;
    constexpr ShortInteger c_PortionPower = 1'000'000'000'000'000'000;
    std::string digits = std::to_string(static_cast<std::uint64_t>(number % c_PortionPower));
    for (number /= c_PortionPower; number != 0; number /= c_PortionPower) {
        digits.insert(0, (c_Portion - digits.size() % c_Portion) % c_Portion, '0');
        digits.insert(0, std::to_string(static_cast<std::uint64_t>(number % c_PortionPower)));
    }
    return digits;
}

std::string digitsOf(const LongInteger& number) {
    return number.str();
}

template <typename Integer>
Decimal<Integer> parseDecimal(std::string_view text) {
    if (text.size() > c_MaximumDecimalLength) {
        throw DecimalError("decimal number too long");
    }
    std::string_view body = text;
    const bool negative = body.starts_with('-');
    if (negative || body.starts_with('+')) {
        body.remove_prefix(1);
    }
    const auto point = std::min(body.find('.'), body.size());
    const std::string_view whole = body.substr(0, point);
    const std::string_view decimals = body.substr(std::min(point + 1, body.size()));
    if ((whole.empty() && decimals.empty()) || !std::ranges::all_of(whole, isDigit) ||
        !std::ranges::all_of(decimals, isDigit)) {
        throw DecimalError("not a decimal number: " + std::string(text));
    }
    Integer unscaled = 0;
    readDigits(whole, unscaled);
    readDigits(decimals, unscaled);
    if (negative) {
        unscaled = -unscaled;
    }
    return {std::move(unscaled), static_cast<unsigned>(decimals.size())};
}

template <typename Integer>
std::string withPoint(const Integer& unscaled, unsigned scale) {
    std::string digits = digitsOf(magnitude(unscaled));
    if (digits.size() <= scale) {
        digits.insert(0, scale + 1 - digits.size(), '0');
    }
    if (scale > 0) {
        digits.insert(digits.size() - scale, 1, '.');
    }
    if (unscaled < 0) {
        digits.insert(0, 1, '-');
    }
    return digits;
}

template <typename Integer>
std::string canonicalText(const Decimal<Integer>& number) {
    std::string text = withPoint(number.Unscaled, number.Scale);
    if (number.Scale > 0) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.ends_with('.')) {
            text.pop_back();
        }
    }
    return text;
}

template <typename Integer>
struct Aligned {
    Integer Left;
    Integer Right;
    unsigned Scale;
};

/// Both numbers over the same power of ten.
template <typename Integer>
Aligned<Integer> aligned(std::string_view left, std::string_view right) {
    Decimal<Integer> a = parseDecimal<Integer>(left);
    Decimal<Integer> b = parseDecimal<Integer>(right);
    const unsigned scale = std::max(a.Scale, b.Scale);
    a.Unscaled *= powerOfTen<Integer>(scale - a.Scale);
    b.Unscaled *= powerOfTen<Integer>(scale - b.Scale);
    return {std::move(a.Unscaled), std::move(b.Unscaled), scale};
}

/// The quotient of two integers to the nearest integer, halves away from zero.
template <typename Integer>
Integer nearestQuotient(const Integer& dividend, const Integer& divisor) {
    const Integer parts = magnitude(divisor);
    const Integer quotient = (2 * magnitude(dividend) + parts) / (2 * parts);
    return (dividend < 0) != (divisor < 0) ? Integer(-quotient) : quotient;
}

template <typename Integer>
Decimal<Integer> rounded(const Decimal<Integer>& number, unsigned decimals) {
    if (number.Scale <= decimals) {
        return number;
    }
    return {nearestQuotient(number.Unscaled, powerOfTen<Integer>(number.Scale - decimals)), decimals};
}

/// Calls `compute` with a zero of the integer type that holds every number on the way: `digits` is the most that one of
/// them can have, and a text has no more digits than characters.
template <typename Compute>
auto withIntegerFor(std::size_t digits, Compute compute) {
    return digits <= c_ShortDigits ? compute(ShortInteger{}) : compute(LongInteger{});
}

} // namespace

std::string canonicalDecimal(std::string_view text) {
    return withIntegerFor(text.size(),
                          [&]<typename Integer>(Integer) { return canonicalText(parseDecimal<Integer>(text)); });
}

std::string decimalSum(std::string_view left, std::string_view right) {
    return withIntegerFor(left.size() + right.size(), [&]<typename Integer>(Integer) {
        const auto both = aligned<Integer>(left, right);
        return canonicalText(Decimal<Integer>{both.Left + both.Right, both.Scale});
    });
}

std::string decimalDifference(std::string_view left, std::string_view right) {
    return withIntegerFor(left.size() + right.size(), [&]<typename Integer>(Integer) {
        const auto both = aligned<Integer>(left, right);
        return canonicalText(Decimal<Integer>{both.Left - both.Right, both.Scale});
    });
}

std::string decimalProduct(std::string_view left, std::string_view right) {
    return withIntegerFor(left.size() + right.size(), [&]<typename Integer>(Integer) {
        const auto a = parseDecimal<Integer>(left);
        const auto b = parseDecimal<Integer>(right);
        return canonicalText(Decimal<Integer>{a.Unscaled * b.Unscaled, a.Scale + b.Scale});
    });
}

std::string decimalQuotient(std::string_view dividend, std::string_view divisor, int decimals) {
    const unsigned scale = checkedDecimals(decimals);
    return withIntegerFor(dividend.size() + divisor.size() + scale, [&]<typename Integer>(Integer) {
        const auto both = aligned<Integer>(dividend, divisor);
        if (both.Right == 0) {
            throw DecimalError("division by zero");
        }
        const Integer shifted = both.Left * powerOfTen<Integer>(scale);
        return canonicalText(Decimal<Integer>{nearestQuotient(shifted, both.Right), scale});
    });
}

std::string roundedDecimal(std::string_view text, int decimals) {
    const unsigned scale = checkedDecimals(decimals);
    return withIntegerFor(text.size(), [&]<typename Integer>(Integer) {
        return canonicalText(rounded(parseDecimal<Integer>(text), scale));
    });
}

std::string absoluteDecimal(std::string_view text) {
    return withIntegerFor(text.size(), [&]<typename Integer>(Integer) {
        const auto number = parseDecimal<Integer>(text);
        return canonicalText(Decimal<Integer>{magnitude(number.Unscaled), number.Scale});
    });
}

std::string negatedDecimal(std::string_view text) {
    return withIntegerFor(text.size(), [&]<typename Integer>(Integer) {
        const auto number = parseDecimal<Integer>(text);
        return canonicalText(Decimal<Integer>{-number.Unscaled, number.Scale});
    });
}

int compareDecimals(std::string_view left, std::string_view right) {
    return withIntegerFor(left.size() + right.size(), [&]<typename Integer>(Integer) {
        const auto both = aligned<Integer>(left, right);
        return both.Left < both.Right ? -1 : (both.Right < both.Left ? 1 : 0);
    });
}

bool isProductWithin(std::string_view left, std::string_view right, std::string_view product,
                     std::string_view distance) {
    const std::size_t digits = left.size() + right.size() + product.size() + distance.size();
    return withIntegerFor(digits, [&]<typename Integer>(Integer) {
        const auto a = parseDecimal<Integer>(left);
        const auto b = parseDecimal<Integer>(right);
        const auto expected = parseDecimal<Integer>(product);
        const auto most = parseDecimal<Integer>(distance);
        const unsigned scale = std::max({a.Scale + b.Scale, expected.Scale, most.Scale});
        const auto scaled = [scale](const Integer& unscaled, unsigned from) {
            return Integer(unscaled * powerOfTen<Integer>(scale - from));
        };
        const Integer difference =
            scaled(a.Unscaled * b.Unscaled, a.Scale + b.Scale) - scaled(expected.Unscaled, expected.Scale);
        return magnitude(difference) <= scaled(most.Unscaled, most.Scale);
    });
}

std::string fixedDecimal(std::string_view text, int decimals) {
    const unsigned scale = checkedDecimals(decimals);
    return withIntegerFor(text.size() + scale, [&]<typename Integer>(Integer) {
        const auto number = rounded(parseDecimal<Integer>(text), scale);
        return withPoint<Integer>(number.Unscaled * powerOfTen<Integer>(scale - number.Scale), scale);
    });
}

} // namespace refhost
