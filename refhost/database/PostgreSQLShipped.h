#pragma once

#include "refhost/database/PostgreSQLSession.h"

#include <string>
#include <vector>

namespace refhost {

/// Which functions, views and types of the schema "melvark" the program brought. Each bears a comment, "Melvark" and
/// for a function the digest of its text: so an upgrade replaces what is ours, sees what somebody has replaced, and
/// leaves everything else alone. The caller has the transaction and the owner's role.

/// A procedure or function that somebody replaced by one of his own.
struct ReplacedRoutine {
    std::string Name;
    std::string Arguments;  ///< As the server writes them, which tells functions of one name apart.
    std::string Definition; ///< The statement that makes it, or makes it again.
};

/// Gives the comments to what this transaction made.
void markShipped(PostgreSQLSession& session);

/// Functions of ours whose text is not the shipped one, and procedures and functions of conditions that are not ours.
std::vector<ReplacedRoutine> replacedRoutines(PostgreSQLSession& session);

/// Drops what bears our comment and `replaced`. Throws EDatabaseError when something else stands on it.
void dropShipped(PostgreSQLSession& session, const std::vector<ReplacedRoutine>& replaced);

/// Puts a replaced one back in the place of that which was shipped meanwhile. Throws EDatabaseError when that is not
/// possible any more.
void putBack(PostgreSQLSession& session, const ReplacedRoutine& replaced);

} // namespace refhost
