#include "host/widgets/GridHeader.h"

#include <QMouseEvent>

namespace melvark {

namespace {

constexpr int c_SmallestSection = 5; ///< A column dragged narrower could not be taken hold of again.

} // namespace

GridHeader::GridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsMovable(true);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Interactive);
    setMinimumSectionSize(c_SmallestSection);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void GridHeader::mouseReleaseEvent(QMouseEvent* event) {
    QHeaderView::mouseReleaseEvent(event);
    Q_EMIT Released(event->position().toPoint());
}

} // namespace melvark
