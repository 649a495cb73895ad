#pragma once

#include "editwin/model/Column.h"

#include <span>
#include <vector>

/// Six columns that differ in everything that a layout can tell of: alignments, editabilities, types, widths, one
/// hidden by the user, one of the hidden type.
std::vector<RColumn> columnsOfEveryKind();
/// The columns, bound to other data than they were built with, in the opposite order.
std::vector<RColumn> reboundColumns(std::span<const RColumn> columns);

/// Everything that a document tells of the columns, one line each.
AnsiString shapesOf(std::span<const RColumn> columns);

/// What no document may bring about, in words; nothing for a layout that the editor can work with: as many columns as
/// were built, each of them there at most once, only the one placed first perhaps twice; states that exist; the rest of
/// a column as built; the data as the layout before was bound to them.
AnsiString faultOfLayout(std::span<const RColumn> columns, std::span<const RColumn> previous,
                         std::span<const RColumn> defaults);
