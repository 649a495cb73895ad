#include "editors/MelvarkEditorDodakEditWin.h"

#include "editors/DocumentOpening.h"
#include "editors/DodakColumns.h"
#include "editors/DodakPrices.h"
#include "editors/DodakSaving.h"
#include "editors/DodakSources.h"
#include "editors/SourceSteps.h"
#include "editwin/CellWriter.h"
#include "host/HostServices.h"
#include "host/LangStr.h"
#include "host/widgets/StringGrid.h"
#include "select/MelvarkEditorSelectWin.h"

#include <functional>
#include <iterator>
#include <utility>

using namespace melvark;

namespace {

constexpr int c_EditTypeNumber = 0;

} // namespace

TDodakEditBox::TDodakEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, const AnsiString& aEditType, int aID,
                             int aDodvID)
    : TDodakEditBox(aOwner, aLibraryManager, OpenDodak(aEditType, aID, aDodvID)) {}

TDodakEditBox::TDodakEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, DodakOpening opening)
    : TDocumentEditBox(aOwner, aLibraryManager, c_EditTypeNumber, "DODAK", opening.FillMode, opening.EditType,
                       opening.UserName, LoadDefaultColumnsSettings(opening, this)),
      FOpening(std::move(opening)) {
    SetTopButtonPanelVisibility(true);
    SetTitle(LangStr(R"(KORDAN30\MELVARKEDITOR\DODAKAPPTITLE)", {}, "Vložení položek dodacího listu"));
    if (!CheckMasterDodak(FOpening.DodkID)) {
        throw Canceled();
    }
    SetOnSaveData([this] { return SaveData(); });
    FillGrid(FOpening.FillMode);
    Filled();
}

TDodakEditBox::~TDodakEditBox() = default;

// The form is not built yet: its address goes into the callbacks, which are not called before it is.
std::vector<RColumn> TDodakEditBox::LoadDefaultColumnsSettings(const DodakOpening& opening, TDodakEditBox* form) {
    return DodakColumns({.LocalVat = opening.LocalVat,
                         .Warehouses = &opening.Lists->Warehouses,
                         .VatRates = &opening.Lists->VatRates,
                         .Recalculate = std::bind_front(&TDodakEditBox::PrepocetCen, form),
                         .CheckDiscount = std::bind_front(&TDodakEditBox::KontrolaSlevy, form)});
}

bool TDodakEditBox::CheckMasterDodak(int aDodkID) {
    return CheckMasterDocument("MELVARKEDITORDodakCheckMaster", "a_DODKID", aDodkID);
}

void TDodakEditBox::FillGrid(int aFillMode) {
    static constexpr SourceStep<TDodakEditBox> c_Ways[] = {
        {&TDodakEditBox::AskForOrder, &TDodakEditBox::FillGridFromObjednavka},
        {&TDodakEditBox::AskForDeliveryNote, &TDodakEditBox::FillFromChosenDeliveryNote},
        {nullptr, &TDodakEditBox::FillFromTemplate},
    };
    static_assert(std::size(c_Ways) == c_DodakEditType.size());
    FillFromSource(*this, c_Ways, aFillMode);
}

void TDodakEditBox::AskForOrder() {
    FOrderID = AskForSource([this](TSelectBox& selection) {
                   selection.DodakSelectFromObjednavka(FOpening.DodkID, FOpening.DodvID);
               }).ID;
}

void TDodakEditBox::AskForDeliveryNote() {
    FChoice = AskForSource(
        [this](TSelectBox& selection) { selection.DodakSelectFromDodak(FOpening.DodkID, FOpening.DodvID); });
    FDeliveryNoteID = FChoice.ID;
}

void TDodakEditBox::FillGridFromObjednavka() {
    FillFromOrder(DataGrid(), Columns(), FOpening.DodkID, FOrderID);
}

void TDodakEditBox::FillGridFromDodak(bool aPrenesMnozstvi, bool aPrenesCeny) {
    FillFromDeliveryNote(
        DataGrid(), Columns(), FOpening.DodkID,
        {.DeliveryNoteID = FDeliveryNoteID, .WithQuantities = aPrenesMnozstvi, .WithPrices = aPrenesCeny});
}

void TDodakEditBox::FillGridFromSablona(bool aPrenesMnozstvi, bool aPrenesCeny) {
    FillFromDeliveryNote(DataGrid(), Columns(), FOpening.DodkID,
                         {.DeliveryNoteID = c_NullValue, .WithQuantities = aPrenesMnozstvi, .WithPrices = aPrenesCeny});
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
    ResetTable();
    return InsertDodakRows(Columns(), DataGrid()) &&
           TakeOverDodakRows({.DodkID = FOpening.DodkID, .SourceDodkID = FDeliveryNoteID, .SourceOrderID = FOrderID});
}
