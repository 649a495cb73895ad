#pragma once

#include "editors/DocumentRows.h"
#include "host/Identifier.h"

class TDataGrid;

/// How the lines of a supplier order or order template are stored: each row is staged in the database, then one closing
/// call takes them over, which may split them by supplier. Nothing is checked here; refusals propagate.
namespace melvark {

/// The documents that a save names; -1 for a source that was not chosen.
struct DodObjSaveTarget {
    int DdobID = c_NullValue;
    int SourceOrderID = c_NullValue;
    int SourceTemplateID = c_NullValue;
    int SourceDodkID = c_NullValue;
};

/// Stages every row of the store; the database's row store was emptied before. False when a row reports failure.
bool InsertDodObjRows(const DocumentColumns& columns, const TDataGrid& store);

/// Takes the staged rows over into the document. False when the call reports failure.
bool TakeOverDodObjRows(const DodObjSaveTarget& target);

} // namespace melvark
