#include "editors/MelvarkEditorDodakEditWin.h"

#include "editors/DodakColumns.h"
#include "editors/DodakPrices.h"
#include "editors/DodakSaving.h"
#include "editors/DodakSources.h"
#include "editwin/model/EditExceptions.h"
#include "host/HostServices.h"
#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "host/LiveData.h"
#include "host/widgets/StringGrid.h"
#include "select/MelvarkEditorSelectWin.h"

#include <array>
#include <functional>
#include <utility>

using namespace melvark;

namespace {

constexpr int c_EditTypeNumber = 0;

EEditBoxCanceled Canceled() {
    return EEditBoxCanceled("Canceled");
}

} // namespace

TDodakEditBox::TDodakEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, const AnsiString& aEditType, int aID,
                             int aDodvID)
    : TDodakEditBox(aOwner, aLibraryManager, OpenDodak(aEditType, aID, aDodvID)) {}

TDodakEditBox::TDodakEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, DodakOpening opening)
    : TEditBox(aOwner, aLibraryManager, c_EditTypeNumber, "DODAK", opening.FillMode, opening.EditType, opening.UserName,
               LoadDefaultColumnsSettings(opening, this)),
      FOpening(std::move(opening)) {
    SetTopButtonPanelVisibility(true);
    SetTitle(LangStr(R"(KORDAN30\MELVARKEDITOR\DODAKAPPTITLE)", {}, "Vložení položek dodacího listu"));
    if (!CheckMasterDodak(FOpening.DodkID)) {
        throw Canceled();
    }
    SetOnSaveData([this] { return SaveData(); });
    FillGrid(FOpening.FillMode);
    DataGrid().ResetModified();
    Constructed();
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
    TLiveStoredProc check("MELVARKEDITORDodakCheckMaster");
    check.ParamByName("a_DODKID").SetAsInteger(aDodkID);
    return check.Exec(false);
}

DocumentColumns TDodakEditBox::Columns() const {
    return {ActiveColumns(), DefaultColumns()};
}

void TDodakEditBox::FillGrid(int aFillMode) {
    static constexpr std::array c_Fills{&TDodakEditBox::FillByOrder, &TDodakEditBox::FillByDeliveryNote,
                                        &TDodakEditBox::FillByTemplate};
    static_assert(c_Fills.size() == c_DodakEditType.size());
    std::invoke(c_Fills.at(static_cast<std::size_t>(aFillMode) - 1), this);
}

void TDodakEditBox::FillByOrder() {
    TSelectBox selection(this, LibraryManager());
    selection.DodakSelectFromObjednavka(FOpening.DodkID, FOpening.DodvID);
    if (selection.ShowModal() == c_ResultOk) {
        FOrderID = selection.GetID();
    }
    if (FOrderID <= c_NullValue) {
        throw Canceled();
    }
    FillGridFromObjednavka();
}

void TDodakEditBox::FillByDeliveryNote() {
    TSelectBox selection(this, LibraryManager());
    selection.DodakSelectFromDodak(FOpening.DodkID, FOpening.DodvID);
    if (selection.ShowModal() == c_ResultOk) {
        FDeliveryNoteID = selection.GetID();
    }
    if (FDeliveryNoteID <= c_NullValue) {
        throw Canceled();
    }
    FillGridFromDodak(selection.GetPrenesMnozstvi(), selection.GetPrenesCeny());
}

void TDodakEditBox::FillByTemplate() {
    FillGridFromSablona(true, true);
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
        .Row = RowToDataGridRow(aRow), .FocusKey = GetVisibleColumn(aCol).Name, .RecalculatesAll = GetPrepocetCen()};
    for (const RecalculatedCell& cell : Recalculate(DataGrid(), Columns(), request, CurrentHost().FormatSettings())) {
        if (const int shownAt = GetColumnByName(cell.Key); shownAt > 0) {
            StringGrid->SetCells(shownAt, aRow, cell.Text);
        }
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
