#include "editors/DodObjOpening.h"

#include "editors/DocumentOpening.h"
#include "editors/DocumentRows.h"
#include "editors/EditTypes.h"

#include <utility>

EDodObjEditBox::~EDodObjEditBox() = default;

namespace melvark {

namespace {

void Init(DodObjOpening& opening) {
    TLiveStoredProc initialisation("MELVARKEDITORDodObjInit");
    initialisation.Exec(true);
    opening.UserName = initialisation.FieldByName("UZIVATEL").AsString();
    opening.Lists->Warehouses = FillSkladList();
    opening.Lists->Suppliers = FillDodavatelList();
}

} // namespace

DodObjOpening OpenDodObj(const AnsiString& sourceKind, DodObjDocument document) {
    const int number = RequireEditType<EDodObjEditBox>(c_DodObjEditType, sourceKind);
    DodObjOpening opening{
        {.EditType = sourceKind, .SourceNumber = number, .DocumentID = document.DdobID, .UserName = {}},
        std::move(document),
        std::make_unique<DodObjLists>()};
    Init(opening);
    return opening;
}

std::vector<AnsiString> FillDodavatelList() {
    return QueryTexts("select JMENO from DODAVATEL_V order by JMENO", "JMENO");
}

} // namespace melvark
