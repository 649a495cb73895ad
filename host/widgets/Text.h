#pragma once

/// \file
/// The widget boundary: the one place where UTF-8 text becomes a Qt string and back.

#include "host/Types.h"

#include <QString>

#include <string_view>

namespace melvark {

/// Bytes that are no UTF-8 become the replacement character.
QString ToQString(std::string_view text);
/// As UTF-8.
AnsiString ToAnsi(const QString& text);

/// A caption that shows `text` letter for letter: an ampersand marks a shortcut letter in captions of buttons, check
/// boxes and menu items, so each one of `text` is doubled. For captions that are data (column titles, names of
/// settings); built-in captions carry their marks on purpose and go through ToQString.
QString PlainCaption(std::string_view text);
/// The text of a caption that PlainCaption made.
AnsiString TextOfCaption(QString caption);

/// A hint that shows `text` letter for letter: Qt takes what looks like markup for markup. For hints that are data.
QString PlainHint(std::string_view text);

} // namespace melvark
