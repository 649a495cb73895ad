#pragma once

#include "host/Types.h"

#include <string_view>

namespace melvark {

/// The path of the file that keeps an editor's unsaved lines: one for each user, kind of editor (`editor`, "DODAK") and
/// source of its lines (`source`, "SABLONA"), whichever document is edited. `directory` is the user's temporary
/// directory, with or without its last delimiter.
AnsiString TempFileName(std::string_view directory, std::string_view userName, std::string_view editor,
                        std::string_view source);

} // namespace melvark
