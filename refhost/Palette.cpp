#include "refhost/Palette.h"

#include <utility>

namespace refhost {

namespace {

constexpr double c_stripe = 0.04;  ///< Just enough to lead the eye along a row.
constexpr double c_hint = 0.6;     ///< Weaker than what was typed, and still read easily.
constexpr double c_disabled = 0.4; ///< Weaker than a hint: there is nothing to do here.

/// The colour that lies the given share of the way from one to the other.
QColor between(const QColor& from, const QColor& to, double share) {
    const auto mix = [share](int a, int b) { return a + qRound((b - a) * share); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

} // namespace

QPalette completePalette(QPalette palette) {
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor base = palette.color(group, QPalette::Base);
        const QColor text = palette.color(group, QPalette::Text);
        palette.setColor(group, QPalette::AlternateBase, between(base, text, c_stripe));
        palette.setColor(group, QPalette::PlaceholderText, between(base, text, c_hint));
    }
    using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
    for (const auto& [text, ground] :
         {Pair(QPalette::WindowText, QPalette::Window), Pair(QPalette::Text, QPalette::Base),
          Pair(QPalette::ButtonText, QPalette::Button)}) {
        palette.setColor(
            QPalette::Disabled, text,
            between(palette.color(QPalette::Active, ground), palette.color(QPalette::Active, text), c_disabled));
    }
    return palette;
}

} // namespace refhost
