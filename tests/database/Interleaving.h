#pragma once

#include "tests/database/Contract.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace refhost {

/// One thing that a session does: a call of a procedure, or with an empty name a statement of SQL.
struct SessionStep {
    std::string Procedure;
    Parameters Params;
    std::string Sql = {};
};

SessionStep step(const std::string& procedure, Parameters parameters = {});
SessionStep statement(const std::string& sql);

/// Two sessions whose steps may come in any order, each step as a whole. SQL is of the kind that both engines take.
struct SessionPair {
    std::string Name;    ///< As a name of a test.
    std::string Restore; ///< Brings the company to where each order of the steps begins.
    std::vector<SessionStep> First;
    std::vector<SessionStep> Second;
    std::string Picture;         ///< What is looked at in the end, a query.
    std::string FirstThenSecond; ///< How it ends, as endOf() tells it, when the second one begins after the first.
    std::string SecondThenFirst;
    std::vector<std::string> OtherEnds = {}; ///< What else is right; each comes in some order.
    std::string SecondUser = "novakova";     ///< The first one's user is "novakova".
};

std::ostream& operator<<(std::ostream& stream, const SessionPair& pair);

/// All orders of so many steps of the first and of the second session: "112" is two steps of the first, then one of the
/// second. By the alphabet.
std::vector<std::string> ordersOf(std::size_t first, std::size_t second);

/// Runs the steps of both sessions on one company, order after order.
class Interleaving {
public:
    Interleaving(const SessionPair& pair, const std::string& url);

    /// How the sessions end in this order: what the first one was told, what the second one was told, and the picture,
    /// "accepted / ML011\n1 | 5". What a session was told are the codes of its refusals and the outputs of its
    /// questions, "accepted" when there was neither.
    std::string endOf(const std::string& order);

private:
    const SessionPair& pair_;
    std::unique_ptr<Database> observer_;
    std::unique_ptr<Database> first_;
    std::unique_ptr<Database> second_;
};

/// Holds every order of the pair's steps against what the pair says of it.
void expectRightEnds(const SessionPair& pair, Engine engine);

} // namespace refhost
