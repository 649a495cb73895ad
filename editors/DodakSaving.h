#pragma once

#include "editors/DocumentRows.h"
#include "host/Identifier.h"

#include <span>

class TDataGrid;

/// How a delivery note's lines are stored: each row is staged in the database, then one closing call takes them over.
/// Nothing is checked here; the database refuses what does not fit, and the refusal propagates.
namespace melvark {

/// The parameters of a row insert, in the order set. Their names shorten what the column keys spell out: "SL" is after
/// the discount, nothing is before it.
std::span<const RowParam> DodakRowParams();

/// The documents that a save names; -1 for a source that was not chosen.
struct DodakSaveTarget {
    int DodkID = c_NullValue;
    int SourceDodkID = c_NullValue;
    int SourceOrderID = c_NullValue;
};

/// Stages every row of the store; the database's row store was emptied before. False when a row reports failure.
bool InsertDodakRows(const DocumentColumns& columns, const TDataGrid& store);

/// Takes the staged rows over into the delivery note. False when the call reports failure.
bool TakeOverDodakRows(const DodakSaveTarget& target);

} // namespace melvark
