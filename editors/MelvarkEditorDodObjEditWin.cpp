#include "editors/MelvarkEditorDodObjEditWin.h"

#include "editors/DocumentOpening.h"
#include "editors/DodObjColumns.h"
#include "editors/DodObjSaving.h"
#include "editors/SourceSteps.h"
#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "select/MelvarkEditorMultiSelectWin.h"
#include "select/MelvarkEditorSelectWin.h"

#include <iterator>
#include <utility>

using namespace melvark;

namespace {

/// In what an order and an order template differ.
struct DodObjKind {
    int EditTypeNumber;
    const char* FirstNamePart;
    const char* TitleKey;
    const char* Title;
};

constexpr DodObjKind c_Order{10, "DODOBJ", R"(KORDAN30\MELVARKEDITOR\OBJEDNAVKYZBOZIAPPTITLE)",
                             "Vložení položek do objednávky zboží"};
constexpr DodObjKind c_Template{20, "DODOBJVZOR", R"(KORDAN30\MELVARKEDITOR\VZOROBJEDNAVKYZBOZIAPPTITLE)",
                                "Vložení položek do vzorové objednávky zboží"};

const DodObjKind& KindOf(const DodObjOpening& opening) {
    return opening.Document.IsTemplate ? c_Template : c_Order;
}

} // namespace

TDodObjEditBox::TDodObjEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, bool aIsTemplate,
                               const AnsiString& aSourceKind, int aID, int aSkldID, int aDodvID,
                               const AnsiString& aSklad, const AnsiString& aDodavatel, TDateTime aMoment)
    : TDodObjEditBox(aOwner, aLibraryManager,
                     OpenDodObj({.IsTemplate = aIsTemplate,
                                 .SourceKind = aSourceKind,
                                 .DdobID = aID,
                                 .SkldID = aSkldID,
                                 .DodvID = aDodvID,
                                 .Sklad = aSklad,
                                 .Dodavatel = aDodavatel,
                                 .Moment = aMoment})) {}

TDodObjEditBox::TDodObjEditBox(TComponent* aOwner, TLibraryManager* aLibraryManager, DodObjOpening opening)
    : TDocumentEditBox(aOwner, aLibraryManager, KindOf(opening).EditTypeNumber, KindOf(opening).FirstNamePart,
                       opening.SourceNumber, opening.Document.SourceKind, opening.UserName,
                       LoadDefaultColumnsSettings(opening)),
      FOpening(std::move(opening)) {
    SetTopButtonPanelVisibility(false);
    SetTitle(LangStr(KindOf(FOpening).TitleKey, {}, KindOf(FOpening).Title));
    if (!CheckMaster()) {
        throw Canceled();
    }
    SetOnSaveData([this] { return SaveData(); });
    SetOnIsEditable([this](int col, int row) { return IsEditable(col, row); });
    FillGrid(FOpening.SourceNumber, Document().DodvID);
    Filled();
}

TDodObjEditBox::~TDodObjEditBox() = default;

std::vector<RColumn> TDodObjEditBox::LoadDefaultColumnsSettings(const DodObjOpening& opening) {
    return DodObjColumns({.Warehouses = &opening.Lists->Warehouses, .Suppliers = &opening.Lists->Suppliers});
}

bool TDodObjEditBox::CheckMaster() const {
    return CheckMasterDocument("MELVARKEDITORDodObjCheckMaster", "a_DDOBID", Document().DdobID);
}

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
    static_assert(std::size(c_Ways) == c_DodObjEditType.size());
    FSupplier.ID = aDodvID;
    FillFromSource(*this, c_Ways, aSourceKind);
}

void TDodObjEditBox::AskForOrder() {
    FOrderID = AskForSource([this](TSelectBox& selection) {
                   selection.DodObjSelectFromObjednavka(Document().DdobID, Document().SkldID, Document().DodvID);
               }).ID;
}

void TDodObjEditBox::AskForTemplate() {
    FTemplateID = AskForSource([this](TSelectBox& selection) {
                      selection.DodObjSelectFromObjednavkaVzor(Document().DdobID, Document().SkldID, Document().DodvID);
                  }).ID;
}

void TDodObjEditBox::AskForDeliveryNote() {
    FDeliveryNoteID = AskForSource([this](TSelectBox& selection) {
                          selection.DodObjSelectFromDodak(Document().DdobID, Document().SkldID, Document().DodvID);
                      }).ID;
}

// Only the modal result tells a cancel: a level, even every level, may stay without a group.
void TDodObjEditBox::AskForGroups() {
    TMultiSelectBox selection(this, LibraryManager());
    selection.DodObjSelectSkupSkladPol(Document().DdobID);
    if (selection.ShowModal() != c_ResultOk) {
        throw Canceled();
    }
    FGroupIDs = {selection.GetID1(), selection.GetID2(), selection.GetID3()};
}

void TDodObjEditBox::AskForPriceList() {
    if (FSupplier.ID > 0) {
        return;
    }
    FSupplier = AskForSource(
        [this](TSelectBox& selection) { selection.DodObjSelectFromDodCenik(Document().DdobID, Document().Moment); });
}

void TDodObjEditBox::AskForDeliveries() {
    FSupplier = AskForSource([this](TSelectBox& selection) {
        selection.DodObjSelectFromDodavky(Document().DdobID, Document().Dodavatel, Document().Moment);
    });
}

void TDodObjEditBox::FillGridFromObjednavka(int aOrderID) {
    FillFromOrderLines(DataGrid(), Columns(), Document().DdobID, aOrderID);
}

void TDodObjEditBox::FillGridFromSablona() {
    FillFromOrderLines(DataGrid(), Columns(), Document().DdobID, c_NullValue);
}

void TDodObjEditBox::FillGridFromDodak(int aDeliveryNoteID) {
    FillFromNoteLines(DataGrid(), Columns(), Document().DdobID, aDeliveryNoteID);
}

void TDodObjEditBox::FillGridFromSkupSkladPol(int aGroup1ID, int aGroup2ID, int aGroup3ID) {
    FillFromGroups(DataGrid(), Columns(), Document().DdobID, {aGroup1ID, aGroup2ID, aGroup3ID});
}

void TDodObjEditBox::FillGridFromDodCenik(int aSupplierID) {
    FillFromPriceList(DataGrid(), Columns(), Document().DdobID, aSupplierID);
}

void TDodObjEditBox::FillGridFromDodavky(int aSupplierID, bool aPrenesMnozstvi) {
    FillFromDeliveries(DataGrid(), Columns(), Document().DdobID, aSupplierID, aPrenesMnozstvi);
}

bool TDodObjEditBox::SaveData() {
    ResetTable();
    return InsertDodObjRows(Columns(), DataGrid()) && TakeOverDodObjRows({.DdobID = Document().DdobID,
                                                                          .SourceOrderID = FOrderID,
                                                                          .SourceTemplateID = FTemplateID,
                                                                          .SourceDodkID = FDeliveryNoteID});
}
