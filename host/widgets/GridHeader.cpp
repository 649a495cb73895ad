#include "host/widgets/GridHeader.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionHeader>

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

// Captions without room are shortened in the middle: many differ in their end only ("Množství 1", "Množství 2"). The
// header itself shortens none, whatever its elide mode.
void GridHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int section) const {
    QHeaderView::initStyleOptionForIndex(option, section);
    option->rect = QRect(0, 0, sectionSize(section), height());
    const int room = style()->subElementRect(QStyle::SE_HeaderLabel, option, this).width();
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideMiddle, room);
}

} // namespace melvark
