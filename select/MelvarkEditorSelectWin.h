#pragma once

#include "host/Types.h"
#include "select/SelectForm.h"
#include "select/SourceTable.h"

/// The modal dialog in which the user names the one source from which an editor pre-fills its lines: by typing its
/// number (a supplier's name) or by picking it from the host's lookup list. On OK the database checks it.
///
/// Call one of the seven set-ups after construction, show it modally, and on OK read GetID and the transfer options. It
/// fills no grid and knows no rule about which source is admissible: the set-ups are rows of SourceTable.
class TSelectBox : public TSelectForm {
    Q_OBJECT

public:
    TSelectBox(TComponent* aOwner, TLibraryManager* aLibraryManager);
    ~TSelectBox() override;

    /// The id of the chosen source, -1 when none. It falls back to -1 with every change of the text.
    int GetID() const { return Line(0).ID; }
    bool GetPrenesMnozstvi() const;
    bool GetPrenesCeny() const;

    /// For a delivery note: its id and its supplier's.
    void DodakSelectFromObjednavka(int aDocID, int aDodvID);
    void DodakSelectFromDodak(int aDocID, int aDodvID);
    /// For a supplier order or template: its id, its warehouse's, its supplier's.
    void DodObjSelectFromObjednavkaVzor(int aDocID, int aSkldID, int aDodvID);
    void DodObjSelectFromObjednavka(int aDocID, int aSkldID, int aDodvID);
    void DodObjSelectFromDodak(int aDocID, int aSkldID, int aDodvID);
    /// A supplier whose price list holds at the moment.
    void DodObjSelectFromDodCenik(int aDocID, TDateTime aDate);
    /// A supplier who delivered before the moment; a document that has a supplier offers only that one.
    void DodObjSelectFromDodavky(int aDocID, const AnsiString& aDodavatel, TDateTime aDate);

    /// The check and the lookup of each set-up: what OK, and what F5 or the button, run. A check throws EDatabaseError
    /// when the database rejects the source, ESelectBox when it names none.
    void DodakSelectFromObjednavkaCheck();
    void DodakSelectFromObjednavkaShowDlg();
    void DodakSelectFromDodakCheck();
    void DodakSelectFromDodakShowDlg();
    void DodObjSelectFromObjednavkaVzorCheck();
    void DodObjSelectFromObjednavkaVzorShowDlg();
    void DodObjSelectFromObjednavkaCheck();
    void DodObjSelectFromObjednavkaShowDlg();
    void DodObjSelectFromDodakCheck();
    void DodObjSelectFromDodakShowDlg();
    void DodObjSelectFromDodCenikCheck();
    void DodObjSelectFromDodCenikShowDlg();
    void DodObjSelectFromDodavkyCheck();
    void DodObjSelectFromDodavkyShowDlg();

protected:
    void FormCreate();

private:
    using TOperation = void (TSelectBox::*)();

    void CreateControls();
    void SetUp(const RSourceSetup& setup, const RSourceArguments& arguments, TOperation check, TOperation showDlg);
    void Check(const RSourceSetup& setup);
    void ShowDlg(const RSourceSetup& setup);

    RSourceArguments FArguments;
    TLabel* lblPrenest = nullptr;
    TCheckBox* chbMnozstvi = nullptr;
    TCheckBox* chbCeny = nullptr;
};
