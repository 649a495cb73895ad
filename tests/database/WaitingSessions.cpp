#include "tests/database/WaitingSessions.h"

#include "host/Exceptions.h"
#include "tests/database/Answers.h"
#include "tests/database/ContractCompany.h"

#include <chrono>
#include <future>

namespace refhost {

namespace {

using std::chrono::milliseconds;

/// Thrown to take a transaction back.
struct TakenBack {};

std::int64_t processOf(Database& database) {
    return std::get<std::int64_t>(database.Query("select pg_backend_pid()").Rows.at(0).at(0));
}

bool hasEnded(const std::future<std::string>& work) {
    return work.wait_for(milliseconds(5)) == std::future_status::ready;
}

} // namespace

WaitingSessions::WaitingSessions() {
    addContractCompany(*openAs(url_, "novakova"));
    administrator_ = openAs(url_, "postgres");
}

std::string WaitingSessions::outcomeOf(const Encounter& encounter) const {
    const auto first = openAs(url_, "novakova");
    const std::int64_t process = processOf(*first);
    std::future<std::string> second;
    std::string told;
    try {
        first->inOneTransaction([&] {
            told = encounter.First(*first);
            second =
                std::async(std::launch::async, [&] { return encounter.Second(*openAs(url_, encounter.SecondUser)); });
            bool isWaiting = false;
            while (!isWaiting && !hasEnded(second)) {
                isWaiting = holdsUp(process);
            }
            told += isWaiting ? "waited, " : "did not wait, ";
            if (encounter.Meanwhile) {
                told += encounter.Meanwhile(*first);
            }
            if (encounter.IsTakenBack) {
                throw TakenBack();
            }
        });
    } catch (const TakenBack&) {
        told += "alone, ";
    }
    const std::string toldSecond = second.get();
    return told + (toldSecond.empty() ? "accepted" : toldSecond);
}

bool WaitingSessions::holdsUp(std::int64_t process) const {
    return look("select count(*) from pg_stat_activity where wait_event_type = 'Lock' and " + std::to_string(process) +
                " = any (pg_blocking_pids(pid))") != "0";
}

std::string WaitingSessions::look(const std::string& sql) const {
    return rows(*administrator_, sql);
}

void WaitingSessions::change(const std::string& sql) const {
    administrator_->runScript(sql);
}

SessionWork callOf(const std::string& procedure, std::vector<TDbParam> parameters) {
    return [call = TProcedureCall{"MELVARKEDITOR" + procedure, std::move(parameters), true}](Database& database) {
        try {
            database.Execute(call);
            return std::string();
        } catch (const EDatabaseError& error) {
            return error.Code();
        }
    };
}

SessionWork statementOf(const std::string& sql) {
    return [sql](Database& database) {
        database.runScript(sql);
        return std::string();
    };
}

} // namespace refhost
