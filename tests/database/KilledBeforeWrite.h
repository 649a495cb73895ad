#pragma once

#include "tests/database/Interruption.h"

namespace refhost {

/// What interruptedAt does on the embedded engine.
Interruption killedBeforeWrite(int point, const std::function<void()>& work);

} // namespace refhost
