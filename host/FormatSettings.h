#pragma once

/// \file
/// How a locale writes numbers, dates and money.

#include "host/Types.h"

/// The order in which a locale writes the parts of a date.
enum class TDateOrder { DayMonthYear, MonthDayYear, YearMonthDay };

/// Everything that numbers, dates and money written as text depend on. The host fills one from the user's locale and
/// hands it down (THostServices::FormatSettings); no code of the contract or of a plug-in reads a default locale.
struct TFormatSettings {
    char DecimalSeparator = '.';        ///< '.' or ','.
    AnsiString ThousandSeparator = ","; ///< UTF-8; used for people's text only, never in cells and editors.
    AnsiString CurrencyString = "";     ///< Written with money; empty for none.
    bool CurrencyAfterNumber = true;    ///< Where the currency stands.
    int CurrencyDecimals = 2;           ///< Decimals of money when the format gives no precision.
    TDateOrder DateOrder = TDateOrder::YearMonthDay; ///< Also of dates that are read.
    char DateSeparator = '-';                        ///< A blank may stand around it in what is read.

    /// cs_CZ: comma, no-break space groups, "Kč" after the number, day.month.year.
    static TFormatSettings Czech();
    /// en_GB: point, comma groups, "CZK" after the number (the currency is the company's, not the language's),
    /// day/month/year.
    static TFormatSettings English();

    /// Whether every member is the same.
    bool operator==(const TFormatSettings&) const = default;
};
