#include "editwin/model/ValueChecks.h"

#include "editwin/model/EditExceptions.h"
#include "host/LangStr.h"
#include "host/ValueText.h"

#include <algorithm>
#include <utility>

namespace melvark {

namespace {

AnsiString AcceptedOrThrow(bool accepted, AnsiString kept, std::string_view typed, std::string_view key,
                           std::string_view fallback) {
    if (!accepted) {
        throw EBadValue(LangStr(key, {typed}, fallback));
    }
    return kept;
}

} // namespace

AnsiString CheckInt(std::string_view value) {
    const std::string_view trimmed = TrimText(value);
    return AcceptedOrThrow(trimmed.empty() || TextToInt(trimmed).has_value(), AnsiString(trimmed), value,
                           R"(KORDAN30\MELVARKEDITOR\NOTINTEGERVALUE)", "Hodnota %s není celé číslo");
}

AnsiString CheckFloat(std::string_view value, const TFormatSettings& settings) {
    AnsiString number(TrimText(value));
    const char foreignSeparator = settings.DecimalSeparator == ',' ? '.' : ',';
    std::ranges::replace(number, foreignSeparator, settings.DecimalSeparator);
    const bool accepted = number.empty() || TextToFloat(number, settings).has_value();
    return AcceptedOrThrow(accepted, std::move(number), value, R"(KORDAN30\MELVARKEDITOR\NOTFLOATVALUE)",
                           "Hodnota %s není desetinné číslo");
}

AnsiString CheckDate(std::string_view value, const TFormatSettings& settings, std::chrono::year_month_day today) {
    const std::string_view trimmed = TrimText(value);
    return AcceptedOrThrow(trimmed.empty() || TextToDate(trimmed, settings, today).has_value(), AnsiString(trimmed),
                           value, R"(KORDAN30\MELVARKEDITOR\NOTDATEVALUE)", "Hodnota %s není datum");
}

} // namespace melvark
