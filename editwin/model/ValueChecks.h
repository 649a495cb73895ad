#pragma once

#include "host/FormatSettings.h"
#include "host/Types.h"

#include <chrono>
#include <string_view>

/// What a typed value must be to enter a validated column. Each check trims blanks first and returns the text to keep;
/// the empty text is always valid. A refusal throws EBadValue with the sentence for the user, in the user's language
/// (needs a current host), which names the value as it was typed, blanks included.
namespace melvark {

/// An integer by TextToInt. Returns the trimmed text.
AnsiString CheckInt(std::string_view value);

/// A decimal number written with point or comma: each of them becomes the locale's separator and the result must be a
/// number by TextToFloat, so that a number with groups is refused. Returns the text with the separators replaced, not a
/// number written anew.
AnsiString CheckFloat(std::string_view value, const TFormatSettings& settings);

/// A date by TextToDate. Returns the trimmed text.
AnsiString CheckDate(std::string_view value, const TFormatSettings& settings, std::chrono::year_month_day today);

} // namespace melvark
