#include "refhost/database/PostgreSQLSession.h"

#include "host/ValueText.h"
#include "refhost/database/ParameterValues.h"
#include "refhost/database/PostgreSQLErrors.h"
#include "refhost/database/RefusalTable.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <new>
#include <optional>
#include <poll.h>
#include <vector>

namespace refhost {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::chrono::seconds c_OpeningTime{10};
/// In seconds, for each server of an address that names several, unless the address says otherwise.
constexpr const char* c_TimeOfEach = "5";

/// What every session needs beside the user's formats: unqualified names are the company's, another user's save is
/// waited for as long as on the embedded engine, a program that stops in the middle of a call loses its locks after a
/// minute, upgrades are heard of, and short calls are not compiled. The rows of a save lie in temporary tables, which
/// are emptied with their files: each save takes a few buffers that this session has not used before, until it has all
/// of them, 8 MB by default. A hundred are enough, and the rows of 100,000 lines are written as fast. A pooler may
/// hand us a session in which it is too late for that.
constexpr const char* c_SetUp =
    "set search_path = melvark, pg_temp;"
    "set datestyle = 'ISO, YMD';"
    "set lock_timeout = '5s';"
    "set idle_in_transaction_session_timeout = '60s';"
    "set jit = off;"
    "do $$begin set temp_buffers = 100; exception when invalid_parameter_value then null; end$$;"
    "set client_min_messages = error;"
    "set standard_conforming_strings = on;";

const char* dateOrder(TDateOrder order) {
    switch (order) {
    case TDateOrder::DayMonthYear:
        return "DMY";
    case TDateOrder::MonthDayYear:
        return "MDY";
    case TDateOrder::YearMonthDay:
        break;
    }
    return "YMD";
}

/// The value of a word of the address; empty when it is not given.
std::string addressWord(const PQconninfoOption* options, std::string_view keyword) {
    for (const PQconninfoOption* option = options; option->keyword != nullptr; ++option) {
        if (keyword == option->keyword && option->val != nullptr) {
            return option->val;
        }
    }
    return {};
}

/// How long each server of the address may take when it names several; nothing when it names one.
std::optional<std::chrono::seconds> timeOfEach(PGconn* connection) {
    const std::unique_ptr<PQconninfoOption, PostgreSQLDeleter> options(PQconninfo(connection));
    if (!options) {
        throw std::bad_alloc();
    }
    const std::string servers = addressWord(options.get(), "host") + addressWord(options.get(), "hostaddr");
    if (servers.find(',') == std::string::npos) {
        return std::nullopt;
    }
    return std::chrono::seconds(TextToInt(addressWord(options.get(), "connect_timeout")).value_or(0));
}

/// Waits until the link can be read or written; false when the time is over.
bool waitForLink(PGconn* connection, PostgresPollingStatusType wanted, steady_clock::time_point deadline) {
    const auto left = std::chrono::duration_cast<milliseconds>(deadline - steady_clock::now());
    pollfd link{PQsocket(connection), static_cast<short>(wanted == PGRES_POLLING_READING ? POLLIN : POLLOUT), 0};
    return left.count() > 0 && poll(&link, 1, static_cast<int>(left.count())) > 0;
}

/// Asks the server to give up what it does for the session. When this returns it has heard, or cannot be reached.
void requestCancel(PGconn* connection) {
    const std::unique_ptr<PGcancel, PostgreSQLDeleter> cancel(PQgetCancel(connection));
    std::array<char, 256> words{};
    PQcancel(cancel.get(), words.data(), static_cast<int>(words.size()));
}

/// Parameters as the client library takes them: texts or null.
class ParameterTexts {
public:
    explicit ParameterTexts(std::span<const TDbValue> parameters) {
        texts_.reserve(parameters.size()); // the pointers have to stay
        for (const TDbValue& parameter : parameters) {
            const TDbValue& text = texts_.emplace_back(parameterValue(ParameterKind::Text, "sql", parameter));
            const auto* characters = std::get_if<AnsiString>(&text);
            values_.push_back(characters == nullptr ? nullptr : characters->c_str());
        }
    }

    int count() const { return static_cast<int>(values_.size()); }
    const char* const* values() const { return values_.data(); }

private:
    std::vector<TDbValue> texts_;
    std::vector<const char*> values_;
};

void appendCopyText(std::string& line, std::string_view text) {
    for (const char c : text) {
        switch (c) {
        case '\\':
            line += "\\\\";
            break;
        case '\t':
            line += "\\t";
            break;
        case '\n':
            line += "\\n";
            break;
        case '\r':
            line += "\\r";
            break;
        default:
            line += c;
        }
    }
}

std::string copyLine(std::span<const TDbValue> row) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i > 0) {
            line += '\t';
        }
        const TDbValue text = parameterValue(ParameterKind::Text, "row", row[i]);
        if (std::holds_alternative<AnsiString>(text)) {
            appendCopyText(line, std::get<AnsiString>(text));
        } else {
            line += "\\N";
        }
    }
    return line + '\n';
}

} // namespace

