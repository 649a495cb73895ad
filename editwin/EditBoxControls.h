#pragma once

#include "host/widgets/Vocabulary.h"

class TForm;
class TMenuButton;
class TQelPngBitBtn;
class TStringGrid;

namespace melvark {
class AskingCheckBox;
}

/// The controls and menus of the base editor form, each also found by its object name. They belong to the form; this is
/// the table of where they are. Built once with their built-in Czech texts; events are connected by the form.
struct TEditBoxControls {
    TPanel* MainPanel = nullptr;
    TPanel* TopPanel = nullptr;
    TGroupBox* gbPraceScenami = nullptr;
    melvark::AskingCheckBox* chbPrepocetCen = nullptr;
    TLabel* lblWarning = nullptr;
    TStringGrid* StringGrid = nullptr;
    TPanel* ButtonPanel = nullptr;
    TQelPngBitBtn* OkBtn = nullptr;
    TQelPngBitBtn* OKDalsiBtn = nullptr;
    TQelPngBitBtn* CancelBtn = nullptr;
    TMenuButton* MenuBtn = nullptr;

    TPopupMenu* ColumnsPopupMenu = nullptr;
    TMenuItem* NadpisVlastnostiSloupce = nullptr;
    TMenuItem* SkrytSloupec = nullptr;
    TMenuItem* EditovatelnySloupecAutomaticky = nullptr;
    TMenuItem* EditovatelnySloupecVyberem = nullptr;
    TMenuItem* NeeditovatelnySloupec = nullptr;
    TPopupMenu* SkryteSloupce = nullptr;

    /// The items of the saved settings stand above these.
    TPopupMenu* SettingsPopupMenu = nullptr;
    TMenuItem* N3 = nullptr;
    TMenuItem* PrejmenovatNastaveni = nullptr;
    TMenuItem* UlozitNastaveni = nullptr;
    TMenuItem* UlozitJakoNoveNastaveni = nullptr;
    TMenuItem* SmazatNastaveni = nullptr;
    TMenuItem* N4 = nullptr;
    TMenuItem* ObnovVychoziNastaveni = nullptr;

    /// Makes everything in the form.
    void BuildIn(TForm& form);

private:
    void BuildTopPanel();
    void BuildButtons();
    void BuildColumnsMenu(TForm& form);
    void BuildSettingsMenu(TForm& form);
};
