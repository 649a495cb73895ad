#pragma once

#include "host/Connection.h"

#include <span>

namespace refhost {

/// A value as no editor sends it, with a name for people.
struct HostileValue {
    const char* Name;
    TDbValue Value;
};

std::span<const HostileValue> hostileValues();

} // namespace refhost