PostgreSQLSession::PostgreSQLSession(std::string address, const TFormatSettings& settings, OpenMode mode)
    : address_(std::move(address)), settings_(settings), mode_(mode) {
    const std::unique_ptr<PQconninfoOption, PostgreSQLDeleter> options(PQconninfoParse(address_.c_str(), nullptr));
    if (!options) {
        throw refusal("ML915/words");
    }
    database_ = addressWord(options.get(), "dbname");
    open();
    database_ = PQdb(handle());
    user_ = PQuser(handle());
}

std::string PostgreSQLSession::place() const {
    const std::unique_ptr<PQconninfoOption, PostgreSQLDeleter> options(PQconninfo(handle()));
    if (!options) {
        throw std::bad_alloc();
    }
    std::string place;
    for (const char* word : {"host", "hostaddr", "port"}) {
        place += addressWord(options.get(), word) + '/';
    }
    return place + database_;
}

std::string PostgreSQLSession::version() const {
    const char* const version = PQparameterStatus(handle(), "server_version");
    return version ? version : "?";
}

void PostgreSQLSession::open() {
    // Words of the address come after ours and win. A link that is cut is noticed within a minute or two, whether it
    // was idle or something had been sent.
    constexpr std::array<const char*, 8> c_Words{
        "application_name", "keepalives_idle", "keepalives_interval", "tcp_user_timeout",
        "connect_timeout",  "dbname",          "client_encoding",     nullptr};
    const std::array<const char*, 8> values{"melvark",        "30",   "10",   "60000", c_TimeOfEach,
                                            address_.c_str(), "UTF8", nullptr};
    prepared_.clear();
    handle_.reset(PQconnectStartParams(c_Words.data(), values.data(), 1));
    if (!handle_) {
        throw std::bad_alloc();
    }
    // With all its words, among which is the server's code: an opening that fails leaves nothing else.
    PQsetErrorVerbosity(handle(), PQERRORS_VERBOSE);

    const auto time = timeOfEach(handle());
    const auto deadline = steady_clock::now() + time.value_or(c_OpeningTime);
    bool isTimeOver = false;
    PostgresPollingStatusType status =
        PQstatus(handle()) == CONNECTION_BAD ? PGRES_POLLING_FAILED : PGRES_POLLING_WRITING;
    while (status != PGRES_POLLING_OK && status != PGRES_POLLING_FAILED) {
        isTimeOver = !waitForLink(handle(), status, deadline);
        status = isTimeOver ? PGRES_POLLING_FAILED : PQconnectPoll(handle());
    }
    if (isTimeOver && time) {
        // One that never answers hides those behind it. This way each has its time, though a refusal has no code.
        handle_.reset(PQconnectdbParams(c_Words.data(), values.data(), 1));
        status = PQstatus(handle()) == CONNECTION_OK ? PGRES_POLLING_OK : PGRES_POLLING_FAILED;
    }
    if (status == PGRES_POLLING_FAILED) {
        const char* host = PQhost(handle());
        if (PQconnectionNeedsPassword(handle()) == 1) {
            throw missingPasswordError(database_);
        }
        throw openingError(PQerrorMessage(handle()), database_, host == nullptr ? "" : host);
    }
    PQsetErrorVerbosity(handle(), PQERRORS_VERBOSE);
    setUp();
}

void PostgreSQLSession::setUp() {
    execute(std::string(c_SetUp).append("listen ").append(c_UpgradeChannel));
    const std::vector<TDbValue> formats{AnsiString(1, settings_.DecimalSeparator),
                                        AnsiString(dateOrder(settings_.DateOrder)),
                                        AnsiString(1, settings_.DateSeparator)};
    execute("select set_config('melvark.decimal_separator', $1, false), set_config('melvark.date_order', $2, false), "
            "set_config('melvark.date_separator', $3, false)",
            formats);
    if (mode_ == OpenMode::ReadingOnly) {
        execute("set default_transaction_read_only = on");
    }
}

void PostgreSQLSession::reconnect() {
    open();
}

bool PostgreSQLSession::isUpgraded() {
    PQconsumeInput(handle()); // a lost link is for the next statement to notice
    const std::unique_ptr<PGnotify, PostgreSQLDeleter> news(PQnotifies(handle()));
    isUpgraded_ = isUpgraded_ || news != nullptr;
    return isUpgraded_;
}

PostgreSQLResult PostgreSQLSession::checked(PGresult* result, std::string_view statement) const {
    PostgreSQLResult owned(result);
    if (isLost()) {
        throw lostLinkError(database_, PQerrorMessage(handle()), statement);
    }
    switch (PQresultStatus(owned.get())) {
    case PGRES_EMPTY_QUERY: // a script of comments only
    case PGRES_COMMAND_OK:
    case PGRES_TUPLES_OK:
    case PGRES_COPY_IN:
        return owned;
    default:
        throw statementError(owned.get(), database_, statement);
    }
}

