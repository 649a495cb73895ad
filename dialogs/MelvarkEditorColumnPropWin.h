#pragma once

#include "dialogs/PropertyBox.h"
#include "editwin/model/Column.h"
#include "host/Types.h"

/// The modal dialog in which the user changes one column's caption, hint and alignment.
class TColumnPropertyBox : public TPropertyBox {
    Q_OBJECT

public:
    TColumnPropertyBox(TComponent* Owner, TLibraryManager* libraryManager);

    /// As typed, not trimmed.
    AnsiString GetColumnCaption() const;
    void SetColumnCaption(const AnsiString& caption);
    AnsiString GetColumnHint() const;
    void SetColumnHint(const AnsiString& hint);
    TColumnAlign GetColumnAlign() const;
    /// A value that is none of the three counts as caLeft.
    void SetColumnAlign(TColumnAlign align);

private:
    void CreateControls();
    void FormCreate();

    TEdit* edtCaption = nullptr;
    TMemo* memHint = nullptr;
    TPanel* Bevel1 = nullptr;
    TLabel* lblAlign = nullptr;
    TRadioButton* rbAlignLeft = nullptr;
    TRadioButton* rbAlignCenter = nullptr;
    TRadioButton* rbAlignRight = nullptr;
};
