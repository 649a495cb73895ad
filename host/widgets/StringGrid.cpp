#include "host/widgets/StringGrid.h"

#include "host/widgets/Fonts.h"
#include "host/widgets/GridCellDelegate.h"
#include "host/widgets/GridHeader.h"
#include "host/widgets/Guard.h"
#include "host/widgets/Later.h"
#include "host/widgets/StringGridModel.h"
#include "host/widgets/Text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

using namespace melvark;

namespace {

constexpr int c_GridLine = 1; ///< Qt's section holds the cell and the line after it.
constexpr int c_IndicatorWidth = 10;
constexpr int c_DefaultColWidth = 64;
constexpr int c_DefaultRowHeight = 20;

/// 0 for the header, the data cell's number, or -1 for a place outside.
int GridNumber(const QHeaderView& header, int position) {
    if (position < 0) {
        return 0;
    }
    const int section = header.logicalIndexAt(position);
    return section < 0 ? -1 : section + 1;
}

} // namespace

TStringGrid::TStringGrid(QWidget* parent) : QTableView(parent), FModel(new TStringGridModel(this)) {
    setFont(GridFont());
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setLineWidth(c_BorderWidth);
    setModel(FModel);
    setItemDelegate(new GridCellDelegate(this, this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    SetUpHeaders();
    WatchMouse();
    SetTabStop(true);
}

TStringGrid::~TStringGrid() = default;

void TStringGrid::SetUpHeaders() {
    auto* header = new GridHeader(this);
    setHorizontalHeader(header);
    header->setDefaultSectionSize(c_DefaultColWidth + c_GridLine);
    connect(header, &QHeaderView::sectionMoved, this,
            [this](int, int from, int to) { HandleSectionMoved(from + 1, to + 1); });
    connect(header, &QHeaderView::sectionResized, this, &TStringGrid::TopLeftChanged);
    connect(header, &GridHeader::Released, this, &TStringGrid::HandleHeaderRelease);

    QHeaderView* indicator = verticalHeader();
    indicator->setSectionsClickable(false);
    indicator->setHighlightSections(false);
    indicator->setMinimumSectionSize(1);
    indicator->setSectionResizeMode(QHeaderView::Fixed);
    indicator->setFixedWidth(c_IndicatorWidth + c_GridLine);
    setCornerButtonEnabled(false);
    SetRowHeight(c_DefaultRowHeight);
}

/// The header row, the indicator column and their corner are widgets of their own; the mouse over any of them counts as
/// the mouse over the grid.
void TStringGrid::WatchMouse() {
    auto* corner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* part :
         {viewport(), horizontalHeader()->viewport(), verticalHeader()->viewport(), static_cast<QWidget*>(corner)}) {
        part->setMouseTracking(true);
        part->installEventFilter(this);
    }
}

int TStringGrid::ColCount() const {
    return FModel->ColCount();
}

int TStringGrid::RowCount() const {
    return FModel->RowCount();
}

void TStringGrid::SetColCount(int count) {
    FModel->SetColCount(count);
}

void TStringGrid::SetRowCount(int count) {
    FModel->SetRowCount(count);
}

const AnsiString& TStringGrid::Cells(int col, int row) const {
    return FModel->Cell(col, row);
}

void TStringGrid::SetCells(int col, int row, AnsiString text) {
    FModel->SetCell(col, row, std::move(text));
}

void TStringGrid::SetColumnTexts(int col, TColumnTexts texts) {
    FModel->SetColumnTexts(col, std::move(texts));
}

void TStringGrid::InsertColumn(int col) {
    FModel->InsertColumn(col);
}

void TStringGrid::DeleteColumn(int col) {
    FModel->DeleteColumn(col);
}

/// The header takes the width along with the model's column.
void TStringGrid::MoveColumn(int from, int to) {
    FModel->MoveColumn(from, to);
}

int TStringGrid::ColWidths(int col) const {
    if (col == 0) {
        return verticalHeader()->maximumWidth() - c_GridLine;
    }
    return std::max(horizontalHeader()->sectionSize(col - 1) - c_GridLine, 0);
}

void TStringGrid::SetColWidths(int col, int width) {
    if (col == 0) {
        verticalHeader()->setFixedWidth(std::max(width, 0) + c_GridLine);
    } else if (col > 0 && col < ColCount()) {
        horizontalHeader()->resizeSection(col - 1, std::max(width, 0) + c_GridLine);
    }
}

int TStringGrid::RowHeight() const {
    return verticalHeader()->defaultSectionSize() - c_GridLine;
}

void TStringGrid::SetRowHeight(int height) {
    verticalHeader()->setDefaultSectionSize(std::max(height, 1) + c_GridLine);
    horizontalHeader()->setMinimumHeight(std::max(height, 1) + c_GridLine);
}

int TStringGrid::Col() const {
    return currentIndex().column() + 1; // none is -1
}

int TStringGrid::Row() const {
    return currentIndex().isValid() ? currentIndex().row() + 1 : std::min(1, RowCount() - 1);
}

void TStringGrid::SetCol(int col) {
    SetCurrentCell(col, Row());
}

void TStringGrid::SetRow(int row) {
    SetCurrentCell(std::max(Col(), 1), row);
}

void TStringGrid::SetCurrentCell(int col, int row) {
    const QModelIndex index = FModel->index(row - 1, col - 1);
    if (!index.isValid()) {
        return;
    }
    setCurrentIndex(index);
    scrollTo(index);
}

QRect TStringGrid::CellRect(int col, int row) const {
    if (col < 0 || row < 0 || col >= ColCount() || row >= RowCount()) {
        return {};
    }
    const QPoint client(frameWidth(), frameWidth());
    const QPoint cells = viewport()->pos() - client;
    const QPoint corner(col == 0 ? 0 : cells.x() + horizontalHeader()->sectionViewportPosition(col - 1),
                        row == 0 ? 0 : cells.y() + verticalHeader()->sectionViewportPosition(row - 1));
    const QSize size(ColWidths(col), row == 0 ? horizontalHeader()->height() - c_GridLine : RowHeight());
    const QRect rect(corner, size);
    const bool isInView = (col == 0 || (rect.right() >= cells.x() && rect.left() <= CellsArea().right())) &&
                          (row == 0 || (rect.bottom() >= cells.y() && rect.top() <= CellsArea().bottom()));
    return isInView ? rect : QRect();
}

QRect TStringGrid::CellsArea() const {
    return viewport()->geometry().translated(-frameWidth(), -frameWidth());
}

void TStringGrid::ScrollToCell(int col, int row) {
    scrollTo(FModel->index(row - 1, col - 1));
}

bool TStringGrid::TabStop() const {
    return focusPolicy() == Qt::TabFocus;
}

/// Without a focus policy for clicks: Qt would apply it to a press on any part of the grid, scroll bars included.
void TStringGrid::SetTabStop(bool stops) {
    setFocusPolicy(stops ? Qt::TabFocus : Qt::NoFocus);
}

void TStringGrid::ScrollByWheel(QWheelEvent& event) {
    wheelEvent(&event);
}

AnsiString TStringGrid::Hint() const {
    return FHint;
}

void TStringGrid::SetHint(const AnsiString& hint) {
    FHint = hint;
}

void TStringGrid::CancelHint() {
    QToolTip::hideText();
}

void TStringGrid::SetPresentation(TCellPresentation presentation) {
    FPresentation = std::move(presentation);
    viewport()->update();
}

TCellLook TStringGrid::Look(int col, int row) const {
    try {
        if (FPresentation) {
            return FPresentation(col, row);
        }
    } catch (...) { // once is enough: every repaint would report it again
        FPresentation = nullptr;
        CallLater(qApp, [error = std::current_exception()] { ReportError(error); });
    }
    return {.Text = Cells(col, row), .Align = Qt::AlignLeft, .Bold = false};
}

/// Typing in the grid does not search for a cell that begins with the letter.
void TStringGrid::keyboardSearch(const QString&) {}

bool TStringGrid::eventFilter(QObject* watched, QEvent* event) {
    const auto* part = static_cast<const QWidget*>(watched);
    switch (event->type()) {
    case QEvent::MouseMove: {
        const QPoint position = static_cast<QMouseEvent*>(event)->position().toPoint();
        const TGridPoint cell = CellAt(part->mapTo(this, position));
        Q_EMIT MouseMoved(cell.Col, cell.Row);
        return false;
    }
    case QEvent::Leave:
        Q_EMIT MouseMoved(-1, -1);
        return false;
    case QEvent::ToolTip:
        ShowHint(static_cast<QHelpEvent*>(event)->globalPos());
        return true;
    case QEvent::ContextMenu: {
        const auto* menu = static_cast<QContextMenuEvent*>(event);
        const TGridPoint cell = CellAt(part->mapTo(this, menu->pos()));
        Q_EMIT ContextPopup(cell.Col, cell.Row, menu->globalPos());
        return true;
    }
    default:
        return QTableView::eventFilter(watched, event);
    }
}

void TStringGrid::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    WantEditor();
}

