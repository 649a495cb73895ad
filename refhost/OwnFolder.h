#pragma once

#include <filesystem>

namespace refhost {

/// Makes the folder and those above it; the folder is its owner's alone when it is new. One that cannot be made is no
/// error here: what is to lie in it is refused with a sentence.
void makeOwnFolder(const std::filesystem::path& folder);

} // namespace refhost
