#pragma once

#include "editwin/EditBoxControls.h"
#include "editwin/model/Column.h"
#include "host/Exceptions.h"
#include "host/Types.h"
#include "host/widgets/Form.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <utility>
#include <vector>

class QKeyEvent;
class QPoint;
class QRect;
class TDataGrid;
class TLibraryManager;
struct TCellLook;

namespace melvark {
class CellWriter;
class KeptFile;
class RowView;
enum class EditorCommand;
} // namespace melvark

/// What tells one kind of editor from another.
struct TEditBoxKind {
    std::int32_t EditType = 0;   ///< Under this number the window's placement is filed.
    std::int32_t TypeOffset = 0; ///< EditType + TypeOffset is the number of the named column settings.
    /// The parts of the temporary file's name: editor, source of the lines, user.
    AnsiString FirstNamePart;
    AnsiString SecondNamePart;
    AnsiString UserName;
};

/// The window in which the items of one document are edited: a grid of items over a cell store, in-place editors, a
/// column menu, a settings menu and the buttons OK, "OK+Další" and Cancel.
///
/// A document editor derives from it: its constructor hands in the columns, fills the store, installs its hooks, clears
/// the modified marks and calls Constructed() last; then it is shown with ShowModal. This class knows no document: what
/// is saved, recalculated or editable comes in through the hooks and the columns' callbacks.
///
/// Most members are one line that calls the helper that has the state and the rule; this header names none of the
/// helpers. The form keeps copies of the columns' value lists. Works with a null library manager; needs a current host.
class TEditBox : public TForm, public TEditBoxControls {
    Q_OBJECT

public:
    /// Builds the form over `columns` and loads the column settings. No callback and no hook is called during
    /// construction.
    TEditBox(TComponent* owner, TLibraryManager* libraryManager, std::int32_t editType, AnsiString firstNamePart,
             std::int32_t editTypeOffset, AnsiString secondNamePart, AnsiString userName,
             std::span<const RColumn> columns);
    ~TEditBox() override;

    void SetTitle(const AnsiString& text);
    void SetTopButtonPanelVisibility(bool visible);
    bool GetPrepocetCen() const;

    /// Error icon; returns the box's result.
    int ShowErrorBox(const AnsiString& text);
    /// Question with Yes and No; returns c_ResultYes or c_ResultNo.
    int ShowConfirmDialog(const AnsiString& text);
    /// Clears the database's table of rows being saved.
    void ResetTable();

    /// Runs the save hook; false without one.
    bool SaveData();
    /// Runs the hook that writes the temporary file, if there is one.
    void SaveDataToTempFile();
    /// Names the file of unsaved work: in the user's directory for the host's database, by user, kind of editor and
    /// source of the lines, whichever document is edited.
    void SetTempFileName();
    const AnsiString& TempFileName() const;
    /// Lays the columns out over a store that was filled with restored lines.
    void RestoreDataFromDataGrid();
    /// The document editor's rule for a grid cell; true without one.
    bool IsEditable(int aCol, int aRow) const;

    // Columns: grid columns count from 1, see model/ColumnList. A look-up that finds nothing gives the blank record.
    static constexpr auto ColumnProperties = &::ColumnProperties;
    int GetVisibleColumnIndex(int n) const;
    RColumn GetVisibleColumn(int n) const;
    int GetColumnByName(const AnsiString& name) const;
    bool IsValidColumnName(const AnsiString& name) const;
    /// Falls back to the default column when the active list lacks the name.
    RColumn GetColumnSettings(const AnsiString& name) const;
    RColumn GetDataColumn(int dataIndex) const;
    /// The key of the column that a callback was called for: also when its cell was hidden between opening and commit.
    AnsiString CallbackKey(int aCol) const;
    int RowToDataGridRow(int row) const;
    const melvark::RowView& Rows() const;
    /// The columns in force. The grid still pictures others after a setting was deleted, until they are laid out.
    const std::vector<RColumn>& ActiveColumns() const;
    const std::vector<RColumn>& DefaultColumns() const;
    TDataGrid& DataGrid();
    const TDataGrid& DataGrid() const;
    /// The one way for a value into the store and the grid.
    melvark::CellWriter& Cells();

    /// Sizes the store for the layout in force so far, at least one column, and then loads the last settings. Who fills
    /// the store sizes it for its own columns.
    void InitGrid();
    void InitColumns();
    void ApplyColumnsSettingsToGrid();

