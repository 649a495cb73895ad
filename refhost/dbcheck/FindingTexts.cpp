#include "refhost/dbcheck/FindingTexts.h"

#include "refhost/Languages.h"
#include "refhost/Refusals.h"

#include <algorithm>

namespace refhost {

namespace {

using enum FindingKind;

constexpr FindingText c_Texts[] = {
    {CompanyMissing, "company-missing", {"MELVARKHOST\\DBCHECK\\COMPANYMISSING", "%4"}},
    {ProcedureMissing,
     "procedure-missing",
     {"MELVARKHOST\\DBCHECK\\PROCEDUREMISSING", "Procedura %1 chybí. Vytvořte ji."}},
    {SavesUnidentified,
     "saves-unidentified",
     {"MELVARKHOST\\DBCHECK\\SAVESUNIDENTIFIED",
      "Procedura %1 chybí: když se spojení při ukládání přeruší, nepozná se, zda je doklad uložený. Vytvořte ji."}},
    {ProcedureUnusable,
     "procedure-unusable",
     {"MELVARKHOST\\DBCHECK\\PROCEDUREUNUSABLE", "Procedura %1 nemůže běžet. Opravte ji. (%4)"}},
    {ProcedureAmbiguous,
     "procedure-ambiguous",
     {"MELVARKHOST\\DBCHECK\\PROCEDUREAMBIGUOUS", "Jméno %1 nese víc procedur (%4). Ponechte jen jednu."}},
    {ParameterMissing,
     "parameter-missing",
     {"MELVARKHOST\\DBCHECK\\PARAMETERMISSING", "Procedura %1 nemá parametr %2 (%3). Přidejte jej."}},
    {ParameterType,
     "parameter-type",
     {"MELVARKHOST\\DBCHECK\\PARAMETERTYPE", "Parametr %2 procedury %1 má typ %4. Změňte jej na %3."}},
    {ParameterNeeded,
     "parameter-without-default",
     {"MELVARKHOST\\DBCHECK\\PARAMETERNEEDED", "Parametr %2 procedury %1 nejde vynechat. Přidejte mu %3."}},
    {OutputMissing,
     "output-missing",
     {"MELVARKHOST\\DBCHECK\\OUTPUTMISSING", "Procedura %1 nemá výstupní parametr %2 (%3). Přidejte jej."}},
    {OutputType,
     "output-type",
     {"MELVARKHOST\\DBCHECK\\OUTPUTTYPE", "Výstupní parametr %2 procedury %1 má typ %4. Změňte jej na %3."}},
    {SetMissing,
     "set-missing",
     {"MELVARKHOST\\DBCHECK\\SETMISSING", "Procedura %1 vrací málo výsledků: %4, čeká se %3. Doplňte chybějící."}},
    {ColumnMissing,
     "column-missing",
     {"MELVARKHOST\\DBCHECK\\COLUMNMISSING", "Výsledek procedury %1 nemá sloupec %2 (%3). Přidejte jej."}},
    {ColumnType,
     "column-type",
     {"MELVARKHOST\\DBCHECK\\COLUMNTYPE", "Sloupec %2 ve výsledku procedury %1 má typ %4. Vracejte %3."}},
    {ViewUnusable,
     "view-unusable",
     {"MELVARKHOST\\DBCHECK\\VIEWUNUSABLE", "Pohled %1 nejde číst. Vytvořte jej, nebo opravte. (%4)"}},
    {ViewColumnMissing,
     "view-column-missing",
     {"MELVARKHOST\\DBCHECK\\VIEWCOLUMNMISSING", "Pohled %1 nemá sloupec %2 (%3). Přidejte jej."}},
    {ViewColumnType,
     "view-column-type",
     {"MELVARKHOST\\DBCHECK\\VIEWCOLUMNTYPE", "Sloupec %2 pohledu %1 má typ %4. Vracejte %3."}},
    {QueryUnusable,
     "query-unusable",
     {"MELVARKHOST\\DBCHECK\\QUERYUNUSABLE", "Dotaz „%1“ nejde položit. Opravte pohled, který čte. (%4)"}},
    {QueryOrder,
     "query-order",
     {"MELVARKHOST\\DBCHECK\\QUERYORDER", "Dotaz „%1“ neřadí česky: místo %3 dává %4. Dejte sloupci %2 české řazení."}},
    {FunctionUnusable,
     "function-unusable",
     {"MELVARKHOST\\DBCHECK\\FUNCTIONUNUSABLE",
      "Funkci %1 nejde zavolat tak, jak stojí v podmínce „%2“. Vytvořte ji, nebo opravte. (%4)"}},
    {RoleMissing, "role-missing", {"MELVARKHOST\\DBCHECK\\ROLEMISSING", "Role %1 chybí. Založte ji."}},
    {RoleOutside,
     "role-outside",
     {"MELVARKHOST\\DBCHECK\\ROLEOUTSIDE", "Role %1 nesmí do schématu melvark. Dejte jí na ně právo usage."}},
    {RoleMayNotCall,
     "role-may-not-call",
     {"MELVARKHOST\\DBCHECK\\ROLEMAYNOTCALL", "Role %1 nesmí volat %2. Dejte jí právo execute."}},
    {RoleMayNotRead,
     "role-may-not-read",
     {"MELVARKHOST\\DBCHECK\\ROLEMAYNOTREAD", "Role %1 nesmí číst %2. Dejte jí právo select."}},
    {RoleMayWrite,
     "role-may-write",
     {"MELVARKHOST\\DBCHECK\\ROLEMAYWRITE", "Role %1 smí přímo měnit %2, mimo procedury. Odeberte jí to právo."}},
    {MissingDocumentAccepted,
     "missing-document-accepted",
     {"MELVARKHOST\\DBCHECK\\MISSINGDOCUMENTACCEPTED", "Procedura %1 přijala doklad, který není. Odmítněte jej."}},
    {AnswerWrong,
     "answer-wrong",
     {"MELVARKHOST\\DBCHECK\\ANSWERWRONG", "Procedura %1 dala v %2 hodnotu „%4“ místo „%3“. Opravte ji."}},
    {DiscountAccepted,
     "discount-accepted",
     {"MELVARKHOST\\DBCHECK\\DISCOUNTACCEPTED", "Procedura %1 přijala slevu nad 100. Odmítněte ji."}},
    {SaveNotBegun,
     "save-not-begun",
     {"MELVARKHOST\\DBCHECK\\SAVENOTBEGUN", "Procedura %1 přijala řádek, aniž bylo ukládání zahájeno. Odmítněte jej."}},
    {SaveNotBegunChanges,
     "save-not-begun-changes",
     {"MELVARKHOST\\DBCHECK\\SAVENOTBEGUNCHANGES",
      "Procedura %1 převzala řádky ukládání, které nikdo nezahájil (%4). Odmítněte je."}},
    {SaveRefused,
     "save-refused",
     {"MELVARKHOST\\DBCHECK\\SAVEREFUSED", "Procedura %1 odmítla platná data: %4 Přijměte je."}},
    {EmptySaveChanges,
     "empty-save-changes",
     {"MELVARKHOST\\DBCHECK\\EMPTYSAVECHANGES",
      "Procedura %1 změnila doklad, ač nebylo co uložit (%4). Nechte jej být."}},
    {SavedLinesWrong,
     "saved-lines-wrong",
     {"MELVARKHOST\\DBCHECK\\SAVEDLINESWRONG",
      "Po volání %1 přibyly řádky s množstvím „%4“ místo „%3“. Uložte je všechny a v pořadí."}},
    {ClosingTwiceDoubles,
     "closing-twice-doubles",
     {"MELVARKHOST\\DBCHECK\\CLOSINGTWICEDOUBLES",
      "Opakované volání %1 uložilo řádky znovu (%4). Po úspěchu je vyprázdněte."}},
    {BeginKeepsRows,
     "begin-keeps-rows",
     {"MELVARKHOST\\DBCHECK\\BEGINKEEPSROWS",
      "Procedura %1 převzala i řádky předchozího ukládání (%4). Nové ukládání je musí vyprázdnit."}},
    {UnknownItemAccepted,
     "unknown-item-accepted",
     {"MELVARKHOST\\DBCHECK\\UNKNOWNITEMACCEPTED", "Procedura %1 přijala položku, která není. Odmítněte ji."}},
    {ClosedAfterRefusal,
     "closed-after-refusal",
     {"MELVARKHOST\\DBCHECK\\CLOSEDAFTERREFUSAL",
      "Procedura %1 uzavřela ukládání, jehož řádek byl odmítnut. Odmítněte je."}},
    {SavedInPart,
     "saved-in-part",
     {"MELVARKHOST\\DBCHECK\\SAVEDINPART",
      "Procedura %1 uložila část odmítnutého ukládání (%4). Uložte vše, nebo nic."}},
    {GivenUpAccepted,
     "given-up-accepted",
     {"MELVARKHOST\\DBCHECK\\GIVENUPACCEPTED",
      "Procedura %1 uzavřela ukládání, které bylo předtím vzdáno. Odmítněte je."}},
    {SessionsMixed,
     "sessions-mixed",
     {"MELVARKHOST\\DBCHECK\\SESSIONSMIXED", "Procedura %1 převzala řádky jiné relace (%4). Každá relace má své."}},
    {SessionLost,
     "session-lost",
     {"MELVARKHOST\\DBCHECK\\SESSIONLOST",
      "Procedura %1 uložila po práci jiné relace „%4“ místo „%3“. Každá relace má své řádky."}},
    {TakenNameAccepted,
     "taken-name-accepted",
     {"MELVARKHOST\\DBCHECK\\TAKENNAMEACCEPTED", "Procedura %1 přijala jméno, které už nastavení má. Odmítněte je."}},
    {SettingNotDeleted,
     "setting-not-deleted",
     {"MELVARKHOST\\DBCHECK\\SETTINGNOTDELETED", "Nastavení zůstalo v seznamu i po volání %1. Smažte je."}},
};

/// In one pass, so that a value which itself has a "%2" in it stays as it is.
std::string filled(std::string_view pattern, const std::string (&values)[4]) {
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const bool isPlace =
            pattern[at] == '%' && at + 1 < pattern.size() && pattern[at + 1] >= '1' && pattern[at + 1] <= '4';
        if (isPlace) {
            text += values[pattern[++at] - '1'];
        } else {
            text += pattern[at];
        }
    }
    return text;
}

/// The server's or the file's own words are the first line of the details.
std::string firstLine(const std::string& text) {
    return text.substr(0, text.find('\n'));
}

} // namespace

std::span<const FindingText> findingTexts() {
    return c_Texts;
}

const FindingText& findingText(FindingKind kind) {
    return *std::ranges::find(c_Texts, kind, &FindingText::kind);
}

std::string foundText(const Finding& finding, const Languages& languages) {
    if (!finding.Error) {
        return finding.Found;
    }
    // The sentence for clerks says little of what a database or a script's header has against a statement.
    const bool isTechnical = finding.Error->Cause() == TDatabaseCause::Failure || finding.Error->Code() == "ML932";
    if (isTechnical && !finding.Error->Details().empty()) {
        return firstLine(finding.Error->Details());
    }
    return translateRefusal(*finding.Error, languages).value_or(finding.Error->Message());
}

std::string findingSentence(const Finding& finding, const Languages& languages) {
    return filled(languages.text(findingText(finding.Kind).sentence),
                  {finding.Object, finding.Member, finding.Expected, foundText(finding, languages)});
}

} // namespace refhost
