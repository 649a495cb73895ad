#include "host/widgets/Fonts.h"

#include <QApplication>

#include <algorithm>

namespace melvark {

namespace {

constexpr qreal c_SmallestPoints = 8;
constexpr qreal c_ShareOfApplicationFont = 8.0 / 9.0;

} // namespace

QFont FormFont() {
    QFont font = GridFont();
    font.setBold(true);
    return font;
}

QFont GridFont() {
    QFont font = QApplication::font();
    if (font.pointSizeF() > 0) { // a font given in pixels keeps its size
        font.setPointSizeF(std::max(c_SmallestPoints, font.pointSizeF() * c_ShareOfApplicationFont));
    }
    font.setBold(false);
    return font;
}

} // namespace melvark
