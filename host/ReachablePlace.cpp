#include "host/ReachablePlace.h"

#include <algorithm>
#include <cstdint>

namespace melvark {

namespace {

constexpr int c_LargestPart = 2; ///< More than this many desktops is no size that somebody dragged.

/// Edges in numbers wide enough for any sum of two stored ones.
struct Edges {
    std::int64_t Left, Top, Right, Bottom; ///< The right and bottom ones lie outside.
};

Edges EdgesOf(const ScreenArea& area) {
    return {area.Left, area.Top, std::int64_t{area.Left} + area.Width, std::int64_t{area.Top} + area.Height};
}

/// How far two intervals lie apart; 0 when they touch or overlap.
std::int64_t Gap(std::int64_t from, std::int64_t to, std::int64_t otherFrom, std::int64_t otherTo) {
    return std::max({std::int64_t{0}, otherFrom - to, from - otherTo});
}

/// The way along both axes.
std::int64_t Distance(const Edges& one, const Edges& other) {
    return Gap(one.Left, one.Right, other.Left, other.Right) + Gap(one.Top, one.Bottom, other.Top, other.Bottom);
}

/// The smallest rectangle around all screens.
Edges Desktop(std::span<const ScreenArea> screens) {
    Edges desktop = EdgesOf(screens.front());
    for (const ScreenArea& screen : screens) {
        const Edges edges = EdgesOf(screen);
        desktop = {std::min(desktop.Left, edges.Left), std::min(desktop.Top, edges.Top),
                   std::max(desktop.Right, edges.Right), std::max(desktop.Bottom, edges.Bottom)};
    }
    return desktop;
}

int Cut(int size, std::int64_t largest) {
    return static_cast<int>(std::clamp<std::int64_t>(size, 1, largest));
}

bool Overlap(const Edges& one, const Edges& other) {
    return one.Left < other.Right && other.Left < one.Right && one.Top < other.Bottom && other.Top < one.Bottom;
}

} // namespace

WindowPlacement ReachablePlace(const WindowPlacement& wanted, std::span<const ScreenArea> screens, int titleHeight) {
    if (screens.empty()) {
        return wanted;
    }
    const Edges desktop = Desktop(screens);
    WindowPlacement place = wanted;
    place.Width = Cut(wanted.Width, c_LargestPart * (desktop.Right - desktop.Left));
    place.Height = Cut(wanted.Height, c_LargestPart * (desktop.Bottom - desktop.Top));
    const Edges title{place.Left, std::int64_t{place.Top} - titleHeight, std::int64_t{place.Left} + place.Width,
                      place.Top};
    const bool isReachable =
        std::ranges::any_of(screens, [&](const ScreenArea& screen) { return Overlap(title, EdgesOf(screen)); });
    if (isReachable) {
        return place;
    }
    const ScreenArea& nearest = *std::ranges::min_element(
        screens, {}, [&](const ScreenArea& screen) { return Distance(title, EdgesOf(screen)); });
    place.Width = Cut(place.Width, nearest.Width);
    place.Height = Cut(place.Height, nearest.Height - titleHeight);
    place.Left = std::clamp(place.Left, nearest.Left, nearest.Left + nearest.Width - place.Width);
    place.Top = std::clamp(place.Top, nearest.Top + titleHeight, nearest.Top + nearest.Height - place.Height);
    return place;
}

} // namespace melvark
