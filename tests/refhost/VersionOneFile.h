#pragma once

#include <string>

namespace refhost {

/// Makes a company's file as the first version of the program left it. Throws EDatabaseError or std::runtime_error.
void makeVersionOne(const std::string& path);

} // namespace refhost
