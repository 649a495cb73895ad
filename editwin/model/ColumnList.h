#pragma once

#include "editwin/model/Column.h"

#include <span>
#include <string_view>
#include <vector>

/// Which columns stand where. An editor keeps two lists: the active columns, in the order of the grid with the hidden
/// ones in between, and the default columns as they were built, never reordered.
///
/// Three numbers count columns and must not be mixed: the *active index* (0-based place in the active list), the *grid
/// column* (1-based place among the shown columns; 0 is the indicator column) and the *data column* (place in the cell
/// store, which no move changes). Names are compared exactly, with regard to case; the first match counts.
namespace melvark {

/// Whether the column has a grid column: the user has not hidden it and it is not of the hidden type.
bool IsShown(const RColumn& column);

/// Whether the column stands in the menu of hidden columns: hidden by the user and not of the hidden type.
bool IsHiddenByUser(const RColumn& column);

/// The width at which the grid shows the column. A stored layout may name any number; the column keeps it until the
/// clerk drags another one.
int ShownWidth(const RColumn& column);

/// How many columns are shown.
int VisibleColumnCount(std::span<const RColumn> columns);

/// The active index of grid column `gridColumn`; -1 for the indicator column and for a column that the grid has not.
int VisibleColumnIndex(std::span<const RColumn> columns, int gridColumn);

/// The grid column of the named column; 0 when there is none of that name or it is not shown.
int ColumnByName(std::span<const RColumn> columns, std::string_view name);

/// The column of that name, or null.
const RColumn* FindByName(std::span<const RColumn> columns, std::string_view name);

/// The column of that data column, or null.
const RColumn* FindByDataColumn(std::span<const RColumn> columns, int dataColumn);

/// The grid columns that show the data column, from left to right: none when it is hidden, more than one when a stored
/// layout binds two columns to the same data.
std::vector<int> GridColumnsOfData(std::span<const RColumn> columns, int dataColumn);

/// Whether the editor knows the name. Asked of the default columns, since a stored setting may have dropped a column
/// from the active ones.
bool IsValidName(std::span<const RColumn> defaults, std::string_view name);

/// The active column of that name; the default one when the active list lacks it; the blank record when both do.
/// The reference holds as long as the lists are not changed.
const RColumn& ColumnSettings(std::span<const RColumn> active, std::span<const RColumn> defaults,
                              std::string_view name);

/// The active column of that data column, or the blank record. The reference holds as long as the list is not changed.
const RColumn& DataColumnSettings(std::span<const RColumn> active, int dataColumn);

/// The user dragged the header of grid column `from` to grid column `to`: its column is taken out and put back at the
/// active index that grid column `to` had before, the columns between move by one. Returns false and moves nothing when
/// either is no shown column.
bool MoveColumn(std::span<RColumn> active, int from, int to);

/// The grid column at which the column at `activeIndex` stands, or will stand when it is shown again: one more than the
/// shown columns before it. Columns of the hidden type do not count, or headers and data would part.
int PlaceOfShownColumn(std::span<const RColumn> active, int activeIndex);

/// The place, counted from 0, at which the menu item of the column at `activeIndex` goes among the items of the columns
/// hidden before: the number of such columns to its left. The very first active column does not take part in the count
/// (in every document it is a key column without an item).
int PlaceOfHiddenItem(std::span<const RColumn> active, int activeIndex);

/// The default columns, bound to the data as the active ones are: each takes the data column at which the active list
/// has its name; a name that is not there keeps the built-in data column.
std::vector<RColumn> DefaultsWithDataOf(std::span<const RColumn> active, std::span<const RColumn> defaults);

} // namespace melvark
