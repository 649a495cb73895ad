#pragma once

/// \file
/// The user's language: texts by their key, and words of a separated text.

#include "host/Format.h"
#include "host/Types.h"

#include <initializer_list>
#include <string_view>

/// Where the keys of the item editors' texts begin.
inline constexpr std::string_view c_ModuleKeyPrefix = R"(KORDAN30\MELVARKEDITOR\)";

/// The user's translation of the backslash-separated language key, or `fallback` when there is none, in either case
/// formatted with `arguments` by Format (also when there are none: "%%" becomes "%"). Throws EHostError without a
/// current host and EConvertError for a text that does not fit its arguments.
AnsiString LangStr(std::string_view key, std::initializer_list<TFormatArg> arguments, std::string_view fallback);

/// The field of `text` at `index`, counted from 0, when `separator` parts the fields; empty when there are fewer.
AnsiString GetWord(std::string_view text, int index, char separator);
