#pragma once

#include <map>
#include <string>
#include <vector>

namespace refhost {

/// Every row of a company by the columns that the first version's tables had, by table: what an upgrade has to keep.
std::map<std::string, std::vector<std::string>> contentsOf(const std::string& url);

/// All that a company's schema consists of, on the server with rights and comments, one line each.
std::vector<std::string> schemaOf(const std::string& url);

} // namespace refhost
