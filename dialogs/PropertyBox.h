#pragma once

#include "host/widgets/Form.h"
#include "host/widgets/Vocabulary.h"

#include <functional>

class QBoxLayout;
class TLibraryManager;
class TQelPngBitBtn;

/// What the small property dialogs share: one text that must be filled, a memo, and the buttons "OK" and "Zpět". Enter
/// confirms except in the memo, where it breaks the line; Esc cancels. Works without a library manager.
///
/// A derived dialog makes its controls from top to bottom with the functions below, adds the buttons last, localises
/// itself and calls Constructed(). Its caller fills it, shows it modally and takes the values back on OK; the dialog
/// stores nothing.
class TPropertyBox : public TForm {
    Q_OBJECT

public:
    /// Refuses blanks in the mandatory text: the dialog stays open with the focus there.
    void OkBtnClick(TObject* Sender);

protected:
    /// `refusal` gives the sentence that a text of blanks is answered with.
    TPropertyBox(TComponent* owner, TLibraryManager* libraryManager, std::function<AnsiString()> refusal);

    /// The text that must not be blank, with its label; it has the focus whenever the dialog opens.
    TEdit* MakeMandatoryEdit(const QString& name, QBoxLayout& layout, const QString& labelName, const QString& label);
    /// The memo takes all the height that the dialog gets beyond its need.
    TMemo* MakeMemo(const QString& name, QBoxLayout& layout, const QString& labelName, const QString& label);
    void MakeButtons(QBoxLayout& layout);

    TLibraryManager* LibraryManager() const { return FLibraryManager; }

    void FormShow() override;

private:
    TLibraryManager* FLibraryManager;
    std::function<AnsiString()> FRefusal;
    TEdit* FMandatory = nullptr;
    TQelPngBitBtn* OkBtn = nullptr;
    TQelPngBitBtn* CancelBtn = nullptr;
};
