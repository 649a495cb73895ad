#pragma once

#include "dialogs/PropertyBox.h"
#include "host/Types.h"

/// The modal dialog in which the user names a column setting, describes it and shares it with other users. Whether a
/// name is taken is the store's business; here it must only not be blank. It has one size: 305 × 181 pixels, or what
/// its texts need in the user's font.
class TSettingsBox : public TPropertyBox {
    Q_OBJECT

public:
    TSettingsBox(TComponent* Owner, TLibraryManager* libraryManager);

    /// As typed, not trimmed.
    AnsiString GetNazev() const;
    void SetNazev(const AnsiString& nazev);
    AnsiString GetPopis() const;
    void SetPopis(const AnsiString& popis);
    bool GetSdilene() const;
    void SetSdilene(bool sdilene);

private:
    void CreateControls();
    void FormCreate();

    TEdit* edtNazev = nullptr;
    TMemo* memKomentar = nullptr;
    TCheckBox* chbSdilene = nullptr;
};
