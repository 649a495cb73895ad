#include "editors/DocumentEditBox.h"

#include "editors/UnsavedWork.h"
#include "editwin/CellWriter.h"
#include "editwin/model/AutosaveFile.h"
#include "editwin/model/DataGrid.h"
#include "editwin/model/KeptFile.h"
#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "select/MelvarkEditorSelectWin.h"

#include <optional>
#include <utility>
#include <vector>

using namespace melvark;

TDocumentEditBox::TDocumentEditBox(TComponent* owner, TLibraryManager* libraryManager, const DocumentKind& kind,
                                   const DocumentOpening& opening)
    : TEditBox(owner, libraryManager, kind.EditTypeNumber, kind.FirstNamePart, opening.SourceNumber, opening.EditType,
               opening.UserName, opening.Columns),
      FDocumentKind(kind),
      FBindings(opening.Bindings),
      FSourceNumber(opening.SourceNumber),
      FDocumentID(opening.DocumentID) {
    SetTopButtonPanelVisibility(kind.HasPrices);
    SetTitle(LangStr(kind.TitleKey, {}, kind.Title));
}

TDocumentEditBox::~TDocumentEditBox() = default;

bool TDocumentEditBox::CheckDocument(int id) const {
    return CheckMasterDocument(FDocumentKind.CheckProcedure, FDocumentKind.IdParam, id);
}

void TDocumentEditBox::Begin(bool mayBeEdited, std::function<bool()> saveData) {
    if (!mayBeEdited) {
        throw Canceled();
    }
    SetOnSaveDataToTempFile([this] { SaveDataToTempFile(); });
    SetOnSaveData(std::move(saveData));
}

SourceChoice TDocumentEditBox::ShowSelection(const std::function<void(TSelectBox&)>& setUp) {
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
    if (!melvark::FillLines(DataGrid(), Columns(), procedure, params, skippedKey)) {
        throw Canceled();
    }
}

void TDocumentEditBox::SaveDataToTempFile() {
    const std::vector<AnsiString> keys = AutosaveKeys(DefaultColumns());
    TempFile().Write([&](std::ostream& out) { WriteAutosave(out, FDocumentID, keys, DataGrid()); });
    TellOnceIfHeld();
}

bool TDocumentEditBox::LoadDataFromTempFile(int& aDocumentID) {
    const std::vector<AnsiString> keys = AutosaveKeys(DefaultColumns());
    std::optional<AutosaveContent> content;
    TempFile().Read([&](std::istream& in) { content = ReadAutosave(in, keys); });
    if (!content) {
        return false;
    }
    aDocumentID = content->DocumentID;
    Cells().Refill(std::move(content->Lines));
    return true;
}

bool TDocumentEditBox::RestoreData() {
    int id = c_NullValue;
    if (!FindUnsavedWork(id) || !MayBeRestored(id)) {
        return false;
    }
    if (id != FDocumentID) {
        TellWhenShown(UnsavedWorkIsOfAnotherDocument());
    }
    FDocumentID = id;
    RestoreDataFromDataGrid(); // sets the file aside, too
    return true;
}

bool TDocumentEditBox::FindUnsavedWork(int& id) {
    try {
        if (!TempFile().HasContent()) {
            TellOnceIfHeld();
            return false;
        }
        if (LoadDataFromTempFile(id)) {
            return true;
        }
        ShowErrorBox(UnsavedWorkIsUnreadable());
        TempFile().Remove();
    } catch (const EInOutError& failure) {
        TellAutosaveFailure(failure);
    }
    return false;
}

void TDocumentEditBox::TellOnceIfHeld() {
    if (TempFile().IsHeldElsewhere() && !std::exchange(FIsHeldTold, true)) {
        TellWhenShown(UnsavedWorkIsHeld());
    }
}

// Without an answer the work is neither taken up nor declined: it is kept for the next time.
bool TDocumentEditBox::MayBeRestored(int id) {
    std::optional<bool> answer;
    try {
        answer = AskToRestore(FDocumentKind.RestoreProcedure, FDocumentKind.IdParam, id);
    } catch (...) {
        TempFile().SetAside();
        throw;
    }
    if (!answer) {
        TempFile().SetAside();
    } else if (!*answer) {
        TempFile().Remove();
    }
    return answer.value_or(false);
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
