#pragma once

#include "editwin/model/Column.h"
#include "editwin/model/DataGrid.h"
#include "host/Identifier.h"
#include "host/Types.h"

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <span>
#include <vector>

/// What the file of unsaved work holds, line by line, in UTF-8, each line closed by LF: the document's identifier, the
/// number of rows, the keys of the columns, and the texts of the cells, column by column. Marks of changed cells are
/// not kept.
///
/// A cell is written as it is, save one that would not come back as one line: one that holds a line break, a NUL or a
/// byte that is no UTF-8, or that begins with the marker, a backslash. Such a cell begins with the marker, and its
/// breaks, NULs, backslashes and stray bytes are spelled "\n", "\r", "\0", "\\" and "\xHH".
namespace melvark {

/// The longest line, in bytes, and the most rows that are written or taken: a file that claims more is none of ours.
inline constexpr std::size_t c_LongestAutosaveLine = 1 << 20;
inline constexpr int c_MostAutosaveRows = 1'000'000;

struct AutosaveContent {
    std::int32_t DocumentID = c_NullValue;
    TDataGrid Lines; ///< As wide as the columns; no cell is marked. No rows are read as one empty row.
};

/// The keys of an editor's default columns, each at the place of its data column.
std::vector<AnsiString> AutosaveKeys(std::span<const RColumn> defaultColumns);

/// Throws EInOutError when the lines are too many or too long to be read again; errors of the stream are the stream's.
void WriteAutosave(std::ostream& out, std::int32_t documentId, std::span<const AnsiString> keys,
                   const TDataGrid& lines);

/// Nothing when the stream is not, to the last byte, what WriteAutosave writes for these columns, in whichever order
/// they stood. What its buffer throws passes through.
std::optional<AutosaveContent> ReadAutosave(std::istream& in, std::span<const AnsiString> keys);

} // namespace melvark
