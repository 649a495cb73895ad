#include "editors/DocumentOpening.h"

#include "editors/DocumentRows.h"
#include "host/LangStr.h"

namespace melvark {

AnsiString InvalidEditType(const AnsiString& editType) {
    return LangStr(R"(KORDAN30\MELVARKEDITOR\INVALIDEDITTYPE)", {editType}, "Neplatný typ editace (%s)");
}

std::vector<AnsiString> FillSkladList() {
    return QueryTexts("select NAZEV from SKLAD_V order by NAZEV", "NAZEV");
}

bool CheckMasterDocument(const AnsiString& procedure, std::string_view idParam, int id) {
    TLiveStoredProc check(procedure);
    check.ParamByName(idParam).SetAsInteger(id);
    return check.Exec(false);
}

} // namespace melvark
