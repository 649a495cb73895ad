#pragma once

#include <string>
#include <string_view>

namespace refhost {

/// A part of standard SQL with a question mark in the place of each text and number, so that it can be recorded where
/// no value may stand. Names stay, also quoted ones. A text without its end is hidden to the end.
std::string hideValues(std::string_view sql);

} // namespace refhost
