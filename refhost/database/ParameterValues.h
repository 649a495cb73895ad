#pragma once

#include "host/Connection.h"

#include <string_view>

namespace refhost {

/// What a procedure expects in a parameter. Numbers and dates of documents are texts: the procedures read them, since
/// only they know what to say about a wrong one.
enum class ParameterKind { Integer, Boolean, Text };

/// The value as the parameter's kind wants it, the same for both engines: an integer of 32 bits, a boolean as the
/// integer 1 or 0, a text; null stays null. A text that means an integer or a boolean ("12", "true") is taken as one; a
/// floating-point number for a text is its shortest decimal. Throws EDatabaseError, naming the parameter, for a value
/// that is none and for a text with a NUL or of broken UTF-8, which not every engine keeps whole.
TDbValue parameterValue(ParameterKind kind, std::string_view name, const TDbValue& value);

/// The text as sentences show it: its first 60 characters and an ellipsis when it is longer.
AnsiString shownText(std::string_view text);

} // namespace refhost
