#pragma once

#include "editwin/model/Column.h"

#include <span>
#include <vector>

/// A shown, automatically editable text column.
RColumn shownColumn(AnsiString name, int dataColumn);
/// The same, hidden by the user.
RColumn hiddenColumn(AnsiString name, int dataColumn);
/// The same, of the hidden type; `visible` shall make no difference.
RColumn keyColumn(AnsiString name, int dataColumn, bool visible = false);

/// A whole list at a glance, "KEY# A (B) C": # marks the hidden type, parentheses a column hidden by the user.
AnsiString layoutOf(std::span<const RColumn> columns);
/// The data columns of a list, "0 3 1".
AnsiString dataColumnsOf(std::span<const RColumn> columns);
