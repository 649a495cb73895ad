#include "editwin/MelvarkEditorEditWin.h"

#include "editwin/AskingCheckBox.h"
#include "editwin/model/CellRules.h"
#include "editwin/model/ColumnList.h"
#include "host/LangStr.h"
#include "host/LibraryManager.h"
#include "host/LiveData.h"
#include "host/widgets/ButtonGlyphs.h"
#include "host/widgets/Buttons.h"
#include "host/widgets/Guard.h"
#include "host/widgets/MessageBox.h"
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
      FKind{editType, editTypeOffset, std::move(firstNamePart), std::move(secondNamePart), std::move(userName)},
      FEditing(*CreateControls().StringGrid),
      FWriter(FEditing),
      FKeeper(FEditing, FWriter, *this, [this](const AnsiString& text) { ShowErrorBox(text); }),
      FPresentation(FEditing, FWriter),
      FColumnMenu(FEditing, FWriter, FKeeper,
                  {*ColumnsPopupMenu, *SkrytSloupec, *EditovatelnySloupecAutomaticky, *EditovatelnySloupecVyberem,
                   *NeeditovatelnySloupec, *SkryteSloupce}),
      FSettings(FEditing, SettingsStore(editType + editTypeOffset),
                {*MenuBtn, *SettingsPopupMenu, *TopPanel, *chbPrepocetCen}),
      FPlacement(*this, editType),
      FAutosave(*this, [this] { AutoSave(this); }),
      FEditorEvents({.Enter = [this](TControl* sender) { StringGridEnter(sender); },
                     .Exit = [this](TControl* sender) { EditorExit(sender); },
                     .KeyDown = std::bind_front(&TEditBox::EditorKeyDown, this),
                     .KeyPress = std::bind_front(&TEditBox::EditorKeyPress, this),
                     .Wheel = [this](QWheelEvent& event) { StringGrid->ScrollByWheel(event); }}),
      FButtonEvents({.Enter = [this](TControl* sender) { StringGridExit(sender); },
                     .Exit = {},
                     .KeyDown = std::bind_front(&TEditBox::EditorKeyDown, this),
                     .KeyPress = {},
                     .Wheel = {}}),
      FFurtherButtonEvents({.Enter = [this](TControl* sender) { StringGridExit(sender); },
                            .Exit = {},
                            .KeyDown = {},
                            .KeyPress = {},
                            .Wheel = {}}) {
    FormCreate();
    FSettings.ShowNoSetting();
    FEditing.Defaults.assign(columns.begin(), columns.end());
    FKeeper.CreateListEditors();
    ConnectEditors();
    ConnectGrid();
    ConnectMenus();
    LoadColumnsSettingsList();
    InitGrid();
}

TEditBox::~TEditBox() {
    if (IsConstructed()) {
        FormDestroy();
    }
}

TEditBoxControls& TEditBox::CreateControls() {
    BuildIn(*this);
    return *this;
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
}

void TEditBox::FormClose() {
    // Cancel and the close box never ask: no window may become impossible to leave.
    FKeeper.DropEditor();
    SaveWindowSettings();
}

void TEditBox::FormDestroy() {
    FAutosave.Disable();
}

void TEditBox::ConnectEditors() {
    for (QWidget* const editor : FKeeper.Editors()) {
        FEditorEvents.Watch(*editor);
    }
    FButtonEvents.Watch(*OkBtn);
    FButtonEvents.Watch(*CancelBtn);
    FFurtherButtonEvents.Watch(*OKDalsiBtn);
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
    ConnectGuarded(StringGrid, &TStringGrid::EditorWanted, &FKeeper, &InPlaceEditing::OpenWhenSettled);
    ConnectGuarded(StringGrid, &TStringGrid::EnterPressed, this,
                   [this](Qt::KeyboardModifiers modifiers) { RunCommand(EnterCommand(modifiers)); });
}

void TEditBox::ConnectMenus() {
    const std::pair<QAction*, void (TEditBox::*)(TObject*)> items[] = {
        {SkrytSloupec, &TEditBox::SkrytSloupecClick},
        {EditovatelnySloupecAutomaticky, &TEditBox::EditovatelnySloupecAutomatickyClick},
        {EditovatelnySloupecVyberem, &TEditBox::EditovatelnySloupecVyberemClick},
        {NeeditovatelnySloupec, &TEditBox::NeeditovatelnySloupecClick},
    };
    for (const auto& [item, handler] : items) {
        ConnectGuarded(item, &QAction::triggered, this,
                       [this, sender = item, click = handler] { std::invoke(click, this, sender); });
    }
    ConnectGuarded(ColumnsPopupMenu, &QMenu::aboutToShow, this, [this] { ColumnsPopupMenuPopup(ColumnsPopupMenu); });
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
    return FLibraryManager ? FLibraryManager->MessageBox(text, c_MessageBoxError)
                           : ApplicationMessageBox(text, LangStr(R"(KORDAN30\MELVARKEDITOR\ERROR)", {}, "Chyba"),
                                                   c_MessageBoxError);
}

