#include "refhost/TracingConnection.h"

#include "host/Exceptions.h"
#include "refhost/Trace.h"

#include <chrono>
#include <exception>

namespace refhost {

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// How a call that threw ended.
TracedOutcome outcomeOf(const std::exception& error, Clock::time_point start) {
    const auto* refusal = dynamic_cast<const EDatabaseError*>(&error);
    return {.error = error.what(),
            .code = refusal == nullptr ? std::string() : refusal->Code(),
            .row = refusal == nullptr ? std::nullopt : refusal->Row(),
            .milliseconds = millisecondsSince(start)};
}

std::size_t countRows(const TCallResult& result) {
    std::size_t rows = 0;
    for (const TResultTable& set : result.Sets) {
        rows += set.Rows.size();
    }
    return rows;
}

} // namespace

TracingConnection::TracingConnection(TConnection& connection, Trace& trace) : connection_(connection), trace_(trace) {}

TProcedureInfo TracingConnection::Describe(const AnsiString& procedure) {
    return connection_.Describe(procedure);
}

TCallResult TracingConnection::Execute(const TProcedureCall& call) {
    const Clock::time_point start = Clock::now();
    try {
        TCallResult result = connection_.Execute(call);
        trace_.procedure(
            call, {.rows = countRows(result), .isAnswered = result.Answered, .milliseconds = millisecondsSince(start)});
        return result;
    } catch (const std::exception& error) {
        trace_.procedure(call, outcomeOf(error, start));
        throw;
    }
}

TResultTable TracingConnection::Query(const AnsiString& sql) {
    const Clock::time_point start = Clock::now();
    try {
        TResultTable result = connection_.Query(sql);
        trace_.query(sql, {.rows = result.Rows.size(), .milliseconds = millisecondsSince(start)});
        return result;
    } catch (const std::exception& error) {
        trace_.query(sql, outcomeOf(error, start));
        throw;
    }
}

} // namespace refhost
