#include "benchmarks/editors/BareCalls.h"

#include "host/FormatSettings.h"
#include "refhost/database/EmbeddedSql.h"
#include "refhost/database/ParameterValues.h"
#include "refhost/database/PostgreSQLSession.h"
#include "refhost/database/SqlScript.h"
#include "tests/database/Engines.h"

#include <algorithm>
#include <deque>
#include <libpq-fe.h>
#include <map>
#include <sqlite3.h>
#include <stdexcept>
#include <vector>

namespace benchmark {

namespace {

constexpr std::string_view c_SQLite = "sqlite:";
constexpr std::string_view c_PostgreSQL = "postgresql:";

/// The values of a call as integers, texts and nulls.
std::vector<TDbValue> plainValues(const TProcedureCall& call) {
    std::vector<TDbValue> values;
    for (const TDbParam& param : call.Params) {
        if (const auto* flag = std::get_if<bool>(&param.Value)) {
            values.emplace_back(std::int64_t{*flag});
        } else if (std::holds_alternative<double>(param.Value)) {
            values.push_back(refhost::parameterValue(refhost::ParameterKind::Text, param.Name, param.Value));
        } else {
            values.push_back(param.Value);
        }
    }
    return values;
}

class BareSQLiteCalls : public BareCalls {
public:
    BareSQLiteCalls(const std::string& url, const std::string& user) {
        // The procedures stand on functions and temporary tables that only a whole connection makes; its handle is
        // taken while it opens.
        const auto keepHandle = reinterpret_cast<void (*)()>(keepOpened);
        sqlite3_auto_extension(keepHandle);
        database_ = refhost::openAs(url, user);
        sqlite3_cancel_auto_extension(keepHandle);
        handle_ = opened_;
    }
    BareSQLiteCalls(const BareSQLiteCalls&) = delete;
    BareSQLiteCalls& operator=(const BareSQLiteCalls&) = delete;
    ~BareSQLiteCalls() override {
        for (const auto& [name, steps] : procedures_) {
            for (const Step& step : steps) {
                sqlite3_finalize(step.Statement);
            }
        }
    }

    std::size_t run(const TProcedureCall& call) override {
        const std::vector<TDbValue> values = plainValues(call);
        std::size_t bytes = 0;
        control("begin");
        for (const Step& step : procedure(call)) {
            bytes += runStep(step, values);
        }
        control("commit");
        return bytes;
    }
    void save(std::span<const TProcedureCall> calls) override {
        for (const TProcedureCall& call : calls) {
            run(call);
        }
    }
    std::int64_t process() const override { return 0; }

private:
    struct Step {
        sqlite3_stmt* Statement;
        std::vector<std::size_t> Params; ///< For each place of the statement the call's parameter.
    };

    static int keepOpened(sqlite3* handle, char**, const sqlite3_api_routines*) {
        opened_ = handle;
        return SQLITE_OK;
    }

    /// Calls of a procedure name their parameters in one order, so that the first one tells the places of all.
    const std::vector<Step>& procedure(const TProcedureCall& call) {
        std::vector<Step>& steps = procedures_[call.Name];
        if (!steps.empty()) {
            return steps;
        }
        steps = prepared(refhost::builtInScript("procedures/" + call.Name + ".sql", refhost::sqliteFiles()).Text, call);
        return steps;
    }

    void control(const char* sql) {
        std::vector<Step>& steps = procedures_[sql];
        if (steps.empty()) {
            steps = prepared(sql, {});
        }
        runStep(steps.front(), {});
    }

    std::vector<Step> prepared(const std::string& script, const TProcedureCall& call) {
        std::vector<Step> steps;
        for (const char* sql = script.c_str(); *sql != '\0';) {
            sqlite3_stmt* statement = nullptr;
            if (sqlite3_prepare_v3(handle_, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, &sql) != SQLITE_OK) {
                throw std::runtime_error(sqlite3_errmsg(handle_));
            }
            if (statement != nullptr) {
                steps.push_back({statement, places(statement, call)});
            }
        }
        return steps;
    }

    static std::vector<std::size_t> places(sqlite3_stmt* statement, const TProcedureCall& call) {
        std::vector<std::size_t> found;
        for (int i = 1; i <= sqlite3_bind_parameter_count(statement); ++i) {
            std::size_t place = 0;
            while (place < call.Params.size() &&
                   !SameDbName(call.Params[place].Name, sqlite3_bind_parameter_name(statement, i) + 1)) {
                ++place;
            }
            found.push_back(place);
        }
        return found;
    }

    static void bind(sqlite3_stmt* statement, int place, const TDbValue& value) {
        if (const auto* number = std::get_if<std::int64_t>(&value)) {
            sqlite3_bind_int64(statement, place, *number);
        } else if (const auto* text = std::get_if<AnsiString>(&value)) {
            sqlite3_bind_text(statement, place, text->data(), static_cast<int>(text->size()), SQLITE_STATIC);
        } else {
            sqlite3_bind_null(statement, place);
        }
    }

