#include "editwin/model/AutosaveErrors.h"

#include "host/LangStr.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace melvark {

namespace {

/// A reason that people understand, for several of the system's.
struct Reason {
    std::string_view Key;
    std::string_view Text;
    std::array<int, 3> Errors;
};
constexpr Reason c_Reasons[] = {
    {R"(KORDAN30\MELVARKEDITOR\AUTOSAVEDISKFULL)", "disk je plný nebo je vyčerpána kvóta", {ENOSPC, EDQUOT, EFBIG}},
    {R"(KORDAN30\MELVARKEDITOR\AUTOSAVENOTALLOWED)", "chybí práva nebo je disk jen ke čtení", {EACCES, EPERM, EROFS}},
    {R"(KORDAN30\MELVARKEDITOR\AUTOSAVENOFOLDER)", "složka neexistuje", {ENOENT, ENOTDIR, ENOTDIR}},
};

AnsiString ReasonText(int error) {
    for (const Reason& reason : c_Reasons) {
        if (std::ranges::find(reason.Errors, error) != reason.Errors.end()) {
            return LangStr(reason.Key, {}, reason.Text);
        }
    }
    return LangStr(R"(KORDAN30\MELVARKEDITOR\AUTOSAVESYSTEM)", {std::generic_category().message(error)},
                   "systém hlásí: %s");
}

EInOutError Failure(const AnsiString& reason, const AnsiString& path) {
    return EInOutError(LangStr(R"(KORDAN30\MELVARKEDITOR\AUTOSAVEFAILED)", {reason, path},
                               "Rozepsaná práce se průběžně neukládá (%s): „%s“. Uložte ji raději hned."));
}

} // namespace

EInOutError AutosaveRefused(int error, const AnsiString& path) {
    return Failure(ReasonText(error), path);
}

EInOutError AutosaveUnread(int error, const AnsiString& path) {
    return EInOutError(LangStr(R"(KORDAN30\MELVARKEDITOR\UNSAVEDWORKNOTREAD)", {ReasonText(error), path},
                               "Nelze přečíst, co tu zbylo z rozepsané práce (%s): „%s“. Co tam je, zůstane, a práce v "
                               "tomto okně se zatím průběžně neukládá."));
}

EInOutError AutosaveOverUnread(const AnsiString& path) {
    return Failure(LangStr(R"(KORDAN30\MELVARKEDITOR\AUTOSAVEOVERUNREAD)", {},
                           "je tam starší rozepsaná práce, kterou nebylo možné přečíst"),
                   path);
}

EInOutError AutosaveForeign(const AnsiString& path) {
    return Failure(
        LangStr(R"(KORDAN30\MELVARKEDITOR\AUTOSAVEFOREIGN)", {}, "místo souboru je tam odkaz, složka nebo něco cizího"),
        path);
}

EInOutError AutosaveTooLarge() {
    return EInOutError(LangStr(R"(KORDAN30\MELVARKEDITOR\AUTOSAVETOOLARGE)", {},
                               "Rozepsaná práce se průběžně neukládá, je příliš velká. Uložte ji raději hned."));
}

} // namespace melvark
