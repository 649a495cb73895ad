#pragma once

#include "host/Types.h"

#include <cstddef>
#include <optional>
#include <string_view>

/// One cell as one line of the file of unsaved work; see AutosaveFile.
namespace melvark {

/// Appends the cell's line, without the line's end.
void AppendAutosaveCell(AnsiString& text, std::string_view cell);

/// What a cell begins with that does not stand as it is.
inline constexpr char c_AutosaveMarker = '\\';

/// Whether a text of so many cells without a marker, each closed by a line's end, is just that many lines, each of
/// which gives its cell back as it stands there.
bool AreAutosaveLines(std::string_view text, std::size_t count);

/// The cell of a line without its end; nothing when it is no cell's line.
std::optional<AnsiString> AutosaveCell(std::string_view line);

} // namespace melvark
