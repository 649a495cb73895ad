#include "refhost/database/SQLiteFunctions.h"

#include "host/ValueText.h"
#include "refhost/database/Decimal.h"
#include "refhost/database/ParameterValues.h"
#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteCall.h"
#include "refhost/database/SQLiteStatement.h"
#include "refhost/database/TimeZones.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <vector>

namespace refhost {

namespace {

using std::chrono::year_month_day;

constexpr std::size_t c_MostWholeDigits = 15;
constexpr std::size_t c_MostDecimals = 50;

/// What the refusal of a typed text names: its label, then the text.
std::vector<std::string> labelled(const SQLiteCall& call, std::string_view text) {
    return {call.text(1).value_or("Hodnota"), shownText(std::string(text))};
}

/// The number of digits before and after the point of a canonical decimal.
std::pair<std::size_t, std::size_t> digitCounts(std::string_view decimal) {
    if (decimal.starts_with('-')) {
        decimal.remove_prefix(1);
    }
    const std::size_t point = decimal.find('.');
    if (point == std::string_view::npos) {
        return {decimal.size(), 0};
    }
    return {point, decimal.size() - point - 1};
}

/// The refusal whose key stands at that argument and what it names behind it.
EDatabaseError refusalAt(const SQLiteCall& call, std::size_t key) {
    std::vector<std::string> named;
    for (std::size_t i = key + 1; i < call.count(); ++i) {
        named.push_back(shownText(call.text(i).value_or("NULL")));
    }
    return refusal(call.text(key).value_or(std::string()), named);
}

void refuse(const SQLiteCall& call) {
    throw refusalAt(call, 0);
}

void refuseLine(const SQLiteCall& call) {
    throw refusalAt(call, 1).AboutRow(call.integer(0));
}

void parseNumber(const SQLiteCall& call) {
    const auto text = call.view(0);
    if (!text || TrimText(*text).empty()) {
        return;
    }
    const auto number = TextToDecimalText(*text);
    if (!number) {
        throw refusal("ML001", labelled(call, *text));
    }
    const auto [whole, decimals] = digitCounts(*number);
    if (whole > c_MostWholeDigits || decimals > c_MostDecimals) {
        throw refusal("ML005", labelled(call, *text));
    }
    if (call.count() > 2 && decimals > static_cast<std::size_t>(call.integer(2))) {
        std::vector<std::string> named = labelled(call, *text);
        named.push_back(std::to_string(call.integer(2)));
        throw refusal("ML006", named);
    }
    call.give(*number);
}

year_month_day dateOf(TDateTime moment) {
    return year_month_day(std::chrono::floor<std::chrono::days>(moment));
}

/// The settings whose dates and moments are ISO texts.
const TFormatSettings& isoSettings() {
    static const TFormatSettings settings;
    return settings;
}

/// ISO with all leading zeros, so that the texts of moments sort as the moments do.
std::string isoDate(year_month_day date) {
    const auto padded = [](std::string digits, std::size_t length) {
        return digits.insert(0, length - std::min(length, digits.size()), '0');
    };
    return padded(std::to_string(static_cast<int>(date.year())), 4) + "-" +
           padded(std::to_string(static_cast<unsigned>(date.month())), 2) + "-" +
           padded(std::to_string(static_cast<unsigned>(date.day())), 2);
}

std::string isoMoment(TDateTime moment) {
    const std::string text = DateTimeToText(moment, isoSettings());
    return isoDate(dateOf(moment)) + text.substr(text.find(' '));
}

/// Reads what the database itself stored.
TDateTime storedMoment(const std::string& text) {
    if (const auto moment = TextToDateTime(text, isoSettings())) {
        return *moment;
    }
    throw std::invalid_argument("not a stored date: " + text);
}

[[noreturn]] void refuseDate(const SQLiteCall& call, const std::string& text) {
    throw refusal("ML002", labelled(call, text));
}

year_month_day companyToday(SQLiteSession& session) {
    std::string_view sql = "select today()";
    SQLiteStatement statement(session, sql);
    statement.step();
    return dateOf(storedMoment(std::get<AnsiString>(statement.value(0))));
}

void parseDate(const SQLiteCall& call) {
    const auto text = call.text(0);
    if (!text || TrimText(*text).empty()) {
        return;
    }
    // Only a year of two digits needs the day of today, for which the company's parameters are asked.
    const auto earliest = TextToDate(*text, call.session().settings(), std::chrono::year(1900) / 1 / 1);
    const auto latest = TextToDate(*text, call.session().settings(), std::chrono::year(2100) / 1 / 1);
    const auto date =
        earliest == latest ? latest : TextToDate(*text, call.session().settings(), companyToday(call.session()));
    if (!date) {
        refuseDate(call, *text);
    }
    call.give(isoDate(*date));
}

void parseMoment(const SQLiteCall& call) {
    const auto text = call.text(0);
    if (!text || TrimText(*text).empty()) {
        return;
    }
    const auto moment = TextToDateTime(*text, call.session().settings());
    if (!moment) {
        refuseDate(call, *text);
    }
    call.give(isoMoment(*moment));
}

void asInteger(const SQLiteCall& call) {
    if (const auto text = call.text(0)) {
        if (const auto number = TextToInt(*text)) {
            call.give(*number);
        }
    }
}

void typed(const SQLiteCall& call) {
    if (const auto text = call.view(0)) {
        if (const std::string_view trimmed = TrimText(*text); !trimmed.empty()) {
            call.give(trimmed);
        }
    }
}

/// Whether all arguments behind the first are null or texts as the tables keep decimals, with so many decimals at most.
void areDecimals(const SQLiteCall& call) {
    const auto decimals = static_cast<std::size_t>(call.integer(0));
    for (std::size_t i = 1; i < call.count(); ++i) {
        const auto text = call.text(i);
        const auto number = text ? TextToDecimalText(*text) : std::nullopt;
        if (text && (number != text || digitCounts(*text).second > decimals)) {
            call.give(0);
            return;
        }
    }
    call.give(1);
}

void typedId(const SQLiteCall& call) {
    if (const auto text = call.view(0)) {
        const std::string_view trimmed = TrimText(*text);
        const auto number = TextToInt(trimmed);
        if (!trimmed.empty() && !(number && *number <= 0)) {
            call.give(trimmed);
        }
    }
}

void shown(const SQLiteCall& call) {
    if (const auto text = call.text(0)) {
        call.give(shownText(*text));
    }
}

std::string withSeparator(std::string decimal, const TFormatSettings& settings) {
    if (const std::size_t point = decimal.find('.'); point != std::string::npos) {
        decimal[point] = settings.DecimalSeparator;
    }
    return decimal;
}

void numberText(const SQLiteCall& call) {
    if (const auto decimal = call.text(0)) {
        call.give(withSeparator(canonicalDecimal(*decimal), call.session().settings()));
    }
}

void totalText(const SQLiteCall& call) {
    if (const auto decimal = call.text(0)) {
        call.give(withSeparator(fixedDecimal(*decimal, 2), call.session().settings()));
    }
}

void dateText(const SQLiteCall& call) {
    if (const auto date = call.text(0)) {
        call.give(DateToText(dateOf(storedMoment(*date)), call.session().settings()));
    }
}

void momentText(const SQLiteCall& call) {
    if (const auto moment = call.text(0)) {
        call.give(DateTimeToText(storedMoment(*moment), call.session().settings()));
    }
}

void monthsBefore(const SQLiteCall& call) {
    const auto text = call.text(0);
    if (!text || !call.text(1)) {
        return;
    }
    const year_month_day sought = dateOf(storedMoment(*text)) - std::chrono::months(call.integer(1));
    call.give(isoDate(sought.ok() ? sought : year_month_day(sought.year() / sought.month() / std::chrono::last)));
}

/// The moment of now in a time zone.
void momentIn(const SQLiteCall& call) {
    const std::string zone = call.text(0).value_or(std::string());
    const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const auto offset = zoneOffset(zone, now);
    if (!offset) {
        throw refusal("ML071", {shownText(zone)});
    }
    call.give(isoMoment(TDateTime(now.time_since_epoch() + *offset)));
}

void currentUserName(const SQLiteCall& call) {
    call.give(call.session().user());
}

struct Entry {
    const char* Name;
    int Arguments;
    void (*Call)(sqlite3_context*, int, sqlite3_value**);
};

// None is declared deterministic: the engine would evaluate a call with constant arguments once at the start of a
// statement, and a refusal would come for rows that the statement never reaches.
constexpr Entry c_Functions[] = {
    {"refuse", -1, sqliteFunction<refuse>},
    {"refuse_line", -1, sqliteFunction<refuseLine>},
    {"parse_number", 1, sqliteFunction<parseNumber>},
    {"parse_number", 2, sqliteFunction<parseNumber>},
    {"parse_number", 3, sqliteFunction<parseNumber>},
    {"parse_date", 1, sqliteFunction<parseDate>},
    {"parse_date", 2, sqliteFunction<parseDate>},
    {"parse_moment", 1, sqliteFunction<parseMoment>},
    {"as_integer", 1, sqliteFunction<asInteger>},
    {"typed", 1, sqliteFunction<typed>},
    {"are_decimals", -1, sqliteFunction<areDecimals>},
    {"typed_id", 1, sqliteFunction<typedId>},
    {"shown", 1, sqliteFunction<shown>},
    {"number_text", 1, sqliteFunction<numberText>},
    {"total_text", 1, sqliteFunction<totalText>},
    {"date_text", 1, sqliteFunction<dateText>},
    {"moment_text", 1, sqliteFunction<momentText>},
    {"months_before", 2, sqliteFunction<monthsBefore>},
    {"moment_in", 1, sqliteFunction<momentIn>},
    {"current_user_name", 0, sqliteFunction<currentUserName>},
};

} // namespace

void registerValueFunctions(SQLiteSession& session) {
    for (const Entry& entry : c_Functions) {
        const int status =
            sqlite3_create_function_v2(session.handle(), entry.Name, entry.Arguments, SQLITE_UTF8 | SQLITE_INNOCUOUS,
                                       &session, entry.Call, nullptr, nullptr, nullptr);
        if (status != SQLITE_OK) {
            session.fail(status, entry.Name);
        }
    }
}

} // namespace refhost
