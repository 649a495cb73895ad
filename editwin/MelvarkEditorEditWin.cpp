#include "editwin/MelvarkEditorEditWin.h"

#include "dialogs/ModuleBoxes.h"
#include "editwin/AskingCheckBox.h"
#include "editwin/AutosavePlace.h"
#include "editwin/EditBoxHelpers.h"
#include "editwin/EditorKeys.h"
#include "editwin/model/CellRules.h"
#include "editwin/model/ColumnList.h"
#include "editwin/model/KeptFile.h"
#include "editwin/model/TempFileName.h"
#include "host/Exceptions.h"
#include "host/HostServices.h"
#include "host/LibraryManager.h"
#include "host/LiveData.h"
#include "host/widgets/ButtonGlyphs.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Guard.h"
#include "host/widgets/Later.h"
#include "host/widgets/StringGrid.h"

#include <QAction>
#include <QFrame>
#include <QMenu>

#include <utility>

using namespace melvark;

TEditBox::TEditBox(TComponent* owner, TLibraryManager* libraryManager, std::int32_t editType, AnsiString firstNamePart,
                   std::int32_t editTypeOffset, AnsiString secondNamePart, AnsiString userName,
                   std::span<const RColumn> columns)
    : TForm(owner),
      FLibraryManager(libraryManager),
      FKind{editType, editTypeOffset, std::move(firstNamePart), std::move(secondNamePart), std::move(userName)} {
    BuildIn(*this);
    FHelpers = std::make_unique<Helpers>(*this, columns);
    FormCreate();
    FHelpers->Editing.LayOut = [this] { ApplyColumnsSettingsToGrid(); };
    FHelpers->Settings.ShowNoSetting();
    MenuBtn->LimitWidth(); // a long name would take the grid's room
    FHelpers->Keeper.CreateListEditors();
    ConnectEditors();
    ConnectGrid();
    ConnectMenus();
    SetTempFileName();
    LoadColumnsSettingsList();
    InitGrid();
}

TEditBox::~TEditBox() {
    if (IsConstructed()) {
        FormDestroy();
    }
}

void TEditBox::FormCreate() {
    Localize(FLibraryManager, R"(KORDAN30\MelvarkEditorEditWin)");
}

void TEditBox::FormShow() {
    LoadGlyph(*OkBtn, "OK");
    LoadGlyph(*OKDalsiBtn, "OKNEXT");
    LoadGlyph(*CancelBtn, "CANCEL");
    ApplyColumnsSettingsToGrid();
    GoNextEditable();
    LoadWindowSettings();
    TellNotesSoon();
}

void TEditBox::FormClose() {
    // Cancel and the close box never ask: no window may become impossible to leave.
    FHelpers->Keeper.DropEditor();
    SaveWindowSettings();
}

void TEditBox::FormDestroy() {
    FHelpers->Autosave.Disable();
    TempFile().Remove();
}

void TEditBox::ConnectEditors() {
    for (QWidget* const editor : FHelpers->Keeper.Editors()) {
        FHelpers->EditorEvents.Watch(*editor);
    }
    FHelpers->ButtonEvents.Watch(*OkBtn);
    FHelpers->ButtonEvents.Watch(*CancelBtn);
    FHelpers->FurtherButtonEvents.Watch(*OKDalsiBtn);
    OkBtn->SetOnClick([this](TObject* sender) { OkBtnClick(sender); });
    // The open value goes out with the switch as it was; a refused one leaves the switch.
    chbPrepocetCen->SetMayChange([this] { return HideEditor(); });
}

void TEditBox::ConnectGrid() {
    StringGrid->SetPresentation([this](int col, int row) { return StringGridDrawCell(col, row); });
    ConnectGuarded(StringGrid, &TStringGrid::MouseMoved, this, &TEditBox::StringGridMouseMove);
    ConnectGuarded(StringGrid, &TStringGrid::MouseUp, this, &TEditBox::StringGridMouseUp);
    ConnectGuarded(StringGrid, &TStringGrid::ContextPopup, this, &TEditBox::StringGridContextPopup);
    ConnectGuarded(StringGrid, &TStringGrid::ColumnMoved, this, &TEditBox::StringGridColumnMoved);
    ConnectGuarded(StringGrid, &TStringGrid::TopLeftChanged, this, &TEditBox::StringGridTopLeftChanged);
    ConnectGuarded(StringGrid, &TStringGrid::EditorWanted, &FHelpers->Keeper, &InPlaceEditing::OpenWhenSettled);
    ConnectGuarded(StringGrid, &TStringGrid::EnterPressed, this,
                   [this](Qt::KeyboardModifiers modifiers) { RunCommand(EnterCommand(modifiers)); });
}