int TEditBox::ShowConfirmDialog(const AnsiString& text) {
    return FLibraryManager
               ? FLibraryManager->MessageBox(text, c_MessageBoxQuestion)
               : ApplicationMessageBox(text, LangStr(R"(KORDAN30\MELVARKEDITOR\CONFIRMATION)", {}, "Potvrzení"),
                                       c_MessageBoxQuestion);
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

bool TEditBox::IsEditable(int aCol, int aRow) const {
    return PassesRule(FEditing.Rule, aCol, aRow);
}

int TEditBox::GetVisibleColumnIndex(int n) const {
    return VisibleColumnIndex(FEditing.Active, n);
}

RColumn TEditBox::GetVisibleColumn(int n) const {
    const RColumn* const column = FEditing.ColumnAt(n);
    return column ? *column : BlankColumn();
}

int TEditBox::GetColumnByName(const AnsiString& name) const {
    return ColumnByName(FEditing.Active, name);
}

bool TEditBox::IsValidColumnName(const AnsiString& name) const {
    return IsValidName(FEditing.Defaults, name);
}

RColumn TEditBox::GetColumnSettings(const AnsiString& name) const {
    return ColumnSettings(FEditing.Active, FEditing.Defaults, name);
}

RColumn TEditBox::GetDataColumn(int dataIndex) const {
    return DataColumnSettings(FEditing.Active, dataIndex);
}

int TEditBox::RowToDataGridRow(int row) const {
    return FEditing.Rows.StoreRow(row);
}

void TEditBox::InitGrid() {
    FEditing.Store.SetColCount(static_cast<int>(FEditing.Active.size()));
    LoadLastColumnsSettings();
}

void TEditBox::InitColumns() {
    FEditing.Active = FEditing.Defaults;
}

void TEditBox::ApplyColumnsSettingsToGrid() {
    FColumnMenu.RebuildHiddenItems();
    FPresentation.ApplyColumns();
    FAutosave.Enable();
}

void TEditBox::ShowEditor(int aCol, int aRow, bool bySelection) {
    FKeeper.ShowEditor(aCol, aRow, bySelection ? Reach::BySelection : Reach::ByTraversal);
}

bool TEditBox::HideEditor() {
    return FKeeper.HideEditor();
}

void TEditBox::EditorToCell(TControl* editor, const QRect& rect) {
    FKeeper.EditorToCell(*editor, rect);
}

void TEditBox::GoNextEditable() {
    FKeeper.GoNextEditable();
}

void TEditBox::GoPrevEditable() {
    FKeeper.GoPrevEditable();
}

AnsiString TEditBox::CheckInt(TControl* sender, const AnsiString& value) const {
    return FKeeper.CheckInt(sender, value);
}

AnsiString TEditBox::CheckFloat(TControl* sender, const AnsiString& value) const {
    return FKeeper.CheckFloat(sender, value);
}

AnsiString TEditBox::CheckDate(TControl* sender, const AnsiString& value) const {
    return FKeeper.CheckDate(sender, value);
}

void TEditBox::LoadColumnsSettingsList() {
    FSettings.LoadList();
}

void TEditBox::LoadLastColumnsSettings() {
    FSettings.LoadLast();
}

void TEditBox::LoadColumnsSettingsFromXml(const AnsiString& xml) {
    FSettings.ApplyDocument(xml);
}

void TEditBox::LoadWindowSettings() {
    FPlacement.Load();
}

void TEditBox::SaveWindowSettings() {
    FPlacement.Save();
}

void TEditBox::OkBtnClick(TObject*) {
    SetModalResult(0);
    if (HideEditor() && SaveData()) {
        SetModalResult(c_ResultOk);
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
    FKeeper.CheckWhenSettled(Sender);
}

void TEditBox::StringGridEnter(TControl*) {
    StringGrid->SetTabStop(false);
}

void TEditBox::StringGridExit(TControl*) {
    StringGrid->SetTabStop(true);
}

TCellLook TEditBox::StringGridDrawCell(int col, int row) const {
    return FPresentation.Look(col, row);
}

void TEditBox::StringGridMouseMove(int col, int row) {
    FPresentation.ShowHintOf(col, row);
}

void TEditBox::StringGridMouseUp(int, int row) {
    if (row <= 0) {
        FColumnMenu.CaptureWidths();
    }
}

void TEditBox::StringGridContextPopup(int col, int row, const QPoint& globalPos) {
    FColumnMenu.OpenAt(col, row, globalPos);
}

void TEditBox::StringGridColumnMoved(int from, int to) {
    FColumnMenu.FollowMovedColumn(from, to);
}

void TEditBox::StringGridTopLeftChanged() {
    FKeeper.LayEditor();
}

void TEditBox::ColumnsPopupMenuPopup(TObject*) {
    FColumnMenu.PrepareItems();
}

void TEditBox::SkrytSloupecClick(TObject*) {
    FColumnMenu.HidePopupColumn();
}

void TEditBox::EditovatelnySloupecAutomatickyClick(TObject*) {
    FColumnMenu.SetEditability(eAuto);
}

void TEditBox::EditovatelnySloupecVyberemClick(TObject*) {
    FColumnMenu.SetEditability(eManual);
}

void TEditBox::NeeditovatelnySloupecClick(TObject*) {
    FColumnMenu.SetEditability(eNone);
}

void TEditBox::ShowGridColumn(TObject* Sender) {
    FColumnMenu.ShowColumnOf(qobject_cast<const QAction*>(Sender));
}

void TEditBox::AutoSave(TObject*) {
    SaveDataToTempFile();
}
