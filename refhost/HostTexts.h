#pragma once

#include <string_view>

namespace refhost {

/// A text that the host shows: its language key and the Czech built-in text. "%1", "%2" stand for what is filled in.
struct HostText {
    std::string_view key;
    std::string_view builtIn;
};

/// All texts of the host in one place, so that a translator and a test find them. A window takes them from Languages.
namespace texts {

inline constexpr HostText applicationTitle{"MELVARKHOST\\MAIN\\TITLE", "Melvark – nákup a sklad"};
inline constexpr HostText fileMenu{"MELVARKHOST\\MAIN\\FILE", "&Soubor"};
inline constexpr HostText documentMenu{"MELVARKHOST\\MAIN\\DOCUMENT", "&Doklad"};
inline constexpr HostText viewMenu{"MELVARKHOST\\MAIN\\VIEW", "&Zobrazit"};
inline constexpr HostText refresh{"MELVARKHOST\\MAIN\\REFRESH", "&Obnovit"};
inline constexpr HostText report{"MELVARKHOST\\MAIN\\REPORT", "&Hlášení o chybě"};
inline constexpr HostText reportWritten{
    "MELVARKHOST\\MAIN\\REPORTWRITTEN",
    "Hlášení o chybě je v souboru „%1“. Pošlete je svému správci. Jsou v něm verze, "
    "nastavení a poslední volání, nejsou v něm hesla, připojení ani obsah dokladů."};
inline constexpr HostText quit{"MELVARKHOST\\MAIN\\QUIT", "&Konec"};
inline constexpr HostText insertLines{"MELVARKHOST\\MAIN\\INSERTLINES", "&Vložit položky"};
inline constexpr HostText insertLinesHint{"MELVARKHOST\\MAIN\\INSERTLINESHINT",
                                          "Hromadně vloží položky do vybraného dokladu (F8)"};
inline constexpr HostText screens{"MELVARKHOST\\MAIN\\SCREENS", "Obrazovky"};
inline constexpr HostText search{"MELVARKHOST\\MAIN\\SEARCH", "&Hledat"};
inline constexpr HostText userStatus{"MELVARKHOST\\MAIN\\USER", "Uživatel: %1"};
inline constexpr HostText databaseStatus{"MELVARKHOST\\MAIN\\DATABASE", "Databáze: %1"};
inline constexpr HostText newDocuments{"MELVARKHOST\\MAIN\\NEWDOCUMENTS", "Nové doklady: %1"};
inline constexpr HostText pluginMissing{"MELVARKHOST\\MAIN\\PLUGINMISSING", "Vkládání položek není k dispozici. %1"};

inline constexpr HostText databaseUpgraded{"MELVARKHOST\\MAIN\\UPGRADED",
                                           "Databáze byla převedena pro novou verzi programu. Jak vypadala předtím, "
                                           "zůstalo v souboru „%1“."};

inline constexpr HostText deliveryNotes{"MELVARKHOST\\SCREEN\\DODAK", "Dodací listy"};
inline constexpr HostText orders{"MELVARKHOST\\SCREEN\\DODOBJ", "Objednávky"};
inline constexpr HostText orderTemplates{"MELVARKHOST\\SCREEN\\DODOBJVZOR", "Vzory objednávek"};
inline constexpr HostText documentLines{"MELVARKHOST\\SCREEN\\LINES", "Položky dokladu %1"};
inline constexpr HostText noDocument{"MELVARKHOST\\SCREEN\\NODOCUMENT", "Není vybrán žádný doklad"};
inline constexpr HostText documentList{"MELVARKHOST\\SCREEN\\DOCUMENTLIST", "Seznam dokladů"};
inline constexpr HostText lineList{"MELVARKHOST\\SCREEN\\LINELIST", "Položky dokladu"};
inline constexpr HostText unknownScreen{"MELVARKHOST\\SCREEN\\UNKNOWN",
                                        "Obrazovka „%1“ neexistuje. Možnosti jsou DODAK, DODOBJ a DODOBJVZOR."};
inline constexpr HostText unknownDocument{"MELVARKHOST\\SCREEN\\UNKNOWNDOCUMENT",
                                          "Doklad s číslem záznamu %1 na této obrazovce není."};

inline constexpr HostText searchPlaceholder{"MELVARKHOST\\LIST\\SEARCHPLACEHOLDER", "Hledejte psaním…"};
inline constexpr HostText searchName{"MELVARKHOST\\LIST\\SEARCHNAME", "Hledaný text"};
inline constexpr HostText rowCount{"MELVARKHOST\\LIST\\ROWCOUNT", "%1 z %2"};
inline constexpr HostText rowCountSoFar{"MELVARKHOST\\LIST\\ROWCOUNTSOFAR", "%1 z %2, další se načítají…"};

inline constexpr HostText lookupTitle{"MELVARKHOST\\LOOKUP\\TITLE", "Výběr ze seznamu"};
inline constexpr HostText lookupList{"MELVARKHOST\\LOOKUP\\LIST", "Nabízené záznamy"};
inline constexpr HostText lookupPick{"MELVARKHOST\\LOOKUP\\PICK", "&Vybrat"};
inline constexpr HostText lookupCancel{"MELVARKHOST\\LOOKUP\\CANCEL", "&Zrušit"};
inline constexpr HostText lookupEmpty{"MELVARKHOST\\LOOKUP\\EMPTY", "Seznam neobsahuje žádný vhodný záznam."};
inline constexpr HostText lookupUnknown{"MELVARKHOST\\LOOKUP\\UNKNOWN", "Seznam „%1“ tento program nemá."};
inline constexpr HostText lookupNoColumn{"MELVARKHOST\\LOOKUP\\NOCOLUMN", "Seznam „%1“ nemá sloupec %2."};

inline constexpr HostText errorCaption{"MELVARKHOST\\BOX\\ERROR", "Chyba"};
inline constexpr HostText questionCaption{"MELVARKHOST\\BOX\\QUESTION", "Potvrzení"};
inline constexpr HostText noteCaption{"MELVARKHOST\\BOX\\NOTE", "Upozornění"};

inline constexpr HostText errorDetails{"MELVARKHOST\\ERROR\\DETAILS", "&Podrobnosti"};
inline constexpr HostText errorDetailsName{"MELVARKHOST\\ERROR\\DETAILSNAME", "Podrobnosti chyby"};
inline constexpr HostText errorReport{"MELVARKHOST\\ERROR\\REPORT", "&Hlášení o chybě"};
inline constexpr HostText errorCopy{"MELVARKHOST\\ERROR\\COPY", "&Kopírovat"};
inline constexpr HostText errorClose{"MELVARKHOST\\ERROR\\CLOSE", "&Zavřít"};
inline constexpr HostText errorUnexpected{"MELVARKHOST\\ERROR\\UNEXPECTED",
                                          "Nastala neočekávaná chyba. Program běží dál, poslední krok se neprovedl."};
inline constexpr HostText errorCode{"MELVARKHOST\\ERROR\\CODE", "Kód: %1"};
inline constexpr HostText errorOriginal{"MELVARKHOST\\ERROR\\ORIGINAL", "Původní znění: %1"};
/// %1 is the line's number counted from 1, %2 the refusal's sentence.
inline constexpr HostText errorLine{"MELVARKHOST\\ERROR\\LINE", "Řádek %1: %2"};
inline constexpr HostText errorKind{"MELVARKHOST\\ERROR\\KIND", "Druh: %1"};

inline constexpr HostText progressTitle{"MELVARKHOST\\PROGRESS\\TITLE", "Prosím čekejte"};
inline constexpr HostText progressWaiting{"MELVARKHOST\\PROGRESS\\WAITING", "Databáze ještě pracuje."};
inline constexpr HostText progressRows{"MELVARKHOST\\PROGRESS\\ROWS", "Ukládají se řádky, odesláno: %1"};
inline constexpr HostText progressClosing{"MELVARKHOST\\PROGRESS\\CLOSING", "Doklad se ukládá. To už nejde zastavit."};
inline constexpr HostText progressStopping{"MELVARKHOST\\PROGRESS\\STOPPING", "Zastavuje se…"};
inline constexpr HostText progressStop{"MELVARKHOST\\PROGRESS\\STOP", "&Zastavit"};
inline constexpr HostText workStopped{"MELVARKHOST\\PROGRESS\\STOPPED", "Práce byla zastavena."};

inline constexpr HostText pluginNotFound{"MELVARKHOST\\PLUGIN\\NOTFOUND",
                                         "Modul „%1“ nebyl nalezen. Nainstalujte jej znovu vedle programu."};
inline constexpr HostText pluginUnsafe{"MELVARKHOST\\PLUGIN\\UNSAFE",
                                       "Modul „%1“ nebyl načten, protože „%2“ mohou měnit i jiní uživatelé. "
                                       "Nainstalujte jej znovu, nebo jim to právo odeberte."};
inline constexpr HostText pluginUnloadable{"MELVARKHOST\\PLUGIN\\UNLOADABLE",
                                           "Modul „%1“ nelze načíst. Nainstalujte jej znovu. (%2)"};
inline constexpr HostText pluginNoEntry{"MELVARKHOST\\PLUGIN\\NOENTRY",
                                        "Soubor „%1“ není modulem tohoto programu: chybí v něm vstupní bod %2."};
inline constexpr HostText pluginVersion{"MELVARKHOST\\PLUGIN\\VERSION",
                                        "Modul „%1“ je pro jinou verzi programu (%2 místo %3). Nainstalujte jeho "
                                        "verzi vydanou s tímto programem."};
inline constexpr HostText pluginStart{"MELVARKHOST\\PLUGIN\\START", "Modul „%1“ se nepodařilo spustit. (%2)"};
inline constexpr HostText pluginNoClass{"MELVARKHOST\\PLUGIN\\NOCLASS", "Modul „%1“ neobsahuje třídu %2."};

} // namespace texts

} // namespace refhost
