#include "refhost/database/PostgreSQLPipeline.h"

#include "refhost/database/PostgreSQLErrors.h"

#include <poll.h>
#include <utility>

namespace refhost {

namespace {

/// So many statements may be without an answer: enough for a link with a fifth of a second, and little memory.
constexpr std::size_t c_MostUnanswered = 2000;
/// So many statements are handed over together: waking the server for each, and it the client, costs more than a row.
constexpr std::size_t c_Portion = 16;

} // namespace

void PostgreSQLPipeline::send(const std::string& sql, std::span<const TDbValue> parameters, int row) {
    if (!session_.isPrepared(sql)) {
        finish(); // nothing can be prepared beside rows that travel
        session_.prepare(sql);
    }
    if (!isOpen_) {
        open();
    }
    sent(session_.send(sql, parameters), {sql, row});
    if (++gathered_ < c_Portion) {
        return;
    }
    endPortion();
    handOver();
    takeArrived();
    while (unanswered_.size() > c_MostUnanswered) {
        takeAnswer();
    }
}

void PostgreSQLPipeline::open() {
    isOpen_ = true;
    PQenterPipelineMode(session_.handle()); // fails on a lost link only, which the next line tells
    PQsetnonblocking(session_.handle(), 1); // one that blocks could wait for the server while that waits for us
    sendControl("begin");
}

void PostgreSQLPipeline::finish() {
    if (!isOpen_) {
        return;
    }
    endPortion();          // else a refused row would take the next statement with it
    sendControl("commit"); // of a failed transaction the server makes a rollback
    endPortion();
    handOver();
    while (!unanswered_.empty()) {
        takeAnswer();
    }
    PQexitPipelineMode(session_.handle());
    PQsetnonblocking(session_.handle(), 0);
    isOpen_ = false;
}

void PostgreSQLPipeline::sendControl(const char* statement) {
    sent(PQsendQueryParams(session_.handle(), statement, 0, nullptr, nullptr, nullptr, nullptr, 0) == 1,
         {statement, std::nullopt});
}

void PostgreSQLPipeline::sent(bool accepted, Sent statement) {
    if (!accepted) {
        keepLostLink(statement);
        return;
    }
    unanswered_.push_back(std::move(statement));
}

void PostgreSQLPipeline::endPortion() {
    gathered_ = 0;
    sent(PQpipelineSync(session_.handle()) == 1, {"sync", std::nullopt});
}

void PostgreSQLPipeline::handOver() {
    int left = PQflush(session_.handle());
    while (left == 1) {
        // The server may be unable to take more before its answers are taken.
        if ((session_.awaitLink(POLLIN | POLLOUT) & POLLIN) != 0 && PQconsumeInput(session_.handle()) != 1) {
            break;
        }
        left = PQflush(session_.handle());
    }
    if (left != 0) {
        keepLostLink({"flush", std::nullopt});
    }
}

void PostgreSQLPipeline::takeArrived() {
    while (!unanswered_.empty() && PQconsumeInput(session_.handle()) == 1 && PQisBusy(session_.handle()) == 0) {
        takeAnswer();
    }
}

void PostgreSQLPipeline::takeAnswer() {
    const Sent statement = std::move(unanswered_.front());
    unanswered_.pop_front();
    session_.awaitResult();
    // A statement's answer ends with none, a mark's is itself.
    while (PGresult* result = PQgetResult(session_.handle())) {
        if (PQresultStatus(result) == PGRES_PIPELINE_SYNC) {
            PQclear(result);
            return;
        }
        try {
            session_.checked(result, statement.Statement);
        } catch (const EDatabaseError& error) {
            keep(error, statement);
        }
    }
    if (session_.isLost()) {
        keepLostLink(statement);
    }
}

void PostgreSQLPipeline::keep(const EDatabaseError& error, const Sent& statement) {
    if (failure_) {
        return;
    }
    const bool isAboutRow = statement.Row && !error.Row() && error.Cause() == TDatabaseCause::Refusal;
    failure_ = isAboutRow ? error.AboutRow(*statement.Row) : error;
}

void PostgreSQLPipeline::keepLostLink(const Sent& statement) {
    keep(lostLinkError(session_.database(), PQerrorMessage(session_.handle()), statement.Statement), statement);
    unanswered_.clear();
}

} // namespace refhost
