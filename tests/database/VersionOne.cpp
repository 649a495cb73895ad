#include "tests/database/VersionOne.h"

#include "host/Exceptions.h"
#include "refhost/database/Databases.h"
#include "refhost/database/DecimalFunctions.h"
#include "refhost/database/PostgreSQLRows.h"
#include "refhost/database/PostgreSQLSession.h"
#include "refhost/database/SQLiteFunctions.h"
#include "refhost/database/SQLiteStatement.h"
#include "tests/database/PrivateServer.h"

#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>

namespace refhost {

namespace {

constexpr std::string_view c_SQLite = "sqlite:";
constexpr std::string_view c_PostgreSQL = "postgresql:";

std::string fixture(const std::string& name) {
    const std::ifstream file(MELVARK_SOURCE_DIR "/tests/database/fixtures/" + name);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string valueText(const TDbValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*number);
    }
    return std::holds_alternative<AnsiString>(value) ? std::get<AnsiString>(value) : "-";
}

std::string rowText(const std::vector<TDbValue>& row) {
    std::string text;
    for (std::size_t i = 0; i < row.size(); ++i) {
        text += (i == 0 ? "" : ",") + valueText(row[i]);
    }
    return text;
}

} // namespace

struct BareConnection::Link {
    std::optional<SQLiteSession> File;
    std::optional<PostgreSQLSession> Server;

    TResultTable query(const std::string& sql) {
        if (Server) {
            return resultTable(Server->execute(sql, {}).get());
        }
        std::string_view text = sql;
        SQLiteStatement statement(*File, text);
        TResultTable table{statement.columns(), {}};
        while (statement.step()) {
            table.Rows.push_back(statement.row());
        }
        return table;
    }
};

BareConnection::BareConnection(const std::string& url) : link_(std::make_unique<Link>()) {
    if (url.starts_with(c_PostgreSQL)) {
        link_->Server.emplace(url.substr(c_PostgreSQL.size()), TFormatSettings{});
        return;
    }
    link_->File.emplace(url.substr(c_SQLite.size()), "", TFormatSettings{}, OpenMode::Create, std::chrono::seconds(5));
    registerValueFunctions(*link_->File);
    registerCzech(*link_->File);
    registerDecimalFunctions(link_->File->handle());
}

BareConnection::~BareConnection() = default;

void BareConnection::run(const std::string& sql) {
    if (link_->Server) {
        link_->Server->execute(sql);
    } else {
        link_->File->execute(sql);
    }
}

std::vector<std::string> BareConnection::rows(const std::string& sql) {
    std::vector<std::string> rows;
    for (const std::vector<TDbValue>& row : link_->query(sql).Rows) {
        rows.push_back(rowText(row));
    }
    return rows;
}

std::vector<std::string> BareConnection::table(const std::string& sql) {
    const TResultTable table = link_->query(sql);
    std::string names;
    for (const std::string& column : table.Columns) {
        names += (names.empty() ? "" : ",") + column;
    }
    std::vector<std::string> rows{names};
    for (const std::vector<TDbValue>& row : table.Rows) {
        rows.push_back(rowText(row));
    }
    return rows;
}

std::string versionOneUrl(Engine engine) {
    if (engine == Engine::SQLite) {
        const std::string url = newSQLiteUrl();
        BareConnection(url).run(fixture("version-1-sqlite.sql"));
        return url;
    }
    PrivateServer& server = PrivateServer::instance();
    server.addRole("novakova", "melvark_clerk");
    const std::string url = std::string(c_PostgreSQL) + server.address(server.newEmptyDatabase(), "postgres");
    BareConnection(url).run(fixture("version-1-postgresql.sql"));
    return url;
}

UpgradeReport upgraded(const std::string& url) {
    try {
        return upgradeDatabase(url);
    } catch (const EDatabaseError& error) {
        ADD_FAILURE() << error.Message() << "\n" << error.Details();
        throw;
    }
}

} // namespace refhost
