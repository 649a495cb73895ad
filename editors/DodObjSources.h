#pragma once

#include "editors/DocumentRows.h"

#include <array>

class TDataGrid;

/// The procedures that bring the lines of a supplier order's or order template's editor. `ddobId` is the document that
/// is edited.
namespace melvark {

/// The chosen stock groups of the three levels, -1 for a level that restricts nothing.
using StockGroups = std::array<int, 3>;

/// The lines of another order or template, or of the latest orders when `sourceId` is -1.
void FillFromOrderLines(TDataGrid& store, const DocumentColumns& columns, int ddobId, int sourceId);

void FillFromNoteLines(TDataGrid& store, const DocumentColumns& columns, int ddobId, int dodkId);

void FillFromGroups(TDataGrid& store, const DocumentColumns& columns, int ddobId, const StockGroups& groups);

/// What the supplier lists.
void FillFromPriceList(TDataGrid& store, const DocumentColumns& columns, int ddobId, int dodvId);

/// What the supplier delivered lately.
void FillFromDeliveries(TDataGrid& store, const DocumentColumns& columns, int ddobId, int dodvId, bool withQuantities);

} // namespace melvark
