#pragma once

#include "tests/dbcheck/Broken.h"

namespace refhost {

/// Databases whose declarations are wrong, each in one way.
std::vector<Fault> structureFaults();

} // namespace refhost
