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

bool ResultOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    return model_.isLess(left.row(), right.row(), left.column());
}

bool ResultOrder::filterAcceptsRow(int sourceRow, const QModelIndex&) const {
    return words_.isEmpty() || words_.matches(model_.searchText(sourceRow));
}

} // namespace refhost
