#include "tests/database/PrivateServer.h"

#include "host/Exceptions.h"
#include "refhost/database/PostgreSQLSchema.h"
#include "tests/database/KilledServer.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <unistd.h>

namespace refhost {

namespace {

/// From which new databases are copied: much faster than making the schema anew.
constexpr const char* c_Model = "melvark_model";

} // namespace

PrivateServer& PrivateServer::instance() {
    static PrivateServer server;
    return server;
}

// The folder is there when the other constructor has ended, so that the destructor stops the server also when this one
// fails.
PrivateServer::PrivateServer() : PrivateServer("server") {
    start();
    try {
        administrator("postgres").execute(std::string("create database ") + c_Model);
        PostgreSQLSession session = administrator(c_Model);
        createPostgreSQLSchema(session);
    } catch (const EDatabaseError& error) {
        throw std::runtime_error(error.Message() + "\n" + error.Details());
    }
}

PrivateServer::~PrivateServer() {
    try {
        run("stop '" + folder().string() + "'");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
}

void PrivateServer::start() const {
    run("start '" + folder().string() + "' " + options_ + " --until-exit-of " + std::to_string(getpid()));
}

std::int64_t PrivateServer::loggedLines(std::string_view end) const {
    std::ifstream log(folder() / "log");
    std::int64_t count = 0;
    for (std::string line; std::getline(log, line);) {
        count += line.ends_with(end) ? 1 : 0;
    }
    return count;
}

void PrivateServer::crash() const {
    killServer(folder());
    std::filesystem::remove(folder() / "data/postmaster.pid"); // else the next one doubts that it is gone
    start();
}

void PrivateServer::run(const std::string& command) const {
    const std::string line = "'" MELVARK_SOURCE_DIR "/packaging/private-server' " + command + " >/dev/null";
    if (std::system(line.c_str()) != 0) {
        throw std::runtime_error("failed: " + line);
    }
}

std::string PrivateServer::copyOf(const std::string& model) {
    const std::string name = "company" + std::to_string(++databases_);
    administrator("postgres").execute("create database " + name + " template " + model + " strategy file_copy");
    return name;
}

std::string PrivateServer::newDatabase() {
    const std::string name = copyOf(c_Model);
    // Rights to the database itself are no part of the copy.
    administrator("postgres")
        .execute("revoke temporary on database " + name + " from public;" + "grant temporary on database " + name +
                 " to melvark_owner");
    return name;
}

std::string PrivateServer::newEmptyDatabase() {
    return copyOf("template0");
}

void PrivateServer::addRole(const std::string& name, const std::string& group) {
    PostgreSQLSession session = administrator("postgres");
    const std::vector<TDbValue> parameters{name};
    if (PQntuples(session.execute("select from pg_roles where rolname = $1", parameters).get()) == 0) {
        session.execute("create role " + session.quoted(name) + " login in role " + session.quoted(group));
    }
}

std::string PrivateServer::address(const std::string& database, const std::string& role) const {
    return "host=" + folder().string() + " dbname=" + database + " user=" + role;
}

PostgreSQLSession PrivateServer::administrator(const std::string& database) const {
    return PostgreSQLSession(address(database, "postgres"), TFormatSettings{});
}

} // namespace refhost
