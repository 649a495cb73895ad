#include "refhost/database/Databases.h"

#include "host/Exceptions.h"
#include "refhost/database/ParameterValues.h"
#include "refhost/database/PostgreSQLConnection.h"
#include "refhost/database/SQLiteConnection.h"

namespace refhost {

std::unique_ptr<Database> openDatabase(const std::string& url, const std::string& user, const TFormatSettings& settings,
                                       OpenMode mode) {
    constexpr std::string_view c_SQLite = "sqlite:";
    if (url.starts_with(c_SQLite)) {
        return std::make_unique<SQLiteConnection>(url.substr(c_SQLite.size()), user, settings,
                                                  mode == OpenMode::Create);
    }
    constexpr std::string_view c_PostgreSQL = "postgresql:";
    if (url.starts_with(c_PostgreSQL)) {
        return std::make_unique<PostgreSQLConnection>(url.substr(c_PostgreSQL.size()), settings);
    }
    throw EDatabaseError("Adresa databáze „" + shownText(url) +
                             "“ není známá. Zadejte sqlite:SOUBOR nebo postgresql:PŘIPOJENÍ.",
                         "ML915");
}

} // namespace refhost
