#include "editors/UnsavedWork.h"

#include "host/LangStr.h"
#include "host/LiveData.h"

namespace melvark {

namespace {

constexpr std::string_view c_Answer = "a_OBNOVDATA";

} // namespace

std::optional<bool> AskToRestore(const AnsiString& procedure, std::string_view idParam, int id) {
    TLiveStoredProc question(procedure);
    question.ParamByName(idParam).SetAsInteger(id);
    if (!question.Exec(false)) {
        return std::nullopt;
    }
    return question.HasParam(c_Answer) && question.ParamByName(c_Answer).AsBoolean();
}

AnsiString UnsavedWorkIsUnreadable() {
    return LangStr(
        R"(KORDAN30\MELVARKEDITOR\CANNOTRESTOREBADFORMAT)", {},
        "Bylo zjištěno, že poslední úpravy nebyly uloženy, k editace se však nelze vrátit, protože soubor má "
        "špatný formát");
}

AnsiString UnsavedWorkIsHeld() {
    return LangStr(R"(KORDAN30\MELVARKEDITOR\UNSAVEDWORKHELD)", {},
                   "Rozepsanou práci z tohoto zdroje průběžně ukládá jiné okno. Práce v tomto okně se průběžně "
                   "neukládá.");
}

AnsiString UnsavedWorkIsOfAnotherDocument() {
    return LangStr(R"(KORDAN30\MELVARKEDITOR\UNSAVEDWORKOFANOTHER)", {},
                   "Obnovená rozepsaná práce patří k jinému dokladu, než který jste otevřeli. Uloží se do onoho "
                   "dokladu.");
}

} // namespace melvark
