/// \file
/// Where a window stands, and where it can be taken hold of.
#pragma once

#include <optional>
#include <span>

namespace melvark {

/// Where a window stands. Edges and sizes of the normal rectangle, the one that a maximised window returns to, in
/// screen pixels.
struct WindowPlacement {
    int Left = 0;                       ///< From the left edge of the first screen.
    int Top = 0;                        ///< From its top edge, below the title bar.
    int Width = 0;                      ///< Without the frame.
    int Height = 0;                     ///< Without the frame and the title bar.
    std::optional<bool> Maximized = {}; ///< Nothing when whoever remembers the window does not say.

    /// Whether both say the same.
    bool operator==(const WindowPlacement&) const = default;
};

/// A rectangle of the desktop, in screen pixels.
struct ScreenArea {
    int Left = 0;   ///< From the left edge of the first screen.
    int Top = 0;    ///< From its top edge.
    int Width = 0;  ///< What windows may use of it.
    int Height = 0; ///< What windows may use of it.
};

/// The placement at which the user can take hold of the window. One whose title bar, the strip of `titleHeight` pixels
/// above it, shows on any screen is left as it is; another one moves to the nearest screen, cut to it with its title
/// bar. No window becomes larger than twice all screens together, and none is empty. Any number may come in; without
/// screens nothing changes. Whether it is maximised is not looked at. Screens are larger than a title bar.
WindowPlacement ReachablePlace(const WindowPlacement& wanted, std::span<const ScreenArea> screens, int titleHeight);

} // namespace melvark
