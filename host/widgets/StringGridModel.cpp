#include "host/widgets/StringGridModel.h"

#include "host/widgets/Text.h"

#include <algorithm>

using namespace melvark;

TStringGridModel::TStringGridModel(QObject* parent) : QAbstractTableModel(parent), FColumns(1) {}

void TStringGridModel::SetColCount(int count) {
    const int wanted = std::max(count, 1);
    if (wanted > ColCount()) {
        beginInsertColumns({}, ColCount() - 1, wanted - 2);
        FColumns.resize(static_cast<std::size_t>(wanted));
        endInsertColumns();
    } else if (wanted < ColCount()) {
        beginRemoveColumns({}, wanted - 1, ColCount() - 2);
        FColumns.resize(static_cast<std::size_t>(wanted));
        endRemoveColumns();
    }
}

void TStringGridModel::SetRowCount(int count) {
    const int wanted = std::max(count, 1);
    if (wanted == FRowCount) {
        return;
    }
    const bool grows = wanted > FRowCount;
    if (grows) {
        beginInsertRows({}, FRowCount - 1, wanted - 2);
    } else {
        beginRemoveRows({}, wanted - 1, FRowCount - 2);
    }
    for (auto& column : FColumns) {
        column.ForgetFrom(wanted);
    }
    FRowCount = wanted;
    if (grows) {
        endInsertRows();
    } else {
        endRemoveRows();
    }
}

const AnsiString& TStringGridModel::Cell(int col, int row) const {
    static const AnsiString empty;
    return Holds(col, row) ? FColumns[static_cast<std::size_t>(col)].Text(row) : empty;
}

void TStringGridModel::SetCell(int col, int row, AnsiString text) {
    if (!Holds(col, row)) {
        return;
    }
    FColumns[static_cast<std::size_t>(col)].SetText(row, std::move(text));
    if (col == 0) {
        return;
    }
    if (row == 0) {
        Q_EMIT headerDataChanged(Qt::Horizontal, col - 1, col - 1);
    } else {
        const QModelIndex changed = index(row - 1, col - 1);
        Q_EMIT dataChanged(changed, changed);
    }
}

void TStringGridModel::SetColumnTexts(int col, TColumnTexts texts) {
    if (!Holds(col, 0)) {
        return;
    }
    FColumns[static_cast<std::size_t>(col)].SetUnderneath(std::move(texts));
    if (col > 0 && FRowCount > 1) {
        Q_EMIT dataChanged(index(0, col - 1), index(FRowCount - 2, col - 1));
    }
}

void TStringGridModel::InsertColumn(int col) {
    if (col < 1 || col > ColCount()) {
        return;
    }
    beginInsertColumns({}, col - 1, col - 1);
    FColumns.insert(FColumns.begin() + col, StringGridTexts());
    endInsertColumns();
}

void TStringGridModel::DeleteColumn(int col) {
    if (col < 1 || col >= ColCount()) {
        return;
    }
    beginRemoveColumns({}, col - 1, col - 1);
    FColumns.erase(FColumns.begin() + col);
    endRemoveColumns();
}

void TStringGridModel::MoveColumn(int from, int to) {
    if (from == to || from < 1 || to < 1 || from >= ColCount() || to >= ColCount()) {
        return;
    }
    // Qt names the place before which the column lands, counted while it still stands at its old place.
    beginMoveColumns({}, from - 1, from - 1, {}, to > from ? to : to - 1);
    const auto first = FColumns.begin();
    if (from < to) {
        std::rotate(first + from, first + from + 1, first + to + 1);
    } else {
        std::rotate(first + to, first + from, first + from + 1);
    }
    endMoveColumns();
}

int TStringGridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : FRowCount - 1;
}

int TStringGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColCount() - 1;
}

QVariant TStringGridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) {
        return {};
    }
    return ToQString(Cell(index.column() + 1, index.row() + 1));
}

QVariant TStringGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return ToQString(Cell(section + 1, 0));
}

Qt::ItemFlags TStringGridModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

bool TStringGridModel::Holds(int col, int row) const {
    return col >= 0 && col < ColCount() && row >= 0 && row < FRowCount;
}
