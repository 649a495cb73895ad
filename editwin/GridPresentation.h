#pragma once

#include "editwin/GridEditing.h"
#include "host/widgets/StringGrid.h"

namespace melvark {

class CellWriter;

/// How columns and values appear in the grid: the rebuilding from the active columns and the store, the look of a cell
/// and the header's hints. It changes neither the store nor the columns.
class GridPresentation {
public:
    GridPresentation(GridEditing& editing, CellWriter& writer) : FEditing(editing), FWriter(writer) {}

    /// Gives the grid one column for each shown active one, with caption and width, and all texts of the store. A store
    /// without rows shows one empty row.
    void ApplyColumns();

    /// The look of a data cell: its text in the column's display format, aligned, bold when the user changed it. The
    /// grid cell keeps the plain text.
    TCellLook Look(int col, int row) const;

    /// The mouse is over a grid cell: a column's header takes over the grid's hint, except that one without a hint
    /// leaves the hint of the header before. Anywhere else there is none.
    void ShowHintOf(int col, int row);

private:
    GridEditing& FEditing;
    CellWriter& FWriter;
};

} // namespace melvark
