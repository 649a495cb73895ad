#pragma once

/// \file
/// Numbers and dates as the user types them, and back.
///
/// The one place that says which text is a number or a date: value checks, price rules, the reference databases and
/// their tests all follow it.

#include "host/FormatSettings.h"
#include "host/Types.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

/// `text` without leading and trailing blanks (space, tab, line break, no-break space).
std::string_view TrimText(std::string_view text);

/// An optional sign and decimal ASCII digits whose value fits 32 bits; blanks around it are ignored. "1e3", "0x10",
/// "1 000", full-width digits and the empty text are no integers.
std::optional<std::int32_t> TextToInt(std::string_view text);

/// An optional sign, ASCII digits and at most one `settings.DecimalSeparator` with a digit on at least one side; blanks
/// around it are ignored. No exponent, no groups, no "nan" or "inf"; the empty text is no number, nor is one too large
/// for a double.
std::optional<double> TextToFloat(std::string_view text, const TFormatSettings& settings);

/// The text of a number as parameters of the database are understood: as TextToFloat, with either "." or "," as the
/// separator. Returns the canonical decimal text (point, no leading "+", no needless zeros: "-0,50" gives "-0.5").
std::optional<AnsiString> TextToDecimalText(std::string_view text);

/// Day, month and year in the locale's order: one or two digits each for day and month, two or four for the year, the
/// locale's separator between them, blanks around the separators allowed. A two-digit year lies in the century window
/// from 50 years before `today` to 49 after it. Dates that the calendar does not have are refused; it begins with
/// year 1.
std::optional<std::chrono::year_month_day> TextToDate(std::string_view text, const TFormatSettings& settings,
                                                      std::chrono::year_month_day today);

/// A stored moment: a date with a four-digit year (a stored year is never guessed), optionally followed by blanks and
/// hours:minutes[:seconds] of one or two digits each. The date stands in the locale's order or as 2027-02-01.
std::optional<TDateTime> TextToDateTime(std::string_view text, const TFormatSettings& settings);

/// The shortest decimal text that reads back as `value`, with the locale's separator, without exponent and groups; zero
/// has no sign. Throws EConvertError for a value that is no finite number.
AnsiString FloatToText(double value, const TFormatSettings& settings);

/// Day and month without leading zeros, four-digit year, in the locale's order: 1.2.2027 in Czech.
AnsiString DateToText(std::chrono::year_month_day date, const TFormatSettings& settings);

/// The date, a blank and hours:minutes:seconds with two digits each, also at midnight: "1.2.2027 00:00:00".
AnsiString DateTimeToText(TDateTime moment, const TFormatSettings& settings);
