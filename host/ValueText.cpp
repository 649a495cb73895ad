#include "host/ValueText.h"

#include "host/DecimalDigits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <system_error>

namespace {

constexpr std::string_view c_NoBreakSpace = "\u00A0";
constexpr int c_CenturyYearsBack = 50;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Length in bytes of the blank at the front of the text, 0 when there is none.
std::size_t LeadingBlank(std::string_view text) {
    if (text.starts_with(c_NoBreakSpace)) {
        return c_NoBreakSpace.size();
    }
    return !text.empty() && std::string_view(" \t\r\n").find(text.front()) != std::string_view::npos ? 1 : 0;
}

std::size_t TrailingBlank(std::string_view text) {
    if (text.ends_with(c_NoBreakSpace)) {
        return c_NoBreakSpace.size();
    }
    return !text.empty() && std::string_view(" \t\r\n").find(text.back()) != std::string_view::npos ? 1 : 0;
}

void SkipBlanks(std::string_view& text) {
    while (const std::size_t length = LeadingBlank(text)) {
        text.remove_prefix(length);
    }
}

std::string_view TakeDigits(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

bool TakeChar(std::string_view& text, char wanted) {
    if (!text.starts_with(wanted)) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

/// A decimal number with one of the characters of `separators`, in canonical digits: "-0,50" is minus, "0", "5".
std::optional<melvark::DecimalDigits> ReadDecimal(std::string_view text, std::string_view separators) {
    text = TrimText(text);
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    std::string_view whole = TakeDigits(text);
    std::string_view fraction;
    if (!text.empty() && separators.find(text.front()) != std::string_view::npos) {
        text.remove_prefix(1);
        fraction = TakeDigits(text);
    }
    if (!text.empty() || (whole.empty() && fraction.empty())) {
        return std::nullopt;
    }

    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    fraction = fraction.substr(0, fraction.find_last_not_of('0') + 1);
    const bool isZero = whole.empty() && fraction.empty();
    return melvark::DecimalDigits{isNegative && !isZero, AnsiString(whole.empty() ? "0" : whole), AnsiString(fraction)};
}

AnsiString Joined(const melvark::DecimalDigits& number, char separator) {
    AnsiString text = number.Negative ? "-" : "";
    text += number.Whole;
    if (!number.Fraction.empty()) {
        text += separator + number.Fraction;
    }
    return text;
}

/// The three numbers of a date in the order of the locale, as they are written.
struct DateParts {
    std::string_view Day;
    std::string_view Month;
    std::string_view Year;
};

/// Takes a date from the front of the text; what follows it stays in `text`.
std::optional<DateParts> TakeDate(std::string_view& text, TDateOrder order, char separator) {
    std::array<std::string_view, 3> numbers;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (i > 0) {
            SkipBlanks(text);
            if (!TakeChar(text, separator)) {
                return std::nullopt;
            }
            SkipBlanks(text);
        }
        numbers[i] = TakeDigits(text);
    }
    switch (order) {
    case TDateOrder::DayMonthYear:
        return DateParts{numbers[0], numbers[1], numbers[2]};
    case TDateOrder::MonthDayYear:
        return DateParts{numbers[1], numbers[0], numbers[2]};
    case TDateOrder::YearMonthDay:
        break;
    }
    return DateParts{numbers[2], numbers[1], numbers[0]};
}

/// The value of a few digits; nothing for fewer or more of them than allowed.
std::optional<int> SmallNumber(std::string_view digits, std::size_t fewestDigits, std::size_t mostDigits) {
    if (digits.size() < fewestDigits || digits.size() > mostDigits) {
        return std::nullopt;
    }
    int value = 0;
    for (const char c : digits) {
        value = value * 10 + (c - '0');
    }
    return value;
}

std::optional<std::chrono::year_month_day> CalendarDate(const DateParts& parts, int year) {
    const std::optional<int> day = SmallNumber(parts.Day, 1, 2);
    const std::optional<int> month = SmallNumber(parts.Month, 1, 2);
    if (!day || !month || year < 1) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day)));
    return date.ok() ? std::optional(date) : std::nullopt;
}

/// The year of the century window around `today` that ends with the two digits.
int YearInWindow(int twoDigits, std::chrono::year_month_day today) {
    const int first = static_cast<int>(today.year()) - c_CenturyYearsBack;
    const int firstTwoDigits = ((first % 100) + 100) % 100;
    return first + (twoDigits - firstTwoDigits + 100) % 100;
}

