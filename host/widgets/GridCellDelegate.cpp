#include "host/widgets/GridCellDelegate.h"

#include "host/widgets/Text.h"

#include <QPainter>
#include <QStyleOptionViewItem>

#include <cmath>

namespace melvark {

namespace {

constexpr int c_SideMargin = 3;
constexpr int c_TopMargin = 4;

/// Line breaks and tabs would end the line or show as boxes.
QString OneLine(QString text) {
    for (QChar& character : text) {
        if (character < u' ') {
            character = u' ';
        }
    }
    return text;
}

/// Drawn by hand: a style shows its own focus frame only after the keyboard moved the focus.
void DrawFocusFrame(QPainter& painter, const QRect& cell) {
    QPen pen = painter.pen();
    pen.setStyle(Qt::DotLine);
    painter.setPen(pen);
    painter.drawRect(cell.adjusted(0, 0, -1, -1));
}

} // namespace

QPoint CellTextOrigin(const QRect& cell, int textWidth, Qt::AlignmentFlag align) {
    const int top = cell.top() + c_TopMargin;
    switch (align) {
    case Qt::AlignRight:
        return {cell.left() + cell.width() - textWidth - c_SideMargin, top};
    case Qt::AlignHCenter:
        return {cell.left() + static_cast<int>(std::lround(cell.width() / 2.0 - textWidth / 2.0)), top};
    default:
        return {cell.left() + c_SideMargin, top};
    }
}

GridCellDelegate::GridCellDelegate(const TStringGrid* grid, QObject* parent)
    : QAbstractItemDelegate(parent), FGrid(grid) {}

void GridCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const TCellLook look = FGrid->Look(index.column() + 1, index.row() + 1);
    const QString text = OneLine(ToQString(look.Text));
    QFont font = option.font;
    if (look.Bold != font.bold()) { // a font that was only touched would be looked up anew for each cell
        font.setBold(look.Bold);
    }
    const QFontMetrics metrics(font);

    painter->save();
    painter->setClipRect(option.rect);
    painter->fillRect(option.rect, option.palette.color(QPalette::Base));
    painter->setFont(font);
    painter->setPen(option.palette.color(QPalette::Text));
    const int width = look.Align == Qt::AlignLeft ? 0 : metrics.horizontalAdvance(text);
    const QPoint origin = CellTextOrigin(option.rect, width, look.Align);
    painter->drawText(origin + QPoint(0, metrics.ascent()), text);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        DrawFocusFrame(*painter, option.rect);
    }
    painter->restore();
}

QSize GridCellDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    return {FGrid->ColWidths(index.column() + 1), FGrid->RowHeight()};
}

} // namespace melvark
