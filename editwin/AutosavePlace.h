#pragma once

#include "host/Types.h"

/// Where the file of unsaved work lies, and how foreign texts become parts of its name.
namespace melvark {

/// The directory of the system's user for one database: in $TMPDIR when that is set, else where the desktop keeps the
/// state of programs, which outlives a restart of the machine. Nothing is made.
AnsiString AutosaveDirectory(const AnsiString& databaseDigest);

/// The text as a part of a file's name: letters, digits and signs as they are, what would lead elsewhere spelled out,
/// a long text cut and closed by its digest. Two texts never give the same part.
AnsiString FileNamePart(const AnsiString& text);

} // namespace melvark
