#pragma once

#include "host/Exceptions.h"
#include "refhost/database/PostgreSQLSession.h"

#include <deque>
#include <optional>
#include <span>
#include <string>

namespace refhost {

/// The rows of a save on their way to the server: each is sent without waiting for the answers of those before it. All
/// that are sent without a break are one transaction, which costs the server a fraction of one for each; it ends with
/// finish(), when every answer is there. The server counts a session that waits inside it as idle in a transaction.
///
/// The first failure is kept, those after it are its consequences. It knows no save and no procedure, and never opens a
/// lost link anew. While it is open the session may be used for nothing else: call finish() first.
class PostgreSQLPipeline {
public:
    explicit PostgreSQLPipeline(PostgreSQLSession& session) : session_(session) {}

    bool isOpen() const { return isOpen_; }

    /// Puts one statement on its way; a portion of them is handed over to the server together, and the answers that
    /// have come meanwhile are taken. Waits only while very many are missing, or while the server takes nothing more.
    /// `row` is the row that a refusal of it is about. Throws EDatabaseError only when the statement cannot be
    /// prepared: then it was not sent.
    void send(const std::string& sql, std::span<const TDbValue> parameters, int row);

    /// Waits for all answers and ends the transaction: what was sent has lasted, or, after a failure, nothing of it.
    void finish();

    /// The first failure of which an answer has told, about its row when the row is at fault.
    const std::optional<EDatabaseError>& failure() const { return failure_; }
    /// Forgets it.
    void forgetFailure() { failure_.reset(); }

private:
    /// A statement without its answer; those that begin and end the transaction have no row, nor has the mark at a
    /// portion's end, at which the server answers all of it.
    struct Sent {
        std::string Statement;
        std::optional<int> Row;
    };

    void open();
    void sendControl(const char* statement);
    void sent(bool accepted, Sent statement);
    /// Marks the end of a portion: what is refused in it takes the rest of it along, but nothing behind the mark.
    void endPortion();
    /// Gives the server all that was sent.
    void handOver();
    void takeArrived();
    void takeAnswer();
    void keep(const EDatabaseError& error, const Sent& statement);
    void keepLostLink(const Sent& statement);

    PostgreSQLSession& session_;
    bool isOpen_ = false;
    std::deque<Sent> unanswered_;
    std::size_t gathered_ = 0; ///< Statements that are not handed over yet.
    std::optional<EDatabaseError> failure_;
};

} // namespace refhost
