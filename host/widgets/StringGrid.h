#pragma once

/// \file
/// The framework's string grid.

#include "host/Types.h"
#include "host/widgets/StringGridTexts.h"
#include "host/widgets/Vocabulary.h"

#include <QTableView>

#include <functional>

class TStringGridModel;

/// How one data cell looks: the text shown (which may differ from the cell's text), its place and weight.
struct TCellLook {
    AnsiString Text;                         ///< One line, shown letter for letter.
    Qt::AlignmentFlag Align = Qt::AlignLeft; ///< AlignLeft, AlignHCenter or AlignRight.
    bool Bold = false;                       ///< Whether the letters are bold.
};

/// Gives the look of the data cell at a grid column and row (both at least 1). Called while painting: it reads, and
/// changes nothing.
using TCellPresentation = std::function<TCellLook(int col, int row)>;

/// The framework's string grid: a table of texts in grid coordinates, where row 0 is the fixed header row and column 0
/// the fixed, narrow indicator column, which stay in place when the cells scroll. Columns are sized and moved with the
/// mouse on the header.
///
/// It has no editing of its own: it asks for an editor with EditorWanted, and whoever owns the grid lays a control over
/// CellRect. Painting never asks. All cells have the same background; the current cell of a focused grid has a thin
/// frame. Fewer columns than 2 or fewer rows than 2 leave only the fixed ones.
///
/// Of the mouse, only a press of the left button on a cell gives it the focus. Header, indicator, scroll bars and the
/// area beside the cells leave the focus where it is, and with it the control that lies over a cell.
///
/// Set the counts first, then texts, widths and the presentation.
class TStringGrid : public QTableView {
    Q_OBJECT

public:
    /// Width of the border around the client area in which CellRect counts, in pixels.
    static constexpr int c_BorderWidth = 2;
    /// The header row is the one fixed row, however many rows there are.
    static constexpr int c_FixedRows = 1;

    /// One column and one row, both fixed: it shows nothing yet.
    explicit TStringGrid(QWidget* parent);
    ~TStringGrid() override;

    /// How many columns there are, the fixed one included.
    int ColCount() const;
    /// How many rows there are, the fixed one included.
    int RowCount() const;
    /// Columns come empty and go at the right; one stays at least.
    void SetColCount(int count);
    /// Rows come empty and go at the end; one stays at least.
    void SetRowCount(int count);

    /// The text of a cell, header cells included; empty outside the counts, where writing has no effect. The reference
    /// holds until the cell's text changes.
    const AnsiString& Cells(int col, int row) const;
    /// Writes a cell's text over what lies underneath.
    void SetCells(int col, int row, AnsiString text);
    /// The column's cells show these texts, which stay where they are and may change there, each until another text is
    /// written into its cell. What was written before is gone.
    void SetColumnTexts(int col, TColumnTexts texts);

    /// An empty column comes to stand at `col`, which counts from 1. Like the two below it shifts whole columns with
    /// their texts and widths, and tells nobody.
    void InsertColumn(int col);
    /// Takes column `col` out.
    void DeleteColumn(int col);
    /// Column `from` comes to stand at `to`.
    void MoveColumn(int from, int to);

    /// A column's inner width in pixels, without the grid line.
    int ColWidths(int col) const;
    /// Sets it; 0 is the narrowest. The owner gets TopLeftChanged.
    void SetColWidths(int col, int width);
    /// The inner height of every row in pixels, without the grid line.
    int RowHeight() const;
    /// Sets it; 1 is the lowest.
    void SetRowHeight(int height);

    /// The current cell's column; 0 before a cell was current.
    int Col() const;
    /// The current cell's row; the first data row before a cell was current.
    int Row() const;
    /// As SetCurrentCell in the current row.
    void SetCol(int col);
    /// As SetCurrentCell in the current column.
    void SetRow(int row);
    /// Makes a data cell current and scrolls it into view; other coordinates have no effect.
    void SetCurrentCell(int col, int row);

    /// The inner rectangle of a cell (header and indicator cells included) in the grid's client area: a control whose
    /// left is grid left + rect.left() + c_BorderWidth, and top likewise, covers it exactly. Whole also when the cell
    /// is partly scrolled out; null when nothing of it is in view.
    QRect CellRect(int col, int row) const;
    /// The part of the client area in which data cells show.
    QRect CellsArea() const;
    /// Scrolls a data cell into view without making it current.
    void ScrollToCell(int col, int row);

    /// Whether Tab leads to the grid.
    bool TabStop() const;
    /// True at first. The mouse gives the focus either way.
    void SetTabStop(bool stops);

    /// Scrolls as if the wheel had been turned over the cells.
    void ScrollByWheel(QWheelEvent& event);

    /// The hint shown when the mouse rests on the grid, headers included. Plain text.
    AnsiString Hint() const;
    /// None when it is empty.
    void SetHint(const AnsiString& hint);
    /// Takes a hint on the screen away.
    void CancelHint();

    /// Without one, a cell shows its text at the left, not bold. One that throws is removed and its error reported.
    void SetPresentation(TCellPresentation presentation);
    /// What the presentation says of a data cell, or the cell's text without one.
    TCellLook Look(int col, int row) const;

    void keyboardSearch(const QString& search) override;

Q_SIGNALS:
    /// The user dragged the header of column `from` to where `to` stood. The grid has moved texts and width; the owner
    /// follows with what it keeps by column.
    void ColumnMoved(int from, int to);
    /// Cells stand elsewhere: the grid was scrolled or resized, or a column's width changed.
    void TopLeftChanged();
    /// The grid has the focus and its current cell changed, was clicked, or the focus just came. Sent from the event
    /// loop, never from within the cause, and only when the focus is still there.
    void EditorWanted(int col, int row);
    /// A mouse button was released. `row` is 0 for the header, also when a press there ended elsewhere (a drag); -1 for
    /// a coordinate outside the cells.
    void MouseUp(int col, int row);
    /// The mouse moved over a cell; -1 for a coordinate outside the cells.
    void MouseMoved(int col, int row);
    /// A context menu was asked for at a cell; (0, 0) is the header of the indicator column.
    void ContextPopup(int col, int row, const QPoint& globalPos);
    /// Enter was pressed without Alt; the grid itself does nothing with it.
    void EnterPressed(Qt::KeyboardModifiers modifiers);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    struct TGridPoint {
        int Col;
        int Row;
    };

    void SetUpHeaders();
    void WatchMouse();
    void HandleSectionMoved(int from, int to);
    void HandleHeaderRelease(const QPoint& position);
    void WantEditor();
    void ShowHint(const QPoint& globalPos);
    /// The cell at a position in the grid widget's own coordinates.
    TGridPoint CellAt(const QPoint& position) const;

    TStringGridModel* FModel;
    mutable TCellPresentation FPresentation;
    AnsiString FHint;
    bool FCellPressed = false; ///< The left button went down on a cell and is not up yet.
    bool FMovingBack = false;
    bool FEditorRequestQueued = false;
};
