#include "editors/DodakSources.h"

#include "editwin/model/DataGrid.h"
#include "host/Identifier.h"

namespace melvark {

void FillFromOrder(TDataGrid& store, const DocumentColumns& columns, int dodkId, int orderId) {
    TLiveStoredProc lines("MELVARKEDITORDodakGetPolozkyByObjednavka");
    lines.ParamByName("a_DODKID").SetAsInteger(dodkId);
    lines.ParamByName("a_DDOBID").SetAsInteger(orderId);
    lines.Exec(true);
    FillStore(store, columns, lines);
}

void FillFromDeliveryNote(TDataGrid& store, const DocumentColumns& columns, int dodkId,
                          const DeliveryNoteSource& source) {
    TLiveStoredProc lines("MELVARKEDITORDodakGetPolozkyByDodak");
    SetIdentifier(lines.ParamByName("a_DODKIDMASTER"), source.DeliveryNoteID);
    lines.ParamByName("a_DODKID").SetAsInteger(dodkId);
    lines.ParamByName("a_PRENESMNOZSTVI").SetAsBoolean(source.WithQuantities);
    lines.ParamByName("a_PRENESCENY").SetAsBoolean(source.WithPrices);
    lines.Exec(true);
    FillStore(store, columns, lines, "DOBSID");
}

} // namespace melvark
