#include "refhost/Palette.h"

#include <gtest/gtest.h>

namespace refhost {

namespace {

QPalette paletteOf(const QColor& base, const QColor& text) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::AlternateBase, Qt::white); // what a dark desktop that says nothing of it gets
    palette.setColor(QPalette::PlaceholderText, Qt::black);
    return palette;
}

TEST(Palette, StripesAndHintsOfADarkLookAreDarkAndLight) {
    const QPalette dark = completePalette(paletteOf(QColor(0, 0, 0), QColor(250, 250, 250)));
    EXPECT_EQ(dark.color(QPalette::AlternateBase), QColor(10, 10, 10));      // 4 % of the way from 0 to 250
    EXPECT_EQ(dark.color(QPalette::PlaceholderText), QColor(150, 150, 150)); // 60 %
}

TEST(Palette, StripesAndHintsOfALightLookAreLightAndDark) {
    const QPalette light = completePalette(paletteOf(QColor(250, 250, 250), QColor(0, 0, 0)));
    EXPECT_EQ(light.color(QPalette::AlternateBase), QColor(240, 240, 240));
    EXPECT_EQ(light.color(QPalette::PlaceholderText), QColor(100, 100, 100));
}

TEST(Palette, DisabledCaptionsStandOutFromTheirOwnGround) {
    QPalette given;
    given.setColor(QPalette::Button, QColor(0, 0, 0));
    given.setColor(QPalette::ButtonText, QColor(250, 250, 250));
    given.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::black);
    const QPalette complete = completePalette(given);
    EXPECT_EQ(complete.color(QPalette::Disabled, QPalette::ButtonText), QColor(100, 100, 100)); // 40 %
    EXPECT_EQ(complete.color(QPalette::Active, QPalette::ButtonText), QColor(250, 250, 250));
}

TEST(Palette, OtherColoursStayTheDesktops) {
    QPalette given = paletteOf(QColor(0, 0, 0), QColor(250, 250, 250));
    given.setColor(QPalette::Highlight, QColor(1, 2, 3));
    EXPECT_EQ(completePalette(given).color(QPalette::Highlight), QColor(1, 2, 3));
    EXPECT_EQ(completePalette(given).color(QPalette::Base), QColor(0, 0, 0));
}

} // namespace

} // namespace refhost
