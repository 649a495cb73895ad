#include "benchmarks/database/BareSession.h"

#include "refhost/database/PostgreSQLRows.h"
#include "refhost/database/PostgreSQLSession.h"
#include "refhost/database/SQLiteFunctions.h"
#include "refhost/database/SQLiteStatement.h"

#include <map>

namespace benchmark {

namespace {

constexpr std::string_view c_SQLite = "sqlite:";
constexpr std::string_view c_PostgreSQL = "postgresql:";

class BareSQLite : public BareSession {
public:
    explicit BareSQLite(const std::string& file)
        : session_(file, "novakova", TFormatSettings::Czech(), refhost::OpenMode::Existing, std::chrono::seconds(5)) {
        refhost::registerValueFunctions(session_); // the tables' own checks
        refhost::registerCzech(session_);          // the names' collation
    }

    TResultTable run(const std::string& sql, std::span<const TDbValue> parameters) override {
        auto found = statements_.find(sql);
        if (found == statements_.end()) {
            std::string_view text = sql;
            found = statements_.emplace(sql, refhost::SQLiteStatement(session_, text)).first;
        }
        refhost::SQLiteStatement& statement = found->second;
        const refhost::SQLiteStatementUse use(statement);
        for (std::size_t i = 0; i < parameters.size(); ++i) {
            statement.bind(static_cast<int>(i) + 1, parameters[i]);
        }
        TResultTable table{statement.columns(), {}};
        while (statement.step()) {
            table.Rows.push_back(statement.row());
        }
        return table;
    }
    void script(const std::string& sql) override { session_.execute(sql); }
    std::string decimalType() const override { return "text"; }
    std::string countingKey() const override { return "integer primary key"; }
    void refreshStatistics() override {}

private:
    refhost::SQLiteSession session_;
    std::map<std::string, refhost::SQLiteStatement> statements_;
};

class BarePostgreSQL : public BareSession {
public:
    explicit BarePostgreSQL(const std::string& address) : session_(address, TFormatSettings::Czech()) {}

    TResultTable run(const std::string& sql, std::span<const TDbValue> parameters) override {
        return refhost::resultTable(session_.execute(sql, parameters).get());
    }
    void script(const std::string& sql) override { session_.execute(sql); }
    std::string decimalType() const override { return "numeric"; }
    std::string countingKey() const override { return "integer generated always as identity primary key"; }
    void refreshStatistics() override { session_.execute("analyze"); }

private:
    refhost::PostgreSQLSession session_;
};

} // namespace

std::unique_ptr<BareSession> openBare(const std::string& url, const std::string& user) {
    if (url.starts_with(c_SQLite)) {
        return std::make_unique<BareSQLite>(url.substr(c_SQLite.size()));
    }
    return std::make_unique<BarePostgreSQL>(url.substr(c_PostgreSQL.size()) + " user=" + user);
}

} // namespace benchmark
