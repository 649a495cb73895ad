#pragma once

#include "editwin/GridEditing.h"
#include "host/Types.h"

#include <utility>

namespace melvark {

/// The one door for cell values: it writes a value into the store and shows it in every grid column that is bound to
/// its data column. A cell is named by data column and store row, whatever the grid shows of it; a cell that is not
/// shown is only stored. The grid's columns lie over the store's texts: only a text that differs from the stored one is
/// kept in the grid.
///
/// It checks nothing and calls nobody: checks and callbacks belong to whoever writes. The document's filling, which
/// happens before anything is shown, writes to the store alone.
class CellWriter {
public:
    explicit CellWriter(GridEditing& editing) : FEditing(editing) {}
    CellWriter(const CellWriter&) = delete;
    CellWriter& operator=(const CellWriter&) = delete;

    /// A value that the clerk gave: the cell counts as changed from then on.
    void WriteTyped(int dataColumn, int storeRow, const AnsiString& text);
    /// A value that follows from others: the cell counts as changed only when it did before.
    void WriteDerived(int dataColumn, int storeRow, const AnsiString& text);
    /// Shows a text that is not stored: the tidy spelling of a value that the clerk left as it was.
    void Show(int dataColumn, int storeRow, const AnsiString& text);

    /// Puts other lines in the place of all that the store holds, with their marks; ShowAll shows them.
    void Refill(TDataGrid lines) { FEditing.Store = std::move(lines); }

    /// Shows what the store holds of one data column.
    void ShowColumn(int dataColumn);
    /// Gives the grid as many rows as the store and shows all its values. The grid has its columns already.
    void ShowAll();

private:
    void ShowIn(int gridCol, int dataColumn);

    GridEditing& FEditing;
};

} // namespace melvark