void TEditBox::ConnectMenus() {
    const std::pair<QAction*, void (TEditBox::*)(TObject*)> items[] = {
        {NadpisVlastnostiSloupce, &TEditBox::NadpisVlastnostiSloupceClick},
        {SkrytSloupec, &TEditBox::SkrytSloupecClick},
        {EditovatelnySloupecAutomaticky, &TEditBox::EditovatelnySloupecAutomatickyClick},
        {EditovatelnySloupecVyberem, &TEditBox::EditovatelnySloupecVyberemClick},
        {NeeditovatelnySloupec, &TEditBox::NeeditovatelnySloupecClick},
        {PrejmenovatNastaveni, &TEditBox::PrejmenovatNastaveniClick},
        {UlozitNastaveni, &TEditBox::UlozitNastaveniClick},
        {UlozitJakoNoveNastaveni, &TEditBox::UlozitJakoNoveNastaveniClick},
        {SmazatNastaveni, &TEditBox::SmazatNastaveniClick},
        {ObnovVychoziNastaveni, &TEditBox::ObnovVychoziNastaveniClick},
    };
    for (const auto& [item, handler] : items) {
        ConnectGuarded(item, &QAction::triggered, this,
                       [this, sender = item, click = handler] { std::invoke(click, this, sender); });
    }
    ConnectGuarded(ColumnsPopupMenu, &QMenu::aboutToShow, this, [this] { ColumnsPopupMenuPopup(ColumnsPopupMenu); });
    ConnectGuarded(SettingsPopupMenu, &QMenu::aboutToShow, this, [this] { SettingsPopupMenuPopup(SettingsPopupMenu); });
}

void TEditBox::SetTitle(const AnsiString& text) {
    SetCaption(text);
    StringGrid->setAccessibleName(windowTitle());
}

void TEditBox::SetTopButtonPanelVisibility(bool visible) {
    TopPanel->setVisible(visible);
}

bool TEditBox::GetPrepocetCen() const {
    return chbPrepocetCen->isChecked();
}

int TEditBox::ShowErrorBox(const AnsiString& text) {
    return ErrorBox(FLibraryManager, text);
}

int TEditBox::ShowConfirmDialog(const AnsiString& text) {
    return ConfirmBox(FLibraryManager, text);
}

void TEditBox::ResetTable() {
    TLiveStoredProc("MELVARKEDITORResetTemp").Exec(false);
}

bool TEditBox::SaveData() {
    return FOnSaveData && FOnSaveData();
}

void TEditBox::SaveDataToTempFile() {
    if (FOnSaveDataToTempFile) {
        FOnSaveDataToTempFile();
    }
}

void TEditBox::SetTempFileName() {
    const AnsiString directory = AutosaveDirectory(CurrentHost().DatabaseDigest());
    FHelpers->TempFile = std::make_unique<KeptFile>(
        melvark::TempFileName(directory, FileNamePart(FKind.UserName), FKind.FirstNamePart, FKind.SecondNamePart));
}

const AnsiString& TEditBox::TempFileName() const {
    return FHelpers->TempFile->Path();
}

void TEditBox::RestoreDataFromDataGrid() {
    ApplyColumnsSettingsToGrid();
}

KeptFile& TEditBox::TempFile() {
    return *FHelpers->TempFile;
}

void TEditBox::TellWhenShown(AnsiString text) {
    FNotes.push_back(std::move(text));
    if (isVisible()) {
        TellNotesSoon();
    }
}

void TEditBox::TellAutosaveFailure(const EInOutError& failure) {
    FHelpers->Autosave.FailureIsKnown();
    TellWhenShown(failure.Message());
}

// A note has an event loop of its own, which a show event or a tick must not wait for.
void TEditBox::TellNotesSoon() {
    CallLater(this, [this] { Guarded([this] { TellNotes(); }); });
}

void TEditBox::TellNotes() {
    for (const AnsiString& text : std::exchange(FNotes, {})) {
        NoteBox(FLibraryManager, text);
    }
}

void TEditBox::SetOnIsEditable(TIsEditable hook) {
    FHelpers->Editing.Rule = std::move(hook);
}

bool TEditBox::IsEditable(int aCol, int aRow) const {
    return PassesRule(FHelpers->Editing.Rule, aCol, aRow);
}

int TEditBox::GetVisibleColumnIndex(int n) const {
    return VisibleColumnIndex(FHelpers->Editing.Active, n);
}

RColumn TEditBox::GetVisibleColumn(int n) const {
    const RColumn* const column = FHelpers->Editing.ColumnAt(n);
    return column ? *column : BlankColumn();
}

