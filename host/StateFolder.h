/// \file
/// Where programs keep what outlives a restart of the machine and is no document of the user's.
#pragma once

#include "host/Types.h"

namespace melvark {

/// Melvark's folder in the user's directory for the state of programs, an absolute path: "melvark" in $XDG_STATE_HOME
/// when that is absolute, else in ~/.local/state. Unsaved work, saves without an answer and the log lie there. It need
/// not be there yet: nothing is made.
AnsiString StateFolder();

} // namespace melvark
