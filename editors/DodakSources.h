#pragma once

#include "editors/DocumentRows.h"
#include "host/Types.h"

class TDataGrid;

/// Where the lines of a delivery note's editor come from, and the procedures that bring them.
namespace melvark {

/// Another delivery note as the source, and what is wanted of it.
struct DeliveryNoteSource {
    int DeliveryNoteID = -1; ///< -1 for none: the template of the latest ones.
    bool WithQuantities = true;
    bool WithPrices = true;
};

/// Fills the store with the lines of the order for the delivery note `dodkId`; each carries its order line's
/// identifier.
void FillFromOrder(TDataGrid& store, const DocumentColumns& columns, int dodkId, int orderId);

/// Fills the store with the lines of another delivery note, or of the template when there is none; they come from no
/// order, so that "DOBSID" stays empty.
void FillFromDeliveryNote(TDataGrid& store, const DocumentColumns& columns, int dodkId,
                          const DeliveryNoteSource& source);

} // namespace melvark
