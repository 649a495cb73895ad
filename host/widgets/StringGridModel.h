#pragma once

#include "host/Types.h"
#include "host/widgets/StringGridTexts.h"

#include <QAbstractTableModel>

#include <vector>

/// The texts of a string grid, kept by column so that whole columns come, go and move without touching the cells of
/// the others. Methods with "Grid" coordinates count the header row and the indicator column as 0; to Qt's
/// views the model shows the cells without them, the header row as horizontal header.
///
/// It knows nothing of editing or presentation.
class TStringGridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit TStringGridModel(QObject* parent = nullptr);

    /// Grid columns and rows, fixed ones included; never under 1.
    int ColCount() const { return static_cast<int>(FColumns.size()); }
    int RowCount() const { return FRowCount; }
    /// Columns and rows come empty and go at the end.
    void SetColCount(int count);
    void SetRowCount(int count);

    /// The text of a grid cell, empty outside the counts.
    const AnsiString& Cell(int col, int row) const;
    /// Outside the counts nothing happens.
    void SetCell(int col, int row, AnsiString text);
    /// The cells below the header show what lies underneath; texts that were written there are gone.
    void SetColumnTexts(int col, TColumnTexts texts);

    /// An empty column comes to stand at grid column `col` (1 to ColCount()).
    void InsertColumn(int col);
    /// Takes grid column `col` (1 to ColCount() - 1) out.
    void DeleteColumn(int col);
    /// Takes grid column `from` out and puts it in so that it stands at `to`; both at least 1.
    void MoveColumn(int from, int to);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    bool Holds(int col, int row) const;

    std::vector<melvark::StringGridTexts> FColumns; ///< By grid column.
    int FRowCount = 1;
};
