#pragma once

#include "host/Types.h"

#include <optional>
#include <string_view>

/// One cell as one line of the file of unsaved work; see AutosaveFile.
namespace melvark {

/// Appends the cell's line, without the line's end.
void AppendAutosaveCell(AnsiString& text, std::string_view cell);

/// The cell of a line without its end; nothing when it is no cell's line.
std::optional<AnsiString> AutosaveCell(std::string_view line);

} // namespace melvark
