#pragma once

#include <string>

namespace refhost {

/// Makes an empty file that only its owner may read and write, whatever the system's habit. False when there is one of
/// that name already or none can be made; errno then says why. What the database engine lays beside it later takes its
/// rights over.
bool makePrivateFile(const std::string& path) noexcept;

} // namespace refhost