    // In-place editing: see InPlaceEditing.
    void ShowEditor(int aCol, int aRow, bool bySelection);
    bool HideEditor();
    void EditorToCell(TControl* editor, const QRect& rect);
    void GoNextEditable();
    void GoPrevEditable();
    AnsiString CheckInt(TControl* sender, const AnsiString& value) const;
    AnsiString CheckFloat(TControl* sender, const AnsiString& value) const;
    AnsiString CheckDate(TControl* sender, const AnsiString& value) const;
    /// The editor that lies over a cell; null when none is open.
    TControl* ActiveEditor() const;
    int EditCol() const;
    int EditRow() const;

    void LoadColumnsSettingsList();
    void LoadLastColumnsSettings();
    void LoadColumnsSettingsFromXml(const AnsiString& xml);
    AnsiString GetColumnSettingsXML() const;
    std::int32_t SettingsId() const;
    TMenuItem* SettingsItem() const;
    void LoadWindowSettings();
    void SaveWindowSettings();

    // Event handlers, named after control and event.
    void OkBtnClick(TObject* Sender);
    bool EditorKeyDown(TControl* Sender, const QKeyEvent& event);
    bool EditorKeyPress(TControl* Sender, const QKeyEvent& event);
    void EditorExit(TControl* Sender);
    void StringGridEnter(TControl* Sender);
    void StringGridExit(TControl* Sender);
    TCellLook StringGridDrawCell(int col, int row) const;
    void StringGridMouseMove(int col, int row);
    void StringGridMouseUp(int col, int row);
    void StringGridContextPopup(int col, int row, const QPoint& globalPos);
    void StringGridColumnMoved(int from, int to);
    void StringGridTopLeftChanged();
    void ColumnsPopupMenuPopup(TObject* Sender);
    void NadpisVlastnostiSloupceClick(TObject* Sender);
    void SkrytSloupecClick(TObject* Sender);
    void EditovatelnySloupecAutomatickyClick(TObject* Sender);
    void EditovatelnySloupecVyberemClick(TObject* Sender);
    void NeeditovatelnySloupecClick(TObject* Sender);
    void ShowGridColumn(TObject* Sender);
    void SettingsPopupMenuPopup(TObject* Sender);
    /// Sender is the item of a saved setting.
    void LoadColumnsSettings(TObject* Sender);
    void PrejmenovatNastaveniClick(TObject* Sender);
    void UlozitNastaveniClick(TObject* Sender);
    void UlozitJakoNoveNastaveniClick(TObject* Sender);
    void SmazatNastaveniClick(TObject* Sender);
    void ObnovVychoziNastaveniClick(TObject* Sender);
    void AutoSave(TObject* Sender);

protected:
    /// Called by SaveData: true when everything was saved and the form may close with OK.
    void SetOnSaveData(std::function<bool()> hook) { FOnSaveData = std::move(hook); }
    void SetOnSaveDataToTempFile(std::function<void()> hook) { FOnSaveDataToTempFile = std::move(hook); }
    void SetOnIsEditable(TIsEditable hook);
    TLibraryManager* LibraryManager() const { return FLibraryManager; }
    const TEditBoxKind& Kind() const { return FKind; }
    melvark::KeptFile& TempFile();
    /// Has the host tell it, outside the running event; not before the form is shown for the first time.
    void TellWhenShown(AnsiString text);
    /// Tells why unsaved work is not being kept; the autosave then keeps its own failures until a save has succeeded.
    void TellAutosaveFailure(const EInOutError& failure);

    void FormShow() override;
    void FormClose() override;
    /// Runs only for a form whose most derived constructor ended.
    void FormDestroy();

private:
    struct Helpers;

    void FormCreate();
    void ConnectEditors();
    void ConnectGrid();
    void ConnectMenus();
    /// A refusal that names its line makes that line the current one before it goes on to the error display.
    bool SaveOrShowRefusedLine();
    bool RunCommand(melvark::EditorCommand command);
    void TellNotesSoon();
    void TellNotes();

    TLibraryManager* FLibraryManager;
    TEditBoxKind FKind;
    std::function<bool()> FOnSaveData;
    std::function<void()> FOnSaveDataToTempFile;
    std::vector<AnsiString> FNotes; ///< What is to be told once the form is shown.

    std::unique_ptr<Helpers> FHelpers;
};
