#pragma once

#include "host/Types.h"

#include <optional>
#include <string_view>

/// The small document that remembers where an editor's window stood.
namespace melvark {

/// Edges and sizes of the normal rectangle, the one that a maximised window returns to, in screen pixels.
struct WindowPlacement {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool Maximized = false;

    bool operator==(const WindowPlacement&) const = default;
};

/// The document of a placement.
AnsiString WriteWindowPlacement(const WindowPlacement& placement);

/// The placement that a document wants: `current` with what the document says. An element that is missing, or whose
/// text is no integer, keeps the current value; "maximized" is true for "1" and false for any other text. Nothing when
/// the text is empty, not well-formed or another document: the window is left as it is.
std::optional<WindowPlacement> ReadWindowPlacement(std::string_view document, const WindowPlacement& current);

} // namespace melvark
