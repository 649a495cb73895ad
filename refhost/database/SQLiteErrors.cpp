#include "refhost/database/SQLiteErrors.h"

#include "refhost/database/RefusalTable.h"

#include <sqlite3.h>

namespace refhost {

namespace {

struct Sentence {
    int Code; ///< The engine's code, either one that stands for a whole class or an extended one.
    const char* Refusal;
    const char* Before; ///< Stands before the file's name,
    const char* After;  ///< and this after it.
};

constexpr Sentence c_Sentences[] = {
    {SQLITE_BUSY, "ML910", "Databázi „", "“ právě používá někdo jiný. Zkuste to za chvíli znovu."},
    {SQLITE_LOCKED, "ML910", "Databázi „", "“ právě používá někdo jiný. Zkuste to za chvíli znovu."},
    {SQLITE_READONLY, "ML911", "Databáze „", "“ je jen pro čtení. Povolte zápis do souboru i do jeho složky."},
    {SQLITE_CORRUPT, "ML912", "Soubor „", "“ není databáze, nebo je poškozený. Obnovte jej ze zálohy."},
    {SQLITE_NOTADB, "ML912", "Soubor „", "“ není databáze, nebo je poškozený. Obnovte jej ze zálohy."},
    {SQLITE_CANTOPEN, "ML915", "Soubor databáze „", "“ nelze otevřít. Zkontrolujte jeho umístění a oprávnění."},
    {SQLITE_PERM, "ML915", "Soubor databáze „", "“ nelze otevřít. Zkontrolujte jeho umístění a oprávnění."},
    {SQLITE_IOERR, "ML916", "Databázi „", "“ nelze číst ani zapisovat. Zkontrolujte disk, na kterém leží."},
    {SQLITE_CONSTRAINT_FOREIGNKEY, "ML925", "V databázi „",
     "“ už není něco, na co se změna odvolává. Načtěte data znovu."},
    {SQLITE_FULL, "ML923", "Pro databázi „", "“ není na disku místo. Uvolněte je a zkuste to znovu."},
};

constexpr Sentence c_Other{SQLITE_ERROR, "ML930", "Databáze „", "“ nemohla příkaz provést. Obraťte se na správce."};

} // namespace

EDatabaseError sqliteError(int code, sqlite3* database, std::string_view file, std::string_view statement) {
    const std::string words = database != nullptr ? sqlite3_errmsg(database) : sqlite3_errstr(code);
    std::string details = "SQLite " + std::to_string(code) + ": " + words;
    details.append("\n").append(statement);
    if (code == SQLITE_CONSTRAINT_TRIGGER) {
        return refusal(words, {}, details); // our triggers say the key of a refusal and nothing else
    }
    const Sentence* sentence = &c_Other;
    for (const Sentence& candidate : c_Sentences) {
        if (candidate.Code == code || candidate.Code == (code & 0xFF)) {
            sentence = &candidate;
        }
    }
    return EDatabaseError(std::string(sentence->Before).append(file) + sentence->After, sentence->Refusal, details,
                          TDatabaseCause::Failure);
}

} // namespace refhost
