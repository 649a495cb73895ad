#pragma once

#include "host/Types.h"

#include <string_view>

/// Letter case of names that are ASCII by agreement: database names, words of a command line. Bytes outside ASCII stay
/// as they are, whatever the locale; texts of people have the database's Czech rules instead.
namespace melvark {

AnsiString LowerAscii(std::string_view text);
AnsiString UpperAscii(std::string_view text);
/// Whether the texts are the same but for the case of ASCII letters.
bool SameButForAsciiCase(std::string_view left, std::string_view right);

} // namespace melvark
