#include "refhost/ProgramStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace refhost {

namespace {

constexpr const char16_t* c_base = u"Fusion";

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// The base style marks the one with the keyboard's focus by the frame's colour.
bool hasMarkedFrame(const QStyleOption& option) {
    return option.state.testFlags(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange);
}

} // namespace

// Whoever derives a style from the application's finds it by its name.
ProgramStyle::ProgramStyle() : QProxyStyle(QString::fromUtf16(c_base)) {
    setObjectName(QString::fromUtf16(c_base));
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    const bool isSquare = element == PE_IndicatorCheckBox || element == PE_PanelMenu;
    if ((!isRound && !isSquare) || !isDark(option->palette) || hasMarkedFrame(*option)) {
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, isRound);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(option->palette.color(QPalette::PlaceholderText));
    const QRectF frame = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isRound) {
        painter->drawEllipse(frame);
    } else {
        painter->drawRect(frame);
    }
    painter->restore();
}

} // namespace refhost
