#pragma once

#include "editors/DocumentKind.h"
#include "editors/DocumentOpening.h"
#include "editwin/MelvarkEditorEditWin.h"
#include "editwin/model/EditExceptions.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <type_traits>

class TSelectBox;

/// What the editors of all kinds of document do alike around their tables. An editor's constructor hands in its kind
/// and its opening, has the document checked, installs its hooks, fills its lines and calls Filled() last.
class TDocumentEditBox : public TEditBox {
    Q_OBJECT

public:
    ~TDocumentEditBox() override;

    /// Writes all lines to the file of unsaved work. Throws EInOutError.
    void SaveDataToTempFile();
    /// Fills the cell store from the file of unsaved work, and tells whose document the lines are. False, with nothing
    /// changed, when the file does not hold lines of this kind of document. Throws EInOutError when the system does not
    /// give it.
    bool LoadDataFromTempFile(int& aDocumentID);
    /// Takes unsaved work up again when there is some and the database agrees: true when the lines came from it. The
    /// document that is edited is then the one that the work belongs to. Throws EDatabaseError.
    bool RestoreData();

protected:
    /// `kind` outlives the editor.
    TDocumentEditBox(TComponent* owner, TLibraryManager* libraryManager, const melvark::DocumentKind& kind,
                     const melvark::DocumentOpening& opening);

    /// Asks the database whether the document may be edited: false when it answers no. A refusal throws EDatabaseError.
    bool CheckDocument(int id) const;
    /// Once the master check has answered: throws what cancels the editor when it was no, else installs the hooks.
    void Begin(bool mayBeEdited, std::function<bool()> saveData);

    /// Shows the source dialog, set up by one of its set-ups with these arguments; the dialog is gone when the choice
    /// is returned. Throws EEditBoxCanceled when the clerk cancelled it or no id came of it.
    template <class... Parameters>
    melvark::SourceChoice AskForSource(void (TSelectBox::*setUp)(Parameters...),
                                       const std::type_identity_t<Parameters>&... arguments) {
        return ShowSelection([&](TSelectBox& selection) { std::invoke(setUp, selection, arguments...); });
    }
    /// What calls the preparation off without a word to the clerk.
    static EEditBoxCanceled Canceled();

    /// See melvark::FillLines. Throws what cancels the editor when there are no lines to be had.
    void FillLines(const AnsiString& procedure, std::initializer_list<melvark::LinesParam> params,
                   std::string_view skippedKey = {});
    /// Freshly filled lines count as unchanged; the editor is complete.
    void Filled();
    /// Empties the row store, then see melvark::SaveLines.
    bool SaveLines(std::initializer_list<melvark::IdParam> sources);

    /// Where the lines come from: the edit type's number in its table.
    int SourceNumber() const { return FSourceNumber; }
    int DocumentID() const { return FDocumentID; }
    melvark::DocumentColumns Columns() const;

private:
    /// Whether there was unsaved work and it is in the cell store; `id` is then its document. What is no such work is
    /// told and removed; what cannot be read is told and stays.
    bool FindUnsavedWork(int& id);
    void TellOnceIfHeld();
    melvark::SourceChoice ShowSelection(const std::function<void(TSelectBox&)>& setUp);
    /// Asks the database; what it declines is gone for good.
    bool MayBeRestored(int id);

    const melvark::DocumentKind& FDocumentKind;
    const std::shared_ptr<const void> FBindings; ///< What the columns point to.
    const int FSourceNumber;
    int FDocumentID;
    bool FIsHeldTold = false;
};
