#pragma once

/// \file
/// Letter case of names that are ASCII by agreement.

#include "host/Types.h"

#include <string_view>

namespace melvark {

/// The text with the letters A to Z made small. For database names and words of a command line: bytes outside ASCII
/// stay as they are, whatever the locale; texts of people have the database's Czech rules instead.
AnsiString LowerAscii(std::string_view text);
/// As LowerAscii, the letters a to z made capital.
AnsiString UpperAscii(std::string_view text);
/// Whether the texts are the same but for the case of ASCII letters.
bool SameButForAsciiCase(std::string_view left, std::string_view right);

} // namespace melvark
