#pragma once

#include "tests/database/Engines.h"

#include <functional>
#include <string>

namespace refhost {

/// What a session does; it tells what it was told.
using SessionWork = std::function<std::string(Database&)>;

/// Two sessions of the server, the second of which comes upon what the first one has not committed yet.
struct Encounter {
    SessionWork First;
    SessionWork Second;
    SessionWork Meanwhile = nullptr;     ///< Done by the first one while the second one waits.
    bool IsTakenBack = false;            ///< The first one's work ends with a rollback.
    std::string SecondUser = "novakova"; ///< The first one's user is "novakova".
};

/// The company of ContractCompany.h on the server, for sessions that meet.
class WaitingSessions {
public:
    WaitingSessions();

    /// The second one begins when the first one's work is done, and the first one ends its transaction when the second
    /// one is seen waiting for it or has ended. Tells what both were told, the second one's after "waited, " or "did
    /// not wait, ".
    std::string outcomeOf(const Encounter& encounter) const;

    /// What a query of the administrator's brings, as rows() tells it.
    std::string look(const std::string& sql) const;
    /// A statement of the administrator's.
    void change(const std::string& sql) const;

private:
    /// Whether a session is held up by that process of the server's.
    bool holdsUp(std::int64_t process) const;

    std::string url_ = newDatabaseUrl(Engine::PostgreSQL);
    std::unique_ptr<Database> administrator_;
};

/// A call as a work: the code of its refusal, empty when it was accepted.
SessionWork callOf(const std::string& procedure, std::vector<TDbParam> parameters = {});
/// A statement as a work, which tells nothing.
SessionWork statementOf(const std::string& sql);

} // namespace refhost
