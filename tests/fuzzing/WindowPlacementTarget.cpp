#include "editwin/model/WindowPlacementDocument.h"
#include "tests/fuzzing/FuzzTarget.h"

#include <algorithm>
#include <cstdint>
#include <limits>

using namespace melvark;

namespace {

constexpr ScreenArea c_Screens[] = {{0, 0, 1600, 1000}, {1600, -200, 1280, 1024}};
constexpr int c_TitleHeight = 24;

/// Whether a strip of the title bar lies on a screen.
bool canBeTakenHoldOf(const WindowPlacement& place) {
    return std::ranges::any_of(c_Screens, [&](const ScreenArea& screen) {
        return place.Left < screen.Left + screen.Width && screen.Left < std::int64_t{place.Left} + place.Width &&
               place.Top - c_TitleHeight < screen.Top + screen.Height && screen.Top < place.Top;
    });
}

} // namespace

std::string judgeWindowPlacement(std::string_view input) {
    constexpr WindowPlacement c_Current{.Left = 405, .Top = 300, .Width = 790, .Height = 400};
    const auto wanted = ReadWindowPlacement(input, c_Current);
    if (!wanted) {
        return {};
    }
    WindowPlacement written = *wanted;
    written.Maximized = wanted->Maximized.value_or(false);
    if (ReadWindowPlacement(WriteWindowPlacement(*wanted), {}) != written) {
        return "the placement is not read back as it was written";
    }
    const WindowPlacement place = ReachablePlace(*wanted, c_Screens, c_TitleHeight);
    if (place.Width < 1 || place.Height < 1 || !canBeTakenHoldOf(place)) {
        return "the window cannot be taken hold of";
    }
    return ReachablePlace(place, c_Screens, c_TitleHeight) == place ? "" : "a window within reach is moved";
}
