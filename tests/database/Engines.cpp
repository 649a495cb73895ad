#include "tests/database/Engines.h"

#include "refhost/database/Databases.h"
#include "tests/database/PrivateServer.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace refhost {

namespace {

constexpr std::string_view c_PostgreSQL = "postgresql:";

/// A folder of the test program for its database files, deleted at its end.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "melvark-database-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no temporary folder could be made");
        }
        path_ = pattern;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored; // the system cleans its temporary folder too
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace

std::string newSQLiteUrl() {
    static const TemporaryFolder folder;
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

std::unique_ptr<Database> openAs(const std::string& url, const std::string& user, const TFormatSettings& settings) {
    if (!url.starts_with(c_PostgreSQL)) {
        return openDatabase(url, user, settings, OpenMode::Existing);
    }
    PrivateServer::instance().addRole(user, "melvark_owner");
    return openDatabase(url + " user=" + user, user, settings, OpenMode::Existing);
}

std::unique_ptr<Database> newDatabase(Engine engine) {
    return openAs(newDatabaseUrl(engine), "novakova");
}

} // namespace refhost
