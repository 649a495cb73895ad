#pragma once

#include "host/FormatSettings.h"
#include "host/Types.h"

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>
#include <variant>

/// One argument of Format: an integer, a floating-point number or a text.
class TFormatArg {
public:
    TFormatArg(int value) : FValue(std::int64_t{value}) {}
    TFormatArg(std::int64_t value) : FValue(value) {}
    TFormatArg(double value) : FValue(value) {}
    TFormatArg(AnsiString value) : FValue(std::move(value)) {}
    TFormatArg(std::string_view value) : FValue(AnsiString(value)) {}
    TFormatArg(const char* value) : FValue(AnsiString(value)) {}

    const std::variant<std::int64_t, double, AnsiString>& Value() const { return FValue; }

private:
    std::variant<std::int64_t, double, AnsiString> FValue;
};

/// Writes `arguments` into `format`, in order, one for each specifier "%" ["-"] [width] ["." precision] type:
///   %s a text (precision = most characters), %d an integer (precision = least digits), %f a number with `precision`
///   (2 when not given) decimals and the locale's separator, %m an amount of money with groups and currency, %% a
///   percent sign. Width counts characters, not bytes; "-" aligns left. %f and %m take integers too.
/// Throws EConvertError, naming the format text, for an unknown or cut specifier, a missing argument or one of the
/// wrong type. Arguments left over are ignored.
AnsiString Format(std::string_view format, std::span<const TFormatArg> arguments, const TFormatSettings& settings);
AnsiString Format(std::string_view format, std::initializer_list<TFormatArg> arguments,
                  const TFormatSettings& settings);