/// hours:minutes[:seconds] and nothing behind it.
std::optional<std::chrono::seconds> ReadTime(std::string_view text) {
    std::array<int, 3> numbers{};
    const std::array<int, 3> limits{24, 60, 60};
    std::size_t count = 0;
    do {
        if (count == numbers.size()) {
            return std::nullopt;
        }
        const std::optional<int> number = SmallNumber(TakeDigits(text), 1, 2);
        if (!number || *number >= limits[count]) {
            return std::nullopt;
        }
        numbers[count++] = *number;
    } while (TakeChar(text, ':'));
    if (!text.empty() || count < 2) {
        return std::nullopt;
    }
    return std::chrono::hours(numbers[0]) + std::chrono::minutes(numbers[1]) + std::chrono::seconds(numbers[2]);
}

std::optional<TDateTime> ReadMoment(std::string_view text, TDateOrder order, char separator) {
    const std::optional<DateParts> parts = TakeDate(text, order, separator);
    const std::optional<int> year = parts ? SmallNumber(parts->Year, 4, 4) : std::nullopt;
    const auto date = year ? CalendarDate(*parts, *year) : std::nullopt;
    if (!date) {
        return std::nullopt;
    }
    const TDateTime midnight = std::chrono::local_days(*date);
    if (text.empty()) {
        return midnight;
    }
    SkipBlanks(text);
    const std::optional<std::chrono::seconds> time = ReadTime(text);
    return time ? std::optional(midnight + *time) : std::nullopt;
}

} // namespace

std::string_view TrimText(std::string_view text) {
    SkipBlanks(text);
    while (const std::size_t length = TrailingBlank(text)) {
        text.remove_suffix(length);
    }
    return text;
}

std::optional<std::int32_t> TextToInt(std::string_view text) {
    text = TrimText(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> TextToFloat(std::string_view text, const TFormatSettings& settings) {
    const auto number = ReadDecimal(text, std::string_view(&settings.DecimalSeparator, 1));
    if (!number) {
        return std::nullopt;
    }
    const AnsiString plain = Joined(*number, '.');
    double value = 0;
    const auto read = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (read.ec == std::errc::result_out_of_range && number->Whole == "0") {
        return 0.0;
    }
    if (read.ec != std::errc() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<AnsiString> TextToDecimalText(std::string_view text) {
    const auto number = ReadDecimal(text, ".,");
    return number ? std::optional(Joined(*number, '.')) : std::nullopt;
}

std::optional<std::chrono::year_month_day> TextToDate(std::string_view text, const TFormatSettings& settings,
                                                      std::chrono::year_month_day today) {
    text = TrimText(text);
    const std::optional<DateParts> parts = TakeDate(text, settings.DateOrder, settings.DateSeparator);
    if (!parts || !text.empty()) {
        return std::nullopt;
    }
    if (const std::optional<int> year = SmallNumber(parts->Year, 4, 4)) {
        return CalendarDate(*parts, *year);
    }
    if (const std::optional<int> year = SmallNumber(parts->Year, 2, 2)) {
        return CalendarDate(*parts, YearInWindow(*year, today));
    }
    return std::nullopt;
}

std::optional<TDateTime> TextToDateTime(std::string_view text, const TFormatSettings& settings) {
    text = TrimText(text);
    if (const auto moment = ReadMoment(text, settings.DateOrder, settings.DateSeparator)) {
        return moment;
    }
    return ReadMoment(text, TDateOrder::YearMonthDay, '-');
}

AnsiString FloatToText(double value, const TFormatSettings& settings) {
    return Joined(melvark::ToDecimalDigits(value), settings.DecimalSeparator);
}

AnsiString DateToText(std::chrono::year_month_day date, const TFormatSettings& settings) {
    const AnsiString day = std::to_string(static_cast<unsigned>(date.day()));
    const AnsiString month = std::to_string(static_cast<unsigned>(date.month()));
    AnsiString year = std::to_string(static_cast<int>(date.year()));
    if (year.size() < 4) {
        year.insert(0, 4 - year.size(), '0');
    }
    const char separator = settings.DateSeparator;
    switch (settings.DateOrder) {
    case TDateOrder::DayMonthYear:
        return day + separator + month + separator + year;
    case TDateOrder::MonthDayYear:
        return month + separator + day + separator + year;
    case TDateOrder::YearMonthDay:
        break;
    }
    return year + separator + month + separator + day;
}

AnsiString DateTimeToText(TDateTime moment, const TFormatSettings& settings) {
    const auto day = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::hh_mm_ss time(moment - day);
    std::array<char, 16> clock{};
    std::snprintf(clock.data(), clock.size(), "%02d:%02d:%02d", static_cast<int>(time.hours().count()),
                  static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
    return DateToText(std::chrono::year_month_day(day), settings) + " " + clock.data();
}
