#pragma once

#include "host/Types.h"

#include <optional>
#include <string_view>

/// Unsaved work that an editor finds when it is opened: what the database is asked, and what the clerk is told.
namespace melvark {

/// Whether work on the document may be taken up again, as the database answers; false when the procedure does not
/// answer in "a_OBNOVDATA", nothing when it reports failure. Throws EDatabaseError.
std::optional<bool> AskToRestore(const AnsiString& procedure, std::string_view idParam, int id);

// Sentences in the user's language (need a current host).
AnsiString UnsavedWorkIsUnreadable();
AnsiString UnsavedWorkIsHeld();
AnsiString UnsavedWorkIsOfAnotherDocument();

} // namespace melvark
