#pragma once

#include <string>
#include <string_view>

namespace refhost {

class Languages;

/// The query behind a lookup list: the view that the host form identifier names, restricted by the condition in the
/// database, where the functions of the condition live. "Kordan3:DODAK.Normal" is the view DODAK_NORMAL_V.
/// Throws EHostError naming the identifier when it does not have that form.
std::string lookupQuery(std::string_view form, std::string_view condition, const Languages& languages);

/// The same in the order of a column, which the view has.
std::string inOrderOf(std::string_view column, std::string query);

} // namespace refhost
