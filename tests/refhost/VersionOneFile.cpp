#include "tests/refhost/VersionOneFile.h"

#include "refhost/database/SQLiteFunctions.h"
#include "refhost/database/SQLiteSession.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace refhost {

void makeVersionOne(const std::string& path) {
    const std::ifstream fixture(DATABASE_FIXTURES "/version-1-sqlite.sql");
    std::ostringstream sql;
    if (!(sql << fixture.rdbuf())) {
        throw std::runtime_error("the company of the first version cannot be read");
    }
    SQLiteSession session(path, {}, TFormatSettings{}, OpenMode::Create, std::chrono::seconds(5));
    registerCzech(session);
    session.execute(sql.str());
}

} // namespace refhost
