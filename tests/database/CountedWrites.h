#pragma once

#include "tests/database/Interruption.h"

namespace refhost {

/// What interruptedAt does on the embedded engine.
Interruption killedBeforeWrite(int point, const std::function<void()>& work);

/// Runs `work` in a process whose disk is full from its point-th write on: what would make a file longer fails. The
/// exit status.
int statusOnFullDisk(int point, const std::function<int()>& work);

} // namespace refhost