int TEditBox::GetColumnByName(const AnsiString& name) const {
    return ColumnByName(FHelpers->Editing.Active, name);
}

bool TEditBox::IsValidColumnName(const AnsiString& name) const {
    return IsValidName(FHelpers->Editing.Defaults, name);
}

RColumn TEditBox::GetColumnSettings(const AnsiString& name) const {
    return ColumnSettings(FHelpers->Editing.Active, FHelpers->Editing.Defaults, name);
}

RColumn TEditBox::GetDataColumn(int dataIndex) const {
    return DataColumnSettings(FHelpers->Editing.Active, dataIndex);
}

AnsiString TEditBox::CallbackKey(int aCol) const {
    return FHelpers->Keeper.CallbackKey(aCol);
}

int TEditBox::RowToDataGridRow(int row) const {
    return FHelpers->Editing.Rows.StoreRow(row);
}

const RowView& TEditBox::Rows() const {
    return FHelpers->Editing.Rows;
}

const std::vector<RColumn>& TEditBox::ActiveColumns() const {
    return FHelpers->Editing.InForce();
}

const std::vector<RColumn>& TEditBox::DefaultColumns() const {
    return FHelpers->Editing.Defaults;
}

TDataGrid& TEditBox::DataGrid() {
    return FHelpers->Editing.Store;
}

const TDataGrid& TEditBox::DataGrid() const {
    return FHelpers->Editing.Store;
}

CellWriter& TEditBox::Cells() {
    return FHelpers->Writer;
}

void TEditBox::InitGrid() {
    FHelpers->Editing.Store.SetColCount(static_cast<int>(FHelpers->Editing.Active.size()));
    LoadLastColumnsSettings();
}

void TEditBox::InitColumns() {
    FHelpers->Editing.SetActive(FHelpers->Editing.Defaults);
}

void TEditBox::ApplyColumnsSettingsToGrid() {
    FHelpers->Editing.TakeAwaited();
    FHelpers->ColumnMenu.RebuildHiddenItems();
    FHelpers->Presentation.ApplyColumns();
    TempFile().SetAside();
    FHelpers->Autosave.Enable();
}

void TEditBox::ShowEditor(int aCol, int aRow, bool bySelection) {
    FHelpers->Keeper.ShowEditor(aCol, aRow, bySelection ? Reach::BySelection : Reach::ByTraversal);
}

bool TEditBox::HideEditor() {
    return FHelpers->Keeper.HideEditor();
}

void TEditBox::EditorToCell(TControl* editor, const QRect& rect) {
    FHelpers->Keeper.EditorToCell(*editor, rect);
}

void TEditBox::GoNextEditable() {
    FHelpers->Keeper.GoNextEditable();
}

void TEditBox::GoPrevEditable() {
    FHelpers->Keeper.GoPrevEditable();
}

TControl* TEditBox::ActiveEditor() const {
    return FHelpers->Keeper.ActiveEditor();
}

int TEditBox::EditCol() const {
    return FHelpers->Keeper.EditCol();
}

int TEditBox::EditRow() const {
    return FHelpers->Keeper.EditRow();
}

AnsiString TEditBox::CheckInt(TControl* sender, const AnsiString& value) const {
    return FHelpers->Keeper.CheckInt(sender, value);
}

AnsiString TEditBox::CheckFloat(TControl* sender, const AnsiString& value) const {
    return FHelpers->Keeper.CheckFloat(sender, value);
}

AnsiString TEditBox::CheckDate(TControl* sender, const AnsiString& value) const {
    return FHelpers->Keeper.CheckDate(sender, value);
}

void TEditBox::LoadColumnsSettingsList() {
    FHelpers->Settings.LoadList();
}

void TEditBox::LoadLastColumnsSettings() {
    FHelpers->Settings.LoadLast();
}

void TEditBox::LoadColumnsSettingsFromXml(const AnsiString& xml) {
    FHelpers->Settings.ApplyDocument(xml);
}

std::int32_t TEditBox::SettingsId() const {
    return FHelpers->Settings.SettingsId();
}

AnsiString TEditBox::GetColumnSettingsXML() const {
    return FHelpers->Settings.Document();
}

TMenuItem* TEditBox::SettingsItem() const {
    return FHelpers->Settings.SettingsItem();
}

void TEditBox::LoadWindowSettings() {
    FHelpers->Placement.Load();
}

void TEditBox::SaveWindowSettings() {
    FHelpers->Placement.Save();
}

