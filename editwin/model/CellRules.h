#pragma once

#include "editwin/model/Column.h"

/// Whether a cell may be edited.
namespace melvark {

/// How a cell is reached.
enum class Reach {
    BySelection, ///< Picked with the mouse or by moving the grid's cursor.
    ByTraversal  ///< Arrived at with Enter or Shift+Enter.
};

/// The editor's own rule for the cell; true when no rule is installed.
bool PassesRule(const TIsEditable& rule, int col, int row);

/// Whether an editor opens on the cell at grid (col, row), which belongs to `column`: the column is a normal one, its
/// editability lets it be reached so (any but none by selection, automatic by traversal), and the editor's own rule
/// passes. The rule is asked last.
bool MayOpen(const RColumn& column, Reach reach, const TIsEditable& rule, int col, int row);

} // namespace melvark
