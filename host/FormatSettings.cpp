#include "host/FormatSettings.h"

TFormatSettings TFormatSettings::Czech() {
    return {.DecimalSeparator = ',',
            .ThousandSeparator = "\u00A0",
            .CurrencyString = "Kč",
            .CurrencyAfterNumber = true,
            .CurrencyDecimals = 2,
            .DateOrder = TDateOrder::DayMonthYear,
            .DateSeparator = '.'};
}

TFormatSettings TFormatSettings::English() {
    return {.DecimalSeparator = '.',
            .ThousandSeparator = ",",
            .CurrencyString = "CZK",
            .CurrencyAfterNumber = true,
            .CurrencyDecimals = 2,
            .DateOrder = TDateOrder::DayMonthYear,
            .DateSeparator = '/'};
}
