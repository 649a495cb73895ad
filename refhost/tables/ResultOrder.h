#pragma once

#include "refhost/tables/SearchWords.h"

#include <QSortFilterProxyModel>

namespace refhost {

class ResultModel;

/// The rows of a ResultModel that match the searched words, in the order of a column.
class ResultOrder : public QSortFilterProxyModel {
    Q_OBJECT
public:
    ResultOrder(ResultModel& model, QObject* parent);

    void setSearch(const QString& typed);

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    const ResultModel& model_;
    SearchWords words_;
};

} // namespace refhost
