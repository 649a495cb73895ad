#include "refhost/database/ParameterValues.h"

#include "host/Exceptions.h"
#include "host/FormatSettings.h"
#include "host/Utf8.h"
#include "host/ValueText.h"
#include "refhost/database/RefusalTable.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unicode/ustring.h>

namespace refhost {

namespace {

/// Any value as text, numbers with a point.
AnsiString plainText(const TDbValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*number);
    }
    if (const auto* flag = std::get_if<bool>(&value)) {
        return *flag ? "1" : "0";
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return std::isfinite(*number) ? FloatToText(*number, TFormatSettings{}) : "nan";
    }
    return std::get<AnsiString>(value);
}

bool isUtf8(const AnsiString& text) {
    if (std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80U; })) {
        return true; // nearly every number and identifier
    }
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t length = 0;
    u_strFromUTF8(nullptr, 0, &length, text.data(), static_cast<std::int32_t>(text.size()), &error);
    return error != U_INVALID_CHAR_FOUND;
}

void checkText(std::string_view name, const AnsiString& text) {
    if (text.find('\0') != AnsiString::npos) {
        throw refusal("ML007", {AnsiString(name)});
    }
    if (!isUtf8(text)) {
        throw refusal("ML009", {AnsiString(name)});
    }
}

TDbValue integerValue(std::string_view name, const TDbValue& value) {
    if (const auto number = TextToInt(plainText(value))) {
        return std::int64_t{*number};
    }
    throw refusal("ML003", {shownText(plainText(value)), AnsiString(name)});
}

TDbValue booleanValue(std::string_view name, const TDbValue& value) {
    const AnsiString text = plainText(value);
    if (SameDbName(text, "1") || SameDbName(text, "true")) {
        return std::int64_t{1};
    }
    if (SameDbName(text, "0") || SameDbName(text, "false")) {
        return std::int64_t{0};
    }
    throw refusal("ML004", {shownText(text), AnsiString(name)});
}

TDbValue textValue(std::string_view name, const TDbValue& value) {
    if (const auto* number = std::get_if<double>(&value); number != nullptr && !std::isfinite(*number)) {
        throw refusal("ML008", {AnsiString(name)});
    }
    return plainText(value);
}

} // namespace

TDbValue parameterValue(ParameterKind kind, std::string_view name, const TDbValue& value) {
    if (std::holds_alternative<std::monostate>(value)) {
        return value;
    }
    if (const auto* text = std::get_if<AnsiString>(&value)) {
        checkText(name, *text);
    }
    switch (kind) {
    case ParameterKind::Integer:
        return integerValue(name, value);
    case ParameterKind::Boolean:
        return booleanValue(name, value);
    case ParameterKind::Text:
        return textValue(name, value);
    }
    return value;
}

AnsiString shownText(std::string_view text) {
    constexpr std::size_t c_MostCharacters = 60;
    const std::string_view shown = melvark::FirstCharacters(text, c_MostCharacters);
    return AnsiString(shown) + (shown.size() < text.size() ? "…" : "");
}

} // namespace refhost
