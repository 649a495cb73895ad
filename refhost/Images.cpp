#include "refhost/Images.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>

namespace refhost {

namespace {

/// Drawings are made on a square of 16 units and kept with four times as many pixels.
constexpr int c_units = 16;
constexpr int c_pixelsPerUnit = 4;

const QColor c_green(0x2e, 0x9e, 0x4f);
const QColor c_red(0xd1, 0x3f, 0x3f);
const QColor c_blue(0x2f, 0x7f, 0xd0);
const QColor c_skin(0xf2, 0xc2, 0x8e);
const QColor c_skinEdge(0x8a, 0x55, 0x28);

QPen roundPen(const QColor& color, qreal width) {
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawTick(QPainter& painter, qreal left) {
    painter.setPen(roundPen(c_green, 2.4));
    painter.drawPolyline(QPolygonF({{left, 8.6}, {left + 3.4, 12.2}, {left + 9.6, 4}}));
}

void drawOk(QPainter& painter) {
    drawTick(painter, 3.2);
}

/// A tick and the arrow to the next one.
void drawOkNext(QPainter& painter) {
    drawTick(painter, 1.4);
    painter.setPen(roundPen(c_blue, 1.6));
    painter.drawLine(QPointF(9.4, 12.6), QPointF(14.4, 12.6));
    painter.drawPolyline(QPolygonF({{12.4, 10.4}, {14.6, 12.6}, {12.4, 14.8}}));
}

void drawCancel(QPainter& painter) {
    painter.setPen(roundPen(c_red, 2.4));
    painter.drawLine(QPointF(4, 4), QPointF(12, 12));
    painter.drawLine(QPointF(12, 4), QPointF(4, 12));
}

/// A hand that points at the list to pick from.
void drawHand(QPainter& painter) {
    QPainterPath hand;
    hand.addRoundedRect(QRectF(3, 6, 6.4, 7.6), 1.8, 1.8);
    QPainterPath pointing;
    pointing.addRoundedRect(QRectF(6, 5.2, 9, 2.8), 1.4, 1.4);
    QPainterPath thumb;
    thumb.addRoundedRect(QRectF(4.6, 3, 4.6, 2.8), 1.4, 1.4);
    painter.setPen(roundPen(c_skinEdge, 0.9));
    painter.setBrush(c_skin);
    painter.drawPath(hand.united(pointing).united(thumb));
    painter.drawLine(QPointF(7.4, 9.4), QPointF(9.4, 9.4));
    painter.drawLine(QPointF(7.4, 11.4), QPointF(9.4, 11.4));
    painter.setBrush(c_blue);
    painter.drawRoundedRect(QRectF(1, 5.6, 2.4, 8.4), 0.6, 0.6);
}

struct ImageRow {
    std::string_view image;
    std::string_view group;
    void (*draw)(QPainter&);
};

constexpr std::array c_images{
    ImageRow{"OK", "ENGINE", drawOk},
    ImageRow{"OKNEXT", "ENGINE", drawOkNext},
    ImageRow{"CANCEL", "ENGINE", drawCancel},
    ImageRow{"RUKA", "ENGINE", drawHand},
};

std::string drawPng(const ImageRow& row) {
    QImage image(c_units * c_pixelsPerUnit, c_units * c_pixelsPerUnit, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(c_pixelsPerUnit, c_pixelsPerUnit);
    row.draw(painter);
    painter.end();

    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

} // namespace

std::string_view Images::data(std::string_view image, std::string_view group) const {
    const auto row = std::find_if(c_images.begin(), c_images.end(),
                                  [&](const ImageRow& each) { return each.image == image && each.group == group; });
    if (row == c_images.end()) {
        return {};
    }
    std::string& bytes = drawn_[{std::string(image), std::string(group)}];
    if (bytes.empty()) {
        bytes = drawPng(*row);
    }
    return bytes;
}

} // namespace refhost
