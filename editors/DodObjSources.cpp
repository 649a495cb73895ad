#include "editors/DodObjSources.h"

#include "editwin/model/DataGrid.h"
#include "host/Identifier.h"

#include <initializer_list>

namespace melvark {

namespace {

void SetSource(TLiveStoredProc& lines, int ddobId, std::initializer_list<IdParam> source) {
    lines.ParamByName("a_DDOBIDMASTER").SetAsInteger(ddobId);
    for (const auto& [param, id] : source) {
        SetIdentifier(lines.ParamByName(param), id);
    }
}

void Fill(TDataGrid& store, const DocumentColumns& columns, TLiveStoredProc& lines) {
    lines.Exec(true);
    FillStore(store, columns, lines);
}

} // namespace

void FillFromOrderLines(TDataGrid& store, const DocumentColumns& columns, int ddobId, int sourceId) {
    TLiveStoredProc lines("MELVARKEDITORDodObjGetPolozkyByObjednavka");
    SetSource(lines, ddobId, {{"a_DDOBID", sourceId}});
    Fill(store, columns, lines);
}

void FillFromNoteLines(TDataGrid& store, const DocumentColumns& columns, int ddobId, int dodkId) {
    TLiveStoredProc lines("MELVARKEDITORDodObjGetPolozkyByDodak");
    SetSource(lines, ddobId, {{"a_DODKID", dodkId}});
    Fill(store, columns, lines);
}

void FillFromGroups(TDataGrid& store, const DocumentColumns& columns, int ddobId, const StockGroups& groups) {
    TLiveStoredProc lines("MELVARKEDITORDodObjGetPolozkyBySkupSkladPol");
    SetSource(lines, ddobId, {{"a_SSP1ID", groups[0]}, {"a_SSP2ID", groups[1]}, {"a_SSP3ID", groups[2]}});
    Fill(store, columns, lines);
}

void FillFromPriceList(TDataGrid& store, const DocumentColumns& columns, int ddobId, int dodvId) {
    TLiveStoredProc lines("MELVARKEDITORDodObjGetPolozkyByDodCenik");
    SetSource(lines, ddobId, {{"a_DODVID", dodvId}});
    Fill(store, columns, lines);
}

void FillFromDeliveries(TDataGrid& store, const DocumentColumns& columns, int ddobId, int dodvId, bool withQuantities) {
    TLiveStoredProc lines("MELVARKEDITORDodObjGetPolozkyByDodavky");
    SetSource(lines, ddobId, {{"a_DODVID", dodvId}});
    lines.ParamByName("a_PRENESMNOZSTVI").SetAsBoolean(withQuantities);
    Fill(store, columns, lines);
}

} // namespace melvark