void TStringGrid::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !indexAt(event->position().toPoint()).isValid()) {
        return;
    }
    FCellPressed = true;
    setFocus(Qt::MouseFocusReason);
    QTableView::mousePressEvent(event);
    WantEditor();
}

void TStringGrid::mouseMoveEvent(QMouseEvent* event) {
    if (FCellPressed) { // else Qt would make the cell current onto which a press beside the cells is dragged
        QTableView::mouseMoveEvent(event);
    }
}

void TStringGrid::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    FCellPressed = FCellPressed && event->button() != Qt::LeftButton;
    const TGridPoint cell = CellAt(viewport()->mapTo(this, event->position().toPoint()));
    Q_EMIT MouseUp(cell.Col, cell.Row);
}

void TStringGrid::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QTableView::keyPressEvent(event);
        return;
    }
    const bool isTold = !(event->modifiers() & (Qt::AltModifier | Qt::MetaModifier));
    event->setAccepted(isTold);
    if (isTold) {
        Q_EMIT EnterPressed(event->modifiers());
    }
}

void TStringGrid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    Q_EMIT TopLeftChanged();
}

void TStringGrid::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    Q_EMIT TopLeftChanged();
}

void TStringGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    WantEditor();
}

void TStringGrid::HandleSectionMoved(int from, int to) {
    if (FMovingBack) {
        return;
    }
    FMovingBack = true;
    horizontalHeader()->moveSection(to - 1, from - 1);
    FMovingBack = false;
    MoveColumn(from, to);
    Q_EMIT ColumnMoved(from, to);
}

void TStringGrid::HandleHeaderRelease(const QPoint& position) {
    Q_EMIT MouseUp(GridNumber(*horizontalHeader(), position.x()), 0);
}

void TStringGrid::WantEditor() {
    if (FEditorRequestQueued) {
        return;
    }
    FEditorRequestQueued = true;
    CallLater(this, [this] {
        FEditorRequestQueued = false;
        if (hasFocus() && currentIndex().isValid()) {
            Q_EMIT EditorWanted(Col(), Row());
        }
    });
}

void TStringGrid::ShowHint(const QPoint& globalPos) {
    if (FHint.empty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(globalPos, PlainHint(FHint), this);
    }
}

TStringGrid::TGridPoint TStringGrid::CellAt(const QPoint& position) const {
    const QPoint inCells = position - viewport()->pos();
    return {GridNumber(*horizontalHeader(), inCells.x()), GridNumber(*verticalHeader(), inCells.y())};
}
