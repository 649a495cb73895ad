#pragma once

#include "host/Types.h"

#include <span>
#include <utility>
#include <vector>

/// The empty root of the cell store's classes. It has no virtual functions: a cell costs no more than its text.
class TDataObject {};

/// One cell: its text and whether it was changed since the last reset.
class TDataGridCell : public TDataObject {
public:
    /// A cell that is not marked as modified.
    explicit TDataGridCell(AnsiString value);

    /// Takes the value and marks the cell, even when the text is the same as before.
    void SetValue(AnsiString value);
    const AnsiString& GetValue() const& { return FValue; }
    AnsiString GetValue() && { return std::move(FValue); }

    bool Modified = false;

private:
    AnsiString FValue;
};

/// The values of a document's lines behind the grid, addressed by data column and data row, both from 0, with a mark on
/// each cell that the user changed. Values are texts as committed: numbers carry the locale's decimal separator.
///
/// It knows nothing of columns' order or visibility (see RColumn::DataColumn) and never touches the grid. Reading a
/// position that holds no cell or lies outside the counts gives "" and not modified. A write outside the counts is kept
/// at its position, the counts do not grow, and it can be read once they have grown. A negative coordinate of a write
/// throws std::out_of_range.
class TDataGrid : public TDataObject {
public:
    /// Sets the count of rows. Growing changes nothing but the count. Shrinking to n rows empties the rows from n - 1
    /// on, **the last kept row too**, in every column when the columns were never counted. A count is never below 1
    /// once it was set; setting 0 empties every row and leaves one.
    void SetRowCount(int n);
    /// 0 until the rows are first counted.
    int GetRowCount() const { return FRowCount; }
    /// As SetRowCount, for columns.
    void SetColCount(int n);
    int GetColCount() const { return FColCount; }

    /// Writes the value and marks the cell.
    void SetCells(int col, int row, AnsiString value);
    /// The reference holds until the next write.
    const AnsiString& GetCells(int col, int row) const;
    /// Clearing the mark makes no cell; setting it on an empty position makes an empty, marked one.
    void SetModified(int col, int row, bool flag);
    bool GetModified(int col, int row) const;
    /// Writes a value that the program worked out: the mark stays as it was.
    void SetCellWithNoChange(int col, int row, AnsiString value);
    /// Takes the texts as all the cells of the column, from the first row on, none of them marked. An empty text makes
    /// no cell.
    void FillColumn(int col, std::vector<AnsiString> texts);
    /// The texts of the column's counted rows up to its last cell; behind it all are empty. Holds until the next write.
    std::span<const AnsiString> ColumnTexts(int col) const;
    /// Clears the mark of every cell within the counts; a dimension that was never counted has no bound.
    void ResetModified();

    /// Whether the position, inside the counts or outside, was written since it was last emptied.
    bool HasCell(int col, int row) const;

private:
    /// One column, nothing before its first cell, then as long as the counted rows or its last written row. Texts lie
    /// side by side, presence and marks beside them as bits, so that a cell takes the 32 bytes of a short text.
    struct TColumn {
        std::vector<AnsiString> Values;
        std::vector<bool> Present;
        std::vector<bool> Modified;
    };

    bool IsCounted(int col, int row) const { return col < FColCount && row < FRowCount; }
    bool IsMarked(int col, int row) const;
    /// The column, made when it is missing.
    TColumn& Column(int col);
    TColumn& ColumnWithRoom(int col, int row);
    static void PutCell(TColumn& column, int row, TDataGridCell&& cell);
    void EmptyCells(int firstCol, int firstRow);

    std::vector<TColumn> FColumns;
    int FColCount = 0;
    int FRowCount = 0;
};
