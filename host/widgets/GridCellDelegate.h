#pragma once

#include "host/widgets/StringGrid.h"

#include <QAbstractItemDelegate>
#include <QPoint>

namespace melvark {

/// Where the top left corner of a text of that width stands in the cell: 3 pixels from the side it is aligned to, 4
/// below the upper edge. A centred text that is wider than the cell starts left of it.
QPoint CellTextOrigin(const QRect& cell, int textWidth, Qt::AlignmentFlag align);

/// Draws the data cells of a string grid: one background for all, one line of text, clipped to the cell.
class GridCellDelegate : public QAbstractItemDelegate {
    Q_OBJECT

public:
    explicit GridCellDelegate(const TStringGrid* grid, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const TStringGrid* FGrid;
};

} // namespace melvark
