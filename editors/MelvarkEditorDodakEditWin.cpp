#include "editors/MelvarkEditorDodakEditWin.h"

#include "editors/DodakPrices.h"
#include "editors/DodakTables.h"
#include "editors/SourceSteps.h"
#include "editwin/CellWriter.h"
#include "host/HostServices.h"
#include "host/LangStr.h"
#include "host/widgets/StringGrid.h"
#include "select/MelvarkEditorSelectWin.h"

#include <functional>

using namespace melvark;

EDodakEditBox::~EDodakEditBox() = default;

// The form is not built yet: its address goes into the callbacks, which are not called before it is.
TDodakEditBox::TDodakEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, const AnsiString& aEditType, int aID,
                             int aDodvID)
    : TDocumentEditBox(
          aOwner, aLibraryManager, c_DodakKind,
          OpenDocument<EDodakEditBox>(c_DodakOpening, aEditType, aID,
                                      {.Recalculate = std::bind_front(&TDodakEditBox::PrepocetCen, this),
                                       .CheckDiscount = std::bind_front(&TDodakEditBox::KontrolaSlevy, this)})),
      FDodvID(aDodvID) {
    Begin(CheckMasterDodak(DocumentID()), [this] { return SaveData(); });
    FillGrid(SourceNumber());
    Filled();
}

TDodakEditBox::~TDodakEditBox() = default;

void TDodakEditBox::FillGrid(int aFillMode) {
    static constexpr SourceStep<TDodakEditBox> c_Ways[] = {
        {&TDodakEditBox::AskForOrder, &TDodakEditBox::FillGridFromObjednavka},
        {&TDodakEditBox::AskForDeliveryNote, &TDodakEditBox::FillFromChosenDeliveryNote},
        {nullptr, &TDodakEditBox::FillFromTemplate},
    };
    FChosen = {};
    FillFromSource<c_DodakEditType>(*this, c_Ways, aFillMode);
}

void TDodakEditBox::AskForOrder() {
    FChosen.OrderID = AskForSource(&TSelectBox::DodakSelectFromObjednavka, DocumentID(), FDodvID).ID;
}

void TDodakEditBox::AskForDeliveryNote() {
    FChosen.Note = AskForSource(&TSelectBox::DodakSelectFromDodak, DocumentID(), FDodvID);
}

void TDodakEditBox::FillGridFromObjednavka() {
    FillLines("MELVARKEDITORDodakGetPolozkyByObjednavka", {{"a_DODKID", DocumentID()}, {"a_DDOBID", FChosen.OrderID}});
}

// What does not come from an order has no order line.
void TDodakEditBox::FillGridFromDodak(bool aPrenesMnozstvi, bool aPrenesCeny) {
    FillLines("MELVARKEDITORDodakGetPolozkyByDodak",
              {{"a_DODKIDMASTER", FChosen.Note.ID},
               {"a_DODKID", DocumentID()},
               {"a_PRENESMNOZSTVI", aPrenesMnozstvi},
               {"a_PRENESCENY", aPrenesCeny}},
              "DOBSID");
}

// The template is a delivery note of none.
void TDodakEditBox::FillGridFromSablona(bool aPrenesMnozstvi, bool aPrenesCeny) {
    FillGridFromDodak(aPrenesMnozstvi, aPrenesCeny);
}

bool TDodakEditBox::PrepocetCen(int aCol, int aRow, const AnsiString&) {
    const RecalculationRequest request{
        .Row = RowToDataGridRow(aRow), .FocusKey = CallbackKey(aCol), .RecalculatesAll = GetPrepocetCen()};
    for (const RecalculatedCell& cell : Recalculate(DataGrid(), Columns(), request, CurrentHost().FormatSettings())) {
        Cells().WriteDerived(cell.DataColumn, request.Row, cell.Text);
    }
    return true;
}

bool TDodakEditBox::KontrolaSlevy(int, int, const AnsiString& aValue) {
    if (IsDiscount(aValue, CurrentHost().FormatSettings())) {
        return true;
    }
    ShowErrorBox(LangStr(R"(KORDAN30\MELVARKEDITOR\INVALIDDISCOUNTVALUE)", {}, "Neplatná hodnota slevy"));
    return false;
}

bool TDodakEditBox::SaveData() {
    return SaveLines({{"a_DODKID_ZDROJ", FChosen.Note.ID}, {"a_DDOBID_ZDROJ", FChosen.OrderID}});
}
