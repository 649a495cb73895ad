#pragma once

#include "editors/DocumentRows.h"
#include "host/FormatSettings.h"
#include "host/Types.h"

#include <optional>
#include <string_view>
#include <vector>

class TDataGrid;

/// The prices of a delivery note's line. Not a price is worked out here: the database gets the row, the cells that the
/// clerk changed and the switch, and gives the whole row back.
namespace melvark {

/// The keys of the row's cells that take part and are marked as modified, each closed by ";", in the order in which the
/// cells are sent and read back.
AnsiString ChangedCells(const DocumentColumns& columns, const TDataGrid& store, int row);

/// A cell's number, written with point or comma; nothing for a blank text. Throws EConvertError, whose message names
/// the text in the user's language, for a text that is no number (needs a current host).
std::optional<double> CellNumber(std::string_view text, const TFormatSettings& settings);

struct RecalculationRequest {
    int Row = 0;                 ///< Store row.
    AnsiString FocusKey;         ///< Key of the column that was edited.
    bool RecalculatesAll = true; ///< The form's switch: whether the database may derive the other cells.
};

/// One cell that a recalculation brought back.
struct RecalculatedCell {
    int DataColumn = -1;
    AnsiString Text;
};

/// Has the database recalculate the row. Returns what it brings back, in order, to be written as derived values: the
/// clerk did not fix them. Throws EConvertError before the database is asked when a cell is no number, and
/// EDatabaseError.
std::vector<RecalculatedCell> Recalculate(const TDataGrid& store, const DocumentColumns& columns,
                                          const RecalculationRequest& request, const TFormatSettings& settings);

/// Whether the text is a discount: empty, or a number from 0 to 100, both included. Throws EConvertError for a text
/// that is no number in the locale's writing.
bool IsDiscount(std::string_view text, const TFormatSettings& settings);

} // namespace melvark
