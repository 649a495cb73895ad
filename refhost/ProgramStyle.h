#pragma once

#include <QProxyStyle>

namespace refhost {

/// The style of the program's windows: Fusion, whose check boxes, radio buttons and menus have a frame that is seen on
/// a dark desktop, too. Its own is a shade darker than the window, whatever the window's colour.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT
public:
    ProgramStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace refhost
