#include "editors/DocumentEditBox.h"

#include "editwin/model/DataGrid.h"
#include "host/LibraryManager.h"
#include "select/MelvarkEditorSelectWin.h"

using namespace melvark;

TDocumentEditBox::~TDocumentEditBox() = default;

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

DocumentColumns TDocumentEditBox::Columns() const {
    return {ActiveColumns(), DefaultColumns()};
}

void TDocumentEditBox::Filled() {
    DataGrid().ResetModified();
    Constructed();
}
