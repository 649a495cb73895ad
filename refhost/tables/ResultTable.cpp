#include "refhost/tables/ResultTable.h"

#include "refhost/tables/ResultModel.h"
#include "refhost/tables/ResultOrder.h"
#include "refhost/tables/TableStyle.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace refhost {

namespace {

constexpr std::string_view c_keyColumn = "_ID";
constexpr int c_widestColumn = 320;
constexpr int c_rowSpacing = 6;

} // namespace

ResultTable::ResultTable(const TFormatSettings& settings, const Languages& languages, QWidget* parent)
    : QTableView(parent), model_(new ResultModel(settings, languages, this)), order_(new ResultOrder(*model_, this)) {
    setModel(order_);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    // Until somebody sorts, rows stand in the order in which the database brought them.
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    auto* style = new TableStyle(this);
    setStyle(style);
    horizontalHeader()->setStyle(style);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + c_rowSpacing);
    horizontalHeader()->setHighlightSections(false);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { widthsAreSet_ |= !fitting_; });
    connect(this, &QAbstractItemView::doubleClicked, this, &ResultTable::rowActivated);
}

void ResultTable::setTable(TResultTable table, std::string_view firstColumn) {
    const std::string key = currentKey();
    const int row = currentIndex().row();
    const auto columnsBefore = model_->shownColumns();
    model_->setTable(std::move(table), firstColumn);
    fitColumns(model_->shownColumns() != columnsBefore);
    if (columnsBefore.empty()) {
        applyWanted();
    }
    if (key.empty() || !selectKey(key)) {
        keepSomeRowCurrent(row);
    }
    Q_EMIT currentRowChanged();
}

/// As wide as the longest text of each column, never narrower than before: widths do not jump from document to
/// document. Once somebody has dragged a width, all stay as they are.
void ResultTable::fitColumns(bool isNewLayout) {
    if (isNewLayout) {
        widthsAreSet_ = false;
    }
    if (widthsAreSet_) {
        return;
    }
    const QScopedValueRollback fitting(fitting_, true);
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    for (int column = 0; column < order_->columnCount(); ++column) {
        int text = 0;
        for (const QString& each : model_->longTexts(column)) {
            text = std::max(text, fontMetrics().horizontalAdvance(each) + 2 * margin + 1);
        }
        const int wanted = std::max(horizontalHeader()->sectionSizeHint(column), std::min(text, c_widestColumn));
        setColumnWidth(column, isNewLayout ? wanted : std::max(wanted, columnWidth(column)));
    }
}

void ResultTable::applyWanted() {
    sortBy(wanted_.sortColumn, wanted_.sortOrder);
    const QScopedValueRollback fitting(fitting_, true);
    for (const auto& [name, width] : wanted_.widths) {
        if (const auto column = model_->shownColumn(name)) {
            setColumnWidth(*column, width);
            widthsAreSet_ = true;
        }
    }
}

TableLook ResultTable::look() const {
    const auto columns = model_->shownColumns();
    if (columns.empty()) {
        return wanted_;
    }
    TableLook look;
    if (isSorted()) {
        look.sortColumn = columns.at(static_cast<std::size_t>(horizontalHeader()->sortIndicatorSection()));
        look.sortOrder = horizontalHeader()->sortIndicatorOrder();
    }
    for (std::size_t column = 0; widthsAreSet_ && column < columns.size(); ++column) {
        look.widths[columns[column]] = columnWidth(static_cast<int>(column));
    }
    return look;
}

bool ResultTable::isSorted() const {
    const int column = horizontalHeader()->sortIndicatorSection();
    return column >= 0 && column < order_->columnCount();
}

void ResultTable::sortBy(std::string_view column, Qt::SortOrder order) {
    if (const auto shown = model_->shownColumn(column)) {
        sortByColumn(*shown, order);
    }
}

std::optional<int> ResultTable::sortColumnOfKey(const QKeyEvent& event) {
    const bool isDigit = event.key() >= Qt::Key_1 && event.key() < Qt::Key_1 + c_sortKeyCount;
    if (!isDigit || (event.modifiers() & ~Qt::KeypadModifier) != Qt::AltModifier) {
        return std::nullopt;
    }
    return event.key() - Qt::Key_1;
}

void ResultTable::sortByPlace(int column) {
    if (column >= order_->columnCount()) {
        return;
    }
    const QHeaderView& header = *horizontalHeader();
    const bool isSortedUp =
        header.sortIndicatorSection() == column && header.sortIndicatorOrder() == Qt::AscendingOrder;
    sortByColumn(column, isSortedUp ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ResultTable::setSearch(const QString& typed) {
    const int row = currentIndex().row();
    order_->setSearch(typed);
    if (!currentIndex().isValid()) {
        keepSomeRowCurrent(row);
    }
    scrollTo(currentIndex());
}

std::optional<int> ResultTable::currentRow() const {
    const QModelIndex current = currentIndex();
    if (!current.isValid()) {
        return std::nullopt;
    }
    return order_->mapToSource(current).row();
}

bool ResultTable::selectKey(const std::string& key) {
    for (int row = 0; row < order_->rowCount(); ++row) {
        const int sourceRow = order_->mapToSource(order_->index(row, 0)).row();
        if (model_->text(sourceRow, c_keyColumn) == key) {
            selectShownRow(row);
            return true;
        }
    }
    return false;
}

void ResultTable::selectNothing() {
    setCurrentIndex({});
}

void ResultTable::selectFirst() {
    keepSomeRowCurrent(0);
}

std::string ResultTable::currentKey() const {
    const auto row = currentRow();
    return row ? model_->text(*row, c_keyColumn) : std::string();
}

int ResultTable::shownRowCount() const {
    return order_->rowCount();
}

/// The row that took the place of the one that is gone, or the last one.
void ResultTable::keepSomeRowCurrent(int wantedRow) {
    if (order_->rowCount() > 0) {
        selectShownRow(std::clamp(wantedRow, 0, order_->rowCount() - 1));
    }
}

void ResultTable::selectShownRow(int row) {
    const int column = std::max(currentIndex().column(), 0);
    setCurrentIndex(order_->index(row, column));
    scrollTo(currentIndex());
}

void ResultTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (current.row() != previous.row() || current.isValid() != previous.isValid()) {
        Q_EMIT currentRowChanged();
    }
}

void ResultTable::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const std::optional<int> sortColumn = sortColumnOfKey(*event);
    if (isEnter && currentIndex().isValid()) {
        Q_EMIT rowActivated();
    } else if (sortColumn) {
        sortByPlace(*sortColumn);
    } else {
        QTableView::keyPressEvent(event);
    }
}

} // namespace refhost
