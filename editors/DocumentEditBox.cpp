#include "editors/DocumentEditBox.h"

#include "editors/DocumentOpening.h"
#include "editwin/model/DataGrid.h"
#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "select/MelvarkEditorSelectWin.h"

using namespace melvark;

TDocumentEditBox::TDocumentEditBox(TComponent* owner, TLibraryManager* libraryManager, const DocumentKind& kind,
                                   const DocumentOpening& opening, std::span<const RColumn> columns)
    : TEditBox(owner, libraryManager, kind.EditTypeNumber, kind.FirstNamePart, opening.SourceNumber, opening.EditType,
               opening.UserName, columns),
      FDocumentKind(kind),
      FDocumentID(opening.DocumentID) {
    SetTopButtonPanelVisibility(kind.HasPrices);
    SetTitle(LangStr(kind.TitleKey, {}, kind.Title));
}

TDocumentEditBox::~TDocumentEditBox() = default;

bool TDocumentEditBox::CheckDocument(int id) const {
    return CheckMasterDocument(FDocumentKind.CheckProcedure, FDocumentKind.IdParam, id);
}

void TDocumentEditBox::RequireMaster(bool mayBeEdited) {
    if (!mayBeEdited) {
        throw Canceled();
    }
}

SourceChoice TDocumentEditBox::AskForSource(const std::function<void(TSelectBox&)>& setUp) {
    TSelectBox selection(this, LibraryManager());
    setUp(selection);
    if (selection.ShowModal() != c_ResultOk || selection.GetID() <= c_NullValue) {
        throw Canceled();
    }
    return {.ID = selection.GetID(),
            .WithQuantities = selection.GetPrenesMnozstvi(),
            .WithPrices = selection.GetPrenesCeny()};
}

EEditBoxCanceled TDocumentEditBox::Canceled() {
    return EEditBoxCanceled("Canceled");
}

void TDocumentEditBox::FillLines(const AnsiString& procedure, std::initializer_list<LinesParam> params,
                                 std::string_view skippedKey) {
    melvark::FillLines(DataGrid(), Columns(), procedure, params, skippedKey);
}

void TDocumentEditBox::Filled() {
    DataGrid().ResetModified();
    Constructed();
}

bool TDocumentEditBox::SaveLines(std::initializer_list<IdParam> sources) {
    ResetTable();
    return melvark::SaveLines(FDocumentKind, Columns(), DataGrid(), FDocumentID, sources);
}

DocumentColumns TDocumentEditBox::Columns() const {
    return {ActiveColumns(), DefaultColumns()};
}