    std::size_t runStep(const Step& step, const std::vector<TDbValue>& values) {
        for (std::size_t i = 0; i < step.Params.size(); ++i) {
            if (step.Params[i] < values.size()) { // else it stays null
                bind(step.Statement, static_cast<int>(i) + 1, values[step.Params[i]]);
            }
        }
        std::size_t bytes = 0;
        int status = SQLITE_ROW;
        while ((status = sqlite3_step(step.Statement)) == SQLITE_ROW) {
            for (int column = 0; column < sqlite3_column_count(step.Statement); ++column) {
                sqlite3_column_text(step.Statement, column);
                bytes += static_cast<std::size_t>(sqlite3_column_bytes(step.Statement, column));
            }
        }
        sqlite3_reset(step.Statement);
        if (status != SQLITE_DONE) {
            throw std::runtime_error(sqlite3_errmsg(handle_));
        }
        return bytes;
    }

    static inline sqlite3* opened_ = nullptr;
    std::unique_ptr<refhost::Database> database_;
    sqlite3* handle_ = nullptr;
    std::map<std::string, std::vector<Step>> procedures_;
};

class BarePostgreSQLCalls : public BareCalls {
public:
    BarePostgreSQLCalls(const std::string& address, int goesAhead)
        : session_(address, TFormatSettings::Czech()), goesAhead_(static_cast<std::size_t>(goesAhead)) {}

    std::size_t run(const TProcedureCall& call) override {
        const std::string& statement = prepared(call);
        const Values values(call);
        PGresult* const result =
            PQexecPrepared(session_.handle(), statement.c_str(), values.count(), values.data(), nullptr, nullptr, 0);
        check(result);
        std::size_t bytes = 0;
        for (int row = 0; row < PQntuples(result); ++row) {
            for (int column = 0; column < PQnfields(result); ++column) {
                bytes += static_cast<std::size_t>(PQgetlength(result, row, column));
            }
        }
        PQclear(result);
        return bytes;
    }
    void save(std::span<const TProcedureCall> calls) override {
        run(calls.front());
        const std::span<const TProcedureCall> rows = calls.subspan(1, calls.size() - 2);
        const std::string& statement = prepared(rows.front());
        session_.execute("begin");
        PQenterPipelineMode(session_.handle());
        std::deque<std::size_t> unanswered; // how many rows each go has
        for (std::size_t first = 0; first < rows.size(); first += c_Together) {
            const auto together = rows.subspan(first, std::min(c_Together, rows.size() - first));
            sendTogether(statement, together);
            unanswered.push_back(together.size());
            if (unanswered.size() == goesAhead_) {
                takeAnswers(unanswered.front());
                unanswered.pop_front();
            }
        }
        for (const std::size_t count : unanswered) {
            takeAnswers(count);
        }
        PQexitPipelineMode(session_.handle());
        session_.execute("commit");
        run(calls.back());
    }
    std::int64_t process() const override { return PQbackendPID(session_.handle()); }

private:
    /// So few rows that the server can take them and answer them without waiting for us.
    static constexpr std::size_t c_Together = 200;

    /// A call's values as the library takes them.
    class Values {
    public:
        explicit Values(const TProcedureCall& call) : held_(plainValues(call)) {
            for (TDbValue& value : held_) {
                if (const auto* number = std::get_if<std::int64_t>(&value)) {
                    value = std::to_string(*number);
                }
                const auto* characters = std::get_if<AnsiString>(&value);
                values_.push_back(characters ? characters->c_str() : nullptr);
            }
        }

        int count() const { return static_cast<int>(values_.size()); }
        const char* const* data() const { return values_.data(); }

    private:
        std::vector<TDbValue> held_;
        std::vector<const char*> values_;
    };

    void sendTogether(const std::string& statement, std::span<const TProcedureCall> rows) {
        for (const TProcedureCall& row : rows) {
            const Values values(row);
            PQsendQueryPrepared(session_.handle(), statement.c_str(), values.count(), values.data(), nullptr, nullptr,
                                0);
        }
        PQpipelineSync(session_.handle());
    }
    void takeAnswers(std::size_t count) {
        for (std::size_t row = 0; row < count; ++row) {
            PGresult* const result = PQgetResult(session_.handle());
            check(result);
            PQclear(result);
            PQgetResult(session_.handle()); // the null that ends a statement's results
        }
        PQclear(PQgetResult(session_.handle())); // the answer to the synchronisation
    }

    const std::string& prepared(const TProcedureCall& call) {
        std::string& name = prepared_[call.Name];
        if (!name.empty()) {
            return name;
        }
        name = "bare_" + std::to_string(prepared_.size());
        std::string sql = (call.Open ? "select * from melvark." : "select melvark.") + call.Name + "(";
        for (std::size_t i = 0; i < call.Params.size(); ++i) {
            sql += (i == 0 ? "" : ", ") + call.Params[i].Name + " => $" + std::to_string(i + 1);
        }
        PGresult* const result = PQprepare(session_.handle(), name.c_str(), (sql + ")").c_str(), 0, nullptr);
        check(result);
        PQclear(result);
        return name;
    }
    void check(const PGresult* result) const {
        const ExecStatusType status = PQresultStatus(result);
        if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK) {
            throw std::runtime_error(PQerrorMessage(session_.handle()));
        }
    }

    refhost::PostgreSQLSession session_; // its formats are those in which the texts come
    std::size_t goesAhead_;
    std::map<std::string, std::string> prepared_;
};

} // namespace

std::unique_ptr<BareCalls> openBareCalls(const std::string& url, const std::string& user, int goesAhead) {
    if (url.starts_with(c_SQLite)) {
        return std::make_unique<BareSQLiteCalls>(url, user);
    }
    return std::make_unique<BarePostgreSQLCalls>(url.substr(c_PostgreSQL.size()) + " user=" + user, goesAhead);
}

} // namespace benchmark
