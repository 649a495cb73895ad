#pragma once

#include "refhost/database/PostgreSQLSession.h"

namespace refhost {

/// Indices over names are in the order of the library that wrote them. When the server has another version of it now,
/// they are made anew before anybody uses them: the first session to notice does it for all. Throws EDatabaseError.
void refreshCollation(PostgreSQLSession& session);

} // namespace refhost
