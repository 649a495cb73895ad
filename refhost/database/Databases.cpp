#include "refhost/database/Databases.h"

#include "host/Exceptions.h"
#include "refhost/database/ParameterValues.h"
#include "refhost/database/SQLiteConnection.h"

namespace refhost {

std::unique_ptr<Database> openDatabase(const std::string& url, const std::string& user, const TFormatSettings& settings,
                                       OpenMode mode) {
    constexpr std::string_view c_SQLite = "sqlite:";
    if (url.starts_with(c_SQLite))
        return std::make_unique<SQLiteConnection>(url.substr(c_SQLite.size()), user, settings,
                                                  mode == OpenMode::Create);
    throw EDatabaseError("Adresa databáze „" + shownText(url) + "“ není známá. Zadejte sqlite:SOUBOR.", "ML915");
}

} // namespace refhost
