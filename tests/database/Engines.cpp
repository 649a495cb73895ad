#include "tests/database/Engines.h"

#include "refhost/database/Databases.h"
#include "tests/database/PrivateServer.h"
#include "tests/support/TemporaryFolder.h"

#include <string>

namespace refhost {

namespace {

constexpr std::string_view c_PostgreSQL = "postgresql:";

} // namespace

std::string newSQLiteUrl() {
    static const TemporaryFolder folder("database");
    static int count = 0;
    return "sqlite:" + (folder.path() / ("company" + std::to_string(++count) + ".db")).string();
}

std::string engineName(Engine engine) {
    return engine == Engine::SQLite ? "SQLite" : "PostgreSQL";
}

std::string newDatabaseUrl(Engine engine) {
    if (engine == Engine::SQLite) {
        const std::string url = newSQLiteUrl();
        openDatabase(url, "novakova", TFormatSettings::Czech(), OpenMode::Create)->createSchema();
        return url;
    }
    PrivateServer& server = PrivateServer::instance();
    return std::string(c_PostgreSQL) + "host=" + server.folder().string() + " dbname=" + server.newDatabase();
}

std::string addressAs(const std::string& url, const std::string& user) {
    if (!url.starts_with(c_PostgreSQL)) {
        return url;
    }
    PrivateServer::instance().addRole(user, "melvark_owner");
    return url + " user=" + user;
}

std::unique_ptr<Database> openAs(const std::string& url, const std::string& user, const TFormatSettings& settings) {
    return openDatabase(addressAs(url, user), user, settings, OpenMode::Existing);
}

std::unique_ptr<Database> newDatabase(Engine engine) {
    return openAs(newDatabaseUrl(engine), "novakova");
}

} // namespace refhost