void TEditBox::OkBtnClick(TObject*) {
    SetModalResult(0);
    if (HideEditor() && SaveOrShowRefusedLine()) {
        SetModalResult(c_ResultOk);
    }
}

bool TEditBox::SaveOrShowRefusedLine() {
    try {
        return SaveData();
    } catch (const EDatabaseError& refusal) {
        if (refusal.Row()) {
            StringGrid->SetRow(FHelpers->Editing.Rows.GridRow(*refusal.Row()));
        }
        throw;
    }
}

bool TEditBox::EditorKeyDown(TControl*, const QKeyEvent& event) {
    return RunCommand(KeyDownCommand(event));
}

bool TEditBox::EditorKeyPress(TControl*, const QKeyEvent& event) {
    return RunCommand(KeyPressCommand(event));
}

bool TEditBox::RunCommand(EditorCommand command) {
    switch (command) {
    case EditorCommand::None:
        return false;
    case EditorCommand::GoNext:
        GoNextEditable();
        break;
    case EditorCommand::GoPrevious:
        GoPrevEditable();
        break;
    case EditorCommand::Confirm:
        if (HideEditor()) {
            OkBtnClick(OkBtn);
        }
        break;
    case EditorCommand::RecalculationOff:
        chbPrepocetCen->setChecked(false);
        break;
    case EditorCommand::RecalculationOn:
        chbPrepocetCen->setChecked(true);
        break;
    }
    return true;
}

void TEditBox::EditorExit(TControl* Sender) {
    FHelpers->Keeper.CheckWhenSettled(Sender);
}

void TEditBox::StringGridEnter(TControl*) {
    StringGrid->SetTabStop(false);
}

void TEditBox::StringGridExit(TControl*) {
    StringGrid->SetTabStop(true);
}

TCellLook TEditBox::StringGridDrawCell(int col, int row) const {
    return FHelpers->Presentation.Look(col, row);
}

void TEditBox::StringGridMouseMove(int col, int row) {
    FHelpers->Presentation.ShowHintOf(col, row);
}

void TEditBox::StringGridMouseUp(int, int row) {
    if (row <= 0) {
        FHelpers->ColumnMenu.CaptureWidths();
    }
}

void TEditBox::StringGridContextPopup(int col, int row, const QPoint& globalPos) {
    FHelpers->ColumnMenu.OpenAt(col, row, globalPos);
}

void TEditBox::StringGridColumnMoved(int from, int to) {
    FHelpers->ColumnMenu.FollowMovedColumn(from, to);
}

void TEditBox::StringGridTopLeftChanged() {
    FHelpers->Keeper.LayEditor();
}

void TEditBox::ColumnsPopupMenuPopup(TObject*) {
    FHelpers->ColumnMenu.PrepareItems();
}

void TEditBox::NadpisVlastnostiSloupceClick(TObject*) {
    FHelpers->ColumnMenu.EditProperties(FLibraryManager);
}

void TEditBox::SkrytSloupecClick(TObject*) {
    FHelpers->ColumnMenu.HidePopupColumn();
}

void TEditBox::EditovatelnySloupecAutomatickyClick(TObject*) {
    FHelpers->ColumnMenu.SetEditability(eAuto);
}

void TEditBox::EditovatelnySloupecVyberemClick(TObject*) {
    FHelpers->ColumnMenu.SetEditability(eManual);
}

void TEditBox::NeeditovatelnySloupecClick(TObject*) {
    FHelpers->ColumnMenu.SetEditability(eNone);
}

void TEditBox::LoadColumnsSettings(TObject* Sender) {
    FHelpers->Settings.Choose(qobject_cast<QAction*>(Sender));
}

void TEditBox::SettingsPopupMenuPopup(TObject*) {
    FHelpers->Settings.PrepareItems();
}

void TEditBox::PrejmenovatNastaveniClick(TObject*) {
    FHelpers->Settings.Rename();
}

void TEditBox::UlozitNastaveniClick(TObject*) {
    FHelpers->Settings.Save();
}

void TEditBox::UlozitJakoNoveNastaveniClick(TObject*) {
    FHelpers->Settings.SaveAsNew();
}

void TEditBox::SmazatNastaveniClick(TObject*) {
    FHelpers->Settings.Delete();
}

void TEditBox::ObnovVychoziNastaveniClick(TObject*) {
    FHelpers->Settings.RestoreBuiltIn();
}

void TEditBox::ShowGridColumn(TObject* Sender) {
    FHelpers->ColumnMenu.ShowColumnOf(qobject_cast<const QAction*>(Sender));
}

void TEditBox::AutoSave(TObject*) {
    FHelpers->Autosave.Run([this] { SaveDataToTempFile(); });
}
