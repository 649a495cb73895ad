#include "tests/database/ServerCompany.h"

#include "tests/database/OneItemRows.h"
#include "tests/database/PrivateServer.h"

#include <chrono>
#include <thread>

namespace refhost {

namespace {

std::string text(const TDbValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*number);
    }
    if (const auto* words = std::get_if<AnsiString>(&value)) {
        return *words;
    }
    return std::holds_alternative<std::monostate>(value) ? "-" : "(another type)";
}

} // namespace

ServerCompany::ServerCompany() : name_(PrivateServer::instance().newDatabase()) {
    const auto database = open();
    database->runScript(c_OneItemRows);
    database->runScript("insert into DODAK (CISLO, DATUM, DODVID, SKLDID)"
                        "values ('DL1', '2026-03-10', 1, 1), ('DL2', '2026-03-10', 1, 1)");
}

std::unique_ptr<PostgreSQLConnection> ServerCompany::openWith(const TFormatSettings& settings) const {
    PrivateServer& server = PrivateServer::instance();
    server.addRole("novakova", "melvark_owner");
    return std::make_unique<PostgreSQLConnection>(server.address(name_, "novakova"), settings);
}

std::unique_ptr<PostgreSQLConnection> ServerCompany::openAs(const std::string& role, const std::string& group) const {
    PrivateServer& server = PrivateServer::instance();
    server.addRole(role, group);
    return std::make_unique<PostgreSQLConnection>(server.address(name_, role), TFormatSettings::Czech());
}

void ServerCompany::cutLinks(const std::string& role) const {
    const std::vector<TDbValue> parameters{role};
    PrivateServer::instance().administrator(name_).execute(
        "select pg_terminate_backend(pid, 5000) from pg_stat_activity "
        "where usename = $1 and datname = current_database()",
        parameters);
}

bool ServerCompany::waitFor(const std::string& query, const std::string& wanted) const {
    using std::chrono::steady_clock;
    PostgreSQLSession session = PrivateServer::instance().administrator(name_);
    const auto deadline = steady_clock::now() + std::chrono::seconds(30);
    while (steady_clock::now() < deadline) {
        const PostgreSQLResult result = session.execute(query);
        if (PQntuples(result.get()) > 0 && PQgetvalue(result.get(), 0, 0) == wanted) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

TProcedureCall serverCall(const std::string& procedure, std::vector<TDbParam> params) {
    return {procedure, std::move(params), true};
}

std::string rowsOf(Database& database, const std::string& sql) {
    std::string all;
    for (const std::vector<TDbValue>& row : database.Query(sql).Rows) {
        std::string line;
        for (const TDbValue& value : row) {
            line += (line.empty() ? "" : ",") + text(value);
        }
        all += (all.empty() ? "" : "|") + line;
    }
    return all;
}

} // namespace refhost
