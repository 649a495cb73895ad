#include "refhost/tables/ResultOrder.h"

#include "refhost/tables/ResultModel.h"

namespace refhost {

ResultOrder::ResultOrder(ResultModel& model, QObject* parent) : QSortFilterProxyModel(parent), model_(model) {
    setSourceModel(&model);
}

void ResultOrder::setSearch(const QString& typed) {
    words_ = SearchWords(typed);
    invalidateFilter();
}

// Rows that are alike stand as the database brought them in either direction, and come back to their places when a
// search lets them in again. Downwards Qt asks whether the right one is less.
bool ResultOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    if (model_.isLess(left.row(), right.row(), left.column())) {
        return true;
    }
    if (model_.isLess(right.row(), left.row(), left.column())) {
        return false;
    }
    return sortOrder() == Qt::AscendingOrder ? left.row() < right.row() : left.row() > right.row();
}

bool ResultOrder::filterAcceptsRow(int sourceRow, const QModelIndex&) const {
    return words_.isEmpty() || words_.matches(model_.searchText(sourceRow));
}

} // namespace refhost
