#include "editors/MelvarkEditorDodObjEditWin.h"

#include "editors/DodObjTables.h"
#include "editors/SourceSteps.h"
#include "host/LibraryManager.h"
#include "select/MelvarkEditorMultiSelectWin.h"
#include "select/MelvarkEditorSelectWin.h"

using namespace melvark;

EDodObjEditBox::~EDodObjEditBox() = default;

TDodObjEditBox::TDodObjEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, bool aIsTemplate,
                               const AnsiString& aSourceKind, int aID, int aSkldID, int aDodvID,
                               const AnsiString& aSklad, const AnsiString& aDodavatel, TDateTime aMoment)
    : TDocumentEditBox(aOwner, aLibraryManager, aIsTemplate ? c_TemplateKind : c_OrderKind,
                       OpenDocument<EDodObjEditBox>(c_DodObjOpening, aSourceKind, aID)),
      FDocument{.SkldID = aSkldID, .DodvID = aDodvID, .Sklad = aSklad, .Dodavatel = aDodavatel, .Moment = aMoment} {
    Begin(CheckMaster(), [this] { return SaveData(); });
    SetOnIsEditable([this](int col, int row) { return IsEditable(col, row); });
    FillGrid(SourceNumber(), FDocument.DodvID);
    Filled();
}

TDodObjEditBox::~TDodObjEditBox() = default;

bool TDodObjEditBox::IsEditable(int aCol, int aRow) const {
    return HasItsUnit(Columns(), DataGrid(), GetVisibleColumn(aCol).Name, RowToDataGridRow(aRow));
}

void TDodObjEditBox::FillGrid(int aSourceKind, int aDodvID) {
    static constexpr SourceStep<TDodObjEditBox> c_Ways[] = {
        {&TDodObjEditBox::AskForOrder, &TDodObjEditBox::FillFromChosenOrder},
        {&TDodObjEditBox::AskForTemplate, &TDodObjEditBox::FillFromChosenTemplate},
        {nullptr, &TDodObjEditBox::FillGridFromSablona},
        {&TDodObjEditBox::AskForDeliveryNote, &TDodObjEditBox::FillFromChosenDeliveryNote},
        {&TDodObjEditBox::AskForGroups, &TDodObjEditBox::FillFromChosenGroups},
        {&TDodObjEditBox::AskForPriceList, &TDodObjEditBox::FillFromChosenPriceList},
        {&TDodObjEditBox::AskForDeliveries, &TDodObjEditBox::FillFromChosenDeliveries},
    };
    FChosen = {};
    FChosen.Supplier.ID = aDodvID;
    FillFromSource<c_DodObjEditType>(*this, c_Ways, aSourceKind);
}

int TDodObjEditBox::AskForDocument(void (TSelectBox::*setUp)(int, int, int)) {
    return AskForSource(setUp, DocumentID(), FDocument.SkldID, FDocument.DodvID).ID;
}

void TDodObjEditBox::AskForOrder() {
    FChosen.OrderID = AskForDocument(&TSelectBox::DodObjSelectFromObjednavka);
}

void TDodObjEditBox::AskForTemplate() {
    FChosen.TemplateID = AskForDocument(&TSelectBox::DodObjSelectFromObjednavkaVzor);
}

void TDodObjEditBox::AskForDeliveryNote() {
    FChosen.DeliveryNoteID = AskForDocument(&TSelectBox::DodObjSelectFromDodak);
}

// Only the modal result tells a cancel: a level, even every level, may stay without a group.
void TDodObjEditBox::AskForGroups() {
    TMultiSelectBox selection(this, LibraryManager());
    selection.DodObjSelectSkupSkladPol(DocumentID());
    if (selection.ShowModal() != c_ResultOk) {
        throw Canceled();
    }
    FChosen.GroupIDs = {selection.GetID1(), selection.GetID2(), selection.GetID3()};
}

void TDodObjEditBox::AskForPriceList() {
    if (FChosen.Supplier.ID <= 0) {
        FChosen.Supplier = AskForSource(&TSelectBox::DodObjSelectFromDodCenik, DocumentID(), FDocument.Moment);
    }
}

void TDodObjEditBox::AskForDeliveries() {
    FChosen.Supplier =
        AskForSource(&TSelectBox::DodObjSelectFromDodavky, DocumentID(), FDocument.Dodavatel, FDocument.Moment);
}

void TDodObjEditBox::FillGridFromObjednavka(int aOrderID) {
    FillLines("MELVARKEDITORDodObjGetPolozkyByObjednavka", {{"a_DDOBIDMASTER", DocumentID()}, {"a_DDOBID", aOrderID}});
}

// The template of the latest orders is an order of none.
void TDodObjEditBox::FillGridFromSablona() {
    FillGridFromObjednavka(c_NullValue);
}

void TDodObjEditBox::FillGridFromDodak(int aDeliveryNoteID) {
    FillLines("MELVARKEDITORDodObjGetPolozkyByDodak",
              {{"a_DDOBIDMASTER", DocumentID()}, {"a_DODKID", aDeliveryNoteID}});
}

void TDodObjEditBox::FillGridFromSkupSkladPol(int aGroup1ID, int aGroup2ID, int aGroup3ID) {
    FillLines(
        "MELVARKEDITORDodObjGetPolozkyBySkupSkladPol",
        {{"a_DDOBIDMASTER", DocumentID()}, {"a_SSP1ID", aGroup1ID}, {"a_SSP2ID", aGroup2ID}, {"a_SSP3ID", aGroup3ID}});
}

void TDodObjEditBox::FillGridFromDodCenik(int aSupplierID) {
    FillLines("MELVARKEDITORDodObjGetPolozkyByDodCenik", {{"a_DDOBIDMASTER", DocumentID()}, {"a_DODVID", aSupplierID}});
}

void TDodObjEditBox::FillGridFromDodavky(int aSupplierID, bool aPrenesMnozstvi) {
    FillLines("MELVARKEDITORDodObjGetPolozkyByDodavky",
              {{"a_DDOBIDMASTER", DocumentID()}, {"a_DODVID", aSupplierID}, {"a_PRENESMNOZSTVI", aPrenesMnozstvi}});
}

bool TDodObjEditBox::SaveData() {
    return SaveLines({{"a_DDOBID_ZDROJ", FChosen.OrderID},
                      {"a_DDOBIDVZOR_ZDROJ", FChosen.TemplateID},
                      {"a_DODKID_ZDROJ", FChosen.DeliveryNoteID}});
}
