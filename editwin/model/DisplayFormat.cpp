#include "editwin/model/DisplayFormat.h"

#include "host/Exceptions.h"
#include "host/Format.h"
#include "host/ValueText.h"

#include <optional>

namespace melvark {

namespace {

/// The value that the column's format is applied to; nothing for a text that is not of the column's data type.
std::optional<TFormatArg> ValueOf(TColumnsDataType dataType, std::string_view text, const TFormatSettings& settings) {
    if (dataType == cdtInt) {
        return TextToInt(text);
    }
    if (dataType == cdtFlt) {
        return TextToFloat(text, settings);
    }
    return text;
}

} // namespace

AnsiString DisplayText(const RColumn& column, std::string_view text, const TFormatSettings& settings) {
    if (text.empty() || column.DisplayFormat.empty()) {
        return AnsiString(text);
    }
    const std::optional<TFormatArg> value = ValueOf(column.DataType, text, settings);
    if (!value) {
        return AnsiString(text);
    }
    try {
        return Format(column.DisplayFormat, {*value}, settings);
    } catch (const EConvertError&) {
        // A format that does not suit the column must not keep its cells from being drawn.
        return AnsiString(text);
    }
}

} // namespace melvark
