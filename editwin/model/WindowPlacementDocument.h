#pragma once

#include "host/ReachablePlace.h"
#include "host/Types.h"

#include <optional>
#include <string_view>

/// The small document that remembers where an editor's window stood.
namespace melvark {

/// The document of a placement.
AnsiString WriteWindowPlacement(const WindowPlacement& placement);

/// The placement that a document wants: the edges and sizes of `current` with what the document says. A number that is
/// missing, or whose text is no integer, keeps the current value; "maximized" is true for "1", false for any other text
/// and without a value when it is missing: the window's state is left alone. Nothing at all when the text is empty, not
/// well-formed or another document: the window is left as it is.
std::optional<WindowPlacement> ReadWindowPlacement(std::string_view document, const WindowPlacement& current);

} // namespace melvark
