#pragma once

#include "refhost/database/SQLiteSession.h"

namespace refhost {

/// Indices over names are in the order of the library that wrote them; the file remembers its version (table RAZENI).

/// Notes the library's version after the indices were made; the caller has the transaction.
void stampCollation(SQLiteSession& session);

/// Makes the indices anew when the library has another version now, before anybody uses them. Throws EDatabaseError.
void refreshCollation(SQLiteSession& session);

} // namespace refhost
