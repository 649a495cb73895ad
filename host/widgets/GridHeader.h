#pragma once

#include <QHeaderView>

namespace melvark {

/// The header row of a string grid. It tells when a mouse button was released after a press in it, once Qt has
/// finished what the drag was for: sizing or moving a column. A caption without room is shortened in its middle.
class GridHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit GridHeader(QWidget* parent);

Q_SIGNALS:
    /// `position` counts in the header's own coordinates and may lie outside it.
    void Released(const QPoint& position);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override;
};

} // namespace melvark
