#pragma once

class TDataGrid;

namespace melvark {

/// Which row of the cell store each grid row shows. Grid row 0 is the header and the only fixed row, however many rows
/// follow; below it the store's rows stand in the document's order. A store without rows shows one empty row, store
/// row 0.
///
/// Only this class turns one kind of row number into the other. Grid rows are the picture of the moment: whoever keeps
/// the place of a value keeps the store row.
class RowView {
public:
    /// Grid rows above the first line.
    static constexpr int c_FixedRows = 1;

    /// The store must outlive the view.
    explicit RowView(const TDataGrid& store) : FStore(store) {}

    /// All grid rows, the header included; at least two.
    int GridRowCount() const;
    /// The store row of a grid row; below 0 for the header.
    int StoreRow(int gridRow) const;
    /// The grid row that shows a store row; 0 when none does.
    int GridRow(int storeRow) const;

private:
    const TDataGrid& FStore;
};

} // namespace melvark
