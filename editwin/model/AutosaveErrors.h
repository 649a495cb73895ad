#pragma once

#include "host/Exceptions.h"
#include "host/Types.h"

/// Why unsaved work cannot be kept, in the user's language, with what he may do. All need a current host.
namespace melvark {

/// The system refused something about the file; `error` is its number (errno).
EInOutError AutosaveRefused(int error, const AnsiString& path);

/// The system does not give what may be unsaved work; `error` is its number (errno).
EInOutError AutosaveUnread(int error, const AnsiString& path);

/// Unsaved work stands there that could not be read.
EInOutError AutosaveOverUnread(const AnsiString& path);

/// The name is taken by what this user did not write: a link, a pipe, a directory, another user's file.
EInOutError AutosaveForeign(const AnsiString& path);

/// The lines are more, or longer, than could be read again.
EInOutError AutosaveTooLarge();

} // namespace melvark
