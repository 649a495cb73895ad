#include "refhost/ProgramStyle.h"

#include "refhost/Palette.h"

#include <QImage>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionButton>

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace refhost {

namespace {

constexpr QRect c_indicator(4, 4, 14, 14);

QPalette desktop(const QColor& window, const QColor& base, const QColor& text) {
    QPalette palette(window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    return completePalette(palette);
}
const QPalette c_dark = desktop(QColor(42, 46, 50), QColor(27, 30, 32), QColor(252, 252, 252));
const QPalette c_light = desktop(QColor(239, 239, 239), QColor(255, 255, 255), QColor(0, 0, 0));

QImage drawn(const QStyle& style, QStyle::PrimitiveElement element, const QPalette& palette, QStyle::State state) {
    QImage image(22, 22, QImage::Format_RGB32);
    image.fill(palette.color(QPalette::Window));
    QPainter painter(&image);
    QStyleOptionButton option;
    option.rect = c_indicator;
    option.palette = palette;
    option.state = state;
    style.drawPrimitive(element, &option, &painter);
    return image;
}

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

/// Of the middle of the upper edge with the window.
double frameContrast(const QImage& image, const QPalette& palette) {
    double most = 1;
    for (int y = c_indicator.top() - 1; y <= c_indicator.top() + 1; ++y) {
        most = std::max(most, contrast(image.pixelColor(c_indicator.center().x(), y), palette.color(QPalette::Window)));
    }
    return most;
}

constexpr QStyle::PrimitiveElement c_Elements[] = {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton,
                                                   QStyle::PE_PanelMenu};

TEST(ProgramStyle, BoxesRadioButtonsAndMenusAreSeenOnADarkDesktop) {
    const ProgramStyle style;
    for (const QStyle::PrimitiveElement element : c_Elements) {
        for (const QStyle::StateFlag state : {QStyle::State_Off, QStyle::State_On}) {
            EXPECT_GE(frameContrast(drawn(style, element, c_dark, QStyle::State_Enabled | state), c_dark), 3)
                << element << " in state " << state;
        }
    }
}

TEST(ProgramStyle, ALightDesktopAndTheFocusLookAsTheyDidBefore) {
    const ProgramStyle style;
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    const QStyle::State focus = QStyle::State_Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    for (const QStyle::PrimitiveElement element : c_Elements) {
        EXPECT_EQ(drawn(style, element, c_light, QStyle::State_Enabled),
                  drawn(*fusion, element, c_light, QStyle::State_Enabled));
        EXPECT_EQ(drawn(style, element, c_dark, focus), drawn(*fusion, element, c_dark, focus));
    }
}

TEST(ProgramStyle, IsFoundByTheNameOfItsBase) {
    EXPECT_TRUE(QStyleFactory::keys().contains(ProgramStyle().objectName(), Qt::CaseInsensitive));
}

} // namespace

} // namespace refhost
