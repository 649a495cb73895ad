#include "tests/dbcheck/StructureFaults.h"

namespace refhost {

namespace {

constexpr const char* c_CheckMaster = "MELVARKEDITORDodakCheckMaster";
constexpr const char* c_GetList = "MELVARKEDITORNASTAVENIGetList";
constexpr const char* c_ObnovData = "MELVARKEDITORDodakObnovData";

std::vector<Fault> fileFaults() {
    constexpr Engine c_File = Engine::SQLite;
    return {
        {"AListIsMissing",
         c_File,
         "drop view SKUPSPOL_SKUPSPOL1_V",
         nullptr,
         nullptr,
         {"Pohled SKUPSPOL_SKUPSPOL1_V nejde číst. Vytvořte jej, nebo opravte. (…)"}},
        {"AListHasNoKey",
         c_File,
         "drop view SKUPSPOL_SKUPSPOL1_V; create view SKUPSPOL_SKUPSPOL1_V as select NAZEV from SKUPSPOL1",
         nullptr,
         nullptr,
         {"Pohled SKUPSPOL_SKUPSPOL1_V nemá sloupec _ID (integer). Přidejte jej."}},
        {"AListLacksAColumnOfItsCondition",
         c_File,
         "drop view DODAK_NORMAL_V; create view DODAK_NORMAL_V as select CISLO, DATUM, '' as DODAVATEL, '' as SKLAD, "
         "ID as _ID, SKLDID as _SKLDID from DODAK",
         nullptr,
         nullptr,
         {"Procedura MELVARKEDITORDodObjCheckZdrojDodak nemůže běžet. Opravte ji. (…)",
          "Procedura MELVARKEDITORDodakCheckZdrojDodak nemůže běžet. Opravte ji. (…)",
          "Pohled DODAK_NORMAL_V nemá sloupec _DODVID (integer). Přidejte jej.",
          "Funkci V_MELVARKEDITORDodakCheckZdrojDodak nejde zavolat tak, jak stojí v podmínce "
          "„V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, %d, %d)=1“. Vytvořte ji, nebo opravte. (…)",
          "Funkci V_MELVARKEDITORDodObjCheckZdrojDodak nejde zavolat tak, jak stojí v podmínce "
          "„V_MELVARKEDITORDodObjCheckZdrojDodak(_ID, _DODVID, %d, %d, %d)=1“. Vytvořte ji, nebo opravte. (…)"}},
        {"AScreenIsMissing",
         c_File,
         "drop view SCREEN_DODOBJVZOR_LINES_V",
         nullptr,
         nullptr,
         {"Pohled SCREEN_DODOBJVZOR_LINES_V nejde číst. Vytvořte jej, nebo opravte. (…)"}},
        {"SuppliersAreSortedByBytes",
         c_File,
         "drop view DODAVATEL_V; create view DODAVATEL_V as select JMENO collate binary as JMENO from DODAVATEL",
         nullptr,
         nullptr,
         {"Dotaz „select JMENO from DODAVATEL_V order by JMENO“ neřadí česky: místo Cukr, Čaj, Hrách, Chléb, Ibišek "
          "dává Chléb, Cukr, Hrách, Ibišek, Čaj. Dejte sloupci JMENO české řazení."}},
        {"ATableIsMissing",
         c_File,
         "drop table EDITOROKNO",
         nullptr,
         nullptr,
         {"Procedura MELVARKEDITORNASTAVENINactiNastaveniOkna nemůže běžet. Opravte ji. (…)",
          "Procedura MELVARKEDITORNASTAVENIUlozNastaveniOkna nemůže běžet. Opravte ji. (…)"}},
        {"AnotherProgramsFile", c_File, "pragma application_id = 7", nullptr, nullptr, {"ML913"}},
        {"AnotherVersion", c_File, "pragma user_version = 1", nullptr, nullptr, {"ML914"}},
        {"AParameterIsMissing",
         c_File,
         "",
         "-- in: a_ID integer\n\nselect refuse_closed_note(:a_ID) as refusal;\n",
         c_CheckMaster,
         {"Procedura MELVARKEDITORDodakCheckMaster nemá parametr a_DODKID (integer). Přidejte jej."}},
        {"AParameterHasAnotherType",
         c_File,
         "",
         "-- in: a_DODKID\n\nselect refuse_closed_note(:a_DODKID) as refusal;\n",
         c_CheckMaster,
         {"Parametr a_DODKID procedury MELVARKEDITORDodakCheckMaster má typ text. Změňte jej na integer."}},
        {"AResultLacksAColumn",
         c_File,
         "",
         "-- in: a_TYPEDITACE integer\n-- returns: NAZEV\n\n"
         "select NAZEV from EDITORNASTAVENI where TYPEDITACE = :a_TYPEDITACE;\n",
         c_GetList,
         {"Výsledek procedury MELVARKEDITORNASTAVENIGetList nemá sloupec ID (integer). Přidejte jej."}},
        {"AnOutputIsMissing",
         c_File,
         "",
         "-- in: a_DODKID integer\n-- returns: OBNOVDATA\n\nselect :a_DODKID as OBNOVDATA;\n",
         c_ObnovData,
         {"Procedura MELVARKEDITORDodakObnovData nemá výstupní parametr a_OBNOVDATA (integer). Přidejte jej."}},
        {"AResultIsMissing",
         c_File,
         "",
         "-- returns: UZIVATEL, DPHBLIC\n-- returns: NAZEV\n\nselect current_user_name() as UZIVATEL, 0 as DPHBLIC;\n"
         "select NAZEV from SKLAD_V;\n",
         "MELVARKEDITORDodakInit",
         {"Procedura MELVARKEDITORDodakInit vrací málo výsledků: 2, čeká se 3. Doplňte chybějící."}},
        {"AScriptBringsOtherThanItDeclares",
         c_File,
         "",
         "-- in: a_TYPEDITACE integer\n-- returns: NAZEV, ID\n\nselect :a_TYPEDITACE as ID;\n",
         c_GetList,
         {"Procedura MELVARKEDITORNASTAVENIGetList nemůže běžet. Opravte ji. (…)"}},
        {"AScriptCallsWhatThereIsNot",
         c_File,
         "",
         "-- in: a_DODKID integer\n\nselect zamitni(:a_DODKID) as refusal;\n",
         c_CheckMaster,
         {"Procedura MELVARKEDITORDodakCheckMaster nemůže běžet. Opravte ji. (…)"}},
        {"AScriptIsNoProcedures", c_File, "", "select 1;\n", "NECO", {"ML932"}},
    };
}

std::vector<Fault> serverFaults() {
    constexpr Engine c_Server = Engine::PostgreSQL;
    return {
        {"AProcedureIsMissing",
         c_Server,
         "drop function MELVARKEDITORResetTemp()",
         nullptr,
         nullptr,
         {"Procedura MELVARKEDITORResetTemp chybí. Vytvořte ji."}},
        {"SavesHaveNoIdentity",
         c_Server,
         "drop function MELVARKEDITORUlozeniOver",
         nullptr,
         nullptr,
         {"Procedura MELVARKEDITORUlozeniOver chybí: když se spojení při ukládání přeruší, nepozná se, zda je doklad "
          "uložený. Vytvořte ji."}},
        {"TwoProceduresBearOneName",
         c_Server,
         "create function MELVARKEDITORDodakCheckMaster(a_CISLO text default null) returns void language sql as ''",
         nullptr,
         nullptr,
         {"Jméno MELVARKEDITORDodakCheckMaster nese víc procedur (2). Ponechte jen jednu."}},
        {"AParameterIsMissing",
         c_Server,
         "drop function MELVARKEDITORDodakCheckMaster; create function MELVARKEDITORDodakCheckMaster("
         "a_ID integer default null) returns void language sql as ''",
         nullptr,
         nullptr,
         {"Procedura MELVARKEDITORDodakCheckMaster nemá parametr a_DODKID (integer). Přidejte jej."}},
        {"AnIdentifierIsAText",
         c_Server,
         "drop function MELVARKEDITORDodakCheckMaster; create function MELVARKEDITORDodakCheckMaster("
         "a_DODKID text default null) returns void language sql as ''",
         nullptr,
         nullptr,
         {"Parametr a_DODKID procedury MELVARKEDITORDodakCheckMaster má typ text. Změňte jej na integer."}},
        {"AFlagIsANumber",
         c_Server,
         "drop function MELVARKEDITORNASTAVENIPremenuj; create function MELVARKEDITORNASTAVENIPremenuj("
         "a_ID integer default null, a_NAZEV text default null, a_KOMENTAR text default null, "
         "a_SDILENE integer default null) returns void language sql as ''",
         nullptr,
         nullptr,
         {"Parametr a_SDILENE procedury MELVARKEDITORNASTAVENIPremenuj má typ integer. Změňte jej na boolean."}},
        {"ATextIsADocument",
         c_Server,
         "drop function MELVARKEDITORNASTAVENIUlozNastaveniOkna; create function "
         "MELVARKEDITORNASTAVENIUlozNastaveniOkna(a_TYPEDITACE integer default null, a_DATA xml default null) "
         "returns void language sql as ''",
         nullptr,
         nullptr,
         {"Parametr a_DATA procedury MELVARKEDITORNASTAVENIUlozNastaveniOkna má typ xml. Změňte jej na text."}},
        {"AParameterHasNoDefault",
         c_Server,
         "drop function MELVARKEDITORDodakCheckMaster; create function MELVARKEDITORDodakCheckMaster("
         "a_DODKID integer) returns void language sql as ''",
         nullptr,
         nullptr,
         {"Parametr a_dodkid procedury MELVARKEDITORDodakCheckMaster nejde vynechat. Přidejte mu default null."}},
        {"AResultLacksAColumn",
         c_Server,
         "drop function MELVARKEDITORNASTAVENIGetList; create function MELVARKEDITORNASTAVENIGetList("
         "a_TYPEDITACE integer default null) returns table (NAZEV text) language sql as 'select null::text'",
         nullptr,
         nullptr,
         {"Výsledek procedury MELVARKEDITORNASTAVENIGetList nemá sloupec ID (integer). Přidejte jej."}},
        {"AnIdentifierComesAsAText",
         c_Server,
         "drop function MELVARKEDITORNASTAVENIGetList; create function MELVARKEDITORNASTAVENIGetList("
         "a_TYPEDITACE integer default null) returns table (NAZEV text, ID text) language sql as "
         "'select null::text, null::text'",
         nullptr,
         nullptr,
         {"Sloupec ID ve výsledku procedury MELVARKEDITORNASTAVENIGetList má typ text. Vracejte integer."}},
        {"ATextComesAsANumber",
         c_Server,
         "drop function MELVARKEDITORNASTAVENINacti; create function MELVARKEDITORNASTAVENINacti("
         "a_ID integer default null) returns table (DATA numeric) language sql as 'select 1.5'",
         nullptr,
         nullptr,
         {"Sloupec DATA ve výsledku procedury MELVARKEDITORNASTAVENINacti má typ numeric. Vracejte text."}},
        {"AnOutputIsMissing",
         c_Server,
         "drop function MELVARKEDITORDodakObnovData; create function MELVARKEDITORDodakObnovData("
         "a_DODKID integer default null) returns integer language sql as 'select 1'",
         nullptr,
         nullptr,
         {"Procedura MELVARKEDITORDodakObnovData nemá výstupní parametr a_OBNOVDATA (integer). Přidejte jej."}},
        {"AnOutputHasAnotherType",
         c_Server,
         "drop function MELVARKEDITORDodakObnovData; create function MELVARKEDITORDodakObnovData("
         "a_DODKID integer default null, out a_OBNOVDATA text) language sql as $$ select 'ano' $$",
         nullptr,
         nullptr,
         {"Výstupní parametr a_OBNOVDATA procedury MELVARKEDITORDodakObnovData má typ text. Změňte jej na integer."}},
        {"ASetIsMissing",
         c_Server,
         "create or replace function MELVARKEDITORDodakInit() returns setof refcursor language plpgsql as $$ "
         "declare c refcursor; begin open c for select current_user_name() as UZIVATEL, 0 as DPHBLIC; return next c; "
         "end $$",
         nullptr,
         nullptr,
         {"Procedura MELVARKEDITORDodakInit vrací málo výsledků: 1, čeká se 3. Doplňte chybějící."}},
        {"SetsComeInAnotherOrder",
         c_Server,
         "create or replace function MELVARKEDITORDodakInit() returns setof refcursor language plpgsql as $$ "
         "declare a refcursor; b refcursor; c refcursor; begin "
         "open a for select NAZEV from SKLAD_V; return next a; "
         "open b for select current_user_name() as UZIVATEL, 0 as DPHBLIC; return next b; "
         "open c for select NAZEV from SKLAD_V; return next c; end $$",
         nullptr,
         nullptr,
         {"Výsledek procedury MELVARKEDITORDodakInit nemá sloupec UZIVATEL (text). Přidejte jej.",
          "Výsledek procedury MELVARKEDITORDodakInit nemá sloupec DPHBLIC (integer). Přidejte jej.",
          "Výsledek procedury MELVARKEDITORDodakInit nemá sloupec NAZEV (text). Přidejte jej."}},
        {"AColumnOfASetHasAnotherType",
         c_Server,
         "create or replace function MELVARKEDITORDodakInit() returns setof refcursor language plpgsql as $$ "
         "declare a refcursor; b refcursor; c refcursor; begin "
         "open a for select current_user_name() as UZIVATEL, 'ne' as DPHBLIC; return next a; "
         "open b for select NAZEV from SKLAD_V; return next b; open c for select NAZEV from SKLAD_V; return next c; "
         "end $$",
         nullptr,
         nullptr,
         {"Sloupec DPHBLIC ve výsledku procedury MELVARKEDITORDodakInit má typ text. Vracejte integer."}},
        {"AFunctionIsMissing",
         c_Server,
         "drop function V_MELVARKEDITORDodakCheckZdrojDodak",
         nullptr,
         nullptr,
         {"Funkci V_MELVARKEDITORDodakCheckZdrojDodak nejde zavolat tak, jak stojí v podmínce "
          "„V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, %d, %d)=1“. Vytvořte ji, nebo opravte. (…)"}},
        {"AFunctionTakesFewerArguments",
         c_Server,
         "drop function V_MELVARKEDITORDodakCheckZdrojDodak; create function V_MELVARKEDITORDodakCheckZdrojDodak("
         "id integer, dodvid integer, note integer) returns integer language sql as 'select 1'",
         nullptr,
         nullptr,
         {"Funkci V_MELVARKEDITORDodakCheckZdrojDodak nejde zavolat tak, jak stojí v podmínce "
          "„V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, %d, %d)=1“. Vytvořte ji, nebo opravte. (…)"}},
        {"AFunctionAnswersYesOrNo",
         c_Server,
         "drop function V_MELVARKEDITORDodakCheckZdrojDodak; create function V_MELVARKEDITORDodakCheckZdrojDodak("
         "id integer, dodvid integer, note integer, supplier integer) returns boolean language sql as 'select true'",
         nullptr,
         nullptr,
         {"Funkci V_MELVARKEDITORDodakCheckZdrojDodak nejde zavolat tak, jak stojí v podmínce "
          "„V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, %d, %d)=1“. Vytvořte ji, nebo opravte. (…)"}},
        {"TheFunctionOfParametersHasAnotherName",
         c_Server,
         "alter function V_GetGlobalParam rename to V_GetParam; create or replace function MELVARKEDITORDodakInit() "
         "returns setof refcursor language plpgsql as $$ declare a refcursor; b refcursor; c refcursor; begin "
         "open a for select current_user_name() as UZIVATEL, 0 as DPHBLIC; return next a; "
         "open b for select NAZEV from SKLAD_V; return next b; open c for select NAZEV from SKLAD_V; return next c; "
         "end $$",
         nullptr,
         nullptr,
         {"Funkci V_GetGlobalParam nejde zavolat tak, jak stojí v podmínce „V_GetGlobalParam('SKLAD',"
          "'POCETMESICUDODAVEK')“. Vytvořte ji, nebo opravte. (…)",
          "Funkci V_MELVARKEDITORDodObjCheckZdrojDodavky nejde zavolat tak, jak stojí v podmínce "
          "„V_MELVARKEDITORDodObjCheckZdrojDodavky(_ID, %d, %d, %d, '%s', V_GetGlobalParam('SKLAD',"
          "'POCETMESICUDODAVEK'))=1“. Vytvořte ji, nebo opravte. (…)"}},
        {"AListIsMissing",
         c_Server,
         "drop view SKUPSPOL_SKUPSPOL1_V",
         nullptr,
         nullptr,
         {"Pohled SKUPSPOL_SKUPSPOL1_V nejde číst. Vytvořte jej, nebo opravte. (…)"}},
        {"AKeyIsAText",
         c_Server,
         "drop view SKUPSPOL_SKUPSPOL1_V; create view SKUPSPOL_SKUPSPOL1_V as "
         "select NAZEV, ID::text as _ID from SKUPSPOL1; grant select on SKUPSPOL_SKUPSPOL1_V to melvark_clerk",
         nullptr,
         nullptr,
         {"Sloupec _ID pohledu SKUPSPOL_SKUPSPOL1_V má typ text. Vracejte integer."}},
        {"ADateIsNoTextReadyForACell",
         c_Server,
         "drop view DODAK_NORMAL_V; create view DODAK_NORMAL_V as select CISLO, DATUM, ''::text as DODAVATEL, "
         "''::text as SKLAD, ID as _ID, SKLDID as _SKLDID, DODVID as _DODVID from DODAK; "
         "grant select on DODAK_NORMAL_V to melvark_clerk",
         nullptr,
         nullptr,
         {"Sloupec DATUM pohledu DODAK_NORMAL_V má typ date. Vracejte text."}},
        {"WarehousesAreMissing",
         c_Server,
         "alter view SKLAD_V rename to SKLADY_V; create or replace function MELVARKEDITORDodakInit() "
         "returns setof refcursor language plpgsql as $$ declare a refcursor; b refcursor; c refcursor; begin "
         "open a for select current_user_name() as UZIVATEL, 0 as DPHBLIC; return next a; "
         "open b for select NAZEV from SKLADY_V; return next b; open c for select NAZEV from SKLADY_V; return next c; "
         "end $$",
         nullptr,
         nullptr,
         {"Pohled SKLAD_V nejde číst. Vytvořte jej, nebo opravte. (…)",
          "Dotaz „select NAZEV from SKLAD_V order by NAZEV“ nejde položit. Opravte pohled, který čte. (…)"}},
        {"WarehousesAreSortedByBytes",
         c_Server,
         "drop view SKLAD_V; create view SKLAD_V as select NAZEV collate \"C\" as NAZEV from SKLAD; "
         "grant select on SKLAD_V to melvark_clerk, melvark_owner",
         nullptr,
         nullptr,
         {"Dotaz „select NAZEV from SKLAD_V order by NAZEV“ neřadí česky: místo Cukr, Čaj, Hrách, Chléb, Ibišek dává "
          "Chléb, Cukr, Hrách, Ibišek, Čaj. Dejte sloupci NAZEV české řazení."}},
        {"ClerksMayNotCall",
         c_Server,
         "revoke execute on function MELVARKEDITORResetTemp from melvark_clerk",
         nullptr,
         nullptr,
         {"Role melvark_clerk nesmí volat MELVARKEDITORResetTemp. Dejte jí právo execute."}},
        {"ClerksMayNotCallAFunctionOfAList",
         c_Server,
         "revoke execute on function V_GetGlobalParam from melvark_clerk",
         nullptr,
         nullptr,
         {"Role melvark_clerk nesmí volat V_GetGlobalParam. Dejte jí právo execute."}},
        {"ClerksMayNotRead",
         c_Server,
         "revoke select on DODAK_NORMAL_V from melvark_clerk",
         nullptr,
         nullptr,
         {"Role melvark_clerk nesmí číst DODAK_NORMAL_V. Dejte jí právo select."}},
        {"ClerksMayNotEnter",
         c_Server,
         "revoke usage on schema melvark from melvark_clerk",
         nullptr,
         nullptr,
         {"Role melvark_clerk nesmí do schématu melvark. Dejte jí na ně právo usage."}},
        {"ClerksMayWrite",
         c_Server,
         "grant update on DODAKPOL to melvark_clerk",
         nullptr,
         nullptr,
         {"Role melvark_clerk smí přímo měnit DODAKPOL, mimo procedury. Odeberte jí to právo."}},
        {"TheSchemaIsUnmarked", c_Server, "comment on schema melvark is null", nullptr, nullptr, {"ML913"}},
        {"AnotherVersion", c_Server, "comment on schema melvark is 'Melvark, version 1'", nullptr, nullptr, {"ML914"}},
        {"TheSchemaIsMissing", c_Server, "alter schema melvark rename to jiny", nullptr, nullptr, {"ML922"}},
    };
}

} // namespace

std::vector<Fault> structureFaults() {
    std::vector<Fault> faults = fileFaults();
    const std::vector<Fault> server = serverFaults();
    faults.insert(faults.end(), server.begin(), server.end());
    return faults;
}

} // namespace refhost
