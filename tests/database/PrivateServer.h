#pragma once

#include "tests/support/TemporaryFolder.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace refhost {

class PostgreSQLSession;

/// The database server of a test program: packaging/private-server in a temporary folder. It starts at its first use
/// and goes with the program, also when that ends badly.
class PrivateServer {
public:
    static PrivateServer& instance();
    /// Before its first use: it waits for its disk, as a company's server does.
    static void waitForDisk() { options_.clear(); }
    PrivateServer(const PrivateServer&) = delete;
    PrivateServer& operator=(const PrivateServer&) = delete;
    ~PrivateServer();

    /// A new database with the schema and nothing in it; returns its name.
    std::string newDatabase();
    /// A new database without the schema; returns its name.
    std::string newEmptyDatabase();
    /// A role that logs in and is a member of `group`: "melvark_owner" for one who also prepares a test's data,
    /// "melvark_clerk" for a clerk, "pg_monitor" for one who has nothing to do here. Nothing when it is there already.
    void addRole(const std::string& name, const std::string& group);

    /// The words with which `role` connects.
    std::string address(const std::string& database, const std::string& role) const;
    /// A session of the server's administrator.
    PostgreSQLSession administrator(const std::string& database) const;
    const std::filesystem::path& folder() const { return folder_.path(); }
    /// How many lines of the server's log end so.
    std::int64_t loggedLines(std::string_view end) const;

    /// Kills the server in the middle of whatever it does, and starts it again: what was not committed is gone.
    void crash() const;

private:
    PrivateServer();
    explicit PrivateServer(const std::string& folderKind) : folder_(folderKind) {}
    void start() const;
    void run(const std::string& command) const;
    std::string copyOf(const std::string& model);

    inline static std::string options_ = "--without-fsync";

    TemporaryFolder folder_;
    int databases_ = 0;
};

} // namespace refhost
