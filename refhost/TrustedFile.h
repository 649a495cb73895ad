#pragma once

#include <string>

namespace refhost {

/// The first file or folder on the way to `file`, the file itself included, through which somebody other than root and
/// this process's user could put something else in its place; empty when nobody can. Links are followed first. A folder
/// in which everybody may make files but rename only their own (/tmp) is no such place on the way, but it is as the
/// folder of the file itself. What cannot be looked at counts as open.
std::string openToOthers(const std::string& file);

} // namespace refhost
