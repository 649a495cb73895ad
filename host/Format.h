#pragma once

/// \file
/// Texts with places for numbers, amounts of money and other texts.

#include "host/FormatSettings.h"
#include "host/Types.h"

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>
#include <utility>
#include <variant>

/// One argument of Format: an integer, a floating-point number or a text. It converts by itself: write the values.
class TFormatArg {
public:
    /// A whole number.
    TFormatArg(int value) : FValue(std::int64_t{value}) {}
    /// A whole number.
    TFormatArg(std::int64_t value) : FValue(value) {}
    /// A number for %f and %m.
    TFormatArg(double value) : FValue(value) {}
    /// A text.
    TFormatArg(AnsiString value) : FValue(std::move(value)) {}
    /// A text.
    TFormatArg(std::string_view value) : FValue(AnsiString(value)) {}
    /// A text, the empty one for null.
    TFormatArg(const char* value) : FValue(AnsiString(value != nullptr ? value : "")) {}

    /// What it was made from.
    const std::variant<std::int64_t, double, AnsiString>& Value() const { return FValue; }

private:
    std::variant<std::int64_t, double, AnsiString> FValue;
};

/// The largest width and precision of a specifier; no text for people needs more, and a damaged translation must not
/// fill the memory.
inline constexpr int c_MaxFormatWidth = 1000;

/// Writes `arguments` into `format`, in order, one for each specifier "%" ["-"] [width] ["." precision] type:
///   %s a text (precision = most characters), %d an integer (precision = least digits), %f a number with `precision`
///   (2 when not given) decimals and the locale's separator, %m an amount of money with groups and currency, %% a
///   percent sign. Width counts characters, not bytes; "-" aligns left. %f and %m take integers too.
/// Width and precision go up to c_MaxFormatWidth.
///
/// %f and %m round the number that the user sees, half away from zero: the shortest decimal text of the value is
/// rounded, not its binary neighbour, so 2.675 gives 2.68 although the stored double is a little less. What rounds to
/// zero has no minus. Money is "-1 234,50 Kč": the minus first, groups of three, a no-break space between number and
/// currency.
///
/// Throws EConvertError, naming the format text, for an unknown or cut specifier, a width or precision that is too
/// large, a missing argument, one of the wrong type or a number that is not finite. Arguments left over are ignored.
AnsiString Format(std::string_view format, std::span<const TFormatArg> arguments, const TFormatSettings& settings);
/// As above, with the arguments written where it is called.
AnsiString Format(std::string_view format, std::initializer_list<TFormatArg> arguments,
                  const TFormatSettings& settings);
