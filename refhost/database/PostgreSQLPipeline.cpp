#include "refhost/database/PostgreSQLPipeline.h"

#include "refhost/database/PostgreSQLErrors.h"

#include <poll.h>
#include <utility>

namespace refhost {

namespace {

/// So many statements may be without an answer: enough for a link with a fifth of a second, and little memory.
constexpr std::size_t c_MostUnanswered = 2000;

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
    sendControl("commit"); // of a failed transaction the server makes a rollback
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
    if (!accepted || PQpipelineSync(session_.handle()) != 1) {
        keepLostLink(statement);
        return;
    }
    unanswered_.push_back(std::move(statement));
    handOver();
}

void PostgreSQLPipeline::handOver() {
    int left = PQflush(session_.handle());
    while (left == 1) {
        pollfd link{PQsocket(session_.handle()), POLLIN | POLLOUT, 0};
        poll(&link, 1, -1);
        // The server may be unable to take more before its answers are taken.
        if ((link.revents & POLLIN) != 0 && PQconsumeInput(session_.handle()) != 1) {
            break;
        }
        left = PQflush(session_.handle());
    }
    if (left != 0) {
        keepLostLink(unanswered_.back());
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
    for (ExecStatusType status = PGRES_EMPTY_QUERY; status != PGRES_PIPELINE_SYNC;) {
        PGresult* result = PQgetResult(session_.handle());
        status = PQresultStatus(result);
        if (session_.isLost()) {
            PQclear(result);
            keepLostLink(statement);
            return;
        }
        if (result == nullptr || status == PGRES_PIPELINE_SYNC) {
            PQclear(result);
            continue;
        }
        try {
            session_.checked(result, statement.Statement);
        } catch (const EDatabaseError& error) {
            keep(error, statement);
        }
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
