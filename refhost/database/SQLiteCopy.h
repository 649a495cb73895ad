#pragma once

#include <string>
#include <string_view>

namespace refhost {

/// Copies a database file as it stands after the last commit, also while others use it, to a new file beside it: its
/// name with `suffix`, and a number behind it when there is such a file already. The copy is its owner's alone. Returns
/// its path. Throws EDatabaseError, with no copy left.
std::string copySQLiteFile(const std::string& file, std::string_view suffix);

} // namespace refhost
