#pragma once

#include "editwin/model/Column.h"
#include "host/FormatSettings.h"

#include <string_view>

namespace melvark {

/// The text that a cell of `column` shows for the stored `text`: the column's display format applied to the value,
/// which is an integer or a number when the column's data type says so, the text itself otherwise. Without format or
/// without text, and for a value that does not convert or does not fit the format, it is the text itself. For showing
/// only: what the cell holds stays unformatted.
AnsiString DisplayText(const RColumn& column, std::string_view text, const TFormatSettings& settings);

} // namespace melvark
