#pragma once

#include "refhost/database/SQLiteConnection.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <memory>
#include <string>

namespace refhost {

/// A database file of one test, in a folder of its own that disappears with it.
class SQLiteFile {
public:
    const std::filesystem::path& folder() const { return folder_.path(); }
    const std::filesystem::path& path() const { return path_; }

    /// A connection with Czech formats that waits for nobody.
    std::unique_ptr<SQLiteConnection> open(const std::string& user = "novakova", bool create = true) const;
    /// Creates the company's tables with one warehouse, one supplier, one item ("Mléko", unit "ks"), the rate "12 %"
    /// and two open delivery notes 1 and 2 of 10.3.2026.
    std::unique_ptr<SQLiteConnection> createCompany() const;

private:
    TemporaryFolder folder_{"file"};
    std::filesystem::path path_ = folder() / "company.db";
};

/// A call with texts for parameters that opens its results.
TProcedureCall procedureCall(const std::string& name, std::vector<TDbParam> params = {});

/// The code of the refusal with which `action` ends; "none" when it succeeds.
template <typename Action>
std::string refusalCode(Action action) {
    try {
        action();
    } catch (const EDatabaseError& error) {
        return error.Code();
    }
    return "none";
}

/// A query's rows, its values parted by commas and its rows by bars; null is "-".
std::string rowsText(Database& database, const std::string& sql);

} // namespace refhost
