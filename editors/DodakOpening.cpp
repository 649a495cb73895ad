#include "editors/DodakOpening.h"

#include "editors/DocumentOpening.h"
#include "editors/DocumentRows.h"
#include "editors/EditTypes.h"

EDodakEditBox::~EDodakEditBox() = default;

namespace melvark {

namespace {

// The first result set tells the user and the flag, the second the VAT rates. The warehouses have a query of their own,
// which runs once the procedure stands behind the rates.
void Init(DodakOpening& opening) {
    TLiveStoredProc initialisation("MELVARKEDITORDodakInit");
    initialisation.Exec(true);
    opening.UserName = initialisation.FieldByName("UZIVATEL").AsString();
    opening.LocalVat = initialisation.FieldByName("DPHBLIC").AsInteger() == 1;
    initialisation.Resume();
    opening.Lists->VatRates = FillDPHList(initialisation);
    initialisation.Resume();
    opening.Lists->Warehouses = FillSkladList();
}

} // namespace

DodakOpening OpenDodak(const AnsiString& editType, int dodkId, int dodvId) {
    const int number = RequireEditType<EDodakEditBox>(c_DodakEditType, editType);
    DodakOpening opening{{.EditType = editType, .SourceNumber = number, .DocumentID = dodkId, .UserName = {}},
                         dodvId,
                         false,
                         std::make_unique<DodakLists>()};
    Init(opening);
    return opening;
}

std::vector<AnsiString> FillDPHList(TLiveStoredProc& initialisation) {
    return ReadTexts(initialisation, "NAZEV");
}

} // namespace melvark
