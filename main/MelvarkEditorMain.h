#pragma once

#include "host/LibraryItem.h"
#include "host/Types.h"
#include "host/widgets/Vocabulary.h"

#include <QPointer>

#include <functional>
#include <span>
#include <string_view>

namespace melvark {
struct SourceMenu;
}

/// The plug-in's library item: it reads what the screen asks for, lets the user choose where the lines come from, and
/// opens the editor. It fills no grid and saves nothing; the editors do. The host makes it by its class name and calls
/// Execute.
class TMelvarkEditor : public TLibraryItem {
public:
    using TLibraryItem::TLibraryItem;

    /// `aParams` is the screen's document type ("DODAK", "DODOBJ", "DODOBJVZOR"), then, after a comma, an edit-type
    /// code that skips the menu. True when the editor was closed with OK. An empty dataset, a dismissed menu and a
    /// cancelled source give false without a word; errors of the dataset, the database and the editor propagate.
    bool Execute(AnsiString aParams, TDataSet* aDataSet, TXBookmarkList* aBookmarks) override;

    ~TMelvarkEditor() override;

    /// Appends an entry to the popup menu; the texts are shown letter for letter.
    void AddPopupMenuItem(const AnsiString& aCaption, const AnsiString& aHint, int aTag, const TNotifyEvent& aOnClick);

    /// A menu entry was clicked: its code becomes the chosen one. Any other sender changes nothing.
    void OnPopupMenuClickDodak(TObject* Sender);
    void OnPopupMenuClickDodObj(TObject* Sender);
    void OnPopupMenuClickDodObjVzor(TObject* Sender);

    /// The workflows; `aSource` is an edit-type code, empty to let the user choose.
    bool DodakEditor(AnsiString aSource);
    bool ObjednavkaEditor(AnsiString aSource);
    bool ObjednavkaVzorEditor(AnsiString aSource);

private:
    using TClickHandler = void (TMelvarkEditor::*)(TObject*);

    void CreatePopupMenu();
    AnsiString ChooseSource(const melvark::SourceMenu& menu, TClickHandler onClick);
    void TakeSource(const TObject* sender, std::span<const std::string_view> codes);
    /// Edits from that source, or from the one that the user chooses when it is empty; false when he chooses none.
    bool EditFrom(AnsiString source, const melvark::SourceMenu& menu, TClickHandler onClick,
                  const std::function<bool(const AnsiString&)>& edit);
    bool EditDeliveryNote(const AnsiString& source);
    bool EditOrder(bool isTemplate, const AnsiString& source);
    void ShowNote(const AnsiString& text);

    /// The screen that was active when it was made owns it and may take it along.
    QPointer<TPopupMenu> FPopupMenu;
    AnsiString FSourceCode; ///< Of the entry clicked last.
    TDataSet* FDataSet = nullptr;
};