PGresult* PostgreSQLSession::awaited(int isSent) const {
    PostgreSQLResult last;
    while (isSent == 1) {
        awaitResult();
        PGresult* const result = PQgetResult(handle());
        if (result == nullptr) {
            break;
        }
        last.reset(result);
        if (isLost()) {
            break;
        }
    }
    return last.release();
}

void PostgreSQLSession::awaitResult() const {
    while (PQisBusy(handle()) == 1) {
        awaitLink(POLLIN);
        if (PQconsumeInput(handle()) != 1) {
            return;
        }
    }
}

// A request that comes when the server is between two statements does nothing, so that it is made again.
short PostgreSQLSession::awaitLink(short events) const {
    constexpr int c_MillisecondsBetweenLooks = 100;
    pollfd link{PQsocket(handle()), events, 0};
    while (link.fd >= 0 && poll(&link, 1, c_MillisecondsBetweenLooks) <= 0) {
        if (stop_ != nullptr && stop_->isRequested()) {
            requestCancel(handle());
        }
    }
    return link.revents;
}

PostgreSQLResult PostgreSQLSession::execute(const std::string& sql) {
    return checked(awaited(PQsendQuery(handle(), sql.c_str())), sql);
}

void PostgreSQLSession::prepare(const std::string& sql) {
    if (isPrepared(sql)) {
        return;
    }
    const std::string name = "melvark_" + std::to_string(prepared_.size());
    checked(awaited(PQsendPrepare(handle(), name.c_str(), sql.c_str(), 0, nullptr)), sql);
    prepared_.emplace(sql, name);
}

PostgreSQLResult PostgreSQLSession::execute(const std::string& sql, std::span<const TDbValue> parameters) {
    prepare(sql);
    return checked(awaited(send(sql, parameters) ? 1 : 0), sql);
}

bool PostgreSQLSession::send(const std::string& sql, std::span<const TDbValue> parameters) {
    const ParameterTexts texts(parameters);
    return PQsendQueryPrepared(handle(), prepared_.at(sql).c_str(), texts.count(), texts.values(), nullptr, nullptr,
                               0) == 1;
}

PostgreSQLResult PostgreSQLSession::describe(const std::string& sql) {
    checked(awaited(PQsendPrepare(handle(), "", sql.c_str(), 0, nullptr)), sql);
    return checked(awaited(PQsendDescribePrepared(handle(), "")), sql);
}

PostgreSQLResult PostgreSQLSession::executeDescribed(const std::string& sql) {
    return checked(awaited(PQsendQueryPrepared(handle(), "", 0, nullptr, nullptr, nullptr, 0)), sql);
}

void PostgreSQLSession::sendCopyData(std::string_view text, std::string_view statement) const {
    if (PQputCopyData(handle(), text.data(), static_cast<int>(text.size())) != 1) {
        throw lostLinkError(database_, PQerrorMessage(handle()), statement);
    }
}

void PostgreSQLSession::copy(const std::string& statement, std::span<const std::vector<TDbValue>> rows) {
    constexpr std::size_t c_Portion = 1U << 16U;
    std::string text;
    for (const std::vector<TDbValue>& row : rows) {
        text += copyLine(row);
    }
    checked(PQexec(handle(), statement.c_str()), statement);
    for (std::string_view left = text; !left.empty(); left.remove_prefix(std::min(c_Portion, left.size()))) {
        sendCopyData(left.substr(0, c_Portion), statement);
    }
    if (PQputCopyEnd(handle(), nullptr) != 1) {
        throw lostLinkError(database_, PQerrorMessage(handle()), statement);
    }
    checked(PQgetResult(handle()), statement);
    PostgreSQLResult(PQgetResult(handle())).reset(); // the end of the results
}

std::string PostgreSQLSession::quoted(std::string_view name) const {
    const std::unique_ptr<char, PostgreSQLDeleter> text(PQescapeIdentifier(handle(), name.data(), name.size()));
    if (!text) {
        throw refusal("ML009/name", {shownText(name)});
    }
    return text.get();
}

PostgreSQLTransaction::PostgreSQLTransaction(PostgreSQLSession& session, Kind kind)
    : session_(session), isOpen_(PQtransactionStatus(session.handle()) == PQTRANS_IDLE) {
    if (isOpen_) {
        session_.execute(kind == Kind::Reading ? "begin read only" : "begin");
    }
}

PostgreSQLTransaction::~PostgreSQLTransaction() {
    // A rollback fails only on a lost link, and then the server has rolled back.
    if (isOpen_) {
        PostgreSQLResult(PQexec(session_.handle(), "rollback")).reset();
    }
}

void PostgreSQLTransaction::commit() {
    if (isOpen_) {
        session_.execute("commit");
        isOpen_ = false;
    }
}

} // namespace refhost
